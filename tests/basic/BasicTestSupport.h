#pragma once

#include "basic/BasicSyntaxChecker.h"
#include "support/QtPrinters.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>

// Lines joined as the editor hands them over, with CR LF.
inline QString script(const QStringList &lines)
{
    return lines.join(QLatin1String("\r\n"));
}

inline QStringList describe(const std::vector<BasicDiagnostic> &diagnostics)
{
    QStringList result;
    for (const BasicDiagnostic &d : diagnostics)
        result << QStringLiteral("%1:%2 %3").arg(d.line).arg(d.column).arg(d.message);
    return result;
}

// Every error of a check, "line:column message", in text order.
inline QStringList errorsOf(const QString &text)
{
    BasicSyntaxChecker checker;
    checker.check(text);
    return describe(checker.errors());
}

inline QStringList warningsOf(const QString &text)
{
    BasicSyntaxChecker checker;
    checker.check(text);
    return describe(checker.warnings());
}
