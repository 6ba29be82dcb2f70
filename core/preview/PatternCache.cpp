#include "preview/PatternCache.h"

const QRegularExpression &PatternCache::get(const QString &pattern, bool caseSensitive)
{
    const QString key = (caseSensitive ? QLatin1Char('1') : QLatin1Char('0')) + pattern;
    auto found = m_patterns.constFind(key);
    if (found != m_patterns.constEnd())
        return **found;
    auto compiled = std::make_shared<QRegularExpression>(
        pattern,
        caseSensitive ? QRegularExpression::NoPatternOption
                      : QRegularExpression::CaseInsensitiveOption);
    compiled->optimize();
    m_patterns.insert(key, compiled);
    return *compiled;
}
