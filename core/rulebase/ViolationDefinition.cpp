#include "rulebase/ViolationDefinition.h"

void ViolationDefinition::setSeverity(qint32 severity)
{
    m_severity = severity;
    m_dirty = true;
}

void ViolationDefinition::setImpact(qint16 impact)
{
    m_impact = impact;
    m_dirty = true;
}

void ViolationDefinition::setDescription(const QString &description)
{
    m_description = description;
    m_dirty = true;
}

void ViolationDefinition::setTitle(const QString &title)
{
    m_title = title;
    m_dirty = true;
}

void ViolationDefinition::setAdvice(const QString &advice)
{
    m_advice = advice;
    m_dirty = true;
}

void ViolationDefinition::setCategoryID(qint32 categoryID)
{
    m_categoryID = categoryID;
    m_dirty = true;
}

std::shared_ptr<ViolationDefinition> ViolationDefinition::Copy() const
{
    auto copy = std::make_shared<ViolationDefinition>();
    copy->setAdvice(m_advice);
    copy->setCategoryID(m_categoryID);
    copy->setDescription(m_description);
    copy->setImpact(m_impact);
    copy->setSeverity(m_severity);
    copy->setTitle(m_title);
    copy->setViolationDescription(m_violationDescription);
    return copy;
}
