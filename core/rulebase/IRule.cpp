#include "rulebase/IRule.h"

QString ruleKey(qint32 ruleID)
{
    return QString::number(ruleID) + QStringLiteral("Key");
}
