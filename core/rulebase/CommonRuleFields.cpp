#include "rulebase/CommonRuleFields.h"

#include "platform/QuorinError.h"
#include "rulebase/ViolationDefinition.h"

CommonRuleFields::CommonRuleFields(const char *className)
    : m_violationDefinition(std::make_shared<::ViolationDefinition>())
    , m_className(className)
{
}

bool CommonRuleFields::Dirty() const
{
    return m_dirty || (m_violationDefinition && m_violationDefinition->Dirty());
}

void CommonRuleFields::setDirty(bool dirty)
{
    m_dirty = dirty;
    if (m_violationDefinition)
        m_violationDefinition->setDirty(dirty);
}

::ViolationDefinition &CommonRuleFields::definition() const
{
    if (!m_violationDefinition)
        throw QuorinError::objectNotSet(QLatin1String(m_className)
                                        + QStringLiteral("::ViolationDefinition"));
    return *m_violationDefinition;
}

qint32 CommonRuleFields::CategoryID() const
{
    return definition().CategoryID();
}

void CommonRuleFields::setCategoryID(qint32 categoryID)
{
    definition().setCategoryID(categoryID);
    m_dirty = true;
}

void CommonRuleFields::setCondition(const QString &condition)
{
    m_condition = condition;
    m_dirty = true;
}

void CommonRuleFields::setDescription(const QString &description)
{
    m_description = description;
    m_dirty = true;
}

void CommonRuleFields::setRuleID(qint32 ruleID)
{
    m_ruleID = ruleID;
    m_dirty = true;
}

void CommonRuleFields::setRuleActive(bool active)
{
    m_ruleActive = active;
    m_dirty = true;
}

void CommonRuleFields::setTitle(const QString &title)
{
    m_title = title;
    m_dirty = true;
}
