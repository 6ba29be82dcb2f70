#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QString>

#include <memory>

// Compiled patterns by their text and case rule, so that the many names of a run that meet
// the same pattern compile it once. Patterns are tried as the pattern test tries them:
// anywhere in the text unless the pattern anchors itself.
class PatternCache final
{
public:
    // The pattern compiled; check isValid() before use.
    const QRegularExpression &get(const QString &pattern, bool caseSensitive);

private:
    QHash<QString, std::shared_ptr<QRegularExpression>> m_patterns;
};
