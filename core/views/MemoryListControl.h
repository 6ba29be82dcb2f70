#pragma once

#include "controls/ListControl.h"

#include <QHash>
#include <QString>

#include <vector>

// A list held in memory, for tests and for tools without widgets. Filling is linear: keys are
// hashed, and rows are put in order when Sorted, SortKey or SortOrder is set, not on each add;
// a row added or edited while sorted stays where it is until the sort is set again. A point's
// y is the row's position, so hitTest(0, n) is row n.
class MemoryListControl final : public ListControl
{
public:
    explicit MemoryListControl(int width = 6000)
        : m_width(width)
    {
    }

    void setImageList(const QString &name) override { m_imageList = name; }

    void clear() override;
    int count() const override { return int(m_rows.size()); }
    int add(const QString &key, const QString &text, int smallIcon) override;
    void remove(const QString &key) override;
    int find(const QString &key) const override;

    QString key(int row) const override { return at(row).key; }
    QString text(int row) const override { return at(row).text; }
    void setText(int row, const QString &text) override { at(row).text = text; }
    int smallIcon(int row) const override { return at(row).smallIcon; }
    void setSmallIcon(int row, int icon) override { at(row).smallIcon = icon; }
    bool selected(int row) const override { return at(row).selected; }
    void setSelected(int row, bool selected) override { at(row).selected = selected; }
    qint32 foreColor(int row) const override { return at(row).foreColor; }
    void setForeColor(int row, qint32 colour) override { at(row).foreColor = colour; }
    QString subItemText(int row, int subItem) const override;
    void setSubItemText(int row, int subItem, const QString &text) override;
    qint32 subItemForeColor(int row, int subItem) const override;
    void setSubItemForeColor(int row, int subItem, qint32 colour) override;
    qint32 foreColor() const override { return m_foreColor; }

    void clearColumns() override { m_columns.clear(); }
    int addColumn(const QString &header, ColumnAlignment alignment, int width) override;
    int columnCount() const override { return int(m_columns.size()); }
    QString columnHeader(int column) const override { return columnAt(column).header; }
    int columnWidth(int column) const override { return columnAt(column).width; }
    void setColumnWidth(int column, int width) override { columnAt(column).width = width; }
    ColumnAlignment columnAlignment(int column) const override
    {
        return columnAt(column).alignment;
    }
    void setColumnAlignment(int column, ColumnAlignment alignment) override;
    QString columnIcon(int column) const override { return columnAt(column).icon; }
    void setColumnIcon(int column, const QString &icon) override { columnAt(column).icon = icon; }
    int width() const override { return m_width; }

    int sortKey() const override { return m_sortKey; }
    void setSortKey(int column) override;
    int sortOrder() const override { return m_sortOrder; }
    void setSortOrder(int order) override;
    bool sorted() const override { return m_sorted; }
    void setSorted(bool sorted) override;

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
        bool selected = false;
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

    Row &at(int row);
    const Row &at(int row) const;
    Column &columnAt(int column);
    const Column &columnAt(int column) const;
    void sortRows();
    void rehash(int fromRow);
    QString sortText(const Row &row) const;

    std::vector<Row> m_rows;
    QHash<QString, int> m_positions; // row positions by case-folded key
    std::vector<Column> m_columns;
    QString m_imageList;
    QString m_toolTip;
    qint32 m_foreColor = 0;
    int m_width;
    int m_sortKey = 0;
    int m_sortOrder = 0;
    bool m_sorted = false;
    QString m_currentKey; // of the current row: positions move, keys do not
    ListControlEvents *m_events = nullptr;
};
