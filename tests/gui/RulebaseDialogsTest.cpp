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
