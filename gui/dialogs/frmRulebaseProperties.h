#pragma once

#include <QDialog>

#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class RulebasePropertiesForm;

// "Rulebase Properties": title, description, version and tolerances of the open rulebase, a
// shell over its form model.
class frmRulebaseProperties final : public QDialog
{
    Q_OBJECT

public:
    explicit frmRulebaseProperties(RulebasePropertiesForm &form, QWidget *parent = nullptr);

    void accept() override;
    void reject() override;

private:
    void DataToScreen();
    void EnableControls();

    RulebasePropertiesForm &m_form;
    QTabWidget *m_tabs;
    QLineEdit *m_title;
    QPlainTextEdit *m_description;
    QLineEdit *m_major;
    QLineEdit *m_minor;
    QLineEdit *m_revision;
    QCheckBox *m_autoIncrement;
    std::array<QLabel *, 6> m_severityLabels{};
    std::array<QLineEdit *, 6> m_counts{};
    std::array<QLineEdit *, 6> m_impacts{};
    QLineEdit *m_percentageComments;
    QLineEdit *m_cyclomaticComplexity;
    QPushButton *m_ok;
};
