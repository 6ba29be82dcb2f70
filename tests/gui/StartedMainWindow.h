#pragma once

#include "application/Application.h"
#include "gui/factory/GuiFormFactory.h"
#include "gui/frmMain.h"

#include <QString>

// The main window as the program starts it on a rulebase, over fresh settings and global
// objects, with the real forms installed; all of it goes with this, the globals last. A test
// asserts `started` before anything else; it closes the window itself.
class StartedMainWindow final
{
    struct Globals final
    {
        Globals();
        ~Globals();
        bool made = false;
    };
    Globals m_globals; // first: made before the window and gone after it

public:
    explicit StartedMainWindow(const QString &rulebase);
    ~StartedMainWindow();
    StartedMainWindow(const StartedMainWindow &) = delete;
    StartedMainWindow &operator=(const StartedMainWindow &) = delete;

    frmMain window{false};
    GuiFormFactory forms{&window};
    Application app;
    bool started = false;
};
