#pragma once

#include <QDialog>

class AddFromProjectForm;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabBar;
class QTreeWidget;
class QTreeWidgetItem;

// "Add Authorised Items From Project": the candidates of the projects read so far, by tab, each
// with a check mark that the model keeps on the candidate itself.
class frmAddFromProject final : public QDialog
{
    Q_OBJECT

public:
    explicit frmAddFromProject(AddFromProjectForm &form, QWidget *parent = nullptr);
    ~frmAddFromProject() override;

private:
    void FillList();
    void ItemChanged(QTreeWidgetItem *item);

    AddFromProjectForm &m_form;
    QLineEdit *m_file;
    QTabBar *m_tabs;
    QTreeWidget *m_items;
    QLabel *m_componentsPicture;
    QLabel *m_referencesPicture;
    QPushButton *m_ok;
    bool m_filling = false;
};
