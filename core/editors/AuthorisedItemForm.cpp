#include "editors/AuthorisedItemForm.h"

#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/UserInterface.h"
#include "vocabulary/ObjectHelper.h"

#include <algorithm>

AuthorisedItemForm::~AuthorisedItemForm() = default;

void AuthorisedItemForm::Load()
{
    UpdateOK();
    CheckVersion();
}

void AuthorisedItemForm::setFilename(const QString &text)
{
    m_filename = text;
    UpdateOK();
}

void AuthorisedItemForm::setGUID(const QString &text)
{
    m_guid = text;
    UpdateOK();
}

void AuthorisedItemForm::setVersions(const QString &text)
{
    m_versions = text;
    CheckVersion();
}

void AuthorisedItemForm::UpdateOK()
{
    m_okEnabled = TestedFieldsHoldText();
}

void AuthorisedItemForm::CheckVersion()
{
    // With every version allowed no version can be unauthorised, so advice has nothing to say.
    m_adviceEnabled = !m_versions.isEmpty();
    if (!m_adviceEnabled)
        m_advice.clear();
}

bool AuthorisedItemForm::Browse()
{
    return guarded("cmdBrowse_Click", module(), false, [this] {
        FileDialogRequest request;
        request.fileType = BrowseFileType();
        request.title = BrowseTitle();
        request.folder = gobjAdminData ? gobjAdminData->LastPath() : QString();
        if (!UserInterface::current().getOpenFilename(request))
            return false;
        if (gobjAdminData)
            gobjAdminData->setLastPath(request.folder);
        setFilename(request.path);
        if (!TakeLibrary(request.path)) {
            showWarning(QStringLiteral(
                "Unable to extract the type library information from the selected component."));
            setGUID(QString());
            setVersions(QString());
        }
        UpdateOK();
        return true;
    });
}

QString AuthorisedItemForm::ObjectPropertyMacro(const QString &propertyName) const
{
    return QStringLiteral("%") + ObjectHelper::ObjectName(ObjectType()) + QStringLiteral(".")
           + propertyName + QStringLiteral("%");
}

int AuthorisedItemForm::InsertIntoAdvice(const QString &text,
                                         int selectionStart,
                                         int selectionLength)
{
    const int start = std::clamp(selectionStart, 0, int(m_advice.size()));
    const int length = std::clamp(selectionLength, 0, int(m_advice.size()) - start);
    m_advice.replace(start, length, text);
    return start + int(text.size());
}

bool AuthorisedItemForm::OK()
{
    return guarded("cmdOK_Click", module(), false, [this] {
        if (!m_okEnabled)
            return false;
        WriteItem();
        m_cancelled = false;
        return true;
    });
}
