#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTabBar;
class QTableView;
class TagListForm;

// "Control Tags", "Data Type Tags" or "Scope Tags": one tag set in a grid edited in place, on
// clones; a shell over its form model. The grid is sorted on the tag's name.
class frmTagList final : public QDialog
{
    Q_OBJECT

public:
    explicit frmTagList(TagListForm &form, QWidget *parent = nullptr);

    void accept() override;
    void reject() override;

private:
    // 1-based position in the current list of the selected row; 0 for none.
    qint32 selectedRow() const;
    void SetSortKey();
    void SelectionChange();
    void Insert();
    void DeleteSelected();

    TagListForm &m_form;
    QTabBar *m_tabs;
    QTableView *m_grid;
    QSortFilterProxyModel *m_sorted;
    QPushButton *m_insert;
    QPushButton *m_delete;
    QPushButton *m_ok;
};
