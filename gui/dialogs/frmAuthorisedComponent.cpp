#include "gui/dialogs/frmAuthorisedComponent.h"

#include "editors/AuthorisedComponentForm.h"

frmAuthorisedComponent::frmAuthorisedComponent(AuthorisedComponentForm &form, QWidget *parent)
    : AuthorisedItemDialog(form, parent)
{
    setObjectName(QStringLiteral("frmAuthorisedComponent"));
    ShowFields();
}
