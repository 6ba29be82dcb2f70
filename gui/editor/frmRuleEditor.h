#pragma once

#include <QDialog>
#include <QHash>

#include <memory>

class BasicEditor;
class QAction;
class QMenu;
class QTimer;
class QToolBar;
class RuleEditorModel;

// "Rule Condition Editor": the modal editor of one condition script. The convention dialogs set
// the text and the rule's identity, run it, and take RuleCode back unless Cancelled. A thin
// shell over RuleEditorModel, which holds the checks and the close logic.
class frmRuleEditor final : public QDialog
{
    Q_OBJECT

public:
    explicit frmRuleEditor(QWidget *parent = nullptr);
    ~frmRuleEditor() override;

    // The text as it stands, with CR LF line ends.
    QString RuleCode() const;
    // The opening text; any line ends.
    void setRuleCode(const QString &code);
    void setRuleTitle(const QString &title);
    void setRuleID(qint32 id);
    // 4 for a coding convention, 5 for a naming convention.
    void setRuleType(qint32 type);
    bool Cancelled() const;

    int exec() override;

    QAction *tool(const QString &id) const { return m_tools.value(id); }
    BasicEditor *editor() const { return m_sbMain; }

public slots:
    // Escape closes as the window frame does: asking first.
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void createTools();
    void toolClick(const QString &id);
    void InsertObjectProperty();
    void InsertObjectWorkfield();
    void InsertParserEvent();
    void showErrorPosition();
    void unloadForm();
    void tmrTimerTimer();

    std::unique_ptr<RuleEditorModel> m_model;
    BasicEditor *m_sbMain;
    QToolBar *m_tlbTools;
    QMenu *m_mnuInsert = nullptr;
    QTimer *m_tmrTimer;
    QHash<QString, QAction *> m_tools;
    bool m_unloading = false; // the program closes the form: no questions
};
