#pragma once

#include <QString>

// Machine-wide installation data: defaults, overridden by the values of the product's key.
class QuorinData
{
public:
    QuorinData();

    QString ErrorLogFile() const { return m_errorLogFile; }
    void setErrorLogFile(const QString &value) { m_errorLogFile = value; }
    QString ProductVersion() const { return m_productVersion; }
    void setProductVersion(const QString &value) { m_productVersion = value; }
    // Folders carry their trailing separator, so file names are simply appended.
    QString LocalDataPath() const { return m_localDataPath; }
    void setLocalDataPath(const QString &value) { m_localDataPath = value; }
    QString LocalAppPath() const { return m_localAppPath; }
    void setLocalAppPath(const QString &value) { m_localAppPath = value; }
    QString ProjectResultsDB() const { return m_projectResultsDB; }
    QString HomePageURL() const { return m_homePageURL; }
    QString TechSupportPageURL() const { return m_techSupportPageURL; }

    // The program's own folder, with a trailing separator.
    static QString programFolder();

private:
    QString m_errorLogFile;
    QString m_productVersion;
    QString m_projectResultsDB;
    QString m_localDataPath;
    QString m_localAppPath;
    QString m_homePageURL;
    QString m_techSupportPageURL;
};
