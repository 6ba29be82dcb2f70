#include "editors/TagGridModel.h"

#include "editors/TagListForm.h"
#include "platform/ErrorFrame.h"
#include "rulebase/TagItem.h"

namespace {
constexpr const char *module = "TagList";
}

TagGridModel::TagGridModel(const TagListForm &form)
    : m_form(form)
{
}

int TagGridModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid() || !m_form.currentList())
        return 0;
    return m_form.currentList()->Count();
}

int TagGridModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_form.Fields().size());
}

QVariant TagGridModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    // A row that has gone ends the read without a message.
    const auto item = m_form.currentList()->Item(index.row() + 1);
    if (!item)
        return {};
    const TagListForm::Field field = m_form.Fields().at(index.column());
    if (role == LockedRole)
        return item->Locked();
    if (field == TagListForm::Locked) {
        if (role == Qt::CheckStateRole)
            return item->Locked() ? Qt::Checked : Qt::Unchecked;
        return {};
    }
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    switch (field) {
    case TagListForm::TagName:
        return item->TagName();
    case TagListForm::TagValue:
        return item->TagValue();
    case TagListForm::TagDescription:
        return item->TagDescription();
    case TagListForm::TagExample:
        return item->TagExample();
    default:
        return {};
    }
}

QVariant TagGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    const QStringList captions = m_form.ColumnCaptions();
    return section >= 0 && section < captions.size() ? QVariant(captions.at(section)) : QVariant();
}

Qt::ItemFlags TagGridModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const TagListForm::Field field = m_form.Fields().at(index.column());
    if (field == TagListForm::Locked)
        return flags;
    if (field == TagListForm::TagName && !m_form.NameEditable(index.row() + 1))
        return flags;
    return flags | Qt::ItemIsEditable;
}

bool TagGridModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    const QString text = value.toString();
    const TagListForm::Field field = m_form.Fields().at(index.column());
    if (field == TagListForm::TagName && !m_form.GridIsValid(text))
        return false;
    const bool written = guardedVoid("grdTags_UnboundUpdate", module, [&] {
        const auto item = m_form.currentList()->Item(index.row() + 1);
        switch (field) {
        case TagListForm::TagName:
            item->setTagName(text);
            break;
        case TagListForm::TagValue:
            item->setTagValue(text);
            break;
        case TagListForm::TagDescription:
            item->setTagDescription(text);
            break;
        case TagListForm::TagExample:
            item->setTagExample(text);
            break;
        default:
            break;
        }
    });
    if (written)
        emit dataChanged(index, index);
    return written;
}

void TagGridModel::refetch()
{
    beginResetModel();
    endResetModel();
}

void TagGridModel::beginAdd(int row)
{
    beginInsertRows(QModelIndex(), row, row);
}

void TagGridModel::endAdd()
{
    endInsertRows();
}

void TagGridModel::beginRemove(int row)
{
    beginRemoveRows(QModelIndex(), row, row);
}

void TagGridModel::endRemove()
{
    endRemoveRows();
}
