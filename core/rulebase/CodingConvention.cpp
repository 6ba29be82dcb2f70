#include "rulebase/CodingConvention.h"

#include "platform/ErrorFrame.h"
#include "rulebase/ViolationDefinition.h"

namespace {
constexpr const char *module = "CodingConvention";
}

CodingConvention::CodingConvention()
    : m_violationDefinition(std::make_shared<::ViolationDefinition>())
{
}

bool CodingConvention::Dirty() const
{
    return m_dirty || (m_violationDefinition && m_violationDefinition->Dirty());
}

void CodingConvention::setDirty(bool dirty)
{
    m_dirty = dirty;
    if (m_violationDefinition)
        m_violationDefinition->setDirty(dirty);
}

void CodingConvention::setCancelled(bool cancelled)
{
    if (m_pendingViolation)
        m_cancelled = cancelled;
}

void CodingConvention::setTriggered(bool triggered)
{
    if (m_pendingViolation)
        m_triggered = triggered;
}

::ViolationDefinition &CodingConvention::definition() const
{
    if (!m_violationDefinition)
        throw QuorinError::objectNotSet(QStringLiteral("CodingConvention::ViolationDefinition"));
    return *m_violationDefinition;
}

qint32 CodingConvention::CategoryID() const
{
    return definition().CategoryID();
}

void CodingConvention::setCategoryID(qint32 categoryID)
{
    definition().setCategoryID(categoryID);
    m_dirty = true;
}

void CodingConvention::setCondition(const QString &condition)
{
    m_condition = condition;
    m_dirty = true;
}

void CodingConvention::setDescription(const QString &description)
{
    m_description = description;
    m_dirty = true;
}

void CodingConvention::setEndEventID(qint32 eventID)
{
    m_endEventID = eventID;
    m_dirty = true;
}

void CodingConvention::setPendingViolation(bool pending)
{
    m_pendingViolation = pending;
    m_dirty = true;
}

void CodingConvention::setRuleID(qint32 ruleID)
{
    m_ruleID = ruleID;
    m_dirty = true;
}

void CodingConvention::setRuleActive(bool active)
{
    m_ruleActive = active;
    m_dirty = true;
}

void CodingConvention::setTitle(const QString &title)
{
    m_title = title;
    m_dirty = true;
}

std::shared_ptr<IRule> CodingConvention::Clone() const
{
    return guarded("Clone", module, std::shared_ptr<IRule>(), [this] {
        auto clone = std::make_shared<CodingConvention>();
        clone->setViolationDefinition(definition().Copy());
        clone->setTitle(QStringLiteral("Clone of ") + m_title);
        clone->setCategoryID(CategoryID());
        clone->setCondition(m_condition);
        clone->setDescription(m_description);
        clone->setEndEventID(m_endEventID);
        for (qint32 i = 0; i < m_events.Count(); ++i)
            clone->AddParserEventID(m_events.ID(i));
        clone->setPendingViolation(m_pendingViolation);
        clone->setRuleActive(m_ruleActive);
        return std::shared_ptr<IRule>(clone);
    });
}

bool CodingConvention::AddParserEventID(qint32 eventID)
{
    return guarded("AddParserEventID", module, false, [&] {
        // An id already held changes nothing, not even the dirty flag.
        if (m_events.Add(eventID))
            m_dirty = true;
        return true;
    });
}

bool CodingConvention::RemoveParserEventID(qint32 eventID)
{
    return guarded("RemoveParserEventID", module, false, [&] {
        // Marks the rule even when the id was not assigned.
        m_events.Remove(eventID);
        m_dirty = true;
        return true;
    });
}
