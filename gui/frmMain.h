#pragma once

#include "views/IMainForm.h"

#include <QHash>
#include <QMainWindow>

#include <memory>

class Application;
class MRUUtils;
class QAction;
class QLabel;
class QMenu;
class QSplitter;
class frmPreview;
class QtListControl;
class QtTreeControl;
class QTextBrowser;
class QToolBar;
class QTreeView;
struct BandDefinition;

// The main window: tree, rule list and documentation pane, with the menus, toolbars and
// navigation bar built from the command table. It shows what the Application and the current
// view tell it, and decides nothing about rules.
class frmMain final : public QMainWindow, public IMainForm
{
    Q_OBJECT

public:
    explicit frmMain(bool interactive, QWidget *parent = nullptr);
    ~frmMain() override;

    // Tools of views that can't be made yet are disabled, saying so.
    void setApplication(Application *application);

    QTreeView *tvwMain() const { return m_tree; }
    QTreeView *lvwMain() const { return m_list; }
    QTextBrowser *txtDocumentation() const { return m_documentation; }
    // The action of a tool id, or nullptr.
    QAction *tool(const QString &toolId) const;

    // IMainForm
    void Update() override;
    void AddToMRUList(const QString &filename) override;
    void RemoveFromMRUList(const QString &filename) override;
    void SetCurrentViewTool(const QString &viewName) override;
    void SetHelpContext(int context) override { m_helpContext = context; }
    void SetBusy(bool busy) override;
    void ShowSplashScreen() override;
    void ShowWindow() override;
    int RunTipOfDay(int lastTip) override;
    void RunAbout() override;
    TreeControl *tree() override;
    ListControl *list() override;
    void setDocumentation(const QString &text) override;
    void setStatusText(const QString &text) override;
    void setTreeTitle(const QString &text) override;
    void setListTitle(const QString &text) override;
    void setListHeaderImage(const QString &image) override;
    void setNoItemsVisible(bool visible) override;
    void setToolEnabled(const QString &toolId, bool enabled) override;

    void ExpandCollapseAll(bool expand);

    // The help page of the current view (or of the window before any view).
    void showContextHelp();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createActions();
    QMenu *buildMenu(const BandDefinition &band, QWidget *parent);
    void createBars();
    void toolClicked(const QString &toolId);
    bool runWindowTool(const QString &toolId);
    void previewProject();
    void rebuildRecentFiles();
    void updateRuleActiveTools();
    void restoreWindowState();
    void restorePaneSizes();
    void saveWindowState();
    void SetEnabledState();

    Application *m_application = nullptr;
    bool m_interactive;
    int m_helpContext = 0;
    std::unique_ptr<MRUUtils> m_mru;

    QSplitter *m_mainSplitter = nullptr;
    QSplitter *m_leftSplitter = nullptr;
    QTreeView *m_tree = nullptr;
    QTreeView *m_list = nullptr;
    QtTreeControl *m_treeControl = nullptr; // owned by m_tree
    QtListControl *m_listControl = nullptr; // owned by m_list
    QLabel *m_treeTitle = nullptr;
    QLabel *m_listTitle = nullptr;
    QLabel *m_listHeaderImage = nullptr;
    QLabel *m_noItems = nullptr; // over the list's viewport
    QTextBrowser *m_documentation = nullptr;
    QLabel *m_status = nullptr;
    QToolBar *m_navigation = nullptr;
    QMenu *m_fileMenu = nullptr;
    QAction *m_recentAnchor = nullptr;
    QList<QAction *> m_recentActions;
    QHash<QString, QAction *> m_actions;   // by lower-case tool id
    QHash<QString, QToolBar *> m_toolbars; // by tool id of their toggle
    QHash<QString, QMenu *> m_popups;      // by band id
    frmPreview *m_preview = nullptr;       // made on first use; a child window
};
