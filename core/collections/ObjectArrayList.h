#pragma once

#include "collections/ArrayListBase.h"

#include <memory>

template<typename T>
struct ObjectArrayListTraits
{
    using Value = std::shared_ptr<T>;
    static constexpr const char *className = "ObjectArrayList";
    static bool matches(const Value &stored, const Value &wanted) { return stored == wanted; }
    static void clearSlot(Value &slot) { slot.reset(); }
};

// A 1-based list of shared objects; IndexOfValue finds the identical object only.
template<typename T>
class ObjectArrayList final : public ArrayListBase<ObjectArrayListTraits<T>>
{
};
