#pragma once

#include <QDialog>
#include <QHash>
#include <QPointer>

#include <memory>

class BasicEditor;
class BasicFindBar;
class QAction;
class QLabel;
class QMenu;
class QTimer;
class QToolBar;
class QTreeWidget;
class RuleEditorModel;

// "Rule Condition Editor": the modal editor of one condition script. The convention dialogs set
// the text and the rule's identity, run it, and take RuleCode back unless Cancelled. A thin
// shell over RuleEditorModel, which holds the checks and the close logic. Around the editing
// widget: a find and replace bar, the list of errors and warnings, the caret's line and column;
// the window keeps its place between runs, and help opens beside it, usable while it is open.
class frmRuleEditor final : public QDialog
{
    Q_OBJECT

public:
    explicit frmRuleEditor(QWidget *parent = nullptr);
    ~frmRuleEditor() override;

    // The text as it stands, with CR LF line ends; empty while a new condition's skeleton is
    // untouched.
    QString RuleCode() const;
    // The opening text; any line ends. Without one the editor offers a bare Sub Main.
    void setRuleCode(const QString &code);
    void setRuleTitle(const QString &title);
    void setRuleID(qint32 id);
    // 4 for a coding convention, 5 for a naming convention.
    void setRuleType(qint32 type);
    bool Cancelled() const;

    int exec() override;

    QAction *tool(const QString &id) const { return m_tools.value(id); }
    BasicEditor *editor() const { return m_sbMain; }

    // Keeps the window's place and gives the help window back to the program.
    void done(int result) override;

public slots:
    // Escape closes as the window frame does: asking first.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createTools();
    void createContextMenu();
    void toolClick(const QString &id);
    void InsertObjectProperty();
    void InsertObjectWorkfield();
    void InsertParserEvent();
    void showErrorPosition();
    void unloadForm();
    void tmrTimerTimer();
    void askGoToLine();
    void showErrorList();
    void showCaretPosition();
    void showHelpBeside(const QString &topic);
    void releaseHelp();
    void restoreWindowState();
    void saveWindowState();

    std::unique_ptr<RuleEditorModel> m_model;
    BasicEditor *m_sbMain;
    QToolBar *m_tlbTools;
    QMenu *m_mnuInsert = nullptr;
    QMenu *m_mnuContext = nullptr;
    BasicFindBar *m_fraFind = nullptr;
    QTreeWidget *m_lvwErrors = nullptr;
    QLabel *m_lblPosition = nullptr;
    QPointer<QWidget> m_helpOwner; // whose window the help was before it came beside this one
    bool m_newScript = true;       // the text started as the skeleton of a new condition
    QTimer *m_tmrTimer;
    QHash<QString, QAction *> m_tools;
    bool m_unloading = false; // the program closes the form: no questions
};
