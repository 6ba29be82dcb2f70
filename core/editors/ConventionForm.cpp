#include "editors/ConventionForm.h"

#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/UnauthorisedKeyword.h"

template<class Rule>
qint32 ConventionForm<Rule>::RuleID() const
{
    return m_rule ? m_rule->RuleID() : 0;
}

template<class Rule>
void ConventionForm<Rule>::RuleToScreen()
{
    const Rule &rule = *m_rule;
    CommonScreen &screen = common();
    screen.txtTitle = rule.Title();
    screen.txtDescription = rule.Description();
    CategoryToScreen(rule.CategoryID());
    screen.chkRuleActive = rule.RuleActive();
}

template<class Rule>
void ConventionForm<Rule>::RuleFromScreen()
{
    Rule &rule = *m_rule;
    const CommonScreen &screen = common();
    rule.setTitle(screen.txtTitle);
    rule.setDescription(screen.txtDescription);
    rule.setCategoryID(CategoryFromScreen());
    rule.setRuleActive(screen.chkRuleActive);
}

template class ConventionForm<CodingConvention>;
template class ConventionForm<NamingConvention>;
template class ConventionForm<UnauthorisedKeyword>;
