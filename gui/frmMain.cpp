#include "gui/frmMain.h"

#include "gui/QtListControl.h"
#include "gui/QtTreeControl.h"
#include "gui/preview/frmPreview.h"
#include "gui/window/Images.h"
#include "gui/window/frmAbout.h"
#include "gui/window/frmTip.h"

#include "application/HelpTopics.h"

#include "application/Application.h"
#include "application/ToolDispatcher.h"
#include "platform/GlobalObjects.h"
#include "platform/MRUUtils.h"
#include "platform/QuorinAdminData.h"
#include "platform/UserInterface.h"
#include "rulebase/Rulebase.h"
#include "views/AuthorisedItemsView.h"
#include "views/CommandTable.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QShortcut>
#include <QSplitter>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>

#include <functional>

namespace {
// Stored layouts are in twips, 15 to a pixel at 96 dpi.
constexpr int twipsPerPixel = 15;

const char *const toolbarToggles[][2] = {
    {"tlFileToolbar", "tlbFile"},
    {"tlViewToolbar", "tlbView"},
    {"tlRuleToolbar", "tlbRule"},
    {"tlToolsToolbar", "tlbTools"},
};

// The navigation bar's captions, on two lines.
const char *const navigationCaptions[][2] = {
    {"tlCodingConventions", "Coding\nConventions"},
    {"tlNamingConventions", "Naming\nConventions"},
    {"tlAuthorisedItems", "Authority\nItems"},
    {"tlCategoryView", "Conventions\nBy Category"},
    {"tlSeverityView", "Conventions\nBy Severity"},
};

// Files from the desktop dropped on the list go to the authority items view, the one view that
// takes them; any other drag is left to the list.
class FileDropFilter final : public QObject
{
public:
    FileDropFilter(std::function<AuthorisedItemsView *()> view, QObject *parent)
        : QObject(parent)
        , m_view(std::move(view))
    {
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
            return QObject::eventFilter(watched, event);
        auto *drop = static_cast<QDropEvent *>(event);
        const QStringList files = localFiles(drop->mimeData());
        if (files.isEmpty())
            return QObject::eventFilter(watched, event);
        AuthorisedItemsView *view = m_view();
        // Files are copied from, never moved: without the copy effect there is nothing to do.
        if (!view || !view->AcceptsFileDrops() || !(drop->possibleActions() & Qt::CopyAction)) {
            drop->ignore();
            return true;
        }
        drop->setDropAction(Qt::CopyAction);
        drop->accept();
        // After the drop has ended: the import may bring up dialogs.
        if (type == QEvent::Drop)
            QTimer::singleShot(0, this, [this, files] {
                if (AuthorisedItemsView *current = m_view())
                    current->FilesDropped(files);
            });
        return true;
    }

private:
    static QStringList localFiles(const QMimeData *data)
    {
        QStringList files;
        if (!data || !data->hasUrls())
            return files;
        for (const QUrl &url : data->urls()) {
            if (url.isLocalFile())
                files << url.toLocalFile();
        }
        return files;
    }

    std::function<AuthorisedItemsView *()> m_view;
};
} // namespace

frmMain::frmMain(bool interactive, QWidget *parent)
    : QMainWindow(parent)
    , m_interactive(interactive)
    , m_mru(std::make_unique<MRUUtils>())
{
    Images::initialise();
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(programTitle());
    setWindowIcon(QIcon(QStringLiteral(":/desktop/quorinadmin.svg")));

    m_tree = new QTreeView;
    m_tree->setObjectName(QStringLiteral("tvwMain"));
    m_tree->setHeaderHidden(true);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_treeControl = new QtTreeControl(m_tree);

    m_list = new QTreeView;
    m_list->setObjectName(QStringLiteral("lvwMain"));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->installEventFilter(this);
    m_listControl = new QtListControl(m_list);
    m_list->viewport()->installEventFilter(this);
    m_list->viewport()->setAcceptDrops(true);
    m_list->viewport()->installEventFilter(new FileDropFilter(
        [this] {
            return m_application ? dynamic_cast<AuthorisedItemsView *>(m_application->CurrentView())
                                 : nullptr;
        },
        this));

    m_noItems = new QLabel(tr("There are no items to show in this view."), m_list->viewport());
    m_noItems->setObjectName(QStringLiteral("txtNoItems"));
    m_noItems->move(8, 8);
    m_noItems->adjustSize();
    m_noItems->hide();

    m_treeTitle = new QLabel;
    m_treeTitle->setObjectName(QStringLiteral("lblTreeViewTitle"));
    m_treeTitle->setText(QStringLiteral(" Coding Conventions"));
    m_listTitle = new QLabel;
    m_listTitle->setObjectName(QStringLiteral("lblListViewTitle"));
    m_listTitle->setText(QStringLiteral(" Parser Event"));
    m_listHeaderImage = new QLabel;
    m_listHeaderImage->setObjectName(QStringLiteral("imgListHeader"));
    for (QLabel *title : {m_treeTitle, m_listTitle}) {
        QFont font = title->font();
        font.setBold(true);
        title->setFont(font);
    }
    // Each title stands above its control, with an optional picture at its right end.
    const auto titled = [](QLabel *title, QWidget *control, QLabel *image = nullptr) {
        auto *box = new QWidget;
        auto *layout = new QVBoxLayout(box);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(2);
        auto *heading = new QHBoxLayout;
        heading->addWidget(title, 1);
        if (image)
            heading->addWidget(image);
        layout->addLayout(heading);
        layout->addWidget(control, 1);
        return box;
    };

    m_documentation = new QTextBrowser;
    m_documentation->setObjectName(QStringLiteral("txtDocumentation"));

    // Tree over documentation on the left, the list on the right.
    m_leftSplitter = new QSplitter(Qt::Vertical);
    m_leftSplitter->addWidget(titled(m_treeTitle, m_tree));
    m_leftSplitter->addWidget(m_documentation);
    m_leftSplitter->setStretchFactor(0, 1);
    m_leftSplitter->setChildrenCollapsible(false);

    m_mainSplitter = new QSplitter(Qt::Horizontal);
    m_mainSplitter->setObjectName(QStringLiteral("picContainer"));
    m_mainSplitter->addWidget(m_leftSplitter);
    m_mainSplitter->addWidget(titled(m_listTitle, m_list, m_listHeaderImage));
    m_mainSplitter->setStretchFactor(1, 1);
    m_mainSplitter->setChildrenCollapsible(false);
    setCentralWidget(m_mainSplitter);

    m_status = new QLabel;
    m_status->setObjectName(QStringLiteral("lblStatus"));
    statusBar()->setObjectName(QStringLiteral("stbMain"));
    statusBar()->addWidget(m_status, 1);

    createActions();
    createBars();

    connect(m_tree, &QWidget::customContextMenuRequested, this, [this](const QPoint &at) {
        m_popups.value(QStringLiteral("mnuTreePopup"))->popup(m_tree->viewport()->mapToGlobal(at));
    });
    connect(m_list, &QWidget::customContextMenuRequested, this, [this](const QPoint &at) {
        updateRuleActiveTools();
        m_popups.value(QStringLiteral("mnuListPopup"))->popup(m_list->viewport()->mapToGlobal(at));
    });
    connect(m_list, &QAbstractItemView::doubleClicked, this, [this] {
        toolClicked(QStringLiteral("tlOpenRule"));
    });
    // F1 shows the page of the current view; tlContents keeps the contents.
    auto *help = new QShortcut(QKeySequence(Qt::Key_F1), this);
    help->setContext(Qt::WindowShortcut);
    connect(help, &QShortcut::activated, this, &frmMain::showContextHelp);
}

void frmMain::setApplication(Application *application)
{
    m_application = application;
    // A view tool whose view is not built yet stays visible but disabled, and says why.
    for (const QString &id : CommandTable::viewTools()) {
        const bool available = createView(id) != nullptr;
        QAction *action = tool(id);
        action->setEnabled(available);
        if (!available)
            action->setToolTip(
                tr("%1 comes in a later version.").arg(action->text().remove(QLatin1Char('&'))));
    }
}

void frmMain::showContextHelp()
{
    UserInterface::current().showHelp(HelpCommand::Context,
                                      QString(),
                                      m_helpContext != 0 ? m_helpContext : HelpTopics::MainWindow);
}

frmMain::~frmMain() = default;

QAction *frmMain::tool(const QString &toolId) const
{
    return m_actions.value(toolId.toLower());
}

void frmMain::createActions()
{
    auto *views = new QActionGroup(this);
    for (const ToolDefinition &definition : CommandTable::tools()) {
        const QString id = QLatin1String(definition.id);
        auto *action = new QAction(QString::fromUtf8(definition.caption), this);
        action->setObjectName(id);
        if (definition.toolTip)
            action->setToolTip(QString::fromUtf8(definition.toolTip));
        action->setCheckable(definition.checkable);
        action->setIcon(Images::tool(id));
        if (CommandTable::viewTools().contains(id))
            views->addAction(action);
        connect(action, &QAction::triggered, this, [this, id] { toolClicked(id); });
        m_actions.insert(id.toLower(), action);
    }
    const std::pair<const char *, QKeySequence> shortcuts[] = {
        {"tlNewRulebase", QKeySequence::New},
        {"tlOpenRulebase", QKeySequence::Open},
        {"tlSaveRulebase", QKeySequence::Save},
        {"tlSaveRulebaseAs", QKeySequence::SaveAs},
        {"tlExit", QKeySequence::Quit},
        {"tlDeleteRule", QKeySequence::Delete},
    };
    for (const auto &[id, keys] : shortcuts)
        tool(QLatin1String(id))->setShortcut(keys);
    tool(QStringLiteral("tlDeleteRule"))->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_list->addAction(tool(QStringLiteral("tlDeleteRule")));
    tool(QStringLiteral("tlDocumentationConventions"))->setVisible(false); // no such view exists
    // Only the authority items view turns these on.
    for (const QString &id : CommandTable::authorisedItemTools())
        tool(id)->setEnabled(false);
}

QMenu *frmMain::buildMenu(const BandDefinition &band, QWidget *parent)
{
    auto *menu = new QMenu(QString::fromUtf8(band.caption), parent);
    menu->setObjectName(QLatin1String(band.id));
    for (const char *id : band.tools) {
        const QString toolId = QLatin1String(id);
        if (toolId == QLatin1String("-")) {
            menu->addSeparator();
        } else if (toolId == QLatin1String(CommandTable::recentFilesAnchor)) {
            m_fileMenu = menu;
            m_recentAnchor = menu->addSeparator();
        } else if (QAction *action = tool(toolId)) {
            menu->addAction(action);
        }
    }
    return menu;
}

void frmMain::createBars()
{
    // Pop-up bands first, so that the tools that open them can carry them as sub-menus.
    for (const BandDefinition &band : CommandTable::bands()) {
        if (band.kind == BandKind::Popup)
            m_popups.insert(QLatin1String(band.id), buildMenu(band, this));
    }
    for (const ToolDefinition &definition : CommandTable::tools()) {
        if (definition.opensBand)
            tool(QLatin1String(definition.id))
                ->setMenu(m_popups.value(QLatin1String(definition.opensBand)));
    }
    for (const BandDefinition &band : CommandTable::bands()) {
        if (band.kind == BandKind::Menu) {
            QMenu *menu = buildMenu(band, menuBar());
            menuBar()->addMenu(menu);
            if (menu->objectName() == QLatin1String("mnuRule"))
                connect(menu, &QMenu::aboutToShow, this, &frmMain::updateRuleActiveTools);
        } else if (band.kind == BandKind::Toolbar || band.kind == BandKind::NavigationBar) {
            const bool navigation = band.kind == BandKind::NavigationBar;
            auto *bar = new QToolBar(QString::fromUtf8(band.caption), this);
            bar->setObjectName(QLatin1String(band.id));
            for (const char *id : band.tools) {
                if (QLatin1String(id) == QLatin1String("-"))
                    bar->addSeparator();
                else
                    bar->addAction(tool(QLatin1String(id)));
            }
            if (navigation) {
                bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
                bar->setIconSize(QSize(32, 32));
                // Tool buttons show the icon text; menus keep the one-line caption.
                for (const auto &[id, caption] : navigationCaptions)
                    tool(QLatin1String(id))->setIconText(QString::fromUtf8(caption));
                addToolBar(Qt::LeftToolBarArea, bar);
                m_navigation = bar;
            } else {
                bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
                bar->setIconSize(QSize(16, 16));
                addToolBar(Qt::TopToolBarArea, bar);
            }
        }
    }
    for (const auto &[toggle, band] : toolbarToggles) {
        QToolBar *bar = findChild<QToolBar *>(QLatin1String(band));
        m_toolbars.insert(QLatin1String(toggle), bar);
        tool(QLatin1String(toggle))->setChecked(true);
    }
    tool(QStringLiteral("tlStatusBar"))->setChecked(true);
    connect(m_fileMenu, &QMenu::aboutToShow, this, &frmMain::rebuildRecentFiles);
}

void frmMain::toolClicked(const QString &toolId)
{
    if (runWindowTool(toolId) || !m_application)
        return;
    ExecuteTool(*m_application, toolId);
}

// The tools that change the window itself rather than the document.
bool frmMain::runWindowTool(const QString &toolId)
{
    const QString id = toolId.toLower();
    if (id == QLatin1String("tlexit")) {
        close();
    } else if (id == QLatin1String("tlexpandall") || id == QLatin1String("tlcollapseall")) {
        ExpandCollapseAll(id == QLatin1String("tlexpandall"));
    } else if (QToolBar *bar = m_toolbars.value(toolId)) {
        bar->setVisible(!bar->isVisible());
        tool(toolId)->setChecked(bar->isVisible());
    } else if (id == QLatin1String("tlstatusbar")) {
        statusBar()->setVisible(!statusBar()->isVisible());
        tool(toolId)->setChecked(statusBar()->isVisible());
    } else if (id == QLatin1String("tlquorinbar")) {
        m_navigation->setVisible(!m_navigation->isVisible());
        tool(toolId)->setChecked(m_navigation->isVisible());
        if (gobjAdminData)
            gobjAdminData->setQuorinBarVisible(m_navigation->isVisible());
    } else if (id == QLatin1String("tldocumentationwindow")) {
        m_documentation->setVisible(!m_documentation->isVisible());
        tool(toolId)->setChecked(m_documentation->isVisible());
    } else if (const ToolDefinition *definition = CommandTable::findTool(toolId);
               definition && definition->opensBand) {
        // A tool that opens a sub-menu does nothing of its own.
    } else if (id == QLatin1String("tldocumentationconventions")) {
        // No such view exists; the tool stays without effect.
    } else if (id == QLatin1String("tlpreviewproject")) {
        previewProject();
    } else {
        return false;
    }
    return true;
}

// Asks for a project or group and shows what the open rulebase would report on it, in the
// one results window, which follows the rulebase that is open.
void frmMain::previewProject()
{
    if (!m_application || !m_application->rulebase())
        return;
    FileDialogRequest request;
    request.fileType = 5;
    request.title = tr("Select VB Project or Group File to Preview");
    request.folder = gobjAdminData ? gobjAdminData->LastPath() : QString();
    if (!UserInterface::current().getOpenFilename(request))
        return;
    if (gobjAdminData)
        gobjAdminData->setLastPath(request.folder);
    if (!m_preview) {
        m_preview = new frmPreview(this);
        // An edit there changes the rule's row here, and may make the rulebase dirty.
        connect(m_preview, &frmPreview::ruleEdited, this, [this] {
            if (m_application && m_application->CurrentView())
                m_application->CurrentView()->Populate();
            Update();
        });
    }
    m_preview->setRulebase(m_application->rulebase());
    m_preview->show();
    m_preview->raise();
    m_preview->preview({request.path});
}

void frmMain::ExpandCollapseAll(bool expand)
{
    if (expand)
        m_tree->expandAll();
    else
        m_tree->collapseAll();
}

void frmMain::rebuildRecentFiles()
{
    for (QAction *action : std::as_const(m_recentActions)) {
        m_fileMenu->removeAction(action);
        action->deleteLater();
    }
    m_recentActions.clear();
    m_recentAnchor->setVisible(m_mru->Count() > 0);
    // Inserted before the action that follows the anchor, so they stand after it, in order.
    const QList<QAction *> all = m_fileMenu->actions();
    const qsizetype anchor = all.indexOf(m_recentAnchor);
    QAction *before = anchor + 1 < all.size() ? all.at(anchor + 1) : nullptr;
    for (int i = 1; i <= m_mru->Count(); ++i) {
        const QString file = m_mru->Item(i);
        auto *action = new QAction(QStringLiteral("&%1 %2").arg(i).arg(file), m_fileMenu);
        action->setObjectName(QStringLiteral("MRU%1").arg(i));
        connect(action, &QAction::triggered, this, [this, file] {
            if (m_application)
                OpenRecentFile(*m_application, file);
        });
        m_fileMenu->insertAction(before, action);
        m_recentActions << action;
    }
    if (!m_recentActions.isEmpty())
        m_recentActions << m_fileMenu->insertSeparator(before);
}

void frmMain::updateRuleActiveTools()
{
    const int state = m_application && m_application->CurrentView()
                          ? m_application->CurrentView()->ItemsActiveState()
                          : 4;
    tool(QStringLiteral("tlRuleActive"))->setVisible(state == 2 || state == 3);
    tool(QStringLiteral("tlRuleInactive"))->setVisible(state == 1 || state == 3);
}

void frmMain::Update()
{
    const std::shared_ptr<Rulebase> &rulebase = m_application ? m_application->rulebase() : nullptr;
    // A file that loaded only in part says so until a save has made file and window agree.
    const QString part
        = rulebase && rulebase->LoadedInPart() ? QStringLiteral(" (loaded in part)") : QString();
    setWindowTitle(rulebase ? rulebase->FileTitle() + part + QStringLiteral(" - ") + programTitle()
                            : programTitle());
    if (m_preview)
        m_preview->setRulebase(rulebase);
    SetEnabledState();
}

void frmMain::SetEnabledState()
{
    const bool open = m_application && m_application->RulebaseOpen();
    for (const QString &id : CommandTable::rulebaseTools())
        tool(id)->setEnabled(open);
    const bool rows = m_list->model() && m_list->model()->rowCount() > 0;
    tool(QStringLiteral("tlDeleteRule"))->setEnabled(rows);
    tool(QStringLiteral("tlOpenRule"))->setEnabled(rows);
    m_mainSplitter->setVisible(open);
    if (!open)
        m_navigation->setVisible(false);
    else if (!gobjAdminData || gobjAdminData->QuorinBarVisible())
        m_navigation->setVisible(true);
    tool(QStringLiteral("tlQuorinBar"))->setChecked(m_navigation->isVisible());
    // Once a view stands it owns the status text; the window speaks only when nothing is open.
    if (!open)
        m_status->setText(tr("No rulebase selected."));
}

void frmMain::setDocumentation(const QString &text)
{
    m_documentation->setPlainText(text);
}

TreeControl *frmMain::tree()
{
    return m_treeControl;
}

ListControl *frmMain::list()
{
    return m_listControl;
}

void frmMain::setTreeTitle(const QString &text)
{
    m_treeTitle->setText(text);
}

void frmMain::setListTitle(const QString &text)
{
    m_listTitle->setText(text);
}

void frmMain::setNoItemsVisible(bool visible)
{
    m_noItems->setVisible(visible);
}

void frmMain::setStatusText(const QString &text)
{
    m_status->setText(text);
}

void frmMain::setToolEnabled(const QString &toolId, bool enabled)
{
    if (QAction *action = tool(toolId))
        action->setEnabled(enabled);
}

void frmMain::AddToMRUList(const QString &filename)
{
    m_mru->Add(filename);
    UserInterface::current().addToRecentDocs(filename);
}

void frmMain::RemoveFromMRUList(const QString &filename)
{
    m_mru->Remove(filename);
}

void frmMain::SetCurrentViewTool(const QString &viewName)
{
    for (const QString &id : CommandTable::viewTools())
        tool(id)->setChecked(id.compare(viewName, Qt::CaseInsensitive) == 0);
    if (QAction *view = tool(viewName))
        tool(QStringLiteral("tlCurrentView"))->setIcon(view->icon());
}

void frmMain::SetBusy(bool busy)
{
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void frmMain::setListHeaderImage(const QString &image)
{
    const QIcon icon = Images::icon(m_treeControl->imageList(), image);
    m_listHeaderImage->setPixmap(icon.isNull() ? QPixmap() : icon.pixmap(16, 16));
}

// The splash closes itself; a run that waits for nobody shows none.
void frmMain::ShowSplashScreen()
{
    if (m_interactive)
        (new frmAbout)->ShowSplashScreen();
}

void frmMain::ShowWindow()
{
    restoreWindowState();
    m_mru->setAppName(QStringLiteral("Settings\\Rulebase"));
    SetEnabledState();
    m_status->setText(m_application && m_application->RulebaseOpen() ? programTitle()
                                                                     : tr("No rulebase selected."));
    show();
    // The panes get their stored sizes once the window has its own.
    restorePaneSizes();
}

int frmMain::RunTipOfDay(int lastTip)
{
    if (!m_interactive)
        return lastTip;
    frmTip tip(this);
    tip.setLastTip(lastTip);
    tip.exec();
    return tip.LastTip();
}

void frmMain::RunAbout()
{
    if (!m_interactive)
        return;
    frmAbout about(this);
    about.exec();
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
    restorePaneSizes();
    m_documentation->setVisible(data.DocWinVisible());
    tool(QStringLiteral("tlDocumentationWindow"))->setChecked(data.DocWinVisible());
    if (data.Maximised())
        setWindowState(windowState() | Qt::WindowMaximized);
}

// The tree's width and the documentation pane's height are stored in twips; the list and the
// tree take what is left.
void frmMain::restorePaneSizes()
{
    if (!gobjAdminData)
        return;
    const QuorinAdminData &data = *gobjAdminData;
    const int tree = std::max(1, data.TreeWidth() / twipsPerPixel);
    const int across = std::max(m_mainSplitter->width(), tree + 100);
    m_mainSplitter->setSizes({tree, across - tree - m_mainSplitter->handleWidth()});
    const int doc = std::max(1, data.DocHeight() / twipsPerPixel);
    const int down = std::max(m_leftSplitter->height(), doc + 100);
    m_leftSplitter->setSizes({down - doc - m_leftSplitter->handleWidth(), doc});
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
    const QList<int> left = m_leftSplitter->sizes();
    if (left.size() == 2 && left.at(1) > 0)
        data.setDocHeight(left.at(1) * twipsPerPixel);
}

bool frmMain::eventFilter(QObject *watched, QEvent *event)
{
    // The view lays its columns out again in the list's new width.
    if (watched == m_list->viewport() && event->type() == QEvent::Resize && m_application
        && m_application->CurrentView())
        m_application->CurrentView()->ResizeView();
    // Ctrl+A on the list selects every row.
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::SelectAll)) {
            m_list->selectAll();
            return true;
        }
        // Enter on a row opens it, as a double click does.
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (enter && key->modifiers() == Qt::NoModifier && m_list->currentIndex().isValid()) {
            toolClicked(QStringLiteral("tlOpenRule"));
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
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
