#include "basic/ConditionRules.h"

#include "basic/BasicSyntaxChecker.h"
#include "platform/TextUtils.h"
#include "rulebase/IRule.h"

#include <QRegularExpression>

namespace ConditionRules {

const QString MethodsMessage = QStringLiteral(
    "Quorin rule conditions do not support the use of Subs, Functions or Property procedures "
    "other than the required Sub Main.");
const QString NamingConventionMessage = QStringLiteral(
    "A naming convention condition, if set, must contain the line Quorin.ApplyConvention to "
    "notify the parser that the convention must be applied.");
const QString SyntaxErrorSuffix
    = QStringLiteral(" Please fix before trying to save the condition.");
const QString SyntaxErrorTitleSuffix = QStringLiteral(" - Syntax Error");
const QString SyntaxCorrectMessage = QStringLiteral("Syntax correct.");

bool ContainsMethods(const QString &text)
{
    if (text.isEmpty())
        return false;
    // Case-sensitive and without leading blanks, on purpose: "sub helper" and an indented
    // procedure pass here and are left to the syntax check.
    static const QRegularExpression procedure(
        QStringLiteral("^Public (Sub|Function|Property)|^Private (Sub|Function|Property)"
                       "|^Friend (Sub|Function|Property)|^Sub |^Function |^Property "));
    // Lines end in CR LF; a lone LF or CR ends one as well, so that text from any editor splits.
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\n|\r"));
    const QStringList lines = text.split(lineEnd);
    for (const QString &line : lines) {
        if (procedure.match(line).hasMatch() && !Text::same(line, QStringLiteral("Sub Main")))
            return true;
    }
    return false;
}

bool ValidNamingConvention(const QString &text)
{
    return text.isEmpty()
           || text.contains(QLatin1String("Quorin.ApplyConvention"), Qt::CaseInsensitive);
}

ConditionCheck CheckCondition(const QString &text, qint32 ruleType)
{
    ConditionCheck result;
    if (ContainsMethods(text)) {
        result.passed = false;
        result.message = MethodsMessage;
        return result;
    }
    if (ruleType == RuleTypes::NamingConvention && !ValidNamingConvention(text)) {
        result.passed = false;
        result.message = NamingConventionMessage;
        return result;
    }
    BasicSyntaxChecker checker;
    if (!checker.check(text)) {
        result.passed = false;
        result.syntaxError = true;
        result.message = checker.errorMessage() + SyntaxErrorSuffix;
        result.line = checker.errorLine();
        result.column = checker.errorColumn();
    }
    return result;
}

} // namespace ConditionRules
