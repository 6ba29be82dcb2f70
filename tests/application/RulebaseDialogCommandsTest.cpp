#include "application/Application.h"
#include "editors/CategoryEditorForm.h"
#include "editors/CategorySeverityForm.h"
#include "editors/DefaultViolationsForm.h"
#include "editors/TagListForm.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/ViolationDefinition.h"

#include "support/MemoryMainForm.h"
#include "support/RecordingView.h"
#include "support/RulebaseFormScripts.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Commands
{
    Commands()
        : app(&window, RecordingView::factory(&calls))
    {
        EXPECT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine,
                                     TestEnvironment::sampleRulebase()));
        rulebase = app.rulebase();
        calls.clear();
    }
    // What the views were told of the category and severity lists.
    QStringList viewCalls() const { return calls.filter(u"ListChanged"_s); }

    ScriptedUserInterface ui;
    RulebaseFormScripts scripts;
    MemoryMainForm window;
    QStringList calls;
    Application app;
    std::shared_ptr<Rulebase> rulebase;
};

QStringList categoryTitles(const CategoryList &list)
{
    QStringList titles;
    for (qint32 i = 1; i <= list.Count(); ++i)
        titles << list.Item(i)->Title();
    return titles;
}

} // namespace

TEST(RulebaseDialogCommands, TheCategoryListSortsDeletesAndTellsTheViewOnlyWhenSomethingChanged)
{
    Commands c;
    const auto categories = c.rulebase->CategoryList();
    const QStringList before = categoryTitles(*categories);

    c.scripts.categorySeverity = [](CategorySeverityForm &form) {
        EXPECT_EQ(form.DialogType(), 1);
        EXPECT_EQ(form.selectedRow(), 0); // loaded before it is shown
        return false;
    };
    c.app.ShowCategoryList();
    EXPECT_EQ(c.scripts.runs, 1);
    EXPECT_TRUE(c.viewCalls().isEmpty());
    EXPECT_EQ(categoryTitles(*categories), before);
    EXPECT_FALSE(c.rulebase->Dirty());

    c.scripts.categoryEditor = [](CategoryEditorForm &editor) {
        editor.setTitle(u"aaa first"_s);
        editor.setDescription(u"d"_s);
        return editor.OK();
    };
    c.scripts.categorySeverity = [](CategorySeverityForm &form) {
        form.Add();
        return form.RequestClose();
    };
    c.app.ShowCategoryList();
    EXPECT_EQ(c.viewCalls(), QStringList{u"CategoryListChanged"_s});
    EXPECT_EQ(categories->Item(1)->Title(), u"aaa first"_s);
    QStringList sorted = categoryTitles(*categories);
    std::sort(sorted.begin(), sorted.end(), [](const QString &a, const QString &b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    EXPECT_EQ(categoryTitles(*categories), sorted);
    EXPECT_TRUE(c.rulebase->Dirty());

    // The form deletes with the rulebase set, so the category's rules go with it.
    const qint32 id = c.rulebase->CategoryList()->Item(2)->ID();
    ASSERT_GT(c.rulebase->RuleLists()->ConventionsListByCatID(id)->Count(), 0);
    c.ui.answers.push_back(MessageResult::Yes);
    c.scripts.categorySeverity = [](CategorySeverityForm &form) {
        form.selectRow(1);
        form.Delete();
        return true;
    };
    c.app.ShowCategoryList();
    EXPECT_FALSE(c.rulebase->CategoryList()->ContainsID(id));
    EXPECT_EQ(c.rulebase->RuleLists()->ConventionsListByCatID(id)->Count(), 0);
    EXPECT_EQ(c.viewCalls().size(), 2);
}

TEST(RulebaseDialogCommands, DefaultViolationsAndTagListsMarkTheRulebaseOnlyForRealChanges)
{
    Commands c;
    // Cancelled, nothing is marked.
    c.scripts.defaultViolations = [](DefaultViolationsForm &form) {
        form.setAdvice(u"Dropped."_s);
        form.Cancel();
        return false;
    };
    c.app.ShowDefaultViolations();
    EXPECT_FALSE(c.rulebase->Dirty());

    c.scripts.defaultViolations = [](DefaultViolationsForm &form) {
        EXPECT_EQ(form.CurrentType(), 1);
        form.setAdvice(u"Remove it."_s);
        form.OK();
        return true;
    };
    c.app.ShowDefaultViolations();
    EXPECT_EQ(c.rulebase->DefaultViolations()->ItemByType(1)->Advice(), u"Remove it."_s);
    EXPECT_TRUE(c.rulebase->Dirty());
    c.ui.answers = {MessageResult::Cancel};
    c.app.NewRulebase();
    EXPECT_EQ(c.app.rulebase(), c.rulebase);
    EXPECT_EQ(c.ui.messageTexts(),
              QStringList{u"The current rulebase has changed, do you wish to save the changes?"_s});

    // Tag lists copy back only what changed.
    c.rulebase->setArrayTag(u"a"_s);
    c.rulebase->setUnknownControlViolation(false);
    c.rulebase->setDirty(false);

    // A change of case alone is not taken over, and the rulebase stays clean.
    c.scripts.tagList = [](TagListForm &form) {
        EXPECT_EQ(form.TagType(), 2);
        EXPECT_EQ(form.ArrayTag(), u"a"_s);
        form.setArrayTag(u"A"_s);
        return form.OK();
    };
    c.app.ShowTagList(2);
    EXPECT_EQ(c.rulebase->ArrayTag(), u"a"_s);
    EXPECT_FALSE(c.rulebase->Dirty());

    c.scripts.tagList = [](TagListForm &form) {
        form.setArrayTag(u"arr"_s);
        form.setOption(true);
        return form.OK();
    };
    c.app.ShowTagList(2);
    EXPECT_EQ(c.rulebase->ArrayTag(), u"arr"_s);
    EXPECT_TRUE(c.rulebase->UseCTagsAsDTTags());
    c.rulebase->setDirty(false);

    // A cancelled control set keeps the option and its row.
    c.scripts.tagList = [](TagListForm &form) {
        form.setOption(true);
        form.Cancel();
        return false;
    };
    c.app.ShowTagList(1);
    EXPECT_FALSE(c.rulebase->UnknownControlViolation());
    EXPECT_TRUE(c.rulebase->ControlTags()->Contains(TagListForm::UnknownProgID()));
    EXPECT_FALSE(c.rulebase->Dirty());

    c.scripts.tagList = [](TagListForm &form) {
        form.setOption(true);
        return form.OK();
    };
    c.app.ShowTagList(1);
    EXPECT_TRUE(c.rulebase->UnknownControlViolation());
    EXPECT_FALSE(c.rulebase->ControlTags()->Contains(TagListForm::UnknownProgID()));
    EXPECT_TRUE(c.rulebase->Dirty());

    c.app.ShowTagList(3);
    c.app.ShowTagList(4); // no such set: no dialog
    EXPECT_EQ(c.scripts.runs, 7);
}
