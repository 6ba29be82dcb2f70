#include "gui/QtListControl.h"

#include "gui/window/Images.h"

#include "views/DragDrop.h"
#include "views/modViewCommon.h"

#include <QApplication>
#include <QColor>
#include <QDrag>
#include <QHeaderView>
#include <QMimeData>
#include <QMouseEvent>
#include <QTreeView>

#include <memory>

namespace {

Qt::Alignment alignmentOf(ColumnAlignment alignment)
{
    switch (alignment) {
    case ColumnAlignment::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    case ColumnAlignment::Center:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case ColumnAlignment::Left:
        break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace

QtListControl::QtListControl(QTreeView *view)
    : QAbstractTableModel(view)
    , m_view(view)
    , m_viewport(view->viewport())
{
    // The list sorts itself, so that row numbers stay the order shown.
    m_view->setSortingEnabled(false);
    m_view->setModel(this);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->header()->setSectionsClickable(true);
    m_view->viewport()->setMouseTracking(true);
    m_view->viewport()->installEventFilter(this);
    connect(m_view->selectionModel(),
            &QItemSelectionModel::currentChanged,
            this,
            [this](const QModelIndex &current) { currentChanged(current); });
    connect(m_view, &QAbstractItemView::clicked, this, &QtListControl::clicked);
    connect(m_view->header(), &QHeaderView::sectionClicked, this, &QtListControl::headerClicked);
}

QColor QtListControl::colourOf(qint32 rgb)
{
    return QColor(rgb & 0xFF, (rgb >> 8) & 0xFF, (rgb >> 16) & 0xFF);
}

int QtListControl::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

int QtListControl::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columnCount();
}

QVariant QtListControl::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const ListRows::Row &row = m_rows.at(index.row() + 1);
    const int column = index.column();
    const std::size_t sub = std::size_t(column - 1);
    switch (role) {
    case Qt::DisplayRole:
        if (column == 0)
            return row.text;
        return sub < row.subItems.size() ? row.subItems[sub].text : QString();
    case Qt::ForegroundRole: {
        const qint32 colour = column == 0                 ? row.foreColor
                              : sub < row.subItems.size() ? row.subItems[sub].foreColor
                                                          : m_rows.foreColor();
        // The list's own colour is the palette's, so that it follows the theme.
        return colour == m_rows.foreColor() ? QVariant() : QVariant(colourOf(colour));
    }
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignmentOf(m_rows.columnAt(column + 1).alignment));
    case Qt::DecorationRole: {
        if (column != 0 || row.smallIcon <= 0)
            return {};
        const QIcon icon = Images::icon(m_imageList, QString::number(row.smallIcon));
        return icon.isNull() ? QVariant() : QVariant(icon);
    }
    case Qt::UserRole:
        return row.key;
    default:
        return {};
    }
}

QVariant QtListControl::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const ListRows::Column &column = m_rows.columnAt(section + 1);
    if (role == Qt::DisplayRole)
        return column.header;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(alignmentOf(column.alignment));
    return {};
}

void QtListControl::clear()
{
    m_quiet = true;
    beginResetModel();
    m_rows.clear();
    endResetModel();
    m_quiet = false;
    m_reportedByPress = 0;
}

int QtListControl::add(const QString &key, const QString &text, int smallIcon)
{
    m_rows.requireNewKey(key);
    beginInsertRows(QModelIndex(), count(), count());
    const int row = m_rows.add(key, text, smallIcon);
    endInsertRows();
    return row;
}

void QtListControl::remove(const QString &key)
{
    const int row = m_rows.rowOf(key);
    m_quiet = true;
    beginRemoveRows(QModelIndex(), row - 1, row - 1);
    m_rows.remove(key);
    endRemoveRows();
    m_quiet = false;
}

void QtListControl::setText(int row, const QString &text)
{
    m_rows.at(row).text = text;
    cellChanged(row, 0, Qt::DisplayRole);
}

void QtListControl::setSmallIcon(int row, int icon)
{
    m_rows.at(row).smallIcon = icon;
}

bool QtListControl::selected(int row) const
{
    m_rows.at(row);
    return m_view->selectionModel()->isRowSelected(row - 1, QModelIndex());
}

void QtListControl::setSelected(int row, bool selected)
{
    // Asked on every row added: nothing to do is the common case, and costs nothing.
    if (this->selected(row) == selected)
        return;
    const auto flags = (selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect)
                       | QItemSelectionModel::Rows;
    m_quiet = true;
    m_view->selectionModel()->select(index(row - 1, 0), flags);
    m_quiet = false;
}

void QtListControl::setForeColor(int row, qint32 colour)
{
    m_rows.at(row).foreColor = colour;
    cellChanged(row, 0, Qt::ForegroundRole);
}

void QtListControl::setSubItemText(int row, int subItem, const QString &text)
{
    m_rows.setSubItemText(row, subItem, text);
    cellChanged(row, subItem, Qt::DisplayRole);
}

void QtListControl::setSubItemForeColor(int row, int subItem, qint32 colour)
{
    m_rows.setSubItemForeColor(row, subItem, colour);
    cellChanged(row, subItem, Qt::ForegroundRole);
}

void QtListControl::clearColumns()
{
    if (columnCount() == 0)
        return;
    beginRemoveColumns(QModelIndex(), 0, columnCount() - 1);
    m_rows.clearColumns();
    endRemoveColumns();
}

int QtListControl::addColumn(const QString &header, ColumnAlignment alignment, int width)
{
    const int column = columnCount();
    beginInsertColumns(QModelIndex(), column, column);
    m_rows.addColumn(header, alignment, width);
    endInsertColumns();
    if (width > 0)
        m_view->header()->resizeSection(column, width);
    return column + 1;
}

int QtListControl::columnWidth(int column) const
{
    m_rows.columnAt(column);
    return m_view->header()->sectionSize(column - 1);
}

void QtListControl::setColumnWidth(int column, int width)
{
    m_rows.columnAt(column).width = width;
    m_view->header()->resizeSection(column - 1, width);
}

void QtListControl::setColumnAlignment(int column, ColumnAlignment alignment)
{
    m_rows.columnAt(column).alignment = alignment;
    emit headerDataChanged(Qt::Horizontal, column - 1, column - 1);
    if (count() > 0)
        emit dataChanged(
            index(0, column - 1), index(count() - 1, column - 1), {Qt::TextAlignmentRole});
}

void QtListControl::setColumnIcon(int column, const QString &icon)
{
    m_rows.columnAt(column).icon = icon;
    showSortIndicator();
}

// The sort images are the header's own sort indicator.
void QtListControl::showSortIndicator()
{
    QHeaderView *header = m_view->header();
    for (int column = 1; column <= columnCount(); ++column) {
        const QString &icon = m_rows.columnAt(column).icon;
        const bool ascending
            = icon.compare(QLatin1String("SortAscending"), Qt::CaseInsensitive) == 0;
        if (ascending || icon.compare(QLatin1String("SortDescending"), Qt::CaseInsensitive) == 0) {
            header->setSortIndicator(column - 1,
                                     ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
            header->setSortIndicatorShown(true);
            return;
        }
    }
    header->setSortIndicatorShown(false);
}

int QtListControl::width() const
{
    return m_view->viewport()->width();
}

void QtListControl::setSortKey(int column)
{
    m_rows.setSortKey(column);
    sortRows();
}

void QtListControl::setSortOrder(int order)
{
    m_rows.setSortOrder(order);
    sortRows();
}

void QtListControl::setSorted(bool sorted)
{
    m_rows.setSorted(sorted);
    sortRows();
}

void QtListControl::sortRows()
{
    if (!sorted() || count() == 0)
        return;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const std::vector<int> newRowOf = m_rows.sort();
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &index : before)
        after << this->index(newRowOf[std::size_t(index.row())], index.column());
    changePersistentIndexList(before, after);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

int QtListControl::selectedItem() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? current.row() + 1 : 0;
}

void QtListControl::setSelectedItem(int row)
{
    m_quiet = true;
    if (row == 0) {
        m_view->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    } else {
        m_rows.at(row);
        m_view->selectionModel()->setCurrentIndex(
            index(row - 1, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    m_quiet = false;
}

int QtListControl::hitTest(int x, int y) const
{
    const QModelIndex index = m_view->indexAt(QPoint(x, y));
    return index.isValid() ? index.row() + 1 : 0;
}

void QtListControl::setToolTipText(const QString &text)
{
    m_toolTip = text;
    m_view->viewport()->setToolTip(text);
}

bool QtListControl::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_viewport) {
        if (event->type() == QEvent::MouseButtonPress) {
            // A press starts afresh: a click on the current row still reports it.
            m_reportedByPress = 0;
            const auto *press = static_cast<QMouseEvent *>(event);
            m_pressAt = press->position().toPoint();
            m_pressedRow
                = press->button() == Qt::LeftButton ? hitTest(m_pressAt.x(), m_pressAt.y()) : 0;
        } else if (event->type() == QEvent::MouseButtonRelease) {
            m_pressedRow = 0;
        } else if (event->type() == QEvent::MouseMove && m_events) {
            const auto *move = static_cast<QMouseEvent *>(event);
            const QPoint at = move->position().toPoint();
            // Moving far enough with the button held on a selected row drags the selection.
            if (m_pressedRow != 0 && (move->buttons() & Qt::LeftButton)
                && (at - m_pressAt).manhattanLength() >= QApplication::startDragDistance()
                && m_pressedRow <= count() && selected(m_pressedRow)) {
                m_pressedRow = 0;
                if (startDrag())
                    return true;
            }
            m_events->MouseMove(at.x(), at.y());
        }
    }
    return QAbstractTableModel::eventFilter(watched, event);
}

QMimeData *QtListControl::dragData()
{
    const QString payload = m_events ? m_events->OLEStartDrag() : QString();
    if (payload.isEmpty())
        return nullptr;
    auto *data = new QMimeData;
    data->setData(QLatin1String(DragDrop::MimeType), payload.toUtf8());
    return data;
}

bool QtListControl::startDrag()
{
    std::unique_ptr<QMimeData> data(dragData());
    if (!data)
        return false;
    auto *drag = new QDrag(m_view);
    drag->setMimeData(data.release());
    // The rows' own picture travels with the pointer.
    const int row = selectedItem();
    if (row != 0 && m_rows.at(row).smallIcon > 0)
        drag->setPixmap(
            Images::icon(m_imageList, QString::number(m_rows.at(row).smallIcon)).pixmap(16, 16));
    drag->exec(Qt::MoveAction, Qt::MoveAction);
    if (m_events)
        m_events->OLECompleteDrag();
    return true;
}

// Sub-items beyond the last column are kept but not shown.
void QtListControl::cellChanged(int row, int column, int role)
{
    if (column < columnCount()) {
        const QModelIndex cell = index(row - 1, column);
        emit dataChanged(cell, cell, {role});
    }
}

void QtListControl::currentChanged(const QModelIndex &current)
{
    if (m_quiet)
        return;
    const int row = current.isValid() ? current.row() + 1 : 0;
    m_reportedByPress = row;
    if (row != 0 && m_events)
        m_events->ItemClick(row);
}

void QtListControl::clicked(const QModelIndex &index)
{
    const int row = index.row() + 1;
    if (index.isValid() && row != m_reportedByPress && m_events)
        m_events->ItemClick(row);
}

void QtListControl::headerClicked(int section)
{
    const int column = section + 1;
    modViewCommon::SortListByColumn(*this, column);
    if (m_events)
        m_events->ColumnClick(column);
}
