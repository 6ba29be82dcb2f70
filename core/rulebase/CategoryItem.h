#pragma once

#include "collections/IListItem.h"
#include "collections/ObjectArrayList.h"

#include <memory>

class IRule;

// A category of rules. It has no dirty flag: changes reach the rulebase through its list.
class CategoryItem final : public IListItem
{
public:
    // "<ID>K"; follows every change of ID, but not the key the item has in a list.
    QString Key() const override { return m_key; }
    qint32 ID() const override { return m_id; }
    void setID(qint32 id);
    QString Title() const override { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    QString Description() const override { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    // Left out of what the review product loads and of the generated document.
    bool Hidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }
    // Working list of the report's page for this category; made on first use, never saved
    // with the category.
    std::shared_ptr<ObjectArrayList<IRule>> CategoryRules() const;

private:
    void setListKey(const QString &key) override { m_key = key; }

    QString m_key;
    qint32 m_id = 0;
    QString m_title;
    QString m_description;
    bool m_hidden = false;
    mutable std::shared_ptr<ObjectArrayList<IRule>> m_categoryRules;
};
