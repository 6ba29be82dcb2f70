#include "gui/dialogs/frmAuthorisedReference.h"

#include "editors/AuthorisedReferenceForm.h"

#include <QLineEdit>
#include <QSignalBlocker>

frmAuthorisedReference::frmAuthorisedReference(AuthorisedReferenceForm &form, QWidget *parent)
    : AuthorisedItemDialog(
        form,
        parent,
        [&form](const QString &text) { form.setDescription(text); },
        AuthorisedReferenceForm::DescriptionLabel())
    , m_reference(form)
{
    setObjectName(QStringLiteral("frmAuthorisedReference"));
    ShowFields();
}

void frmAuthorisedReference::ShowFields()
{
    {
        const QSignalBlocker quiet(m_description);
        m_description->setText(m_reference.Description());
    }
    AuthorisedItemDialog::ShowFields();
}
