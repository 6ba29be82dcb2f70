#pragma once

#include "collections/KeyedArrayListBase.h"
#include "collections/StringArrayList.h"

extern template class KeyedArrayListBase<StringArrayList>;

// A keyed list of strings.
class StringKeyedArrayList final : public KeyedArrayListBase<StringArrayList>
{
public:
    // Raises the duplicate-key error to the caller when the key is in use, ignoring case.
    void Add(const QString &key, const QString &value, bool selected);
    void Remove(const QString &key) { removeEntry(position(key, "Remove")); }
    void Remove(qint32 index) { removeEntry(index); }
};
