#pragma once

#include "collections/ObjectKeyedArrayList.h"

#include <QString>

#include <memory>

class CategoryItem;
class IKeyedList;

// The categories of a rulebase, keyed by CategoryItem::Key, with the allocator of their ids.
// LastID only grows, so an id is never used twice in one rulebase.
class CategoryList final
{
public:
    CategoryList();

    bool Dirty() const { return m_list->Dirty(); }
    void setDirty(bool dirty) { m_list->setDirty(dirty); }
    qint32 LastID() const { return m_lastID; }
    qint32 Count() const { return m_list->Count(); }
    // Raise "No such item." for an unknown key or position.
    std::shared_ptr<CategoryItem> Item(const QString &key) const;
    std::shared_ptr<CategoryItem> Item(qint32 index) const;
    // False for -1, the id of no category.
    bool ContainsID(qint32 id) const;
    // With `assignID` the item gets the next id; once every id is used, the overflow error is
    // raised and nothing added. A key in use raises the duplicate-key error to the caller,
    // after the id was given.
    void Add(const std::shared_ptr<CategoryItem> &item, bool assignID);
    void Remove(const QString &key) { m_list->Remove(key); }
    void Remove(qint32 index) { m_list->Remove(index); }
    // "<ID>K", for any number, held or not.
    static QString CategoryIDToKey(qint32 id);
    // By title, ignoring case; equal titles end up later-first. Items and keys move together,
    // selection flags stay; a non-empty list comes out dirty, which is how an edited title
    // reaches the rulebase.
    void Sort();

private:
    friend class CategoryListKeyedFace;
    // The loader restores LastID from the file, bypassing the allocator.
    friend class RulebaseManager;
    void setLastID(qint32 lastID) { m_lastID = lastID; }

    std::shared_ptr<ObjectKeyedArrayList<CategoryItem>> m_list;
    qint32 m_lastID = 0;
};

// The IKeyedList face of the list, shared with it. Its Add hands generateKey to assignID, and
// its Key is always empty.
std::shared_ptr<IKeyedList> asKeyedList(std::shared_ptr<CategoryList> list);
