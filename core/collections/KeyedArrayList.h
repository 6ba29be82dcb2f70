#pragma once

#include "collections/ArrayList.h"
#include "collections/KeyedArrayListBase.h"

extern template class KeyedArrayListBase<ArrayList>;

// A keyed list of any value; objects travel as VariantObject references.
class KeyedArrayList final : public KeyedArrayListBase<ArrayList>
{
public:
    // Raises the duplicate-key error to the caller when the key is in use, ignoring case.
    void Add(const QString &key, const QVariant &value, bool selected);
    void Remove(const QString &key) { removeEntry(position(key, "Remove")); }
    void Remove(qint32 index) { removeEntry(index); }
};
