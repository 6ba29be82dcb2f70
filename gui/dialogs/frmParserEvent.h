#pragma once

#include "editors/ParserEventForm.h"

#include <QDialog>

class QPlainTextEdit;
class QTreeWidget;

// "Parser Event Selection": picks a node of a rule tree, over ParserEventForm.
class frmParserEvent final : public QDialog
{
    Q_OBJECT

public:
    explicit frmParserEvent(QWidget *parent = nullptr);

    void setRuleType(qint32 ruleType) { m_model.setRuleType(ruleType); }
    bool Cancelled() const { return m_model.Cancelled(); }
    QString ParserEvent() const { return m_model.ParserEvent(); }

    int exec() override;
    void reject() override;

private:
    ParserEventForm m_model;
    QTreeWidget *m_tvwEvent;
    QPlainTextEdit *m_txtDescription;
};
