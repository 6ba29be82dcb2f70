#include "ViewTestSupport.h"

#include "application/Application.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"
#include "views/AuthorisedItemsView.h"
#include "views/CategoryView.h"
#include "views/CodingConventionsView.h"
#include "views/NamingConventionsView.h"
#include "views/SeverityView.h"
#include "views/ViewFactory.h"
#include "views/modViewCommon.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/VBParserEvents.h"

#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString crlf2 = u"\r\n\r\n"_s;

// Clicks the node of the event with the most coding conventions, one worth looking at.
qint32 showBusiestEvent(ShownView<CodingConventionsView> &s)
{
    qint32 best = 1;
    for (qint32 id = 1, most = 0; id <= 37; ++id) {
        const auto list = s.lists().ParserEventCCList(id, false);
        if (list && list->Count() > most) {
            most = list->Count();
            best = id;
        }
    }
    s.tree().click(s.tree().find(VBParserEvents::ParserEventKey(best)));
    return best;
}

} // namespace

TEST(CodingConventionsView, ShowsEveryConventionAtTheRootWithTitlesCountsAndTools)
{
    ShownView<CodingConventionsView> s;
    const auto all = s.lists().CodingConventions();
    ASSERT_EQ(s.tree().count(), 38);
    EXPECT_EQ(s.tree().text(1), "Project (" + QString::number(all->Count()) + ")");
    EXPECT_EQ(s.list().count(), all->Count());
    EXPECT_EQ(s.list().columnAlignment(4), ColumnAlignment::Right);
    EXPECT_EQ(s.list().columnIcon(1), u"SortAscending"_s);
    EXPECT_EQ(s.form.statusText, u"53 Items (2 Inactive)"_s);
    EXPECT_EQ(s.list().selectedItem(), 1);
    EXPECT_FALSE(s.form.noItemsVisible);
    for (const char *tool :
         {"tlCodingConvention", "tlCloneRule", "tlDeleteRule", "tlOpenRule", "tlRuleActive"})
        EXPECT_TRUE(s.form.toolEnabled(QLatin1String(tool))) << tool;

    // Column widths come from the shared fractions of the list's width.
    EXPECT_EQ(s.list().columnWidth(2),
              qRound(gobjAdminData->ListColWidthCC(2) * float(s.list().width())));
}

TEST(CodingConventionsView, AnEventNodeShowsItsOwnConventionsAndHelp)
{
    ShownView<CodingConventionsView> s;
    const qint32 event = showBusiestEvent(s);
    const auto list = s.lists().ParserEventCCList(event, false);
    ASSERT_TRUE(list && list->Count() > 0);
    const int node = s.tree().selectedItem();
    EXPECT_EQ(s.tree().text(node),
              VBParserEvents::ParserEventText(event) + " (" + QString::number(list->Count()) + ")");
    EXPECT_TRUE(s.tree().bold(node));
    EXPECT_EQ(s.list().count(), list->Count());
    EXPECT_EQ(s.form.listTitle, " Parser Event [" + VBParserEvents::ParserEventText(event) + "]");
    EXPECT_EQ(s.form.listHeaderImage, s.tree().image(node));
    EXPECT_EQ(s.form.documentation,
              "Event: " + VBParserEvents::ParserEventText(event) + crlf2
                  + VBParserEvents::ParserEventHelp(event));

    // A row click documents the rule; the tool tip tells inactive rows.
    s.list().click(1);
    const auto rule = s.lists().CodingConventions()->Item(s.list().key(1));
    EXPECT_EQ(s.form.documentation, "Rule: " + rule->Title() + crlf2 + rule->Description());
    rule->setRuleActive(false);
    modViewCommon::HighlightConvention(1, false, s.list());
    s.list().moveOver(1);
    EXPECT_EQ(s.list().toolTipText(),
              u"This convention is not active and therefore will not be enforced."_s);
}

TEST(CodingConventionsView, DeleteAsksAndOnYesRemovesFromListAndRuleLists)
{
    ShownView<CodingConventionsView> s;
    const qint32 event = showBusiestEvent(s);
    const int rows = s.list().count();
    const QString key = s.list().key(1);
    const auto doomed = s.lists().CodingConventions()->Item(key);

    s.ui.answers = {MessageResult::No};
    s.view->DeleteItems();
    ASSERT_EQ(s.ui.messages.size(), 1u);
    EXPECT_EQ(s.ui.messages[0].text,
              u"This will permanently delete the selected coding convention(s) from the "
              u"rulebase, are you sure you wish to continue?"_s);
    EXPECT_EQ(s.ui.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(s.list().count(), rows);

    s.ui.answers = {MessageResult::Yes};
    s.view->DeleteItems();
    EXPECT_EQ(s.list().count(), rows - 1);
    EXPECT_FALSE(s.lists().AllConventions()->Contains(key));
    EXPECT_FALSE(s.lists().ParserEventCCList(event, false)->ContainsValue(doomed));
    EXPECT_EQ(s.tree().text(1),
              "Project (" + QString::number(s.lists().CodingConventions()->Count()) + ")");

    // Deleting every row leaves the "no items" text, 0 Items and the row tools off.
    for (int row = 1; row <= s.list().count(); ++row)
        s.list().setSelected(row, true);
    s.ui.answers = {MessageResult::Yes};
    s.view->DeleteItems();
    EXPECT_EQ(s.list().count(), 0);
    EXPECT_TRUE(s.form.noItemsVisible);
    EXPECT_EQ(s.form.statusText, u"0 Items"_s);
    EXPECT_FALSE(s.form.toolEnabled(u"tlCloneRule"_s));
    EXPECT_EQ(s.ui.unscriptedQuestions, 0);
}

TEST(CodingConventionsView, EditingInTheDialogUpdatesTheRowOrMovesItOut)
{
    ShownView<CodingConventionsView> s;
    const qint32 event = showBusiestEvent(s);
    const int node = s.tree().selectedItem();
    const int rows = s.list().count();
    const QString key = s.list().key(1);

    s.launcher.confirm = false;
    s.view->OpenItem();
    EXPECT_EQ(s.launcher.opened, 1);

    s.launcher.confirm = true;
    s.launcher.edit = [](IRule &rule) { static_cast<CodingConvention &>(rule).setTitle("Edited"); };
    s.view->OpenItem();
    EXPECT_EQ(s.list().subItemText(s.list().find(key), 1), u"Edited"_s);

    // Moved to another event in the dialog: the row leaves, both counts follow.
    const qint32 other = event == 26 ? 25 : 26;
    s.launcher.edit = [&](IRule &rule) {
        auto &convention = static_cast<CodingConvention &>(rule);
        convention.RemoveParserEventID(event);
        convention.AddParserEventID(other);
    };
    s.list().click(s.list().find(key));
    s.view->OpenItem();
    EXPECT_EQ(s.list().find(key), 0);
    EXPECT_EQ(s.list().count(), rows - 1);
    const auto moved = s.lists().CodingConventions()->Item(key);
    EXPECT_TRUE(s.lists().ParserEventCCList(other, false)->ContainsValue(moved));
    const auto before = s.lists().ParserEventCCList(event, false);
    EXPECT_TRUE(!before || !before->ContainsValue(moved));
    EXPECT_EQ(s.tree().text(node),
              VBParserEvents::ParserEventText(event) + " (" + QString::number(rows - 1) + ")");
}

TEST(CodingConventionsView, AddItemShowsANewConventionOnItsEventAndTheSortSurvives)
{
    ShownView<CodingConventionsView> s;
    const qint32 event = showBusiestEvent(s);
    const int rows = s.list().count();

    auto rule = std::make_shared<CodingConvention>();
    rule->setTitle("New");
    rule->AddParserEventID(event);
    rule->ViolationDefinition()->setSeverity(s.rulebase->SeverityList()->Item(1)->SeverityLevel());
    s.lists().AddConvention(rule, true);
    s.view->AddItem(rule);
    EXPECT_EQ(s.list().count(), rows + 1);
    s.view->AddItem(std::make_shared<NamingConvention>()); // not this view's kind
    EXPECT_EQ(s.list().count(), rows + 1);

    // A header clicked twice sorts descending; the next node click keeps it.
    modViewCommon::SortListByColumn(s.list(), 1);
    s.list().clickColumn(1);
    s.tree().click(1);
    EXPECT_EQ(gobjAdminData->ListCCSortOrder(), 1);
    EXPECT_EQ(s.list().sortOrder(), 1);
    EXPECT_GT(s.list().text(1), s.list().text(2));

    s.view.reset();
    EXPECT_FALSE(s.form.toolEnabled(u"tlCloneRule"_s));
    EXPECT_FALSE(s.form.toolEnabled(u"tlCodingConvention"_s));
}

TEST(NamingConventionsView, ShowsConventionsByObjectAndMovesThemWhenTheirObjectChanges)
{
    ShownView<NamingConventionsView> s;
    const auto all = s.lists().NamingConventions();
    ASSERT_GT(all->Count(), 0);
    ASSERT_EQ(s.tree().count(), 42);
    EXPECT_EQ(s.tree().text(1), "Objects (" + QString::number(all->Count()) + ")");
    EXPECT_EQ(s.list().count(), all->Count());

    const auto first = all->Item(1);
    const qint32 object = first->ObjectType();
    const int count = s.lists().GetNCObjectRuleCount(object);
    const int node = s.tree().find(QString::number(object) + "Key");
    s.tree().click(node);
    EXPECT_EQ(s.list().count(), count);
    EXPECT_EQ(s.form.documentation,
              "Object: " + ObjectHelper::ObjectName(object) + crlf2
                  + NamingConventionsView::ObjectDescription(object));

    const qint32 other = object == 6 ? 7 : 6;
    s.launcher.edit
        = [&](IRule &rule) { static_cast<NamingConvention &>(rule).setObjectType(other); };
    s.list().click(s.list().find(first->RuleKey()));
    s.view->OpenItem();
    EXPECT_EQ(s.list().count(), count - 1);
    EXPECT_TRUE(s.lists().ObjectNCList(other, false)->ContainsValue(first));
    EXPECT_EQ(s.lists().GetNCObjectRuleCount(object), count - 1);
}

TEST(CategoryView, ArrangesEveryRuleByCategoryWithAnUnallocatedNode)
{
    ShownView<CategoryView> s;
    const CategoryList &categories = *s.rulebase->CategoryList();
    const auto all = s.lists().AllConventions();
    ASSERT_EQ(s.tree().count(), categories.Count() + 2);
    EXPECT_EQ(s.tree().key(s.tree().count()), u"-1K"_s);
    EXPECT_EQ(s.list().count(), all->Count());

    const auto category = categories.Item(1);
    int inCategory = 0;
    for (qint32 i = 1; i <= all->Count(); ++i)
        inCategory += all->Item(i)->ViolationDefinition()->CategoryID() == category->ID() ? 1 : 0;
    const int node = s.tree().find(category->Key());
    EXPECT_EQ(s.tree().text(node), category->Title() + " (" + QString::number(inCategory) + ")");
    s.tree().click(node);
    EXPECT_EQ(s.list().count(), inCategory);
    EXPECT_EQ(s.form.listTitle, " Category [" + category->Title() + "]");
    EXPECT_EQ(s.form.documentation,
              "Category: " + category->Title() + crlf2 + category->Description());

    // A hidden category shows so in its picture and its text.
    category->setHidden(true);
    s.view->CategoryListChanged();
    EXPECT_EQ(s.tree().selectedItem(), s.tree().find(category->Key()));
    EXPECT_EQ(s.tree().image(s.tree().selectedItem()), u"HiddenFolder"_s);
    EXPECT_TRUE(s.form.documentation.startsWith("Category (Hidden): "));

    // Its deletion falls back to the root.
    s.rulebase->CategoryList()->Remove(category->Key());
    s.view->CategoryListChanged();
    EXPECT_EQ(s.tree().selectedItem(), 1);
    EXPECT_EQ(s.tree().count(), categories.Count() + 2);
}

TEST(CategoryView, DoubleClickEditsCategoriesOnlyAndOpenItemDropsRowsThatLeave)
{
    ShownView<CategoryView> s;
    s.tree().click(1);
    s.tree().doubleClick();
    s.tree().click(s.tree().count());
    s.tree().doubleClick();
    EXPECT_EQ(s.launcher.opened, 0);

    const auto category = s.rulebase->CategoryList()->Item(1);
    s.tree().click(s.tree().find(category->Key()));
    s.launcher.editCategory = [](CategoryItem &c) { c.setTitle("Renamed"); };
    ASSERT_FALSE(s.rulebase->Dirty());
    s.tree().doubleClick();
    EXPECT_EQ(s.launcher.opened, 1);
    EXPECT_TRUE(s.rulebase->Dirty()) << "an edited category must be offered for saving";
    EXPECT_EQ(s.form.listTitle, u" Category [Renamed]"_s);
    for (int row = 1; row <= s.list().count(); ++row)
        EXPECT_EQ(s.list().subItemText(row, 2), u"Renamed"_s);

    ASSERT_GT(s.list().count(), 0);
    const int rows = s.list().count();
    s.launcher.edit = [](IRule &rule) { rule.ViolationDefinition()->setCategoryID(-1); };
    s.list().click(1);
    s.view->OpenItem();
    EXPECT_EQ(s.list().count(), rows - 1);
}

TEST(SeverityView, ArrangesEveryRuleBySeverityAndFollowsSeverityEdits)
{
    ShownView<SeverityView> s;
    const auto severities = s.rulebase->SeverityList();
    const auto all = s.lists().AllConventions();
    ASSERT_EQ(s.tree().count(), severities->Count() + 1);
    EXPECT_EQ(s.list().count(), all->Count());

    const auto severity = severities->Item(1);
    int atLevel = 0;
    for (qint32 i = 1; i <= all->Count(); ++i)
        atLevel
            += all->Item(i)->ViolationDefinition()->Severity() == severity->SeverityLevel() ? 1 : 0;
    const int node = s.tree().find(severity->Key());
    EXPECT_EQ(s.tree().image(node), QString::number(severity->Colour()));
    s.tree().click(node);
    EXPECT_EQ(s.list().count(), atLevel);
    EXPECT_EQ(s.form.documentation,
              "Severity: " + severity->Title() + crlf2 + severity->Description());

    s.launcher.editSeverity = [](SeverityItem &item) { item.setColour(3); };
    ASSERT_FALSE(s.rulebase->Dirty());
    s.tree().doubleClick();
    EXPECT_TRUE(s.rulebase->Dirty()) << "an edited severity must be offered for saving";
    EXPECT_EQ(s.tree().image(node), u"3"_s);
    for (int row = 1; row <= s.list().count(); ++row)
        EXPECT_EQ(s.list().smallIcon(row), 3);

    severity->setColour(5);
    s.view->SeverityListChanged();
    EXPECT_EQ(s.tree().key(s.tree().selectedItem()), severity->Key());
    for (int row = 1; row <= s.list().count(); ++row)
        EXPECT_EQ(s.list().smallIcon(row), 5);
}

TEST(ViewFactory, MakesTheFourViewsAndTheApplicationShowsThem)
{
    EXPECT_NE(dynamic_cast<CodingConventionsView *>(createView("TLCODINGCONVENTIONS").get()),
              nullptr);
    EXPECT_NE(dynamic_cast<NamingConventionsView *>(createView("tlNamingConventions").get()),
              nullptr);
    EXPECT_NE(dynamic_cast<CategoryView *>(createView("tlCategoryView").get()), nullptr);
    EXPECT_NE(dynamic_cast<SeverityView *>(createView("tlSeverityView").get()), nullptr);
    EXPECT_NE(dynamic_cast<AuthorisedItemsView *>(createView("tlAuthorisedItems").get()), nullptr);
    EXPECT_EQ(createView("tlDocumentationConventions"), nullptr);

    ViewTest::AdminDataScope settings;
    ScriptedUserInterface ui;
    MemoryMainForm form;
    {
        Application app(&form, createView);
        ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine,
                                     TestEnvironment::sampleRulebase()));
        EXPECT_EQ(form.treeTitle, u" Conventions by Category"_s);
        const int all = app.rulebase()->RuleLists()->AllConventions()->Count();
        EXPECT_EQ(form.listControl.count(), all);
        app.SwitchView("tlNamingConventions");
        EXPECT_EQ(form.listControl.count(),
                  app.rulebase()->RuleLists()->NamingConventions()->Count());
        EXPECT_FALSE(form.toolEnabled("tlUnauthorisedKeyword")); // released with the category view
        app.TerminateApplication();
    }
    EXPECT_TRUE(ui.messages.empty());
}
