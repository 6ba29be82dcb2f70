#pragma once

#include "collections/ArrayListBase.h"

#include <QVariant>

struct ArrayListTraits
{
    using Value = QVariant;
    static constexpr const char *className = "ArrayList";
    // Objects (VariantObject) match the identical object only; other values match other
    // non-objects whose text is equal ignoring case, so 12 matches "12".
    static bool matches(const QVariant &stored, const QVariant &wanted);
    static void clearSlot(QVariant &slot);
};

extern template class ArrayListBase<ArrayListTraits>;

// A 1-based list of any value; objects travel as VariantObject references.
class ArrayList final : public ArrayListBase<ArrayListTraits>
{
};
