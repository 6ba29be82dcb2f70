#include "tools/RulebaseChecker.h"

#include "basic/BasicSyntaxChecker.h"
#include "basic/ConditionRules.h"
#include "platform/TextUtils.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"
#include "tools/RulebaseFileScan.h"
#include "tools/ToolRulebaseLoader.h"
#include "vocabulary/ObjectCatalogue.h"
#include "vocabulary/ParserEventCatalogue.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>

namespace {

using Severity = CheckFinding::Severity;

// The three lists of rules, by their path in the file.
const char *const rulePaths[]
    = {"UnauthorisedKeywords", "Rules/CodingConventions", "Rules/NamingConventions"};

// The elements the load reads without a frame of their own: a missing one fails the load.
const char *const requiredPaths[] = {"AuthorisedComponents",
                                     "AuthorisedReferences",
                                     "UnauthorisedKeywords",
                                     "Rules",
                                     "Rules/CodingConventions",
                                     "Rules/NamingConventions"};

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

bool isKnownSchema(const QString &version)
{
    return Text::same(version, QStringLiteral("6.0")) || Text::same(version, QStringLiteral("6.1"))
           || Text::same(version, RulebaseManager::currentSchemaVersion());
}

} // namespace

RulebaseChecker::RulebaseChecker(const RulebaseFileScan &scan)
    : m_scan(scan)
{
    // The first element of an id is the one that loads.
    for (const char *path : rulePaths) {
        for (const RulebaseFileScan::Entry &entry : m_scan.entries(QLatin1String(path))) {
            if (entry.hasId && !m_ruleLines.contains(Text::valLong(entry.id)))
                m_ruleLines.insert(Text::valLong(entry.id), entry.line);
        }
    }
}

std::vector<CheckFinding> RulebaseChecker::check(const RulebaseFileScan &scan,
                                                 const LoadedRulebase &loaded)
{
    RulebaseChecker checker(scan);
    checker.checkFile(loaded);
    checker.checkDuplicates();
    if (loaded.rulebase)
        checker.checkRulebase(*loaded.rulebase);
    std::stable_sort(checker.m_findings.begin(),
                     checker.m_findings.end(),
                     [](const CheckFinding &a, const CheckFinding &b) {
                         if (a.line != b.line)
                             return a.line < b.line;
                         if (a.severity != b.severity)
                             return a.isError();
                         return a.message < b.message;
                     });
    return std::move(checker.m_findings);
}

QString RulebaseChecker::patternProblem(const QString &pattern)
{
    const QRegularExpression expression(pattern);
    if (expression.isValid())
        return QString();
    return expression.errorString() + QStringLiteral(" at offset ")
           + QString::number(expression.patternErrorOffset());
}

// ---------------------------------------------------------------- the file

void RulebaseChecker::checkFile(const LoadedRulebase &loaded)
{
    if (!loaded.rulebase) {
        if (!m_scan.wellFormed()) {
            add(Severity::Error,
                QStringLiteral("xml"),
                QStringLiteral("the file is not well-formed XML: ") + m_scan.errorText(),
                m_scan.errorLine(),
                0,
                m_scan.errorColumn());
        } else if (!loaded.parseError.isEmpty()) {
            // Well-formed, but refused by the loader's parser: its entities, say.
            add(Severity::Error,
                QStringLiteral("xml"),
                QStringLiteral("the file was refused: ") + loaded.parseError,
                0);
        } else if (!m_scan.hasSchemaVersion()) {
            add(Severity::Error,
                QStringLiteral("schema"),
                QStringLiteral("the root element %1 has no SchemaVersion attribute")
                    .arg(m_scan.rootName()),
                m_scan.lineOf(QString()));
        } else if (!isKnownSchema(m_scan.schemaVersion())) {
            add(Severity::Error,
                QStringLiteral("schema"),
                QStringLiteral("schema version %1 is not supported: only 6.0, 6.1 and 6.2 load")
                    .arg(quoted(m_scan.schemaVersion())),
                m_scan.lineOf(QString()));
        }
        for (const QString &message : loaded.messages)
            add(Severity::Error, QStringLiteral("load"), message, 0);
    } else {
        if (!Text::same(m_scan.schemaVersion(), RulebaseManager::currentSchemaVersion())
            && m_scan.hasSchemaVersion()) {
            add(Severity::Warning,
                QStringLiteral("old-schema"),
                QStringLiteral("schema version %1 is older than %2; 'qrbtool upgrade' brings the "
                               "file up to date")
                    .arg(m_scan.schemaVersion(), RulebaseManager::currentSchemaVersion()),
                m_scan.lineOf(QString()));
        }
        for (const QString &message : loaded.messages) {
            add(Severity::Error,
                QStringLiteral("section"),
                QStringLiteral("part of the rulebase could not be read: ") + message,
                0);
        }
    }
    if (m_scan.wellFormed()) {
        for (const char *path : requiredPaths) {
            if (!m_scan.contains(QLatin1String(path))) {
                add(Severity::Error,
                    QStringLiteral("missing-element"),
                    QStringLiteral("the required element %1 is missing").arg(QLatin1String(path)),
                    0);
            }
        }
    }
}

void RulebaseChecker::checkDuplicates()
{
    QHash<qint32, qint64> ruleLines;
    for (const char *path : rulePaths) {
        for (const RulebaseFileScan::Entry &entry : m_scan.entries(QLatin1String(path))) {
            if (!entry.hasId) {
                add(Severity::Error,
                    QStringLiteral("missing-rule-id"),
                    QStringLiteral("the %1 element has no RuleID").arg(entry.name),
                    entry.line);
                continue;
            }
            const qint32 id = Text::valLong(entry.id);
            const auto first = ruleLines.constFind(id);
            if (first != ruleLines.constEnd()) {
                add(Severity::Error,
                    QStringLiteral("duplicate-rule-id"),
                    QStringLiteral("rule id %1 is used again (first at line %2); only the first "
                                   "rule of that id loads")
                        .arg(id)
                        .arg(*first),
                    entry.line,
                    id);
            } else {
                ruleLines.insert(id, entry.line);
            }
        }
    }

    QHash<qint32, qint64> categoryLines;
    for (const RulebaseFileScan::Entry &entry : m_scan.entries(QStringLiteral("CategoryList"))) {
        if (!entry.hasId)
            continue;
        const qint32 id = Text::valLong(entry.id);
        const auto first = categoryLines.constFind(id);
        if (first != categoryLines.constEnd()) {
            add(Severity::Error,
                QStringLiteral("duplicate-category-id"),
                QStringLiteral("category id %1 is used again (first at line %2); the category "
                               "list stops loading there")
                    .arg(id)
                    .arg(*first),
                entry.line);
        } else {
            categoryLines.insert(id, entry.line);
        }
    }

    QHash<qint32, qint64> severityLines;
    for (const RulebaseFileScan::Entry &entry : m_scan.entries(QStringLiteral("SeverityList"))) {
        if (!entry.hasId)
            continue;
        const qint32 level = Text::valLong(entry.id);
        const auto first = severityLines.constFind(level);
        if (first != severityLines.constEnd()) {
            add(Severity::Warning,
                QStringLiteral("duplicate-severity"),
                QStringLiteral("severity level %1 is defined again (first at line %2); the later "
                               "one overwrites the earlier")
                    .arg(level)
                    .arg(*first),
                entry.line);
        } else {
            severityLines.insert(level, entry.line);
        }
    }
}

// ---------------------------------------------------------------- the loaded rulebase

void RulebaseChecker::checkRulebase(const Rulebase &rulebase)
{
    const auto rules = rulebase.RuleLists()->AllConventions();
    const qint32 lastID = rulebase.RuleLists()->LastID();
    for (qint32 i = 1; i <= rules->Count(); ++i) {
        const auto rule = rules->Item(i);
        if (!rule)
            continue;
        if (rule->RuleID() > lastID) {
            addRuleFinding(Severity::Warning,
                           QStringLiteral("rule-id-range"),
                           *rule,
                           QStringLiteral(" has an id above LastRuleID %1; the next new rule "
                                          "will collide with it")
                               .arg(lastID));
        }
        checkRule(rulebase, *rule);
    }

    const auto categories = rulebase.CategoryList();
    const QList<RulebaseFileScan::Entry> categoryEntries
        = m_scan.entries(QStringLiteral("CategoryList"));
    for (const RulebaseFileScan::Entry &entry : categoryEntries) {
        if (entry.hasId && Text::valLong(entry.id) > categories->LastID()) {
            add(Severity::Warning,
                QStringLiteral("category-id-range"),
                QStringLiteral("category id %1 is above the list's LastID %2; the next new "
                               "category will collide with it")
                    .arg(Text::valLong(entry.id))
                    .arg(categories->LastID()),
                entry.line);
        }
    }
    checkDefaultViolations(rulebase);
}

void RulebaseChecker::checkRule(const Rulebase &rulebase, const IRule &rule)
{
    if (const auto definition = rule.ViolationDefinition())
        checkDefinition(rulebase, *definition, &rule, describe(rule), ruleLine(rule.RuleID()));

    if (const auto *coding = dynamic_cast<const CodingConvention *>(&rule)) {
        if (!coding->Condition().isEmpty())
            checkScript(rule, coding->Condition());
        checkParserEvents(rule, coding->EventCount(), coding->ParserEventList());
        if (coding->PendingViolation()) {
            const qint32 end = coding->EndEventID();
            if (end == -1) {
                addRuleFinding(Severity::Warning,
                               QStringLiteral("no-end-event"),
                               rule,
                               QStringLiteral(" is a pending violation with no end event"));
            } else if (!ParserEventCatalogue::findEvent(end)) {
                addRuleFinding(
                    Severity::Error,
                    QStringLiteral("unknown-parser-event"),
                    rule,
                    QStringLiteral(" ends on parser event %1, which does not exist").arg(end));
            }
        }
    } else if (const auto *keyword = dynamic_cast<const UnauthorisedKeyword *>(&rule)) {
        if (keyword->Condition().isEmpty()) {
            addRuleFinding(Severity::Warning,
                           QStringLiteral("empty-pattern"),
                           rule,
                           QStringLiteral(" has no pattern and matches nothing"));
        } else {
            checkPattern(rule, QStringLiteral("pattern"), keyword->Condition());
        }
        checkParserEvents(rule, keyword->EventCount(), keyword->ParserEventList());
    } else if (const auto *naming = dynamic_cast<const NamingConvention *>(&rule)) {
        if (!naming->Condition().isEmpty())
            checkScript(rule, naming->Condition());
        if (!ObjectCatalogue::findObject(naming->ObjectType())) {
            addRuleFinding(Severity::Error,
                           QStringLiteral("unknown-object"),
                           rule,
                           QStringLiteral(" applies to object type %1, which does not exist")
                               .arg(naming->ObjectType()));
        }
        if (naming->BodyActive() && !naming->BodyPattern().isEmpty())
            checkPattern(rule, QStringLiteral("body pattern"), naming->BodyPattern());
        if (naming->BodyActive() && naming->MaxBodyLength() > 0
            && naming->MinBodyLength() > naming->MaxBodyLength()) {
            addRuleFinding(Severity::Warning,
                           QStringLiteral("body-length"),
                           rule,
                           QStringLiteral(" has a minimum body length %1 above its maximum %2")
                               .arg(naming->MinBodyLength())
                               .arg(naming->MaxBodyLength()));
        }
        const struct
        {
            bool active;
            std::shared_ptr<ObjectArrayList<PrefixSuffixItem>> items;
            const char *what;
        } parts[] = {{naming->PrefixActive(), naming->PrefixItems(), "prefix"},
                     {naming->SuffixActive(), naming->SuffixItems(), "suffix"}};
        for (const auto &part : parts) {
            if (!part.active || !part.items)
                continue;
            for (qint32 i = 1; i <= part.items->Count(); ++i) {
                const auto item = part.items->Item(i);
                if (item && item->PSType() == 1 && !item->Value().isEmpty()) {
                    checkPattern(rule,
                                 QStringLiteral("%1 item %2").arg(QLatin1String(part.what)).arg(i),
                                 item->Value());
                }
            }
        }
    }
}

void RulebaseChecker::checkScript(const IRule &rule, const QString &script)
{
    const ConditionRules::ConditionCheck rules
        = ConditionRules::CheckCondition(script, rule.RuleType());
    if (!rules.passed && !rules.syntaxError) {
        addRuleFinding(Severity::Error,
                       QStringLiteral("condition"),
                       rule,
                       QStringLiteral(": ") + rules.message);
        // A condition with procedures of its own is refused as a whole; its syntax is moot.
        if (ConditionRules::ContainsMethods(script))
            return;
    }
    BasicSyntaxChecker checker;
    checker.check(script);
    for (const BasicDiagnostic &error : checker.errors()) {
        addRuleFinding(Severity::Error,
                       QStringLiteral("condition-syntax"),
                       rule,
                       QStringLiteral(": condition ") + error.located());
    }
    for (const BasicDiagnostic &warning : checker.warnings()) {
        addRuleFinding(Severity::Warning,
                       QStringLiteral("vocabulary"),
                       rule,
                       QStringLiteral(": condition ") + warning.located());
    }
}

void RulebaseChecker::checkPattern(const IRule &rule, const QString &what, const QString &pattern)
{
    const QString problem = patternProblem(pattern);
    if (problem.isEmpty())
        return;
    addRuleFinding(
        Severity::Error,
        QStringLiteral("bad-pattern"),
        rule,
        QStringLiteral(": the %1 %2 does not compile: %3").arg(what, quoted(pattern), problem));
}

void RulebaseChecker::checkParserEvents(const IRule &rule,
                                        qint32 eventCount,
                                        const QString &eventList)
{
    if (eventCount == 0) {
        addRuleFinding(Severity::Warning,
                       QStringLiteral("no-parser-event"),
                       rule,
                       QStringLiteral(" is assigned to no parser event and never runs"));
        return;
    }
    const QStringList ids = eventList.split(QLatin1Char('|'), Qt::SkipEmptyParts);
    for (const QString &id : ids) {
        if (!ParserEventCatalogue::findEvent(Text::valLong(id))) {
            addRuleFinding(
                Severity::Error,
                QStringLiteral("unknown-parser-event"),
                rule,
                QStringLiteral(" is assigned to parser event %1, which does not exist").arg(id));
        }
    }
}

void RulebaseChecker::checkDefinition(const Rulebase &rulebase,
                                      const ViolationDefinition &definition,
                                      const IRule *rule,
                                      const QString &subject,
                                      qint64 line)
{
    const qint32 ruleID = rule ? rule->RuleID() : 0;
    const QString severityKey = QString::number(definition.Severity()) + QStringLiteral("Key");
    if (!rulebase.SeverityList()->Contains(severityKey)) {
        add(Severity::Error,
            QStringLiteral("unknown-severity"),
            QStringLiteral("%1 has severity %2, which the severity list does not have")
                .arg(subject)
                .arg(definition.Severity()),
            line,
            ruleID);
    }
    const qint32 category = definition.CategoryID();
    if (category != -1 && !rulebase.CategoryList()->ContainsID(category)) {
        add(Severity::Error,
            QStringLiteral("unknown-category"),
            QStringLiteral("%1 is in category %2, which the category list does not have")
                .arg(subject)
                .arg(category),
            line,
            ruleID);
    }
    if (definition.Impact() < 0) {
        add(Severity::Error,
            QStringLiteral("impact-range"),
            QStringLiteral("%1 has a negative impact %2").arg(subject).arg(definition.Impact()),
            line,
            ruleID);
    }
}

void RulebaseChecker::checkDefaultViolations(const Rulebase &rulebase)
{
    const auto violations = rulebase.DefaultViolations();
    const QList<RulebaseFileScan::Entry> entries
        = m_scan.entries(QStringLiteral("DefaultViolations"));
    for (qint32 i = 1; i <= violations->Count(); ++i) {
        const auto definition = violations->Item(i);
        if (!definition)
            continue;
        const qint64 line = i <= entries.size() ? entries.at(i - 1).line : 0;
        checkDefinition(rulebase,
                        *definition,
                        nullptr,
                        QStringLiteral("default violation %1 (%2)").arg(i).arg(definition->Title()),
                        line);
    }
}

// ---------------------------------------------------------------- helpers

void RulebaseChecker::add(Severity severity,
                          const QString &code,
                          const QString &message,
                          qint64 line,
                          qint32 ruleID,
                          qint64 column)
{
    CheckFinding finding;
    finding.severity = severity;
    finding.code = code;
    finding.message = message;
    finding.line = line;
    finding.column = column;
    finding.ruleID = ruleID;
    m_findings.push_back(finding);
}

void RulebaseChecker::addRuleFinding(Severity severity,
                                     const QString &code,
                                     const IRule &rule,
                                     const QString &message)
{
    add(severity, code, describe(rule) + message, ruleLine(rule.RuleID()), rule.RuleID());
}

qint64 RulebaseChecker::ruleLine(qint32 ruleID) const
{
    return m_ruleLines.value(ruleID, 0);
}

QString RulebaseChecker::describe(const IRule &rule)
{
    return QStringLiteral("%1 %2 %3")
        .arg(RuleTypes::displayName(rule.RuleType()))
        .arg(rule.RuleID())
        .arg(quoted(rule.Title()));
}
