#include "rulebase/Report.h"

#include "platform/ErrorFrame.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/TableItem.h"

Report::Report()
    : m_sections(std::make_shared<ObjectArrayList<IListItem>>())
{
}

bool Report::Dirty() const
{
    if (m_sections->Dirty())
        return true;
    for (qint32 i = 1; i <= m_sections->Count(); ++i) {
        const auto section = m_sections->Item(i);
        if (const auto category = std::dynamic_pointer_cast<CategoryItem>(section)) {
            if (category->CategoryRules()->Dirty())
                return true;
        } else if (const auto table = std::dynamic_pointer_cast<TableItem>(section)) {
            if (table->Dirty())
                return true;
        }
    }
    return false;
}

void Report::setDirty(bool dirty)
{
    m_sections->setDirty(dirty);
    for (qint32 i = 1; i <= m_sections->Count(); ++i) {
        const auto section = m_sections->Item(i);
        if (const auto category = std::dynamic_pointer_cast<CategoryItem>(section))
            category->CategoryRules()->setDirty(dirty);
        else if (const auto table = std::dynamic_pointer_cast<TableItem>(section))
            table->setDirty(dirty);
    }
}

std::shared_ptr<ObjectArrayList<IListItem>> Report::CloneSections() const
{
    using Sections = std::shared_ptr<ObjectArrayList<IListItem>>;
    return guarded("CloneSections", "Report", Sections(), [this] {
        auto clone = std::make_shared<ObjectArrayList<IListItem>>();
        for (qint32 i = 1; i <= m_sections->Count(); ++i) {
            const auto section = m_sections->Item(i);
            if (const auto table = std::dynamic_pointer_cast<TableItem>(section))
                clone->Add(std::make_shared<TableItem>(*table));
            else
                clone->Add(section);
        }
        return clone;
    });
}
