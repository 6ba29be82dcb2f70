#pragma once

#include "basic/BasicSyntaxChecker.h"
#include "support/QtPrinters.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

// Lines joined as the editor hands them over, with CR LF.
inline QString script(const QStringList &lines)
{
    return lines.join(QLatin1String("\r\n"));
}

// Lines written as one string, "|" between them.
inline QStringList lines(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char('|'));
}

// A script from lines(); one that starts with a blank is the body of a Sub Main.
inline QString code(const char *text)
{
    const QStringList body = lines(text);
    return script(text[0] == ' ' ? QStringList{"Sub Main"} + body + QStringList{"End Sub"} : body);
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
