// The sections of the rulebase file other than the properties: each reads or writes one
// element's children, inside its own error frame.
#include "rulebase/RulebaseManager.h"

#include "collections/ObjectKeyedArrayList.h"
#include "platform/ErrorFrame.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "rulebase/AuthorisedComponent.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReference.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/EventRule.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseFileValues.h"
#include "rulebase/RulebaseLoadCriteria.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/TableItem.h"
#include "rulebase/TagItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"
#include "xml/TarnXMLElement.h"

#include <QVarLengthArray>

#include <limits>

using namespace RulebaseFileValues;

namespace {

constexpr const char *module = "RulebaseManager";

void addParserEvents(const TarnXMLElement &element, EventRule &rule)
{
    // Plain numbers, nearly every list a file holds, are read from the stored text in place.
    const QUtf8StringView stored = element.AttributeUtf8ByName(QLatin1StringView("ParserEventID"));
    if (!stored.isNull()) {
        if (stored.isEmpty())
            return;
        QVarLengthArray<qint32, 16> ids;
        bool plain = true;
        for (qsizetype from = 0; plain && from <= stored.size();) {
            qsizetype to = from;
            while (to < stored.size() && stored[to] != '|')
                ++to;
            qint64 id = 0;
            plain = Text::parsePlainInteger(stored.sliced(from, to - from), id)
                    && id >= std::numeric_limits<qint32>::min()
                    && id <= std::numeric_limits<qint32>::max();
            ids.append(qint32(id));
            from = to + 1;
        }
        if (plain) {
            for (const qint32 id : ids)
                rule.AddParserEventID(id);
            return;
        }
    }
    const QString list = readText(element, "ParserEventID");
    if (list.isEmpty())
        return;
    for (const QString &part : list.split(QLatin1Char('|')))
        rule.AddParserEventID(Text::toLong(part, QStringLiteral("RulebaseManager::ParserEventID")));
}

void loadPrefixSuffixItems(const TarnXMLElement &rule,
                           const char *listName,
                           ObjectArrayList<PrefixSuffixItem> &items)
{
    // A fifth item meets no slot; the failure stops the section with this rule unadded.
    forEachChild(requireChild(rule, listName), [&](const TarnXMLElement &child, qint32 p) {
        if (p + 1 > items.Count())
            throw QuorinError::subscriptOutOfRange(
                QStringLiteral("NamingConvention::%1").arg(QLatin1String(listName)));
        const std::shared_ptr<PrefixSuffixItem> item = items.Item(p + 1);
        item->setPSType(readLong(child, "PSType"));
        item->setValue(readText(child, "PSValue"));
    });
}

void savePrefixSuffixItems(TarnXMLWriter::Element &rule,
                           const char *listName,
                           const char *itemName,
                           const ObjectArrayList<PrefixSuffixItem> &items)
{
    TarnXMLWriter::Element list = rule.AddElement(QLatin1String(listName));
    for (qint32 i = 1; i <= items.Count(); ++i) {
        const std::shared_ptr<PrefixSuffixItem> item = items.Item(i);
        if (item->PSType() == 0)
            continue; // an empty slot; the gap closes up
        TarnXMLWriter::Element element = list.AddElement(QLatin1String(itemName));
        writeNumber(element, "PSType", item->PSType());
        writeText(element, "PSValue", item->Value());
    }
}

} // namespace

// ---------------------------------------------------------------- tags

std::shared_ptr<TagItem> RulebaseManager::FindTagInList(const ObjectKeyedArrayList<TagItem> &list,
                                                        const QString &name)
{
    for (qint32 i = 1; i <= list.Count(); ++i) {
        std::shared_ptr<TagItem> item = list.Item(i);
        if (Text::same(item->TagName(), name))
            return item;
    }
    return nullptr;
}

void RulebaseManager::LoadTags(TarnXMLElement element,
                               ObjectKeyedArrayList<TagItem> &list,
                               int tagType)
{
    guardedVoid("LoadTags", module, [&] {
        // Tags in the file merge into the default set: defaults absent from the file stay.
        forEachChild(element, [&](const TarnXMLElement &child, qint32) {
            const QString name = readText(child, "TagName");
            std::shared_ptr<TagItem> item = FindTagInList(list, name);
            if (!item) {
                item = std::make_shared<TagItem>();
                item->setTagName(name);
                list.Add(name, item, false, false);
            }
            item->setTagValue(readText(child, "TagValue"));
            item->setTagExample(readText(child, "TagExample"));
            if (tagType == 1)
                item->setTagDescription(readText(child, "TagDescription"));
        });
    });
}

void RulebaseManager::SaveTags(TarnXMLWriter::Element &element,
                               const ObjectKeyedArrayList<TagItem> &list,
                               const char *elementName,
                               int tagType)
{
    guardedVoid("SaveTags", module, [&] {
        for (qint32 i = 1; i <= list.Count(); ++i) {
            const std::shared_ptr<TagItem> item = list.Item(i);
            TarnXMLWriter::Element tag = element.AddElement(QLatin1String(elementName));
            writeText(tag, "TagName", item->TagName());
            writeText(tag, "TagValue", item->TagValue());
            if (tagType == 1)
                writeText(tag, "TagDescription", item->TagDescription());
            writeText(tag, "TagExample", item->TagExample());
        }
    });
}

// ---------------------------------------------------------------- default violations

void RulebaseManager::LoadDefaultViolations(TarnXMLElement element, DefaultViolations &violations)
{
    guardedVoid("LoadDefaultViolations", module, [&] {
        forEachChild(element, [&](const TarnXMLElement &child, qint32 p) {
            const std::shared_ptr<ViolationDefinition> item = violations.Item(p + 1);
            if (!item)
                throw QuorinError::objectNotSet(QStringLiteral("DefaultViolations::Item"));
            item->setAdvice(readText(child, "Advice"));
            item->setCategoryID(readLong(child, "CategoryID"));
            item->setDescription(readText(child, "Description"));
            item->setImpact(readInteger(child, "Impact"));
            item->setSeverity(readLong(child, "SeverityLevel"));
        });
    });
}

void RulebaseManager::SaveDefaultViolations(TarnXMLWriter::Element &element,
                                            const DefaultViolations &violations)
{
    guardedVoid("SaveDefaultViolations", module, [&] {
        for (qint32 i = 1; i <= violations.Count(); ++i) {
            const std::shared_ptr<ViolationDefinition> item = violations.Item(i);
            TarnXMLWriter::Element child = element.AddElement(QLatin1String("ViolationItem"));
            writeText(child, "Advice", item->Advice());
            writeNumber(child, "CategoryID", item->CategoryID());
            writeText(child, "Description", item->Description());
            writeNumber(child, "Impact", item->Impact());
            writeNumber(child, "SeverityLevel", item->Severity());
        }
    });
}

// ---------------------------------------------------------------- categories and severities

void RulebaseManager::SaveCategoryList(TarnXMLWriter::Element &element, const CategoryList &list)
{
    guardedVoid("SaveCategoryList", module, [&] {
        writeNumber(element, "LastID", list.LastID());
        for (qint32 i = 1; i <= list.Count(); ++i) {
            const std::shared_ptr<CategoryItem> item = list.Item(i);
            TarnXMLWriter::Element child = element.AddElement(QLatin1String("CategoryItem"));
            writeNumber(child, "ID", item->ID());
            writeText(child, "Title", item->Title());
            writeText(child, "Description", item->Description());
            writeBool(child, "Hidden", item->Hidden());
        }
    });
}

void RulebaseManager::LoadCategoryList(TarnXMLElement element,
                                       RulebaseLoadCriteria &criteria,
                                       CategoryList &list)
{
    guardedVoid("LoadCategoryList", module, [&] {
        list.setLastID(readLong(element, "LastID"));
        const bool administrator = IsQuorinAdministrator();
        forEachChild(element, [&](const TarnXMLElement &child, qint32) {
            const bool hidden = readBool(child, "Hidden");
            const qint32 id = readLong(child, "ID");
            if (!hidden || administrator) {
                auto item = std::make_shared<CategoryItem>();
                item->setID(id);
                item->setTitle(readText(child, "Title"));
                item->setDescription(readText(child, "Description"));
                item->setHidden(hidden);
                list.Add(item, false);
            } else {
                criteria.AddExcludedCategoryID(id);
            }
        });
        list.Sort();
    });
}

void RulebaseManager::SaveSeverityList(TarnXMLWriter::Element &element,
                                       const ObjectKeyedArrayList<SeverityItem> &list)
{
    guardedVoid("SaveSeverityList", module, [&] {
        for (qint32 i = 1; i <= list.Count(); ++i) {
            const std::shared_ptr<SeverityItem> item = list.Item(i);
            TarnXMLWriter::Element child = element.AddElement(QLatin1String("SeverityItem"));
            writeNumber(child, "Colour", item->Colour());
            writeText(child, "Description", item->Description());
            writeNumber(child, "Impact", item->Impact());
            writeNumber(child, "SeverityLevel", item->SeverityLevel());
            writeText(child, "SeverityLevelText", item->SeverityLevelText());
            writeText(child, "Title", item->Title());
        }
    });
}

void RulebaseManager::LoadSeverityList(TarnXMLElement element,
                                       ObjectKeyedArrayList<SeverityItem> &list)
{
    guardedVoid("LoadSeverityList", module, [&] {
        // Levels in the file merge with the defaults; an existing level keeps its own level text.
        forEachChild(element, [&](const TarnXMLElement &child, qint32) {
            const qint32 level = readLong(child, "SeverityLevel");
            const QString key = QString::number(level) + QStringLiteral("Key");
            if (list.Contains(key)) {
                const std::shared_ptr<SeverityItem> item = list.Item(key);
                item->setColour(readLong(child, "Colour"));
                item->setDescription(readText(child, "Description"));
                item->setImpact(readInteger(child, "Impact"));
                item->setTitle(readText(child, "Title"));
            } else {
                auto item = std::make_shared<SeverityItem>();
                item->setColour(readLong(child, "Colour"));
                item->setDescription(readText(child, "Description"));
                item->setImpact(readInteger(child, "Impact"));
                item->setSeverityLevel(level);
                item->setSeverityLevelText(readText(child, "SeverityLevelText"));
                item->setTitle(readText(child, "Title"));
                item->setKey(key);
                list.Add(key, item, true, false);
            }
        });
    });
}

// ---------------------------------------------------------------- authorised items

void RulebaseManager::LoadAuthorisedComponents(TarnXMLElement element, AuthorisedComponents &list)
{
    guardedVoid("LoadAuthorisedComponents", module, [&] {
        forEachChild(element, [&](const TarnXMLElement &child, qint32) {
            auto item = std::make_shared<AuthorisedComponent>();
            item->setAdvice(readText(child, "Advice"));
            item->setFilename(readText(child, "Filename"));
            item->setLibID(readText(child, "LibID"));
            item->setVersionList(readText(child, "VersionList"));
            list.AddComponent(item);
        });
    });
}

void RulebaseManager::SaveAuthorisedComponents(TarnXMLWriter::Element &element,
                                               const AuthorisedComponents &list)
{
    guardedVoid("SaveAuthorisedComponents", module, [&] {
        for (qint32 i = 1; i <= list.Count(); ++i) {
            const std::shared_ptr<AuthorisedComponent> item = list.Item(i);
            TarnXMLWriter::Element child = element.AddElement(QLatin1String("AuthorisedComponent"));
            writeText(child, "Advice", item->Advice());
            writeText(child, "Filename", item->Filename());
            writeText(child, "LibID", item->LibID());
            writeText(child, "VersionList", item->VersionList());
        }
    });
}

void RulebaseManager::LoadAuthorisedReferences(TarnXMLElement element, AuthorisedReferences &list)
{
    guardedVoid("LoadAuthorisedReferences", module, [&] {
        forEachChild(element, [&](const TarnXMLElement &child, qint32) {
            auto item = std::make_shared<AuthorisedReference>();
            item->setAdvice(readText(child, "Advice"));
            item->setDescription(readText(child, "Description"));
            item->setFilename(readText(child, "Filename"));
            item->setLibID(readText(child, "LibID"));
            item->setVersionList(readText(child, "VersionList"));
            list.AddReference(item);
        });
    });
}

void RulebaseManager::SaveAuthorisedReferences(TarnXMLWriter::Element &element,
                                               const AuthorisedReferences &list)
{
    guardedVoid("SaveAuthorisedReferences", module, [&] {
        for (qint32 i = 1; i <= list.Count(); ++i) {
            const std::shared_ptr<AuthorisedReference> item = list.Item(i);
            TarnXMLWriter::Element child = element.AddElement(QLatin1String("AuthorisedReference"));
            writeText(child, "Advice", item->Advice());
            writeText(child, "Description", item->Description());
            writeText(child, "Filename", item->Filename());
            writeText(child, "LibID", item->LibID());
            writeText(child, "VersionList", item->VersionList());
        }
    });
}

// ---------------------------------------------------------------- rules

bool RulebaseManager::IsLoadableRule(RulebaseLoadCriteria &criteria, const TarnXMLElement &element)
{
    if (criteria.LoadForEdit())
        return true;
    // Cheapest test first: the review side loads active rules of wanted severities only.
    if (!readBool(element, "RuleActive"))
        return false;
    const TarnXMLElement definition = requireChild(element, "ViolationDefinition");
    if (!criteria.SeverityLevel(readLong(definition, "SeverityLevel")))
        return false;
    return !criteria.IsExcludedCategoryID(readLong(definition, "CategoryID"));
}

void RulebaseManager::LoadViolationDefinition(const TarnXMLElement &rule,
                                              ViolationDefinition &definition)
{
    const TarnXMLElement element = requireChild(rule, "ViolationDefinition");
    definition.setTitle(readText(element, "Name"));
    definition.setDescription(readText(element, "Description"));
    definition.setSeverity(readLong(element, "SeverityLevel"));
    definition.setImpact(readInteger(element, "Impact"));
    definition.setCategoryID(readLong(element, "CategoryID"));
    definition.setAdvice(readText(element, "Advice"));
}

void RulebaseManager::SaveViolationDefintion(TarnXMLWriter::Element &rule,
                                             const ViolationDefinition &definition)
{
    TarnXMLWriter::Element element = rule.AddElement(QLatin1String("ViolationDefinition"));
    writeText(element, "Name", definition.Title());
    writeText(element, "Description", definition.Description());
    writeNumber(element, "SeverityLevel", definition.Severity());
    writeNumber(element, "Impact", definition.Impact());
    writeNumber(element, "CategoryID", definition.CategoryID());
    writeText(element, "Advice", definition.Advice());
}

void RulebaseManager::LoadRules(const char *frame,
                                TarnXMLElement element,
                                RulebaseLoadCriteria &criteria,
                                RuleLists &rules,
                                RuleLoader load)
{
    guardedVoid(frame, module, [&] {
        const qint32 count = element.ElementCount();
        for (qint32 i = 0; i < count; ++i) {
            (this->*load)(element.ElementAtPosition(0), criteria, rules);
            element.RemoveElement(0);
        }
    });
}

template<typename Rule>
void RulebaseManager::LoadEventRule(const TarnXMLElement &element,
                                    RulebaseLoadCriteria &criteria,
                                    RuleLists &rules,
                                    void (*own)(const TarnXMLElement &, Rule &))
{
    if (!IsLoadableRule(criteria, element))
        return;
    auto rule = std::make_shared<Rule>();
    rule->setRuleID(readLong(element, "RuleID"));
    rule->setRuleActive(readBool(element, "RuleActive"));
    rule->setTitle(readText(element, "Title"));
    rule->setDescription(readText(element, "Description"));
    if (own)
        own(element, *rule);
    rule->setCondition(readText(element, "Condition"));
    addParserEvents(element, *rule);
    LoadViolationDefinition(element, *rule->ViolationDefinition());
    rules.AddConvention(rule, false);
}

void RulebaseManager::LoadUnauthorisedKeyword(const TarnXMLElement &element,
                                              RulebaseLoadCriteria &criteria,
                                              RuleLists &rules)
{
    LoadEventRule<UnauthorisedKeyword>(element, criteria, rules, nullptr);
}

void RulebaseManager::SaveUnauthorisedKeywords(TarnXMLWriter::Element &element,
                                               const RuleLists &rules)
{
    guardedVoid("SaveUnauthorisedKeywords", module, [&] {
        const auto &list = *rules.UnauthorisedKeywords();
        for (qint32 i = 1; i <= list.Count(); ++i) {
            const std::shared_ptr<UnauthorisedKeyword> rule = list.Item(i);
            TarnXMLWriter::Element child = element.AddElement(QLatin1String("UnauthorisedKeyword"));
            writeNumber(child, "RuleID", rule->RuleID());
            writeBool(child, "RuleActive", rule->RuleActive());
            writeText(child, "Title", rule->Title());
            writeText(child, "Description", rule->Description());
            writeText(child, "Condition", rule->Condition());
            writeText(child, "ParserEventID", rule->ParserEventList());
            SaveViolationDefintion(child, *rule->ViolationDefinition());
        }
    });
}

void RulebaseManager::LoadCodingConvention(const TarnXMLElement &element,
                                           RulebaseLoadCriteria &criteria,
                                           RuleLists &rules)
{
    LoadEventRule<CodingConvention>(
        element, criteria, rules, [](const TarnXMLElement &from, CodingConvention &rule) {
            rule.setPendingViolation(readBool(from, "PendingViolation"));
            rule.setEndEventID(readLong(from, "EndEventID"));
        });
}

void RulebaseManager::SaveCodingConventions(TarnXMLWriter::Element &element, const RuleLists &rules)
{
    guardedVoid("SaveCodingConventions", module, [&] {
        const auto &list = *rules.CodingConventions();
        for (qint32 i = 1; i <= list.Count(); ++i) {
            const std::shared_ptr<CodingConvention> rule = list.Item(i);
            TarnXMLWriter::Element child = element.AddElement(QLatin1String("CodingConvention"));
            writeNumber(child, "RuleID", rule->RuleID());
            writeBool(child, "RuleActive", rule->RuleActive());
            writeText(child, "Title", rule->Title());
            writeText(child, "Description", rule->Description());
            writeBool(child, "PendingViolation", rule->PendingViolation());
            writeNumber(child, "EndEventID", rule->EndEventID());
            writeText(child, "Condition", rule->Condition());
            writeText(child, "ParserEventID", rule->ParserEventList());
            SaveViolationDefintion(child, *rule->ViolationDefinition());
        }
    });
}

void RulebaseManager::LoadNamingConvention(const TarnXMLElement &element,
                                           RulebaseLoadCriteria &criteria,
                                           RuleLists &rules)
{
    if (!IsLoadableRule(criteria, element))
        return;
    auto rule = std::make_shared<NamingConvention>();
    rule->setRuleID(readLong(element, "RuleID"));
    rule->setRuleActive(readBool(element, "RuleActive"));
    rule->setCaseSensitive(readBool(element, "CaseSensitive"));
    rule->setTitle(readText(element, "Title"));
    rule->setDescription(readText(element, "Description"));
    rule->setObjectType(readLong(element, "ObjectType"));
    rule->setPropertyType(readLong(element, "PropertyType"));
    rule->setPropertyName(readText(element, "PropertyName"));
    rule->setCondition(readText(element, "Condition"));
    // The review side searches for ";name;", so it gets whole entries delimited.
    const QString exclusions = readText(element, "ExclusionList");
    rule->setExclusionList(criteria.LoadForEdit() ? exclusions
                                                  : QLatin1Char(';') + Text::trimBlanks(exclusions)
                                                        + QLatin1Char(';'));
    rule->setPrefixActive(readBool(element, "PrefixActive"));
    rule->setPrefixAdvice(readText(element, "PrefixAdvice"));
    rule->setBodyActive(readBool(element, "BodyActive"));
    rule->setBodyPattern(readText(element, "BodyPattern"));
    rule->setMaxBodyLength(readInteger(element, "BodyMaxLength"));
    rule->setMinBodyLength(readInteger(element, "BodyMinLength"));
    rule->setBodyAdvice(readText(element, "BodyAdvice"));
    rule->setSuffixActive(readBool(element, "SuffixActive"));
    rule->setSuffixAdvice(readText(element, "SuffixAdvice"));
    if (rule->PrefixActive())
        loadPrefixSuffixItems(element, "PrefixItems", *rule->PrefixItems());
    if (rule->SuffixActive())
        loadPrefixSuffixItems(element, "SuffixItems", *rule->SuffixItems());
    LoadViolationDefinition(element, *rule->ViolationDefinition());
    rules.AddConvention(rule, false);
}

void RulebaseManager::SaveNamingConventions(TarnXMLWriter::Element &element, const RuleLists &rules)
{
    guardedVoid("SaveNamingConventions", module, [&] {
        const auto &list = *rules.NamingConventions();
        for (qint32 i = 1; i <= list.Count(); ++i) {
            const std::shared_ptr<NamingConvention> rule = list.Item(i);
            TarnXMLWriter::Element child = element.AddElement(QLatin1String("NamingConvention"));
            writeNumber(child, "RuleID", rule->RuleID());
            writeBool(child, "RuleActive", rule->RuleActive());
            writeBool(child, "CaseSensitive", rule->CaseSensitive());
            writeText(child, "Title", rule->Title());
            writeText(child, "Description", rule->Description());
            writeNumber(child, "ObjectType", rule->ObjectType());
            writeNumber(child, "PropertyType", rule->PropertyType());
            writeText(child, "PropertyName", rule->PropertyName());
            writeText(child, "Condition", rule->Condition());
            writeText(child, "ExclusionList", rule->ExclusionList());
            writeBool(child, "PrefixActive", rule->PrefixActive());
            writeText(child, "PrefixAdvice", rule->PrefixAdvice());
            writeBool(child, "BodyActive", rule->BodyActive());
            writeText(child, "BodyPattern", rule->BodyPattern());
            writeNumber(child, "BodyMaxLength", rule->MaxBodyLength());
            writeNumber(child, "BodyMinLength", rule->MinBodyLength());
            writeText(child, "BodyAdvice", rule->BodyAdvice());
            writeBool(child, "SuffixActive", rule->SuffixActive());
            writeText(child, "SuffixAdvice", rule->SuffixAdvice());
            // Items of an inactive prefix or suffix are not kept.
            if (rule->PrefixActive())
                savePrefixSuffixItems(child, "PrefixItems", "PrefixItem", *rule->PrefixItems());
            if (rule->SuffixActive())
                savePrefixSuffixItems(child, "SuffixItems", "SuffixItem", *rule->SuffixItems());
            SaveViolationDefintion(child, *rule->ViolationDefinition());
        }
    });
}

// ---------------------------------------------------------------- report

void RulebaseManager::SaveReport(TarnXMLWriter::Element &element,
                                 const ObjectArrayList<IListItem> &sections)
{
    guardedVoid("SaveReport", module, [&] {
        for (qint32 i = 1; i <= sections.Count(); ++i) {
            const std::shared_ptr<IListItem> entry = sections.Item(i);
            if (const auto category = std::dynamic_pointer_cast<CategoryItem>(entry)) {
                const auto rules = category->CategoryRules();
                if (rules->Count() == 0)
                    continue; // an empty category page is dropped
                QStringList ids;
                for (qint32 r = 1; r <= rules->Count(); ++r)
                    ids << QString::number(rules->Item(r)->RuleID());
                TarnXMLWriter::Element section = element.AddElement(QLatin1String("Section"));
                writeText(section, "SectionType", QStringLiteral("Category"));
                writeNumber(section, "CategoryID", category->ID());
                writeText(section, "CategoryRuleList", ids.join(QLatin1Char('|')));
            } else {
                const auto table = std::dynamic_pointer_cast<TableItem>(entry);
                if (!table)
                    throw QuorinError::typeMismatch(QStringLiteral("RulebaseManager::SaveReport"));
                TarnXMLWriter::Element section = element.AddElement(QLatin1String("Section"));
                writeText(section, "SectionType", QStringLiteral("Table"));
                writeText(section, "TableKey", table->TableKey());
                writeText(section, "TableText", table->TableText());
                writeText(section, "TableTitle", table->TableTitle());
                writeNumber(section, "TableType", table->TableType());
            }
        }
    });
}

void RulebaseManager::LoadReport(TarnXMLElement element, Rulebase &rulebase)
{
    guardedVoid("LoadReport", module, [&] {
        ObjectArrayList<IListItem> &sections = *rulebase.Report()->Sections();
        const CategoryList &categories = *rulebase.CategoryList();
        const auto &allRules = *rulebase.RuleLists()->AllConventions();
        forEachChild(element, [&](const TarnXMLElement &child, qint32) {
            if (!Text::same(readText(child, "SectionType"), QStringLiteral("Category"))) {
                auto table = std::make_shared<TableItem>();
                table->setTableKey(readText(child, "TableKey"));
                table->setTableText(readText(child, "TableText"));
                table->setTableTitle(readText(child, "TableTitle"));
                table->setTableType(readLong(child, "TableType"));
                sections.Add(table);
                return;
            }
            const qint32 id = readLong(child, "CategoryID");
            if (!categories.ContainsID(id))
                return; // the page of a deleted category goes quietly
            const std::shared_ptr<CategoryItem> source
                = categories.Item(CategoryList::CategoryIDToKey(id));
            auto page = std::make_shared<CategoryItem>();
            page->setTitle(source->Title());
            page->setDescription(source->Description());
            page->setID(source->ID());
            sections.Add(page);
            const QString ruleList = readText(child, "CategoryRuleList");
            if (ruleList.isEmpty())
                return;
            const auto pageRules = page->CategoryRules();
            for (const QString &part : ruleList.split(QLatin1Char('|'))) {
                const QString key = QString::number(Text::valLong(part)) + QStringLiteral("Key");
                if (allRules.Contains(key))
                    pageRules->Add(allRules.Item(key));
            }
        });
    });
}
