#include "collections/StringArrayList.h"

#include "platform/TextUtils.h"

template class ArrayListBase<StringArrayListTraits>;

bool StringArrayListTraits::matches(const QString &stored, const QString &wanted)
{
    return Text::same(stored, wanted);
}

void StringArrayList::Sort()
{
    SortBy(
        [](const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
}
