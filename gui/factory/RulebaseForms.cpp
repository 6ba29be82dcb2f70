#include "gui/factory/GuiFormFactory.h"

#include "gui/dialogs/DialogSupport.h"
#include "gui/dialogs/frmCategoryEditor.h"
#include "gui/dialogs/frmCategorySeverity.h"
#include "gui/dialogs/frmDefaultViolations.h"
#include "gui/dialogs/frmRulebaseProperties.h"
#include "gui/dialogs/frmSeverityEditor.h"
#include "gui/dialogs/frmTagList.h"

#include "editors/CategoryEditorForm.h"
#include "editors/CategorySeverityForm.h"
#include "editors/DefaultViolationsForm.h"
#include "editors/RulebasePropertiesForm.h"
#include "editors/SeverityEditorForm.h"
#include "editors/TagListForm.h"

// Each dialog is made for one run over its form model, shown modally over whatever is in front
// (the main window, or the list dialog that opened an editor), and dropped.
namespace {

template<typename Dialog, typename Form>
void runModal(Form &form, QWidget *mainWindow)
{
    Dialog dialog(form, DialogSupport::dialogParent(mainWindow));
    dialog.exec();
}

} // namespace

bool GuiFormFactory::runCategorySeverity(CategorySeverityForm &form)
{
    runModal<frmCategorySeverity>(form, parentWidget());
    return form.Dirty();
}

bool GuiFormFactory::runCategoryEditor(CategoryEditorForm &form)
{
    runModal<frmCategoryEditor>(form, parentWidget());
    return !form.Cancelled();
}

bool GuiFormFactory::runSeverityEditor(SeverityEditorForm &form)
{
    runModal<frmSeverityEditor>(form, parentWidget());
    return !form.Cancelled();
}

bool GuiFormFactory::runDefaultViolations(DefaultViolationsForm &form)
{
    runModal<frmDefaultViolations>(form, parentWidget());
    return !form.Cancelled();
}

bool GuiFormFactory::runRulebaseProperties(RulebasePropertiesForm &form)
{
    runModal<frmRulebaseProperties>(form, parentWidget());
    return !form.Cancelled();
}

bool GuiFormFactory::runTagList(TagListForm &form)
{
    runModal<frmTagList>(form, parentWidget());
    return !form.Cancelled();
}
