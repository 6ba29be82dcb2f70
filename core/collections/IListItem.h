#pragma once

#include <QString>

template<typename T>
class ObjectKeyedListAdapter;

// What generic list dialogs see of an item of a keyed list.
class IListItem
{
public:
    virtual ~IListItem() = default;

    virtual QString Key() const = 0;
    virtual QString Title() const = 0;
    virtual QString Description() const = 0;
    virtual qint32 ID() const = 0;

private:
    // Only the keyed lists give an item its key (IKeyedList::Add with a generated key).
    template<typename T>
    friend class ObjectKeyedListAdapter;
    virtual void setListKey(const QString &key) = 0;
};
