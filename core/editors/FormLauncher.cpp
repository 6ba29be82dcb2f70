#include "editors/FormLauncher.h"

#include "editors/CategoryEditorForm.h"
#include "editors/IConventionForm.h"
#include "editors/IFormFactory.h"
#include "editors/SeverityEditorForm.h"
#include "platform/ErrorFrame.h"
#include "rulebase/IRule.h"

bool FormLauncher::EditRule(const std::shared_ptr<IRule> &rule)
{
    if (!rule)
        return false;
    std::unique_ptr<IConventionForm> form
        = IFormFactory::current().createConventionForm(rule->RuleType());
    if (!form)
        return false;
    form->setConvention(rule);
    form->setContext(m_context ? m_context() : RuleDialogContext{});
    form->Show();
    return !form->Cancelled();
}

bool FormLauncher::EditCategory(const std::shared_ptr<CategoryItem> &category)
{
    return guarded("EditCategory", "CategoryView", false, [&] {
        CategoryEditorForm form;
        form.setCategoryItem(category);
        form.Load();
        IFormFactory::current().runCategoryEditor(form);
        return !form.Cancelled();
    });
}

bool FormLauncher::EditSeverity(const std::shared_ptr<SeverityItem> &severity)
{
    return guarded("EditSeverity", "SeverityView", false, [&] {
        SeverityEditorForm form;
        form.setSeverityItem(severity);
        form.Load();
        IFormFactory::current().runSeverityEditor(form);
        return !form.Cancelled();
    });
}
