#pragma once

#include "collections/KeyedArrayListBase.h"
#include "collections/ObjectArrayList.h"

// A keyed list of shared objects; ContainsValue and IndexOfValue go by identity.
// For items that are IListItems, asKeyedList() (ObjectKeyedListAdapter.h) gives its IKeyedList.
template<typename T>
class ObjectKeyedArrayList final : public KeyedArrayListBase<ObjectArrayList<T>>
{
    using Base = KeyedArrayListBase<ObjectArrayList<T>>;

public:
    // With checkUnique, a key in use (ignoring case) raises the duplicate-key error to the
    // caller and nothing is added. Gives the new position.
    qint32 Add(const QString &key, std::shared_ptr<T> item, bool selected, bool checkUnique)
    {
        return Base::addEntry(key, std::move(item), selected, checkUnique);
    }
    // Replaces the key at a position; duplicates are not checked.
    void setKey(qint32 index, const QString &key) { Base::replaceKey(index, key); }
    // Gives the position removed.
    qint32 Remove(const QString &key) { return Base::removeEntry(Base::position(key, "Remove")); }
    qint32 Remove(qint32 index) { return Base::removeEntry(index); }
};
