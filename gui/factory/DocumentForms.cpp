#include "gui/factory/GuiFormFactory.h"

#include "editors/RulebaseDocCreatorForm.h"
#include "gui/dialogs/frmRulebaseDocCreator.h"

bool GuiFormFactory::runDocCreator(RulebaseDocCreatorForm &form)
{
    frmRulebaseDocCreator dialog(form, parentWidget());
    return dialog.exec() == QDialog::Accepted;
}
