#pragma once

#include "editors/AuthorisedItemForm.h"

class AuthorisedReference;

// The dialog of one authorised type library reference: OK needs a description and a GUID.
class AuthorisedReferenceForm final : public AuthorisedItemForm
{
public:
    explicit AuthorisedReferenceForm(std::shared_ptr<::AuthorisedReference> item);

    std::shared_ptr<::AuthorisedReference> AuthorisedReference() const { return m_item; }

    static QString DescriptionLabel() { return QStringLiteral("Reference &Description"); }
    QString Description() const { return m_description; }
    void setDescription(const QString &text);

    QString Caption() const override { return QStringLiteral("Authorised Reference"); }
    QString FilenameLabel() const override { return QStringLiteral("&Reference Filename"); }
    QString BrowseCaption() const override { return QStringLiteral("Browse For Reference"); }
    QString HelpTopic() const override { return QStringLiteral("::/AuthorisedReference.htm"); }
    qint32 ObjectType() const override;

private:
    bool TestedFieldsHoldText() const override;
    int BrowseFileType() const override { return 7; }
    QString BrowseTitle() const override { return QStringLiteral("Select ActiveX Component"); }
    bool TakeLibrary(const QString &path) override;
    void WriteItem() override;
    const char *module() const override { return "frmAuthorisedReference"; }

    std::shared_ptr<::AuthorisedReference> m_item;
    QString m_description;
};
