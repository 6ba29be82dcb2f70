#include "rulebase/UnauthorisedKeyword.h"

#include "platform/ErrorFrame.h"
#include "rulebase/ViolationDefinition.h"

namespace {
constexpr const char *module = "UnauthorisedKeyword";
}

UnauthorisedKeyword::UnauthorisedKeyword()
    : m_violationDefinition(std::make_shared<::ViolationDefinition>())
{
}

bool UnauthorisedKeyword::Dirty() const
{
    return m_dirty || (m_violationDefinition && m_violationDefinition->Dirty());
}

void UnauthorisedKeyword::setDirty(bool dirty)
{
    m_dirty = dirty;
    if (m_violationDefinition)
        m_violationDefinition->setDirty(dirty);
}

::ViolationDefinition &UnauthorisedKeyword::definition() const
{
    if (!m_violationDefinition)
        throw QuorinError::objectNotSet(QStringLiteral("UnauthorisedKeyword::ViolationDefinition"));
    return *m_violationDefinition;
}

qint32 UnauthorisedKeyword::CategoryID() const
{
    return definition().CategoryID();
}

void UnauthorisedKeyword::setCategoryID(qint32 categoryID)
{
    definition().setCategoryID(categoryID);
    m_dirty = true;
}

void UnauthorisedKeyword::setCondition(const QString &condition)
{
    m_condition = condition;
    m_dirty = true;
}

void UnauthorisedKeyword::setDescription(const QString &description)
{
    m_description = description;
    m_dirty = true;
}

void UnauthorisedKeyword::setRuleID(qint32 ruleID)
{
    m_ruleID = ruleID;
    m_dirty = true;
}

void UnauthorisedKeyword::setRuleActive(bool active)
{
    m_ruleActive = active;
    m_dirty = true;
}

void UnauthorisedKeyword::setTitle(const QString &title)
{
    m_title = title;
    m_dirty = true;
}

std::shared_ptr<IRule> UnauthorisedKeyword::Clone() const
{
    return guarded("Clone", module, std::shared_ptr<IRule>(), [this] {
        auto clone = std::make_shared<UnauthorisedKeyword>();
        clone->setViolationDefinition(definition().Copy());
        clone->setTitle(QStringLiteral("Clone of ") + m_title);
        clone->setCategoryID(CategoryID());
        clone->setCondition(m_condition);
        clone->setDescription(m_description);
        for (qint32 i = 0; i < m_events.Count(); ++i)
            clone->AddParserEventID(m_events.ID(i));
        clone->setRuleActive(m_ruleActive);
        return std::shared_ptr<IRule>(clone);
    });
}

bool UnauthorisedKeyword::AddParserEventID(qint32 eventID)
{
    return guarded("AddParserEventID", module, false, [&] {
        // An id already held changes nothing, not even the dirty flag.
        if (m_events.Add(eventID))
            m_dirty = true;
        return true;
    });
}

bool UnauthorisedKeyword::RemoveParserEventID(qint32 eventID)
{
    return guarded("RemoveParserEventID", module, false, [&] {
        // Marks the rule even when the id was not assigned.
        m_events.Remove(eventID);
        m_dirty = true;
        return true;
    });
}
