#pragma once

#include "basic/BasicDiagnostic.h"
#include "basic/BasicToken.h"

#include <QString>

#include <span>
#include <vector>

struct QuorinMember;

// The syntax check of a condition script, as an editor needs it: a verdict, the first error
// placed at its line and column, every error for the margin, warnings for names that the
// vocabulary does not know, and the tokens for colouring.
class BasicSyntaxChecker final
{
public:
    // True when the script has no syntax error; warnings don't count.
    bool check(const QString &script);

    // Of the last check.
    bool syntaxOK() const { return m_errors.empty(); }
    // The first error's text ("Expected: End If"); empty when the syntax is correct.
    QString errorText() const;
    // The first error with its place, "line 4, column 3: Expected: End If", the message the
    // editor shows; empty when the syntax is correct.
    QString errorMessage() const;
    // 1-based; 0 when the syntax is correct.
    int errorLine() const;
    int errorColumn() const;
    // In text order; after an error the check goes on at the next line.
    const std::vector<BasicDiagnostic> &errors() const { return m_errors; }
    const std::vector<BasicDiagnostic> &warnings() const { return m_warnings; }
    const std::vector<BasicToken> &tokens() const { return m_tokens; }

    // The members that may follow "Quorin.", for completion.
    static std::span<const QuorinMember> quorinMembers();
    // One expression as a fully bracketed tree: "a Or b And c" gives "(a Or (b And c))".
    // Empty when the text is not one expression.
    static QString expressionTree(const QString &expression);

private:
    std::vector<BasicToken> m_tokens;
    std::vector<BasicDiagnostic> m_errors;
    std::vector<BasicDiagnostic> m_warnings;
};
