#pragma once

#include <QString>

class ListControl;
class TreeControl;

// What the Application asks of its main window. The GUI's frmMain implements it; tests use a
// recording fake, so the start-up order and the commands run without widgets.
class IMainForm
{
public:
    virtual ~IMainForm() = default;

    // Caption from the rulebase, then the enable state of the tools.
    virtual void Update() = 0;
    virtual void AddToMRUList(const QString &filename) = 0;
    virtual void RemoveFromMRUList(const QString &filename) = 0;
    // Checks the tool of the view (and no other view tool) and shows its image as the current view.
    virtual void SetCurrentViewTool(const QString &viewName) = 0;
    virtual void SetHelpContext(int context) = 0;
    // The hourglass while a long command runs.
    virtual void SetBusy(bool busy) = 0;

    // Start-up: the splash (which closes itself), the window itself, the tip of the day (modal;
    // gives the last tip shown), the about box (modal).
    virtual void ShowSplashScreen() = 0;
    virtual void ShowWindow() = 0;
    virtual int RunTipOfDay(int lastTip) = 0;
    virtual void RunAbout() = 0;

    // What the current view borrows. The tree and list are nullptr while the window has none.
    virtual TreeControl *tree() = 0;
    virtual ListControl *list() = 0;
    virtual void setDocumentation(const QString &text) = 0;
    virtual void setStatusText(const QString &text) = 0;
    virtual void setTreeTitle(const QString &text) = 0;
    virtual void setListTitle(const QString &text) = 0;
    // The picture at the right end of the list title: an image of the tree's image list.
    virtual void setListHeaderImage(const QString &image) = 0;
    // "There are no items to show in this view." over the list.
    virtual void setNoItemsVisible(bool visible) = 0;
    virtual void setToolEnabled(const QString &toolId, bool enabled) = 0;
};
