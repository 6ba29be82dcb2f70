#pragma once

#include "collections/ObjectArrayList.h"

#include <QString>

#include <memory>
#include <vector>

class CategoryItem;
class IListItem;
class IRule;
class Rulebase;
class TableItem;

// A row of one of the wizard's lists, as the dialog shows it.
struct DocCreatorRow
{
    QString key;
    QString text;
    QString subItem; // rules: the rule's title
    QString image;
    QString tag;          // sections: "C" for a category, "T" for a table
    bool checked = false; // tables: the table stands in the document
};

// The "Documentation Wizard": edits the plan of the coding standards document in place and can
// generate the document at once. Setting the rulebase reconciles a stored plan with the rules
// and categories as they stand now; Cancel puts back the plan as it was found.
//
// Rows are 0-based, -1 meaning no row; the plan's lists stay 1-based.
class RulebaseDocCreatorForm final
{
public:
    RulebaseDocCreatorForm();
    ~RulebaseDocCreatorForm();

    std::shared_ptr<::Rulebase> Rulebase() const { return m_rulebase; }
    void setRulebase(std::shared_ptr<::Rulebase> rulebase);
    bool Cancelled() const { return m_cancelled; }
    bool Generated() const { return m_generated; }

    // Fills the lists and selects the first section and the first table.
    void Load();
    void PopulateTablesList();
    // New active rules of the category join the section at its end; rules no longer active
    // in it leave. The section's own order stands.
    static void ReconcileRules(ObjectArrayList<IRule> &sectionRules,
                               const ObjectArrayList<IRule> &categoryRules);
    // The plan's order, or any section's rules, changed since the rulebase was set.
    bool DocHasChanged() const;

    // The plan being edited: the report's own sections list.
    std::shared_ptr<ObjectArrayList<IListItem>> Sections() const { return m_sections; }
    // The six tables the document can have, in their order.
    const ObjectArrayList<TableItem> &Tables() const { return m_tables; }

    const std::vector<DocCreatorRow> &sectionRows() const { return m_sectionRows; }
    const std::vector<DocCreatorRow> &ruleRows() const { return m_ruleRows; }
    const std::vector<DocCreatorRow> &tableRows() const { return m_tableRows; }
    int selectedSection() const { return m_selectedSection; }
    int selectedRule() const { return m_selectedRule; }
    int selectedTable() const { return m_selectedTable; }

    QString sectionDescription() const { return m_sectionDescription; }
    QString ruleDescription() const { return m_ruleDescription; }
    QString tableTitle() const { return m_tableTitle; }
    QString tableDescription() const { return m_tableDescription; }

    bool moveSectionUpEnabled() const { return m_moveSectionUp; }
    bool moveSectionDownEnabled() const { return m_moveSectionDown; }
    bool moveRuleUpEnabled() const { return m_moveRuleUp; }
    bool moveRuleDownEnabled() const { return m_moveRuleDown; }

    void clickSection(int row);
    void clickRule(int row);
    void clickTable(int row);
    // Puts the table into the plan at its end, or takes it out.
    void checkTable(int row, bool checked);
    void moveSectionUp();
    void moveSectionDown();
    void moveRuleUp();
    void moveRuleDown();
    // What the person types into the table's title and description.
    void editTableTitle(const QString &text);
    void editTableDescription(const QString &text);

    // Writes the document and opens it; the dialog stays. False when nothing was written.
    bool Generate();
    void OK();
    // False when the person chose to stay in the dialog.
    bool Cancel();
    // Puts back the plan as it was found, without asking; what Cancel does after its question.
    void RestorePlan();

    // The image of a rule row by RuleType.
    static QString ruleImage(qint32 ruleType);

private:
    void CreateReportSections();
    void UpdateReportSections();
    std::shared_ptr<CategoryItem> copyCategory(const CategoryItem &category) const;
    void PopulateSectionsList();
    void CreateRuleList(qint32 categoryID);
    void SetSectionDescription(const QString &tag, const QString &key);
    void SetRuleDescription(qint32 ruleID);
    void EnableDisableSectionMoveButtons();
    void EnableDisableRuleMoveButtons();
    void moveSection(int offset);
    void moveRule(int offset);
    static void MoveListItem(std::vector<DocCreatorRow> &rows, int &selected, int offset);
    std::shared_ptr<CategoryItem> FindCategoryItem(qint32 categoryID) const;
    std::shared_ptr<TableItem> FindTableItem(const QString &key) const;
    DocCreatorRow sectionRow(const IListItem &section) const;

    std::shared_ptr<::Rulebase> m_rulebase;
    std::shared_ptr<ObjectArrayList<IListItem>> m_sections;
    std::shared_ptr<ObjectArrayList<IListItem>> m_savedSections;
    bool m_savedDirty = false;
    ObjectArrayList<TableItem> m_tables;
    std::shared_ptr<CategoryItem> m_ruleSection; // the section whose rules lvwRules shows
    std::shared_ptr<TableItem> m_currentTable;
    bool m_filling = false;

    std::vector<DocCreatorRow> m_sectionRows;
    std::vector<DocCreatorRow> m_ruleRows;
    std::vector<DocCreatorRow> m_tableRows;
    int m_selectedSection = -1;
    int m_selectedRule = -1;
    int m_selectedTable = -1;
    QString m_sectionDescription;
    QString m_ruleDescription;
    QString m_tableTitle;
    QString m_tableDescription;
    bool m_moveSectionUp = false;
    bool m_moveSectionDown = false;
    bool m_moveRuleUp = false;
    bool m_moveRuleDown = false;

    bool m_cancelled = false;
    bool m_generated = false;
};
