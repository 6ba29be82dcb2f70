#pragma once

#include "collections/IKeyedList.h"
#include "collections/IListItem.h"
#include "collections/ObjectKeyedArrayList.h"
#include "platform/QuorinError.h"

#include <concepts>
#include <memory>

// The IKeyedList face of an ObjectKeyedArrayList whose items are IListItems. It shares the
// list, so changes made through it are the list's.
template<typename T>
class ObjectKeyedListAdapter final : public IKeyedList
{
    static_assert(std::derived_from<T, IListItem>, "the items must be IListItems");

public:
    explicit ObjectKeyedListAdapter(std::shared_ptr<ObjectKeyedArrayList<T>> list)
        : m_list(std::move(list))
    {
    }

    qint32 Count() const override { return m_list->Count(); }
    std::shared_ptr<IListItem> Item(const QString &key) const override { return m_list->Item(key); }
    std::shared_ptr<IListItem> Item(qint32 index) const override { return m_list->Item(index); }
    void Add(const std::shared_ptr<IListItem> &item, bool generateKey) override;
    void Remove(const QString &key) override { m_list->Remove(key); }
    void Remove(qint32 index) override { m_list->Remove(index); }
    bool Contains(const QString &key) const override { return m_list->Contains(key); }
    bool Selected(const QString &key) const override { return m_list->Selected(key); }
    bool Selected(qint32 index) const override { return m_list->Selected(index); }
    qint32 SelectedCount() const override { return m_list->SelectedCount(); }
    void Clear() override { m_list->Clear(); }
    QString Key(qint32 index) const override { return m_list->Key(index); }

private:
    std::shared_ptr<ObjectKeyedArrayList<T>> m_list;
};

template<typename T>
void ObjectKeyedListAdapter<T>::Add(const std::shared_ptr<IListItem> &item, bool generateKey)
{
    // Another kind of item can't go into this list.
    auto typed = std::dynamic_pointer_cast<T>(item);
    if (!typed)
        throw item ? QuorinError::typeMismatch(QStringLiteral("KeyedArrayList::Add"))
                   : QuorinError::objectNotSet(QStringLiteral("KeyedArrayList::Add"));
    if (generateKey)
        item->setListKey(m_list->NewUniqueKey());
    m_list->Add(item->Key(), std::move(typed), false, true);
}

template<typename T>
std::shared_ptr<IKeyedList> asKeyedList(std::shared_ptr<ObjectKeyedArrayList<T>> list)
{
    return std::make_shared<ObjectKeyedListAdapter<T>>(std::move(list));
}
