#include "rulebase/TagItem.h"

void TagItem::setTagName(const QString &name)
{
    m_tagName = name;
    m_dirty = true;
}

void TagItem::setTagValue(const QString &value)
{
    m_tagValue = value;
    m_dirty = true;
}

void TagItem::setTagDescription(const QString &description)
{
    m_tagDescription = description;
    m_dirty = true;
}

void TagItem::setTagExample(const QString &example)
{
    m_tagExample = example;
    m_dirty = true;
}
