#include "editors/DefaultViolationsForm.h"

#include "controls/ComboControl.h"
#include "controls/modUIListUtils.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "rulebase/CategoryList.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr const char *module = "DefaultViolations";

// Takes the pickers' entries as the shared fill routines give them.
class EntryCollector final : public ComboControl
{
public:
    explicit EntryCollector(std::vector<DefaultViolationsForm::Entry> &entries)
        : m_entries(entries)
    {
    }
    void clear() override { m_entries.clear(); }
    void addItem(const QString &text, qint32 itemData) override
    {
        m_entries.push_back({text, itemData});
    }

private:
    std::vector<DefaultViolationsForm::Entry> &m_entries;
};

} // namespace

DefaultViolationsForm::DefaultViolationsForm() = default;
DefaultViolationsForm::~DefaultViolationsForm() = default;

const std::vector<DefaultViolationsForm::Tool> &DefaultViolationsForm::Tools()
{
    static const std::vector<Tool> tools = {
        {"tlUnauthComp", "Unauthorised\nComponent", 1},
        {"tlUnauthCompVer", "Unauthorised\nComponent\nVersion", 2},
        {"tlUnauthRef", "Unauthorised\nReference", 3},
        {"tlUnauthRefVer", "Unauthorised\nReference\nVersion", 4},
        {"tlUnknownControl", "", 5},
    };
    return tools;
}

QString DefaultViolationsForm::ToolText(int index) const
{
    const Tool &tool = Tools().at(std::size_t(index));
    if (tool.type == 5) {
        const auto copy = Copy(5);
        return copy ? copy->Title() : QString();
    }
    return QString::fromLatin1(tool.text);
}

std::shared_ptr<ViolationDefinition> DefaultViolationsForm::Copy(qint32 type) const
{
    if (type < 1 || type > m_copies.Count())
        return nullptr;
    return m_copies.Item(type);
}

void DefaultViolationsForm::Load()
{
    guardedVoid("Form_Load", module, [this] {
        CloneDefaultViolations();
        EntryCollector severities(m_severityEntries);
        modUIListUtils::PopulateSeverityListControl(severities, m_severities.get());
        EntryCollector categories(m_categoryEntries);
        modUIListUtils::PopulateCategoryListControl(categories, m_categories.get());
        // No violation is shown yet, so this choice writes nothing.
        if (!m_categoryEntries.empty())
            m_categoryIndex = 0;
        ToolClick(QStringLiteral("tlUnauthComp"));
    });
}

void DefaultViolationsForm::CloneDefaultViolations()
{
    m_copies.Clear();
    if (!m_violations)
        return;
    for (qint32 i = 1; i <= m_violations->Count(); ++i) {
        const auto source = m_violations->Item(i);
        auto copy = std::make_shared<ViolationDefinition>();
        copy->setAdvice(source->Advice());
        copy->setCategoryID(source->CategoryID());
        copy->setDescription(source->Description());
        copy->setImpact(source->Impact());
        copy->setSeverity(source->Severity());
        copy->setTitle(source->Title());
        copy->setViolationDescription(source->ViolationDescription());
        m_copies.Add(copy);
    }
}

void DefaultViolationsForm::ToolClick(const QString &toolName)
{
    guardedVoid("abViolations_ToolClick", module, [&] {
        for (const Tool &tool : Tools()) {
            if (!Text::same(toolName, QLatin1String(tool.name)))
                continue;
            const auto copy = Copy(tool.type);
            if (!copy)
                return;
            m_currentType = tool.type;
            m_current = copy;
            PopulateControls();
            return;
        }
    });
}

void DefaultViolationsForm::PopulateControls()
{
    m_populating = true;
    m_titleLabel = m_current->Title() + QLatin1Char(' ');
    m_violationTitleLabel = m_current->ViolationDescription();
    m_description = m_current->Description();
    setSeverityIndex(FindItemWithItemData(m_severityEntries, m_current->Severity()));
    m_categoryIndex = FindItemWithItemData(m_categoryEntries, m_current->CategoryID());
    m_impact = QString::number(m_current->Impact());
    m_advice = m_current->Advice();
    m_populating = false;
}

int DefaultViolationsForm::FindItemWithItemData(const std::vector<Entry> &entries, qint32 data)
{
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].itemData == data)
            return int(i);
    }
    return -1;
}

void DefaultViolationsForm::setDescription(const QString &text)
{
    m_description = text;
    if (!m_populating && m_current)
        m_current->setDescription(text);
}

void DefaultViolationsForm::setAdvice(const QString &text)
{
    m_advice = text;
    if (!m_populating && m_current)
        m_current->setAdvice(text);
}

void DefaultViolationsForm::setImpact(const QString &text)
{
    m_impact = text;
    if (m_populating || !m_current)
        return;
    guardedVoid("txtImpact_Change", module, [&] {
        const double value = std::nearbyint(Text::val(text));
        if (value < std::numeric_limits<qint16>::min()
            || value > std::numeric_limits<qint16>::max())
            throw QuorinError::overflow(QStringLiteral("DefaultViolations::txtImpact_Change"));
        m_current->setImpact(qint16(value));
    });
}

void DefaultViolationsForm::leaveImpact()
{
    if (m_impact.isEmpty())
        m_impact = QStringLiteral("0");
}

void DefaultViolationsForm::setCategoryIndex(int index)
{
    m_categoryIndex = index;
    if (m_populating || !m_current || index < 0 || index >= int(m_categoryEntries.size()))
        return;
    m_current->setCategoryID(m_categoryEntries[std::size_t(index)].itemData);
}

void DefaultViolationsForm::setSeverityIndex(int index)
{
    m_severityIndex = index;
    if (index < 0 || index >= int(m_severityEntries.size())) {
        m_severityImage = 0;
        return;
    }
    const qint32 level = m_severityEntries[std::size_t(index)].itemData;
    guardedVoid("cboSeverity_Click", module, [&] {
        showSeverityImage(level);
        if (m_populating || !m_current)
            return;
        m_current->setSeverity(level);
        // Choosing a severity takes over its default impact.
        const auto severity = m_severities->Item(QString::number(level) + QStringLiteral("Key"));
        setImpact(QString::number(severity->Impact()));
    });
}

void DefaultViolationsForm::showSeverityImage(qint32 level)
{
    m_severityImage = 0;
    if (!m_severities)
        return;
    const QString key = QString::number(level) + QStringLiteral("Key");
    if (m_severities->Contains(key))
        m_severityImage = m_severities->Item(key)->Colour();
}

int DefaultViolationsForm::InsertIntoAdvice(const QString &text, int position, int length)
{
    if (text.isEmpty())
        return position;
    QString advice = m_advice;
    position = std::clamp(position, 0, int(advice.size()));
    length = std::clamp(length, 0, int(advice.size()) - position);
    advice.replace(position, length, text);
    setAdvice(advice);
    return position + int(text.size());
}

void DefaultViolationsForm::OK()
{
    guardedVoid("cmdOK_Click", module, [this] {
        // The originals take the copies' values field by field, which marks the rulebase for
        // saving: closing or New asks before these edits are lost.
        for (qint32 i = 1; i <= m_copies.Count() && m_violations && i <= m_violations->Count();
             ++i) {
            const auto copy = m_copies.Item(i);
            const auto target = m_violations->Item(i);
            target->setAdvice(copy->Advice());
            target->setCategoryID(copy->CategoryID());
            target->setDescription(copy->Description());
            target->setImpact(copy->Impact());
            target->setSeverity(copy->Severity());
            target->setTitle(copy->Title());
            target->setViolationDescription(copy->ViolationDescription());
        }
        m_cancelled = false;
    });
}
