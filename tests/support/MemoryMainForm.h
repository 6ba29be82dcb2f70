#pragma once

#include "support/MemoryListControl.h"
#include "support/MemoryTreeControl.h"
#include "views/IMainForm.h"

#include <QHash>
#include <QStringList>

#include <vector>

// A main window in memory for view and application tests: a real tree and list to fill (none
// when `controls` is false), every text and tool state a view sets, and the calls that matter
// to the order of start-up and commands, to read back.
class MemoryMainForm final : public IMainForm
{
public:
    void Update() override;
    void AddToMRUList(const QString &file) override
    {
        calls << QStringLiteral("AddToMRUList ") + file;
    }
    void RemoveFromMRUList(const QString &file) override
    {
        calls << QStringLiteral("RemoveFromMRUList ") + file;
    }
    void SetCurrentViewTool(const QString &viewName) override;
    void SetHelpContext(int context) override { helpContext = context; }
    void SetBusy(bool busy) override { busyCalls.push_back(busy); }
    void ShowSplashScreen() override { calls << QStringLiteral("Splash"); }
    void ShowWindow() override { calls << QStringLiteral("Window"); }
    // The next tip after the last one shown.
    int RunTipOfDay(int lastTip) override;
    void RunAbout() override { calls << QStringLiteral("About"); }

    TreeControl *tree() override;
    ListControl *list() override;
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
    bool controls = true;
    QStringList calls;
    std::vector<bool> busyCalls;

private:
    QHash<QString, bool> m_tools; // by lower-case tool id
};
