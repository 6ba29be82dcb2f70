#include "rulebase/CategoryItem.h"

#include "rulebase/CategoryList.h"

void CategoryItem::setID(qint32 id)
{
    m_id = id;
    m_key = CategoryList::CategoryIDToKey(id);
}

std::shared_ptr<ObjectArrayList<IRule>> CategoryItem::CategoryRules() const
{
    if (!m_categoryRules)
        m_categoryRules = std::make_shared<ObjectArrayList<IRule>>();
    return m_categoryRules;
}
