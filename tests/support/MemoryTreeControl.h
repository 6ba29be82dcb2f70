#pragma once

#include "controls/TreeControl.h"
#include "vocabulary/RuleTree.h"

// A tree held in memory, for tests and for tools without widgets. A point's y is the node's
// number (every node one unit high), so hitTest(0, n) is node n.
class MemoryTreeControl final : public TreeControl
{
public:
    void clear() override;
    int
    addChild(int parent, const QString &key, const QString &text, const QString &image) override;
    int
    addAfter(int sibling, const QString &key, const QString &text, const QString &image) override;
    void setBold(int node, bool bold) override { m_tree.setBold(node, bold); }
    void setExpanded(int node, bool expanded) override;

    void setImageList(const QString &name) override { m_imageList = name; }
    int count() const override { return m_tree.count(); }
    int find(const QString &key) const override { return m_tree.find(key); }
    QString key(int node) const override { return m_tree.node(node).key; }
    QString text(int node) const override { return m_tree.node(node).text; }
    void setText(int node, const QString &text) override { m_tree.setText(node, text); }
    QString image(int node) const override { return m_tree.node(node).image; }
    void setImage(int node, const QString &image) override { m_tree.setImage(node, image); }
    bool bold(int node) const override { return m_tree.node(node).bold; }
    bool expanded(int node) const override { return m_tree.node(node).expanded; }
    int parent(int node) const override { return m_tree.node(node).parent; }
    int previous(int node) const override { return sibling(node, -1); }
    int next(int node) const override { return sibling(node, +1); }
    int firstSibling(int node) const override;
    void ensureVisible(int node) override;

    int selectedItem() const override { return m_selected; }
    // Raises a subscript error for a number that is not a node.
    void setSelectedItem(int node) override;
    int dropHighlight() const override { return m_dropHighlight; }
    void setDropHighlight(int node) override { m_dropHighlight = node; }
    int hitTest(int x, int y) const override;
    // With a height set, node 1 is the top zone and the last row of the height the bottom one.
    int edgeAt(int y) const override;
    void setHeight(int height) { m_height = height; }
    void setEventSink(TreeControlEvents *events) override { m_events = events; }

    QString imageList() const { return m_imageList; }
    const RuleTree &tree() const { return m_tree; }
    // What a user does: select the node and tell the view; collapse it; double-click.
    void click(int node);
    void collapse(int node);
    void doubleClick();
    // A drag over the point (0, y), and its drop; each gives the view's effect.
    int dragOver(int y, int state = 2, bool hasRuleData = true);
    int drop(const QString &data, int y);
    // Nodes scrolled into view, in order, for tests of the drag's scrolling.
    const std::vector<int> &madeVisible() const { return m_madeVisible; }

private:
    int sibling(int node, int step) const;
    const std::vector<int> &siblingsOf(int node) const;

    RuleTree m_tree;
    QString m_imageList;
    int m_selected = 0;
    int m_dropHighlight = 0;
    int m_height = 0;
    std::vector<int> m_madeVisible;
    TreeControlEvents *m_events = nullptr;
};
