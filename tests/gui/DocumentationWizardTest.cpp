#include "application/Application.h"
#include "application/Startup.h"
#include "gui/factory/GuiFormFactory.h"
#include "gui/frmMain.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/Rulebase.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QDialog *openWizard()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == "frmRulebaseDocCreator"_L1)
            return qobject_cast<QDialog *>(widget);
    }
    return nullptr;
}

} // namespace

TEST(DocumentationWizard, OpensFromTheMainWindowAndHandsThePlanBack)
{
    TestEnvironment::clearSettings();
    ScriptedUserInterface ui;
    ASSERT_EQ(CreateGlobalObjects(), 0);
    gobjAdminData->setFirstUse(false);
    gobjAdminData->setDisplayTips(false);
    const QString folder = TestEnvironment::makeTempDir();
    const QString rulebaseFile = folder + u"/Sample.qrb"_s;
    ASSERT_TRUE(QFile::copy(TestEnvironment::sampleRulebase(), rulebaseFile));
    {
        frmMain window(false);
        Application app(&window);
        window.setApplication(&app);
        GuiFormFactory forms(&window);
        IFormFactory::install(&forms);
        window.ShowWindow();
        ASSERT_TRUE(RunStartup(app, rulebaseFile));

        QAction *tool = window.tool(u"tlGenerateDocumentation"_s);
        ASSERT_NE(tool, nullptr);
        ASSERT_TRUE(tool->isEnabled());

        // What the dialog showed, read while it was open.
        QString caption;
        QStringList tabs;
        int sectionRows = 0;
        int ruleRows = 0;
        int checkedTables = 0;
        QString firstSection;
        QString secondSectionAfterMove;
        QString tableTitle;
        bool upEnabledAtTop = true;
        QTimer::singleShot(0, [&] {
            QDialog *wizard = openWizard();
            ASSERT_NE(wizard, nullptr);
            caption = wizard->windowTitle();
            auto *tabWidget = wizard->findChild<QTabWidget *>(u"tbsDocCreator"_s);
            for (int i = 0; tabWidget && i < tabWidget->count(); ++i)
                tabs << tabWidget->tabText(i);
            auto *sections = wizard->findChild<QTreeWidget *>(u"lvwSections"_s);
            auto *rules = wizard->findChild<QTreeWidget *>(u"lvwRules"_s);
            auto *tables = wizard->findChild<QListWidget *>(u"lvwTables"_s);
            ASSERT_TRUE(sections && rules && tables);
            sectionRows = sections->topLevelItemCount();
            ruleRows = rules->topLevelItemCount();
            for (int i = 0; i < tables->count(); ++i)
                checkedTables += tables->item(i)->checkState() == Qt::Checked ? 1 : 0;
            firstSection = sections->topLevelItem(0)->text(0);
            upEnabledAtTop = wizard->findChild<QPushButton *>(u"cmdMoveSectionUp"_s)->isEnabled();
            wizard->findChild<QPushButton *>(u"cmdMoveSectionDown"_s)->click();
            secondSectionAfterMove = sections->topLevelItem(1)->text(0);
            tableTitle = wizard->findChild<QLineEdit *>(u"txtTitle"_s)->text();
            wizard->findChild<QPushButton *>(u"cmdOK"_s)->click();
        });
        // Should a check above fail, the dialog must still go, or the run would hang.
        QTimer::singleShot(30000, &window, [] {
            if (QDialog *wizard = openWizard())
                wizard->done(QDialog::Rejected);
        });
        ui.answers.push_back(MessageResult::No); // not now
        tool->trigger();

        EXPECT_EQ(caption, u"Documentation Wizard"_s);
        EXPECT_EQ(tabs, (QStringList{u"Categories"_s, u"Tables"_s}));
        EXPECT_EQ(sectionRows, 17);
        EXPECT_GT(ruleRows, 0);
        EXPECT_EQ(checkedTables, 6);
        EXPECT_EQ(firstSection, u"Naming"_s);
        EXPECT_FALSE(upEnabledAtTop);
        EXPECT_EQ(secondSectionAfterMove, u"Naming"_s);
        EXPECT_EQ(tableTitle, u"Control Tags"_s);
        EXPECT_EQ(openWizard(), nullptr);
        EXPECT_EQ(ui.messageTexts(),
                  QStringList{u"Do you wish to generate the Rulebase documentation?"_s});
        EXPECT_FALSE(QFile::exists(folder + u"/Sample.html"_s));
        // The plan the dialog left is the rulebase's now, moved section and all.
        EXPECT_TRUE(app.rulebase()->Dirty());

        IFormFactory::install(nullptr);
        app.rulebase()->setDirty(false);
        EXPECT_TRUE(window.close());
    }
    DestroyGlobalObjects();
}
