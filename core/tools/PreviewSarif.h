#pragma once

#include <QJsonObject>
#include <QString>

class Rulebase;
struct PreviewResult;

// A preview as a SARIF 2.1.0 log, so that editors and code hosts show its findings on the
// lines they concern: one run, the rules that have results, and locations relative to a base
// folder. What could not be previewed is an "open" result; a file that could not be read is a
// notification of the tool's run, not a result.
class PreviewSarif final
{
public:
    // `baseFolder` is absolute; locations are given relative to it.
    static QJsonObject
    log(const PreviewResult &result, const Rulebase &rulebase, const QString &baseFolder);
    // A path relative to `baseFolder`, each segment percent-encoded: a relative URI reference.
    static QString relativeUri(const QString &path, const QString &baseFolder);
};
