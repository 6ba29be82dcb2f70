#include "gui/factory/GuiFormFactory.h"

#include "editors/AddFromProjectForm.h"
#include "editors/AuthorisedComponentForm.h"
#include "editors/AuthorisedReferenceForm.h"
#include "gui/dialogs/frmAddFromProject.h"
#include "gui/dialogs/frmAuthorisedComponent.h"
#include "gui/dialogs/frmAuthorisedReference.h"

bool GuiFormFactory::runAddFromProject(AddFromProjectForm &form)
{
    frmAddFromProject dialog(form, parentWidget());
    dialog.exec();
    return !form.Cancelled();
}

bool GuiFormFactory::runAuthorisedComponent(AuthorisedComponentForm &form)
{
    frmAuthorisedComponent dialog(form, parentWidget());
    dialog.exec();
    return !form.Cancelled();
}

bool GuiFormFactory::runAuthorisedReference(AuthorisedReferenceForm &form)
{
    frmAuthorisedReference dialog(form, parentWidget());
    dialog.exec();
    return !form.Cancelled();
}
