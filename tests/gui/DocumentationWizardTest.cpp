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

namespace {

QDialog *openWizard()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == QLatin1String("frmRulebaseDocCreator"))
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
    const QString rulebaseFile = folder + QStringLiteral("/Sample.qrb");
    ASSERT_TRUE(QFile::copy(TestEnvironment::sampleRulebase(), rulebaseFile));
    {
        frmMain window(false);
        Application app(&window);
        window.setApplication(&app);
        GuiFormFactory forms(&window);
        IFormFactory::install(&forms);
        window.ShowWindow();
        ASSERT_TRUE(RunStartup(app, rulebaseFile));

        QAction *tool = window.tool(QStringLiteral("tlGenerateDocumentation"));
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
            auto *tabWidget = wizard->findChild<QTabWidget *>(QStringLiteral("tbsDocCreator"));
            for (int i = 0; tabWidget && i < tabWidget->count(); ++i)
                tabs << tabWidget->tabText(i);
            auto *sections = wizard->findChild<QTreeWidget *>(QStringLiteral("lvwSections"));
            auto *rules = wizard->findChild<QTreeWidget *>(QStringLiteral("lvwRules"));
            auto *tables = wizard->findChild<QListWidget *>(QStringLiteral("lvwTables"));
            ASSERT_TRUE(sections && rules && tables);
            sectionRows = sections->topLevelItemCount();
            ruleRows = rules->topLevelItemCount();
            for (int i = 0; i < tables->count(); ++i)
                checkedTables += tables->item(i)->checkState() == Qt::Checked ? 1 : 0;
            firstSection = sections->topLevelItem(0)->text(0);
            upEnabledAtTop
                = wizard->findChild<QPushButton *>(QStringLiteral("cmdMoveSectionUp"))->isEnabled();
            wizard->findChild<QPushButton *>(QStringLiteral("cmdMoveSectionDown"))->click();
            secondSectionAfterMove = sections->topLevelItem(1)->text(0);
            tableTitle = wizard->findChild<QLineEdit *>(QStringLiteral("txtTitle"))->text();
            wizard->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
        });
        // Should a check above fail, the dialog must still go, or the run would hang.
        QTimer::singleShot(30000, &window, [] {
            if (QDialog *wizard = openWizard())
                wizard->done(QDialog::Rejected);
        });
        ui.answers.push_back(MessageResult::No); // not now
        tool->trigger();

        EXPECT_EQ(caption, QStringLiteral("Documentation Wizard"));
        EXPECT_EQ(tabs, (QStringList{QStringLiteral("Categories"), QStringLiteral("Tables")}));
        EXPECT_EQ(sectionRows, 17);
        EXPECT_GT(ruleRows, 0);
        EXPECT_EQ(checkedTables, 6);
        EXPECT_EQ(firstSection, QStringLiteral("Naming"));
        EXPECT_FALSE(upEnabledAtTop);
        EXPECT_EQ(secondSectionAfterMove, QStringLiteral("Naming"));
        EXPECT_EQ(tableTitle, QStringLiteral("Control Tags"));
        EXPECT_EQ(openWizard(), nullptr);
        EXPECT_EQ(
            ui.messageTexts(),
            QStringList{QStringLiteral("Do you wish to generate the Rulebase documentation?")});
        EXPECT_FALSE(QFile::exists(folder + QStringLiteral("/Sample.html")));
        // The plan the dialog left is the rulebase's now, moved section and all.
        EXPECT_TRUE(app.rulebase()->Dirty());

        IFormFactory::install(nullptr);
        app.rulebase()->setDirty(false);
        EXPECT_TRUE(window.close());
    }
    DestroyGlobalObjects();
}
