#include "rulebase/RuleLists.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/CommonRuleFields.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<CodingConvention> coding(std::initializer_list<qint32> events,
                                         const QString &title = QString())
{
    auto rule = std::make_shared<CodingConvention>();
    rule->setTitle(title);
    for (const qint32 id : events)
        rule->AddParserEventID(id);
    return rule;
}

std::shared_ptr<NamingConvention> naming(qint32 objectType)
{
    auto rule = std::make_shared<NamingConvention>();
    rule->setObjectType(objectType);
    return rule;
}

template<typename List>
std::vector<qint32> idsOf(const List &list)
{
    std::vector<qint32> ids;
    if (list) {
        for (qint32 i = 1; i <= list->Count(); ++i)
            ids.push_back(list->Item(i)->RuleID());
    }
    return ids;
}

} // namespace

TEST(RuleLists, NumbersNewRulesFrom5000AndNeverReusesAnId)
{
    RuleLists lists;
    const auto first = coding({1});
    lists.AddConvention(first, true);
    EXPECT_EQ(first->RuleID(), 5000);
    EXPECT_EQ(lists.AllConventions()->Key(1), u"5000Key"_s);

    for (int i = 0; i < 5; ++i)
        lists.AddConvention(coding({1}), true);
    EXPECT_EQ(lists.LastID(), 5005);
    lists.RemoveRule(u"5005Key"_s);
    const auto next = coding({1});
    lists.AddConvention(next, true);
    EXPECT_EQ(next->RuleID(), 5006);

    // Loading keeps the stored id and allocates nothing.
    const auto loaded = coding({2});
    loaded->setRuleID(42);
    lists.AddConvention(loaded, false);
    EXPECT_EQ(lists.LastID(), 5006);
    EXPECT_EQ(lists.AllConventions()->Item(u"42key"_s), loaded);

    // A key in use is reported, and the rule lands in no list at all.
    const auto clash = coding({3});
    clash->setRuleID(42);
    lists.AddConvention(clash, false);
    EXPECT_EQ(lists.AllConventions()->IndexOfValue(clash), -1);
    EXPECT_EQ(lists.CodingConventions()->IndexOfValue(clash), -1);
    EXPECT_EQ(lists.ParserEventCCList(3, false), nullptr);
}

TEST(RuleLists, IndexesEveryRuleByTypeEventAndObjectAndACloneApart)
{
    RuleLists lists;
    const auto onThree = coding({12, 15, 3});
    onThree->setPendingViolation(true);
    onThree->setEndEventID(20);
    const auto keyword = std::make_shared<UnauthorisedKeyword>();
    keyword->AddParserEventID(12);
    const auto name = naming(7);
    lists.AddConvention(onThree, true);
    lists.AddConvention(keyword, true);
    lists.AddConvention(name, true);

    EXPECT_EQ(lists.AllConventions()->Count(), 3);
    EXPECT_EQ(lists.CodingConventions()->Count(), 1);
    for (const qint32 event : {12, 15, 3})
        EXPECT_EQ(idsOf(lists.ParserEventCCList(event, false)), std::vector<qint32>{5000});
    EXPECT_EQ(idsOf(lists.ParserEventUKList(12, false)), std::vector<qint32>{5001});
    EXPECT_EQ(lists.ParserEventUKList(15, false), nullptr);
    EXPECT_EQ(idsOf(lists.ObjectNCList(7, false)), std::vector<qint32>{5002});
    EXPECT_EQ(idsOf(lists.PendingViolations(20)), std::vector<qint32>{5000});
    EXPECT_EQ(lists.GetNCObjectRuleCount(-1), 1);
    EXPECT_EQ(lists.GetNCObjectRuleCount(7), 1);
    EXPECT_EQ(lists.GetNCObjectRuleCount(8), 0);

    // Looking up without creating creates nothing; creating once makes the list stay.
    EXPECT_EQ(lists.ParserEventCCList(99, false), nullptr);
    const auto made = lists.ParserEventCCList(99, true);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->Count(), 0);
    EXPECT_EQ(lists.ParserEventCCList(99, false), made);

    // Removing takes the rule out of every index but the pending list.
    lists.RemoveRule(onThree->RuleKey());
    lists.RemoveRule(name->RuleKey());
    EXPECT_EQ(lists.AllConventions()->Count(), 1);
    EXPECT_FALSE(lists.CodingConventions()->Contains(u"5000Key"_s));
    for (const qint32 event : {12, 15, 3})
        EXPECT_TRUE(idsOf(lists.ParserEventCCList(event, false)).empty());
    EXPECT_TRUE(idsOf(lists.ObjectNCList(7, false)).empty());
    EXPECT_EQ(idsOf(lists.PendingViolations(20)), std::vector<qint32>{5000});
    EXPECT_EQ(idsOf(lists.ParserEventUKList(12, false)), std::vector<qint32>{5001});

    lists.RemoveRuleFromPendingList(onThree, 20);
    EXPECT_TRUE(idsOf(lists.PendingViolations(20)).empty());
    lists.RemoveRule(u"777Key"_s); // unknown: reported, nothing changes
    EXPECT_EQ(lists.AllConventions()->Count(), 1);

    // A clone is indexed apart from its source.
    const auto source = coding({6, 9});
    lists.AddConvention(source, true);
    const auto clone = source->Clone();
    lists.AddConvention(clone, true);
    EXPECT_EQ(idsOf(lists.ParserEventCCList(9, false)), (std::vector<qint32>{5003, 5004}));
    lists.RemoveRule(source->RuleKey());
    EXPECT_EQ(idsOf(lists.ParserEventCCList(6, false)), std::vector<qint32>{5004});
    EXPECT_EQ(lists.AllConventions()->FindIndexByKey(u"5004Key"_s), 2);
    EXPECT_EQ(lists.CodingConventions()->Item(1), clone);
}

TEST(RuleLists, MovesBetweenEventAndObjectListsWithoutDuplicates)
{
    RuleLists lists;
    const auto a = coding({1, 2});
    const auto b = coding({1});
    lists.AddConvention(a, true);
    lists.AddConvention(b, true);

    lists.MoveCodingConvention(5000, 1, 2); // already on event 2: nothing appended
    EXPECT_EQ(idsOf(lists.ParserEventCCList(1, false)), std::vector<qint32>{5001});
    EXPECT_EQ(idsOf(lists.ParserEventCCList(2, false)), std::vector<qint32>{5000});

    lists.MoveCodingConvention(5001, 1, 30);
    EXPECT_TRUE(idsOf(lists.ParserEventCCList(1, false)).empty());
    EXPECT_EQ(idsOf(lists.ParserEventCCList(30, false)), std::vector<qint32>{5001});

    // With no match the rule last looked at comes back, and nothing is removed.
    EXPECT_EQ(lists.RemoveRuleFromPECCList(4242, 30), b);
    EXPECT_EQ(lists.ParserEventCCList(30, false)->Count(), 1);
    EXPECT_EQ(lists.RemoveRuleFromPECCList(5000, 1), nullptr);  // empty list
    EXPECT_EQ(lists.RemoveRuleFromPECCList(5000, 77), nullptr); // no list: reported

    const auto name = naming(4);
    lists.AddConvention(name, true);
    lists.MoveNamingConvention(name->RuleID(), 4, 5);
    EXPECT_EQ(lists.GetNCObjectRuleCount(4), 0);
    EXPECT_EQ(idsOf(lists.ObjectNCList(5, false)), std::vector<qint32>{name->RuleID()});

    // The "all lists" removals take the rule from its type list, its events and the whole.
    lists.RemoveRuleFromAllPECCLists(5000, a->ParserEventList());
    EXPECT_FALSE(lists.AllConventions()->Contains(u"5000Key"_s));
    EXPECT_FALSE(lists.CodingConventions()->Contains(u"5000Key"_s));
    EXPECT_TRUE(idsOf(lists.ParserEventCCList(2, false)).empty());
}

TEST(RuleLists, DirtyComesFromTheOwnFlagOrAnyRule)
{
    RuleLists lists;
    const auto rule = coding({1});
    lists.AddConvention(rule, true);
    EXPECT_TRUE(lists.Dirty());
    lists.setDirty(false);
    EXPECT_FALSE(rule->Dirty());
    EXPECT_FALSE(lists.Dirty());

    rule->ViolationDefinition()->setImpact(5);
    EXPECT_TRUE(lists.Dirty());
    lists.setDirty(false);

    lists.AddRuleToPendingList(rule, 3); // pending lists are no change of the rulebase
    EXPECT_FALSE(lists.Dirty());
    lists.setLastID(lists.LastID());
    EXPECT_TRUE(lists.Dirty());
}

TEST(RuleLists, ConventionsByCategoryAreSortedByTitleLaterEqualsFirst)
{
    RuleLists lists;
    const auto b = coding({1}, u"b"_s);
    const auto upperA = coding({1}, u"A"_s);
    const auto other = coding({1}, u"0 other category"_s);
    const std::shared_ptr<CommonRuleFields> lowerA = std::make_shared<NamingConvention>();
    lowerA->setTitle(u"a"_s);
    for (const auto &rule :
         std::initializer_list<std::shared_ptr<CommonRuleFields>>{b, upperA, other, lowerA}) {
        rule->setCategoryID(rule == other ? 3 : 2);
        lists.AddConvention(rule, true);
    }

    const auto byCategory = lists.ConventionsListByCatID(2);
    ASSERT_TRUE(byCategory);
    std::vector<std::shared_ptr<IRule>> order;
    for (qint32 i = 1; i <= byCategory->Count(); ++i)
        order.push_back(byCategory->Item(i));
    EXPECT_EQ(order, (std::vector<std::shared_ptr<IRule>>{lowerA, upperA, b}));

    const auto none = lists.ConventionsListByCatID(99);
    ASSERT_TRUE(none);
    EXPECT_EQ(none->Count(), 0);
}
