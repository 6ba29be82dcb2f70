#pragma once

#include "controls/ListRows.h"

#include <QSet>
#include <QString>

// A list held in memory, for tests and benchmarks. Rows are put in order when Sorted, SortKey
// or SortOrder is set, not on each add; a row added or edited while sorted stays where it is
// until the sort is set again. A point's y is the row's position, so hitTest(0, n) is row n.
class MemoryListControl final : public ListControl
{
public:
    explicit MemoryListControl(int width = 6000)
        : m_width(width)
    {
    }

    void setImageList(const QString &name) override { m_imageList = name; }

    void clear() override;
    int count() const override { return m_rows.count(); }
    int add(const QString &key, const QString &text, int smallIcon) override
    {
        return m_rows.add(key, text, smallIcon);
    }
    void remove(const QString &key) override;
    int find(const QString &key) const override { return m_rows.find(key); }

    QString key(int row) const override { return m_rows.at(row).key; }
    QString text(int row) const override { return m_rows.at(row).text; }
    void setText(int row, const QString &text) override { m_rows.at(row).text = text; }
    int smallIcon(int row) const override { return m_rows.at(row).smallIcon; }
    void setSmallIcon(int row, int icon) override { m_rows.at(row).smallIcon = icon; }
    bool selected(int row) const override;
    void setSelected(int row, bool selected) override;
    qint32 foreColor(int row) const override { return m_rows.at(row).foreColor; }
    void setForeColor(int row, qint32 colour) override { m_rows.at(row).foreColor = colour; }
    QString subItemText(int row, int subItem) const override
    {
        return m_rows.subItemText(row, subItem);
    }
    void setSubItemText(int row, int subItem, const QString &text) override
    {
        m_rows.setSubItemText(row, subItem, text);
    }
    qint32 subItemForeColor(int row, int subItem) const override
    {
        return m_rows.subItemForeColor(row, subItem);
    }
    void setSubItemForeColor(int row, int subItem, qint32 colour) override
    {
        m_rows.setSubItemForeColor(row, subItem, colour);
    }
    qint32 foreColor() const override { return m_rows.foreColor(); }

    void clearColumns() override { m_rows.clearColumns(); }
    int addColumn(const QString &header, ColumnAlignment alignment, int width) override
    {
        return m_rows.addColumn(header, alignment, width);
    }
    int columnCount() const override { return m_rows.columnCount(); }
    QString columnHeader(int column) const override { return m_rows.columnAt(column).header; }
    int columnWidth(int column) const override { return m_rows.columnAt(column).width; }
    void setColumnWidth(int column, int width) override { m_rows.columnAt(column).width = width; }
    ColumnAlignment columnAlignment(int column) const override
    {
        return m_rows.columnAt(column).alignment;
    }
    void setColumnAlignment(int column, ColumnAlignment alignment) override
    {
        m_rows.columnAt(column).alignment = alignment;
    }
    QString columnIcon(int column) const override { return m_rows.columnAt(column).icon; }
    void setColumnIcon(int column, const QString &icon) override
    {
        m_rows.columnAt(column).icon = icon;
    }
    int width() const override { return m_width; }

    int sortKey() const override { return m_rows.sortKey(); }
    void setSortKey(int column) override
    {
        m_rows.setSortKey(column);
        m_rows.sort();
    }
    int sortOrder() const override { return m_rows.sortOrder(); }
    void setSortOrder(int order) override
    {
        m_rows.setSortOrder(order);
        m_rows.sort();
    }
    bool sorted() const override { return m_rows.sorted(); }
    void setSorted(bool sorted) override
    {
        m_rows.setSorted(sorted);
        m_rows.sort();
    }

    int selectedItem() const override;
    void setSelectedItem(int row) override;
    int hitTest(int x, int y) const override;
    QString toolTipText() const override { return m_toolTip; }
    void setToolTipText(const QString &text) override { m_toolTip = text; }
    void setEventSink(ListControlEvents *events) override { m_events = events; }

    QString imageList() const { return m_imageList; }
    void setWidth(int width) { m_width = width; }
    // What a user does: click a row (it alone becomes selected), move over a row, click a header.
    void click(int row);
    void moveOver(int row);
    void clickColumn(int column);
    // A drag of the selected rows: the data the view gives it (empty: no drag), and its end.
    QString startDrag();
    void completeDrag();
    // Ctrl-click: adds the row to the selection.
    void select(int row, bool selected) { setSelected(row, selected); }

private:
    ListRows m_rows;
    // Selection and the current row by case-folded key: positions move, keys do not.
    QSet<QString> m_selectedKeys;
    QString m_currentKey;
    QString m_imageList;
    QString m_toolTip;
    int m_width;
    ListControlEvents *m_events = nullptr;
};
