#pragma once

#include "application/IMainForm.h"
#include "views/MemoryListControl.h"
#include "views/MemoryTreeControl.h"

#include <QHash>
#include <QStringList>

// A main window in memory for view tests: a real tree and list to fill, and every text and
// tool state a view sets, to read back.
class MemoryMainForm final : public IMainForm
{
public:
    void Update() override { ++updates; }
    void AddToMRUList(const QString &) override {}
    void RemoveFromMRUList(const QString &) override {}
    void SetCurrentViewTool(const QString &viewName) override { currentViewTool = viewName; }
    void SetHelpContext(int context) override { helpContext = context; }
    void SetBusy(bool) override {}
    void ShowSplashScreen() override {}
    void ShowWindow() override {}
    int RunTipOfDay(int lastTip) override { return lastTip; }
    void RunAbout() override {}

    TreeControl *tree() override { return &treeControl; }
    ListControl *list() override { return &listControl; }
    void setDocumentation(const QString &text) override { documentation = text; }
    void setStatusText(const QString &text) override { statusText = text; }
    void setTreeTitle(const QString &text) override { treeTitle = text; }
    void setListTitle(const QString &text) override { listTitle = text; }
    void setListHeaderImage(const QString &image) override { listHeaderImage = image; }
    void setNoItemsVisible(bool visible) override { noItemsVisible = visible; }
    void setToolEnabled(const QString &toolId, bool enabled) override;

    // A tool never set reads as disabled.
    bool toolEnabled(const QString &toolId) const;

    MemoryTreeControl treeControl;
    MemoryListControl listControl;
    QString documentation;
    QString statusText;
    QString treeTitle;
    QString listTitle;
    QString listHeaderImage;
    bool noItemsVisible = false;
    QString currentViewTool;
    int helpContext = 0;
    int updates = 0;

private:
    QHash<QString, bool> m_tools; // by lower-case tool id
};
