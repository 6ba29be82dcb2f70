#include "editors/CategorySeverityForm.h"

#include "collections/IKeyedList.h"
#include "editors/CategoryEditorForm.h"
#include "editors/IFormFactory.h"
#include "editors/SeverityEditorForm.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/IRule.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"

#include <QSet>

namespace {

constexpr const char *module = "CategorySeverity";

QString folderImage(const CategoryItem &category)
{
    return category.Hidden() ? QStringLiteral("HiddenFolder") : QStringLiteral("Folder");
}

} // namespace

QString CategorySeverityForm::Caption() const
{
    return isCategoryList() ? QStringLiteral("Category List") : QStringLiteral("Severity List");
}

int CategorySeverityForm::HelpContextID() const
{
    return isCategoryList() ? 89 : 91;
}

QString CategorySeverityForm::HelpTopic() const
{
    return isCategoryList() ? QStringLiteral("::/CategoryList.htm")
                            : QStringLiteral("::/SeverityList.htm");
}

QString CategorySeverityForm::ListLabel() const
{
    return isCategoryList() ? QStringLiteral("&Categories") : QStringLiteral("&Severity");
}

QStringList CategorySeverityForm::Columns() const
{
    if (isCategoryList())
        return {QStringLiteral("Available Categories")};
    return {QStringLiteral("Title"), QStringLiteral("Severity"), QStringLiteral("Impact")};
}

QString CategorySeverityForm::DeleteQuestion()
{
    return QStringLiteral(
        "All rules associated with this category will be moved to the unallocated category, "
        "do you wish to continue?");
}

QString CategorySeverityForm::DuplicateColourWarning()
{
    return QStringLiteral("Unique colours must be used for each of the severity icons.");
}

void CategorySeverityForm::Load()
{
    guardedVoid("Form_Load", module, [this] {
        PopulateListView();
        if (!m_rows.empty())
            selectRow(0);
    });
}

void CategorySeverityForm::PopulateListView()
{
    m_rows.clear();
    m_selected = -1;
    m_description.clear();
    if (!m_itemList)
        return;
    for (qint32 i = 1; i <= m_itemList->Count(); ++i)
        m_rows.push_back(rowOf(i));
}

CategorySeverityForm::Row CategorySeverityForm::rowOf(qint32 index) const
{
    const std::shared_ptr<IListItem> item = m_itemList->Item(index);
    Row row;
    row.key = item->Key();
    row.text = item->Title();
    if (isCategoryList()) {
        if (const auto category = std::dynamic_pointer_cast<CategoryItem>(item))
            row.image = folderImage(*category);
    } else if (const auto severity = std::dynamic_pointer_cast<SeverityItem>(item)) {
        row.severityLevelText = severity->SeverityLevelText();
        row.impact = QString::number(severity->Impact());
        row.colour = severity->Colour();
    }
    return row;
}

void CategorySeverityForm::selectRow(int row)
{
    guardedVoid("lvwCategorySeverity_ItemClick", module, [&] {
        if (row < 0 || row >= int(m_rows.size()))
            return;
        m_selected = row;
        m_description = m_itemList->Item(m_rows[std::size_t(row)].key)->Description();
    });
}

void CategorySeverityForm::Add()
{
    if (isCategoryList())
        DisplayCategoryEditor(-1);
}

void CategorySeverityForm::Edit()
{
    if (m_selected < 0)
        return;
    if (isCategoryList())
        DisplayCategoryEditor(0);
    else
        DisplaySeverityEditor();
}

void CategorySeverityForm::DisplayCategoryEditor(int itemIndex)
{
    guardedVoid("DisplayCategoryEditor", module, [&] {
        std::shared_ptr<CategoryItem> item;
        if (itemIndex == 0)
            item = std::dynamic_pointer_cast<CategoryItem>(
                m_itemList->Item(m_rows.at(std::size_t(m_selected)).key));
        else
            item = std::make_shared<CategoryItem>();
        if (!item)
            throw QuorinError::objectNotSet(
                QStringLiteral("CategorySeverity::DisplayCategoryEditor"));

        CategoryEditorForm editor;
        editor.setCategoryItem(item);
        editor.Load();
        IFormFactory::current().runCategoryEditor(editor);
        if (editor.Cancelled())
            return;
        if (itemIndex == -1) {
            // The list gives the new category its id, and with it its key.
            m_itemList->Add(item, true);
            Row row;
            row.key = item->Key();
            row.text = item->Title();
            row.image = folderImage(*item);
            m_rows.push_back(row);
            selectRow(int(m_rows.size()) - 1);
        } else {
            Row &row = m_rows.at(std::size_t(m_selected));
            row.text = item->Title();
            row.image = folderImage(*item);
            m_description = item->Description();
        }
        m_dirty = true;
    });
}

void CategorySeverityForm::DisplaySeverityEditor()
{
    guardedVoid("DisplaySeverityEditor", module, [&] {
        const auto item = std::dynamic_pointer_cast<SeverityItem>(
            m_itemList->Item(m_rows.at(std::size_t(m_selected)).key));
        if (!item)
            throw QuorinError::objectNotSet(
                QStringLiteral("CategorySeverity::DisplaySeverityEditor"));
        SeverityEditorForm editor;
        editor.setSeverityItem(item);
        editor.setImageCount(m_imageCount);
        editor.Load();
        IFormFactory::current().runSeverityEditor(editor);
        if (editor.Cancelled())
            return;
        Row &row = m_rows.at(std::size_t(m_selected));
        row.text = item->Title();
        row.impact = QString::number(item->Impact());
        row.colour = item->Colour();
        m_description = item->Description();
        m_dirty = true;
    });
}

void CategorySeverityForm::Delete()
{
    if (!CanDelete() || m_selected < 0)
        return;
    guardedVoid("cmdDelete_Click", module, [&] {
        if (askYesNo(DeleteQuestion(), MessageResult::No) != MessageResult::Yes)
            return;
        const QString key = m_rows.at(std::size_t(m_selected)).key;
        MoveCategoryItemsToUnallocated(Text::valLong(key));
        m_itemList->Remove(key);
        m_rows.erase(m_rows.begin() + m_selected);
        m_selected = -1;
        m_description.clear();
        if (!m_rows.empty())
            selectRow(0);
        m_dirty = true;
    });
}

void CategorySeverityForm::MoveCategoryItemsToUnallocated(qint32 categoryID)
{
    if (!m_rulebase)
        return;
    const auto defaults = m_rulebase->DefaultViolations();
    for (qint32 i = 1; i <= defaults->Count(); ++i) {
        const auto definition = defaults->Item(i);
        if (definition && definition->CategoryID() == categoryID)
            definition->setCategoryID(-1);
    }
    // Only the definitions change: the rule lists index rules by event and object, not by
    // category, so every list keeps its rules and their positions.
    const auto rules = m_rulebase->RuleLists()->AllConventions();
    for (qint32 i = 1; i <= rules->Count(); ++i) {
        const auto definition = rules->Item(i)->ViolationDefinition();
        if (definition->CategoryID() == categoryID)
            definition->setCategoryID(-1);
    }
}

bool CategorySeverityForm::ValidInput() const
{
    if (isCategoryList() || !m_itemList)
        return true;
    QSet<qint32> seen;
    for (qint32 i = 1; i <= m_itemList->Count(); ++i) {
        const auto severity = std::dynamic_pointer_cast<SeverityItem>(m_itemList->Item(i));
        if (!severity)
            continue;
        if (seen.contains(severity->Colour())) {
            showWarning(DuplicateColourWarning());
            return false;
        }
        seen.insert(severity->Colour());
    }
    return true;
}

bool CategorySeverityForm::RequestClose()
{
    return guarded("cmdClose_Click", module, true, [this] { return ValidInput(); });
}
