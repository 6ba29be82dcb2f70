#include "gui/editor/frmRuleEditor.h"

#include "basic/ScriptEditing.h"
#include "editors/RuleEditorModel.h"
#include "gui/editor/BasicEditor.h"
#include "gui/editor/BasicFindBar.h"
#include "gui/editor/RuleEditorPickers.h"
#include "gui/window/HelpWindow.h"
#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/UserInterface.h"
#include "vocabulary/ObjectListType.h"

#include <QAction>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTextBlock>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <climits>

namespace {

constexpr const char *module = "frmRuleEditor";
// Stored layouts are in twips, 15 to a pixel at 96 dpi.
constexpr int twipsPerPixel = 15;

// Workfield names typed during this run; tests and tools run without the global data.
QStringList &workfields()
{
    static QStringList local;
    return gobjAdminData ? gobjAdminData->Workfields() : local;
}

} // namespace

frmRuleEditor::frmRuleEditor(QWidget *parent)
    : QDialog(parent)
    , m_model(std::make_unique<RuleEditorModel>())
    , m_sbMain(new BasicEditor(this))
    , m_tlbTools(new QToolBar(this))
    , m_tmrTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("frmRuleEditor"));
    setWindowTitle(m_model->Caption());
    resize(720, 520);
    m_tlbTools->setObjectName(QStringLiteral("tlbTools"));
    m_tmrTimer->setObjectName(QStringLiteral("tmrTimer"));
    m_tmrTimer->setInterval(100);
    connect(m_tmrTimer, &QTimer::timeout, this, &frmRuleEditor::tmrTimerTimer);

    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto *menuBar = new QMenuBar(this);
    menuBar->setObjectName(QStringLiteral("abMain"));

    // The editor and its find bar over the list of errors; the caret's place below.
    m_fraFind = new BasicFindBar(m_sbMain, this);
    auto *editorPane = new QWidget(this);
    auto *editorLayout = new QVBoxLayout(editorPane);
    editorLayout->setContentsMargins(0, 0, 0, 0);
    editorLayout->setSpacing(0);
    editorLayout->addWidget(m_sbMain);
    editorLayout->addWidget(m_fraFind);
    m_lvwErrors = new QTreeWidget(this);
    m_lvwErrors->setObjectName(QStringLiteral("lvwErrors"));
    m_lvwErrors->setHeaderLabels({tr("Line"), tr("Column"), tr("Message")});
    m_lvwErrors->setRootIsDecorated(false);
    m_lvwErrors->setUniformRowHeights(true);
    m_lvwErrors->header()->setStretchLastSection(true);
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->setObjectName(QStringLiteral("splEditor"));
    splitter->addWidget(editorPane);
    splitter->addWidget(m_lvwErrors);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({400, 90});
    auto *statusBar = new QStatusBar(this);
    statusBar->setObjectName(QStringLiteral("sbStatus"));
    m_lblPosition = new QLabel(statusBar);
    m_lblPosition->setObjectName(QStringLiteral("lblPosition"));
    statusBar->addPermanentWidget(m_lblPosition);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(menuBar);
    layout->addWidget(m_tlbTools);
    layout->addWidget(splitter, 1);
    layout->addWidget(statusBar);
    createTools();
    createContextMenu();

    m_sbMain->setWorkfieldSource([] { return workfields(); });
    connect(m_sbMain, &BasicEditor::contextMenuRequested, this, [this](const QPoint &at) {
        m_mnuContext->popup(at);
    });
    connect(m_sbMain, &BasicEditor::marksChanged, this, &frmRuleEditor::showErrorList);
    connect(m_sbMain, &BasicEditor::cursorPositionChanged, this, &frmRuleEditor::showCaretPosition);
    connect(m_lvwErrors, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem *item) {
        m_sbMain->goTo(item->data(0, Qt::UserRole).toInt(), item->data(1, Qt::UserRole).toInt());
        m_sbMain->setFocus();
    });
    setRuleCode(QString());
    restoreWindowState();
    m_sbMain->setFocus();
}

void frmRuleEditor::createTools()
{
    auto *menuBar = qobject_cast<QMenuBar *>(layout()->menuBar());
    QHash<QString, QMenu *> menus;
    for (const RuleEditorMenu &entry : RuleEditorModel::menus()) {
        QMenu *menu = menuBar->addMenu(entry.caption.toString());
        menu->setObjectName(entry.id.toString());
        menus.insert(entry.id.toString(), menu);
    }
    m_mnuInsert = menus.value(QStringLiteral("mnuInsert"));

    QString lastMenu;
    for (const RuleEditorTool &entry : RuleEditorModel::tools()) {
        const QString id = entry.id.toString();
        auto *action = new QAction(entry.caption.toString(), this);
        action->setObjectName(id);
        action->setToolTip(entry.toolTip.isEmpty()
                               ? QString(entry.caption.toString()).remove(QLatin1Char('&'))
                               : entry.toolTip.toString());
        connect(action, &QAction::triggered, this, [this, id] { toolClick(id); });
        // The edit menu in groups: history, clipboard, selection, search, lines.
        if (id == u"tlCut" || id == u"tlSelectAll" || id == u"tlFind" || id == u"tlToggleComment")
            menus.value(entry.menu.toString())->addSeparator();
        menus.value(entry.menu.toString())->addAction(action);
        if (!lastMenu.isEmpty() && lastMenu != entry.menu)
            m_tlbTools->addSeparator();
        lastMenu = entry.menu.toString();
        if (entry.onToolBar)
            m_tlbTools->addAction(action);
        m_tools.insert(id, action);
    }
    // A text field with the focus keeps the keys of undo, cut, copy, paste and select all for
    // itself; the menus show them all.
    const struct
    {
        const char *id;
        QKeySequence keys;
    } shortcuts[] = {
        {"tlQuorinHelp", QKeySequence::HelpContents},
        {"tlCheckSyntax", QKeySequence(Qt::Key_F7)},
        {"tlUndo", QKeySequence::Undo},
        {"tlRedo", QKeySequence::Redo},
        {"tlCut", QKeySequence::Cut},
        {"tlCopy", QKeySequence::Copy},
        {"tlPaste", QKeySequence::Paste},
        {"tlSelectAll", QKeySequence::SelectAll},
        {"tlFind", QKeySequence::Find},
        {"tlFindNext", QKeySequence(Qt::Key_F3)},
        {"tlReplace", QKeySequence(Qt::CTRL | Qt::Key_H)},
        {"tlGoToLine", QKeySequence(Qt::CTRL | Qt::Key_G)},
        {"tlToggleComment", QKeySequence(Qt::CTRL | Qt::Key_Slash)},
    };
    for (const auto &s : shortcuts)
        m_tools.value(QLatin1String(s.id))->setShortcut(s.keys);
}

// The right click on the text: the editing commands and the insert menu.
void frmRuleEditor::createContextMenu()
{
    m_mnuContext = new QMenu(this);
    m_mnuContext->setObjectName(QStringLiteral("mnuContext"));
    const QStringList groups[] = {
        {QStringLiteral("tlUndo"), QStringLiteral("tlRedo")},
        {QStringLiteral("tlCut"), QStringLiteral("tlCopy"), QStringLiteral("tlPaste")},
        {QStringLiteral("tlSelectAll")},
        {QStringLiteral("tlFind"), QStringLiteral("tlReplace"), QStringLiteral("tlGoToLine")},
        {QStringLiteral("tlToggleComment")},
    };
    for (const QStringList &group : groups) {
        for (const QString &id : group)
            m_mnuContext->addAction(m_tools.value(id));
        m_mnuContext->addSeparator();
    }
    m_mnuContext->addMenu(m_mnuInsert);
}

QString frmRuleEditor::RuleCode() const
{
    const QString text = m_sbMain->script();
    // A skeleton nobody wrote into is still no condition: nothing to save, nothing to ask.
    return m_newScript && ScriptEditing::isNewScript(text) ? QString() : text;
}

void frmRuleEditor::setRuleCode(const QString &code)
{
    m_model->setRuleCode(code);
    m_newScript = code.isEmpty();
    m_sbMain->setScript(m_newScript ? ScriptEditing::newScript() : code);
    if (m_newScript)
        m_sbMain->goTo(ScriptEditing::newScriptLine, INT_MAX);
    showCaretPosition();
}

void frmRuleEditor::setRuleTitle(const QString &title)
{
    m_model->setRuleTitle(title);
    setWindowTitle(m_model->Caption());
}

void frmRuleEditor::setRuleID(qint32 id)
{
    m_model->setRuleID(id);
    setWindowTitle(m_model->Caption());
}

void frmRuleEditor::setRuleType(qint32 type)
{
    m_model->setRuleType(type);
}

bool frmRuleEditor::Cancelled() const
{
    return m_model->Cancelled();
}

int frmRuleEditor::exec()
{
    m_unloading = false;
    return QDialog::exec();
}

void frmRuleEditor::toolClick(const QString &id)
{
    guardedVoid("abMain_ToolClick", module, [&] {
        if (id == u"tlCheckSyntax") {
            m_sbMain->recheck();
            if (!m_model->CheckSyntax(RuleCode()))
                showErrorPosition();
        } else if (id == u"tlSaveAndClose") {
            if (m_model->SaveAndCloseForm(RuleCode()))
                unloadForm();
            else
                showErrorPosition();
        } else if (id == u"tlClose") {
            if (m_model->CloseTool(RuleCode()))
                unloadForm();
        } else if (id == u"tlUndo") {
            m_sbMain->undo();
        } else if (id == u"tlRedo") {
            m_sbMain->redo();
        } else if (id == u"tlCut") {
            m_sbMain->cut();
        } else if (id == u"tlCopy") {
            m_sbMain->copy();
        } else if (id == u"tlPaste") {
            m_sbMain->paste();
        } else if (id == u"tlSelectAll") {
            m_sbMain->selectAll();
        } else if (id == u"tlFind" || id == u"tlReplace") {
            m_fraFind->start(id == u"tlReplace");
        } else if (id == u"tlFindNext") {
            if (m_fraFind->isVisible())
                m_fraFind->findNext();
            else
                m_fraFind->start(false);
        } else if (id == u"tlGoToLine") {
            askGoToLine();
        } else if (id == u"tlToggleComment") {
            m_sbMain->toggleComment();
        } else if (id == u"tlObjectProperty") {
            InsertObjectProperty();
        } else if (id == u"tlObjectWorkfield") {
            InsertObjectWorkfield();
        } else if (id == u"tlParserEvent") {
            InsertParserEvent();
        } else if (id == u"tlQuorinHelp") {
            showHelpBeside(RuleEditorModel::HelpTopic());
        } else if (id == u"tlLanguageHelp") {
            showHelpBeside(RuleEditorModel::LanguageHelpTopic());
        } else {
            const QString text = RuleEditorModel::ToolText(id);
            if (!text.isEmpty())
                m_sbMain->insertAtCaret(text, -1);
        }
    });
}

void frmRuleEditor::InsertObjectProperty()
{
    RuleEditorPickers::ObjectRequest request;
    request.selectionMode = 2;
    request.listType = ObjectListType::Everything;
    const QString text
        = RuleEditorModel::ObjectPropertyText(RuleEditorPickers::pickObject(this, request));
    if (!text.isEmpty())
        m_sbMain->insertAtCaret(text, -1);
    m_sbMain->setFocus();
}

void frmRuleEditor::InsertObjectWorkfield()
{
    RuleEditorPickers::ObjectRequest request;
    request.selectionMode = 3;
    request.listType = m_model->WorkfieldListType();
    request.workfields = &workfields();
    const QString text
        = RuleEditorModel::ObjectWorkfieldText(RuleEditorPickers::pickObject(this, request));
    if (!text.isEmpty())
        m_sbMain->insertAtCaret(text, -1);
    m_sbMain->setFocus();
}

void frmRuleEditor::InsertParserEvent()
{
    const QString event = RuleEditorPickers::pickParserEvent(this, m_model->RuleType());
    if (!event.isEmpty())
        m_sbMain->insertAtCaret(RuleEditorModel::ParserEventText(event), -1);
    m_sbMain->setFocus();
}

// After a refusal for a syntax error, the caret goes to the fault.
void frmRuleEditor::showErrorPosition()
{
    if (m_model->ErrorLine() > 0)
        m_sbMain->goTo(m_model->ErrorLine(), m_model->ErrorColumn());
    m_sbMain->setFocus();
}

void frmRuleEditor::reject()
{
    close();
}

void frmRuleEditor::closeEvent(QCloseEvent *event)
{
    if (m_unloading) {
        event->accept();
        return;
    }
    event->ignore();
    const RuleEditorModel::Unload unload
        = guarded("Form_QueryUnload", module, RuleEditorModel::Unload::Stay, [&] {
              return m_model->QueryUnload(RuleCode(), true, m_sbMain->closeState());
          });
    switch (unload) {
    case RuleEditorModel::Unload::Close:
        unloadForm();
        break;
    case RuleEditorModel::Unload::RetryLater:
        m_tmrTimer->start();
        break;
    case RuleEditorModel::Unload::Stay:
        break;
    }
}

void frmRuleEditor::tmrTimerTimer()
{
    m_tmrTimer->stop();
    if (m_sbMain->closeState() != -1)
        unloadForm();
}

void frmRuleEditor::unloadForm()
{
    m_unloading = true;
    done(m_model->Cancelled() ? QDialog::Rejected : QDialog::Accepted);
}

void frmRuleEditor::done(int result)
{
    saveWindowState();
    releaseHelp();
    QDialog::done(result);
}

void frmRuleEditor::askGoToLine()
{
    QInputDialog dialog(this);
    dialog.setObjectName(QStringLiteral("frmGoToLine"));
    dialog.setWindowTitle(tr("Go to Line"));
    dialog.setLabelText(tr("Line (1 - %1):").arg(m_sbMain->blockCount()));
    dialog.setInputMode(QInputDialog::IntInput);
    dialog.setIntRange(1, m_sbMain->blockCount());
    dialog.setIntValue(m_sbMain->textCursor().blockNumber() + 1);
    if (dialog.exec() == QDialog::Accepted)
        m_sbMain->goTo(dialog.intValue(), 1);
    m_sbMain->setFocus();
}

// Errors first, then warnings, each in text order; activating one goes to its place.
void frmRuleEditor::showErrorList()
{
    m_lvwErrors->clear();
    const QIcon errorIcon = style()->standardIcon(QStyle::SP_MessageBoxCritical);
    const QIcon warningIcon = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    QList<QTreeWidgetItem *> items;
    const auto add = [&](const std::vector<BasicDiagnostic> &list, const QIcon &icon) {
        for (const BasicDiagnostic &d : list) {
            auto *item = new QTreeWidgetItem(
                {QString::number(d.line), QString::number(d.column), d.message});
            item->setIcon(0, icon);
            item->setData(0, Qt::UserRole, d.line);
            item->setData(1, Qt::UserRole, d.column);
            items << item;
        }
    };
    add(m_sbMain->errors(), errorIcon);
    add(m_sbMain->warnings(), warningIcon);
    m_lvwErrors->addTopLevelItems(items);
}

// Columns count characters, as the syntax check's messages do.
void frmRuleEditor::showCaretPosition()
{
    const QTextCursor caret = m_sbMain->textCursor();
    m_lblPosition->setText(
        tr("Ln %1, Col %2").arg(caret.blockNumber() + 1).arg(caret.positionInBlock() + 1));
}

// The help window becomes a window of this one while it is open: a modal window blocks every
// other but its own, so help stays usable beside the text.
void frmRuleEditor::showHelpBeside(const QString &topic)
{
    UserInterface::current().showHelp(HelpCommand::Topic, topic, 0);
    HelpWindow *help = HelpWindow::existing();
    if (!help || !help->isVisible() || help->parentWidget() == this)
        return; // a run without windows, or it is beside this one already
    m_helpOwner = help->parentWidget();
    help->setParent(this, help->windowFlags());
    // To the right of the editor when the screen has room there, else to its left.
    const QRect frame = frameGeometry();
    const QRect screen
        = (this->screen() ? this->screen() : QGuiApplication::primaryScreen())->availableGeometry();
    const int width = help->frameGeometry().width();
    const int left = frame.right() + width < screen.right()  ? frame.right() + 1
                     : frame.left() - width >= screen.left() ? frame.left() - width
                                                             : screen.right() - width;
    help->resize(help->width(), height());
    help->move(left, frame.top());
    help->show();
    help->raise();
    help->activateWindow();
}

// The help window outlives the editor: it goes back to the window it came from.
void frmRuleEditor::releaseHelp()
{
    HelpWindow *help = HelpWindow::existing();
    if (!help || help->parentWidget() != this)
        return;
    const QRect place = help->geometry();
    const bool visible = help->isVisible();
    help->setParent(m_helpOwner, help->windowFlags());
    help->setGeometry(place);
    help->setVisible(visible);
}

// The window's place and size in twips, as the main window keeps its own.
void frmRuleEditor::restoreWindowState()
{
    if (!gobjAdminData)
        return;
    const QuorinAdminData &data = *gobjAdminData;
    const QRect stored(data.EditorLeft() / twipsPerPixel,
                       data.EditorTop() / twipsPerPixel,
                       std::max(200, data.EditorWidth() / twipsPerPixel),
                       std::max(150, data.EditorHeight() / twipsPerPixel));
    resize(stored.size());
    // A place on a screen that is gone is forgotten: the window is centred over its owner.
    if (data.EditorPlaced() && QGuiApplication::screenAt(stored.center()))
        move(stored.topLeft());
    if (data.EditorMaximised())
        setWindowState(windowState() | Qt::WindowMaximized);
}

void frmRuleEditor::saveWindowState()
{
    // A window never shown has no place of its own to keep.
    if (!gobjAdminData || !isVisible())
        return;
    QuorinAdminData &data = *gobjAdminData;
    if (!isMinimized() && !isMaximized()) {
        data.setEditorLeft(x() * twipsPerPixel);
        data.setEditorTop(y() * twipsPerPixel);
        data.setEditorWidth(width() * twipsPerPixel);
        data.setEditorHeight(height() * twipsPerPixel);
    }
    data.setEditorMaximised(isMaximized());
}

frmRuleEditor::~frmRuleEditor()
{
    releaseHelp();
}
