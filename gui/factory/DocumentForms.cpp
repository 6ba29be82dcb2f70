#include "gui/factory/GuiFormFactory.h"

bool GuiFormFactory::runDocCreator(RulebaseDocCreatorForm &form) { return IFormFactory::runDocCreator(form); }
