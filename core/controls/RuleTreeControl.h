#pragma once

class QString;

// What the rule trees need of a tree control: the GUI adapts its tree model, RuleTree records
// the nodes in memory. Nodes are handles numbered from 1 in the order they were added; 0 stands
// for no node. Images are keys into the caller's own image list.
class RuleTreeControl
{
public:
    virtual ~RuleTreeControl() = default;

    // Removes every node; the numbering starts again at 1.
    virtual void clear() = 0;
    // Appends a node as the last child of `parent`, or as the last top-level node when `parent`
    // is 0. Gives the new node.
    virtual int addChild(int parent, const QString &key, const QString &text, const QString &image)
        = 0;
    // Inserts a node directly after `sibling`, under the same parent. Gives the new node.
    virtual int addAfter(int sibling, const QString &key, const QString &text, const QString &image)
        = 0;
    virtual void setBold(int node, bool bold) = 0;
    virtual void setExpanded(int node, bool expanded) = 0;
};
