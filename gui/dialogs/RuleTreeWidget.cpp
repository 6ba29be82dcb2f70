#include "gui/dialogs/RuleTreeWidget.h"

#include "gui/window/Images.h"

#include "editors/CheckableTree.h"

#include <QSignalBlocker>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

namespace RuleTreeWidget {

namespace {

constexpr int nodeRole = Qt::UserRole + 1;

void addItem(QTreeWidgetItem *item, const CheckableTree &tree, int node, bool checkable)
{
    const RuleTreeNode &n = tree.tree().node(node);
    item->setText(0, n.text);
    // Rule trees name their pictures by the keys of the event tree's image list.
    item->setIcon(0, Images::icon(QStringLiteral("ilsEventTree"), n.image));
    item->setData(0, nodeRole, node);
    if (n.bold) {
        QFont font = item->font(0);
        font.setBold(true);
        item->setFont(0, font);
    }
    if (checkable)
        item->setCheckState(0, tree.isChecked(node) ? Qt::Checked : Qt::Unchecked);
    for (int child : n.children)
        addItem(new QTreeWidgetItem(item), tree, child, checkable);
}

} // namespace

void fill(QTreeWidget *widget, const CheckableTree &tree, bool checkable)
{
    const QSignalBlocker block(widget);
    widget->clear();
    for (int node : tree.tree().topLevel())
        addItem(new QTreeWidgetItem(widget), tree, node, checkable);
    update(widget, tree);
}

void update(QTreeWidget *widget, const CheckableTree &tree)
{
    const QSignalBlocker block(widget);
    for (QTreeWidgetItemIterator it(widget); *it; ++it) {
        const int node = nodeOf(*it);
        (*it)->setExpanded(tree.isExpanded(node));
        if ((*it)->data(0, Qt::CheckStateRole).isValid()) {
            const Qt::CheckState state = tree.isChecked(node) ? Qt::Checked : Qt::Unchecked;
            if ((*it)->checkState(0) != state)
                (*it)->setCheckState(0, state);
        }
    }
    QTreeWidgetItem *selected = itemOf(widget, tree.selected());
    widget->setCurrentItem(selected);
    if (selected)
        widget->scrollToItem(selected);
}

int nodeOf(const QTreeWidgetItem *item)
{
    return item ? item->data(0, nodeRole).toInt() : 0;
}

QTreeWidgetItem *itemOf(QTreeWidget *widget, int node)
{
    if (node == 0)
        return nullptr;
    for (QTreeWidgetItemIterator it(widget); *it; ++it) {
        if (nodeOf(*it) == node)
            return *it;
    }
    return nullptr;
}

} // namespace RuleTreeWidget
