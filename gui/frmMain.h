#pragma once

#include "application/IMainForm.h"

#include <QMainWindow>

#include <memory>

class Application;
class MRUUtils;
class QAction;
class QLabel;
class QMenu;
class QSplitter;
class QTextBrowser;
class QTreeView;

// The main window: tree, rule list and documentation pane, with the menus of the document
// commands. It shows what the Application and the current view tell it, and decides nothing.
class frmMain final : public QMainWindow, public IMainForm
{
    Q_OBJECT

public:
    explicit frmMain(bool interactive, QWidget *parent = nullptr);
    ~frmMain() override;

    void setApplication(Application *application) { m_application = application; }

    QTreeView *tree() const { return m_tree; }
    QTreeView *list() const { return m_list; }
    QTextBrowser *documentation() const { return m_documentation; }

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

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createActions();
    void createMenus();
    void rebuildRecentMenu();
    void openRecent(const QString &filename);
    void openWithDialog();
    void restoreWindowState();
    void saveWindowState();
    void SetEnabledState();

    Application *m_application = nullptr;
    bool m_interactive;
    int m_helpContext = 0;
    std::unique_ptr<MRUUtils> m_mru;

    QSplitter *m_mainSplitter = nullptr;
    QSplitter *m_rightSplitter = nullptr;
    QTreeView *m_tree = nullptr;
    QTreeView *m_list = nullptr;
    QTextBrowser *m_documentation = nullptr;
    QLabel *m_status = nullptr;

    QAction *m_newAction = nullptr;
    QAction *m_openAction = nullptr;
    QAction *m_saveAction = nullptr;
    QAction *m_saveAsAction = nullptr;
    QAction *m_exitAction = nullptr;
    QAction *m_aboutAction = nullptr;
    QMenu *m_recentMenu = nullptr;
};
