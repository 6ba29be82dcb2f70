#include "gui/factory/GuiFormFactory.h"

bool GuiFormFactory::runAddFromProject(AddFromProjectForm &form) { return IFormFactory::runAddFromProject(form); }
bool GuiFormFactory::runAuthorisedComponent(AuthorisedComponentForm &form) { return IFormFactory::runAuthorisedComponent(form); }
bool GuiFormFactory::runAuthorisedReference(AuthorisedReferenceForm &form) { return IFormFactory::runAuthorisedReference(form); }
