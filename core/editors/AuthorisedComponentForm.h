#pragma once

#include "editors/AuthorisedItemForm.h"

class AuthorisedComponent;

// The dialog of one authorised ActiveX component: OK needs a file name and a GUID.
class AuthorisedComponentForm final : public AuthorisedItemForm
{
public:
    explicit AuthorisedComponentForm(std::shared_ptr<::AuthorisedComponent> item);

    std::shared_ptr<::AuthorisedComponent> AuthorisedComponent() const { return m_item; }

    QString Caption() const override { return QStringLiteral("Authorised Component"); }
    QString FilenameLabel() const override { return QStringLiteral("&Component Filename"); }
    QString BrowseCaption() const override { return QStringLiteral("Browse For Component"); }
    QString HelpTopic() const override { return QStringLiteral("::/AuthorisedComponent.htm"); }
    qint32 ObjectType() const override;

private:
    bool TestedFieldsHoldText() const override;
    int BrowseFileType() const override { return 6; }
    QString BrowseTitle() const override { return QStringLiteral("Select ActiveX Control"); }
    bool TakeLibrary(const QString &path) override;
    void WriteItem() override;
    const char *module() const override { return "frmAuthorisedComponent"; }

    std::shared_ptr<::AuthorisedComponent> m_item;
};
