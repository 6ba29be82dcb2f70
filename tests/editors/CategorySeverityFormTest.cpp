#include "editors/CategorySeverityForm.h"
#include "editors/CategoryEditorForm.h"
#include "editors/SeverityEditorForm.h"

#include "collections/ObjectKeyedListAdapter.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"

#include "support/RulebaseFormScripts.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

void openCategories(CategorySeverityForm &form, const std::shared_ptr<Rulebase> &rulebase)
{
    form.setDialogType(CategorySeverityForm::Categories);
    form.setItemList(asKeyedList(rulebase->CategoryList()));
    form.setRulebase(rulebase);
    form.Load();
}

} // namespace

TEST(CategorySeverityForm, AddAndEditGoThroughTheCategoryEditorAndCancelChangesNothing)
{
    RulebaseFormScripts scripts;
    const auto rulebase = RulebaseManager().LoadRulebase(TestEnvironment::sampleRulebase());
    ASSERT_TRUE(rulebase);
    const auto categories = rulebase->CategoryList();
    const qint32 count = categories->Count();
    const qint32 lastID = categories->LastID();
    CategorySeverityForm form;
    openCategories(form, rulebase);

    // A cancelled add leaves list, rows and Dirty alone.
    const auto cancelled = [](CategoryEditorForm &editor) {
        editor.setTitle(u"Never"_s);
        editor.setHiddenCategory(false);
        editor.Cancel();
        return false;
    };
    scripts.categoryEditor = cancelled;
    form.Add();
    EXPECT_EQ(categories->Count(), count);
    EXPECT_FALSE(form.Dirty());

    scripts.categoryEditor = [](CategoryEditorForm &editor) {
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

    // Editing the first row shows its fields; OK needs a title and a description.
    form.selectRow(0);
    const auto first = categories->Item(1);
    const QString oldTitle = first->Title();
    scripts.categoryEditor = [&](CategoryEditorForm &editor) {
        EXPECT_EQ(editor.Title(), oldTitle);
        editor.setTitle(QString());
        EXPECT_FALSE(editor.CanOK());
        EXPECT_FALSE(editor.OK());
        editor.setTitle(u"Renamed"_s);
        editor.setDescription(QString());
        EXPECT_FALSE(editor.CanOK());
        editor.setDescription(u"Other"_s);
        editor.setHiddenCategory(true);
        return editor.OK();
    };
    form.Edit();
    EXPECT_EQ(first->Title(), u"Renamed"_s);
    EXPECT_EQ(first->Description(), u"Other"_s);
    EXPECT_EQ(form.rows().front().text, u"Renamed"_s);
    EXPECT_EQ(form.rows().front().image, u"HiddenFolder"_s);

    // A cancelled edit writes nothing and leaves a fresh list clean.
    CategorySeverityForm again;
    openCategories(again, rulebase);
    scripts.categoryEditor = cancelled;
    again.Edit();
    EXPECT_EQ(first->Title(), u"Renamed"_s);
    EXPECT_TRUE(first->Hidden());
    EXPECT_FALSE(again.Dirty());
}

TEST(CategorySeverityForm, DeletingMovesRulesAndDefaultViolationsToNoCategoryAfterTheQuestion)
{
    ScriptedUserInterface ui;
    const auto rulebase = RulebaseManager().LoadRulebase(TestEnvironment::sampleRulebase());
    ASSERT_TRUE(rulebase);
    const auto categories = rulebase->CategoryList();
    const auto rulesOf
        = [&](qint32 id) { return rulebase->RuleLists()->ConventionsListByCatID(id)->Count(); };
    const qint32 id = categories->Item(1)->ID();
    const qint32 otherID = categories->Item(2)->ID();
    rulebase->DefaultViolations()->ItemByType(2)->setCategoryID(id);
    rulebase->DefaultViolations()->ItemByType(3)->setCategoryID(otherID);
    const qint32 moving = rulesOf(id);
    const qint32 staying = rulesOf(otherID);
    const qint32 unallocated = rulesOf(-1);
    ASSERT_GT(moving, 0);

    CategorySeverityForm form;
    openCategories(form, rulebase);
    const std::size_t rows = form.rows().size();

    // No leaves everything as it was.
    ui.answers.push_back(MessageResult::No);
    form.Delete();
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text, CategorySeverityForm::DeleteQuestion());
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(ui.messages[0].defaultButton, MessageResult::No);
    EXPECT_EQ(form.rows().size(), rows);
    EXPECT_EQ(rulesOf(id), moving);
    EXPECT_FALSE(form.Dirty());

    ui.answers.push_back(MessageResult::Yes);
    form.Delete();
    EXPECT_TRUE(form.Dirty());
    EXPECT_FALSE(categories->ContainsID(id));
    EXPECT_EQ(form.rows().size(), rows - 1);
    EXPECT_EQ(form.rows().front().key, categories->Item(1)->Key());
    EXPECT_EQ(form.selectedRow(), 0);
    EXPECT_EQ(form.SelectedDescription(), categories->Item(1)->Description());
    EXPECT_EQ(rulesOf(id), 0);
    EXPECT_EQ(rulesOf(-1), unallocated + moving);
    EXPECT_EQ(rulesOf(otherID), staying);
    EXPECT_EQ(rulebase->DefaultViolations()->ItemByType(2)->CategoryID(), -1);
    EXPECT_EQ(rulebase->DefaultViolations()->ItemByType(3)->CategoryID(), otherID);
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
    form.setDialogType(CategorySeverityForm::Severities);
    form.setItemList(asKeyedList(rulebase->SeverityList()));
    form.Load();

    EXPECT_FALSE(form.AddDeleteVisible());
    EXPECT_FALSE(form.CanDelete());
    // The severity face never adds or removes a row.
    form.Add();
    form.Delete();
    EXPECT_EQ(form.rows().size(), 5u);
    EXPECT_EQ(scripts.runs, 0);

    // OK needs an impact that fits, and writes nothing before; giving High the colour of
    // Critical keeps the list open with the warning.
    form.selectRow(1);
    scripts.severityEditor = [](SeverityEditorForm &editor) {
        const auto item = editor.severityItem();
        const qint32 impact = item->Impact();
        editor.setImpact(QString());
        EXPECT_FALSE(editor.CanOK());
        editor.setImpact(u"99999"_s);
        editor.setTitle(u"Major"_s);
        editor.chooseColour(14);
        EXPECT_TRUE(editor.CanOK());
        EXPECT_FALSE(editor.OK());
        EXPECT_TRUE(editor.Cancelled());
        EXPECT_NE(item->Title(), u"Major"_s);
        EXPECT_EQ(item->Impact(), impact);
        EXPECT_NE(item->Colour(), 14);
        editor.setImpact(u"700"_s);
        return editor.OK();
    };
    form.Edit();
    EXPECT_TRUE(form.Dirty());
    EXPECT_EQ(form.rows()[1].colour, 14);
    EXPECT_EQ(form.rows()[1].impact, u"700"_s);
    EXPECT_EQ(form.rows()[1].text, u"Major"_s);
    EXPECT_FALSE(form.RequestClose());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text,
              u"Unique colours must be used for each of the severity icons."_s);

    scripts.severityEditor = [](SeverityEditorForm &editor) {
        editor.chooseColour(3);
        return editor.OK();
    };
    form.Edit();
    EXPECT_TRUE(form.RequestClose());
    EXPECT_EQ(rulebase->SeverityList()->Item(2)->Colour(), 3);
}
