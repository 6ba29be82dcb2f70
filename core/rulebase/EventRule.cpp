#include "rulebase/EventRule.h"

#include "platform/ErrorFrame.h"

bool EventRule::AddParserEventID(qint32 eventID)
{
    return guarded("AddParserEventID", m_module, false, [&] {
        // An id already held changes nothing, not even the dirty flag.
        if (m_events.Add(eventID))
            m_dirty = true;
        return true;
    });
}

bool EventRule::RemoveParserEventID(qint32 eventID)
{
    return guarded("RemoveParserEventID", m_module, false, [&] {
        // Marks the rule even when the id was not assigned.
        m_events.Remove(eventID);
        m_dirty = true;
        return true;
    });
}

void EventRule::CopyEventsTo(EventRule &clone) const
{
    for (qint32 i = 0; i < m_events.Count(); ++i)
        clone.AddParserEventID(m_events.ID(i));
}
