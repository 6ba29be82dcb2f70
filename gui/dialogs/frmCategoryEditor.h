#pragma once

#include <QDialog>

class CategoryEditorForm;
class QPushButton;

// "Category": edits one category, a shell over its form model.
class frmCategoryEditor final : public QDialog
{
    Q_OBJECT

public:
    explicit frmCategoryEditor(CategoryEditorForm &form, QWidget *parent = nullptr);

    void accept() override;
    void reject() override;

private:
    CategoryEditorForm &m_form;
    QPushButton *m_ok;
};
