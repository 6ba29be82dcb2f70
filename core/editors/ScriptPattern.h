#pragma once

#include <QRegularExpression>
#include <QString>

#include <vector>

// A pattern of the condition language's regular expressions, an ECMAScript-style syntax, run on
// QRegularExpression with its meaning kept: "$" anchors at the very end of the text only, case
// is ignored unless asked for, and a test looks for the first match only. A pattern the engine
// rejects is told as one of the five faults the author knows, with where it lies.
class ScriptPattern final
{
public:
    // The fault numbers of the original engine, which the messages follow.
    enum Fault {
        NoFault = 0,
        SyntaxError = 5017,
        UnexpectedQuantifier = 5018,
        MissingBracket = 5019,
        MissingParenthesis = 5020,
        InvalidRange = 5021,
    };

    ScriptPattern(const QString &pattern, bool caseSensitive);

    bool isValid() const { return m_fault == NoFault; }
    Fault fault() const { return m_fault; }
    // 0-based, in the pattern as the author wrote it; -1 when valid.
    qsizetype faultOffset() const { return m_faultOffset; }
    // The fault's sentence, then where in the pattern it lies.
    QString faultMessage() const;
    static QString FaultText(Fault fault);
    // The engine's own words, for the log.
    QString engineError() const { return m_regex.errorString(); }

    // True when the text holds a match; false for an invalid pattern.
    bool test(const QString &text) const;

private:
    // The pattern in the engine's dialect; `origin` maps each of its positions back.
    static QString translate(const QString &pattern, std::vector<qsizetype> &origin);
    static Fault classify(const QString &engineError);

    QRegularExpression m_regex;
    Fault m_fault = NoFault;
    qsizetype m_faultOffset = -1;
};
