#include "application/Application.h"
#include "application/Startup.h"
#include "gui/factory/GuiFormFactory.h"
#include "gui/frmMain.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/ViolationDefinition.h"
#include "views/IViewController.h"
#include "controls/ListControl.h"
#include "controls/TreeControl.h"
#include "views/ViewFactory.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>

#include "GuiTestSupport.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

class ConventionDialogs : public GuiSample
{
protected:
    std::shared_ptr<IRule> findByTitle(const QString &title)
    {
        const auto all = app->rulebase()->RuleLists()->AllConventions();
        for (qint32 i = 1; i <= all->Count(); ++i) {
            if (all->Item(i)->Title() == title)
                return all->Item(i);
        }
        return nullptr;
    }
};

} // namespace

TEST_F(ConventionDialogs, CreatesACodingConventionFromTheMainWindowAndSavesIt)
{
    window->tool(QStringLiteral("tlCodingConventions"))->trigger();
    ASSERT_EQ(app->CurrentViewName(), QStringLiteral("tlCodingConventions"));
    TreeControl *tree = window->tree();
    const int procedureBody = tree->find(QStringLiteral("30Key"));
    ASSERT_NE(procedureBody, 0);
    tree->setSelectedItem(procedureBody);

    bool seen = false;
    whenModal(QStringLiteral("frmCodingConvention"), [&](QDialog &dialog) {
        seen = true;
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Coding Convention"));
        auto *tabs = child<QTabWidget>(dialog, "tbsConvention");
        ASSERT_EQ(tabs->count(), 4);
        EXPECT_EQ(tabs->tabText(1), QStringLiteral("Event"));
        // The node selected in the main window is ticked already.
        auto *events = child<QTreeWidget>(dialog, "tvwEvent");
        int ticked = 0;
        for (QTreeWidgetItemIterator it(events); *it; ++it)
            ticked += (*it)->checkState(0) == Qt::Checked;
        EXPECT_EQ(ticked, 1);

        // OK without a title is refused on the first tab, with the title focused.
        tabs->setCurrentIndex(3);
        click(dialog, "cmdOK");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(tabs->currentIndex(), 0);
        ASSERT_FALSE(ui.messages.empty());
        EXPECT_EQ(ui.messages.back().text,
                  QStringLiteral("Please enter a title for the coding convention."));

        child<QLineEdit>(dialog, "txtTitle")->setText(QStringLiteral("No Stop statements"));
        child<QPlainTextEdit>(dialog, "txtCondition")
            ->setPlainText(QStringLiteral("Sub Main\r\nEnd Sub"));
        child<QLineEdit>(dialog, "txtVTitle")->setText(QStringLiteral("Stop statement found"));
        auto *severity = child<QComboBox>(dialog, "cboSeverity");
        severity->setCurrentIndex(2);
        EXPECT_EQ(child<QLineEdit>(dialog, "txtVImpact")->text(), QStringLiteral("500"));
        click(dialog, "cmdOK");
    });
    window->tool(QStringLiteral("tlCodingConvention"))->trigger();
    ASSERT_TRUE(seen);

    const auto rule = std::dynamic_pointer_cast<CodingConvention>(
        findByTitle(QStringLiteral("No Stop statements")));
    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->ParserEventList(), QStringLiteral("30"));
    EXPECT_EQ(rule->ViolationDefinition()->Severity(), 3);
    EXPECT_EQ(rule->ViolationDefinition()->Impact(), 500);
    EXPECT_NE(window->list()->find(rule->RuleKey()), 0);
    EXPECT_TRUE(app->rulebase()->Dirty());

    window->tool(QStringLiteral("tlSaveRulebase"))->trigger();
    EXPECT_FALSE(app->rulebase()->Dirty());
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(saved.readAll());
    EXPECT_TRUE(text.contains(QStringLiteral("No Stop statements")));
    EXPECT_TRUE(text.contains(QStringLiteral("Stop statement found")));
}

TEST_F(ConventionDialogs, OpensARowWithEnterAndCancelWritesNothing)
{
    window->tool(QStringLiteral("tlCodingConventions"))->trigger();
    ListControl *list = window->list();
    ASSERT_GT(list->count(), 0);
    const QString key = list->key(1);
    const auto rule = app->rulebase()->RuleLists()->AllConventions()->Item(key);
    const QString title = rule->Title();
    list->setSelectedItem(1);
    window->lvwMain()->setCurrentIndex(window->lvwMain()->model()->index(0, 0));
    app->rulebase()->setDirty(false);

    // Changed, then closed with Escape: the rule stays as it was.
    whenModal(QStringLiteral("frmCodingConvention"), [&](QDialog &dialog) {
        EXPECT_EQ(child<QLineEdit>(dialog, "txtTitle")->text(), title);
        child<QLineEdit>(dialog, "txtTitle")->setText(QStringLiteral("Changed and dropped"));
        dialog.reject();
    });
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(window->lvwMain(), &enter);
    EXPECT_EQ(rule->Title(), title);
    EXPECT_FALSE(app->rulebase()->Dirty());

    // Renamed through OK: the row follows.
    whenModal(QStringLiteral("frmCodingConvention"), [&](QDialog &dialog) {
        child<QLineEdit>(dialog, "txtTitle")->setText(QStringLiteral("Renamed in the dialog"));
        click(dialog, "cmdOK");
    });
    window->tool(QStringLiteral("tlOpenRule"))->trigger();
    EXPECT_EQ(rule->Title(), QStringLiteral("Renamed in the dialog"));
    const int row = list->find(key);
    ASSERT_NE(row, 0);
    EXPECT_EQ(list->subItemText(row, 1), QStringLiteral("Renamed in the dialog"));
}

TEST_F(ConventionDialogs, NamingAndKeywordDialogsCarryTheirControls)
{
    window->tool(QStringLiteral("tlNamingConventions"))->trigger();
    const int variables = window->tree()->find(QStringLiteral("28Key"));
    ASSERT_NE(variables, 0);
    window->tree()->setSelectedItem(variables);
    whenModal(QStringLiteral("frmNamingConvention"), [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Naming Convention"));
        auto *tabs = child<QTabWidget>(dialog, "tbsConvention");
        QStringList captions;
        for (int i = 0; i < tabs->count(); ++i)
            captions << tabs->tabText(i);
        EXPECT_EQ(captions,
                  (QStringList{"Rule", "Condition", "Prefix", "Body", "Suffix", "Violation"}));
        EXPECT_EQ(child<QComboBox>(dialog, "imgcboObject")->currentText().trimmed(),
                  QStringLiteral("Variable"));
        // Rows open top-down as kinds are chosen.
        auto *active = child<QCheckBox>(dialog, "chkPrefixActive");
        auto *second = child<QComboBox>(dialog, "cboPrefix_1");
        EXPECT_FALSE(child<QComboBox>(dialog, "cboPrefix_0")->isEnabled());
        active->setChecked(true);
        EXPECT_TRUE(child<QComboBox>(dialog, "cboPrefix_0")->isEnabled());
        EXPECT_FALSE(second->isEnabled());
        child<QComboBox>(dialog, "cboPrefix_0")->setCurrentIndex(1);
        EXPECT_TRUE(second->isEnabled());
        EXPECT_TRUE(child<QLineEdit>(dialog, "txtPrefix_0")->isEnabled());
        for (const char *name : {"txtBody_0",
                                 "txtBody_1",
                                 "txtBody_2",
                                 "txtSuffix_3",
                                 "cmdObjectProperty_5",
                                 "cmdDelete",
                                 "txtExclusionList",
                                 "chkCaseSensitive",
                                 "imgcboProperty",
                                 "imgIcon"})
            EXPECT_NE(dialog.findChild<QWidget *>(QLatin1String(name)), nullptr) << name;
        click(dialog, "cmdOK");
        EXPECT_EQ(ui.messages.back().text,
                  QStringLiteral("Please enter a title for the naming convention."));
        click(dialog, "cmdCancel");
    });
    const int before = app->rulebase()->RuleLists()->NamingConventions()->Count();
    window->tool(QStringLiteral("tlNamingConvention"))->trigger();
    EXPECT_EQ(app->rulebase()->RuleLists()->NamingConventions()->Count(), before);

    window->tool(QStringLiteral("tlCategoryView"))->trigger();
    whenModal(QStringLiteral("frmUnauthorisedKeyword"), [&](QDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Unauthorised Keyword"));
        child<QLineEdit>(dialog, "txtTitle")->setText(QStringLiteral("No End"));
        child<QLineEdit>(dialog, "txtCondition")->setText(QStringLiteral("^End("));
        // The pattern test over the keyword's pattern: a fault is shown, OK takes the pattern back.
        whenModal(QStringLiteral("frmPatternTest"), [&](QDialog &test) {
            EXPECT_EQ(test.windowTitle(), QStringLiteral("Pattern Test"));
            EXPECT_EQ(child<QLineEdit>(test, "txtPattern")->text(), QStringLiteral("^End("));
            click(test, "cmdTest");
            EXPECT_TRUE(ui.messages.back().text.startsWith(
                QStringLiteral("There is a missing ')' in the regular expression.")));
            child<QLineEdit>(test, "txtPattern")->setText(QStringLiteral("^End$"));
            click(test, "cmdOK");
        });
        click(dialog, "cmdTest");
        EXPECT_EQ(child<QLineEdit>(dialog, "txtCondition")->text(), QStringLiteral("^End$"));
        child<QCheckBox>(dialog, "chkProcedureBody")->setChecked(true);
        child<QLineEdit>(dialog, "txtVTitle")->setText(QStringLiteral("End used"));
        click(dialog, "cmdOK");
    });
    window->tool(QStringLiteral("tlUnauthorisedKeyword"))->trigger();
    const auto keyword = findByTitle(QStringLiteral("No End"));
    ASSERT_TRUE(keyword);
    EXPECT_EQ(keyword->Condition(), QStringLiteral("^End$"));
    EXPECT_NE(window->list()->find(keyword->RuleKey()), 0);
}

TEST_F(ConventionDialogs, CloneMarkAndDeleteFromTheMainWindowInEveryRuleView)
{
    const auto lists = app->rulebase()->RuleLists();
    for (const char *view :
         {"tlCodingConventions", "tlNamingConventions", "tlCategoryView", "tlSeverityView"}) {
        SCOPED_TRACE(view);
        window->tool(QLatin1String(view))->trigger();
        ListControl *list = window->list();
        ASSERT_GT(list->count(), 0);
        const int rows = list->count();
        const int all = lists->AllConventions()->Count();
        list->setSelectedItem(1);
        const QString key = list->key(1);

        window->tool(QStringLiteral("tlRuleInactive"))->trigger();
        EXPECT_FALSE(lists->AllConventions()->Item(key)->RuleActive());
        EXPECT_EQ(list->foreColor(list->find(key)), 255);
        window->tool(QStringLiteral("tlRuleActive"))->trigger();
        EXPECT_TRUE(lists->AllConventions()->Item(key)->RuleActive());

        window->tool(QStringLiteral("tlCloneRule"))->trigger();
        EXPECT_EQ(lists->AllConventions()->Count(), all + 1);
        EXPECT_EQ(list->count(), rows + 1);

        // The clone is the newest rule; it alone goes.
        const auto clone = lists->AllConventions()->Item(lists->AllConventions()->Count());
        EXPECT_TRUE(clone->Title().startsWith(QStringLiteral("Clone of ")));
        for (int row = 1; row <= list->count(); ++row)
            list->setSelected(row, list->key(row) == clone->RuleKey());
        ui.answers.push_back(MessageResult::Yes);
        window->tool(QStringLiteral("tlDeleteRule"))->trigger();
        EXPECT_EQ(lists->AllConventions()->Count(), all);
        EXPECT_EQ(list->count(), rows);
        EXPECT_EQ(list->find(clone->RuleKey()), 0);
        EXPECT_EQ(ui.unscriptedQuestions, 0);
    }
}
