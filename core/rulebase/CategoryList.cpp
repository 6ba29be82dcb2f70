#include "rulebase/CategoryList.h"

#include "collections/IKeyedList.h"
#include "platform/QuorinError.h"
#include "rulebase/CategoryItem.h"

#include <limits>

CategoryList::CategoryList()
    : m_list(std::make_shared<ObjectKeyedArrayList<CategoryItem>>())
{
}

std::shared_ptr<CategoryItem> CategoryList::Item(const QString &key) const
{
    return m_list->Item(key);
}

std::shared_ptr<CategoryItem> CategoryList::Item(qint32 index) const
{
    return m_list->Item(index);
}

bool CategoryList::ContainsID(qint32 id) const
{
    return m_list->Contains(CategoryIDToKey(id));
}

void CategoryList::Add(const std::shared_ptr<CategoryItem> &item, bool assignID)
{
    if (assignID) {
        if (m_lastID == std::numeric_limits<qint32>::max())
            throw QuorinError(ErrorNumber::Overflow,
                              QStringLiteral("CategoryList::Add"),
                              QStringLiteral("No new category can be added: the rulebase has used "
                                             "every category id up to %1.")
                                  .arg(m_lastID));
        ++m_lastID;
        item->setID(m_lastID);
    }
    m_list->Add(item->Key(), item, false, true);
}

QString CategoryList::CategoryIDToKey(qint32 id)
{
    return QString::number(id) + QLatin1Char('K');
}

void CategoryList::Sort()
{
    m_list->SortBy(
        [](const std::shared_ptr<CategoryItem> &a, const std::shared_ptr<CategoryItem> &b) {
            return a->Title().compare(b->Title(), Qt::CaseInsensitive) < 0;
        });
}

class CategoryListKeyedFace final : public IKeyedList
{
public:
    explicit CategoryListKeyedFace(std::shared_ptr<CategoryList> list)
        : m_list(std::move(list))
    {
    }

    qint32 Count() const override { return m_list->Count(); }
    std::shared_ptr<IListItem> Item(const QString &key) const override { return m_list->Item(key); }
    std::shared_ptr<IListItem> Item(qint32 index) const override { return m_list->Item(index); }
    void Add(const std::shared_ptr<IListItem> &item, bool generateKey) override
    {
        auto category = std::dynamic_pointer_cast<CategoryItem>(item);
        if (!category)
            throw item ? QuorinError::typeMismatch(QStringLiteral("CategoryList::Add"))
                       : QuorinError::objectNotSet(QStringLiteral("CategoryList::Add"));
        m_list->Add(category, generateKey);
    }
    void Remove(const QString &key) override { m_list->Remove(key); }
    void Remove(qint32 index) override { m_list->Remove(index); }
    bool Contains(const QString &key) const override { return m_list->m_list->Contains(key); }
    bool Selected(const QString &key) const override { return m_list->m_list->Selected(key); }
    bool Selected(qint32 index) const override { return m_list->m_list->Selected(index); }
    qint32 SelectedCount() const override { return m_list->m_list->SelectedCount(); }
    void Clear() override { m_list->m_list->Clear(); }
    QString Key(qint32) const override { return {}; }

private:
    std::shared_ptr<CategoryList> m_list;
};

std::shared_ptr<IKeyedList> asKeyedList(std::shared_ptr<CategoryList> list)
{
    return std::make_shared<CategoryListKeyedFace>(std::move(list));
}
