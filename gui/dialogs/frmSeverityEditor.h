#pragma once

#include <QDialog>

class QLabel;
class QPushButton;
class SeverityEditorForm;

// "Severity": edits one severity, its icon chosen from a pop-up of the severity images; a shell
// over its form model.
class frmSeverityEditor final : public QDialog
{
    Q_OBJECT

public:
    explicit frmSeverityEditor(SeverityEditorForm &form, QWidget *parent = nullptr);

    void accept() override;
    void reject() override;

private:
    void showColour();

    SeverityEditorForm &m_form;
    QLabel *m_icon;
    QPushButton *m_ok;
};
