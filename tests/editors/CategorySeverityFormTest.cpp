#include "editors/CategorySeverityForm.h"
#include "editors/CategoryEditorForm.h"
#include "editors/SeverityEditorForm.h"

#include "collections/ObjectKeyedListAdapter.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/IRule.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"

#include "RulebaseFormScripts.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<Rulebase> sample()
{
    auto rulebase = RulebaseManager().LoadRulebase(TestEnvironment::sampleRulebase());
    EXPECT_NE(rulebase, nullptr);
    return rulebase;
}

void openCategories(CategorySeverityForm &form, const std::shared_ptr<Rulebase> &rulebase)
{
    form.setDialogType(CategorySeverityForm::Categories);
    form.setItemList(asKeyedList(rulebase->CategoryList()));
    form.setRulebase(rulebase);
    form.Load();
}

void openSeverities(CategorySeverityForm &form, const std::shared_ptr<Rulebase> &rulebase)
{
    form.setDialogType(CategorySeverityForm::Severities);
    form.setItemList(asKeyedList(rulebase->SeverityList()));
    form.Load();
}

int rulesOfCategory(const Rulebase &rulebase, qint32 id)
{
    const auto rules = rulebase.RuleLists()->AllConventions();
    int count = 0;
    for (qint32 i = 1; i <= rules->Count(); ++i)
        count += rules->Item(i)->ViolationDefinition()->CategoryID() == id ? 1 : 0;
    return count;
}

} // namespace

TEST(CategorySeverityForm, AddAndEditGoThroughTheCategoryEditorAndCancelChangesNothing)
{
    RulebaseFormScripts scripts;
    auto rulebase = sample();
    const auto categories = rulebase->CategoryList();
    const qint32 count = categories->Count();
    const qint32 lastID = categories->LastID();
    CategorySeverityForm form;
    openCategories(form, rulebase);

    // A cancelled add leaves list, rows and Dirty alone.
    const auto cancelled = [](CategoryEditorForm &editor) {
        editor.Load();
        editor.setTitle(u"Never"_s);
        editor.Cancel();
        return false;
    };
    scripts.categoryEditor = cancelled;
    form.Add();
    EXPECT_EQ(categories->Count(), count);
    EXPECT_FALSE(form.Dirty());

    scripts.categoryEditor = [](CategoryEditorForm &editor) {
        editor.Load();
        EXPECT_EQ(editor.Title(), QString()); // a new category starts empty
        editor.setTitle(u"Security"_s);
        editor.setDescription(u"Safe code"_s);
        editor.setHiddenCategory(true);
        return editor.OK();
    };
    form.Add();
    ASSERT_EQ(categories->Count(), count + 1);
    const auto added = categories->Item(count + 1);
    EXPECT_EQ(added->ID(), lastID + 1);
    EXPECT_EQ(added->Key(), QString::number(lastID + 1) + "K");
    EXPECT_TRUE(added->Hidden());
    EXPECT_EQ(form.rows().back().image, u"HiddenFolder"_s);
    EXPECT_EQ(form.selectedRow(), int(form.rows().size()) - 1);
    EXPECT_EQ(form.SelectedDescription(), u"Safe code"_s);
    EXPECT_TRUE(form.Dirty());

    // Editing the first row shows its fields and writes the new ones into it.
    form.selectRow(0);
    const auto first = categories->Item(1);
    const QString oldTitle = first->Title();
    scripts.categoryEditor = [&](CategoryEditorForm &editor) {
        editor.Load();
        EXPECT_EQ(editor.Title(), oldTitle);
        editor.setTitle(u"Renamed"_s);
        editor.setHiddenCategory(true);
        return editor.OK();
    };
    form.Edit();
    EXPECT_EQ(first->Title(), u"Renamed"_s);
    EXPECT_EQ(form.rows().front().text, u"Renamed"_s);
    EXPECT_EQ(form.rows().front().image, u"HiddenFolder"_s);

    // A cancelled edit writes nothing and leaves a fresh list clean.
    CategorySeverityForm again;
    openCategories(again, rulebase);
    scripts.categoryEditor = cancelled;
    again.Edit();
    EXPECT_EQ(first->Title(), u"Renamed"_s);
    EXPECT_FALSE(again.Dirty());
}

TEST(CategorySeverityForm, DeletingMovesRulesAndDefaultViolationsToNoCategoryAfterTheQuestion)
{
    ScriptedUserInterface ui;
    auto rulebase = sample();
    const auto categories = rulebase->CategoryList();
    const auto lists = rulebase->RuleLists();
    const auto victim = categories->Item(1);
    const qint32 id = victim->ID();
    const qint32 otherID = categories->Item(2)->ID();
    rulebase->DefaultViolations()->ItemByType(2)->setCategoryID(id);
    rulebase->DefaultViolations()->ItemByType(3)->setCategoryID(otherID);
    const int moving = rulesOfCategory(*rulebase, id);
    const int staying = rulesOfCategory(*rulebase, otherID);
    const int unallocated = rulesOfCategory(*rulebase, -1);
    ASSERT_GT(moving, 0);
    const qint32 all = lists->AllConventions()->Count();
    const qint32 coding = lists->CodingConventions()->Count();
    const qint32 naming = lists->NamingConventions()->Count();
    const qint32 keywords = lists->UnauthorisedKeywords()->Count();

    CategorySeverityForm form;
    openCategories(form, rulebase);
    const std::size_t rows = form.rows().size();

    // No leaves everything as it was.
    ui.answers.push_back(MessageResult::No);
    form.Delete();
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text, CategorySeverityForm::DeleteQuestion());
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(form.rows().size(), rows);
    EXPECT_EQ(rulesOfCategory(*rulebase, id), moving);
    EXPECT_FALSE(form.Dirty());

    ui.answers.push_back(MessageResult::Yes);
    form.Delete();
    EXPECT_TRUE(form.Dirty());
    EXPECT_FALSE(categories->ContainsID(id));
    EXPECT_EQ(form.rows().size(), rows - 1);
    EXPECT_EQ(form.rows().front().key, categories->Item(1)->Key());
    EXPECT_EQ(form.selectedRow(), 0);
    EXPECT_EQ(form.SelectedDescription(), categories->Item(1)->Description());
    EXPECT_EQ(rulesOfCategory(*rulebase, id), 0);
    EXPECT_EQ(rulesOfCategory(*rulebase, -1), unallocated + moving);
    EXPECT_EQ(rulesOfCategory(*rulebase, otherID), staying);
    EXPECT_EQ(rulebase->DefaultViolations()->ItemByType(2)->CategoryID(), -1);
    EXPECT_EQ(rulebase->DefaultViolations()->ItemByType(3)->CategoryID(), otherID);
    // Every rule stays where the rule lists keep it.
    EXPECT_EQ(lists->AllConventions()->Count(), all);
    EXPECT_EQ(lists->CodingConventions()->Count(), coding);
    EXPECT_EQ(lists->NamingConventions()->Count(), naming);
    EXPECT_EQ(lists->UnauthorisedKeywords()->Count(), keywords);
    EXPECT_EQ(lists->ConventionsListByCatID(-1)->Count(), unallocated + moving);
    EXPECT_EQ(lists->ConventionsListByCatID(id)->Count(), 0);
    EXPECT_TRUE(rulebase->Dirty());
    // The id is not handed out again.
    EXPECT_GE(categories->LastID(), id);
}

TEST(CategorySeverityForm, TheSeverityFaceEditsTheFiveAndRefusesRepeatedColours)
{
    ScriptedUserInterface ui;
    RulebaseFormScripts scripts;
    auto rulebase = std::make_shared<Rulebase>();
    CategorySeverityForm form;
    openSeverities(form, rulebase);

    EXPECT_FALSE(form.AddDeleteVisible());
    EXPECT_FALSE(form.CanDelete());
    // The severity face never adds or removes a row.
    form.Add();
    form.Delete();
    EXPECT_EQ(form.rows().size(), 5u);
    EXPECT_EQ(scripts.runs, 0);

    // Giving High the colour of Critical keeps the dialog open with the warning.
    form.selectRow(1);
    scripts.severityEditor = [](SeverityEditorForm &editor) {
        editor.Load();
        editor.chooseColour(14);
        editor.setImpact(u"700"_s);
        return editor.OK();
    };
    form.Edit();
    EXPECT_TRUE(form.Dirty());
    EXPECT_EQ(form.rows()[1].colour, 14);
    EXPECT_EQ(form.rows()[1].impact, u"700"_s);
    EXPECT_FALSE(form.RequestClose());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text,
              u"Unique colours must be used for each of the severity icons."_s);

    scripts.severityEditor = [](SeverityEditorForm &editor) {
        editor.Load();
        editor.chooseColour(3);
        return editor.OK();
    };
    form.Edit();
    EXPECT_TRUE(form.RequestClose());
    EXPECT_EQ(rulebase->SeverityList()->Item(2)->Colour(), 3);
}

TEST(CategoryEditorForm, OKNeedsTitleAndDescriptionAndWritesOnlyOnOK)
{
    auto item = std::make_shared<CategoryItem>();
    item->setTitle(u"Naming"_s);
    item->setDescription(u"Names"_s);
    CategoryEditorForm form;
    form.setCategoryItem(item);
    form.Load();

    form.setDescription(QString());
    EXPECT_FALSE(form.CanOK());
    EXPECT_FALSE(form.OK());
    form.setDescription(u"Other"_s);
    form.setTitle(QString());
    EXPECT_FALSE(form.CanOK());
    form.setTitle(u"Style"_s);
    form.setHiddenCategory(true);
    form.Cancel();
    EXPECT_TRUE(form.Cancelled());
    EXPECT_EQ(item->Title(), u"Naming"_s);
    EXPECT_FALSE(item->Hidden());

    ASSERT_TRUE(form.OK());
    EXPECT_FALSE(form.Cancelled());
    EXPECT_EQ(item->Title(), u"Style"_s);
    EXPECT_EQ(item->Description(), u"Other"_s);
    EXPECT_TRUE(item->Hidden());
}

TEST(SeverityEditorForm, OKNeedsThreeFieldsAndAnImpactThatFitsWritesNothingOtherwise)
{
    ScriptedUserInterface ui;
    auto rulebase = std::make_shared<Rulebase>();
    const auto item = rulebase->SeverityList()->Item(u"4Key"_s);
    SeverityEditorForm form;
    form.setSeverityItem(item);
    form.Load();

    form.setImpact(QString());
    EXPECT_FALSE(form.CanOK());
    form.setImpact(u"99999"_s);
    form.setTitle(u"Minor"_s);
    EXPECT_TRUE(form.CanOK());
    EXPECT_FALSE(form.OK());
    EXPECT_TRUE(form.Cancelled());
    EXPECT_EQ(item->Title(), u"Low"_s);
    EXPECT_EQ(item->Impact(), 250);
    EXPECT_EQ(item->Colour(), 11);

    form.setImpact(u"300"_s);
    form.chooseColour(5);
    ASSERT_TRUE(form.OK());
    EXPECT_EQ(item->Title(), u"Minor"_s);
    EXPECT_EQ(item->Impact(), 300);
    EXPECT_EQ(item->Colour(), 5);
}
