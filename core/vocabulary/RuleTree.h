#pragma once

#include "controls/RuleTreeControl.h"

#include <QHash>
#include <QString>

#include <vector>

struct RuleTreeNode
{
    QString key;
    QString text;
    QString image;
    int parent = 0; // 0 for a top-level node
    bool bold = false;
    bool expanded = false;
    std::vector<int> children; // in the order shown
};

// A tree control held in memory: what a view or a test reads back after a tree was filled.
// Keys are unique ignoring case, as node keys are everywhere else.
class RuleTree final : public RuleTreeControl
{
public:
    void clear() override;
    // Both raise the duplicate-key error for a key in use, and a subscript error for a parent
    // or sibling that is not a node.
    int
    addChild(int parent, const QString &key, const QString &text, const QString &image) override;
    int
    addAfter(int sibling, const QString &key, const QString &text, const QString &image) override;
    void setBold(int node, bool bold) override;
    void setExpanded(int node, bool expanded) override;
    void setText(int node, const QString &text);
    void setImage(int node, const QString &image);

    int count() const { return int(m_nodes.size()); }
    // 1 to count(); anything else raises a subscript error.
    const RuleTreeNode &node(int index) const;
    // The node with this key, ignoring case; 0 when there is none.
    int find(const QString &key) const;
    // The top-level nodes in the order shown.
    const std::vector<int> &topLevel() const { return m_topLevel; }

private:
    RuleTreeNode &at(int index, const char *member);
    int insert(int parent,
               std::vector<int>::difference_type position,
               const QString &key,
               const QString &text,
               const QString &image,
               const char *member);
    std::vector<int> &siblingsOf(int parent);

    std::vector<RuleTreeNode> m_nodes; // node i lives at m_nodes[i - 1]
    std::vector<int> m_topLevel;
    QHash<QString, int> m_byKey; // by case-folded key
};
