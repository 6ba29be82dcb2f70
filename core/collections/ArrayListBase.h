#pragma once

#include "platform/ErrorFrame.h"
#include "platform/QuorinError.h"

#include <QString>

#include <algorithm>
#include <vector>

// The growable 1-based array the whole list family shares. Traits give the element type, how
// IndexOfValue matches, what Remove leaves in a vacated last slot, and the class name the error
// frame reports under.
//
// The storage behaves like a fixed array of Capacity slots: Item reaches stale slots between
// Count and Capacity, and only indexes outside 1..Capacity fail. Callers rely on both.
template<typename Traits>
class ArrayListBase
{
public:
    using Value = typename Traits::Value;

    ArrayListBase();

    bool Dirty() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }
    qint32 Count() const { return m_count; }
    // Starts at 10, doubles when an Add overflows it, halves as Remove empties the list.
    qint32 Capacity() const { return m_capacity; }

    // No frame: a subscript error reaches the caller.
    Value Item(qint32 index) const;
    void setItem(qint32 index, Value value);
    bool Selected(qint32 index) const;
    void setSelected(qint32 index, bool selected);
    qint32 SelectedCount() const;

    qint32 Add(Value value);
    void Remove(qint32 index);
    void RemoveByValue(const Value &value);
    void Clear();
    bool ContainsValue(const Value &value) const;
    qint32 IndexOfValue(const Value &value) const;
    void MoveItem(qint32 fromIndex, qint32 toIndex);

    // Orders the values as an insertion sort that puts each entry before the first entry not
    // less than it: ascending, and entries that compare equal end up in reverse order of
    // arrival. Selected flags stay where they are; Dirty is not touched.
    template<typename Less>
    void SortBy(Less less);

private:
    Value &slot(qint32 index, const char *member);
    const Value &slot(qint32 index, const char *member) const;
    std::vector<bool>::reference flag(qint32 index, const char *member);
    bool flag(qint32 index, const char *member) const;
    void checkIndex(qint32 index, const char *member) const;
    void resize(qint32 capacity);

    std::vector<Value> m_values; // slot i lives at m_values[i - 1]
    std::vector<bool> m_selected;
    qint32 m_count = 0;
    bool m_dirty = false;
    qint32 m_capacity = 10;
};

template<typename Traits>
ArrayListBase<Traits>::ArrayListBase()
    : m_values(10)
    , m_selected(10, false)
{
}

template<typename Traits>
void ArrayListBase<Traits>::checkIndex(qint32 index, const char *member) const
{
    if (index < 1 || index > qint32(m_values.size()))
        throw QuorinError::subscriptOutOfRange(QString::fromLatin1(Traits::className)
                                               + QStringLiteral("::")
                                               + QString::fromLatin1(member));
}

template<typename Traits>
typename ArrayListBase<Traits>::Value &ArrayListBase<Traits>::slot(qint32 index, const char *member)
{
    checkIndex(index, member);
    return m_values[std::size_t(index - 1)];
}

template<typename Traits>
const typename ArrayListBase<Traits>::Value &ArrayListBase<Traits>::slot(qint32 index,
                                                                         const char *member) const
{
    checkIndex(index, member);
    return m_values[std::size_t(index - 1)];
}

template<typename Traits>
std::vector<bool>::reference ArrayListBase<Traits>::flag(qint32 index, const char *member)
{
    checkIndex(index, member);
    return m_selected[std::size_t(index - 1)];
}

template<typename Traits>
bool ArrayListBase<Traits>::flag(qint32 index, const char *member) const
{
    checkIndex(index, member);
    return m_selected[std::size_t(index - 1)];
}

template<typename Traits>
void ArrayListBase<Traits>::resize(qint32 capacity)
{
    m_values.resize(std::size_t(capacity));
    m_selected.resize(std::size_t(capacity), false);
    m_capacity = capacity;
}

template<typename Traits>
typename ArrayListBase<Traits>::Value ArrayListBase<Traits>::Item(qint32 index) const
{
    return slot(index, "Item");
}

template<typename Traits>
void ArrayListBase<Traits>::setItem(qint32 index, Value value)
{
    slot(index, "Item") = std::move(value);
    m_dirty = true;
}

template<typename Traits>
bool ArrayListBase<Traits>::Selected(qint32 index) const
{
    return flag(index, "Selected");
}

template<typename Traits>
void ArrayListBase<Traits>::setSelected(qint32 index, bool selected)
{
    flag(index, "Selected") = selected;
}

template<typename Traits>
qint32 ArrayListBase<Traits>::SelectedCount() const
{
    const auto live = std::min(std::size_t(m_count), m_selected.size());
    return qint32(std::count(m_selected.begin(), m_selected.begin() + qsizetype(live), true));
}

template<typename Traits>
qint32 ArrayListBase<Traits>::Add(Value value)
{
    return guarded("Add", Traits::className, 0, [&] {
        ++m_count;
        if (m_count > m_capacity)
            resize(m_capacity * 2);
        flag(m_count, "Add") = false;
        slot(m_count, "Add") = std::move(value);
        m_dirty = true;
        return m_count;
    });
}

template<typename Traits>
void ArrayListBase<Traits>::Remove(qint32 index)
{
    guardedVoid("Remove", Traits::className, [&] {
        if (index > m_count) {
            m_dirty = true;
            return;
        }
        if (index == m_count) {
            Traits::clearSlot(slot(index, "Remove"));
        } else {
            // Entries move down with their flags; the old last slot keeps a stale copy.
            checkIndex(index, "Remove");
            for (qint32 i = index; i < m_count - 1; ++i) {
                slot(i, "Remove") = std::move(slot(i + 1, "Remove"));
                flag(i, "Remove") = flag(i + 1, "Remove");
            }
            slot(m_count - 1, "Remove") = slot(m_count, "Remove");
            flag(m_count - 1, "Remove") = flag(m_count, "Remove");
        }
        --m_count;
        if (m_count < m_capacity / 2)
            resize(m_capacity / 2);
        m_dirty = true;
    });
}

template<typename Traits>
void ArrayListBase<Traits>::RemoveByValue(const Value &value)
{
    guardedVoid("RemoveByValue", Traits::className, [&] {
        const qint32 index = IndexOfValue(value);
        if (index != -1)
            Remove(index);
    });
}

template<typename Traits>
void ArrayListBase<Traits>::Clear()
{
    guardedVoid("Clear", Traits::className, [&] {
        m_values.assign(10, Value{});
        m_selected.assign(10, false);
        m_count = 0;
        m_capacity = 10;
        m_dirty = false;
    });
}

template<typename Traits>
bool ArrayListBase<Traits>::ContainsValue(const Value &value) const
{
    return IndexOfValue(value) != -1;
}

template<typename Traits>
qint32 ArrayListBase<Traits>::IndexOfValue(const Value &value) const
{
    return guarded("IndexOfValue", Traits::className, -1, [&] {
        const auto live = std::min(std::size_t(m_count), m_values.size());
        for (std::size_t i = 0; i < live; ++i) {
            if (Traits::matches(m_values[i], value))
                return qint32(i + 1);
        }
        return -1;
    });
}

template<typename Traits>
void ArrayListBase<Traits>::MoveItem(qint32 fromIndex, qint32 toIndex)
{
    if (fromIndex == toIndex)
        return;
    guardedVoid("MoveItem", Traits::className, [&] {
        // Copies, not moves: a failure half way leaves every slot holding a real value.
        const Value saved = slot(fromIndex, "MoveItem");
        const bool savedFlag = flag(fromIndex, "MoveItem");
        const qint32 step = fromIndex < toIndex ? 1 : -1;
        for (qint32 i = fromIndex; i != toIndex; i += step) {
            slot(i, "MoveItem") = slot(i + step, "MoveItem");
            flag(i, "MoveItem") = flag(i + step, "MoveItem");
        }
        slot(toIndex, "MoveItem") = saved;
        flag(toIndex, "MoveItem") = savedFlag;
        m_dirty = true;
    });
}

template<typename Traits>
template<typename Less>
void ArrayListBase<Traits>::SortBy(Less less)
{
    // A stable sort of the reversed entries gives exactly the insertion sort's order, equal
    // entries last-come-first, without its quadratic cost.
    const auto end = m_values.begin() + qsizetype(std::min(std::size_t(m_count), m_values.size()));
    std::reverse(m_values.begin(), end);
    std::stable_sort(m_values.begin(), end, less);
}
