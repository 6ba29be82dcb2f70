#pragma once

#include "collections/ArrayListBase.h"

#include <QString>

struct StringArrayListTraits
{
    using Value = QString;
    static constexpr const char *className = "StringArrayList";
    static bool matches(const QString &stored, const QString &wanted);
    static void clearSlot(QString &slot) { slot.clear(); }
};

extern template class ArrayListBase<StringArrayListTraits>;

// A 1-based list of strings; IndexOfValue ignores case.
class StringArrayList final : public ArrayListBase<StringArrayListTraits>
{
public:
    // Ascending, ignoring case; of two texts equal but for case the later comes first.
    // Selected flags stay in place and Dirty is not set.
    void Sort();
};
