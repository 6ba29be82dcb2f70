#pragma once

#include <QString>
#include <QStringList>

#include <memory>

class VirtualComponent;

// What the component and reference dialogs share: the fields of one authorised item, OK
// enabled while the tested fields hold text, the advice usable only while versions are
// restricted, and a browse that reads the GUID and version from a file's type library.
// The item is written on OK only.
class AuthorisedItemForm
{
public:
    virtual ~AuthorisedItemForm();

    static QString GuidLabel() { return QStringLiteral("&Type Library GUID"); }
    static QString VersionsLabel()
    {
        return QStringLiteral("&Authorised Versions (separate each version with a ; or leave "
                              "blank to allow any version)");
    }
    static QString AdviceLabel() { return QStringLiteral("&Unauthorised Version Advice"); }
    static QString ObjectPropertyCaption() { return QStringLiteral("Insert Object Property"); }

    virtual QString Caption() const = 0;
    virtual QString FilenameLabel() const = 0;
    virtual QString BrowseCaption() const = 0;
    virtual QString HelpTopic() const = 0;

    QString Filename() const { return m_filename; }
    void setFilename(const QString &text);
    QString GUID() const { return m_guid; }
    void setGUID(const QString &text);
    QString Versions() const { return m_versions; }
    // Runs CheckVersion: no versions, no advice.
    void setVersions(const QString &text);
    QString Advice() const { return m_advice; }
    void setAdvice(const QString &text) { m_advice = text; }

    bool OKEnabled() const { return m_okEnabled; }
    // Disabled (and grey) while every version is allowed.
    bool AdviceEnabled() const { return m_adviceEnabled; }
    bool ObjectPropertyEnabled() const { return m_adviceEnabled; }

    // Asks for a file and takes the GUID and version of its type library; true when a file
    // was chosen. A file without one gets a warning and leaves GUID and versions empty.
    bool Browse();

    // The catalogue object whose properties the advice may quote (Component or Reference).
    virtual qint32 ObjectType() const = 0;
    // The macro of one of its properties: "%Component.Filename%".
    QString ObjectPropertyMacro(const QString &propertyName) const;
    // Puts text at the advice's caret, over its selection; gives the caret after it.
    int InsertIntoAdvice(const QString &text, int selectionStart, int selectionLength);

    // False, and nothing written, while OK is disabled.
    bool OK();
    void Cancel() { m_cancelled = true; }
    // True until OK.
    bool Cancelled() const { return m_cancelled; }

protected:
    AuthorisedItemForm() = default;

    // Form_Load, from the derived constructor once the fields are set.
    void Load();
    // The enable rule of OK.
    void UpdateOK();
    void CheckVersion();
    virtual bool TestedFieldsHoldText() const = 0;
    virtual int BrowseFileType() const = 0;
    virtual QString BrowseTitle() const = 0;
    // Reads the chosen file's library into the fields; false when it has none.
    virtual bool TakeLibrary(const QString &path) = 0;
    virtual void WriteItem() = 0;
    virtual const char *module() const = 0;

    // The fields both kinds of item have, from an item that has a GUID; false for a new one.
    template<class Item>
    bool FieldsFromItem(const Item *item)
    {
        if (!item || item->LibID().isEmpty())
            return false;
        m_filename = item->Filename();
        m_guid = item->LibID();
        m_versions = item->VersionList();
        m_advice = item->Advice();
        return true;
    }
    template<class Item>
    void FieldsToItem(Item &item) const
    {
        item.setFilename(m_filename);
        item.setLibID(m_guid);
        item.setVersionList(m_versions);
        item.setAdvice(m_advice);
    }
    // The GUID and version of a library read from the chosen file.
    template<class Library>
    void TakeGuidAndVersion(const Library &library)
    {
        setGUID(library.GUID());
        setVersions(library.Version());
    }

    QString m_filename;
    QString m_guid;
    QString m_versions;
    QString m_advice;

private:
    bool m_okEnabled = false;
    bool m_adviceEnabled = false;
    bool m_cancelled = true;
};
