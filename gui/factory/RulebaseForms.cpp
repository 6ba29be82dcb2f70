#include "gui/factory/GuiFormFactory.h"

bool GuiFormFactory::runCategorySeverity(CategorySeverityForm &form) { return IFormFactory::runCategorySeverity(form); }
bool GuiFormFactory::runCategoryEditor(CategoryEditorForm &form) { return IFormFactory::runCategoryEditor(form); }
bool GuiFormFactory::runSeverityEditor(SeverityEditorForm &form) { return IFormFactory::runSeverityEditor(form); }
bool GuiFormFactory::runDefaultViolations(DefaultViolationsForm &form) { return IFormFactory::runDefaultViolations(form); }
bool GuiFormFactory::runRulebaseProperties(RulebasePropertiesForm &form) { return IFormFactory::runRulebaseProperties(form); }
bool GuiFormFactory::runTagList(TagListForm &form) { return IFormFactory::runTagList(form); }
