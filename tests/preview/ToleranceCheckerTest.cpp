#include "preview/ToleranceChecker.h"
#include "preview/PreviewFinding.h"
#include "preview/PreviewResult.h"
#include "rulebase/Rulebase.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

// Violation counts and impact by severity and in total, and the share of comment lines, held
// against the limits that are set; what is not previewed counts for nothing.
TEST(ToleranceChecker, ReportsTheLimitsAProjectExceedsAndOnlyThose)
{
    auto violation = [](qint32 severity,
                        qint16 impact,
                        PreviewFinding::Kind kind = PreviewFinding::Kind::Violation) {
        PreviewFinding finding;
        finding.kind = kind;
        finding.severity = severity;
        finding.impact = impact;
        return finding;
    };
    const std::vector<PreviewFinding> findings
        = {violation(2, 60),
           violation(2, 50),
           violation(4, 0),
           violation(2, 900, PreviewFinding::Kind::NotPreviewed)};
    PreviewProject project;
    project.name = u"Kinds"_s;
    project.codeLines = 90;
    project.commentLines = 10;

    const struct
    {
        const char *what;
        std::function<void(Rulebase &)> set;
        std::vector<const char *> messages;
    } rows[] = {
        {"nothing set", [](Rulebase &) {}, {}},
        {"counts",
         [](Rulebase &r) {
             r.setToleranceCount(2, 1);
             r.setToleranceCount(6, 3);
             r.setToleranceCount(4, 1);
         },
         {"High violations: 2, at most 1 allowed"}},
        {"impact",
         [](Rulebase &r) {
             r.setToleranceImpact(6, 100);
             r.setToleranceImpact(2, 110);
         },
         {"Total impact: 110, at most 100 allowed"}},
        {"comments below",
         [](Rulebase &r) { r.setTolerancePercentageComments(11); },
         {"comment lines are 10% of the code and comment lines (10 of 100), at least 11% "
          "required"}},
        {"comments just enough", [](Rulebase &r) { r.setTolerancePercentageComments(10); }, {}},
        {"complexity",
         [](Rulebase &r) { r.setToleranceCyclomaticComplexity(10); },
         {"not previewed (needs the reviewer's complexity measure)"}},
    };
    for (const auto &row : rows) {
        Rulebase rulebase;
        row.set(rulebase);
        std::vector<PreviewFinding> out;
        ToleranceChecker(rulebase).check(project, 0, findings, out);
        std::vector<std::string> messages;
        for (const PreviewFinding &finding : out)
            messages.push_back(finding.message.toStdString());
        EXPECT_EQ(messages, std::vector<std::string>(row.messages.begin(), row.messages.end()))
            << row.what;
    }
}
