#include "controls/ListRows.h"

#include "collections/KeyedListErrors.h"
#include "platform/QuorinError.h"

#include <algorithm>
#include <numeric>

namespace {

QString sourceOf(const char *member)
{
    return QStringLiteral("ListRows::") + QString::fromLatin1(member);
}

// The 1-based item of a row or column vector, const or not.
template<typename Vector>
auto &checkedAt(Vector &items, int position, const char *member)
{
    if (position < 1 || position > int(items.size()))
        throw QuorinError::subscriptOutOfRange(sourceOf(member));
    return items[std::size_t(position - 1)];
}

} // namespace

void ListRows::clear()
{
    m_rows.clear();
    m_positions.clear();
}

void ListRows::requireNewKey(const QString &key) const
{
    if (find(key) != 0)
        throw QuorinError(ErrorNumber::DuplicateKey,
                          sourceOf("add"),
                          QStringLiteral("Key is not unique in collection"));
}

int ListRows::rowOf(const QString &key) const
{
    const int row = find(key);
    if (row == 0)
        KeyedListErrors::raiseNoSuchItem("Remove");
    return row;
}

int ListRows::add(const QString &key, const QString &text, int smallIcon)
{
    requireNewKey(key);
    m_rows.push_back(Row{key, text, smallIcon, m_foreColor, {}});
    m_positions.insert(key.toCaseFolded(), count());
    return count();
}

int ListRows::remove(const QString &key)
{
    const int row = rowOf(key);
    m_rows.erase(m_rows.begin() + (row - 1));
    m_positions.remove(key.toCaseFolded());
    rehash(row);
    return row;
}

const ListRows::Row &ListRows::at(int row) const
{
    return checkedAt(m_rows, row, "ListItem");
}

ListRows::Row &ListRows::at(int row)
{
    return checkedAt(m_rows, row, "ListItem");
}

QString ListRows::subItemText(int row, int subItem) const
{
    const Row &r = at(row);
    if (subItem < 1)
        throw QuorinError::subscriptOutOfRange(sourceOf("ListSubItems"));
    return std::size_t(subItem) <= r.subItems.size() ? r.subItems[std::size_t(subItem - 1)].text
                                                     : QString();
}

void ListRows::setSubItemText(int row, int subItem, const QString &text)
{
    Row &r = at(row);
    if (subItem < 1)
        throw QuorinError::subscriptOutOfRange(sourceOf("ListSubItems"));
    if (std::size_t(subItem) > r.subItems.size())
        r.subItems.resize(std::size_t(subItem), SubItem{QString(), m_foreColor});
    r.subItems[std::size_t(subItem - 1)].text = text;
}

qint32 ListRows::subItemForeColor(int row, int subItem) const
{
    const Row &r = at(row);
    if (subItem < 1 || std::size_t(subItem) > r.subItems.size())
        throw QuorinError::subscriptOutOfRange(sourceOf("ListSubItems"));
    return r.subItems[std::size_t(subItem - 1)].foreColor;
}

void ListRows::setSubItemForeColor(int row, int subItem, qint32 colour)
{
    subItemForeColor(row, subItem);
    at(row).subItems[std::size_t(subItem - 1)].foreColor = colour;
}

int ListRows::addColumn(const QString &header, ColumnAlignment alignment, int width)
{
    m_columns.push_back(Column{header, alignment, width, QString()});
    return columnCount();
}

const ListRows::Column &ListRows::columnAt(int column) const
{
    return checkedAt(m_columns, column, "ColumnHeaders");
}

ListRows::Column &ListRows::columnAt(int column)
{
    return checkedAt(m_columns, column, "ColumnHeaders");
}

QString ListRows::sortText(const Row &row) const
{
    if (m_sortKey == 0)
        return row.text;
    const std::size_t sub = std::size_t(m_sortKey - 1);
    return sub < row.subItems.size() ? row.subItems[sub].text : QString();
}

std::vector<int> ListRows::sort()
{
    if (!m_sorted || m_rows.empty())
        return {};
    // The texts once each, not once a comparison.
    std::vector<QString> texts;
    texts.reserve(m_rows.size());
    for (const Row &row : m_rows)
        texts.push_back(sortText(row));
    std::vector<int> order(m_rows.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        const int c
            = QString::compare(texts[std::size_t(a)], texts[std::size_t(b)], Qt::CaseInsensitive);
        return m_sortOrder == 1 ? c > 0 : c < 0;
    });
    std::vector<int> newRowOf(m_rows.size());
    std::vector<Row> rows;
    rows.reserve(m_rows.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        newRowOf[std::size_t(order[i])] = int(i);
        rows.push_back(std::move(m_rows[std::size_t(order[i])]));
    }
    m_rows = std::move(rows);
    rehash(1);
    return newRowOf;
}

void ListRows::rehash(int fromRow)
{
    for (int i = fromRow; i <= count(); ++i)
        m_positions.insert(m_rows[std::size_t(i - 1)].key.toCaseFolded(), i);
}
