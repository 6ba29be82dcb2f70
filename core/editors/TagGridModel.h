#pragma once

#include <QAbstractTableModel>

class TagListForm;

// The tag grid's rows: the current list of a tag form, by position, with in-place editing.
// Each edit goes through the item's setters, so the item turns dirty; its key in the list stays
// until the form's OK. Rows carry their Locked flag in LockedRole for the shell to style.
class TagGridModel final : public QAbstractTableModel
{
public:
    static constexpr int LockedRole = Qt::UserRole + 1;

    explicit TagGridModel(const TagListForm &form);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant
    headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    // The form tells the grid of changes to the current list.
    void refetch();
    void beginAdd(int row);
    void endAdd();
    void beginRemove(int row);
    void endRemove();

private:
    const TagListForm &m_form;
};
