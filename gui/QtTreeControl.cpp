#include "gui/QtTreeControl.h"

#include "gui/window/Images.h"

#include "views/DragDrop.h"

#include <QDragMoveEvent>
#include <QDropEvent>
#include <QEvent>
#include <QFont>
#include <QIcon>
#include <QMimeData>
#include <QTimer>
#include <QTreeView>

#include <algorithm>

QtTreeControl::QtTreeControl(QTreeView *view)
    : QAbstractItemModel(view)
    , m_view(view)
    , m_viewport(view->viewport())
{
    m_view->setModel(this);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(m_view->selectionModel(),
            &QItemSelectionModel::currentChanged,
            this,
            [this](const QModelIndex &current) { currentChanged(current); });
    connect(m_view, &QAbstractItemView::clicked, this, &QtTreeControl::clicked);
    connect(m_view, &QTreeView::collapsed, this, [this](const QModelIndex &index) {
        if (!m_quiet && m_events)
            m_events->Collapse(nodeOf(index));
    });
    connect(m_view, &QAbstractItemView::doubleClicked, this, [this] {
        if (m_events)
            m_events->DblClick();
    });
    // A press starts afresh: a click on the current node still reports it.
    m_view->viewport()->installEventFilter(this);
    // Rules dragged from the list land on nodes; the view decides what a drop means.
    m_view->setAcceptDrops(true);
    m_view->viewport()->setAcceptDrops(true);
    m_dragRepeat = new QTimer(this);
    m_dragRepeat->setInterval(DragRepeatMilliseconds);
    connect(m_dragRepeat, &QTimer::timeout, this, &QtTreeControl::repeatDragOver);
}

bool QtTreeControl::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_viewport) {
        if (event->type() == QEvent::MouseButtonPress)
            m_reportedByPress = 0;
        else if (dragEvent(event))
            return true;
    }
    return QAbstractItemModel::eventFilter(watched, event);
}

bool QtTreeControl::dragEvent(QEvent *event)
{
    const auto effectToAction = [](int effect) {
        return effect == DragDrop::EffectMove   ? Qt::MoveAction
               : effect == DragDrop::EffectCopy ? Qt::CopyAction
                                                : Qt::IgnoreAction;
    };
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto *drag = static_cast<QDragMoveEvent *>(event);
        const bool enter = event->type() == QEvent::DragEnter;
        m_dragAt = drag->position().toPoint();
        m_dragHasRules = drag->mimeData()->hasFormat(QLatin1String(DragDrop::MimeType));
        const int effect
            = m_events ? m_events->OLEDragOver(m_dragHasRules,
                                               m_dragAt.x(),
                                               m_dragAt.y(),
                                               enter ? DragDrop::StateEnter : DragDrop::StateOver)
                       : DragDrop::EffectNone;
        // Rules are always let in, so that the moves keep coming and the hover can run.
        if (enter && m_dragHasRules)
            drag->acceptProposedAction();
        if (effect != DragDrop::EffectNone) {
            drag->setDropAction(effectToAction(effect));
            drag->accept();
        } else if (!enter || !m_dragHasRules) {
            drag->ignore();
        }
        if (m_dragHasRules)
            m_dragRepeat->start();
        return true;
    }
    case QEvent::DragLeave:
        m_dragRepeat->stop();
        if (m_events)
            m_events->OLEDragOver(m_dragHasRules, m_dragAt.x(), m_dragAt.y(), DragDrop::StateLeave);
        return true;
    case QEvent::Drop: {
        m_dragRepeat->stop();
        auto *drop = static_cast<QDropEvent *>(event);
        const QPoint at = drop->position().toPoint();
        const QMimeData *data = drop->mimeData();
        int effect = DragDrop::EffectNone;
        if (m_events && data->hasFormat(QLatin1String(DragDrop::MimeType)))
            effect = m_events->OLEDragDrop(
                QString::fromUtf8(data->data(QLatin1String(DragDrop::MimeType))), at.x(), at.y());
        if (effect != DragDrop::EffectNone) {
            drop->setDropAction(effectToAction(effect));
            drop->accept();
        } else {
            drop->ignore();
        }
        return true;
    }
    default:
        return false;
    }
}

// Held still, a drag sends no moves; the view still has to learn how long it has hovered.
void QtTreeControl::repeatDragOver()
{
    if (m_events && m_dragHasRules)
        m_events->OLEDragOver(true, m_dragAt.x(), m_dragAt.y(), DragDrop::StateOver);
}

QModelIndex QtTreeControl::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    const int node = nodeOf(parent);
    const std::vector<int> &children = node == 0 ? m_tree.topLevel() : m_tree.node(node).children;
    return createIndex(row, column, quintptr(children[std::size_t(row)]));
}

QModelIndex QtTreeControl::parent(const QModelIndex &child) const
{
    const int node = nodeOf(child);
    return node == 0 ? QModelIndex() : indexOf(m_tree.node(node).parent);
}

int QtTreeControl::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > 0)
        return 0;
    const int node = nodeOf(parent);
    return int(node == 0 ? m_tree.topLevel().size() : m_tree.node(node).children.size());
}

int QtTreeControl::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant QtTreeControl::data(const QModelIndex &index, int role) const
{
    const int node = nodeOf(index);
    if (node == 0)
        return {};
    const RuleTreeNode &n = m_tree.node(node);
    switch (role) {
    case Qt::DisplayRole:
        return n.text;
    case Qt::FontRole:
        if (n.bold) {
            QFont font = m_view->font();
            font.setBold(true);
            return font;
        }
        return {};
    case Qt::DecorationRole: {
        const QIcon icon = Images::icon(m_imageList, n.image);
        return icon.isNull() ? QVariant() : QVariant(icon);
    }
    // The node under a drag shows as selected does.
    case Qt::BackgroundRole:
        if (node == m_dropHighlight)
            return m_view->palette().highlight();
        return {};
    case Qt::ForegroundRole:
        if (node == m_dropHighlight)
            return m_view->palette().highlightedText();
        return {};
    default:
        return {};
    }
}

void QtTreeControl::clear()
{
    m_quiet = true;
    beginResetModel();
    m_tree.clear();
    endResetModel();
    m_quiet = false;
    m_dropHighlight = 0;
    m_reportedByPress = 0;
}

int QtTreeControl::addChild(int parent,
                            const QString &key,
                            const QString &text,
                            const QString &image)
{
    const QModelIndex under = indexOf(parent);
    // A duplicate key raises before the model announces a row.
    if (m_tree.find(key) != 0)
        return m_tree.addChild(parent, key, text, image);
    const int row = rowCount(under);
    beginInsertRows(under, row, row);
    const int node = m_tree.addChild(parent, key, text, image);
    endInsertRows();
    return node;
}

int QtTreeControl::addAfter(int sibling,
                            const QString &key,
                            const QString &text,
                            const QString &image)
{
    const int row = rowOf(sibling) + 1;
    if (m_tree.find(key) != 0)
        return m_tree.addAfter(sibling, key, text, image);
    beginInsertRows(indexOf(m_tree.node(sibling).parent), row, row);
    const int node = m_tree.addAfter(sibling, key, text, image);
    endInsertRows();
    return node;
}

void QtTreeControl::setBold(int node, bool bold)
{
    m_tree.setBold(node, bold);
    nodeChanged(node, Qt::FontRole);
}

void QtTreeControl::setExpanded(int node, bool expanded)
{
    m_tree.setExpanded(node, expanded);
    m_quiet = true;
    m_view->setExpanded(indexOf(node), expanded);
    m_quiet = false;
}

bool QtTreeControl::expanded(int node) const
{
    return m_view->isExpanded(indexOf(node));
}

void QtTreeControl::setText(int node, const QString &text)
{
    m_tree.setText(node, text);
    nodeChanged(node, Qt::DisplayRole);
}

void QtTreeControl::setImage(int node, const QString &image)
{
    m_tree.setImage(node, image);
    nodeChanged(node, Qt::DecorationRole);
}

void QtTreeControl::ensureVisible(int node)
{
    m_quiet = true;
    for (int up = m_tree.node(node).parent; up != 0; up = m_tree.node(up).parent)
        m_view->setExpanded(indexOf(up), true);
    m_quiet = false;
    m_view->scrollTo(indexOf(node));
}

int QtTreeControl::selectedItem() const
{
    return nodeOf(m_view->currentIndex());
}

void QtTreeControl::setSelectedItem(int node)
{
    const QModelIndex index = indexOf(node);
    m_quiet = true;
    if (index.isValid())
        m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    else
        m_view->selectionModel()->clear();
    m_quiet = false;
}

int QtTreeControl::hitTest(int x, int y) const
{
    return nodeOf(m_view->indexAt(QPoint(x, y)));
}

int QtTreeControl::edgeAt(int y) const
{
    if (y <= EdgePixels)
        return -1;
    return y >= m_view->viewport()->height() - EdgePixels ? 1 : 0;
}

void QtTreeControl::setDropHighlight(int node)
{
    if (node == m_dropHighlight)
        return;
    const int before = m_dropHighlight;
    m_dropHighlight = node;
    for (const int changed : {before, node}) {
        if (changed != 0 && changed <= m_tree.count()) {
            const QModelIndex index = indexOf(changed);
            emit dataChanged(index, index, {Qt::BackgroundRole, Qt::ForegroundRole});
        }
    }
}

QModelIndex QtTreeControl::indexOf(int node) const
{
    return node == 0 ? QModelIndex() : createIndex(rowOf(node), 0, quintptr(node));
}

int QtTreeControl::nodeOf(const QModelIndex &index)
{
    return index.isValid() ? int(index.internalId()) : 0;
}

const std::vector<int> &QtTreeControl::siblingsOf(int node) const
{
    const int parent = m_tree.node(node).parent;
    return parent == 0 ? m_tree.topLevel() : m_tree.node(parent).children;
}

int QtTreeControl::rowOf(int node) const
{
    const std::vector<int> &siblings = siblingsOf(node);
    return int(std::find(siblings.begin(), siblings.end(), node) - siblings.begin());
}

int QtTreeControl::siblingAt(int node, int step) const
{
    const std::vector<int> &siblings = siblingsOf(node);
    const int at = rowOf(node) + step;
    return at >= 0 && at < int(siblings.size()) ? siblings[std::size_t(at)] : 0;
}

void QtTreeControl::nodeChanged(int node, int role)
{
    const QModelIndex index = indexOf(node);
    emit dataChanged(index, index, {role});
}

void QtTreeControl::currentChanged(const QModelIndex &current)
{
    if (m_quiet)
        return;
    const int node = nodeOf(current);
    m_reportedByPress = node;
    if (node != 0 && m_events)
        m_events->NodeClick(node);
}

void QtTreeControl::clicked(const QModelIndex &index)
{
    const int node = nodeOf(index);
    if (node != 0 && node != m_reportedByPress && m_events)
        m_events->NodeClick(node);
}
