#include "rulebase/RulebaseManager.h"

#include "platform/ErrorFrame.h"
#include "platform/FileUtils.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinData.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/AuthorisedComponent.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReference.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/DefaultViolations.h"
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
#include "rulebase/VersionNumber.h"
#include "rulebase/ViolationDefinition.h"
#include "xml/TarnXMLChildReader.h"
#include "xml/TarnXMLDoc.h"
#include "xml/TarnXMLElement.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <array>

using namespace RulebaseFileValues;

namespace {

constexpr const char *module = "RulebaseManager";
std::optional<bool> administratorOverride;

QString noFilenameText()
{
    return QStringLiteral("No filename has been specified.");
}

// Tolerances: entries 1 to 6, "|"-joined.
template<typename Get>
QString joinTolerances(Get &&get)
{
    QStringList parts;
    for (qint32 i = 1; i <= 6; ++i)
        parts << QString::number(get(i));
    return parts.join(QLatin1Char('|'));
}

// Part n goes to entry n + 1; more parts than the list can hold fail at the first beyond it.
template<typename Set>
void readTolerances(const QString &text, Set &&set)
{
    const QStringList parts = text.split(QLatin1Char('|'));
    for (qsizetype n = 0; n < parts.size(); ++n)
        set(qint32(n + 1), Text::valLong(parts.at(n)));
}

} // namespace

bool RulebaseManager::IsQuorinAdministrator()
{
    if (administratorOverride)
        return *administratorOverride;
    if (QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName()
        == QLatin1String("QuorinAdmin"))
        return true;
    return gobjQuorinData
           && (FileUtils::FileExists(gobjQuorinData->LocalAppPath()
                                     + QStringLiteral("QuorinAdmin.exe"))
               || FileUtils::FileExists(gobjQuorinData->LocalAppPath()
                                        + QStringLiteral("QuorinAdmin")));
}

void RulebaseManager::setAdministratorOverride(std::optional<bool> administrator)
{
    administratorOverride = administrator;
}

// ---------------------------------------------------------------- frames

// Reads the rules while the file is parsed, so that a large file is never held whole. The
// sections keep their load order: a section's rules are read only once the sections loaded
// before it have ended. A rule that fails stays, and the rest of its section with it, for the
// section's frame to read and report in its turn, as it would have without this.
class RulebaseManager::StreamedRules final : public TarnXMLChildReader
{
public:
    enum Section { Keywords, Coding, Naming, SectionCount };

    StreamedRules(RulebaseManager &manager, RulebaseLoadCriteria &criteria, RuleLists &rules)
        : m_manager(manager)
        , m_criteria(criteria)
        , m_rules(rules)
    {
    }

    QList<QLatin1StringView> ChildLists() const override
    {
        return {QLatin1StringView("UnauthorisedKeywords"),
                QLatin1StringView("Rules/CodingConventions"),
                QLatin1StringView("Rules/NamingConventions")};
    }

    // A file of another schema is brought up to date as a whole tree first.
    bool Begin(const TarnXMLElement &root) override
    {
        return QAnyStringView(root.AttributeUtf8ByName(QLatin1StringView("SchemaVersion")))
               == QAnyStringView(currentSchemaVersion());
    }

    bool ReadChild(qint32 list, const TarnXMLElement &child) override
    {
        for (qint32 before = 0; before < list; ++before) {
            if (!m_ended[before])
                return false;
        }
        try {
            switch (list) {
            case Keywords:
                m_manager.LoadUnauthorisedKeyword(child, m_criteria, m_rules);
                break;
            case Coding:
                m_manager.LoadCodingConvention(child, m_criteria, m_rules);
                break;
            case Naming:
                m_manager.LoadNamingConvention(child, m_criteria, m_rules);
                break;
            default:
                return false;
            }
        } catch (const std::exception &) {
            return false;
        }
        ++m_read[list];
        return true;
    }

    void ChildListEnded(qint32 list) override { m_ended[list] = true; }

    // How many rules of a section left the tree.
    qint32 Read(Section section) const { return m_read[section]; }

private:
    RulebaseManager &m_manager;
    RulebaseLoadCriteria &m_criteria;
    RuleLists &m_rules;
    std::array<bool, SectionCount> m_ended{};
    std::array<qint32, SectionCount> m_read{};
};

std::shared_ptr<Rulebase> RulebaseManager::LoadRulebase(const QString &filename)
{
    RulebaseLoadCriteria criteria;
    criteria.setRulebaseFile(filename);
    criteria.setLoadForEdit(true);
    return LoadRulebase(criteria);
}

std::shared_ptr<Rulebase> RulebaseManager::LoadRulebase(RulebaseLoadCriteria &criteria)
{
    const QString filename = criteria.RulebaseFile();
    if (filename.isEmpty())
        throw QuorinError(ErrorNumber::NoFilename,
                          QStringLiteral("RulebaseManager::LoadRulebase"),
                          noFilenameText());

    return guarded("LoadRulebase", module, nullptr, [&]() -> std::shared_ptr<Rulebase> {
        // Any frame that gives up on the way, a section's or a rule's, leaves something out.
        const quint64 errorsBefore = reportedErrorCount();
        auto rulebase = std::make_shared<Rulebase>();
        const bool all = criteria.LoadForEdit();
        RuleLists &rules = *rulebase->RuleLists();
        // Only an edit load takes every rule whatever the other sections say.
        StreamedRules streamed(*this, criteria, rules);
        TarnXMLDoc doc;
        if (!(all ? doc.LoadFromFile(filename, streamed) : doc.LoadFromFile(filename))) {
            showWarning(QStringLiteral(
                "Unable to load the rulebase because of an unexpected error during parsing."));
            return nullptr;
        }
        TarnXMLElement root = doc.RootElement();
        if (!CheckSchemaVersion(root)) {
            showWarning(QStringLiteral(
                "Unable to load the rulebase because it has an incorrect schema version."));
            return nullptr;
        }
        rulebase->setFilename(filename);

        LoadProperties(root.ElementByName(QStringLiteral("RulebaseProperties")), *rulebase);
        LoadTags(root.ElementByName(QStringLiteral("ControlTags")), *rulebase->ControlTags(), 1);
        LoadTags(root.ElementByName(QStringLiteral("DataTypeTags")), *rulebase->DataTypeTags(), 2);
        LoadTags(root.ElementByName(QStringLiteral("ScopeTags")), *rulebase->ScopeTags(), 3);
        LoadDefaultViolations(root.ElementByName(QStringLiteral("DefaultViolations")),
                              *rulebase->DefaultViolations());
        LoadCategoryList(root.ElementByName(QStringLiteral("CategoryList")),
                         criteria,
                         *rulebase->CategoryList());
        LoadSeverityList(root.ElementByName(QStringLiteral("SeverityList")),
                         *rulebase->SeverityList());

        // The frame reads these elements itself, so a missing one fails the whole load.
        const TarnXMLElement components = requireChild(root, "AuthorisedComponents");
        criteria.setNumAuthComps(components.ElementCount());
        if (criteria.AuthorisedComponents() || all)
            LoadAuthorisedComponents(components, *rulebase->AuthorisedComponents());

        const TarnXMLElement references = requireChild(root, "AuthorisedReferences");
        criteria.setNumAuthRefs(references.ElementCount());
        if (criteria.AuthorisedReferences() || all)
            LoadAuthorisedReferences(references, *rulebase->AuthorisedReferences());

        const TarnXMLElement keywords = requireChild(root, "UnauthorisedKeywords");
        criteria.setNumUnauthKeywords(streamed.Read(StreamedRules::Keywords)
                                      + keywords.ElementCount());
        if (criteria.UnauthorisedKeywords() || all)
            LoadRules("LoadUnauthorisedKeywords",
                      keywords,
                      criteria,
                      rules,
                      &RulebaseManager::LoadUnauthorisedKeyword);

        const TarnXMLElement rulesElement = requireChild(root, "Rules");
        rules.setLastID(readLong(rulesElement, "LastRuleID"));

        const TarnXMLElement coding = requireChild(rulesElement, "CodingConventions");
        criteria.setNumCodingConventions(streamed.Read(StreamedRules::Coding)
                                         + coding.ElementCount());
        if (criteria.CodingConventions() || all)
            LoadRules("LoadCodingConventions",
                      coding,
                      criteria,
                      rules,
                      &RulebaseManager::LoadCodingConvention);

        const TarnXMLElement naming = requireChild(rulesElement, "NamingConventions");
        criteria.setNumNamingConventions(streamed.Read(StreamedRules::Naming)
                                         + naming.ElementCount());
        if (criteria.NamingConventions() || all)
            LoadRules("LoadNamingConventions",
                      naming,
                      criteria,
                      rules,
                      &RulebaseManager::LoadNamingConvention);

        if (all)
            LoadReport(root.ElementByName(QStringLiteral("Report")), *rulebase);

        rulebase->setDirty(false);
        rulebase->setLoadedInPart(reportedErrorCount() != errorsBefore);
        return rulebase;
    });
}

bool RulebaseManager::Save(Rulebase &rulebase, const QString &filename)
{
    const QString target = filename.isEmpty() ? rulebase.Filename() : filename;
    if (target.isEmpty())
        throw QuorinError(
            ErrorNumber::NoFilename, QStringLiteral("RulebaseManager::Save"), noFilenameText());

    return guarded("Save", module, false, [&]() -> bool {
        // Written as it goes, section by section in file order; every section element stands
        // in every file, empty or not.
        TarnXMLWriter writer;
        {
            TarnXMLWriter::Element root = writer.RootElement(QLatin1String("Quorin_Rulebase"));
            root.setAttribute(QLatin1String("SchemaVersion"), currentSchemaVersion());
            auto section
                = [&root](const char *name) { return root.AddElement(QLatin1String(name)); };
            {
                TarnXMLWriter::Element element = section("RulebaseProperties");
                SaveProperties(element, rulebase);
            }
            {
                TarnXMLWriter::Element element = section("ControlTags");
                SaveTags(element, *rulebase.ControlTags(), "ControlTag", 1);
            }
            {
                TarnXMLWriter::Element element = section("DataTypeTags");
                SaveTags(element, *rulebase.DataTypeTags(), "DataTypeTag", 2);
            }
            {
                TarnXMLWriter::Element element = section("ScopeTags");
                SaveTags(element, *rulebase.ScopeTags(), "ScopeTag", 3);
            }
            {
                TarnXMLWriter::Element element = section("DefaultViolations");
                SaveDefaultViolations(element, *rulebase.DefaultViolations());
            }
            {
                TarnXMLWriter::Element element = section("CategoryList");
                SaveCategoryList(element, *rulebase.CategoryList());
            }
            {
                TarnXMLWriter::Element element = section("SeverityList");
                SaveSeverityList(element, *rulebase.SeverityList());
            }
            {
                TarnXMLWriter::Element element = section("AuthorisedComponents");
                SaveAuthorisedComponents(element, *rulebase.AuthorisedComponents());
            }
            {
                TarnXMLWriter::Element element = section("AuthorisedReferences");
                SaveAuthorisedReferences(element, *rulebase.AuthorisedReferences());
            }
            {
                TarnXMLWriter::Element element = section("UnauthorisedKeywords");
                SaveUnauthorisedKeywords(element, *rulebase.RuleLists());
            }
            {
                TarnXMLWriter::Element rules = section("Rules");
                writeNumber(rules, "LastRuleID", rulebase.RuleLists()->LastID());
                {
                    TarnXMLWriter::Element element
                        = rules.AddElement(QLatin1String("CodingConventions"));
                    SaveCodingConventions(element, *rulebase.RuleLists());
                }
                {
                    TarnXMLWriter::Element element
                        = rules.AddElement(QLatin1String("NamingConventions"));
                    SaveNamingConventions(element, *rulebase.RuleLists());
                }
            }
            {
                TarnXMLWriter::Element element = section("Report");
                SaveReport(element, *rulebase.Report()->Sections());
            }
        }
        if (writer.SaveToFile(target)) {
            rulebase.setDirty(false);
            return true;
        }
        showWarning(QStringLiteral("Error during save: ")
                    + TarnXMLDoc::SaveErrorText(writer.LastError()));
        return false;
    });
}

// ---------------------------------------------------------------- properties

void RulebaseManager::LoadProperties(TarnXMLElement element, Rulebase &rulebase)
{
    guardedVoid("LoadProperties", module, [&] {
        rulebase.setTitle(readText(element, "Name"));
        rulebase.setVersion(readText(element, "Version"));
        rulebase.setAutoIncrementVersion(readBool(element, "AutoIncrementVersion"));
        rulebase.setDescription(readText(element, "Description"));
        rulebase.setUnknownControlViolation(readBool(element, "UnknownControlViolation"));
        rulebase.setUseCTagsAsDTTags(readBool(element, "UseCTagsAsDTTags"));
        readTolerances(readText(element, "ToleranceCount"),
                       [&](qint32 i, qint32 v) { rulebase.setToleranceCount(i, v); });
        readTolerances(readText(element, "ToleranceImpact"),
                       [&](qint32 i, qint32 v) { rulebase.setToleranceImpact(i, v); });
        rulebase.setTolerancePercentageComments(readLong(element, "TolerancePercentageComments"));
        rulebase.setToleranceCyclomaticComplexity(
            readLong(element, "ToleranceCyclomaticComplexity"));
        rulebase.setArrayTag(readText(element, "ArrayTag"));
    });
}

void RulebaseManager::SaveProperties(TarnXMLWriter::Element &element, Rulebase &rulebase)
{
    guardedVoid("SaveProperties", module, [&] {
        writeText(element, "Name", rulebase.Title());
        if (rulebase.AutoIncrementVersion()) {
            // The new version stands from here on, even if the save fails later.
            VersionNumber version;
            version.setVersion(rulebase.Version());
            version.Increment();
            rulebase.setVersion(version.Version());
        }
        writeText(element, "Version", rulebase.Version());
        writeBool(element, "AutoIncrementVersion", rulebase.AutoIncrementVersion());
        writeText(element, "Description", rulebase.Description());
        writeBool(element, "UnknownControlViolation", rulebase.UnknownControlViolation());
        writeBool(element, "UseCTagsAsDTTags", rulebase.UseCTagsAsDTTags());
        writeText(element, "ToleranceCount", joinTolerances([&](qint32 i) {
                      return rulebase.ToleranceCount(i);
                  }));
        writeText(element, "ToleranceImpact", joinTolerances([&](qint32 i) {
                      return rulebase.ToleranceImpact(i);
                  }));
        writeNumber(element, "TolerancePercentageComments", rulebase.TolerancePercentageComments());
        writeNumber(
            element, "ToleranceCyclomaticComplexity", rulebase.ToleranceCyclomaticComplexity());
        writeText(element, "ArrayTag", rulebase.ArrayTag());
    });
}

// ---------------------------------------------------------------- schema

bool RulebaseManager::CheckSchemaVersion(TarnXMLElement root)
{
    return guarded("CheckSchemaVersion", module, false, [&]() -> bool {
        QString version = readText(root, "SchemaVersion");
        if (!Text::same(version, currentSchemaVersion()))
            version = UpdateSchema(root, version);
        return Text::same(version, currentSchemaVersion());
    });
}

QString RulebaseManager::UpdateSchema(TarnXMLElement root, const QString &version)
{
    return guarded("UpdateSchema", module, QString(), [&]() -> QString {
        // The attribute in the tree stays as it was; a save writes the current version anyway.
        if (Text::same(version, QStringLiteral("6.0"))) {
            Apply_6_1_SchemaUpdates(root);
            Apply_6_2_SchemaUpdates(root);
            return currentSchemaVersion();
        }
        if (Text::same(version, QStringLiteral("6.1"))) {
            Apply_6_2_SchemaUpdates(root);
            return currentSchemaVersion();
        }
        return QString();
    });
}

void RulebaseManager::Apply_6_1_SchemaUpdates(TarnXMLElement root)
{
    guardedVoid("Apply_6_1_SchemaUpdates", module, [&] {
        TarnXMLElement properties = requireChild(root, "RulebaseProperties");
        properties.AddAttribute(QStringLiteral("ToleranceCount"),
                                QStringLiteral("-1|-1|-1|-1|-1|-1"));
        properties.AddAttribute(QStringLiteral("ToleranceImpact"),
                                QStringLiteral("-1|-1|-1|-1|-1|-1"));
        properties.AddAttribute(QStringLiteral("TolerancePercentageComments"),
                                QStringLiteral("-1"));
        properties.AddAttribute(QStringLiteral("ToleranceCyclomaticComplexity"),
                                QStringLiteral("-1"));
        root.AddElement(QStringLiteral("Report"));
    });
}

void RulebaseManager::Apply_6_2_SchemaUpdates(TarnXMLElement root)
{
    guardedVoid("Apply_6_2_SchemaUpdates", module, [&] {
        forEachChild(requireChild(root, "ControlTags"), [](TarnXMLElement tag, qint32) {
            tag.AddAttribute(QStringLiteral("TagDescription"), QString());
            tag.AddAttribute(QStringLiteral("TagExample"), QString());
        });
        forEachChild(requireChild(root, "DataTypeTags"), [](TarnXMLElement tag, qint32) {
            tag.AddAttribute(QStringLiteral("TagExample"), QString());
        });
        forEachChild(requireChild(root, "ScopeTags"), [](TarnXMLElement tag, qint32) {
            tag.AddAttribute(QStringLiteral("TagExample"), QString());
        });
        forEachChild(requireChild(requireChild(root, "Rules"), "NamingConventions"),
                     [](TarnXMLElement rule, qint32) {
                         rule.AddAttribute(QStringLiteral("ExclusionList"), QString());
                         rule.AddAttribute(QStringLiteral("CaseSensitive"), QStringLiteral("True"));
                     });
        requireChild(root, "RulebaseProperties")
            .AddAttribute(QStringLiteral("ArrayTag"), QString());
    });
}
