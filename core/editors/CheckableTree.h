#pragma once

#include "vocabulary/RuleTree.h"

#include <vector>

// A rule tree as a dialog's form model holds it: the nodes, which of them are checked, expanded
// and selected. The dialog mirrors it into its tree widget and rebuilds the widget whenever
// revision() moves on.
class CheckableTree final
{
public:
    // Empties the tree for a new fill; checks and selection go with it.
    RuleTree &beginFill();
    const RuleTree &tree() const { return m_tree; }
    int count() const { return m_tree.count(); }
    QString key(int node) const { return m_tree.node(node).key; }
    QString text(int node) const { return m_tree.node(node).text; }
    // The leading number of the node's key: a parser event id, or an object id.
    qint32 value(int node) const;

    bool isChecked(int node) const;
    void setChecked(int node, bool checked);
    bool isExpanded(int node) const { return m_tree.node(node).expanded; }
    void setExpanded(int node, bool expanded) { m_tree.setExpanded(node, expanded); }
    // 0 for none.
    int selected() const { return m_selected; }
    void setSelected(int node);
    // The node with this key, ignoring case; 0 when there is none.
    int find(const QString &key) const { return m_tree.find(key); }

    // Every node as shown: parents before their children, siblings in their order.
    std::vector<int> nodesInOrder() const;
    int revision() const { return m_revision; }

private:
    void addInOrder(int node, std::vector<int> &out) const;

    RuleTree m_tree;
    std::vector<bool> m_checked; // node i at i - 1
    int m_selected = 0;
    int m_revision = 0;
};
