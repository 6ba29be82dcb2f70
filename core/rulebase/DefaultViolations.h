#pragma once

#include "collections/ObjectArrayList.h"

#include <memory>

class ViolationDefinition;

// The five violations that belong to no rule. A definition's position is its type:
// 1 unauthorised component, 2 its version, 3 unauthorised reference, 4 its version,
// 5 unknown control. The set is built through the setters, so all five start dirty until
// their owner clears them.
class DefaultViolations final
{
public:
    DefaultViolations();

    qint32 Count() const { return m_items.Count(); }
    bool Dirty() const;
    void setDirty(bool dirty);
    // With the list's own bounds: a stale slot up to its capacity gives null, beyond fails.
    std::shared_ptr<ViolationDefinition> Item(qint32 index) const;
    // Null, not an error, for a type outside 1 to 5.
    std::shared_ptr<ViolationDefinition> ItemByType(qint32 type) const;

private:
    ObjectArrayList<ViolationDefinition> m_items;
};
