#pragma once

#include "rulebase/CommonRuleFields.h"
#include "rulebase/ParserEventArray.h"

// A rule that runs at parser events of its own: the coding conventions and the unauthorised
// keywords.
class EventRule : public CommonRuleFields
{
public:
    qint32 EventCount() const { return m_events.Count(); }
    QString ParserEventList() const { return m_events.List(); }
    // 0-based.
    qint32 ParserEventID(qint32 index) const { return m_events.ID(index); }
    bool IsAssignedToEvent(qint32 eventID) const { return m_events.Contains(eventID); }

    // The per-event lists of RuleLists are the caller's to bring up to date.
    bool AddParserEventID(qint32 eventID);
    bool RemoveParserEventID(qint32 eventID);

protected:
    explicit EventRule(const char *className)
        : CommonRuleFields(className)
        , m_module(className)
    {
    }

    // Gives this rule's events to `clone`.
    void CopyEventsTo(EventRule &clone) const;

    ParserEventArray m_events;

private:
    const char *m_module;
};
