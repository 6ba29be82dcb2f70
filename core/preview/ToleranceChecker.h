#pragma once

#include <QtGlobal>

#include <vector>

class Rulebase;
struct PreviewFinding;
struct PreviewProject;

// Holds a project's results against the tolerances of the rulebase: the most violations and
// impact of each severity and in total, the least share of comment lines. The complexity
// limit needs the reviewer's own measure and is said to be not previewed.
class ToleranceChecker final
{
public:
    explicit ToleranceChecker(const Rulebase &rulebase);

    // `findings` are the project's own; what it exceeds is appended to `out`.
    void check(const PreviewProject &project,
               qint32 projectIndex,
               const std::vector<PreviewFinding> &findings,
               std::vector<PreviewFinding> &out) const;

private:
    const Rulebase &m_rulebase;
};
