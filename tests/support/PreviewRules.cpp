#include "support/PreviewRules.h"

#include "collections/ObjectArrayList.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/UnauthorisedKeyword.h"

using namespace Qt::StringLiterals;

PreviewRules addPreviewRules(Rulebase &rulebase,
                             const QString &prefix,
                             const QString &conditionalTitle,
                             qint32 conditionalObjectType)
{
    PreviewRules rules;
    rules.privates = std::make_shared<NamingConvention>();
    rules.privates->setTitle(u"Private variables"_s);
    rules.privates->setObjectType(30);
    rules.privates->setPrefixActive(true);
    rules.privates->PrefixItems()->Item(1)->setPSType(1);
    rules.privates->PrefixItems()->Item(1)->setValue(prefix);
    rulebase.RuleLists()->AddConvention(rules.privates, true);
    rules.keyword = std::make_shared<UnauthorisedKeyword>();
    rules.keyword->setTitle(u"GoTo"_s);
    rules.keyword->setCondition(QStringLiteral(R"(\bGoTo\b)"));
    rules.keyword->AddParserEventID(30);
    rulebase.RuleLists()->AddConvention(rules.keyword, true);
    rules.conditional = std::make_shared<NamingConvention>();
    rules.conditional->setTitle(conditionalTitle);
    rules.conditional->setObjectType(conditionalObjectType);
    rules.conditional->setCondition(u"Sub Main\nEnd Sub"_s);
    rulebase.RuleLists()->AddConvention(rules.conditional, true);
    return rules;
}
