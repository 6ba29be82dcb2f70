#include "collections/KeyedArrayList.h"

template class KeyedArrayListBase<ArrayList>;

void KeyedArrayList::Add(const QString &key, const QVariant &value, bool selected)
{
    addEntry(key, value, selected, true);
}
