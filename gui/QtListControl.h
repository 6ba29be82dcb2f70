#pragma once

#include "controls/ListRows.h"

#include <QAbstractTableModel>
#include <QPoint>

#include <vector>

class QMimeData;
class QTreeView;
class QWidget;

// The main window's report-style list: the core's rows with a model's notifications, shown in a
// QTreeView, with the view's selection, header and signals turned into the ListControl the
// views borrow. Sorting reorders the rows themselves, so a row's position is always its place
// on screen. Widths and points are viewport pixels.
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
    int count() const override { return m_rows.count(); }
    int add(const QString &key, const QString &text, int smallIcon) override;
    void remove(const QString &key) override;
    int find(const QString &key) const override { return m_rows.find(key); }
    QString key(int row) const override { return m_rows.at(row).key; }
    QString text(int row) const override { return m_rows.at(row).text; }
    void setText(int row, const QString &text) override;
    int smallIcon(int row) const override { return m_rows.at(row).smallIcon; }
    void setSmallIcon(int row, int icon) override;
    bool selected(int row) const override;
    void setSelected(int row, bool selected) override;
    qint32 foreColor(int row) const override { return m_rows.at(row).foreColor; }
    void setForeColor(int row, qint32 colour) override;
    QString subItemText(int row, int subItem) const override
    {
        return m_rows.subItemText(row, subItem);
    }
    void setSubItemText(int row, int subItem, const QString &text) override;
    qint32 subItemForeColor(int row, int subItem) const override
    {
        return m_rows.subItemForeColor(row, subItem);
    }
    void setSubItemForeColor(int row, int subItem, qint32 colour) override;
    qint32 foreColor() const override { return m_rows.foreColor(); }

    void clearColumns() override;
    int addColumn(const QString &header, ColumnAlignment alignment, int width) override;
    int columnCount() const override { return m_rows.columnCount(); }
    QString columnHeader(int column) const override { return m_rows.columnAt(column).header; }
    int columnWidth(int column) const override;
    void setColumnWidth(int column, int width) override;
    ColumnAlignment columnAlignment(int column) const override
    {
        return m_rows.columnAt(column).alignment;
    }
    void setColumnAlignment(int column, ColumnAlignment alignment) override;
    QString columnIcon(int column) const override { return m_rows.columnAt(column).icon; }
    void setColumnIcon(int column, const QString &icon) override;
    int width() const override;

    int sortKey() const override { return m_rows.sortKey(); }
    void setSortKey(int column) override;
    int sortOrder() const override { return m_rows.sortOrder(); }
    void setSortOrder(int order) override;
    bool sorted() const override { return m_rows.sorted(); }
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
    void cellChanged(int row, int column, int role);
    // Puts the rows in order while sorted; selection and current row follow their rows.
    void sortRows();
    void showSortIndicator();
    void currentChanged(const QModelIndex &current);
    void clicked(const QModelIndex &index);
    void headerClicked(int section);

    QTreeView *m_view;
    // Kept, since the view is half destroyed when its viewport's last events arrive.
    QWidget *m_viewport;
    ListRows m_rows;
    QString m_imageList;
    QString m_toolTip;
    // Changes the views make themselves are not the user's: no events for them.
    bool m_quiet = false;
    // The row the current press already reported through the change of current row.
    int m_reportedByPress = 0;
    ListControlEvents *m_events = nullptr;
    // Where the left button went down on a row, for telling a drag from a click.
    QPoint m_pressAt;
    int m_pressedRow = 0;
};
