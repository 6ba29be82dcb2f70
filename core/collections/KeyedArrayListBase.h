#pragma once

#include "collections/KeyIndex.h"
#include "collections/KeyedListErrors.h"
#include "collections/StringArrayList.h"
#include "platform/ErrorFrame.h"

#include <QString>

#include <algorithm>
#include <limits>
#include <vector>

// What the three keyed lists share: a value list and a StringArrayList of keys, always of the
// same Count and order, reached by key (ignoring case, first match in list order) or by
// 1-based position. The members that take a key or a position raise "No such item." to the
// caller for a position outside 1..Count, so an unknown key fails the same way.
//
// A KeyIndex beside the two lists makes key look-ups O(1) on average; every change of a key
// or of a position goes through here, which keeps it in step.
template<typename Items>
class KeyedArrayListBase
{
public:
    using Value = typename Items::Value;

    bool Dirty() const { return m_items.Dirty(); }
    void setDirty(bool dirty) { m_items.setDirty(dirty); }
    qint32 Count() const { return m_items.Count(); }
    qint32 SelectedCount() const { return m_items.SelectedCount(); }

    bool Selected(const QString &key) const;
    bool Selected(qint32 index) const;
    void setSelected(const QString &key, bool selected);
    void setSelected(qint32 index, bool selected);
    Value Item(const QString &key) const;
    Value Item(qint32 index) const;
    void setItem(const QString &key, Value value);
    void setItem(qint32 index, Value value);
    QString Key(qint32 index) const;

    void RemoveByValue(const Value &value);
    bool Contains(const QString &key) const { return FindIndexByKey(key) != -1; }
    // The first position whose key equals `key` ignoring case, or -1.
    qint32 FindIndexByKey(const QString &key) const { return m_index.first(key); }
    // "Item1", "Item2"... from a counter of this list object; Clear does not restart it, and
    // the keys already in the list are not consulted.
    QString NewUniqueKey();
    void Clear();
    bool ContainsValue(const Value &value) const { return m_items.ContainsValue(value); }
    qint32 IndexOfValue(const Value &value) const { return m_items.IndexOfValue(value); }
    void MoveItem(qint32 fromIndex, qint32 toIndex);

    // Reorders entries and their keys together, as ArrayListBase::SortBy orders values. Every
    // entry is written back through Item, so a non-empty list comes out dirty; Selected flags
    // stay in place.
    template<typename Less>
    void SortBy(Less less);

protected:
    KeyedArrayListBase() = default;

    qint32 addEntry(const QString &key, Value value, bool selected, bool checkUnique);
    qint32 removeEntry(qint32 position);
    void replaceKey(qint32 index, const QString &key);
    qint32 position(const QString &key, const char *member) const;
    qint32 position(qint32 index, const char *member) const;

private:
    void unindex(qint32 from, qint32 to);
    void reindex(qint32 from, qint32 to);

    StringArrayList m_keys;
    Items m_items;
    KeyIndex m_index;
    // NewUniqueKey's state lives as long as the list object, through Clear.
    qint32 m_lastKeyNumber = 0;
    QString m_keyPrefix;
};

template<typename Items>
qint32 KeyedArrayListBase<Items>::position(const QString &key, const char *member) const
{
    return position(FindIndexByKey(key), member);
}

template<typename Items>
qint32 KeyedArrayListBase<Items>::position(qint32 index, const char *member) const
{
    if (index < 1 || index > Count())
        KeyedListErrors::raiseNoSuchItem(member);
    return index;
}

template<typename Items>
bool KeyedArrayListBase<Items>::Selected(const QString &key) const
{
    return m_items.Selected(position(key, "Selected"));
}

template<typename Items>
bool KeyedArrayListBase<Items>::Selected(qint32 index) const
{
    return m_items.Selected(position(index, "Selected"));
}

template<typename Items>
void KeyedArrayListBase<Items>::setSelected(const QString &key, bool selected)
{
    m_items.setSelected(position(key, "Selected"), selected);
}

template<typename Items>
void KeyedArrayListBase<Items>::setSelected(qint32 index, bool selected)
{
    m_items.setSelected(position(index, "Selected"), selected);
}

template<typename Items>
typename KeyedArrayListBase<Items>::Value KeyedArrayListBase<Items>::Item(const QString &key) const
{
    return m_items.Item(position(key, "Item"));
}

template<typename Items>
typename KeyedArrayListBase<Items>::Value KeyedArrayListBase<Items>::Item(qint32 index) const
{
    return m_items.Item(position(index, "Item"));
}

template<typename Items>
void KeyedArrayListBase<Items>::setItem(const QString &key, Value value)
{
    m_items.setItem(position(key, "Item"), std::move(value));
}

template<typename Items>
void KeyedArrayListBase<Items>::setItem(qint32 index, Value value)
{
    m_items.setItem(position(index, "Item"), std::move(value));
}

template<typename Items>
QString KeyedArrayListBase<Items>::Key(qint32 index) const
{
    return m_keys.Item(position(index, "Key"));
}

template<typename Items>
void KeyedArrayListBase<Items>::replaceKey(qint32 index, const QString &key)
{
    position(index, "Key");
    m_index.erase(m_keys.Item(index), index);
    m_keys.setItem(index, key);
    m_index.insert(key, index);
}

template<typename Items>
void KeyedArrayListBase<Items>::unindex(qint32 from, qint32 to)
{
    for (qint32 i = std::max(from, 1); i <= to; ++i)
        m_index.erase(m_keys.Item(i), i);
}

template<typename Items>
void KeyedArrayListBase<Items>::reindex(qint32 from, qint32 to)
{
    for (qint32 i = std::max(from, 1); i <= to; ++i)
        m_index.insert(m_keys.Item(i), i);
}

template<typename Items>
qint32 KeyedArrayListBase<Items>::addEntry(const QString &key,
                                           Value value,
                                           bool selected,
                                           bool checkUnique)
{
    // Raised before the frame: a duplicate is the caller's to handle.
    if (checkUnique && Contains(key))
        KeyedListErrors::raiseDuplicateKey(key);
    return guarded("Add", "KeyedArrayList", 0, [&] {
        const qint32 at = m_items.Add(std::move(value));
        m_items.setSelected(at, selected);
        m_keys.Add(key);
        m_index.insert(key, at);
        return at;
    });
}

template<typename Items>
qint32 KeyedArrayListBase<Items>::removeEntry(qint32 index)
{
    position(index, "Remove");
    guardedVoid("Remove", "KeyedArrayList", [&] {
        // Every later entry moves down one place, so its index entry moves with it.
        unindex(index, Count());
        m_items.Remove(index);
        m_keys.Remove(index);
        reindex(index, Count());
    });
    return index;
}

template<typename Items>
void KeyedArrayListBase<Items>::RemoveByValue(const Value &value)
{
    const qint32 index = IndexOfValue(value);
    if (index != -1)
        removeEntry(index);
}

template<typename Items>
QString KeyedArrayListBase<Items>::NewUniqueKey()
{
    if (m_keyPrefix.isEmpty())
        m_keyPrefix = QStringLiteral("Item");
    if (m_lastKeyNumber == std::numeric_limits<qint32>::max()) {
        m_lastKeyNumber = 1;
        m_keyPrefix += QLatin1Char('A');
    } else {
        ++m_lastKeyNumber;
    }
    return m_keyPrefix + QString::number(m_lastKeyNumber);
}

template<typename Items>
void KeyedArrayListBase<Items>::Clear()
{
    m_keys.Clear();
    m_items.Clear();
    m_index.clear();
}

template<typename Items>
void KeyedArrayListBase<Items>::MoveItem(qint32 fromIndex, qint32 toIndex)
{
    if (fromIndex == toIndex)
        return;
    // Only the entries between the two positions change place (a failing move may change
    // fewer, but never others), so only they are re-indexed.
    const qint32 low = std::min(fromIndex, toIndex);
    const qint32 high = std::min(std::max(fromIndex, toIndex), Count());
    unindex(low, high);
    m_items.MoveItem(fromIndex, toIndex);
    m_keys.MoveItem(fromIndex, toIndex);
    reindex(low, high);
}

template<typename Items>
template<typename Less>
void KeyedArrayListBase<Items>::SortBy(Less less)
{
    const qint32 n = Count();
    std::vector<Value> values;
    values.reserve(std::size_t(n));
    for (qint32 i = 1; i <= n; ++i)
        values.push_back(m_items.Item(i));
    // Positions in reverse, then a stable sort: the insertion sort's order (see ArrayListBase).
    std::vector<qint32> order;
    order.reserve(std::size_t(n));
    for (qint32 i = n; i >= 1; --i)
        order.push_back(i);
    std::stable_sort(order.begin(), order.end(), [&](qint32 a, qint32 b) {
        return less(values[std::size_t(a - 1)], values[std::size_t(b - 1)]);
    });
    std::vector<QString> keys;
    keys.reserve(std::size_t(n));
    for (const qint32 from : order)
        keys.push_back(m_keys.Item(from));
    for (qint32 i = 1; i <= n; ++i) {
        m_items.setItem(i, values[std::size_t(order[std::size_t(i - 1)] - 1)]);
        m_keys.setItem(i, keys[std::size_t(i - 1)]);
    }
    m_index.clear();
    reindex(1, n);
}
