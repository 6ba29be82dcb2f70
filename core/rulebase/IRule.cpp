#include "rulebase/IRule.h"

#include <charconv>
#include <cstring>

QString ruleKey(qint32 ruleID)
{
    // The digits QString::number gives, and one allocation for the whole key.
    char text[16];
    char *const end = std::to_chars(text, text + sizeof text - 3, ruleID).ptr;
    std::memcpy(end, "Key", 3);
    return QString::fromLatin1(text, end + 3 - text);
}

QString RuleTypes::displayName(qint32 ruleType)
{
    switch (ruleType) {
    case UnauthorisedKeyword:
        return QStringLiteral("unauthorised keyword");
    case CodingConvention:
        return QStringLiteral("coding convention");
    case NamingConvention:
        return QStringLiteral("naming convention");
    default:
        return QStringLiteral("rule");
    }
}
