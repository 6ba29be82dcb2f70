#include "application/Application.h"
#include "controls/ListControl.h"
#include "controls/TreeControl.h"
#include "gui/frmMain.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/ViolationDefinition.h"

#include "GuiTestSupport.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTreeView>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using ConventionDialogs = GuiSample;

TEST_F(ConventionDialogs, CreatesACodingConventionFromTheMainWindowAndSavesIt)
{
    window->tool(u"tlCodingConventions"_s)->trigger();
    ASSERT_EQ(app->CurrentViewName(), u"tlCodingConventions"_s);
    TreeControl *tree = window->tree();
    const int procedureBody = tree->find(u"30Key"_s);
    ASSERT_NE(procedureBody, 0);
    tree->setSelectedItem(procedureBody);

    bool seen = false;
    whenModal(u"frmCodingConvention"_s, [&](QDialog &dialog) {
        seen = true;
        EXPECT_EQ(dialog.windowTitle(), u"Coding Convention"_s);
        auto *tabs = child<QTabWidget>(dialog, "tbsConvention");
        ASSERT_EQ(tabs->count(), 4);
        EXPECT_EQ(tabs->tabText(1), u"Event"_s);
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
        EXPECT_EQ(ui.messages.back().text, u"Please enter a title for the coding convention."_s);

        child<QLineEdit>(dialog, "txtTitle")->setText(u"No Stop statements"_s);
        child<QPlainTextEdit>(dialog, "txtCondition")->setPlainText(u"Sub Main\r\nEnd Sub"_s);
        child<QLineEdit>(dialog, "txtVTitle")->setText(u"Stop statement found"_s);
        auto *severity = child<QComboBox>(dialog, "cboSeverity");
        severity->setCurrentIndex(2);
        EXPECT_EQ(child<QLineEdit>(dialog, "txtVImpact")->text(), u"500"_s);
        click(dialog, "cmdOK");
    });
    window->tool(u"tlCodingConvention"_s)->trigger();
    ASSERT_TRUE(seen);

    const auto rule = std::dynamic_pointer_cast<CodingConvention>(
        firstRule([](const IRule &r) { return r.Title() == "No Stop statements"_L1; }));
    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->ParserEventList(), u"30"_s);
    EXPECT_EQ(rule->ViolationDefinition()->Severity(), 3);
    EXPECT_EQ(rule->ViolationDefinition()->Impact(), 500);
    EXPECT_NE(window->list()->find(rule->RuleKey()), 0);
    EXPECT_TRUE(rulebase->Dirty());

    window->tool(u"tlSaveRulebase"_s)->trigger();
    EXPECT_FALSE(rulebase->Dirty());
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(saved.readAll());
    EXPECT_TRUE(text.contains(u"No Stop statements"_s));
    EXPECT_TRUE(text.contains(u"Stop statement found"_s));
}

TEST_F(ConventionDialogs, OpensARowWithEnterAndCancelWritesNothing)
{
    window->tool(u"tlCodingConventions"_s)->trigger();
    ListControl *list = window->list();
    ASSERT_GT(list->count(), 0);
    const QString key = list->key(1);
    const auto rule = rulebase->RuleLists()->AllConventions()->Item(key);
    const QString title = rule->Title();
    list->setSelectedItem(1);
    window->lvwMain()->setCurrentIndex(window->lvwMain()->model()->index(0, 0));
    rulebase->setDirty(false);

    // Changed, then closed with Escape: the rule stays as it was.
    whenModal(u"frmCodingConvention"_s, [&](QDialog &dialog) {
        EXPECT_EQ(child<QLineEdit>(dialog, "txtTitle")->text(), title);
        child<QLineEdit>(dialog, "txtTitle")->setText(u"Changed and dropped"_s);
        dialog.reject();
    });
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(window->lvwMain(), &enter);
    EXPECT_EQ(rule->Title(), title);
    EXPECT_FALSE(rulebase->Dirty());

    // Renamed through OK: the row follows.
    whenModal(u"frmCodingConvention"_s, [&](QDialog &dialog) {
        child<QLineEdit>(dialog, "txtTitle")->setText(u"Renamed in the dialog"_s);
        click(dialog, "cmdOK");
    });
    window->tool(u"tlOpenRule"_s)->trigger();
    EXPECT_EQ(rule->Title(), u"Renamed in the dialog"_s);
    const int row = list->find(key);
    ASSERT_NE(row, 0);
    EXPECT_EQ(list->subItemText(row, 1), u"Renamed in the dialog"_s);
}
