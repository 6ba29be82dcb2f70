#pragma once

#include "rulebase/IRule.h"
#include "rulebase/ParserEventArray.h"

// A rule whose Condition is a Basic script run at each of its parser events. With
// PendingViolation the violation stands from the start and is raised at EndEventID unless the
// condition cancels it first.
class CodingConvention final : public IRule
{
public:
    CodingConvention();

    bool Dirty() const override;
    void setDirty(bool dirty) override;
    // Stored only while PendingViolation is on; otherwise the old value stands.
    bool Cancelled() const override { return m_cancelled; }
    void setCancelled(bool cancelled) override;
    bool Triggered() const override { return m_triggered; }
    void setTriggered(bool triggered) override;
    // Lives in the definition; setting it here also marks the rule.
    qint32 CategoryID() const;
    void setCategoryID(qint32 categoryID);
    QString Condition() const override { return m_condition; }
    void setCondition(const QString &condition);
    QString Description() const override { return m_description; }
    void setDescription(const QString &description);
    // -1 for none. Turning PendingViolation off leaves it; only the editor clears it.
    qint32 EndEventID() const { return m_endEventID; }
    void setEndEventID(qint32 eventID);
    bool PendingViolation() const override { return m_pendingViolation; }
    void setPendingViolation(bool pending);
    qint32 EventCount() const { return m_events.Count(); }
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
    QString ParserEventList() const { return m_events.List(); }
    // 0-based.
    qint32 ParserEventID(qint32 index) const { return m_events.ID(index); }

    qint32 RuleType() const override { return RuleTypes::CodingConvention; }
    std::shared_ptr<IRule> Clone() const override;

    // The per-event lists of RuleLists are the caller's to bring up to date.
    bool AddParserEventID(qint32 eventID);
    bool RemoveParserEventID(qint32 eventID);
    bool IsAssignedToEvent(qint32 eventID) const { return m_events.Contains(eventID); }

private:
    // The definition, or the runtime's object error when it was replaced by none.
    ::ViolationDefinition &definition() const;

    qint32 m_ruleID = 0;
    bool m_ruleActive = true;
    QString m_title;
    QString m_description;
    bool m_pendingViolation = false;
    qint32 m_endEventID = -1;
    QString m_condition;
    ParserEventArray m_events;
    std::shared_ptr<::ViolationDefinition> m_violationDefinition;
    bool m_dirty = false;
    bool m_cancelled = false;
    bool m_triggered = false;
};
