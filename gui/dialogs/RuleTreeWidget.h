#pragma once

class CheckableTree;
class QTreeWidget;
class QTreeWidgetItem;

// Shows a dialog's rule tree in a QTreeWidget: each item carries its node number.
namespace RuleTreeWidget {

// Rebuilds the widget from the tree, with check boxes when asked, and its expanded, checked and
// selected nodes.
void fill(QTreeWidget *widget, const CheckableTree &tree, bool checkable);
// Brings checks, expansion and selection up to date without a rebuild.
void update(QTreeWidget *widget, const CheckableTree &tree);
// 0 for none.
int nodeOf(const QTreeWidgetItem *item);
QTreeWidgetItem *itemOf(QTreeWidget *widget, int node);

} // namespace RuleTreeWidget
