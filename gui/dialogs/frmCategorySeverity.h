#pragma once

#include <QDialog>

class CategorySeverityForm;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTreeWidget;

// "Category List" or "Severity List": the rulebase's categories (add, edit, delete) or its five
// severities (edit), a shell over its form model. Leaving is refused while two severities share
// a colour.
class frmCategorySeverity final : public QDialog
{
    Q_OBJECT

public:
    explicit frmCategorySeverity(CategorySeverityForm &form, QWidget *parent = nullptr);

    void accept() override;
    void reject() override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void PopulateListView();
    void SetEnabledState();

    CategorySeverityForm &m_form;
    QTreeWidget *m_list;
    QPlainTextEdit *m_description;
    QPushButton *m_add;
    QPushButton *m_edit;
    QPushButton *m_delete;
};
