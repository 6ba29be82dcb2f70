#include "gui/editor/frmRuleEditor.h"

#include "editors/RuleEditorModel.h"
#include "gui/editor/BasicEditor.h"
#include "gui/editor/RuleEditorPickers.h"
#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/UserInterface.h"
#include "vocabulary/ObjectListType.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

constexpr const char *module = "frmRuleEditor";

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

    auto *menuBar = new QMenuBar(this);
    menuBar->setObjectName(QStringLiteral("abMain"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setMenuBar(menuBar);
    layout->addWidget(m_tlbTools);
    layout->addWidget(m_sbMain);
    createTools();

    m_sbMain->setWorkfieldSource([] { return workfields(); });
    connect(m_sbMain, &BasicEditor::contextMenuRequested, this, [this](const QPoint &at) {
        m_mnuInsert->popup(at);
    });
    m_sbMain->setFocus();
}

frmRuleEditor::~frmRuleEditor() = default;

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
        menus.value(entry.menu.toString())->addAction(action);
        if (!lastMenu.isEmpty() && lastMenu != entry.menu)
            m_tlbTools->addSeparator();
        lastMenu = entry.menu.toString();
        m_tlbTools->addAction(action);
        m_tools.insert(id, action);
    }
    // The editor has Ctrl+Z and Ctrl+Y of its own; the help key is the form's.
    m_tools.value(QStringLiteral("tlQuorinHelp"))->setShortcut(QKeySequence::HelpContents);
    m_tools.value(QStringLiteral("tlCheckSyntax"))->setShortcut(QKeySequence(Qt::Key_F7));
}

QString frmRuleEditor::RuleCode() const
{
    return m_sbMain->script();
}

void frmRuleEditor::setRuleCode(const QString &code)
{
    m_model->setRuleCode(code);
    m_sbMain->setScript(code);
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
        } else if (id == u"tlObjectProperty") {
            InsertObjectProperty();
        } else if (id == u"tlObjectWorkfield") {
            InsertObjectWorkfield();
        } else if (id == u"tlParserEvent") {
            InsertParserEvent();
        } else if (id == u"tlQuorinHelp") {
            UserInterface::current().showHelp(HelpCommand::Topic, RuleEditorModel::HelpTopic(), 0);
        } else if (id == u"tlLanguageHelp") {
            UserInterface::current().showHelp(
                HelpCommand::Topic, RuleEditorModel::LanguageHelpTopic(), 0);
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
