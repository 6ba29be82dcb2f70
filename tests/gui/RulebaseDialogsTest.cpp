#include "editors/TagGridModel.h"
#include "editors/TagListForm.h"
#include "gui/frmMain.h"
#include "rulebase/Rulebase.h"

#include "GuiTestSupport.h"

#include <QAbstractItemModelTester>
#include <QDialog>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using RulebaseDialogs = GuiSample;

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

TEST_F(RulebaseDialogs, TheDocumentationWizardOpensFromTheMainWindowAndHandsThePlanBack)
{
    whenModal(u"frmRulebaseDocCreator"_s, [](QDialog &wizard) {
        EXPECT_EQ(wizard.windowTitle(), u"Documentation Wizard"_s);
        auto *sections = child<QTreeWidget>(wizard, "lvwSections");
        auto *rules = child<QTreeWidget>(wizard, "lvwRules");
        auto *tables = child<QListWidget>(wizard, "lvwTables");
        ASSERT_TRUE(sections && rules && tables);
        EXPECT_EQ(sections->topLevelItemCount(), 17);
        EXPECT_GT(rules->topLevelItemCount(), 0);
        int checked = 0;
        for (int i = 0; i < tables->count(); ++i)
            checked += tables->item(i)->checkState() == Qt::Checked ? 1 : 0;
        EXPECT_EQ(checked, 6);
        EXPECT_EQ(sections->topLevelItem(0)->text(0), u"Naming"_s);
        EXPECT_FALSE(child<QPushButton>(wizard, "cmdMoveSectionUp")->isEnabled());
        click(wizard, "cmdMoveSectionDown");
        EXPECT_EQ(sections->topLevelItem(1)->text(0), u"Naming"_s);
        EXPECT_EQ(child<QLineEdit>(wizard, "txtTitle")->text(), u"Control Tags"_s);
        click(wizard, "cmdOK");
    });
    ui.answers.push_back(MessageResult::No); // not now
    trigger("tlGenerateDocumentation");

    EXPECT_EQ(ui.messageTexts(),
              QStringList{u"Do you wish to generate the Rulebase documentation?"_s});
    EXPECT_FALSE(QFile::exists(QFileInfo(file).absolutePath() + u"/Sample.html"_s));
    // The plan the dialog left is the rulebase's now, moved section and all.
    EXPECT_TRUE(rulebase->Dirty());
    rulebase->setDirty(false);
}
