#include "editors/ConventionFormLauncher.h"

#include "editors/IConventionForm.h"
#include "editors/IFormFactory.h"
#include "rulebase/IRule.h"

bool ConventionFormLauncher::EditRule(const std::shared_ptr<IRule> &rule)
{
    if (!rule)
        return false;
    std::unique_ptr<IConventionForm> form
        = IFormFactory::current().createConventionForm(rule->RuleType());
    if (!form)
        return false;
    form->setConvention(rule);
    form->setApplication(m_application);
    form->Show();
    return !form->Cancelled();
}

// The category and severity dialogs come with their own feature.
bool ConventionFormLauncher::EditCategory(const std::shared_ptr<CategoryItem> &)
{
    return false;
}

bool ConventionFormLauncher::EditSeverity(const std::shared_ptr<SeverityItem> &)
{
    return false;
}
