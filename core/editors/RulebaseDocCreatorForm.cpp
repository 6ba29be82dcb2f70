#include "editors/RulebaseDocCreatorForm.h"

#include "collections/IListItem.h"
#include "docs/RulebaseDocCreator.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/IRule.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/TableItem.h"
#include "rulebase/ViolationDefinition.h"

#include <QSet>

#include <utility>

namespace {

constexpr const char *module = "frmStandardsCreator";

struct TableDefinition
{
    const char *key;
    const char *title;
    const char *text;
};

const TableDefinition tableDefinitions[] = {
    {"1T",
     "Control Tags",
     "Control tags are the prefixes/suffixes that should be used when naming controls."},
    {"2T",
     "Data Type Tags",
     "Data type tags are the prefixes/suffixes that should be used when naming "
     "variables/constants."},
    {"3T",
     "Scope Tags",
     "Scope tags are the prefixes/suffixes that should be used to indicate the scope of the "
     "variable/constant."},
    {"4T",
     "Authorised Components",
     "The following components are authorised for use in projects. Approval must be obtained "
     "before using any "
     "other component."},
    {"5T",
     "Authorised References",
     "The following references are authorised for use in projects. Approval must be obtained "
     "before using any "
     "other reference."},
    {"6T", "Severity Details", ""},
};

} // namespace

RulebaseDocCreatorForm::RulebaseDocCreatorForm()
{
    for (qint32 type = 0; type < 6; ++type) {
        auto table = std::make_shared<TableItem>();
        table->setTableType(type);
        table->setTableKey(QLatin1String(tableDefinitions[type].key));
        table->setTableTitle(QLatin1String(tableDefinitions[type].title));
        table->setTableText(QLatin1String(tableDefinitions[type].text));
        m_tables.Add(table);
    }
}

RulebaseDocCreatorForm::~RulebaseDocCreatorForm() = default;

void RulebaseDocCreatorForm::setRulebase(std::shared_ptr<::Rulebase> rulebase)
{
    guardedVoid("Rulebase", module, [&] {
        m_rulebase = std::move(rulebase);
        m_sections = m_rulebase->Report()->Sections();
        m_savedSections = m_rulebase->Report()->CloneSections();
        m_savedDirty = m_sections->Dirty();
        if (m_sections->Count() > 0)
            UpdateReportSections();
        else
            CreateReportSections();
    });
}

std::shared_ptr<CategoryItem>
RulebaseDocCreatorForm::copyCategory(const CategoryItem &category) const
{
    auto copy = std::make_shared<CategoryItem>();
    copy->setTitle(category.Title());
    copy->setDescription(category.Description());
    copy->setID(category.ID()); // gives the same key as well
    return copy;
}

void RulebaseDocCreatorForm::CreateReportSections()
{
    const auto &categories = *m_rulebase->CategoryList();
    const auto &rules = *m_rulebase->RuleLists()->AllConventions();
    for (qint32 c = 1; c <= categories.Count(); ++c) {
        const auto category = categories.Item(c);
        if (category->Hidden())
            continue;
        const auto section = copyCategory(*category);
        const auto sectionRules = section->CategoryRules();
        for (qint32 r = 1; r <= rules.Count(); ++r) {
            const auto rule = rules.Item(r);
            if (rule->RuleActive() && rule->ViolationDefinition()->CategoryID() == category->ID())
                sectionRules->Add(rule);
        }
        if (sectionRules->Count() > 0)
            m_sections->Add(section);
    }
    for (qint32 t = 1; t <= m_tables.Count(); ++t)
        m_sections->Add(m_tables.Item(t));
}

void RulebaseDocCreatorForm::UpdateReportSections()
{
    // A category shown but without active rules comes in and goes again below; a plan that
    // ends as it began must not count as changed for that.
    std::vector<std::shared_ptr<IListItem>> before;
    for (qint32 i = 1; i <= m_sections->Count(); ++i)
        before.push_back(m_sections->Item(i));
    const bool dirtyBefore = m_sections->Dirty();

    const auto &categories = *m_rulebase->CategoryList();
    const auto visible = [&categories](qint32 id) {
        return categories.ContainsID(id)
               && !categories.Item(CategoryList::CategoryIDToKey(id))->Hidden();
    };

    // Categories shown since the plan was stored come in at the end.
    for (qint32 c = 1; c <= categories.Count(); ++c) {
        const auto category = categories.Item(c);
        if (category->Hidden() || FindCategoryItem(category->ID()))
            continue;
        m_sections->Add(copyCategory(*category));
    }

    // Categories deleted or hidden since lose their pages.
    std::vector<std::shared_ptr<IListItem>> gone;
    for (qint32 i = 1; i <= m_sections->Count(); ++i) {
        const auto section = m_sections->Item(i);
        if (const auto category = std::dynamic_pointer_cast<CategoryItem>(section)) {
            if (!visible(category->ID()))
                gone.push_back(section);
        }
    }
    for (const auto &section : gone)
        m_sections->RemoveByValue(section);

    for (qint32 i = 1; i <= m_sections->Count(); ++i) {
        const auto category = std::dynamic_pointer_cast<CategoryItem>(m_sections->Item(i));
        if (!category)
            continue;
        // A category renamed since keeps its page under its new title.
        const auto source = categories.Item(CategoryList::CategoryIDToKey(category->ID()));
        category->setTitle(source->Title());
        category->setDescription(source->Description());
        const auto current = m_rulebase->RuleLists()->ConventionsListByCatID(category->ID());
        ReconcileRules(*category->CategoryRules(), *current);
    }

    gone.clear();
    for (qint32 i = 1; i <= m_sections->Count(); ++i) {
        const auto section = m_sections->Item(i);
        if (const auto category = std::dynamic_pointer_cast<CategoryItem>(section)) {
            if (category->CategoryRules()->Count() == 0)
                gone.push_back(section);
        }
    }
    for (const auto &section : gone)
        m_sections->RemoveByValue(section);
    bool unchanged = m_sections->Count() == qint32(before.size());
    for (qint32 i = 1; unchanged && i <= m_sections->Count(); ++i)
        unchanged = m_sections->Item(i) == before[std::size_t(i - 1)];
    if (unchanged)
        m_sections->setDirty(dirtyBefore);

    // A stored table becomes the one the "Tables" tab edits, so that its texts show there and
    // an edit reaches the plan.
    for (qint32 i = 1; i <= m_sections->Count(); ++i) {
        const auto table = std::dynamic_pointer_cast<TableItem>(m_sections->Item(i));
        if (!table)
            continue;
        for (qint32 t = 1; t <= m_tables.Count(); ++t) {
            if (Text::same(m_tables.Item(t)->TableKey(), table->TableKey())) {
                m_tables.setItem(t, table);
                break;
            }
        }
    }
}

void RulebaseDocCreatorForm::ReconcileRules(ObjectArrayList<IRule> &sectionRules,
                                            const ObjectArrayList<IRule> &categoryRules)
{
    guardedVoid("ReconcileRules", module, [&] {
        // Sets of ids keep a category of thousands of rules from costing millions of compares.
        QSet<qint32> inSection;
        for (qint32 i = 1; i <= sectionRules.Count(); ++i)
            inSection.insert(sectionRules.Item(i)->RuleID());
        QSet<qint32> active;
        for (qint32 i = 1; i <= categoryRules.Count(); ++i) {
            const auto rule = categoryRules.Item(i);
            if (!rule->RuleActive())
                continue;
            active.insert(rule->RuleID());
            if (!inSection.contains(rule->RuleID())) {
                sectionRules.Add(rule);
                inSection.insert(rule->RuleID());
            }
        }
        std::vector<std::shared_ptr<IRule>> gone;
        for (qint32 i = 1; i <= sectionRules.Count(); ++i) {
            const auto rule = sectionRules.Item(i);
            if (!active.contains(rule->RuleID()))
                gone.push_back(rule);
        }
        for (const auto &rule : gone)
            sectionRules.RemoveByValue(rule);
    });
}

bool RulebaseDocCreatorForm::DocHasChanged() const
{
    return guarded("DocHasChanged", module, false, [&] {
        if (m_sections->Dirty())
            return true;
        for (qint32 i = 1; i <= m_sections->Count(); ++i) {
            const auto category = std::dynamic_pointer_cast<CategoryItem>(m_sections->Item(i));
            if (category && category->CategoryRules()->Dirty())
                return true;
        }
        return false;
    });
}

void RulebaseDocCreatorForm::Load()
{
    guardedVoid("Form_Load", module, [&] {
        PopulateSectionsList();
        if (!m_sectionRows.empty())
            clickSection(0);
        PopulateTablesList();
        if (!m_tableRows.empty())
            clickTable(0);
    });
}

DocCreatorRow RulebaseDocCreatorForm::sectionRow(const IListItem &section) const
{
    DocCreatorRow row;
    row.key = section.Key();
    row.text = section.Title();
    const bool table = dynamic_cast<const TableItem *>(&section) != nullptr;
    row.image = table ? QStringLiteral("Table") : QStringLiteral("Category");
    row.tag = table ? QStringLiteral("T") : QStringLiteral("C");
    return row;
}

void RulebaseDocCreatorForm::PopulateSectionsList()
{
    m_sectionRows.clear();
    m_selectedSection = -1;
    for (qint32 i = 1; i <= m_sections->Count(); ++i)
        m_sectionRows.push_back(sectionRow(*m_sections->Item(i)));
}

void RulebaseDocCreatorForm::PopulateTablesList()
{
    guardedVoid("PopulateTablesList", module, [&] {
        m_tableRows.clear();
        m_selectedTable = -1;
        for (qint32 t = 1; t <= m_tables.Count(); ++t) {
            const auto table = m_tables.Item(t);
            DocCreatorRow row;
            row.key = table->TableKey();
            row.text = table->TableTitle();
            row.image = QStringLiteral("Table");
            row.checked = static_cast<bool>(FindTableItem(table->TableKey()));
            m_tableRows.push_back(row);
        }
    });
}

QString RulebaseDocCreatorForm::ruleImage(qint32 ruleType)
{
    switch (ruleType) {
    case RuleTypes::UnauthorisedKeyword:
        return QStringLiteral("UnauthorisedKeyword");
    case RuleTypes::CodingConvention:
        return QStringLiteral("CodingConvention");
    case RuleTypes::NamingConvention:
        return QStringLiteral("NamingConvention");
    case RuleTypes::DocumentationConvention:
        return QStringLiteral("DocumentationConvention");
    default:
        return QString();
    }
}

void RulebaseDocCreatorForm::clickSection(int row)
{
    guardedVoid("lvwSections_ItemClick", module, [&] {
        if (row < 0 || row >= int(m_sectionRows.size()))
            return;
        m_selectedSection = row;
        const DocCreatorRow &section = m_sectionRows[std::size_t(row)];
        if (section.tag == QLatin1String("T")) {
            m_ruleRows.clear();
            m_selectedRule = -1;
            m_ruleSection.reset();
            m_ruleDescription.clear();
        } else {
            CreateRuleList(Text::valLong(section.key));
            if (!m_ruleRows.empty())
                clickRule(0);
        }
        SetSectionDescription(section.tag, section.key);
        EnableDisableSectionMoveButtons();
        EnableDisableRuleMoveButtons();
    });
}

void RulebaseDocCreatorForm::CreateRuleList(qint32 categoryID)
{
    m_ruleRows.clear();
    m_selectedRule = -1;
    m_ruleDescription.clear();
    m_ruleSection = FindCategoryItem(categoryID);
    if (!m_ruleSection)
        return;
    const auto rules = m_ruleSection->CategoryRules();
    for (qint32 i = 1; i <= rules->Count(); ++i) {
        const auto rule = rules->Item(i);
        DocCreatorRow row;
        row.key = QString::number(rule->RuleID()) + QLatin1Char('R');
        row.text = Text::zeroPadded(rule->RuleID(), 4);
        row.subItem = rule->Title();
        row.image = ruleImage(rule->RuleType());
        m_ruleRows.push_back(row);
    }
}

void RulebaseDocCreatorForm::SetSectionDescription(const QString &tag, const QString &key)
{
    std::shared_ptr<IListItem> section;
    if (tag == QLatin1String("T"))
        section = FindTableItem(key);
    else
        section = FindCategoryItem(Text::valLong(key));
    m_sectionDescription = section ? section->Description() : QString();
}

void RulebaseDocCreatorForm::clickRule(int row)
{
    guardedVoid("lvwRules_ItemClick", module, [&] {
        if (row < 0 || row >= int(m_ruleRows.size()))
            return;
        m_selectedRule = row;
        SetRuleDescription(Text::valLong(m_ruleRows[std::size_t(row)].key));
        EnableDisableRuleMoveButtons();
    });
}

void RulebaseDocCreatorForm::SetRuleDescription(qint32 ruleID)
{
    m_ruleDescription.clear();
    if (!m_ruleSection)
        return;
    const auto rules = m_ruleSection->CategoryRules();
    for (qint32 i = 1; i <= rules->Count(); ++i) {
        if (rules->Item(i)->RuleID() == ruleID) {
            m_ruleDescription = rules->Item(i)->Description();
            return;
        }
    }
}

void RulebaseDocCreatorForm::EnableDisableSectionMoveButtons()
{
    const int count = int(m_sectionRows.size());
    const bool selected = m_selectedSection >= 0 && m_selectedSection < count;
    m_moveSectionUp = selected && m_selectedSection > 0;
    m_moveSectionDown = selected && m_selectedSection < count - 1;
}

void RulebaseDocCreatorForm::EnableDisableRuleMoveButtons()
{
    const int count = int(m_ruleRows.size());
    const bool selected = m_selectedRule >= 0 && m_selectedRule < count;
    m_moveRuleUp = selected && m_selectedRule > 0;
    m_moveRuleDown = selected && m_selectedRule < count - 1;
}

void RulebaseDocCreatorForm::MoveListItem(std::vector<DocCreatorRow> &rows,
                                          int &selected,
                                          int offset)
{
    const DocCreatorRow row = rows[std::size_t(selected)];
    rows.erase(rows.begin() + selected);
    selected += offset;
    rows.insert(rows.begin() + selected, row);
}

void RulebaseDocCreatorForm::moveSection(int offset)
{
    guardedVoid(offset < 0 ? "cmdMoveSectionUp_Click" : "cmdMoveSectionDown_Click", module, [&] {
        const int target = m_selectedSection + offset;
        if (m_selectedSection < 0 || target < 0 || target >= int(m_sectionRows.size()))
            return;
        m_sections->MoveItem(m_selectedSection + 1, target + 1);
        MoveListItem(m_sectionRows, m_selectedSection, offset);
        EnableDisableSectionMoveButtons();
    });
}

void RulebaseDocCreatorForm::moveRule(int offset)
{
    guardedVoid(offset < 0 ? "cmdMoveRuleUp_Click" : "cmdMoveRuleDown_Click", module, [&] {
        const int target = m_selectedRule + offset;
        if (!m_ruleSection || m_selectedRule < 0 || target < 0 || target >= int(m_ruleRows.size()))
            return;
        m_ruleSection->CategoryRules()->MoveItem(m_selectedRule + 1, target + 1);
        MoveListItem(m_ruleRows, m_selectedRule, offset);
        EnableDisableRuleMoveButtons();
    });
}

void RulebaseDocCreatorForm::moveSectionUp()
{
    moveSection(-1);
}

void RulebaseDocCreatorForm::moveSectionDown()
{
    moveSection(1);
}

void RulebaseDocCreatorForm::moveRuleUp()
{
    moveRule(-1);
}

void RulebaseDocCreatorForm::moveRuleDown()
{
    moveRule(1);
}

void RulebaseDocCreatorForm::checkTable(int row, bool checked)
{
    guardedVoid("lvwTables_ItemCheck", module, [&] {
        if (row < 0 || row >= int(m_tableRows.size()))
            return;
        DocCreatorRow &tableRow = m_tableRows[std::size_t(row)];
        const auto table = m_tables.Item(row + 1);
        const auto section = FindTableItem(table->TableKey());
        tableRow.checked = checked;
        if (checked) {
            if (section)
                return;
            m_sections->Add(table);
            m_sectionRows.push_back(sectionRow(*table));
        } else {
            if (!section)
                return;
            const qint32 position = m_sections->IndexOfValue(section);
            m_sections->Remove(position);
            const int removed = position - 1;
            m_sectionRows.erase(m_sectionRows.begin() + removed);
            if (m_selectedSection == removed) {
                m_selectedSection = -1;
                m_sectionDescription.clear();
            } else if (m_selectedSection > removed) {
                --m_selectedSection;
            }
        }
        EnableDisableSectionMoveButtons();
    });
}

void RulebaseDocCreatorForm::clickTable(int row)
{
    guardedVoid("lvwTables_ItemClick", module, [&] {
        if (row < 0 || row >= int(m_tableRows.size()))
            return;
        m_filling = true;
        m_selectedTable = row;
        m_currentTable = m_tables.Item(row + 1);
        m_tableTitle = m_currentTable->TableTitle();
        m_tableDescription = m_currentTable->TableText();
        m_filling = false;
    });
}

void RulebaseDocCreatorForm::editTableTitle(const QString &text)
{
    guardedVoid("txtTitle_Change", module, [&] {
        if (m_filling || !m_currentTable)
            return;
        m_tableTitle = text;
        m_currentTable->setTableTitle(text);
        m_tableRows[std::size_t(m_selectedTable)].text = m_currentTable->TableTitle();
        for (DocCreatorRow &row : m_sectionRows) {
            if (row.tag == QLatin1String("T") && Text::same(row.key, m_currentTable->TableKey()))
                row.text = m_currentTable->TableTitle();
        }
    });
}

void RulebaseDocCreatorForm::editTableDescription(const QString &text)
{
    guardedVoid("txtDescription_Change", module, [&] {
        if (m_filling || !m_currentTable)
            return;
        m_tableDescription = text;
        m_currentTable->setTableText(text);
        const int section = m_selectedSection;
        if (section >= 0 && m_sectionRows[std::size_t(section)].tag == QLatin1String("T")
            && Text::same(m_sectionRows[std::size_t(section)].key, m_currentTable->TableKey()))
            m_sectionDescription = m_currentTable->TableText();
    });
}

bool RulebaseDocCreatorForm::Generate()
{
    return guarded("cmdGenerate_Click", module, false, [&] {
        RulebaseDocCreator writer;
        QString document;
        if (!writer.CreateDocumentation(*m_rulebase, document))
            return false;
        openDocument(document);
        m_generated = true;
        return true;
    });
}

void RulebaseDocCreatorForm::OK()
{
    m_cancelled = false;
}

bool RulebaseDocCreatorForm::Cancel()
{
    return guarded("cmdCancel_Click", module, false, [&] {
        if (DocHasChanged()
            && askYesNo(
                   QStringLiteral("Document content has changed. Continue without saving changes?"),
                   MessageResult::No)
                   != MessageResult::Yes)
            return false;
        RestorePlan();
        return true;
    });
}

void RulebaseDocCreatorForm::RestorePlan()
{
    guardedVoid("RestorePlan", module, [&] {
        // The saved list was built by adding, which marks it; it comes back as it was found.
        m_savedSections->setDirty(m_savedDirty);
        m_rulebase->Report()->setSections(m_savedSections);
        m_cancelled = true;
    });
}

std::shared_ptr<CategoryItem> RulebaseDocCreatorForm::FindCategoryItem(qint32 categoryID) const
{
    for (qint32 i = 1; i <= m_sections->Count(); ++i) {
        const auto category = std::dynamic_pointer_cast<CategoryItem>(m_sections->Item(i));
        if (category && category->ID() == categoryID)
            return category;
    }
    return nullptr;
}

std::shared_ptr<TableItem> RulebaseDocCreatorForm::FindTableItem(const QString &key) const
{
    for (qint32 i = 1; i <= m_sections->Count(); ++i) {
        const auto table = std::dynamic_pointer_cast<TableItem>(m_sections->Item(i));
        if (table && Text::same(table->TableKey(), key))
            return table;
    }
    return nullptr;
}
