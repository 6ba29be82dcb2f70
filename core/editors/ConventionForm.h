#pragma once

#include "editors/ConventionFormBase.h"

#include <memory>

class CodingConvention;
class NamingConvention;
class UnauthorisedKeyword;

// The half of a rule dialog's model that knows the rule's class: the rule it edits, and the
// "Rule" tab's fields every rule has (title, description, category, active flag). Built for the
// three rule classes only, in ConventionForm.cpp, so the headers need not see the rules.
template<class Rule>
class ConventionForm : public ConventionFormBase
{
public:
    void setConvention(std::shared_ptr<Rule> rule) { m_rule = std::move(rule); }
    const std::shared_ptr<Rule> &convention() const { return m_rule; }
    qint32 RuleID() const override;

protected:
    explicit ConventionForm(std::shared_ptr<Rule> rule)
        : m_rule(std::move(rule))
    {
    }

    void RuleToScreen();
    void RuleFromScreen();

    std::shared_ptr<Rule> m_rule;
};

extern template class ConventionForm<CodingConvention>;
extern template class ConventionForm<NamingConvention>;
extern template class ConventionForm<UnauthorisedKeyword>;
