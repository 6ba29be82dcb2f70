#pragma once

#include "xml/TarnXMLWriter.h"

#include <QString>

#include <memory>
#include <optional>

class AuthorisedComponents;
class AuthorisedReferences;
class CategoryList;
class DefaultViolations;
class Rulebase;
class RulebaseLoadCriteria;
class RuleLists;
class TarnXMLElement;
class TagItem;
class ViolationDefinition;
class IListItem;
class SeverityItem;
template<typename T>
class ObjectKeyedArrayList;
template<typename T>
class ObjectArrayList;

// Reads and writes rulebase files. It holds no state: made for one call and dropped. Each
// section of the file has its own error frame, so a fault stops its section and no more; the
// rulebase then says that it loaded in part.
class RulebaseManager
{
public:
    // Null when the file does not parse, has a schema that can't be brought up to date, or
    // lacks the elements the frame reads itself. Raises when no file is named.
    std::shared_ptr<Rulebase> LoadRulebase(RulebaseLoadCriteria &criteria);
    // Everything, for editing.
    std::shared_ptr<Rulebase> LoadRulebase(const QString &filename);
    // An empty name means the rulebase's own. Does not change Rulebase::Filename.
    bool Save(Rulebase &rulebase, const QString &filename);

    void SaveCategoryList(TarnXMLWriter::Element &element, const CategoryList &list);
    void SaveSeverityList(TarnXMLWriter::Element &element,
                          const ObjectKeyedArrayList<SeverityItem> &list);

    // Whether hidden categories load; by default only the administrator's program sees them.
    static bool IsQuorinAdministrator();
    static void setAdministratorOverride(std::optional<bool> administrator);

    static QString currentSchemaVersion() { return QStringLiteral("6.2"); }

private:
    class StreamedRules;

    void LoadProperties(TarnXMLElement element, Rulebase &rulebase);
    void SaveProperties(TarnXMLWriter::Element &element, Rulebase &rulebase);
    void LoadTags(TarnXMLElement element, ObjectKeyedArrayList<TagItem> &list, int tagType);
    std::shared_ptr<TagItem> FindTagInList(const ObjectKeyedArrayList<TagItem> &list,
                                           const QString &name);
    void SaveTags(TarnXMLWriter::Element &element,
                  const ObjectKeyedArrayList<TagItem> &list,
                  const char *elementName,
                  int tagType);
    void LoadDefaultViolations(TarnXMLElement element, DefaultViolations &violations);
    void SaveDefaultViolations(TarnXMLWriter::Element &element,
                               const DefaultViolations &violations);
    void
    LoadCategoryList(TarnXMLElement element, RulebaseLoadCriteria &criteria, CategoryList &list);
    void LoadSeverityList(TarnXMLElement element, ObjectKeyedArrayList<SeverityItem> &list);
    void LoadAuthorisedComponents(TarnXMLElement element, AuthorisedComponents &list);
    void SaveAuthorisedComponents(TarnXMLWriter::Element &element,
                                  const AuthorisedComponents &list);
    void LoadAuthorisedReferences(TarnXMLElement element, AuthorisedReferences &list);
    void SaveAuthorisedReferences(TarnXMLWriter::Element &element,
                                  const AuthorisedReferences &list);
    // One rule of each kind, outside a frame: a fault throws to the section's.
    void LoadUnauthorisedKeyword(const TarnXMLElement &element,
                                 RulebaseLoadCriteria &criteria,
                                 RuleLists &rules);
    void LoadCodingConvention(const TarnXMLElement &element,
                              RulebaseLoadCriteria &criteria,
                              RuleLists &rules);
    void LoadNamingConvention(const TarnXMLElement &element,
                              RulebaseLoadCriteria &criteria,
                              RuleLists &rules);
    // What keywords and coding conventions share, in file order; `own` reads the fields of the
    // kind that stand before the condition.
    template<typename Rule>
    void LoadEventRule(const TarnXMLElement &element,
                       RulebaseLoadCriteria &criteria,
                       RuleLists &rules,
                       void (*own)(const TarnXMLElement &, Rule &));
    using RuleLoader
        = void (RulebaseManager::*)(const TarnXMLElement &, RulebaseLoadCriteria &, RuleLists &);
    // A rule section, in the frame `frame` names: each rule goes from the tree once read, so the
    // rules that follow take its memory.
    void LoadRules(const char *frame,
                   TarnXMLElement element,
                   RulebaseLoadCriteria &criteria,
                   RuleLists &rules,
                   RuleLoader load);
    void SaveUnauthorisedKeywords(TarnXMLWriter::Element &element, const RuleLists &rules);
    void SaveCodingConventions(TarnXMLWriter::Element &element, const RuleLists &rules);
    void SaveNamingConventions(TarnXMLWriter::Element &element, const RuleLists &rules);
    bool IsLoadableRule(RulebaseLoadCriteria &criteria, const TarnXMLElement &element);
    bool CheckSchemaVersion(TarnXMLElement root);
    void LoadViolationDefinition(const TarnXMLElement &rule, ViolationDefinition &definition);
    void SaveViolationDefintion(TarnXMLWriter::Element &rule,
                                const ViolationDefinition &definition);
    void LoadReport(TarnXMLElement element, Rulebase &rulebase);
    void SaveReport(TarnXMLWriter::Element &element, const ObjectArrayList<IListItem> &sections);
    QString UpdateSchema(TarnXMLElement root, const QString &version);
    void Apply_6_1_SchemaUpdates(TarnXMLElement root);
    void Apply_6_2_SchemaUpdates(TarnXMLElement root);
};
