#include "StartedMainWindow.h"

#include "application/Startup.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include "support/TestEnvironment.h"

StartedMainWindow::Globals::Globals()
{
    TestEnvironment::clearSettings();
    made = CreateGlobalObjects() == 0;
    if (made) {
        gobjAdminData->setFirstUse(false);
        gobjAdminData->setDisplayTips(false);
    }
}

StartedMainWindow::Globals::~Globals()
{
    if (made)
        DestroyGlobalObjects();
}

StartedMainWindow::StartedMainWindow(const QString &rulebase)
    : app(&window, createView)
{
    IFormFactory::install(&forms);
    window.setApplication(&app);
    window.ShowWindow();
    started = m_globals.made && RunStartup(app, rulebase);
}

StartedMainWindow::~StartedMainWindow()
{
    IFormFactory::install(nullptr);
}
