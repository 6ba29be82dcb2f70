#pragma once

#include "collections/ObjectKeyedArrayList.h"
#include "platform/QuorinError.h"

#include <QString>

#include <memory>

// What AuthorisedComponents and AuthorisedReferences share: items keyed by LibID, and a Dirty
// of the list's own that never asks the wrapped list. Errors name the concrete class.
template<typename T>
class AuthorisedItemList
{
public:
    qint32 Count() const { return m_list.Count(); }
    // Items whose own Selected is set, counted afresh.
    qint32 SelectedCount() const;
    bool Dirty() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }
    bool Contains(const QString &libID) const { return m_list.Contains(libID); }
    // Raises "No such item." for a position outside 1..Count; Dirty then stays.
    void Remove(qint32 index);
    // An unknown LibID is no error: nothing happens.
    void RemoveByLibID(const QString &libID);
    // A string is a LibID, a number a 1-based position; raises "No such item." for neither.
    std::shared_ptr<T> Item(const QString &libID) const
    {
        return itemAt(FindByLibID(libID), "Item");
    }
    std::shared_ptr<T> Item(qint32 index) const { return itemAt(index, "Item"); }
    // -1 for an unknown LibID.
    qint32 FindByLibID(const QString &libID) const { return m_list.FindIndexByKey(libID); }

protected:
    explicit AuthorisedItemList(const char *className)
        : m_className(className)
    {
    }
    // Adds an existing object under its own LibID unless that LibID is held.
    bool addItem(const std::shared_ptr<T> &item);

    ObjectKeyedArrayList<T> m_list;

private:
    std::shared_ptr<T> itemAt(qint32 index, const char *member) const;
    [[noreturn]] void raiseNoSuchItem(const char *member) const;

    const char *m_className;
    bool m_dirty = false;
};

template<typename T>
qint32 AuthorisedItemList<T>::SelectedCount() const
{
    qint32 count = 0;
    for (qint32 i = 1; i <= m_list.Count(); ++i) {
        if (m_list.Item(i)->Selected())
            ++count;
    }
    return count;
}

template<typename T>
void AuthorisedItemList<T>::raiseNoSuchItem(const char *member) const
{
    throw QuorinError(ErrorNumber::NoSuchItem,
                      QString::fromLatin1(m_className) + QStringLiteral("::")
                          + QString::fromLatin1(member),
                      QStringLiteral("No such item."));
}

template<typename T>
std::shared_ptr<T> AuthorisedItemList<T>::itemAt(qint32 index, const char *member) const
{
    if (index < 1 || index > m_list.Count())
        raiseNoSuchItem(member);
    return m_list.Item(index);
}

template<typename T>
void AuthorisedItemList<T>::Remove(qint32 index)
{
    if (index < 1 || index > m_list.Count())
        raiseNoSuchItem("Remove");
    m_list.Remove(index);
    m_dirty = true;
}

template<typename T>
void AuthorisedItemList<T>::RemoveByLibID(const QString &libID)
{
    const qint32 index = m_list.FindIndexByKey(libID);
    if (index == -1)
        return;
    m_list.Remove(index);
    m_dirty = true;
}

template<typename T>
bool AuthorisedItemList<T>::addItem(const std::shared_ptr<T> &item)
{
    if (m_list.Contains(item->LibID()))
        return false;
    m_list.Add(item->LibID(), item, false, true);
    m_dirty = true;
    return true;
}
