#pragma once

#include "tools/CheckFinding.h"

#include <QHash>
#include <QString>

#include <memory>
#include <vector>

class IRule;
class Rulebase;
class RulebaseFileScan;
class ViolationDefinition;
struct LoadedRulebase;

// Everything that can be found wrong with one rulebase file without a person to ask: the
// file (well-formedness, schema, required sections, duplicate numbers) from its scan, and the
// loaded rulebase (conditions, patterns, references to categories, severities, events and
// objects, default violations). The findings come sorted by line.
class RulebaseChecker final
{
public:
    static std::vector<CheckFinding> check(const RulebaseFileScan &scan,
                                           const LoadedRulebase &loaded);

    // The problems of one pattern, as QRegularExpression sees it; empty when it compiles.
    static QString patternProblem(const QString &pattern);

private:
    explicit RulebaseChecker(const RulebaseFileScan &scan);

    void checkFile(const LoadedRulebase &loaded);
    void checkDuplicates();
    void checkRulebase(const Rulebase &rulebase);
    void checkRule(const Rulebase &rulebase, const IRule &rule);
    void checkScript(const IRule &rule, const QString &script);
    void checkPattern(const IRule &rule, const QString &what, const QString &pattern);
    void checkParserEvents(const IRule &rule, qint32 eventCount, const QString &eventList);
    void checkDefinition(const Rulebase &rulebase,
                         const ViolationDefinition &definition,
                         const IRule *rule,
                         const QString &subject,
                         qint64 line);
    void checkDefaultViolations(const Rulebase &rulebase);

    void add(CheckFinding::Severity severity,
             const QString &code,
             const QString &message,
             qint64 line,
             qint32 ruleID = 0,
             qint64 column = 0);
    void addRuleFinding(CheckFinding::Severity severity,
                        const QString &code,
                        const IRule &rule,
                        const QString &message);
    qint64 ruleLine(qint32 ruleID) const;
    static QString describe(const IRule &rule);

    const RulebaseFileScan &m_scan;
    std::vector<CheckFinding> m_findings;
    QHash<qint32, qint64> m_ruleLines;
};
