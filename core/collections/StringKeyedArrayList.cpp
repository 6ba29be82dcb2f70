#include "collections/StringKeyedArrayList.h"

template class KeyedArrayListBase<StringArrayList>;

void StringKeyedArrayList::Add(const QString &key, const QString &value, bool selected)
{
    addEntry(key, value, selected, true);
}
