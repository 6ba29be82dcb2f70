#include "controls/ListControl.h"
#include "controls/TreeControl.h"
#include "gui/QtListControl.h"
#include "gui/QtTreeControl.h"
#include "platform/QuorinError.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeView>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Collects what QAbstractItemModelTester reports, so that a broken model fails the test.
class ModelWarnings
{
public:
    ModelWarnings() { s_previous = qInstallMessageHandler(&ModelWarnings::handle); }
    ~ModelWarnings()
    {
        qInstallMessageHandler(s_previous);
        s_messages.clear();
    }
    static const QStringList &messages() { return s_messages; }

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (type != QtDebugMsg && context.category
            && QLatin1String(context.category) == "qt.modeltest"_L1)
            s_messages << message;
    }
    static inline QtMessageHandler s_previous = nullptr;
    static inline QStringList s_messages;
};

struct TreeEvents final : TreeControlEvents
{
    void NodeClick(int node) override { clicks << node; }
    void Collapse(int node) override { collapses << node; }
    void DblClick() override { ++doubleClicks; }
    QList<int> clicks;
    QList<int> collapses;
    int doubleClicks = 0;
};

struct ListEvents final : ListControlEvents
{
    void ItemClick(int row) override { clicks << row; }
    void ColumnClick(int column) override { columns << column; }
    void MouseMove(int x, int y) override { moves << QPoint(x, y); }
    QList<int> clicks;
    QList<int> columns;
    QList<QPoint> moves;
};

QStringList listTexts(const ListControl &list)
{
    QStringList texts;
    for (int row = 1; row <= list.count(); ++row)
        texts << list.text(row);
    return texts;
}

} // namespace

TEST(QtTreeControl, KeepsNodesInOrderAndPassesTheModelTester)
{
    ModelWarnings warnings;
    QTreeView view;
    view.resize(300, 400);
    auto *tree = new QtTreeControl(&view);
    QAbstractItemModelTester tester(tree, QAbstractItemModelTester::FailureReportingMode::Warning);
    TreeEvents events;
    tree->setEventSink(&events);
    view.show();

    const int root = tree->addChild(0, u"Root"_s, u"Root"_s, u"Category"_s);
    tree->setExpanded(root, true);
    const int b = tree->addChild(root, u"B"_s, u"Bee"_s, u"Folder"_s);
    const int d = tree->addChild(root, u"D"_s, u"Dee"_s, QString());
    const int c = tree->addAfter(b, u"C"_s, u"Cee"_s, QString());
    const int e = tree->addChild(d, u"E"_s, u"Eee"_s, QString());
    EXPECT_EQ((QList<int>{root, b, d, c, e}), (QList<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(tree->count(), 5);
    EXPECT_EQ(tree->find(u"c"_s), c);
    EXPECT_EQ(tree->find(u"none"_s), 0);
    EXPECT_THROW(tree->addChild(root, u"b"_s, QString(), QString()), QuorinError);
    EXPECT_EQ(tree->count(), 5);

    // Siblings in the order shown: the node added after B stands before D.
    EXPECT_EQ(tree->rowCount(tree->indexOf(root)), 3);
    EXPECT_EQ(tree->indexOf(c).row(), 1);
    EXPECT_EQ(tree->next(b), c);
    EXPECT_EQ(tree->previous(d), c);
    EXPECT_EQ(tree->next(d), 0);
    EXPECT_EQ(tree->firstSibling(d), b);
    EXPECT_EQ(tree->parent(e), d);
    EXPECT_EQ(tree->parent(root), 0);

    tree->setText(c, u"Cee (3)"_s);
    tree->setBold(c, true);
    EXPECT_EQ(tree->indexOf(c).data().toString(), u"Cee (3)"_s);
    EXPECT_TRUE(tree->indexOf(c).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(tree->indexOf(d).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(tree->indexOf(b).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_TRUE(tree->indexOf(c).data(Qt::DecorationRole).value<QIcon>().isNull());

    // Expansion is the view's, and the window's own changes raise no events.
    EXPECT_TRUE(tree->expanded(root));
    EXPECT_TRUE(view.isExpanded(tree->indexOf(root)));
    EXPECT_FALSE(tree->expanded(d));
    tree->ensureVisible(e);
    EXPECT_TRUE(tree->expanded(d));
    tree->setSelectedItem(c);
    EXPECT_EQ(tree->selectedItem(), c);
    EXPECT_EQ(view.currentIndex(), tree->indexOf(c));
    EXPECT_TRUE(events.clicks.isEmpty());
    tree->setExpanded(d, false);
    EXPECT_TRUE(events.collapses.isEmpty());

    // What the user does reaches the view.
    view.selectionModel()->setCurrentIndex(tree->indexOf(d), QItemSelectionModel::ClearAndSelect);
    EXPECT_EQ(events.clicks, QList<int>{d});
    EXPECT_EQ(tree->selectedItem(), d);
    view.collapse(tree->indexOf(root));
    EXPECT_EQ(events.collapses, QList<int>{root});
    view.expand(tree->indexOf(root));
    emit view.doubleClicked(tree->indexOf(b));
    EXPECT_EQ(events.doubleClicks, 1);

    const QRect bRect = view.visualRect(tree->indexOf(b));
    EXPECT_EQ(tree->hitTest(bRect.center().x(), bRect.center().y()), b);
    EXPECT_EQ(tree->hitTest(5, view.viewport()->height() - 2), 0);

    tree->clear();
    EXPECT_EQ(tree->count(), 0);
    EXPECT_EQ(tree->rowCount(), 0);
    EXPECT_EQ(tree->selectedItem(), 0);
    EXPECT_EQ(tree->addChild(0, u"B"_s, u"Again"_s, QString()), 1);
    EXPECT_THROW(tree->text(2), QuorinError);
    EXPECT_EQ(events.clicks, QList<int>{d});

    EXPECT_TRUE(warnings.messages().isEmpty())
        << warnings.messages().join(QLatin1Char('\n')).toStdString();
}

TEST(QtListControl, AddsSortsAndSelectsRowsAndPassesTheModelTester)
{
    ModelWarnings warnings;
    QTreeView view;
    view.resize(500, 300);
    auto *list = new QtListControl(&view);
    QAbstractItemModelTester tester(list, QAbstractItemModelTester::FailureReportingMode::Warning);
    ListEvents events;
    list->setEventSink(&events);
    view.show();

    list->addColumn(u"Rule"_s, ColumnAlignment::Left, 60);
    list->addColumn(u"Title"_s, ColumnAlignment::Left, 200);
    list->addColumn(u"Impact"_s, ColumnAlignment::Right, 80);
    EXPECT_EQ(list->columnCount(), 3);
    EXPECT_EQ(list->columnHeader(2), u"Title"_s);
    EXPECT_EQ(list->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), u"Impact"_s);
    EXPECT_EQ(list->columnWidth(2), 200);
    list->setColumnWidth(1, 70);
    EXPECT_EQ(view.header()->sectionSize(0), 70);
    EXPECT_EQ(list->width(), view.viewport()->width());

    const QStringList keys = {u"5003Key"_s, u"5001Key"_s, u"5002Key"_s};
    const QStringList titles = {u"beta"_s, u"Gamma"_s, u"alpha"_s};
    for (int i = 0; i < 3; ++i) {
        const int row = list->add(keys[i], keys[i].left(4), i + 1);
        EXPECT_EQ(row, i + 1);
        list->setSubItemText(row, 1, titles[i]);
        list->setSubItemText(row, 2, QString::number(10 * (i + 1)));
        list->setSelected(row, false);
    }
    EXPECT_THROW(list->add(u"5001KEY"_s, QString(), 0), QuorinError);
    EXPECT_EQ(list->count(), 3);
    EXPECT_EQ(list->find(u"5002key"_s), 3);
    EXPECT_EQ(list->index(2, 1).data().toString(), u"alpha"_s);
    EXPECT_EQ(list->index(2, 0).data(Qt::UserRole).toString(), u"5002Key"_s);
    EXPECT_EQ(list->index(0, 2).data(Qt::TextAlignmentRole).value<Qt::Alignment>()
                  & Qt::AlignHorizontal_Mask,
              Qt::AlignRight);
    EXPECT_EQ(list->subItemText(1, 5), QString());

    // Red is the low byte; the list's own colour leaves the palette alone.
    list->setForeColor(2, 255);
    list->setSubItemForeColor(2, 1, 0xFF0000);
    EXPECT_EQ(list->foreColor(2), 255);
    EXPECT_EQ(list->index(1, 0).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::red));
    EXPECT_EQ(list->index(1, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::blue));
    EXPECT_FALSE(list->index(0, 0).data(Qt::ForegroundRole).isValid());

    list->setSelected(3, true);
    list->setSelectedItem(2);
    EXPECT_TRUE(list->selected(3));
    EXPECT_TRUE(list->selected(2));
    EXPECT_FALSE(list->selected(1));
    EXPECT_EQ(list->selectedItem(), 2);
    EXPECT_TRUE(events.clicks.isEmpty());

    // Sorting reorders the rows themselves; keys, selection and the current row follow.
    list->setSortKey(1);
    list->setSortOrder(0);
    EXPECT_EQ(listTexts(*list), (QStringList{u"5003"_s, u"5001"_s, u"5002"_s}));
    list->setSorted(true);
    EXPECT_EQ(listTexts(*list), (QStringList{u"5002"_s, u"5003"_s, u"5001"_s}));
    EXPECT_EQ(list->find(u"5001Key"_s), 3);
    EXPECT_EQ(list->index(2, 0).data(Qt::UserRole).toString(), u"5001Key"_s);
    EXPECT_EQ(list->selectedItem(), 3);
    EXPECT_TRUE(list->selected(3));
    EXPECT_TRUE(list->selected(1));
    EXPECT_FALSE(list->selected(2));
    EXPECT_EQ(list->foreColor(3), 255);

    // A header click: the same column again reverses the order, and the view is told after.
    emit view.header()->sectionClicked(1);
    EXPECT_EQ(list->sortOrder(), 1);
    EXPECT_EQ(listTexts(*list), (QStringList{u"5001"_s, u"5003"_s, u"5002"_s}));
    EXPECT_EQ(events.columns, QList<int>{2});
    EXPECT_EQ(list->columnIcon(2), u"SortDescending"_s);
    EXPECT_TRUE(view.header()->isSortIndicatorShown());
    EXPECT_EQ(view.header()->sortIndicatorSection(), 1);
    EXPECT_EQ(view.header()->sortIndicatorOrder(), Qt::DescendingOrder);
    emit view.header()->sectionClicked(0);
    EXPECT_EQ(list->sortKey(), 0);
    EXPECT_EQ(listTexts(*list), (QStringList{u"5001"_s, u"5002"_s, u"5003"_s}));

    // The user's moves reach the view: a change of current row, the mouse over the rows.
    view.selectionModel()->setCurrentIndex(
        list->index(1, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    EXPECT_EQ(events.clicks, QList<int>{2});
    const QRect second = view.visualRect(list->index(1, 0));
    EXPECT_EQ(list->hitTest(second.center().x(), second.center().y()), 2);
    EXPECT_EQ(list->hitTest(5, view.viewport()->height() - 2), 0);
    QMouseEvent move(QEvent::MouseMove,
                     QPointF(second.center()),
                     view.viewport()->mapToGlobal(QPointF(second.center())),
                     Qt::NoButton,
                     Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &move);
    ASSERT_FALSE(events.moves.isEmpty());
    EXPECT_EQ(events.moves.last(), second.center());
    list->setToolTipText(u"Inactive"_s);
    EXPECT_EQ(view.viewport()->toolTip(), u"Inactive"_s);

    list->remove(u"5002KEY"_s);
    EXPECT_EQ(listTexts(*list), (QStringList{u"5001"_s, u"5003"_s}));
    EXPECT_EQ(list->find(u"5003Key"_s), 2);
    EXPECT_THROW(list->remove(u"5002Key"_s), QuorinError);

    list->clear();
    list->clearColumns();
    EXPECT_EQ(list->rowCount(), 0);
    EXPECT_EQ(list->columnCount(), 0);
    EXPECT_EQ(list->find(u"5001Key"_s), 0);

    EXPECT_TRUE(warnings.messages().isEmpty())
        << warnings.messages().join(QLatin1Char('\n')).toStdString();
}
