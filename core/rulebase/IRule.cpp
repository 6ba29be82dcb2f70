#include "rulebase/IRule.h"

QString ruleKey(qint32 ruleID)
{
    return QString::number(ruleID) + QStringLiteral("Key");
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
