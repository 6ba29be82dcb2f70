#include "application/Application.h"
#include "application/Startup.h"
#include "editors/TagGridModel.h"
#include "editors/TagListForm.h"
#include "gui/factory/GuiFormFactory.h"
#include "gui/frmMain.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/Rulebase.h"
#include "rulebase/TagItem.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>

#include <functional>

// The grid's model goes through Qt's model tester when QtTest is installed.
#if __has_include(<QAbstractItemModelTester>)
#include <QAbstractItemModelTester>
#define QUORIN_HAVE_MODEL_TESTER 1
#else
#define QUORIN_HAVE_MODEL_TESTER 0
#endif

#include "GuiTestSupport.h"

#include <gtest/gtest.h>

namespace {

using RulebaseDialogs = GuiSample;

} // namespace

TEST_F(RulebaseDialogs, RulebasePropertiesOpenFromTheFileMenuAndWriteOnOK)
{
    bool seen = false;
    whenModal(QStringLiteral("frmRulebaseProperties"), [&](QDialog &dialog) {
        seen = true;
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Rulebase Properties"));
        auto *title = child<QLineEdit>(dialog, "txtTitle");
        EXPECT_EQ(title->text(), rulebase->Title());
        const auto labels = dialog.findChildren<QLabel *>(QStringLiteral("lblSeverityTolerance"));
        ASSERT_EQ(labels.size(), 6);
        EXPECT_EQ(labels.last()->text(), QStringLiteral("Total"));
        EXPECT_EQ(dialog.findChildren<QLineEdit *>(QStringLiteral("txtToleranceCount")).size(), 6);
        auto *ok = child<QPushButton>(dialog, "cmdOK");
        title->setText(QString());
        EXPECT_FALSE(ok->isEnabled());
        title->setText(QStringLiteral("From the dialog"));
        EXPECT_TRUE(ok->isEnabled());
        ok->click();
    });
    trigger("tlRulebaseProperties");
    EXPECT_TRUE(seen);
    EXPECT_EQ(rulebase->Title(), QStringLiteral("From the dialog"));
}

TEST_F(RulebaseDialogs, TheCategoryListOpensItsEditorAndCloses)
{
    const qint32 categories = rulebase->CategoryList()->Count();
    const QString first = rulebase->CategoryList()->Item(1)->Title();
    bool editorSeen = false;
    whenModal(QStringLiteral("frmCategorySeverity"), [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Category List"));
        auto *list = child<QTreeWidget>(dialog, "lvwCategorySeverity");
        EXPECT_EQ(list->topLevelItemCount(), categories);
        EXPECT_EQ(list->headerItem()->text(0), QStringLiteral("Available Categories"));
        EXPECT_TRUE(child<QPushButton>(dialog, "cmdAdd")->isVisibleTo(&dialog));
        EXPECT_TRUE(child<QPushButton>(dialog, "cmdDelete")->isEnabled());
        whenModal(QStringLiteral("frmCategoryEditor"), [&](QDialog &editor) {
            editorSeen = true;
            EXPECT_EQ(child<QLineEdit>(editor, "txtTitle")->text(), first);
            child<QLineEdit>(editor, "txtTitle")->setText(QStringLiteral("Not kept"));
            click(editor, "cmdCancel");
        });
        click(dialog, "cmdEdit");
        click(dialog, "cmdClose");
    });
    trigger("tlCategoryList");
    EXPECT_TRUE(editorSeen);
    EXPECT_EQ(rulebase->CategoryList()->Item(1)->Title(), first);
    EXPECT_FALSE(rulebase->Dirty());
}

TEST_F(RulebaseDialogs, TagListsShowTheirFacesAndCancelLeavesTheSet)
{
    const qint32 controls = rulebase->ControlTags()->Count();
    whenModal(QStringLiteral("frmTagList"), [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Control Tags"));
        auto *grid = child<QTableView>(dialog, "grdTags");
        EXPECT_EQ(grid->model()->rowCount(), controls);
        EXPECT_FALSE(child<QTabBar>(dialog, "tbsTagList")->isVisibleTo(&dialog));
        click(dialog, "cmdInsert");
        EXPECT_EQ(grid->model()->rowCount(), controls + 1);
        click(dialog, "cmdCancel");
    });
    trigger("tlControlTags");
    EXPECT_EQ(rulebase->ControlTags()->Count(), controls);

    whenModal(QStringLiteral("frmTagList"), [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Data Type Tags"));
        auto *tabs = child<QTabBar>(dialog, "tbsTagList");
        EXPECT_EQ(tabs->count(), 2);
        tabs->setCurrentIndex(1);
        EXPECT_FALSE(child<QPushButton>(dialog, "cmdInsert")->isEnabled());
        EXPECT_TRUE(child<QLineEdit>(dialog, "txtArrayTagValue")->isVisibleTo(&dialog));
        click(dialog, "cmdCancel");
    });
    trigger("tlDataTags");

    whenModal(QStringLiteral("frmTagList"), [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Scope Tags"));
        EXPECT_FALSE(child<QPushButton>(dialog, "cmdInsert")->isVisibleTo(&dialog));
        EXPECT_FALSE(child<QCheckBox>(dialog, "chkOption")->isVisibleTo(&dialog));
        click(dialog, "cmdOK");
    });
    trigger("tlScopeTags");
    EXPECT_FALSE(rulebase->Dirty());
}

#if QUORIN_HAVE_MODEL_TESTER
TEST(TagGridModel, PassesTheModelTesterThroughInsertsDeletesTabsAndTheOption)
{
    ScriptedUserInterface ui;
    Rulebase rulebase;
    TagListForm form;
    form.Initialise(rulebase.DataTypeTags(), TagListForm::DataTypeTags);
    QAbstractItemModelTester tester(form.grid(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    const qint32 row = form.Insert();
    EXPECT_EQ(form.grid()->rowCount(), row);
    form.Delete(row);
    form.SelectTab(1);
    EXPECT_EQ(form.grid()->rowCount(), 10);
    form.SelectTab(0);

    TagListForm controls;
    controls.Initialise(rulebase.ControlTags(), TagListForm::ControlTags);
    QAbstractItemModelTester controlTester(controls.grid(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    controls.setOption(true);
    controls.setOption(false);
    EXPECT_EQ(controls.grid()->rowCount(), 23);
    EXPECT_TRUE(ui.messages.empty());
}
#endif
