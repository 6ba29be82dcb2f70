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

using namespace Qt::StringLiterals;

namespace {

using RulebaseDialogs = GuiSample;

} // namespace

TEST_F(RulebaseDialogs, RulebasePropertiesOpenFromTheFileMenuAndWriteOnOK)
{
    bool seen = false;
    whenModal(u"frmRulebaseProperties"_s, [&](QDialog &dialog) {
        seen = true;
        EXPECT_EQ(dialog.windowTitle(), u"Rulebase Properties"_s);
        auto *title = child<QLineEdit>(dialog, "txtTitle");
        EXPECT_EQ(title->text(), rulebase->Title());
        const auto labels = dialog.findChildren<QLabel *>(u"lblSeverityTolerance"_s);
        ASSERT_EQ(labels.size(), 6);
        EXPECT_EQ(labels.last()->text(), u"Total"_s);
        EXPECT_EQ(dialog.findChildren<QLineEdit *>(u"txtToleranceCount"_s).size(), 6);
        auto *ok = child<QPushButton>(dialog, "cmdOK");
        title->setText(QString());
        EXPECT_FALSE(ok->isEnabled());
        title->setText(u"From the dialog"_s);
        EXPECT_TRUE(ok->isEnabled());
        ok->click();
    });
    trigger("tlRulebaseProperties");
    EXPECT_TRUE(seen);
    EXPECT_EQ(rulebase->Title(), u"From the dialog"_s);
}

TEST_F(RulebaseDialogs, TheCategoryListOpensItsEditorAndCloses)
{
    const qint32 categories = rulebase->CategoryList()->Count();
    const QString first = rulebase->CategoryList()->Item(1)->Title();
    bool editorSeen = false;
    whenModal(u"frmCategorySeverity"_s, [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Category List"_s);
        auto *list = child<QTreeWidget>(dialog, "lvwCategorySeverity");
        EXPECT_EQ(list->topLevelItemCount(), categories);
        EXPECT_EQ(list->headerItem()->text(0), u"Available Categories"_s);
        EXPECT_TRUE(child<QPushButton>(dialog, "cmdAdd")->isVisibleTo(&dialog));
        EXPECT_TRUE(child<QPushButton>(dialog, "cmdDelete")->isEnabled());
        whenModal(u"frmCategoryEditor"_s, [&](QDialog &editor) {
            editorSeen = true;
            EXPECT_EQ(child<QLineEdit>(editor, "txtTitle")->text(), first);
            child<QLineEdit>(editor, "txtTitle")->setText(u"Not kept"_s);
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
    whenModal(u"frmTagList"_s, [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Control Tags"_s);
        auto *grid = child<QTableView>(dialog, "grdTags");
        EXPECT_EQ(grid->model()->rowCount(), controls);
        EXPECT_FALSE(child<QTabBar>(dialog, "tbsTagList")->isVisibleTo(&dialog));
        click(dialog, "cmdInsert");
        EXPECT_EQ(grid->model()->rowCount(), controls + 1);
        click(dialog, "cmdCancel");
    });
    trigger("tlControlTags");
    EXPECT_EQ(rulebase->ControlTags()->Count(), controls);

    whenModal(u"frmTagList"_s, [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Data Type Tags"_s);
        auto *tabs = child<QTabBar>(dialog, "tbsTagList");
        EXPECT_EQ(tabs->count(), 2);
        tabs->setCurrentIndex(1);
        EXPECT_FALSE(child<QPushButton>(dialog, "cmdInsert")->isEnabled());
        EXPECT_TRUE(child<QLineEdit>(dialog, "txtArrayTagValue")->isVisibleTo(&dialog));
        click(dialog, "cmdCancel");
    });
    trigger("tlDataTags");

    whenModal(u"frmTagList"_s, [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Scope Tags"_s);
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
    QAbstractItemModelTester tester(form.grid(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal);
    const qint32 row = form.Insert();
    EXPECT_EQ(form.grid()->rowCount(), row);
    form.Delete(row);
    form.SelectTab(1);
    EXPECT_EQ(form.grid()->rowCount(), 10);
    form.SelectTab(0);

    TagListForm controls;
    controls.Initialise(rulebase.ControlTags(), TagListForm::ControlTags);
    QAbstractItemModelTester controlTester(controls.grid(),
                                           QAbstractItemModelTester::FailureReportingMode::Fatal);
    controls.setOption(true);
    controls.setOption(false);
    EXPECT_EQ(controls.grid()->rowCount(), 23);
    EXPECT_TRUE(ui.messages.empty());
}
#endif
