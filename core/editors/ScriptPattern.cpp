#include "editors/ScriptPattern.h"

ScriptPattern::ScriptPattern(const QString &pattern, bool caseSensitive)
{
    std::vector<qsizetype> origin;
    const QString translated = translate(pattern, origin);
    QRegularExpression::PatternOptions options = QRegularExpression::NoPatternOption;
    if (!caseSensitive)
        options |= QRegularExpression::CaseInsensitiveOption;
    m_regex.setPatternOptions(options);
    m_regex.setPattern(translated);
    if (m_regex.isValid())
        return;
    m_fault = classify(m_regex.errorString());
    const qsizetype at = m_regex.patternErrorOffset();
    if (at < 0)
        m_faultOffset = 0;
    else if (std::size_t(at) < origin.size())
        m_faultOffset = origin[std::size_t(at)];
    else
        m_faultOffset = pattern.size();
}

QString ScriptPattern::FaultText(Fault fault)
{
    switch (fault) {
    case NoFault:
        return QString();
    case UnexpectedQuantifier:
        return QStringLiteral("There is an unexpected quantifier in the regular expression.");
    case MissingBracket:
        return QStringLiteral("There is a missing ']' in the regular expression.");
    case MissingParenthesis:
        return QStringLiteral("There is a missing ')' in the regular expression.");
    case InvalidRange:
        return QStringLiteral(
            "There is an invalid range in a character set in the regular expression.");
    case SyntaxError:
        break;
    }
    return QStringLiteral("There is a syntax error in the regular expression.");
}

QString ScriptPattern::faultMessage() const
{
    if (isValid())
        return QString();
    // Positions are 1-based for the author, as everywhere in text.
    return FaultText(m_fault) + QStringLiteral("\n\nThe fault lies at position ")
           + QString::number(m_faultOffset + 1) + QStringLiteral(" of the pattern.");
}

bool ScriptPattern::test(const QString &text) const
{
    return isValid() && m_regex.match(text).hasMatch();
}

QString ScriptPattern::translate(const QString &pattern, std::vector<qsizetype> &origin)
{
    QString out;
    out.reserve(pattern.size() + 8);
    origin.reserve(std::size_t(pattern.size()) + 8);
    bool inClass = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern.at(i);
        if (c == QLatin1Char('\\') && i + 1 < pattern.size()) {
            out += c;
            out += pattern.at(i + 1);
            origin.push_back(i);
            origin.push_back(i + 1);
            ++i;
            continue;
        }
        if (inClass) {
            if (c == QLatin1Char(']'))
                inClass = false;
        } else if (c == QLatin1Char('[')) {
            inClass = true;
        } else if (c == QLatin1Char('$')) {
            // The engine's "$" also matches before a final line end; the author's does not.
            out += QStringLiteral("\\z");
            origin.push_back(i);
            origin.push_back(i);
            continue;
        }
        out += c;
        origin.push_back(i);
    }
    return out;
}

ScriptPattern::Fault ScriptPattern::classify(const QString &engineError)
{
    const QString e = engineError.toLower();
    if (e.contains(QLatin1String("missing terminating ]")))
        return MissingBracket;
    if (e.contains(QLatin1String("missing closing parenthesis"))
        || e.contains(QLatin1String("missing )")))
        return MissingParenthesis;
    if (e.contains(QLatin1String("range out of order")))
        return InvalidRange;
    if (e.contains(QLatin1String("quantifier")) || e.contains(QLatin1String("nothing to repeat")))
        return UnexpectedQuantifier;
    return SyntaxError;
}
