#pragma once

#include "collections/ArrayListBase.h"

struct LongArrayListTraits
{
    using Value = qint32;
    static constexpr const char *className = "LongArrayList";
    static bool matches(qint32 stored, qint32 wanted) { return stored == wanted; }
    // A removed last number stays in its slot; only Count forgets it.
    static void clearSlot(qint32 &) {}
};

extern template class ArrayListBase<LongArrayListTraits>;

// A 1-based list of 32-bit numbers.
class LongArrayList final : public ArrayListBase<LongArrayListTraits>
{
};
