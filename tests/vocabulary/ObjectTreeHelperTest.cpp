#include "LogCapture.h"

#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "support/TestEnvironment.h"
#include "vocabulary/ObjectTreeHelper.h"
#include "vocabulary/RuleTree.h"

#include <QMap>

#include <gtest/gtest.h>

#include <ostream>
#include <stdexcept>
#include <vector>

inline void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace {

struct Shape
{
    qint32 id;
    qint32 parent; // 0: the root, or the top level when there is none
    const char *text;
    const char *image;
};

// Both trees in the order shown, as the views and pickers rely on them.
const std::vector<Shape> eventTree = {
    {1, 0, "begin Project", "Event"},
    {26, 1, "Reference", "Reference"},
    {2, 1, "begin Source Files", "Event"},
    {3, 2, "begin File", "Event"},
    {4, 3, "Source Line", "Event"},
    {5, 4, "Component", "Component"},
    {6, 4, "begin Layout", "Event"},
    {7, 6, "Control", "Control"},
    {8, 4, "end Layout", "Event"},
    {9, 4, "begin Declarations", "Event"},
    {10, 9, "Declaration", "Event"},
    {11, 10, "Const", "Const"},
    {12, 10, "Declare", "Declare"},
    {13, 12, "Argument (Declare)", "Argument"},
    {14, 10, "begin Enum", "Event"},
    {15, 14, "Enum <body>", "Enum"},
    {16, 15, "Enum element", "EnumItem"},
    {17, 10, "end Enum", "Event"},
    {18, 10, "Event", "WithEvents"},
    {19, 18, "Argument (Event)", "Argument"},
    {20, 10, "Implements", "Implements"},
    {21, 10, "begin Type", "Event"},
    {22, 21, "Type <body>", "Type"},
    {23, 22, "Type element", "TypeItem"},
    {24, 10, "end Type", "Event"},
    {25, 10, "Variable", "Variable"},
    {27, 4, "end Declarations", "Event"},
    {28, 4, "begin Procedure", "Event"},
    {29, 28, "Argument (Procedure)", "Argument"},
    {30, 28, "Procedure <body>", "ProcedureBody"},
    {31, 30, "Const (local)", "LocalConst"},
    {33, 30, "Variable (local)", "LocalVariable"},
    {32, 30, "Line Label", "LineLabel"},
    {34, 4, "end Procedure", "Event"},
    {35, 2, "end File", "Event"},
    {36, 1, "end Source Files", "Event"},
    {37, 0, "end Project", "Event"},
};

const std::vector<Shape> objectTree = {
    {1, 0, "Argument", "Argument"},
    {13, 1, "Argument (Declare)", "Argument"},
    {19, 1, "Argument (Event)", "Argument"},
    {20, 1, "Argument (Procedure)", "Argument"},
    {5, 0, "Const", "Const"},
    {22, 5, "Const (Public)", "Const"},
    {26, 5, "Const (Private)", "Const"},
    {27, 5, "Const (Local)", "Const"},
    {6, 0, "Control", "Control"},
    {7, 0, "Declare", "Declare"},
    {9, 0, "Enum", "Enum"},
    {10, 9, "Enum Element", "EnumItem"},
    {11, 0, "Event", "Event"},
    {12, 0, "File", "Module"},
    {38, 12, "Class", "Class"},
    {39, 12, "Designer", "Designer"},
    {36, 12, "Form", "Form"},
    {47, 36, "File (MDI Form)", "Form"},
    {48, 36, "File (MDI Child Form)", "Form"},
    {49, 36, "File (Non MDI Form)", "Form"},
    {37, 12, "Module", "Module"},
    {40, 12, "Property Page", "PropertyPage"},
    {41, 12, "User Control", "UserControl"},
    {42, 12, "User Document", "UserDocument"},
    {15, 0, "Line Label", "LineLabel"},
    {17, 0, "Procedure", "ProcedureBody"},
    {46, 17, "Procedure (Function)", "ProcedureBody"},
    {45, 17, "Procedure (Property Get/Let/Set)", "ProcedureBody"},
    {44, 17, "Procedure (Sub)", "ProcedureBody"},
    {18, 0, "Project", "Project"},
    {24, 0, "Type", "Type"},
    {25, 24, "Type Element", "TypeItem"},
    {28, 0, "Variable", "Variable"},
    {43, 28, "Variable (No WithEvents)", "Variable"},
    {29, 43, "Variable (Public)", "Variable"},
    {30, 43, "Variable (Private)", "Variable"},
    {31, 43, "Variable (Local)", "Variable"},
    {32, 43, "Variable (Local Static)", "Variable"},
    {33, 28, "Variable (WithEvents)", "WithEvents"},
    {34, 33, "Variable (Public WithEvents)", "WithEvents"},
    {35, 33, "Variable (Private WithEvents)", "WithEvents"},
};

QString keyOf(qint32 id)
{
    return QString::number(id) + QStringLiteral("Key");
}

QString counted(const QString &text, qint32 count)
{
    return count > 0 ? QStringLiteral("%1 (%2)").arg(text).arg(count) : text;
}

// Every node below `nodes` in the order shown.
void walk(const RuleTree &tree, const std::vector<int> &nodes, std::vector<int> &order)
{
    for (const int index : nodes) {
        order.push_back(index);
        walk(tree, tree.node(index).children, order);
    }
}

// The shape below `rootKey`, each text with the count that `countOf` gives its id.
template<typename CountOf>
void expectShape(const RuleTree &tree,
                 const std::vector<Shape> &shape,
                 const QString &rootKey,
                 CountOf countOf)
{
    std::vector<int> order;
    walk(tree, tree.topLevel(), order);
    if (!rootKey.isEmpty()) {
        ASSERT_FALSE(order.empty());
        EXPECT_EQ(tree.node(order.front()).key, rootKey);
        order.erase(order.begin());
    }
    ASSERT_EQ(order.size(), shape.size());
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const Shape &expected = shape[i];
        const RuleTreeNode &node = tree.node(order[i]);
        EXPECT_EQ(node.key, keyOf(expected.id)) << i;
        EXPECT_EQ(node.parent ? tree.node(node.parent).key : QString(),
                  expected.parent ? keyOf(expected.parent) : rootKey)
            << expected.id;
        const qint32 count = countOf(expected.id);
        EXPECT_EQ(node.text, counted(QString::fromUtf8(expected.text), count)) << expected.id;
        EXPECT_EQ(node.image, QString::fromUtf8(expected.image)) << expected.id;
        EXPECT_EQ(node.bold, count > 0) << expected.id;
    }
}

qint32 none(qint32)
{
    return 0;
}

std::vector<QString> expandedKeys(const RuleTree &tree)
{
    std::vector<QString> keys;
    for (int i = 1; i <= tree.count(); ++i) {
        if (tree.node(i).expanded)
            keys.push_back(tree.node(i).key);
    }
    return keys;
}

std::shared_ptr<CodingConvention>
coding(RuleLists &lists, std::initializer_list<qint32> events, bool active = true)
{
    auto rule = std::make_shared<CodingConvention>();
    for (const qint32 id : events)
        rule->AddParserEventID(id);
    rule->setRuleActive(active);
    lists.AddConvention(rule, true);
    return rule;
}

std::shared_ptr<NamingConvention> naming(RuleLists &lists, qint32 objectType, bool active = true)
{
    auto rule = std::make_shared<NamingConvention>();
    rule->setObjectType(objectType);
    rule->setRuleActive(active);
    lists.AddConvention(rule, true);
    return rule;
}

// Forwards to a RuleTree until the add numbered `failAtAdd`, which throws.
class FailingTree final : public RuleTreeControl
{
public:
    explicit FailingTree(int failAtAdd)
        : m_failAtAdd(failAtAdd)
    {
    }

    void clear() override { inner.clear(); }
    int addChild(int parent, const QString &key, const QString &text, const QString &image) override
    {
        fail();
        return inner.addChild(parent, key, text, image);
    }
    int
    addAfter(int sibling, const QString &key, const QString &text, const QString &image) override
    {
        fail();
        return inner.addAfter(sibling, key, text, image);
    }
    void setBold(int node, bool bold) override { inner.setBold(node, bold); }
    void setExpanded(int node, bool expanded) override { inner.setExpanded(node, expanded); }

    RuleTree inner;

private:
    void fail()
    {
        if (++m_adds == m_failAtAdd)
            throw std::runtime_error("add failed");
    }

    int m_failAtAdd;
    int m_adds = 0;
};

} // namespace

TEST(RuleTree, InsertsAfterASiblingFindsKeysIgnoringCaseAndRefusesDuplicates)
{
    RuleTree tree;
    EXPECT_EQ(tree.addChild(0, QStringLiteral("A"), QStringLiteral("a"), QStringLiteral("i")), 1);
    tree.addChild(1, QStringLiteral("B"), QString(), QString());
    tree.addChild(1, QStringLiteral("C"), QString(), QString());
    EXPECT_EQ(tree.addAfter(2, QStringLiteral("D"), QString(), QString()), 4);
    EXPECT_EQ(tree.node(1).children, (std::vector<int>{2, 4, 3}));
    EXPECT_EQ(tree.node(4).parent, 1);
    EXPECT_EQ(tree.addAfter(1, QStringLiteral("E"), QString(), QString()), 5);
    EXPECT_EQ(tree.topLevel(), (std::vector<int>{1, 5}));
    EXPECT_EQ(tree.find(QStringLiteral("d")), 4);
    EXPECT_EQ(tree.find(QStringLiteral("X")), 0);

    try {
        tree.addChild(0, QStringLiteral("b"), QString(), QString());
        FAIL() << "a key in use was accepted";
    } catch (const QuorinError &error) {
        EXPECT_EQ(error.number(), ErrorNumber::DuplicateKey);
    }
    EXPECT_THROW(tree.addChild(9, QStringLiteral("F"), QString(), QString()), QuorinError);
    EXPECT_THROW(tree.addAfter(0, QStringLiteral("F"), QString(), QString()), QuorinError);
    EXPECT_THROW(tree.setBold(6, true), QuorinError);
    EXPECT_EQ(tree.count(), 5);

    tree.clear();
    EXPECT_EQ(tree.count(), 0);
    EXPECT_TRUE(tree.topLevel().empty());
    EXPECT_EQ(tree.find(QStringLiteral("A")), 0);
    EXPECT_EQ(tree.addChild(0, QStringLiteral("A"), QString(), QString()), 1);
}

TEST(ObjectTreeHelper, EventTreeWithoutRuleListsHasItsFixedShapeAndNoCounts)
{
    ObjectTreeHelper helper;
    RuleTree tree;
    helper.PopulateCodingConventionsTree(tree, false);

    ASSERT_EQ(tree.count(), 38);
    // Node 1, where a view starts, is the root; its key reads back as 0.
    const RuleTreeNode &root = tree.node(1);
    EXPECT_EQ(root.key, QStringLiteral("ProjectKey"));
    EXPECT_EQ(Text::valLong(root.key), 0);
    EXPECT_EQ(root.text, QStringLiteral("Project"));
    EXPECT_EQ(root.image, QStringLiteral("Project"));
    EXPECT_TRUE(root.bold);
    expectShape(tree, eventTree, QStringLiteral("ProjectKey"), none);
    EXPECT_EQ(expandedKeys(tree), (std::vector<QString>{QStringLiteral("ProjectKey"), keyOf(1)}));
}

TEST(ObjectTreeHelper, ObjectTreeWithoutRuleListsHasItsFixedShapeAndNoCounts)
{
    ObjectTreeHelper helper;
    RuleTree tree;
    helper.PopulateNamingConventionsTree(tree);

    ASSERT_EQ(tree.count(), 42);
    const RuleTreeNode &root = tree.node(1);
    EXPECT_EQ(root.key, QStringLiteral("-1Key"));
    EXPECT_EQ(Text::valLong(root.key), -1);
    EXPECT_EQ(root.text, QStringLiteral("Objects"));
    EXPECT_EQ(root.image, QStringLiteral("Project"));
    EXPECT_TRUE(root.bold);
    expectShape(tree, objectTree, QStringLiteral("-1Key"), none);
    EXPECT_EQ(expandedKeys(tree), std::vector<QString>{QStringLiteral("-1Key")});

    // Objects no naming convention can be bound to have no node.
    for (const qint32 id : {2, 3, 4, 8, 14, 16, 21, 23})
        EXPECT_EQ(tree.find(keyOf(id)), 0) << id;
}

TEST(ObjectTreeHelper, EmptyRulebaseShowsPlainRootsAndEventTreeCanDropItsRoot)
{
    Rulebase empty;
    ObjectTreeHelper helper;
    helper.setRuleLists(empty.RuleLists());

    RuleTree events;
    helper.PopulateCodingConventionsTree(events, false);
    EXPECT_EQ(events.node(1).text, QStringLiteral("Project"));
    expectShape(events, eventTree, QStringLiteral("ProjectKey"), none);

    helper.PopulateCodingConventionsTree(events, true);
    ASSERT_EQ(events.count(), 37);
    EXPECT_EQ(events.topLevel(), (std::vector<int>{1, events.find(keyOf(37))}));
    EXPECT_EQ(events.node(1).key, keyOf(1));
    EXPECT_EQ(expandedKeys(events), std::vector<QString>{keyOf(1)});
    expectShape(events, eventTree, QString(), none);

    RuleTree objects;
    helper.PopulateNamingConventionsTree(objects);
    EXPECT_EQ(objects.node(1).text, QStringLiteral("Objects"));
    expectShape(objects, objectTree, QStringLiteral("-1Key"), none);
}

TEST(ObjectTreeHelper, EventNodesCountTheirListsAndTheRootCountsTickedConventions)
{
    auto lists = std::make_shared<RuleLists>();
    coding(*lists, {3, 7, 25});
    coding(*lists, {7}, false);
    coding(*lists, {});
    coding(*lists, {31, 32, 33});
    auto keyword = std::make_shared<UnauthorisedKeyword>();
    keyword->AddParserEventID(5);
    lists->AddConvention(keyword, true);
    // Ticks the first and the eventless convention.
    lists->CodingConventions()->setSelected(1, true);
    lists->CodingConventions()->setSelected(3, true);

    ObjectTreeHelper helper;
    helper.setRuleLists(lists);
    RuleTree tree;
    helper.PopulateCodingConventionsTree(tree, false);

    EXPECT_EQ(tree.node(1).text, QStringLiteral("Project (2)"));
    // Inactive rules count; keywords don't; "Line Label" and "Variable (local)" never show theirs.
    const QMap<qint32, qint32> counts = {{3, 1}, {7, 2}, {25, 1}, {31, 1}};
    expectShape(
        tree, eventTree, QStringLiteral("ProjectKey"), [&](qint32 id) { return counts.value(id); });

    helper.PopulateCodingConventionsTree(tree, true);
    EXPECT_EQ(tree.count(), 37);
    expectShape(tree, eventTree, QString(), [&](qint32 id) { return counts.value(id); });
}

TEST(ObjectTreeHelper, ObjectNodesCountTheirOwnTypeNotTheBaseTheyShare)
{
    auto lists = std::make_shared<RuleLists>();
    naming(*lists, 12);
    naming(*lists, 36);
    naming(*lists, 47);
    naming(*lists, 47, false);
    naming(*lists, 43);
    naming(*lists, 29);
    naming(*lists, 23); // no node for Source
    lists->NamingConventions()->setSelected(7, true);

    ObjectTreeHelper helper;
    helper.setRuleLists(lists);
    RuleTree tree;
    helper.PopulateNamingConventionsTree(tree);

    EXPECT_EQ(tree.count(), 42);
    EXPECT_EQ(tree.node(1).text, QStringLiteral("Objects (1)"));
    const QMap<qint32, qint32> counts = {{12, 1}, {36, 1}, {47, 2}, {43, 1}, {29, 1}};
    expectShape(
        tree, objectTree, QStringLiteral("-1Key"), [&](qint32 id) { return counts.value(id); });
}

TEST(ObjectTreeHelper, SampleRulebaseNodesCountEveryConventionBoundToThem)
{
    const auto sample = RulebaseManager().LoadRulebase(TestEnvironment::sampleRulebase());
    ASSERT_TRUE(sample);
    const auto lists = sample->RuleLists();
    const auto coding = lists->CodingConventions();
    const auto namingRules = lists->NamingConventions();

    QMap<qint32, qint32> perEvent;
    for (qint32 i = 1; i <= coding->Count(); ++i) {
        const auto rule = coding->Item(i);
        for (qint32 e = 0; e < rule->EventCount(); ++e)
            ++perEvent[rule->ParserEventID(e)];
    }
    QMap<qint32, qint32> perObject;
    for (qint32 i = 1; i <= namingRules->Count(); ++i)
        ++perObject[namingRules->Item(i)->ObjectType()];
    ASSERT_GE(perEvent.size(), 5);
    ASSERT_GE(perObject.size(), 5);

    ObjectTreeHelper helper;
    helper.setRuleLists(lists);
    RuleTree events;
    helper.PopulateCodingConventionsTree(events, false);
    // Nothing is ticked after a load.
    EXPECT_EQ(events.node(1).text, QStringLiteral("Project"));
    expectShape(events, eventTree, QStringLiteral("ProjectKey"), [&](qint32 id) {
        return id == 32 || id == 33 ? 0 : perEvent.value(id);
    });

    RuleTree objects;
    helper.PopulateNamingConventionsTree(objects);
    EXPECT_EQ(objects.node(1).text, QStringLiteral("Objects"));
    expectShape(objects, objectTree, QStringLiteral("-1Key"), [&](qint32 id) {
        return perObject.value(id);
    });

    for (qint32 i = 1; i <= coding->Count(); ++i)
        coding->setSelected(i, true);
    helper.PopulateCodingConventionsTree(events, false);
    EXPECT_EQ(events.node(1).text, QStringLiteral("Project (%1)").arg(coding->Count()));
}

TEST(ObjectTreeHelper, PopulatingAgainReplacesTheNodesAndTheirState)
{
    auto lists = std::make_shared<RuleLists>();
    ObjectTreeHelper helper;
    helper.setRuleLists(lists);
    RuleTree tree;
    helper.PopulateCodingConventionsTree(tree, false);
    tree.setExpanded(tree.find(keyOf(4)), true);

    coding(*lists, {4});
    helper.PopulateCodingConventionsTree(tree, false);
    EXPECT_EQ(tree.count(), 38);
    EXPECT_EQ(expandedKeys(tree), (std::vector<QString>{QStringLiteral("ProjectKey"), keyOf(1)}));
    EXPECT_EQ(tree.node(tree.find(keyOf(4))).text, QStringLiteral("Source Line (1)"));

    helper.PopulateNamingConventionsTree(tree);
    EXPECT_EQ(tree.count(), 42);
    EXPECT_EQ(tree.find(QStringLiteral("ProjectKey")), 0);
}

TEST(ObjectTreeHelper, AFailingControlIsLoggedAndKeepsTheNodesAddedSoFar)
{
    LogCapture log;
    ObjectTreeHelper helper;

    FailingTree events(10);
    helper.PopulateCodingConventionsTree(events, false);
    EXPECT_EQ(events.inner.count(), 9);
    ASSERT_EQ(log.records().size(), 1);
    EXPECT_EQ(log.lastRecordFields().value(0), QStringLiteral("Error"));
    EXPECT_EQ(log.lastRecordFields().value(2),
              QStringLiteral("ObjectTreeHelper::PopulateCodingConventionsTree"));

    // "Line Label" is the first node added after a sibling.
    FailingTree sibling(33);
    helper.PopulateCodingConventionsTree(sibling, false);
    EXPECT_EQ(sibling.inner.count(), 32);
    EXPECT_EQ(sibling.inner.find(keyOf(32)), 0);

    FailingTree objects(1);
    helper.PopulateNamingConventionsTree(objects);
    EXPECT_EQ(objects.inner.count(), 0);
    EXPECT_EQ(log.records().size(), 3);
    EXPECT_EQ(log.lastRecordFields().value(2),
              QStringLiteral("ObjectTreeHelper::PopulateNamingConventionsTree"));
}
