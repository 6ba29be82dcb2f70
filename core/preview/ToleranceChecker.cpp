#include "preview/ToleranceChecker.h"

#include "collections/ObjectKeyedArrayList.h"
#include "preview/PreviewFinding.h"
#include "preview/PreviewResult.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"

#include <array>

namespace {

constexpr qint32 Levels = 5; // entry 6 is the total

PreviewFinding projectFinding(const PreviewProject &project,
                              qint32 projectIndex,
                              const QString &check,
                              const QString &title)
{
    PreviewFinding finding;
    finding.ruleId = check;
    finding.ruleKey = check;
    finding.ruleTitle = title;
    finding.objectKind = QStringLiteral("Project");
    finding.name = project.name;
    finding.file = project.path;
    finding.project = projectIndex;
    return finding;
}

} // namespace

ToleranceChecker::ToleranceChecker(const Rulebase &rulebase)
    : m_rulebase(rulebase)
{
}

void ToleranceChecker::check(const PreviewProject &project,
                             qint32 projectIndex,
                             const std::vector<PreviewFinding> &findings,
                             std::vector<PreviewFinding> &out) const
{
    std::array<qint64, Levels + 1> counts{};
    std::array<qint64, Levels + 1> impacts{};
    for (const PreviewFinding &finding : findings) {
        if (finding.kind != PreviewFinding::Kind::Violation)
            continue;
        if (finding.severity >= 1 && finding.severity <= Levels) {
            ++counts[finding.severity - 1];
            impacts[finding.severity - 1] += finding.impact;
        }
        ++counts[Levels];
        impacts[Levels] += finding.impact;
    }

    const auto severities = m_rulebase.SeverityList();
    auto levelName = [&](qint32 entry) {
        if (entry == Levels + 1)
            return QStringLiteral("Total");
        const qint32 index
            = severities->FindIndexByKey(QString::number(entry) + QStringLiteral("Key"));
        return index > 0 ? severities->Item(index)->Title() : QString::number(entry);
    };
    auto exceeded = [&](qint32 entry,
                        qint32 maximum,
                        qint64 value,
                        const QString &check,
                        const QString &title,
                        const QString &what) {
        if (maximum < 0 || value <= maximum)
            return;
        PreviewFinding finding = projectFinding(project, projectIndex, check, title);
        finding.message = QStringLiteral("%1 %2: %3, at most %4 allowed")
                              .arg(levelName(entry), what)
                              .arg(value)
                              .arg(maximum);
        out.push_back(finding);
    };
    for (qint32 entry = 1; entry <= Levels + 1; ++entry) {
        exceeded(entry,
                 m_rulebase.ToleranceCount(entry),
                 counts[entry - 1],
                 PreviewCheck::ToleranceCount,
                 QStringLiteral("Maximum Violation Counts"),
                 QStringLiteral("violations"));
        exceeded(entry,
                 m_rulebase.ToleranceImpact(entry),
                 impacts[entry - 1],
                 PreviewCheck::ToleranceImpact,
                 QStringLiteral("Maximum Violation Impact"),
                 QStringLiteral("impact"));
    }

    const qint32 minimumComments = m_rulebase.TolerancePercentageComments();
    const qint64 counted = project.codeLines + project.commentLines;
    if (minimumComments >= 0 && counted > 0
        && project.commentLines * 100 < minimumComments * counted) {
        PreviewFinding finding = projectFinding(project,
                                                projectIndex,
                                                PreviewCheck::TolerancePercentageComments,
                                                QStringLiteral("Minimum Percentage (%) Comments"));
        finding.message = QStringLiteral("comment lines are %1% of the code and comment lines (%2 "
                                         "of %3), at least %4% required")
                              .arg(project.commentLines * 100 / counted)
                              .arg(project.commentLines)
                              .arg(counted)
                              .arg(minimumComments);
        out.push_back(finding);
    }
    if (m_rulebase.ToleranceCyclomaticComplexity() >= 0) {
        PreviewFinding finding = projectFinding(project,
                                                projectIndex,
                                                PreviewCheck::ToleranceCyclomaticComplexity,
                                                QStringLiteral("Maximum Cyclomatic Complexity"));
        finding.kind = PreviewFinding::Kind::NotPreviewed;
        finding.message = QStringLiteral("not previewed (needs the reviewer's complexity measure)");
        out.push_back(finding);
    }
}
