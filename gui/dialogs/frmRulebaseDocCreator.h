#pragma once

#include <QDialog>

#include <vector>

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;
class RulebaseDocCreatorForm;
struct DocCreatorRow;

// The "Documentation Wizard" over its form model: shows the model's rows and fields, and hands
// every click, check and edit back to it.
class frmRulebaseDocCreator final : public QDialog
{
    Q_OBJECT

public:
    // The form is the caller's and outlives the dialog.
    explicit frmRulebaseDocCreator(RulebaseDocCreatorForm &form, QWidget *parent = nullptr);

    // The help topic of the dialog, for F1 and the Help button.
    static QString helpTopic();

public slots:
    void accept() override;
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void buildWidgets();
    // Brings every widget up to the model's state; the widgets' own signals stay quiet meanwhile.
    void refresh();
    void
    fillTree(QTreeWidget *tree, const std::vector<DocCreatorRow> &rows, int selected, bool rules);
    void showHelp();

    RulebaseDocCreatorForm &m_form;
    bool m_refreshing = false;
    QTabWidget *m_tabs = nullptr;
    QTreeWidget *m_sections = nullptr;
    QPlainTextEdit *m_sectionDescription = nullptr;
    QPushButton *m_moveSectionUp = nullptr;
    QPushButton *m_moveSectionDown = nullptr;
    QTreeWidget *m_rules = nullptr;
    QPlainTextEdit *m_ruleDescription = nullptr;
    QPushButton *m_moveRuleUp = nullptr;
    QPushButton *m_moveRuleDown = nullptr;
    QListWidget *m_tables = nullptr;
    QLineEdit *m_title = nullptr;
    QPlainTextEdit *m_description = nullptr;
};
