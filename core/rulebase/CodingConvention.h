#pragma once

#include "rulebase/EventRule.h"

// A rule whose Condition is a Basic script run at each of its parser events. With
// PendingViolation the violation stands from the start and is raised at EndEventID unless the
// condition cancels it first.
class CodingConvention final : public EventRule
{
public:
    CodingConvention();

    // Stored only while PendingViolation is on; otherwise the old value stands.
    bool Cancelled() const override { return m_cancelled; }
    void setCancelled(bool cancelled) override;
    bool Triggered() const override { return m_triggered; }
    void setTriggered(bool triggered) override;
    // -1 for none. Turning PendingViolation off leaves it; only the editor clears it.
    qint32 EndEventID() const { return m_endEventID; }
    void setEndEventID(qint32 eventID);
    bool PendingViolation() const override { return m_pendingViolation; }
    void setPendingViolation(bool pending);

    qint32 RuleType() const override { return RuleTypes::CodingConvention; }
    std::shared_ptr<IRule> Clone() const override;

private:
    bool m_pendingViolation = false;
    qint32 m_endEventID = -1;
    bool m_cancelled = false;
    bool m_triggered = false;
};
