#include "LogCapture.h"

#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "vocabulary/ObjectCatalogue.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ObjectTreeHelper.h"
#include "vocabulary/ParserEventCatalogue.h"
#include "vocabulary/RuleTree.h"
#include "vocabulary/VBParserEvents.h"

#include <QMap>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Walked
{
    int node;
    int depth;
};

// Every node in the order shown, with its depth below the top level.
std::vector<Walked> walk(const RuleTree &tree)
{
    std::vector<Walked> out;
    const auto visit = [&](const auto &self, const std::vector<int> &nodes, int depth) -> void {
        for (const int index : nodes) {
            out.push_back({index, depth});
            self(self, tree.node(index).children, depth + 1);
        }
    };
    visit(visit, tree.topLevel(), 0);
    return out;
}

QString counted(const QString &text, qint32 count)
{
    return count > 0 ? u"%1 (%2)"_s.arg(text).arg(count) : text;
}

using Counts = QMap<qint32, qint32>;

// The event tree below its root (if any) is the catalogue in firing order at the catalogue's
// depths, each node with the event's text, count and picture, bold when counted.
void expectEventTree(const RuleTree &tree, bool withRoot, const Counts &counts)
{
    std::vector<const ParserEventCatalogue::EventRow *> events;
    for (const auto &event : ParserEventCatalogue::events())
        events.push_back(&event);
    std::sort(events.begin(), events.end(), [](auto *a, auto *b) { return a->place < b->place; });
    std::vector<Walked> order = walk(tree);
    if (withRoot) {
        ASSERT_FALSE(order.empty());
        EXPECT_EQ(tree.node(order.front().node).key, u"ProjectKey"_s);
        order.erase(order.begin());
    }
    ASSERT_EQ(order.size(), events.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        const qint32 id = events[i]->id;
        const RuleTreeNode &node = tree.node(order[i].node);
        EXPECT_EQ(node.key, VBParserEvents::ParserEventKey(id)) << i;
        EXPECT_EQ(order[i].depth - (withRoot ? 1 : 0), events[i]->indent) << id;
        EXPECT_EQ(node.text, counted(VBParserEvents::ParserEventText(id), counts.value(id))) << id;
        EXPECT_EQ(node.image, VBParserEvents::ParserEventIcon(id)) << id;
        EXPECT_EQ(node.bold, counts.value(id) > 0) << id;
    }
}

// The object tree holds every object that has a text once, below the object whose name its
// own starts with, the top level in alphabetical order.
void expectObjectTree(const RuleTree &tree, const Counts &counts)
{
    ASSERT_EQ(tree.topLevel().size(), 1u);
    const RuleTreeNode &root = tree.node(tree.topLevel().front());
    EXPECT_EQ(root.key, u"-1Key"_s);
    EXPECT_EQ(Text::valLong(root.key), -1);
    EXPECT_EQ(root.image, u"Project"_s);
    std::vector<Walked> order = walk(tree);
    order.erase(order.begin());
    QList<qint32> expectedIds;
    for (const auto &object : ObjectCatalogue::objects()) {
        if (!object.text.isNull())
            expectedIds << object.id;
    }
    QList<qint32> ids;
    QString topName, previousTop;
    for (const Walked &w : order) {
        const RuleTreeNode &node = tree.node(w.node);
        const qint32 id = Text::valLong(node.key);
        ids << id;
        EXPECT_EQ(node.key, ObjectHelper::ObjectKey(id));
        EXPECT_EQ(node.text, counted(ObjectHelper::ObjectText(id), counts.value(id))) << id;
        EXPECT_EQ(node.image, ObjectHelper::ObjectTreeIcon(id)) << id;
        EXPECT_EQ(node.bold, counts.value(id) > 0) << id;
        if (w.depth == 1) {
            EXPECT_LT(previousTop, node.text) << id;
            previousTop = node.text;
            topName = ObjectHelper::ObjectName(id);
        }
        EXPECT_TRUE(ObjectHelper::ObjectName(id).startsWith(topName)) << id;
    }
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(ids, expectedIds);
}

void coding(RuleLists &lists, std::initializer_list<qint32> events, bool active = true)
{
    auto rule = std::make_shared<CodingConvention>();
    for (const qint32 id : events)
        rule->AddParserEventID(id);
    rule->setRuleActive(active);
    lists.AddConvention(rule, true);
}

void naming(RuleLists &lists, qint32 objectType, bool active = true)
{
    auto rule = std::make_shared<NamingConvention>();
    rule->setObjectType(objectType);
    rule->setRuleActive(active);
    lists.AddConvention(rule, true);
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
    EXPECT_EQ(tree.addChild(0, u"A"_s, u"a"_s, u"i"_s), 1);
    tree.addChild(1, u"B"_s, QString(), QString());
    tree.addChild(1, u"C"_s, QString(), QString());
    EXPECT_EQ(tree.addAfter(2, u"D"_s, QString(), QString()), 4);
    EXPECT_EQ(tree.node(1).children, (std::vector<int>{2, 4, 3}));
    EXPECT_EQ(tree.node(4).parent, 1);
    EXPECT_EQ(tree.addAfter(1, u"E"_s, QString(), QString()), 5);
    EXPECT_EQ(tree.topLevel(), (std::vector<int>{1, 5}));
    EXPECT_EQ(tree.find(u"d"_s), 4);
    EXPECT_EQ(tree.find(u"X"_s), 0);
    try {
        tree.addChild(0, u"b"_s, QString(), QString());
        FAIL() << "a key in use was accepted";
    } catch (const QuorinError &error) {
        EXPECT_EQ(error.number(), ErrorNumber::DuplicateKey);
    }
    EXPECT_THROW(tree.addChild(9, u"F"_s, QString(), QString()), QuorinError);
    EXPECT_THROW(tree.addAfter(0, u"F"_s, QString(), QString()), QuorinError);
    EXPECT_THROW(tree.setBold(6, true), QuorinError);
    EXPECT_EQ(tree.count(), 5);
    tree.clear();
    EXPECT_EQ(tree.count(), 0);
    EXPECT_TRUE(tree.topLevel().empty());
    EXPECT_EQ(tree.find(u"A"_s), 0);
    EXPECT_EQ(tree.addChild(0, u"A"_s, QString(), QString()), 1);
}

TEST(ObjectTreeHelper, TreesWithoutRulesFollowTheCataloguesWithPlainRoots)
{
    for (const bool withLists : {false, true}) {
        Rulebase empty;
        ObjectTreeHelper helper;
        if (withLists)
            helper.setRuleLists(empty.RuleLists());
        RuleTree tree;
        helper.PopulateCodingConventionsTree(tree, false);
        const RuleTreeNode &root = tree.node(1); // where a view starts; its key reads back as 0
        EXPECT_EQ(Text::valLong(root.key), 0);
        EXPECT_EQ(root.text, u"Project"_s);
        EXPECT_EQ(root.image, u"Project"_s);
        EXPECT_TRUE(root.bold);
        expectEventTree(tree, true, {});
        std::vector<QString> expanded;
        for (int i = 1; i <= tree.count(); ++i) {
            if (tree.node(i).expanded)
                expanded.push_back(tree.node(i).key);
        }
        EXPECT_EQ(expanded, (std::vector<QString>{u"ProjectKey"_s, u"1Key"_s}));

        helper.PopulateCodingConventionsTree(tree, true); // the views of one event drop the root
        EXPECT_EQ(tree.node(1).key, u"1Key"_s);
        EXPECT_TRUE(tree.node(1).expanded);
        expectEventTree(tree, false, {});

        helper.PopulateNamingConventionsTree(tree);
        EXPECT_EQ(tree.find(u"ProjectKey"_s), 0);
        EXPECT_EQ(tree.node(1).text, u"Objects"_s);
        EXPECT_TRUE(tree.node(1).bold && tree.node(1).expanded);
        expectObjectTree(tree, {});
    }
}

TEST(ObjectTreeHelper, NodesCountTheirRulesAndRootsCountTickedConventions)
{
    auto lists = std::make_shared<RuleLists>();
    coding(*lists, {3, 7, 25});
    coding(*lists, {7}, false);
    coding(*lists, {});
    coding(*lists, {31, 32, 33});
    auto keyword = std::make_shared<UnauthorisedKeyword>();
    keyword->AddParserEventID(5);
    lists->AddConvention(keyword, true);
    lists->CodingConventions()->setSelected(1, true);
    lists->CodingConventions()->setSelected(3, true);
    for (const qint32 object : {12, 36, 47, 43, 29, 23}) // no node for Source (23)
        naming(*lists, object);
    naming(*lists, 47, false);
    lists->NamingConventions()->setSelected(7, true);

    ObjectTreeHelper helper;
    helper.setRuleLists(lists);
    RuleTree tree;
    helper.PopulateCodingConventionsTree(tree, false);
    EXPECT_EQ(tree.node(1).text, u"Project (2)"_s);
    // Inactive rules count; keywords don't; "Line Label" and "Variable (local)" never show theirs.
    const Counts events = {{3, 1}, {7, 2}, {25, 1}, {31, 1}};
    expectEventTree(tree, true, events);
    helper.PopulateCodingConventionsTree(tree, true);
    expectEventTree(tree, false, events);

    helper.PopulateNamingConventionsTree(tree);
    EXPECT_EQ(tree.node(1).text, u"Objects (1)"_s);
    expectObjectTree(tree, {{12, 1}, {36, 1}, {47, 2}, {43, 1}, {29, 1}}); // own type, not base
}

TEST(ObjectTreeHelper, AFailingControlIsLoggedAndKeepsTheNodesAddedSoFar)
{
    LogCapture log;
    ObjectTreeHelper helper;
    FailingTree events(10);
    helper.PopulateCodingConventionsTree(events, false);
    EXPECT_EQ(events.inner.count(), 9);
    ASSERT_EQ(log.records().size(), 1);
    EXPECT_EQ(log.lastRecordFields().value(0), u"Error"_s);
    EXPECT_EQ(log.lastRecordFields().value(2),
              u"ObjectTreeHelper::PopulateCodingConventionsTree"_s);

    FailingTree sibling(33); // "Line Label" is the first node added after a sibling
    helper.PopulateCodingConventionsTree(sibling, false);
    EXPECT_EQ(sibling.inner.count(), 32);
    EXPECT_EQ(sibling.inner.find(u"32Key"_s), 0);

    FailingTree objects(1);
    helper.PopulateNamingConventionsTree(objects);
    EXPECT_EQ(objects.inner.count(), 0);
    EXPECT_EQ(log.records().size(), 3);
    EXPECT_EQ(log.lastRecordFields().value(2),
              u"ObjectTreeHelper::PopulateNamingConventionsTree"_s);
}
