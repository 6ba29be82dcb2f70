#include "tools/RulebaseDiff.h"

#include "platform/TextUtils.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/TagItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"
#include "tools/TextDiff.h"

#include <algorithm>

namespace {

QString number(qint64 value)
{
    return QString::number(value);
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString tolerances(const Rulebase &rulebase, bool counts)
{
    QStringList parts;
    for (qint32 i = 1; i <= 6; ++i)
        parts << number(counts ? rulebase.ToleranceCount(i) : rulebase.ToleranceImpact(i));
    return parts.join(QLatin1Char('|'));
}

void addDefinition(std::vector<std::pair<QString, QString>> &fields,
                   const ViolationDefinition &definition,
                   const QString &prefix)
{
    fields.emplace_back(prefix + QStringLiteral("Title"), definition.Title());
    fields.emplace_back(prefix + QStringLiteral("Description"), definition.Description());
    fields.emplace_back(prefix + QStringLiteral("Severity"), number(definition.Severity()));
    fields.emplace_back(prefix + QStringLiteral("Impact"), number(definition.Impact()));
    fields.emplace_back(prefix + QStringLiteral("CategoryID"), number(definition.CategoryID()));
    fields.emplace_back(prefix + QStringLiteral("Advice"), definition.Advice());
}

// "1 frm", "2" for a tag item, empty for none.
QString itemText(const PrefixSuffixItem &item)
{
    if (item.PSType() == 0)
        return QString();
    return item.Value().isEmpty() ? number(item.PSType())
                                  : number(item.PSType()) + QLatin1Char(' ') + item.Value();
}

void addItems(std::vector<std::pair<QString, QString>> &fields,
              const QString &prefix,
              const ObjectArrayList<PrefixSuffixItem> &items)
{
    for (qint32 i = 1; i <= items.Count(); ++i) {
        const auto item = items.Item(i);
        fields.emplace_back(prefix + number(i), item ? itemText(*item) : QString());
    }
}

bool multiLine(const QString &text)
{
    return text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r'));
}

bool lessKey(const QString &a, const QString &b)
{
    bool aNumber = false;
    bool bNumber = false;
    const qint64 x = a.toLongLong(&aNumber);
    const qint64 y = b.toLongLong(&bNumber);
    if (aNumber && bNumber)
        return x < y;
    if (aNumber != bNumber)
        return aNumber; // numbers first
    return a < b;
}

} // namespace

QString RulebaseDiff::changeText(Change change)
{
    switch (change) {
    case Change::Added:
        return QStringLiteral("added");
    case Change::Removed:
        return QStringLiteral("removed");
    case Change::Changed:
        return QStringLiteral("changed");
    }
    return QString();
}

std::vector<RulebaseDiff::Item> RulebaseDiff::compare(const Rulebase &older, const Rulebase &newer)
{
    std::vector<Item> items;
    compareSection(QStringLiteral("properties"), properties(older), properties(newer), items);
    compareSection(QStringLiteral("default-violation"),
                   defaultViolations(older),
                   defaultViolations(newer),
                   items);
    compareSection(QStringLiteral("category"), categories(older), categories(newer), items);
    compareSection(QStringLiteral("severity"), severities(older), severities(newer), items);
    compareSection(QStringLiteral("control-tag"), tags(older, 1), tags(newer, 1), items);
    compareSection(QStringLiteral("data-type-tag"), tags(older, 2), tags(newer, 2), items);
    compareSection(QStringLiteral("scope-tag"), tags(older, 3), tags(newer, 3), items);
    compareSection(
        QStringLiteral("authorised-component"), components(older), components(newer), items);
    compareSection(
        QStringLiteral("authorised-reference"), references(older), references(newer), items);
    compareSection(QStringLiteral("rule"), rules(older), rules(newer), items);
    return items;
}

void RulebaseDiff::compareSection(const QString &section,
                                  Records older,
                                  Records newer,
                                  std::vector<Item> &items)
{
    const auto byKey
        = [](const Record &a, const Record &b) { return lessKey(a.matchKey, b.matchKey); };
    std::stable_sort(older.begin(), older.end(), byKey);
    std::stable_sort(newer.begin(), newer.end(), byKey);

    const auto whole = [&section](const Record &record, Change change) {
        Item item{section, record.key, record.title, change, {}};
        for (const auto &[name, value] : record.fields) {
            if (value.isEmpty())
                continue;
            Field field{name, QString(), QString(), {}};
            (change == Change::Added ? field.newValue : field.oldValue) = value;
            item.fields.push_back(field);
        }
        return item;
    };

    // A merge of the two sorted lists; a key held twice on one side pairs in order.
    auto a = older.cbegin();
    auto b = newer.cbegin();
    while (a != older.cend() || b != newer.cend()) {
        if (b == newer.cend() || (a != older.cend() && lessKey(a->matchKey, b->matchKey))) {
            items.push_back(whole(*a++, Change::Removed));
        } else if (a == older.cend() || lessKey(b->matchKey, a->matchKey)) {
            items.push_back(whole(*b++, Change::Added));
        } else {
            Item item{section, b->key, b->title, Change::Changed, {}};
            // Both sides of one kind have the same fields in the same order, except a rule
            // whose type changed: then a field missing on one side compares as empty.
            std::vector<std::pair<QString, QString>> names = a->fields;
            for (const auto &field : b->fields) {
                if (std::none_of(names.cbegin(), names.cend(), [&](const auto &n) {
                        return n.first == field.first;
                    }))
                    names.push_back(field);
            }
            const auto valueOf = [](const Record &record, const QString &name) {
                for (const auto &[fieldName, value] : record.fields) {
                    if (fieldName == name)
                        return value;
                }
                return QString();
            };
            for (const auto &entry : names) {
                const QString &name = entry.first;
                const QString before = valueOf(*a, name);
                const QString after = valueOf(*b, name);
                if (before == after)
                    continue;
                Field field{name, before, after, {}};
                if (multiLine(before) || multiLine(after))
                    field.lines = TextDiff::unified(before, after);
                item.fields.push_back(field);
            }
            if (!item.fields.empty())
                items.push_back(item);
            ++a;
            ++b;
        }
    }
}

// ---------------------------------------------------------------- the sections

RulebaseDiff::Records RulebaseDiff::properties(const Rulebase &rulebase)
{
    Record record{QStringLiteral("0"), QString(), QString(), {}};
    auto &f = record.fields;
    f.emplace_back(QStringLiteral("Title"), rulebase.Title());
    f.emplace_back(QStringLiteral("Version"), rulebase.Version());
    f.emplace_back(QStringLiteral("AutoIncrementVersion"),
                   Text::fromBool(rulebase.AutoIncrementVersion()));
    f.emplace_back(QStringLiteral("Description"), rulebase.Description());
    f.emplace_back(QStringLiteral("UnknownControlViolation"),
                   Text::fromBool(rulebase.UnknownControlViolation()));
    f.emplace_back(QStringLiteral("UseCTagsAsDTTags"), Text::fromBool(rulebase.UseCTagsAsDTTags()));
    f.emplace_back(QStringLiteral("ToleranceCount"), tolerances(rulebase, true));
    f.emplace_back(QStringLiteral("ToleranceImpact"), tolerances(rulebase, false));
    f.emplace_back(QStringLiteral("TolerancePercentageComments"),
                   number(rulebase.TolerancePercentageComments()));
    f.emplace_back(QStringLiteral("ToleranceCyclomaticComplexity"),
                   number(rulebase.ToleranceCyclomaticComplexity()));
    f.emplace_back(QStringLiteral("ArrayTag"), rulebase.ArrayTag());
    return {record};
}

RulebaseDiff::Records RulebaseDiff::defaultViolations(const Rulebase &rulebase)
{
    Records records;
    const auto violations = rulebase.DefaultViolations();
    for (qint32 i = 1; i <= violations->Count(); ++i) {
        const auto definition = violations->Item(i);
        if (!definition)
            continue;
        Record record{number(i), number(i), definition->Title(), {}};
        record.fields.emplace_back(QStringLiteral("Description"), definition->Description());
        record.fields.emplace_back(QStringLiteral("Severity"), number(definition->Severity()));
        record.fields.emplace_back(QStringLiteral("Impact"), number(definition->Impact()));
        record.fields.emplace_back(QStringLiteral("CategoryID"), number(definition->CategoryID()));
        record.fields.emplace_back(QStringLiteral("Advice"), definition->Advice());
        records.push_back(record);
    }
    return records;
}

RulebaseDiff::Records RulebaseDiff::categories(const Rulebase &rulebase)
{
    Records records;
    const auto list = rulebase.CategoryList();
    for (qint32 i = 1; i <= list->Count(); ++i) {
        const auto category = list->Item(i);
        Record record{
            number(category->ID()), number(category->ID()), quoted(category->Title()), {}};
        record.fields.emplace_back(QStringLiteral("Title"), category->Title());
        record.fields.emplace_back(QStringLiteral("Description"), category->Description());
        record.fields.emplace_back(QStringLiteral("Hidden"), Text::fromBool(category->Hidden()));
        records.push_back(record);
    }
    return records;
}

RulebaseDiff::Records RulebaseDiff::severities(const Rulebase &rulebase)
{
    Records records;
    const auto list = rulebase.SeverityList();
    for (qint32 i = 1; i <= list->Count(); ++i) {
        const auto severity = list->Item(i);
        const QString level = number(severity->SeverityLevel());
        Record record{level, level, quoted(severity->Title()), {}};
        record.fields.emplace_back(QStringLiteral("Title"), severity->Title());
        record.fields.emplace_back(QStringLiteral("Description"), severity->Description());
        record.fields.emplace_back(QStringLiteral("SeverityLevelText"),
                                   severity->SeverityLevelText());
        record.fields.emplace_back(QStringLiteral("Colour"), number(severity->Colour()));
        record.fields.emplace_back(QStringLiteral("Impact"), number(severity->Impact()));
        records.push_back(record);
    }
    return records;
}

RulebaseDiff::Records RulebaseDiff::tags(const Rulebase &rulebase, int tagType)
{
    const auto list = tagType == 1   ? rulebase.ControlTags()
                      : tagType == 2 ? rulebase.DataTypeTags()
                                     : rulebase.ScopeTags();
    Records records;
    for (qint32 i = 1; i <= list->Count(); ++i) {
        const auto tag = list->Item(i);
        // Tag names match ignoring case, as the loader merges them.
        Record record{tag->TagName().toLower(), tag->TagName(), QString(), {}};
        record.fields.emplace_back(QStringLiteral("TagValue"), tag->TagValue());
        if (tagType == 1)
            record.fields.emplace_back(QStringLiteral("TagDescription"), tag->TagDescription());
        record.fields.emplace_back(QStringLiteral("TagExample"), tag->TagExample());
        records.push_back(record);
    }
    return records;
}

RulebaseDiff::Records RulebaseDiff::components(const Rulebase &rulebase)
{
    Records records;
    const auto list = rulebase.AuthorisedComponents();
    for (qint32 i = 1; i <= list->Count(); ++i) {
        const auto item = list->Item(i);
        Record record{item->LibID().toLower(), item->LibID(), quoted(item->Filename()), {}};
        record.fields.emplace_back(QStringLiteral("Filename"), item->Filename());
        record.fields.emplace_back(QStringLiteral("VersionList"), item->VersionList());
        record.fields.emplace_back(QStringLiteral("Advice"), item->Advice());
        records.push_back(record);
    }
    return records;
}

RulebaseDiff::Records RulebaseDiff::references(const Rulebase &rulebase)
{
    Records records;
    const auto list = rulebase.AuthorisedReferences();
    for (qint32 i = 1; i <= list->Count(); ++i) {
        const auto item = list->Item(i);
        Record record{item->LibID().toLower(), item->LibID(), quoted(item->Description()), {}};
        record.fields.emplace_back(QStringLiteral("Description"), item->Description());
        record.fields.emplace_back(QStringLiteral("Filename"), item->Filename());
        record.fields.emplace_back(QStringLiteral("VersionList"), item->VersionList());
        record.fields.emplace_back(QStringLiteral("Advice"), item->Advice());
        records.push_back(record);
    }
    return records;
}

RulebaseDiff::Records RulebaseDiff::rules(const Rulebase &rulebase)
{
    Records records;
    const auto list = rulebase.RuleLists()->AllConventions();
    for (qint32 i = 1; i <= list->Count(); ++i) {
        const auto rule = list->Item(i);
        if (!rule)
            continue;
        const QString id = number(rule->RuleID());
        Record record{id,
                      id,
                      RuleTypes::displayName(rule->RuleType()) + QLatin1Char(' ')
                          + quoted(rule->Title()),
                      {}};
        auto &f = record.fields;
        f.emplace_back(QStringLiteral("RuleType"), RuleTypes::displayName(rule->RuleType()));
        f.emplace_back(QStringLiteral("Title"), rule->Title());
        f.emplace_back(QStringLiteral("Description"), rule->Description());
        f.emplace_back(QStringLiteral("RuleActive"), Text::fromBool(rule->RuleActive()));
        if (const auto *coding = dynamic_cast<const CodingConvention *>(rule.get())) {
            f.emplace_back(QStringLiteral("ParserEventList"), coding->ParserEventList());
            f.emplace_back(QStringLiteral("PendingViolation"),
                           Text::fromBool(coding->PendingViolation()));
            f.emplace_back(QStringLiteral("EndEventID"), number(coding->EndEventID()));
            f.emplace_back(QStringLiteral("Condition"), coding->Condition());
        } else if (const auto *keyword = dynamic_cast<const UnauthorisedKeyword *>(rule.get())) {
            f.emplace_back(QStringLiteral("ParserEventList"), keyword->ParserEventList());
            f.emplace_back(QStringLiteral("Condition"), keyword->Condition());
        } else if (const auto *naming = dynamic_cast<const NamingConvention *>(rule.get())) {
            f.emplace_back(QStringLiteral("ObjectType"), number(naming->ObjectType()));
            f.emplace_back(QStringLiteral("PropertyType"), number(naming->PropertyType()));
            f.emplace_back(QStringLiteral("PropertyName"), naming->PropertyName());
            f.emplace_back(QStringLiteral("CaseSensitive"),
                           Text::fromBool(naming->CaseSensitive()));
            f.emplace_back(QStringLiteral("ExclusionList"), naming->ExclusionList());
            f.emplace_back(QStringLiteral("Condition"), naming->Condition());
            f.emplace_back(QStringLiteral("PrefixActive"), Text::fromBool(naming->PrefixActive()));
            addItems(f, QStringLiteral("PrefixItem"), *naming->PrefixItems());
            f.emplace_back(QStringLiteral("PrefixAdvice"), naming->PrefixAdvice());
            f.emplace_back(QStringLiteral("BodyActive"), Text::fromBool(naming->BodyActive()));
            f.emplace_back(QStringLiteral("BodyPattern"), naming->BodyPattern());
            f.emplace_back(QStringLiteral("MinBodyLength"), number(naming->MinBodyLength()));
            f.emplace_back(QStringLiteral("MaxBodyLength"), number(naming->MaxBodyLength()));
            f.emplace_back(QStringLiteral("BodyAdvice"), naming->BodyAdvice());
            f.emplace_back(QStringLiteral("SuffixActive"), Text::fromBool(naming->SuffixActive()));
            addItems(f, QStringLiteral("SuffixItem"), *naming->SuffixItems());
            f.emplace_back(QStringLiteral("SuffixAdvice"), naming->SuffixAdvice());
        }
        if (const auto definition = rule->ViolationDefinition())
            addDefinition(f, *definition, QStringLiteral("Violation."));
        records.push_back(record);
    }
    return records;
}
