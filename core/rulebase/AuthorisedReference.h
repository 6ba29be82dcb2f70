#pragma once

#include "rulebase/IAuthorisedItem.h"

// A type library that projects may reference, with the versions allowed.
class AuthorisedReference final : public IAuthorisedItem
{
public:
    QString Advice() const override { return m_advice; }
    void setAdvice(const QString &advice) override { m_advice = advice; }
    // As the file holds it; not parsed here.
    QString VersionList() const { return m_versionList; }
    void setVersionList(const QString &versions) { m_versionList = versions; }
    QString LibID() const { return m_libID; }
    void setLibID(const QString &libID) { m_libID = libID; }
    QString Filename() const { return m_filename; }
    void setFilename(const QString &filename) { m_filename = filename; }
    QString Description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    // Working state of the import and the views, not part of the definition.
    bool Selected() const override { return m_selected; }
    void setSelected(bool selected) override { m_selected = selected; }

    QString Title() const override { return m_description; }
    void setTitle(const QString &title) override { m_description = title; }
    QString TypeLibGuid() const override { return m_libID; }
    void setTypeLibGuid(const QString &guid) override { m_libID = guid; }
    QString Versions() const override { return m_versionList; }
    void setVersions(const QString &versions) override { m_versionList = versions; }

private:
    QString m_description;
    QString m_filename;
    QString m_libID;
    QString m_versionList;
    QString m_advice;
    bool m_selected = true;
};
