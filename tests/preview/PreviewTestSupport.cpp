#include "PreviewTestSupport.h"

#include "collections/ObjectArrayList.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/UnauthorisedKeyword.h"

#include "support/TestEnvironment.h"

using namespace Qt::StringLiterals;

QString kindsDir()
{
    return TestEnvironment::sourceDir() + u"/tests/preview/data/Kinds"_s;
}

std::shared_ptr<NamingConvention>
namingConvention(qint32 objectType,
                 std::initializer_list<std::pair<qint32, const char *>> prefix,
                 std::initializer_list<std::pair<qint32, const char *>> suffix)
{
    auto convention = std::make_shared<NamingConvention>();
    convention->setObjectType(objectType);
    convention->setTitle(u"Convention"_s);
    auto fill = [](ObjectArrayList<PrefixSuffixItem> &items,
                   std::initializer_list<std::pair<qint32, const char *>> values) {
        qint32 index = 1;
        for (const auto &[type, value] : values) {
            items.Item(index)->setPSType(type);
            items.Item(index)->setValue(QString::fromUtf8(value));
            ++index;
        }
    };
    fill(*convention->PrefixItems(), prefix);
    fill(*convention->SuffixItems(), suffix);
    convention->setPrefixActive(prefix.size() > 0);
    convention->setSuffixActive(suffix.size() > 0);
    return convention;
}

std::shared_ptr<UnauthorisedKeyword> unauthorisedKeyword(const char *pattern,
                                                         std::initializer_list<qint32> events)
{
    auto keyword = std::make_shared<UnauthorisedKeyword>();
    keyword->setTitle(QString::fromUtf8(pattern));
    keyword->setCondition(QString::fromUtf8(pattern));
    for (const qint32 event : events)
        keyword->AddParserEventID(event);
    return keyword;
}
