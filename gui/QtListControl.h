#pragma once

#include "controls/ListControl.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QPoint>

#include <vector>

class QMimeData;
class QTreeView;
class QWidget;

// The main window's report-style list: a model of rows held in a vector, shown in a QTreeView,
// with the view's selection, header and signals turned into the ListControl the views borrow.
// Rows are appended one at a time in constant time, and sorting reorders the model itself, so
// a row's position is always its place on screen. Widths and points are viewport pixels.
class QtListControl final : public QAbstractTableModel, public ListControl
{
    Q_OBJECT

public:
    // Becomes the model of `view`, and a child of it.
    explicit QtListControl(QTreeView *view);

    // QAbstractItemModel
    int rowCount(const QModelIndex &parent = {}) const override;
    // No default argument: columnCount() is the list's own.
    int columnCount(const QModelIndex &parent) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    // ListControl
    void setImageList(const QString &name) override { m_imageList = name; }
    void clear() override;
    int count() const override { return int(m_rows.size()); }
    int add(const QString &key, const QString &text, int smallIcon) override;
    void remove(const QString &key) override;
    int find(const QString &key) const override;
    QString key(int row) const override { return at(row).key; }
    QString text(int row) const override { return at(row).text; }
    void setText(int row, const QString &text) override;
    int smallIcon(int row) const override { return at(row).smallIcon; }
    void setSmallIcon(int row, int icon) override;
    bool selected(int row) const override;
    void setSelected(int row, bool selected) override;
    qint32 foreColor(int row) const override { return at(row).foreColor; }
    void setForeColor(int row, qint32 colour) override;
    QString subItemText(int row, int subItem) const override;
    void setSubItemText(int row, int subItem, const QString &text) override;
    qint32 subItemForeColor(int row, int subItem) const override;
    void setSubItemForeColor(int row, int subItem, qint32 colour) override;
    qint32 foreColor() const override { return m_foreColor; }

    void clearColumns() override;
    int addColumn(const QString &header, ColumnAlignment alignment, int width) override;
    int columnCount() const override { return int(m_columns.size()); }
    QString columnHeader(int column) const override { return columnAt(column).header; }
    int columnWidth(int column) const override;
    void setColumnWidth(int column, int width) override;
    ColumnAlignment columnAlignment(int column) const override
    {
        return columnAt(column).alignment;
    }
    void setColumnAlignment(int column, ColumnAlignment alignment) override;
    QString columnIcon(int column) const override { return columnAt(column).icon; }
    void setColumnIcon(int column, const QString &icon) override;
    int width() const override;

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
    void setToolTipText(const QString &text) override;
    void setEventSink(ListControlEvents *events) override { m_events = events; }

    QString imageList() const { return m_imageList; }
    // An RGB value with red in the low byte as a colour.
    static QColor colourOf(qint32 rgb);

    // The data of a drag of the selected rows as the view gives it; nullptr when the view lets
    // nothing be dragged. The caller owns it.
    QMimeData *dragData();
    // Drags the selected rows (the platform's drag runs until the drop) and tells the view
    // when it is over; false when the view lets nothing be dragged.
    bool startDrag();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

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
        qint32 foreColor = 0;
        std::vector<SubItem> subItems;
    };
    struct Column
    {
        QString header;
        ColumnAlignment alignment = ColumnAlignment::Left;
        QString icon;
    };

    Row &at(int row);
    const Row &at(int row) const;
    Column &columnAt(int column);
    const Column &columnAt(int column) const;
    void cellChanged(int row, int column, int role);
    void sortRows();
    void rehash(int fromRow);
    QString sortText(const Row &row) const;
    void showSortIndicator();
    void currentChanged(const QModelIndex &current);
    void clicked(const QModelIndex &index);
    void headerClicked(int section);

    QTreeView *m_view;
    // Kept, since the view is half destroyed when its viewport's last events arrive.
    QWidget *m_viewport;
    std::vector<Row> m_rows;
    QHash<QString, int> m_positions; // row positions by case-folded key
    std::vector<Column> m_columns;
    QString m_imageList;
    QString m_toolTip;
    qint32 m_foreColor = 0;
    int m_sortKey = 0;
    int m_sortOrder = 0;
    bool m_sorted = false;
    // Changes the views make themselves are not the user's: no events for them.
    bool m_quiet = false;
    // The row the current press already reported through the change of current row.
    int m_reportedByPress = 0;
    ListControlEvents *m_events = nullptr;
    // Where the left button went down on a row, for telling a drag from a click.
    QPoint m_pressAt;
    int m_pressedRow = 0;
};
