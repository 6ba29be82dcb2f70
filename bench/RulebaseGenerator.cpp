#include "bench/RulebaseGenerator.h"

#include "collections/ObjectKeyedArrayList.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

#include <QStringList>

#include <random>

namespace {

const char *const words[]
    = {"procedure", "variable", "module",   "declare", "error",  "handler", "loop",
       "parameter", "constant", "function", "object",  "record", "field",   "control",
       "form",      "public",   "private",  "string",  "array",  "resume",  "exit"};
const char *const objects[] = {"Procedure", "Variable", "Const", "Argument", "File", "Control"};
const char *const properties[] = {"Name", "Scope", "Type", "LineCount", "Filename", "IsArray"};

class Texts
{
public:
    explicit Texts(unsigned seed)
        : m_random(seed)
    {
    }

    int number(int below) { return int(m_random() % unsigned(below)); }
    QString word() { return QLatin1String(words[number(int(std::size(words)))]); }
    QString sentence(int length)
    {
        QStringList parts;
        for (int i = 0; i < length; ++i)
            parts << word();
        QString text = parts.join(QLatin1Char(' '));
        text[0] = text[0].toUpper();
        return text + QLatin1Char('.');
    }
    QString placeholder()
    {
        return QLatin1Char('%') + QLatin1String(objects[number(int(std::size(objects)))])
               + QLatin1Char('.') + QLatin1String(properties[number(int(std::size(properties)))])
               + QLatin1Char('%');
    }
    QString condition()
    {
        const QString object = QLatin1String(objects[number(int(std::size(objects)))]);
        const QString property = QLatin1String(properties[number(int(std::size(properties)))]);
        return QStringLiteral("Sub Main\r\n"
                              "\tDim value As String\r\n"
                              "\tvalue = Quorin.GetObjectProperty(\"%1\", \"%2\")\r\n"
                              "\tIf Len(value) > %3 And InStr(value, \"%4\") = 0 Then\r\n"
                              "\t\tQuorin.RaiseViolation\r\n"
                              "\tElseIf value <> \"\" Then\r\n"
                              "\t\tQuorin.CancelPendingViolation\r\n"
                              "\tEnd If\r\n"
                              "End Sub")
            .arg(object, property)
            .arg(number(40) + 1)
            .arg(word());
    }

private:
    std::mt19937 m_random;
};

void describe(IRule &rule, ViolationDefinition &violation, Texts &t, int categories)
{
    violation.setTitle(t.sentence(3));
    violation.setDescription(
        QStringLiteral("The %1 %2 breaks the standard: ").arg(t.placeholder(), t.word())
        + t.sentence(8));
    violation.setAdvice(t.sentence(12));
    violation.setSeverity(t.number(5) + 1);
    violation.setImpact(qint16(t.number(900)));
    violation.setCategoryID(t.number(categories) + 1);
    rule.setRuleActive(t.number(10) != 0);
}

} // namespace

std::shared_ptr<Rulebase> generateRulebase(int rules, unsigned seed)
{
    Texts t(seed);
    auto rulebase = std::make_shared<Rulebase>();
    rulebase->setTitle(QStringLiteral("Synthetic standards of %1 rules").arg(rules));
    rulebase->setDescription(t.sentence(30));
    rulebase->setAutoIncrementVersion(false);

    const int categories = 12;
    for (int c = 0; c < categories; ++c) {
        auto category = std::make_shared<CategoryItem>();
        category->setTitle(t.sentence(2));
        category->setDescription(t.sentence(10));
        rulebase->CategoryList()->Add(category, true);
    }

    RuleLists &lists = *rulebase->RuleLists();
    for (int i = 0; i < rules; ++i) {
        switch (i % 3) {
        case 0: {
            auto rule = std::make_shared<CodingConvention>();
            rule->setTitle(t.sentence(5));
            rule->setDescription(t.sentence(25));
            rule->setCondition(t.condition());
            for (int e = 0, n = t.number(3) + 1; e < n; ++e)
                rule->AddParserEventID(t.number(37) + 1);
            if (t.number(8) == 0) {
                rule->setPendingViolation(true);
                rule->setEndEventID(t.number(37) + 1);
            }
            describe(*rule, *rule->ViolationDefinition(), t, categories);
            lists.AddConvention(rule, true);
            break;
        }
        case 1: {
            auto rule = std::make_shared<NamingConvention>();
            rule->setTitle(t.sentence(4));
            rule->setDescription(t.sentence(20));
            rule->setObjectType(t.number(49) + 1);
            rule->setPropertyType(37);
            rule->setPropertyName(QStringLiteral("Name"));
            rule->setPrefixActive(true);
            rule->PrefixItems()->Item(1)->setPSType(4);
            rule->PrefixItems()->Item(2)->setPSType(1);
            rule->PrefixItems()->Item(2)->setValue(
                QStringLiteral("[a-z]{%1}").arg(t.number(3) + 1));
            rule->setPrefixAdvice(t.sentence(8));
            rule->setBodyActive(true);
            rule->setBodyPattern(QStringLiteral("^[A-Z][A-Za-z0-9]*$"));
            rule->setMinBodyLength(qint16(t.number(3) + 1));
            rule->setMaxBodyLength(qint16(t.number(30) + 10));
            rule->setBodyAdvice(t.sentence(8));
            if (t.number(4) == 0)
                rule->setExclusionList(QStringLiteral("Form_Load;Main;Class_Initialize"));
            describe(*rule, *rule->ViolationDefinition(), t, categories);
            lists.AddConvention(rule, true);
            break;
        }
        default: {
            auto rule = std::make_shared<UnauthorisedKeyword>();
            rule->setTitle(t.sentence(3));
            rule->setDescription(t.sentence(15));
            rule->setCondition(QStringLiteral("^\\s*(%1|%2)\\b").arg(t.word(), t.word()));
            rule->AddParserEventID(10);
            rule->AddParserEventID(28);
            describe(*rule, *rule->ViolationDefinition(), t, categories);
            lists.AddConvention(rule, true);
            break;
        }
        }
    }
    rulebase->setDirty(false);
    return rulebase;
}
