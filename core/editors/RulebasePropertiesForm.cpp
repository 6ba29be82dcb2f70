#include "editors/RulebasePropertiesForm.h"

#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/VersionNumber.h"

namespace {
constexpr const char *module = "frmRulebaseProperties";
}

RulebasePropertiesForm::RulebasePropertiesForm()
    : m_version(std::make_unique<VersionNumber>())
    , m_severityLabels{QStringLiteral("Critical"),
                       QStringLiteral("High"),
                       QStringLiteral("Medium"),
                       QStringLiteral("Low"),
                       QStringLiteral("Information"),
                       QStringLiteral("Total")}
{
}

RulebasePropertiesForm::~RulebasePropertiesForm() = default;

void RulebasePropertiesForm::Load()
{
    guardedVoid("Form_Load", module, [this] {
        SetupScreen();
        DataToScreen();
    });
}

QString RulebasePropertiesForm::SeverityToleranceLabel(int row) const
{
    return m_severityLabels.at(std::size_t(row));
}

void RulebasePropertiesForm::SetupScreen()
{
    if (!m_rulebase)
        return;
    const auto severities = m_rulebase->SeverityList();
    for (qint32 i = 1; i <= severities->Count(); ++i) {
        const auto severity = severities->Item(i);
        const qint32 level = severity->SeverityLevel();
        if (level >= 1 && level <= 5)
            m_severityLabels.at(std::size_t(level - 1)) = severity->Title();
    }
}

void RulebasePropertiesForm::DataToScreen()
{
    if (!m_rulebase)
        return;
    m_title = m_rulebase->Title();
    m_description = m_rulebase->Description();
    m_version->setVersion(m_rulebase->Version());
    m_major = m_version->MajorString();
    m_minor = m_version->MinorString();
    m_revision = m_version->RevisionString();
    m_autoIncrement = m_rulebase->AutoIncrementVersion();
    for (int i = 0; i < ToleranceRows; ++i) {
        m_toleranceCount.at(std::size_t(i)) = LimitText(m_rulebase->ToleranceCount(i + 1));
        m_toleranceImpact.at(std::size_t(i)) = LimitText(m_rulebase->ToleranceImpact(i + 1));
    }
    m_percentageComments = LimitText(m_rulebase->TolerancePercentageComments());
    m_cyclomaticComplexity = LimitText(m_rulebase->ToleranceCyclomaticComplexity());
}

void RulebasePropertiesForm::setMajor(const QString &text)
{
    m_major = text;
    guardedVoid("txtMajor_Change", module, [&] { m_version->setMajorString(text); });
}

void RulebasePropertiesForm::setMinor(const QString &text)
{
    m_minor = text;
    guardedVoid("txtMinor_Change", module, [&] { m_version->setMinorString(text); });
}

void RulebasePropertiesForm::setRevision(const QString &text)
{
    m_revision = text;
    guardedVoid("txtRevision_Change", module, [&] { m_version->setRevisionString(text); });
}

void RulebasePropertiesForm::leaveMajor()
{
    m_major = m_version->MajorString();
}

void RulebasePropertiesForm::leaveMinor()
{
    m_minor = m_version->MinorString();
}

void RulebasePropertiesForm::leaveRevision()
{
    m_revision = m_version->RevisionString();
}

bool RulebasePropertiesForm::OK()
{
    if (!CanOK())
        return false;
    const bool done = guardedVoid("cmdOK_Click", module, [this] { DataFromScreen(); });
    if (done)
        m_cancelled = false;
    return done;
}

void RulebasePropertiesForm::DataFromScreen()
{
    if (!m_rulebase)
        return;
    // Only a real change goes through a setter, since every setter marks the rulebase; a change
    // of letter case alone is not one.
    if (!Text::same(m_rulebase->Title(), m_title))
        m_rulebase->setTitle(m_title);
    if (!Text::same(m_rulebase->Description(), m_description))
        m_rulebase->setDescription(m_description);
    const QString version = m_version->Version();
    if (!Text::same(m_rulebase->Version(), version))
        m_rulebase->setVersion(version);
    if (m_rulebase->AutoIncrementVersion() != m_autoIncrement)
        m_rulebase->setAutoIncrementVersion(m_autoIncrement);
    // The tolerances are written as they stand; their setters decide about Dirty.
    for (int i = 0; i < ToleranceRows; ++i) {
        m_rulebase->setToleranceCount(i + 1, LimitValue(m_toleranceCount.at(std::size_t(i))));
        m_rulebase->setToleranceImpact(i + 1, LimitValue(m_toleranceImpact.at(std::size_t(i))));
    }
    m_rulebase->setTolerancePercentageComments(LimitValue(m_percentageComments));
    m_rulebase->setToleranceCyclomaticComplexity(LimitValue(m_cyclomaticComplexity));
}

NumberRange RulebasePropertiesForm::MinorRange()
{
    return {0, VersionNumber::LargestPart};
}

QString RulebasePropertiesForm::LimitText(qint32 value)
{
    return value == -1 ? QString() : QString::number(value);
}

qint32 RulebasePropertiesForm::LimitValue(const QString &text)
{
    return text.isEmpty() ? -1 : Text::valLong(text);
}
