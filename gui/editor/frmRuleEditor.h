#pragma once

#include <QDialog>

class QPlainTextEdit;

// "Rule Condition Editor": the modal editor of one condition script. The convention dialogs set
// the text and the rule's identity, run it, and take RuleCode back unless Cancelled.
class frmRuleEditor final : public QDialog
{
    Q_OBJECT

public:
    explicit frmRuleEditor(QWidget *parent = nullptr);
    ~frmRuleEditor() override;

    QString RuleCode() const;
    void setRuleCode(const QString &code);
    void setRuleTitle(const QString &title) { m_ruleTitle = title; }
    void setRuleID(qint32 id) { m_ruleID = id; }
    // 4 for a coding convention, 5 for a naming convention.
    void setRuleType(qint32 type) { m_ruleType = type; }
    bool Cancelled() const { return m_cancelled; }

    int exec() override;

private:
    QPlainTextEdit *m_text;
    QString m_ruleTitle;
    qint32 m_ruleID = 0;
    qint32 m_ruleType = 0;
    bool m_cancelled = true;
};
