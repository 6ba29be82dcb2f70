#pragma once

#include "controls/ListControl.h"

#include <QHash>
#include <QString>

#include <vector>

// The rows and columns of a report-style list, for every ListControl: the Qt model adds its
// notifications around them, the in-memory list of the tests its selection. Rows and columns
// are 1-based; an index out of range raises "Subscript out of range". Keys are unique ignoring
// case and found in constant time; sorting is stable, by text ignoring case.
class ListRows
{
public:
    struct SubItem
    {
        QString text;
        qint32 foreColor = 0;
    };
    struct Row
    {
        QString key;
        QString text;
        int smallIcon = 0;
        qint32 foreColor = 0;
        std::vector<SubItem> subItems;
    };
    struct Column
    {
        QString header;
        ColumnAlignment alignment = ColumnAlignment::Left;
        int width = 0;
        QString icon;
    };

    int count() const { return int(m_rows.size()); }
    void clear();
    // Raises "Key is not unique in collection" for a key held already; gives the new row.
    int add(const QString &key, const QString &text, int smallIcon);
    // Raises "No such item." for a key that is not held; gives the row it was.
    int remove(const QString &key);
    // 0 when there is none.
    int find(const QString &key) const { return m_positions.value(key.toCaseFolded(), 0); }
    // The checks of add and remove on their own, for a model that announces a change before
    // making it: they raise what add and remove would.
    void requireNewKey(const QString &key) const;
    int rowOf(const QString &key) const;

    const Row &at(int row) const;
    Row &at(int row);
    QString subItemText(int row, int subItem) const;
    // Setting one beyond the last adds the ones between, empty, in the list's colour.
    void setSubItemText(int row, int subItem, const QString &text);
    qint32 subItemForeColor(int row, int subItem) const;
    void setSubItemForeColor(int row, int subItem, qint32 colour);
    qint32 foreColor() const { return m_foreColor; }

    int columnCount() const { return int(m_columns.size()); }
    void clearColumns() { m_columns.clear(); }
    int addColumn(const QString &header, ColumnAlignment alignment, int width);
    const Column &columnAt(int column) const;
    Column &columnAt(int column);

    int sortKey() const { return m_sortKey; }
    int sortOrder() const { return m_sortOrder; }
    bool sorted() const { return m_sorted; }
    void setSortKey(int column) { m_sortKey = column; }
    void setSortOrder(int order) { m_sortOrder = order; }
    void setSorted(bool sorted) { m_sorted = sorted; }
    // Puts the rows in order while sorted. Gives, for each row before (0-based), its place
    // after; empty when nothing moved.
    std::vector<int> sort();

private:
    // Positions from `fromRow` on have moved.
    void rehash(int fromRow);
    QString sortText(const Row &row) const;

    std::vector<Row> m_rows;
    QHash<QString, int> m_positions; // row positions by case-folded key
    std::vector<Column> m_columns;
    qint32 m_foreColor = 0;
    int m_sortKey = 0;
    int m_sortOrder = 0;
    bool m_sorted = false;
};
