#include "platform/QuorinData.h"

#include "platform/DataLocation.h"
#include "platform/RegistryUtils.h"

#include <QCoreApplication>
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcSettings, "quorin.settings", QtWarningMsg)

QString QuorinData::programFolder()
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/');
}

QuorinData::QuorinData()
{
    using namespace RegistryUtils;
    const QString key = productKey();
    const Root root = HKEY_LOCAL_MACHINE;
    if (!KeyExists(key, root))
        qCInfo(lcSettings).noquote()
            << QStringLiteral("Unable to find Quorin registry key: HKEY_LOCAL_MACHINE\\") + key;

    // The folders first, so that the files inside them default to the folders in force.
    const QString dataFolder = DataLocation::dataFolder();
    m_localDataPath = GetRegString(key, QStringLiteral("DataFilesFolder"), dataFolder, root);
    m_localAppPath = GetRegString(key, QStringLiteral("ProgramFilesFolder"), programFolder(), root);
    // An installed program's data folder is read-only; a data folder set by hand takes the log.
    const QString logFolder
        = m_localDataPath == dataFolder ? DataLocation::writableFolder() : m_localDataPath;
    m_errorLogFile = GetRegString(
        key, QStringLiteral("ErrorLogFile"), logFolder + QStringLiteral("Error.log"), root);
    m_productVersion
        = GetRegString(key,
                       QStringLiteral("ProductVersion"),
                       QStringLiteral("%1.%2").arg(QUORIN_VERSION_MAJOR).arg(QUORIN_VERSION_MINOR),
                       root);
    m_projectResultsDB = GetRegString(key,
                                      QStringLiteral("ProjectResultsDB"),
                                      m_localDataPath + QStringLiteral("QuorinProject.mdb"),
                                      root);
    m_homePageURL = GetRegString(key,
                                 QStringLiteral("HomePageUrl"),
                                 QStringLiteral("https://quorin.tarnwick.example/"),
                                 root);
    m_techSupportPageURL = GetRegString(key,
                                        QStringLiteral("TechSupportPageUrl"),
                                        QStringLiteral("https://quorin.tarnwick.example/support/"),
                                        root);
}
