#pragma once

#include "rulebase/IRule.h"

// What every kind of rule holds: id, active flag, title, description, condition and the
// violation definition. Each setter marks the rule, whether or not the value changes.
class CommonRuleFields : public IRule
{
public:
    // Also the Dirty of the definition.
    bool Dirty() const override;
    void setDirty(bool dirty) override;
    // Lives in the definition; setting it here also marks the rule.
    qint32 CategoryID() const;
    void setCategoryID(qint32 categoryID);
    QString Condition() const override { return m_condition; }
    void setCondition(const QString &condition);
    QString Description() const override { return m_description; }
    void setDescription(const QString &description);
    qint32 RuleID() const override { return m_ruleID; }
    void setRuleID(qint32 ruleID) override;
    QString RuleKey() const override { return ruleKey(m_ruleID); }
    bool RuleActive() const override { return m_ruleActive; }
    void setRuleActive(bool active) override;
    QString Title() const override { return m_title; }
    void setTitle(const QString &title);
    std::shared_ptr<::ViolationDefinition> ViolationDefinition() const override
    {
        return m_violationDefinition;
    }
    // Replaces the definition without marking the rule.
    void setViolationDefinition(std::shared_ptr<::ViolationDefinition> definition)
    {
        m_violationDefinition = std::move(definition);
    }

protected:
    // `className` names the rule's class in the error of a missing definition.
    explicit CommonRuleFields(const char *className);

    // The definition, or the runtime's object error when it was replaced by none.
    ::ViolationDefinition &definition() const;

    qint32 m_ruleID = 0;
    bool m_ruleActive = true;
    QString m_title;
    QString m_description;
    QString m_condition;
    std::shared_ptr<::ViolationDefinition> m_violationDefinition;
    bool m_dirty = false;

private:
    const char *m_className;
};
