#include "gui/frmMain.h"

#include "application/Application.h"
#include "platform/GlobalObjects.h"
#include "platform/MRUUtils.h"
#include "platform/QuorinAdminData.h"
#include "platform/UserInterface.h"
#include "rulebase/Rulebase.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTreeView>

namespace {
// Stored layouts are in twips, 15 to a pixel at 96 dpi.
constexpr int twipsPerPixel = 15;
} // namespace

frmMain::frmMain(bool interactive, QWidget *parent)
    : QMainWindow(parent)
    , m_interactive(interactive)
    , m_mru(std::make_unique<MRUUtils>())
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(programTitle());

    m_tree = new QTreeView;
    m_tree->setObjectName(QStringLiteral("tvwMain"));
    m_tree->setHeaderHidden(true);

    m_list = new QTreeView;
    m_list->setObjectName(QStringLiteral("lvwMain"));
    m_list->setRootIsDecorated(false);
    m_list->setSortingEnabled(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto *columns = new QStandardItemModel(0, 4, m_list);
    columns->setHorizontalHeaderLabels(
        {QStringLiteral("Rule"), QStringLiteral("Title"), QStringLiteral("Category"), QStringLiteral("Impact")});
    m_list->setModel(columns);

    m_documentation = new QTextBrowser;
    m_documentation->setObjectName(QStringLiteral("txtDocumentation"));

    m_rightSplitter = new QSplitter(Qt::Vertical);
    m_rightSplitter->addWidget(m_list);
    m_rightSplitter->addWidget(m_documentation);
    m_rightSplitter->setStretchFactor(0, 1);

    m_mainSplitter = new QSplitter(Qt::Horizontal);
    m_mainSplitter->addWidget(m_tree);
    m_mainSplitter->addWidget(m_rightSplitter);
    m_mainSplitter->setStretchFactor(1, 1);
    setCentralWidget(m_mainSplitter);

    m_status = new QLabel;
    statusBar()->addWidget(m_status, 1);

    createActions();
    createMenus();
}

frmMain::~frmMain() = default;

void frmMain::createActions()
{
    auto make = [this](const char *id, const QString &text, QKeySequence shortcut, auto slot) {
        auto *action = new QAction(text, this);
        action->setObjectName(QLatin1String(id));
        action->setShortcut(shortcut);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    m_newAction = make("tlNewRulebase", tr("&New Rulebase"), QKeySequence::New, [this] {
        m_application->NewRulebase();
    });
    m_openAction = make("tlOpenRulebase", tr("&Open Rulebase..."), QKeySequence::Open, [this] { openWithDialog(); });
    m_saveAction = make("tlSaveRulebase", tr("&Save Rulebase"), QKeySequence::Save, [this] {
        m_application->SaveRulebase();
        Update();
    });
    m_saveAsAction = make("tlSaveRulebaseAs", tr("Save Rulebase &As..."), QKeySequence::SaveAs, [this] {
        m_application->SaveRulebaseAs();
        Update();
    });
    m_exitAction = make("tlExit", tr("E&xit"), QKeySequence::Quit, [this] { close(); });
    m_aboutAction = make("tlHelpAbout", tr("&About Quorin Administrator..."), QKeySequence(), [this] {
        m_application->HelpAbout();
    });
}

void frmMain::createMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(m_newAction);
    file->addAction(m_openAction);
    file->addAction(m_saveAction);
    file->addAction(m_saveAsAction);
    file->addSeparator();
    m_recentMenu = file->addMenu(tr("Recent &Files"));
    file->addSeparator();
    file->addAction(m_exitAction);

    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(m_aboutAction);
}

void frmMain::rebuildRecentMenu()
{
    m_recentMenu->clear();
    for (int i = 1; i <= m_mru->Count(); ++i) {
        const QString file = m_mru->Item(i);
        QAction *action = m_recentMenu->addAction(QStringLiteral("&%1 %2").arg(i).arg(file));
        connect(action, &QAction::triggered, this, [this, file] { openRecent(file); });
    }
    m_recentMenu->setEnabled(m_mru->Count() > 0);
}

void frmMain::openWithDialog()
{
    if (m_application->OpenRulebase(Application::OpenMode::Ask))
        AddToMRUList(m_application->rulebase()->Filename());
}

void frmMain::openRecent(const QString &filename)
{
    if (m_application->OpenRulebase(Application::OpenMode::RecentList, filename))
        AddToMRUList(m_application->rulebase()->Filename());
}

void frmMain::Update()
{
    const std::shared_ptr<Rulebase> &rulebase = m_application ? m_application->rulebase() : nullptr;
    setWindowTitle(rulebase ? rulebase->FileTitle() + QStringLiteral(" - ") + programTitle() : programTitle());
    SetEnabledState();
}

void frmMain::SetEnabledState()
{
    const bool open = m_application && m_application->RulebaseOpen();
    m_saveAction->setEnabled(open);
    m_saveAsAction->setEnabled(open);
    m_mainSplitter->setVisible(open);
    m_status->setText(open ? QString() : tr("No rulebase is open."));
}

void frmMain::AddToMRUList(const QString &filename)
{
    m_mru->Add(filename);
    UserInterface::current().addToRecentDocs(filename);
    rebuildRecentMenu();
}

void frmMain::RemoveFromMRUList(const QString &filename)
{
    m_mru->Remove(filename);
    rebuildRecentMenu();
}

void frmMain::SetCurrentViewTool(const QString &) {}

void frmMain::SetBusy(bool busy)
{
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void frmMain::ShowSplashScreen() {}

void frmMain::ShowWindow()
{
    restoreWindowState();
    m_mru->setAppName(QStringLiteral("Settings\\Rulebase"));
    rebuildRecentMenu();
    SetEnabledState();
    show();
}

int frmMain::RunTipOfDay(int lastTip)
{
    return lastTip;
}

void frmMain::RunAbout()
{
    if (!m_interactive)
        return;
    QMessageBox::about(this,
                       tr("About Quorin Administrator"),
                       tr("<h3>Quorin Administrator %1</h3><p>Rulebases for the Quorin code reviewer.</p>")
                           .arg(programComponentVersion()));
}

void frmMain::restoreWindowState()
{
    if (!gobjAdminData)
        return;
    const QuorinAdminData &data = *gobjAdminData;
    setGeometry(data.MainLeft() / twipsPerPixel,
                data.MainTop() / twipsPerPixel,
                data.MainWidth() / twipsPerPixel,
                data.MainHeight() / twipsPerPixel);
    const int tree = data.TreeWidth() / twipsPerPixel;
    m_mainSplitter->setSizes({tree, std::max(1, width() - tree)});
    const int doc = data.DocHeight() / twipsPerPixel;
    m_rightSplitter->setSizes({std::max(1, height() - doc), doc});
    m_documentation->setVisible(data.DocWinVisible());
    if (data.Maximised())
        setWindowState(windowState() | Qt::WindowMaximized);
}

void frmMain::saveWindowState()
{
    if (!gobjAdminData)
        return;
    QuorinAdminData &data = *gobjAdminData;
    if (!isMinimized() && !isMaximized()) {
        const QRect g = geometry();
        data.setMainLeft(g.x() * twipsPerPixel);
        data.setMainTop(g.y() * twipsPerPixel);
        data.setMainWidth(g.width() * twipsPerPixel);
        data.setMainHeight(g.height() * twipsPerPixel);
    }
    data.setMaximised(isMaximized());
    data.setDocWinVisible(m_documentation->isVisibleTo(this));
    const QList<int> main = m_mainSplitter->sizes();
    if (main.size() == 2 && main.at(0) > 0) {
        data.setTreeWidth(main.at(0) * twipsPerPixel);
        data.setListLeft((main.at(0) + m_mainSplitter->handleWidth()) * twipsPerPixel);
    }
    const QList<int> right = m_rightSplitter->sizes();
    if (right.size() == 2 && right.at(1) > 0)
        data.setDocHeight(right.at(1) * twipsPerPixel);
}

void frmMain::closeEvent(QCloseEvent *event)
{
    if (m_application && !m_application->CheckForSave()) {
        event->ignore();
        return;
    }
    if (m_application)
        m_application->TerminateApplication();
    saveWindowState();
    event->accept();
}
