#pragma once

#include <QString>

// One problem that `qrbtool check` reports. `code` is a stable word for scripts to filter on;
// `line` is the line of the element in the file, 0 when unknown.
struct CheckFinding
{
    enum class Severity { Error, Warning };

    Severity severity = Severity::Error;
    QString code;
    QString message;
    qint64 line = 0;
    qint64 column = 0;
    // 0 when the finding is not about one rule.
    qint32 ruleID = 0;

    bool isError() const { return severity == Severity::Error; }
    QString severityText() const
    {
        return severity == Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
    }
};
