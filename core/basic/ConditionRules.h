#pragma once

#include <QString>

// The rules a rule condition must meet before the condition editor hands it back, in the order
// the editor applies them, with the messages it shows.
namespace ConditionRules {

// Messages of the condition editor.
extern const QString MethodsMessage;
extern const QString NamingConventionMessage;
extern const QString SyntaxErrorSuffix;      // behind the syntax check's error text
extern const QString SyntaxErrorTitleSuffix; // behind the application title
extern const QString SyntaxCorrectMessage;

// True when a line starts a procedure other than the bare "Sub Main" line.
bool ContainsMethods(const QString &text);
// True for an empty text or one that mentions Quorin.ApplyConvention anywhere.
bool ValidNamingConvention(const QString &text);

struct ConditionCheck
{
    bool passed = true;
    QString message;          // the warning to show when not passed
    bool syntaxError = false; // the box is then titled with SyntaxErrorTitleSuffix
    int line = 0;             // of a syntax error, 1-based
    int column = 0;
};

// ruleType is a RuleTypes value; naming conventions must apply themselves.
ConditionCheck CheckCondition(const QString &text, qint32 ruleType);

} // namespace ConditionRules
