#pragma once

#include <QString>

// One ActiveX control library a project uses: by GUID, or another project at design time.
class VirtualComponent final
{
public:
    QString AuthorisedVersions() const { return m_authorisedVersions; }
    void setAuthorisedVersions(const QString &value) { m_authorisedVersions = value; }
    bool IsAuthorised() const { return m_isAuthorised; }
    void setIsAuthorised(bool value) { m_isAuthorised = value; }
    bool DesignTime() const { return m_designTime; }
    void setDesignTime(bool value) { m_designTime = value; }
    QString Version() const { return m_version; }
    void setVersion(const QString &value) { m_version = value; }
    QString GUID() const { return m_guid; }
    void setGUID(const QString &value) { m_guid = value; }
    QString Filename() const { return m_filename; }
    void setFilename(const QString &value) { m_filename = value; }
    qint32 LCID() const { return m_lcid; }
    void setLCID(qint32 value) { m_lcid = value; }

private:
    QString m_authorisedVersions;
    bool m_isAuthorised = false;
    bool m_designTime = false;
    QString m_version;
    QString m_guid;
    QString m_filename;
    qint32 m_lcid = 0;
};
