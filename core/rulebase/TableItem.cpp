#include "rulebase/TableItem.h"

#include "platform/TextUtils.h"

void TableItem::setTableTitle(const QString &title)
{
    if (Text::same(title, m_tableTitle))
        return;
    m_tableTitle = title;
    m_dirty = true;
}

void TableItem::setTableText(const QString &text)
{
    if (Text::same(text, m_tableText))
        return;
    m_tableText = text;
    m_dirty = true;
}
