#pragma once

#include "editors/PatternTestForm.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// "Pattern Test": edits a pattern and tries it on a sample text, over PatternTestForm.
class frmPatternTest final : public QDialog
{
    Q_OBJECT

public:
    explicit frmPatternTest(QWidget *parent = nullptr);

    void setPattern(const QString &pattern);
    QString Pattern() const { return m_model.Pattern(); }
    bool Cancelled() const { return m_model.Cancelled(); }

    void reject() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void enableTest();

    PatternTestForm m_model;
    QLineEdit *m_txtPattern;
    QPlainTextEdit *m_txtText;
    QCheckBox *m_chkCaseSensitive;
    QPushButton *m_cmdTest;
};
