#pragma once

#include <QString>

#include <memory>

class IListItem;

// A keyed list of IListItems as generic dialogs handle it, without knowing the item type.
// Positions are 1-based; an unknown key or a position outside 1..Count raises "No such item.".
class IKeyedList
{
public:
    virtual ~IKeyedList() = default;

    virtual qint32 Count() const = 0;
    virtual std::shared_ptr<IListItem> Item(const QString &key) const = 0;
    virtual std::shared_ptr<IListItem> Item(qint32 index) const = 0;
    // With generateKey, the item is first given a new key of the list's own.
    virtual void Add(const std::shared_ptr<IListItem> &item, bool generateKey) = 0;
    virtual void Remove(const QString &key) = 0;
    virtual void Remove(qint32 index) = 0;
    virtual bool Contains(const QString &key) const = 0;
    virtual bool Selected(const QString &key) const = 0;
    virtual bool Selected(qint32 index) const = 0;
    virtual qint32 SelectedCount() const = 0;
    virtual void Clear() = 0;
    virtual QString Key(qint32 index) const = 0;
};
