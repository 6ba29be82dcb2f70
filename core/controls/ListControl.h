#pragma once

#include <QString>

// What a list tells the view that borrows it.
class ListControlEvents
{
public:
    virtual ~ListControlEvents() = default;

    virtual void ItemClick(int row) = 0;
    // After the window has changed the sort (SortListByColumn).
    virtual void ColumnClick(int column) = 0;
    virtual void MouseMove(int x, int y) = 0;
    // A drag of the selected rows starts: the data it carries in the private rule format, or
    // empty when the view lets nothing be dragged. Then the end of that drag.
    virtual QString OLEStartDrag() { return QString(); }
    virtual void OLECompleteDrag() {}
};

enum class ColumnAlignment { Left = 0, Right = 1, Center = 2 };

// The report-style list of the main window as the views use it. Rows and columns are 1-based
// positions in the order shown; a row's sub-items are 1-based too (sub-item 1 is column 2).
// Colours are RGB values with red in the low byte; 255 is pure red.
class ListControl
{
public:
    virtual ~ListControl() = default;

    virtual void setImageList(const QString &name) = 0;

    virtual void clear() = 0;
    virtual int count() const = 0;
    // Appends a row, unselected, in the list's own foreground colour; gives its position.
    virtual int add(const QString &key, const QString &text, int smallIcon) = 0;
    // Raise "No such item." for a key that is not in the list.
    virtual void remove(const QString &key) = 0;
    // The row with this key, ignoring case; 0 when there is none.
    virtual int find(const QString &key) const = 0;

    virtual QString key(int row) const = 0;
    virtual QString text(int row) const = 0;
    virtual void setText(int row, const QString &text) = 0;
    virtual int smallIcon(int row) const = 0;
    virtual void setSmallIcon(int row, int icon) = 0;
    virtual bool selected(int row) const = 0;
    virtual void setSelected(int row, bool selected) = 0;
    virtual qint32 foreColor(int row) const = 0;
    virtual void setForeColor(int row, qint32 colour) = 0;
    // Setting a sub-item beyond the last adds the ones between, empty.
    virtual QString subItemText(int row, int subItem) const = 0;
    virtual void setSubItemText(int row, int subItem, const QString &text) = 0;
    virtual qint32 subItemForeColor(int row, int subItem) const = 0;
    virtual void setSubItemForeColor(int row, int subItem, qint32 colour) = 0;
    // The control's own foreground colour.
    virtual qint32 foreColor() const = 0;

    virtual void clearColumns() = 0;
    virtual int addColumn(const QString &header, ColumnAlignment alignment, int width) = 0;
    virtual int columnCount() const = 0;
    virtual QString columnHeader(int column) const = 0;
    virtual int columnWidth(int column) const = 0;
    virtual void setColumnWidth(int column, int width) = 0;
    virtual ColumnAlignment columnAlignment(int column) const = 0;
    virtual void setColumnAlignment(int column, ColumnAlignment alignment) = 0;
    // An image key of "ilsImages"; empty for none.
    virtual QString columnIcon(int column) const = 0;
    virtual void setColumnIcon(int column, const QString &icon) = 0;
    // The width the columns share, in the unit of the column widths.
    virtual int width() const = 0;

    // The 0-based column whose text orders the rows while sorted; order 0 ascending, 1 descending.
    virtual int sortKey() const = 0;
    virtual void setSortKey(int column) = 0;
    virtual int sortOrder() const = 0;
    virtual void setSortOrder(int order) = 0;
    virtual bool sorted() const = 0;
    virtual void setSorted(bool sorted) = 0;

    virtual int selectedItem() const = 0;
    // Makes the row current and selected; 0 for none.
    virtual void setSelectedItem(int row) = 0;
    // The row at a point of the control, or 0.
    virtual int hitTest(int x, int y) const = 0;
    virtual QString toolTipText() const = 0;
    virtual void setToolTipText(const QString &text) = 0;

    // Not owned; nullptr stops the events.
    virtual void setEventSink(ListControlEvents *events) = 0;
};
