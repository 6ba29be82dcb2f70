#pragma once

#include <QString>

class Application;

// The start of a run after the global objects and the Application exist: shows the windows,
// then opens the command line's rulebase, else the newest recent file, else the sample, and on
// first use shows the introduction. Gives false when nothing was opened.
bool RunStartup(Application &application, const QString &commandLine);
