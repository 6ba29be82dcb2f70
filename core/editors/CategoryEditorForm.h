#pragma once

#include <QString>

#include <memory>

class CategoryItem;

// Edits one category: title, description and whether it is hidden. Writes into the item only
// on OK.
class CategoryEditorForm final
{
public:
    void setCategoryItem(std::shared_ptr<CategoryItem> item) { m_item = std::move(item); }
    std::shared_ptr<CategoryItem> categoryItem() const { return m_item; }

    // Fills the fields from an item that has a title; a new item leaves them empty.
    void Load();

    QString Title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    QString Description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    bool HiddenCategory() const { return m_hidden; }
    void setHiddenCategory(bool hidden) { m_hidden = hidden; }

    // OK needs both a title and a description.
    bool CanOK() const { return !m_title.isEmpty() && !m_description.isEmpty(); }
    bool OK();
    void Cancel() { m_cancelled = true; }
    bool Cancelled() const { return m_cancelled; }

    static QString Caption() { return QStringLiteral("Category"); }
    static QString HelpTopic() { return QStringLiteral("::/CategoryEditor.htm"); }

private:
    std::shared_ptr<CategoryItem> m_item;
    QString m_title;
    QString m_description;
    bool m_hidden = false;
    bool m_cancelled = true;
};
