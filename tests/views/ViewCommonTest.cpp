#include "ViewTestSupport.h"

#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"
#include "support/MemoryListControl.h"
#include "views/modViewCommon.h"

#include "controls/ComboControl.h"
#include "controls/modUIListUtils.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace modViewCommon;

namespace {

// Every coding convention of the sample, as rows.
struct SampleList
{
    SampleList()
        : rulebase(ViewTest::loadSample())
    {
        const auto all = rulebase->RuleLists()->CodingConventions();
        for (qint32 i = 1; i <= all->Count(); ++i)
            AddRuleToList(
                *all->Item(i), list, *rulebase->CategoryList(), *rulebase->SeverityList());
    }
    RuleByKey rules() const { return rulesOf(rulebase->RuleLists()->CodingConventions()); }

    std::shared_ptr<Rulebase> rulebase;
    MemoryListControl list;
};

class RecordingCombo final : public ComboControl
{
public:
    void clear() override { entries.clear(); }
    void addItem(const QString &text, qint32 itemData) override
    {
        entries << text + QLatin1Char('=') + QString::number(itemData);
    }
    QStringList entries{u"stale"_s};
};

} // namespace

TEST(MemoryControls, ListFindsByKeySortsByColumnTextAndKeepsTheCurrentRowThroughMoves)
{
    MemoryListControl list;
    for (const char *key : {"3Key", "1Key", "2Key"})
        list.add(QLatin1String(key), QLatin1String(key).left(1), 0);
    list.setSubItemText(1, 2, u"b"_s);
    list.setSubItemText(2, 2, u"C"_s);
    list.setSubItemText(3, 2, u"a"_s);
    EXPECT_EQ(list.subItemText(1, 1), QString()); // filled in between
    EXPECT_THROW(list.add(u"1KEY"_s, u"x"_s, 0), QuorinError);

    list.setSelectedItem(list.find(u"1key"_s));
    list.setSortKey(2);
    list.setSorted(true);
    EXPECT_EQ(list.key(1), u"2Key"_s); // "a" < "b" < "C", ignoring case
    EXPECT_EQ(list.key(3), u"1Key"_s);
    EXPECT_EQ(list.selectedItem(), 3);
    list.setSortOrder(1);
    EXPECT_EQ(list.key(1), u"1Key"_s);
    EXPECT_EQ(list.find(u"2Key"_s), 3);

    list.remove(u"3Key"_s);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.find(u"2Key"_s), 2);
    EXPECT_THROW(list.remove(u"3Key"_s), QuorinError);
    EXPECT_THROW(list.text(3), QuorinError);
}

// A row shows the padded id, title, category and impact; inactive rules are red but their impact.
TEST(ViewCommon, RowsShowTheRuleAndUpdateRewritesThemInPlace)
{
    SampleList sample;
    const auto rule = sample.rulebase->RuleLists()->CodingConventions()->Item(1);
    rule->setRuleID(12);
    rule->setPendingViolation(true);
    rule->ViolationDefinition()->setCategoryID(9999);
    MemoryListControl list;
    AddRuleToList(*rule, list, *sample.rulebase->CategoryList(), *sample.rulebase->SeverityList());
    EXPECT_EQ(list.key(1), u"12Key"_s);
    EXPECT_EQ(list.text(1), u"0012p"_s);
    EXPECT_EQ(list.subItemText(1, 1), rule->Title());
    EXPECT_EQ(list.subItemText(1, 2), QString());
    EXPECT_EQ(list.subItemText(1, 3), QString::number(rule->ViolationDefinition()->Impact()));

    rule->setPendingViolation(false);
    rule->setRuleActive(false);
    rule->ViolationDefinition()->setImpact(321);
    UpdateRuleInList(
        *rule, 1, list, *sample.rulebase->CategoryList(), *sample.rulebase->SeverityList());
    EXPECT_EQ(list.text(1), u"0012"_s);
    EXPECT_EQ(list.key(1), u"12Key"_s);
    EXPECT_EQ(list.subItemText(1, 3), u"321"_s);
    EXPECT_EQ(list.foreColor(1), 255);
    EXPECT_EQ(list.subItemForeColor(1, 2), 255);
    EXPECT_EQ(list.subItemForeColor(1, 3), list.foreColor());

    // A rule of an unknown severity gets no row, and the failure stays inside.
    rule->ViolationDefinition()->setSeverity(77);
    AddRuleToList(*rule, list, *sample.rulebase->CategoryList(), *sample.rulebase->SeverityList());
    EXPECT_EQ(list.count(), 1);
}

TEST(ViewCommon, ActiveStateFollowsTheSelectedRowsAndActivateTouchesOnlyThem)
{
    SampleList sample;
    MemoryListControl &list = sample.list;
    EXPECT_EQ(GetItemsActiveState(sample.rules(), list), 1); // nothing selected
    ActivateRules(false, sample.rules(), list);              // changes nothing
    const auto rules = sample.rules();
    int active = 0, inactive = 0;
    for (int row = 1; row <= list.count() && (active == 0 || inactive == 0); ++row) {
        const bool isActive = rules(list.key(row))->RuleActive();
        if ((isActive && active == 0) || (!isActive && inactive == 0)) {
            list.setSelected(row, true);
            ++(isActive ? active : inactive);
        }
    }
    ASSERT_EQ(active + inactive, 2);
    EXPECT_EQ(GetItemsActiveState(rules, list), 3);
    ActivateRules(true, rules, list);
    ActivateRules(true, rules, list);
    EXPECT_EQ(GetItemsActiveState(rules, list), 1);
    ActivateRules(false, rules, list);
    EXPECT_EQ(GetItemsActiveState(rules, list), 2);
    for (int row = 1; row <= list.count(); ++row) {
        const bool isActive = rules(list.key(row))->RuleActive();
        EXPECT_EQ(list.foreColor(row) == 255, !isActive);
    }
}

TEST(ViewCommon, CloneAndDeleteWorkFromTheSelectedKeys)
{
    SampleList sample;
    RuleLists &lists = *sample.rulebase->RuleLists();
    const int before = sample.list.count();
    sample.list.setSelected(1, true);
    sample.list.setSelected(2, true);
    const QStringList keys = SelectedItemKeys(sample.list);
    ASSERT_EQ(keys.size(), 2);
    const qint32 lastID = lists.LastID();

    CloneRules(
        lists, sample.list, *sample.rulebase->CategoryList(), *sample.rulebase->SeverityList());
    EXPECT_EQ(sample.list.count(), before + 2);
    for (qint32 id : {lastID + 1, lastID + 2}) {
        const QString key = QString::number(id) + u"Key"_s;
        EXPECT_NE(sample.list.find(key), 0);
        ASSERT_TRUE(lists.CodingConventions()->Contains(key));
        const auto clone = lists.CodingConventions()->Item(key);
        EXPECT_TRUE(clone->Title().startsWith(u"Clone of "_s));
        for (qint32 e = 0; e < clone->EventCount(); ++e)
            EXPECT_TRUE(
                lists.ParserEventCCList(clone->ParserEventID(e), false)->ContainsValue(clone));
    }

    const auto doomed = lists.CodingConventions()->Item(keys.first());
    DeleteRules(lists, sample.list);
    EXPECT_EQ(sample.list.count(), before);
    for (const QString &key : keys) {
        EXPECT_EQ(sample.list.find(key), 0);
        EXPECT_FALSE(lists.AllConventions()->Contains(key));
    }
    for (qint32 e = 0; e < doomed->EventCount(); ++e) {
        const auto list = lists.ParserEventCCList(doomed->ParserEventID(e), false);
        EXPECT_TRUE(!list || !list->ContainsValue(doomed));
    }
}

TEST(ViewCommon, CategoryAndSeverityChangesReachTheRows)
{
    SampleList sample;
    CategoryList &categories = *sample.rulebase->CategoryList();
    ASSERT_GT(categories.Count(), 0);
    const auto gone = categories.Item(1);
    const auto renamed = categories.Item(categories.Count());
    ASSERT_NE(gone, renamed);
    renamed->setTitle(u"Renamed"_s);
    categories.Remove(gone->Key());

    UpdateCategories(sample.rules(), sample.list, 3, categories);
    const auto rules = sample.rules();
    int fellBack = 0;
    for (int row = 1; row <= sample.list.count(); ++row) {
        const auto definition = rules(sample.list.key(row))->ViolationDefinition();
        EXPECT_NE(definition->CategoryID(), gone->ID());
        if (definition->CategoryID() == renamed->ID()) {
            EXPECT_EQ(sample.list.subItemText(row, 2), u"Renamed"_s);
        }
        if (definition->CategoryID() == -1) {
            EXPECT_EQ(sample.list.subItemText(row, 2), QString());
            ++fellBack;
        }
    }
    EXPECT_GT(fellBack, 0);

    const auto severity = sample.rulebase->SeverityList()->Item(1);
    severity->setColour(16);
    UpdateSeverities(rules, sample.list, *sample.rulebase->SeverityList());
    for (int row = 1; row <= sample.list.count(); ++row) {
        if (rules(sample.list.key(row))->ViolationDefinition()->Severity()
            == severity->SeverityLevel()) {
            EXPECT_EQ(sample.list.smallIcon(row), 16);
        }
    }
}

TEST(UIListUtils, PickersGetTitlesWithIdsAndAMissingListLeavesThemEmpty)
{
    const auto rulebase = ViewTest::loadSample();
    RecordingCombo combo;
    modUIListUtils::PopulateCategoryListControl(combo, rulebase->CategoryList().get());
    ASSERT_EQ(combo.entries.size(), rulebase->CategoryList()->Count());
    const auto first = rulebase->CategoryList()->Item(1);
    EXPECT_EQ(combo.entries.first(), first->Title() + "=" + QString::number(first->ID()));

    modUIListUtils::PopulateSeverityListControl(combo, rulebase->SeverityList().get());
    ASSERT_EQ(combo.entries.size(), rulebase->SeverityList()->Count());
    const auto severity = rulebase->SeverityList()->Item(1);
    EXPECT_EQ(combo.entries.first(),
              severity->Title() + "=" + QString::number(severity->SeverityLevel()));

    modUIListUtils::PopulateCategoryListControl(combo, nullptr);
    EXPECT_TRUE(combo.entries.isEmpty());
    CategoryList empty;
    combo.entries << u"stale"_s;
    modUIListUtils::PopulateCategoryListControl(combo, &empty);
    EXPECT_TRUE(combo.entries.isEmpty());
}
