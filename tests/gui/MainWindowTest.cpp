#include "application/Application.h"
#include "application/HelpTopics.h"
#include "application/Startup.h"
#include "controls/TreeControl.h"
#include "gui/frmMain.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/Rulebase.h"
#include "views/CommandTable.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include "GuiTestSupport.h"
#include "support/TestEnvironment.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QToolBar>
#include <QTreeView>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using SampleWindow = GuiSample;

TEST(MainWindow, OpensTheSampleWithItsMenusAndClosesWithoutAsking)
{
    TestEnvironment::clearSettings();
    ScriptedUserInterface ui;
    ASSERT_EQ(CreateGlobalObjects(), 0);
    gobjAdminData->setFirstUse(false);
    gobjAdminData->setDisplayTips(false);
    {
        frmMain window(false);
        Application app(&window);
        window.setApplication(&app);

        // Before a rulebase: no document tools, and the status says so.
        window.ShowWindow();
        window.Update();
        EXPECT_FALSE(window.tool(u"tlSaveRulebase"_s)->isEnabled());
        EXPECT_EQ(window.findChild<QLabel *>(u"lblStatus"_s)->text(), u"No rulebase selected."_s);

        ASSERT_TRUE(RunStartup(app, TestEnvironment::sampleRulebase()));
        EXPECT_EQ(window.windowTitle(), u"Sample.qrb - Quorin Administrator"_s);
        EXPECT_TRUE(window.tool(u"tlSaveRulebase"_s)->isEnabled());
        EXPECT_TRUE(window.tool(u"tlCategoryView"_s)->isChecked());
        EXPECT_FALSE(window.tool(u"tlSeverityView"_s)->isChecked());

        QStringList menus;
        for (QAction *menu : window.menuBar()->actions())
            menus << menu->text();
        EXPECT_EQ(menus,
                  (QStringList{u"&File"_s, u"&View"_s, u"&Rule"_s, u"&Tools"_s, u"&Help"_s}));
        for (const char *bar : {"tlbFile", "tlbView", "tlbRule", "tlbTools", "lbarMain"})
            EXPECT_NE(window.findChild<QToolBar *>(QLatin1String(bar)), nullptr) << bar;

        // The navigation bar switches views; the toolbar toggles are the window's own.
        window.tool(u"tlSeverityView"_s)->trigger();
        EXPECT_EQ(app.CurrentViewName(), u"tlSeverityView"_s);
        window.tool(u"tlRuleToolbar"_s)->trigger();
        EXPECT_FALSE(window.findChild<QToolBar *>(u"tlbRule"_s)->isVisible());
        EXPECT_FALSE(window.tool(u"tlRuleToolbar"_s)->isChecked());

        EXPECT_TRUE(window.close());
        EXPECT_TRUE(ui.messages.empty());
    }
    DestroyGlobalObjects();
}

TEST_F(SampleWindow, EveryViewCanBeShownAndF1OpensItsPage)
{
    window->resize(900, 600);
    QApplication::processEvents();

    for (const QString &id : CommandTable::viewTools()) {
        QAction *tool = window->tool(id);
        const bool built = createView(id) != nullptr;
        // A view that is not built yet is disabled and says so; the others switch.
        EXPECT_EQ(tool->isEnabled(), built) << id.toStdString();
        if (!built) {
            EXPECT_TRUE(tool->toolTip().contains(u"later"_s)) << id.toStdString();
            continue;
        }
        tool->trigger();
        EXPECT_EQ(app->CurrentViewName(), id);
        EXPECT_TRUE(tool->isChecked());
        EXPECT_GT(window->tree()->count(), 0) << id.toStdString();
        EXPECT_FALSE(window->findChild<QLabel *>(u"lblTreeViewTitle"_s)->text().isEmpty());

        window->showContextHelp();
        ASSERT_FALSE(ui.helpRequests.empty());
        const HelpRequest &help = ui.helpRequests.back();
        EXPECT_EQ(help.command, HelpCommand::Context);
        EXPECT_FALSE(HelpTopics::pageForContext(help.context).isEmpty()) << help.context;
    }
    window->tool(u"tlCategoryView"_s)->trigger();
    window->showContextHelp();
    EXPECT_EQ(ui.helpRequests.back().context, 68);
    EXPECT_EQ(HelpTopics::pageForContext(68), u"CategoryView.htm"_s);

    // Rows carry their severity's picture, and the list header the selected node's.
    const QModelIndex first = window->lvwMain()->model()->index(0, 0);
    EXPECT_FALSE(first.data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_FALSE(window->findChild<QLabel *>(u"imgListHeader"_s)->pixmap().isNull());
    EXPECT_FALSE(window->tool(u"tlSaveRulebase"_s)->icon().isNull());
}

TEST_F(SampleWindow, AFailedOpenLeavesTheWindowLiveAndAPartLoadSaysSoUntilSaved)
{
    const QString dir = TestEnvironment::makeTempDir() + QLatin1Char('/');
    const QString bad = dir + u"bad.qrb"_s;
    const QString part = dir + u"part.qrb"_s;
    const QByteArray bytes = TestEnvironment::readFile(file);
    TestEnvironment::writeFile(bad, bytes.left(400));
    TestEnvironment::writeFile(
        part,
        QByteArray(bytes).replace("<CategoryList LastID=\"14\">", "<CategoryList LastID=\"x\">"));
    const QString title = window->windowTitle();

    // Not saved first, and the open fails: the edit is still there to save, and closing asks.
    rulebase->setTitle(u"Edited"_s);
    ui.answers = {MessageResult::No};
    EXPECT_FALSE(app->OpenRulebase(Application::OpenMode::CommandLine, bad));
    EXPECT_EQ(window->windowTitle(), title);
    EXPECT_TRUE(window->tool(u"tlSaveRulebase"_s)->isEnabled());
    EXPECT_EQ(app->rulebase()->Title(), u"Edited"_s);
    ui.answers = {MessageResult::Cancel};
    EXPECT_FALSE(window->close());
    EXPECT_EQ(ui.messages.back().text,
              u"The current rulebase has changed, do you wish to save the changes?"_s);

    ui.answers = {MessageResult::No};
    ASSERT_TRUE(app->OpenRulebase(Application::OpenMode::CommandLine, part));
    EXPECT_EQ(window->windowTitle(), u"part.qrb (loaded in part) - Quorin Administrator"_s);
    ui.answers = {MessageResult::Yes};
    window->tool(u"tlSaveRulebase"_s)->trigger();
    EXPECT_EQ(window->windowTitle(), u"part.qrb - Quorin Administrator"_s);
    EXPECT_EQ(ui.unscriptedQuestions, 0);
}
