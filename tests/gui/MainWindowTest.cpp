#include "application/Application.h"
#include "application/Startup.h"
#include "gui/frmMain.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/Rulebase.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include <gtest/gtest.h>

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
        EXPECT_FALSE(window.tool(QStringLiteral("tlSaveRulebase"))->isEnabled());
        EXPECT_EQ(window.findChild<QLabel *>(QStringLiteral("lblStatus"))->text(), QStringLiteral("No rulebase selected."));

        ASSERT_TRUE(RunStartup(app, TestEnvironment::sampleRulebase()));
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Sample.qrb - Quorin Administrator"));
        EXPECT_TRUE(window.tool(QStringLiteral("tlSaveRulebase"))->isEnabled());
        EXPECT_TRUE(window.tool(QStringLiteral("tlCategoryView"))->isChecked());
        EXPECT_FALSE(window.tool(QStringLiteral("tlSeverityView"))->isChecked());

        QStringList menus;
        for (QAction *menu : window.menuBar()->actions())
            menus << menu->text();
        EXPECT_EQ(menus, (QStringList{QStringLiteral("&File"), QStringLiteral("&View"), QStringLiteral("&Rule"),
                                      QStringLiteral("&Tools"), QStringLiteral("&Help")}));
        for (const char *bar : {"tlbFile", "tlbView", "tlbRule", "tlbTools", "lbarMain"})
            EXPECT_NE(window.findChild<QToolBar *>(QLatin1String(bar)), nullptr) << bar;

        // The navigation bar switches views; the toolbar toggles are the window's own.
        window.tool(QStringLiteral("tlSeverityView"))->trigger();
        EXPECT_EQ(app.CurrentViewName(), QStringLiteral("tlSeverityView"));
        window.tool(QStringLiteral("tlRuleToolbar"))->trigger();
        EXPECT_FALSE(window.findChild<QToolBar *>(QStringLiteral("tlbRule"))->isVisible());
        EXPECT_FALSE(window.tool(QStringLiteral("tlRuleToolbar"))->isChecked());

        EXPECT_TRUE(window.close());
        EXPECT_TRUE(ui.messages.empty());
    }
    DestroyGlobalObjects();
}
