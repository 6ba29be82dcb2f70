#pragma once

#include "controls/RuleTreeControl.h"

#include <QString>

// What a tree tells the view that borrows it.
class TreeControlEvents
{
public:
    virtual ~TreeControlEvents() = default;

    virtual void NodeClick(int node) = 0;
    virtual void Collapse(int node) = 0;
    virtual void DblClick() = 0;
    // A drag of rows over a node and its drop. Effects: 0 none, 1 copy, 2 move; states: 0 enter,
    // 1 leave, 2 over. `hasRuleData` tells whether the drag carries the private rule format.
    // A view without drag and drop keeps these, which refuse everything.
    virtual int OLEDragOver(bool /*hasRuleData*/, int /*x*/, int /*y*/, int /*state*/) { return 0; }
    virtual int OLEDragDrop(const QString & /*data*/, int /*x*/, int /*y*/) { return 0; }
};

// The tree of the main window as the views use it. Nodes are the handles of RuleTreeControl:
// numbered from 1 in the order added, 0 for no node. An image is a key of the tree's image
// list, or its 1-based index written in decimal.
class TreeControl : public RuleTreeControl
{
public:
    // The image list by name ("ilsEventTree", "ilsImages", "ilsSeverity").
    virtual void setImageList(const QString &name) = 0;
    virtual int count() const = 0;
    // The node with this key, ignoring case; 0 when there is none.
    virtual int find(const QString &key) const = 0;

    virtual QString key(int node) const = 0;
    virtual QString text(int node) const = 0;
    virtual void setText(int node, const QString &text) = 0;
    virtual QString image(int node) const = 0;
    virtual void setImage(int node, const QString &image) = 0;
    virtual bool bold(int node) const = 0;
    virtual bool expanded(int node) const = 0;
    // Relatives among the nodes as shown; 0 when there is none.
    virtual int parent(int node) const = 0;
    virtual int previous(int node) const = 0;
    virtual int next(int node) const = 0;
    virtual int firstSibling(int node) const = 0;
    virtual void ensureVisible(int node) = 0;

    virtual int selectedItem() const = 0;
    virtual void setSelectedItem(int node) = 0;
    virtual int dropHighlight() const = 0;
    virtual void setDropHighlight(int node) = 0;
    // The node at a point of the control, or 0.
    virtual int hitTest(int x, int y) const = 0;
    // Where a point lies for scrolling during a drag: -1 within 200 twips of the top edge, 1
    // within 200 twips of the bottom edge, 0 elsewhere.
    virtual int edgeAt(int y) const = 0;

    // Not owned; nullptr stops the events.
    virtual void setEventSink(TreeControlEvents *events) = 0;
};
