#pragma once

#include "collections/ObjectArrayList.h"

#include <memory>

class IListItem;

// The plan of the coding standards document: its sections in order, each a CategoryItem (a
// page of rules, held in its CategoryRules) or a TableItem.
class Report final
{
public:
    Report();

    // The sections list's own flag, else any category's CategoryRules or any table.
    bool Dirty() const;
    void setDirty(bool dirty);
    std::shared_ptr<ObjectArrayList<IListItem>> Sections() const { return m_sections; }
    // Takes the list itself, not a copy.
    void setSections(std::shared_ptr<ObjectArrayList<IListItem>> sections)
    {
        m_sections = std::move(sections);
    }
    // A working copy for the designer: tables are copied, categories are shared, so an edit
    // of a category's rules shows in the report at once.
    std::shared_ptr<ObjectArrayList<IListItem>> CloneSections() const;

private:
    std::shared_ptr<ObjectArrayList<IListItem>> m_sections;
};
