#include "editors/RulebaseDocCreatorForm.h"

#include "collections/IListItem.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/TableItem.h"
#include "rulebase/UnauthorisedKeyword.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString sixTables = u"1T 2T 3T 4T 5T 6T"_s;

std::shared_ptr<CategoryItem>
addCategory(Rulebase &rulebase, const QString &title, bool hidden = false)
{
    auto item = std::make_shared<CategoryItem>();
    item->setTitle(title);
    item->setHidden(hidden);
    rulebase.CategoryList()->Add(item, true);
    return item;
}

template<typename Rule = CodingConvention>
std::shared_ptr<Rule>
addRule(Rulebase &rulebase, const QString &title, qint32 categoryID, bool active = true)
{
    auto rule = std::make_shared<Rule>();
    rule->setTitle(title);
    rule->setCategoryID(categoryID);
    rule->setRuleActive(active);
    rulebase.RuleLists()->AddConvention(rule, true);
    return rule;
}

QString sectionKeys(const ObjectArrayList<IListItem> &sections)
{
    QStringList keys;
    for (qint32 i = 1; i <= sections.Count(); ++i)
        keys << sections.Item(i)->Key();
    return keys.join(u' ');
}

QString rowKeys(const std::vector<DocCreatorRow> &rows)
{
    QStringList keys;
    for (const DocCreatorRow &row : rows)
        keys << row.key;
    return keys.join(u' ');
}

QString ruleIDs(const CategoryItem &section)
{
    QStringList ids;
    const auto rules = section.CategoryRules();
    for (qint32 i = 1; i <= rules->Count(); ++i)
        ids << QString::number(rules->Item(i)->RuleID());
    return ids.join(u' ');
}

std::shared_ptr<CategoryItem> sectionOf(const Rulebase &rulebase, qint32 categoryID)
{
    const auto sections = rulebase.Report()->Sections();
    for (qint32 i = 1; i <= sections->Count(); ++i) {
        const auto category = std::dynamic_pointer_cast<CategoryItem>(sections->Item(i));
        if (category && category->ID() == categoryID)
            return category;
    }
    return nullptr;
}

// Three visible categories (one of them with inactive rules only), a hidden one, and a rule
// of no category: rules 5000 to 5007.
class DocCreatorForm : public ::testing::Test
{
protected:
    DocCreatorForm()
    {
        errors = addCategory(*rulebase, u"Errors"_s);                              // 1K
        naming = addCategory(*rulebase, u"Naming"_s);                              // 2K
        dormant = addCategory(*rulebase, u"Dormant"_s);                            // 3K
        secret = addCategory(*rulebase, u"Secret"_s, true);                        // 4K
        addRule(*rulebase, u"Zeta handler"_s, errors->ID());                       // 5000
        addRule<NamingConvention>(*rulebase, u"Form names"_s, naming->ID());       // 5001
        addRule<UnauthorisedKeyword>(*rulebase, u"Alpha keyword"_s, errors->ID()); // 5002
        addRule(*rulebase, u"Sleeping"_s, dormant->ID(), false);                   // 5003
        addRule(*rulebase, u"Hidden rule"_s, secret->ID());                        // 5004
        addRule(*rulebase, u"Loose rule"_s, -1);                                   // 5005
        addRule(*rulebase, u"Inactive error"_s, errors->ID(), false);              // 5006
        addRule(*rulebase, u"Beta logging"_s, errors->ID());                       // 5007
    }

    // A plan saved once, so the next dialog edits a stored one.
    void storePlan()
    {
        RulebaseDocCreatorForm first;
        first.setRulebase(rulebase);
        first.OK();
    }

    ScriptedUserInterface ui;
    std::shared_ptr<Rulebase> rulebase = std::make_shared<Rulebase>();
    std::shared_ptr<CategoryItem> errors, naming, dormant, secret;
};

} // namespace

TEST_F(DocCreatorForm, ANewPlanHoldsVisibleCategoriesWithActiveRulesThenTheSixTables)
{
    RulebaseDocCreatorForm form;
    form.setRulebase(rulebase);
    const auto &sections = *rulebase->Report()->Sections();
    EXPECT_EQ(form.Sections().get(), &sections);
    EXPECT_EQ(sectionKeys(sections), u"1K 2K "_s + sixTables);
    // The order of all the rules, not of titles; inactive rules stand nowhere.
    EXPECT_EQ(ruleIDs(*sectionOf(*rulebase, 1)), u"5000 5002 5007"_s);
    EXPECT_EQ(ruleIDs(*sectionOf(*rulebase, 2)), u"5001"_s);
    // The page is a copy: the plan's own order never reorders the category list.
    EXPECT_NE(sectionOf(*rulebase, 1), errors);
    EXPECT_FALSE(form.Generated());

    // Without categories the plan is the six tables alone.
    RulebaseDocCreatorForm bare;
    const auto empty = std::make_shared<Rulebase>();
    bare.setRulebase(empty);
    EXPECT_EQ(sectionKeys(*empty->Report()->Sections()), sixTables);
}

TEST_F(DocCreatorForm, AStoredPlanFollowsTheRulebaseAcrossRuns)
{
    {
        RulebaseDocCreatorForm first;
        first.setRulebase(rulebase);
        first.Load();
        // Naming above Errors, Zeta handler to the bottom of Errors, and the scope table out;
        // rows and selection follow each move, and a move past an end does nothing.
        first.clickSection(0);
        EXPECT_EQ(first.selectedRule(), 0); // a category opens on its first rule
        EXPECT_FALSE(first.moveSectionUpEnabled());
        first.moveSectionUp();
        first.moveSectionDown();
        EXPECT_EQ(sectionKeys(*first.Sections()).left(8), u"2K 1K 1T"_s);
        EXPECT_EQ(rowKeys(first.sectionRows()), sectionKeys(*first.Sections()));
        EXPECT_EQ(first.selectedSection(), 1);
        first.clickRule(0);
        EXPECT_FALSE(first.moveRuleUpEnabled());
        first.moveRuleUp();
        first.moveRuleDown();
        EXPECT_EQ(rowKeys(first.ruleRows()), u"5002R 5000R 5007R"_s);
        EXPECT_EQ(first.selectedRule(), 1);
        EXPECT_TRUE(first.moveRuleUpEnabled());
        EXPECT_TRUE(first.moveRuleDownEnabled());
        first.moveRuleDown();
        EXPECT_FALSE(first.moveRuleDownEnabled());
        first.checkTable(2, false);
        EXPECT_TRUE(first.DocHasChanged());
        first.OK();
    }
    EXPECT_EQ(ruleIDs(*sectionOf(*rulebase, 1)), u"5002 5007 5000"_s);

    // Between runs: a new rule, a rule switched off, Errors' partner category hidden, the
    // hidden one shown again, and the dormant category woken up.
    addRule(*rulebase, u"Aardvark check"_s, errors->ID()); // 5008
    rulebase->RuleLists()->AllConventions()->Item(u"5002Key"_s)->setRuleActive(false);
    naming->setHidden(true);
    secret->setHidden(false);
    rulebase->RuleLists()->AllConventions()->Item(u"5003Key"_s)->setRuleActive(true);
    errors->setTitle(u"Error Handling"_s);

    RulebaseDocCreatorForm second;
    second.setRulebase(rulebase);
    const auto &sections = *rulebase->Report()->Sections();
    EXPECT_EQ(sectionKeys(sections), u"1K 1T 2T 4T 5T 6T 3K 4K"_s);
    EXPECT_EQ(ruleIDs(*sectionOf(*rulebase, 1)), u"5007 5000 5008"_s);
    EXPECT_EQ(sectionOf(*rulebase, 1)->Title(), u"Error Handling"_s);
    EXPECT_EQ(ruleIDs(*sectionOf(*rulebase, 3)), u"5003"_s);
    EXPECT_EQ(ruleIDs(*sectionOf(*rulebase, 4)), u"5004"_s);
    EXPECT_TRUE(second.DocHasChanged());

    // A category whose rules are all switched off, or which is deleted, loses its page.
    rulebase->RuleLists()->AllConventions()->Item(u"5003Key"_s)->setRuleActive(false);
    rulebase->CategoryList()->Remove(u"4K"_s);
    RulebaseDocCreatorForm third;
    third.setRulebase(rulebase);
    EXPECT_EQ(sectionOf(*rulebase, 3), nullptr);
    EXPECT_EQ(sectionOf(*rulebase, 4), nullptr);
    EXPECT_NE(sectionOf(*rulebase, 1), nullptr);

    // Tables the plan holds are checked, the one taken out is not.
    third.Load();
    std::vector<bool> checks;
    for (const DocCreatorRow &row : third.tableRows())
        checks.push_back(row.checked);
    EXPECT_EQ(checks, (std::vector<bool>{true, true, false, true, true, true}));
}

TEST_F(DocCreatorForm, AnUncheckedTableComesBackLastWithItsText)
{
    storePlan(); // its tables are the ones the "Tables" tab edits
    rulebase->Report()->setDirty(false);
    RulebaseDocCreatorForm form;
    form.setRulebase(rulebase);
    form.Load();
    form.clickSection(2);
    form.moveSectionUp();
    form.moveSectionUp(); // the table stands first, still selected
    form.clickTable(0);
    form.editTableTitle(u"Controls"_s);
    form.editTableDescription(u"Prefixes of controls."_s);
    EXPECT_EQ(form.sectionRows()[0].text, u"Controls"_s);
    EXPECT_EQ(form.sectionDescription(), u"Prefixes of controls."_s);
    EXPECT_TRUE(rulebase->Report()->Dirty());

    form.checkTable(0, false);
    EXPECT_FALSE(sectionKeys(*form.Sections()).contains(u"1T"_s));
    EXPECT_EQ(rowKeys(form.sectionRows()), sectionKeys(*form.Sections()));
    EXPECT_FALSE(form.tableRows()[0].checked);
    // Checking twice adds once.
    form.checkTable(0, true);
    form.checkTable(0, true);
    EXPECT_EQ(sectionKeys(*form.Sections()).count(u"1T"_s), 1);
    EXPECT_TRUE(sectionKeys(*form.Sections()).endsWith(u" 1T"_s));
    EXPECT_EQ(form.sectionRows().back().text, u"Controls"_s);
    const auto back
        = std::dynamic_pointer_cast<TableItem>(form.Sections()->Item(form.Sections()->Count()));
    EXPECT_EQ(back->TableText(), u"Prefixes of controls."_s);

    // The texts of a table outside the plan are kept for when it comes back.
    form.checkTable(1, false);
    form.clickTable(1);
    form.editTableTitle(u"Types"_s);
    form.checkTable(1, true);
    EXPECT_EQ(form.sectionRows().back().text, u"Types"_s);
}

TEST_F(DocCreatorForm, CancelPutsBackThePlanAsItWasFound)
{
    storePlan();
    rulebase->setDirty(false);

    // In step with the rulebase and untouched: nothing to ask, and nothing dirty afterwards.
    {
        RulebaseDocCreatorForm form;
        form.setRulebase(rulebase);
        form.Load();
        EXPECT_FALSE(form.DocHasChanged());
        EXPECT_TRUE(form.Cancel());
        EXPECT_TRUE(ui.messages.empty());
        EXPECT_FALSE(rulebase->Dirty());
    }

    const auto before = sectionKeys(*rulebase->Report()->Sections());
    RulebaseDocCreatorForm form;
    form.setRulebase(rulebase);
    form.Load();
    form.clickSection(1);
    form.moveSectionUp();
    form.clickSection(1);
    form.clickRule(1);
    form.moveRuleUp();
    form.clickTable(5);
    form.editTableTitle(u"Severities"_s);

    // No: the dialog stays, and nothing is put back.
    ui.answers.push_back(MessageResult::No);
    EXPECT_FALSE(form.Cancel());
    EXPECT_FALSE(form.Cancelled());
    EXPECT_EQ(sectionKeys(*form.Sections()).left(5), u"2K 1K"_s);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text,
              u"Document content has changed. Continue without saving changes?"_s);
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(ui.messages[0].defaultButton, MessageResult::No);
    EXPECT_EQ(rulebase->Report()->Sections(), form.Sections());

    ui.answers.push_back(MessageResult::Yes);
    EXPECT_TRUE(form.Cancel());
    EXPECT_TRUE(form.Cancelled());
    const auto &restored = *rulebase->Report()->Sections();
    EXPECT_EQ(sectionKeys(restored), before);
    const auto severity = std::dynamic_pointer_cast<TableItem>(restored.Item(restored.Count()));
    EXPECT_EQ(severity->TableTitle(), u"Severity Details"_s);
    // Category pages are shared with the saved plan: a rule order changed stays changed.
    EXPECT_EQ(ruleIDs(*sectionOf(*rulebase, 1)), u"5002 5000 5007"_s);
}
