#include "rulebase/RuleBase.h"

#include "platform/QuorinError.h"
#include "rulebase/ViolationDefinition.h"

RuleBase::RuleBase(const char *className)
    : m_violationDefinition(std::make_shared<::ViolationDefinition>())
    , m_className(className)
{
}

bool RuleBase::Dirty() const
{
    return m_dirty || (m_violationDefinition && m_violationDefinition->Dirty());
}

void RuleBase::setDirty(bool dirty)
{
    m_dirty = dirty;
    if (m_violationDefinition)
        m_violationDefinition->setDirty(dirty);
}

::ViolationDefinition &RuleBase::definition() const
{
    if (!m_violationDefinition)
        throw QuorinError::objectNotSet(QLatin1String(m_className)
                                        + QStringLiteral("::ViolationDefinition"));
    return *m_violationDefinition;
}

qint32 RuleBase::CategoryID() const
{
    return definition().CategoryID();
}

void RuleBase::setCategoryID(qint32 categoryID)
{
    definition().setCategoryID(categoryID);
    m_dirty = true;
}

void RuleBase::setCondition(const QString &condition)
{
    m_condition = condition;
    m_dirty = true;
}

void RuleBase::setDescription(const QString &description)
{
    m_description = description;
    m_dirty = true;
}

void RuleBase::setRuleID(qint32 ruleID)
{
    m_ruleID = ruleID;
    m_dirty = true;
}

void RuleBase::setRuleActive(bool active)
{
    m_ruleActive = active;
    m_dirty = true;
}

void RuleBase::setTitle(const QString &title)
{
    m_title = title;
    m_dirty = true;
}
