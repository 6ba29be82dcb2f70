#pragma once

#include <QString>

class Application;

// Runs a tool of the main window by its id, on the Application or on the current view. Gives
// false for the tools that only the window can carry out itself (bars, panes, expanding the
// tree, exit, sub-menus, the preview window) and for tools that do nothing, such as
// tlDocumentationConventions.
bool ExecuteTool(Application &application, const QString &toolId);

// A recent file chosen on the File menu: opened from the list, and moved to its top.
bool OpenRecentFile(Application &application, const QString &filename);
