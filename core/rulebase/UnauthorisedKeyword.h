#pragma once

#include "rulebase/EventRule.h"

// A rule that forbids text in source code: Condition holds the pattern, tried at the rule's
// parser events only.
class UnauthorisedKeyword final : public EventRule
{
public:
    UnauthorisedKeyword();

    qint32 RuleType() const override { return RuleTypes::UnauthorisedKeyword; }
    // Unlike a coding convention's, these are stored whatever the rule is.
    bool Triggered() const override { return m_triggered; }
    void setTriggered(bool triggered) override { m_triggered = triggered; }
    bool Cancelled() const override { return m_cancelled; }
    void setCancelled(bool cancelled) override { m_cancelled = cancelled; }
    bool PendingViolation() const override { return false; }
    std::shared_ptr<IRule> Clone() const override;

private:
    bool m_cancelled = false;
    bool m_triggered = false;
};
