#pragma once

#include "collections/ObjectArrayList.h"
#include "collections/ObjectKeyedArrayList.h"
#include "editors/NumberRange.h"

#include <QString>

#include <memory>
#include <vector>

class CategoryList;
class DefaultViolations;
class SeverityItem;
class ViolationDefinition;

// The five violations that belong to no rule, edited on copies: OK takes the changes over,
// Cancel drops them. No field is refused.
class DefaultViolationsForm final
{
public:
    struct Tool
    {
        const char *name;
        const char *text; // lines broken with "\n"
        qint32 type;
    };
    struct Entry
    {
        QString text;
        qint32 itemData;
    };

    DefaultViolationsForm();
    ~DefaultViolationsForm();

    void setDefaultViolations(std::shared_ptr<::DefaultViolations> violations)
    {
        m_violations = std::move(violations);
    }
    std::shared_ptr<::DefaultViolations> DefaultViolations() const { return m_violations; }
    void setCategoryList(std::shared_ptr<::CategoryList> categories)
    {
        m_categories = std::move(categories);
    }
    void setSeverityList(std::shared_ptr<ObjectKeyedArrayList<SeverityItem>> severities)
    {
        m_severities = std::move(severities);
    }

    // The navigation bar's five tools; the last one's text is its violation's title, known
    // only after Load.
    static const std::vector<Tool> &Tools();
    QString ToolText(int index) const;

    // Copies the violations, fills the pickers and shows the first violation.
    void Load();
    // A tool of the bar by name, ignoring case; an unknown name does nothing.
    void ToolClick(const QString &toolName);
    // The type (1 to 5) shown.
    qint32 CurrentType() const { return m_currentType; }

    // What the fields show of the current copy.
    QString TitleLabel() const { return m_titleLabel; }
    QString ViolationTitleLabel() const { return m_violationTitleLabel; }
    QString Description() const { return m_description; }
    QString Advice() const { return m_advice; }
    QString Impact() const { return m_impact; }
    // Positions in the pickers, -1 for no entry.
    int CategoryIndex() const { return m_categoryIndex; }
    int SeverityIndex() const { return m_severityIndex; }
    const std::vector<Entry> &CategoryEntries() const { return m_categoryEntries; }
    const std::vector<Entry> &SeverityEntries() const { return m_severityEntries; }
    // The icon of the severity shown, an image of the severity image list; 0 for none.
    qint32 SeverityImage() const { return m_severityImage; }

    // Field changes go into the shown copy at once.
    void setDescription(const QString &text);
    void setAdvice(const QString &text);
    // Digits only, within ImpactRange; empty counts as 0.
    void setImpact(const QString &text);
    static constexpr NumberRange ImpactRange() { return NumberRange::sixteenBit(); }
    // Leaving the impact empty shows 0.
    void leaveImpact();
    void setCategoryIndex(int index);
    // Also puts the severity's default impact into the impact.
    void setSeverityIndex(int index);
    // Puts a picked "%Object.Property%" into the advice at a position (0-based) of its text,
    // replacing `length` characters there; gives the position after the insertion.
    int InsertIntoAdvice(const QString &text, int position, int length = 0);

    // AcceptDefaultViolationChanges.
    void OK();
    void Cancel() { m_cancelled = true; }
    bool Cancelled() const { return m_cancelled; }

    static QString Caption() { return QStringLiteral("Default Violations"); }
    static QString HelpTopic() { return QStringLiteral("::/DefaultViolations.htm"); }

    // The copy of one type, for tests and the shell; null outside 1 to 5.
    std::shared_ptr<ViolationDefinition> Copy(qint32 type) const;

private:
    void CloneDefaultViolations();
    void PopulateControls();
    void showSeverityImage(qint32 level);
    static int FindItemWithItemData(const std::vector<Entry> &entries, qint32 data);

    std::shared_ptr<::DefaultViolations> m_violations;
    std::shared_ptr<::CategoryList> m_categories;
    std::shared_ptr<ObjectKeyedArrayList<SeverityItem>> m_severities;
    ObjectArrayList<ViolationDefinition> m_copies;
    std::shared_ptr<ViolationDefinition> m_current;
    qint32 m_currentType = 0;
    // Set while the fields are filled, so their change events write nothing back.
    bool m_populating = false;

    QString m_titleLabel;
    QString m_violationTitleLabel;
    QString m_description;
    QString m_advice;
    QString m_impact;
    int m_categoryIndex = -1;
    int m_severityIndex = -1;
    qint32 m_severityImage = 0;
    std::vector<Entry> m_categoryEntries;
    std::vector<Entry> m_severityEntries;
    bool m_cancelled = true;
};
