#pragma once

#include "controls/TreeControl.h"
#include "vocabulary/RuleTree.h"

#include <QAbstractItemModel>
#include <QPoint>

class QDropEvent;
class QTimer;
class QTreeView;
class QWidget;

// The main window's tree: a model of RuleTree nodes shown in a QTreeView, with the view's
// expansion, selection and signals turned into the TreeControl the views borrow. A model index
// carries its node's handle as internal id. Points are pixels of the view's viewport.
class QtTreeControl final : public QAbstractItemModel, public TreeControl
{
    Q_OBJECT

public:
    // Becomes the model of `view`, and a child of it.
    explicit QtTreeControl(QTreeView *view);

    // QAbstractItemModel
    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    // TreeControl
    void clear() override;
    int
    addChild(int parent, const QString &key, const QString &text, const QString &image) override;
    int
    addAfter(int sibling, const QString &key, const QString &text, const QString &image) override;
    void setBold(int node, bool bold) override;
    void setExpanded(int node, bool expanded) override;
    void setImageList(const QString &name) override { m_imageList = name; }
    int count() const override { return m_tree.count(); }
    int find(const QString &key) const override { return m_tree.find(key); }
    QString key(int node) const override { return m_tree.node(node).key; }
    QString text(int node) const override { return m_tree.node(node).text; }
    void setText(int node, const QString &text) override;
    QString image(int node) const override { return m_tree.node(node).image; }
    void setImage(int node, const QString &image) override;
    bool bold(int node) const override { return m_tree.node(node).bold; }
    bool expanded(int node) const override;
    int parent(int node) const override { return m_tree.node(node).parent; }
    int previous(int node) const override { return siblingAt(node, -1); }
    int next(int node) const override { return siblingAt(node, +1); }
    int firstSibling(int node) const override { return siblingsOf(node).front(); }
    void ensureVisible(int node) override;
    int selectedItem() const override;
    void setSelectedItem(int node) override;
    int dropHighlight() const override { return m_dropHighlight; }
    void setDropHighlight(int node) override;
    int hitTest(int x, int y) const override;
    int edgeAt(int y) const override;
    void setEventSink(TreeControlEvents *events) override { m_events = events; }

    QString imageList() const { return m_imageList; }
    // The model index of a node; invalid for 0.
    QModelIndex indexOf(int node) const;
    // The node of a model index; 0 for an invalid one.
    static int nodeOf(const QModelIndex &index);

    // A drag held still keeps being reported this often, so a hovered node opens in time.
    static constexpr int DragRepeatMilliseconds = 250;
    // The scroll zone at each edge during a drag: 200 twips.
    static constexpr int EdgePixels = 200 / 15;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const std::vector<int> &siblingsOf(int node) const;
    int rowOf(int node) const;
    int siblingAt(int node, int step) const;
    void nodeChanged(int node, int role);
    void currentChanged(const QModelIndex &current);
    void clicked(const QModelIndex &index);
    // The drag events of the viewport, turned into the view's; true when handled.
    bool dragEvent(QEvent *event);
    void repeatDragOver();

    QTreeView *m_view;
    // Kept, since the view is half destroyed when its viewport's last events arrive.
    QWidget *m_viewport;
    RuleTree m_tree;
    QString m_imageList;
    int m_dropHighlight = 0;
    // Changes the views make themselves are not the user's: no events for them.
    bool m_quiet = false;
    // The node the current press already reported through the change of current node.
    int m_reportedByPress = 0;
    TreeControlEvents *m_events = nullptr;
    // The drag in progress over the tree: where, and whether it carries rules.
    QTimer *m_dragRepeat = nullptr;
    QPoint m_dragAt;
    bool m_dragHasRules = false;
};
