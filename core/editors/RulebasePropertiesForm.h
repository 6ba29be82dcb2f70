#pragma once

#include "editors/NumberRange.h"

#include <QString>

#include <array>
#include <memory>

class Rulebase;
class VersionNumber;

// The rulebase's own fields: title, description, version and the tolerances of a review.
// Works on screen copies and writes into the rulebase only on OK.
class RulebasePropertiesForm final
{
public:
    static constexpr int ToleranceRows = 6;

    RulebasePropertiesForm();
    ~RulebasePropertiesForm();

    void setRulebase(std::shared_ptr<Rulebase> rulebase) { m_rulebase = std::move(rulebase); }
    std::shared_ptr<Rulebase> rulebase() const { return m_rulebase; }

    // SetupScreen, then DataToScreen.
    void Load();

    // Row labels of the tolerance page: rows 0 to 4 take the severities' titles, row 5 is "Total".
    QString SeverityToleranceLabel(int row) const;

    QString Title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    QString Description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    bool AutoIncrement() const { return m_autoIncrement; }
    void setAutoIncrement(bool autoIncrement) { m_autoIncrement = autoIncrement; }

    // The version boxes hand their text to the version as it changes; on leaving a box, its
    // text becomes what the version made of it.
    QString Major() const { return m_major; }
    void setMajor(const QString &text);
    QString Minor() const { return m_minor; }
    void setMinor(const QString &text);
    QString Revision() const { return m_revision; }
    void setRevision(const QString &text);
    void leaveMajor();
    void leaveMinor();
    void leaveRevision();
    // Minor and revision carry into the part before them past VersionNumber::LargestPart.
    static constexpr NumberRange MajorRange() { return NumberRange::sixteenBit(); }
    static NumberRange MinorRange();
    static NumberRange RevisionRange() { return MinorRange(); }

    // Tolerance boxes: empty means no tolerance (-1).
    static constexpr NumberRange LimitRange() { return NumberRange::thirtyTwoBit(); }
    static constexpr NumberRange PercentageRange() { return {0, 100}; }
    QString ToleranceCount(int row) const { return m_toleranceCount.at(std::size_t(row)); }
    void setToleranceCount(int row, const QString &text)
    {
        m_toleranceCount.at(std::size_t(row)) = text;
    }
    QString ToleranceImpact(int row) const { return m_toleranceImpact.at(std::size_t(row)); }
    void setToleranceImpact(int row, const QString &text)
    {
        m_toleranceImpact.at(std::size_t(row)) = text;
    }
    QString PercentageComments() const { return m_percentageComments; }
    void setPercentageComments(const QString &text) { m_percentageComments = text; }
    QString CyclomaticComplexity() const { return m_cyclomaticComplexity; }
    void setCyclomaticComplexity(const QString &text) { m_cyclomaticComplexity = text; }

    // OK needs a title.
    bool CanOK() const { return !m_title.isEmpty(); }
    // DataFromScreen; false when it failed (reported) and the dialog stays open.
    bool OK();
    void Cancel() { m_cancelled = true; }
    bool Cancelled() const { return m_cancelled; }

    static QString Caption() { return QStringLiteral("Rulebase Properties"); }
    static QString HelpTopic() { return QStringLiteral("::/RulebaseProperties.htm"); }

    // A limit as a box shows it: -1 is empty.
    static QString LimitText(qint32 value);
    // And back: empty is -1.
    static qint32 LimitValue(const QString &text);

private:
    void SetupScreen();
    void DataToScreen();
    void DataFromScreen();

    std::shared_ptr<Rulebase> m_rulebase;
    std::unique_ptr<VersionNumber> m_version;
    std::array<QString, ToleranceRows> m_severityLabels;
    QString m_title;
    QString m_description;
    bool m_autoIncrement = false;
    QString m_major;
    QString m_minor;
    QString m_revision;
    std::array<QString, ToleranceRows> m_toleranceCount;
    std::array<QString, ToleranceRows> m_toleranceImpact;
    QString m_percentageComments;
    QString m_cyclomaticComplexity;
    bool m_cancelled = true;
};
