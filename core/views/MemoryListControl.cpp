#include "views/MemoryListControl.h"

#include "collections/KeyedListErrors.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"

#include <algorithm>

namespace {

QString sourceOf(const char *member)
{
    return QStringLiteral("MemoryListControl::") + QString::fromLatin1(member);
}

} // namespace

void MemoryListControl::clear()
{
    m_rows.clear();
    m_positions.clear();
    m_currentKey.clear();
}

int MemoryListControl::add(const QString &key, const QString &text, int smallIcon)
{
    const QString folded = key.toCaseFolded();
    if (m_positions.contains(folded))
        throw QuorinError(ErrorNumber::DuplicateKey,
                          sourceOf("add"),
                          QStringLiteral("Key is not unique in collection"));
    Row row;
    row.key = key;
    row.text = text;
    row.smallIcon = smallIcon;
    row.foreColor = m_foreColor;
    m_rows.push_back(std::move(row));
    m_positions.insert(folded, count());
    return count();
}

void MemoryListControl::remove(const QString &key)
{
    const int row = find(key);
    if (row == 0)
        KeyedListErrors::raiseNoSuchItem("Remove");
    m_rows.erase(m_rows.begin() + (row - 1));
    m_positions.remove(key.toCaseFolded());
    rehash(row);
    if (Text::same(m_currentKey, key))
        m_currentKey.clear();
}

int MemoryListControl::find(const QString &key) const
{
    return m_positions.value(key.toCaseFolded(), 0);
}

QString MemoryListControl::sortText(const Row &row) const
{
    if (m_sortKey == 0)
        return row.text;
    const std::size_t sub = std::size_t(m_sortKey - 1);
    return sub < row.subItems.size() ? row.subItems[sub].text : QString();
}

void MemoryListControl::sortRows()
{
    if (!m_sorted)
        return;
    // By text, as the control sorts; stable so that equal texts keep their order.
    std::stable_sort(m_rows.begin(), m_rows.end(), [this](const Row &a, const Row &b) {
        const int c = QString::compare(sortText(a), sortText(b), Qt::CaseInsensitive);
        return m_sortOrder == 1 ? c > 0 : c < 0;
    });
    rehash(1);
}

// Positions from `fromRow` on have moved.
void MemoryListControl::rehash(int fromRow)
{
    for (int i = fromRow; i <= count(); ++i)
        m_positions.insert(m_rows[std::size_t(i - 1)].key.toCaseFolded(), i);
}

MemoryListControl::Row &MemoryListControl::at(int row)
{
    if (row < 1 || row > count())
        throw QuorinError::subscriptOutOfRange(sourceOf("ListItem"));
    return m_rows[std::size_t(row - 1)];
}

const MemoryListControl::Row &MemoryListControl::at(int row) const
{
    if (row < 1 || row > count())
        throw QuorinError::subscriptOutOfRange(sourceOf("ListItem"));
    return m_rows[std::size_t(row - 1)];
}

QString MemoryListControl::subItemText(int row, int subItem) const
{
    const Row &r = at(row);
    if (subItem < 1)
        throw QuorinError::subscriptOutOfRange(sourceOf("ListSubItems"));
    return std::size_t(subItem) <= r.subItems.size() ? r.subItems[std::size_t(subItem - 1)].text
                                                     : QString();
}

void MemoryListControl::setSubItemText(int row, int subItem, const QString &text)
{
    Row &r = at(row);
    if (subItem < 1)
        throw QuorinError::subscriptOutOfRange(sourceOf("ListSubItems"));
    if (std::size_t(subItem) > r.subItems.size())
        r.subItems.resize(std::size_t(subItem), SubItem{QString(), m_foreColor});
    r.subItems[std::size_t(subItem - 1)].text = text;
}

qint32 MemoryListControl::subItemForeColor(int row, int subItem) const
{
    const Row &r = at(row);
    if (subItem < 1 || std::size_t(subItem) > r.subItems.size())
        throw QuorinError::subscriptOutOfRange(sourceOf("ListSubItems"));
    return r.subItems[std::size_t(subItem - 1)].foreColor;
}

void MemoryListControl::setSubItemForeColor(int row, int subItem, qint32 colour)
{
    Row &r = at(row);
    if (subItem < 1 || std::size_t(subItem) > r.subItems.size())
        throw QuorinError::subscriptOutOfRange(sourceOf("ListSubItems"));
    r.subItems[std::size_t(subItem - 1)].foreColor = colour;
}

int MemoryListControl::addColumn(const QString &header, ColumnAlignment alignment, int width)
{
    m_columns.push_back(Column{header, alignment, width, QString()});
    return columnCount();
}

MemoryListControl::Column &MemoryListControl::columnAt(int column)
{
    if (column < 1 || column > columnCount())
        throw QuorinError::subscriptOutOfRange(sourceOf("ColumnHeaders"));
    return m_columns[std::size_t(column - 1)];
}

const MemoryListControl::Column &MemoryListControl::columnAt(int column) const
{
    if (column < 1 || column > columnCount())
        throw QuorinError::subscriptOutOfRange(sourceOf("ColumnHeaders"));
    return m_columns[std::size_t(column - 1)];
}

void MemoryListControl::setColumnAlignment(int column, ColumnAlignment alignment)
{
    columnAt(column).alignment = alignment;
}

void MemoryListControl::setSortKey(int column)
{
    m_sortKey = column;
    sortRows();
}

void MemoryListControl::setSortOrder(int order)
{
    m_sortOrder = order;
    sortRows();
}

void MemoryListControl::setSorted(bool sorted)
{
    m_sorted = sorted;
    sortRows();
}

int MemoryListControl::selectedItem() const
{
    return m_currentKey.isEmpty() ? 0 : find(m_currentKey);
}

void MemoryListControl::setSelectedItem(int row)
{
    if (row == 0) {
        m_currentKey.clear();
        return;
    }
    at(row).selected = true;
    m_currentKey = at(row).key;
}

int MemoryListControl::hitTest(int, int y) const
{
    return y >= 1 && y <= count() ? y : 0;
}

void MemoryListControl::click(int row)
{
    for (Row &r : m_rows)
        r.selected = false;
    setSelectedItem(row);
    if (m_events)
        m_events->ItemClick(row);
}

void MemoryListControl::moveOver(int row)
{
    if (m_events)
        m_events->MouseMove(0, row);
}

void MemoryListControl::clickColumn(int column)
{
    if (m_events)
        m_events->ColumnClick(column);
}

QString MemoryListControl::startDrag()
{
    return m_events ? m_events->OLEStartDrag() : QString();
}

void MemoryListControl::completeDrag()
{
    if (m_events)
        m_events->OLECompleteDrag();
}
