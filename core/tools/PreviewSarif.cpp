#include "tools/PreviewSarif.h"

#include "collections/ObjectKeyedArrayList.h"
#include "preview/PreviewResult.h"
#include "preview/PreviewRun.h"
#include "rulebase/IRule.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/ViolationDefinition.h"
#include "tools/QrbTool.h"

#include <QDir>
#include <QJsonArray>
#include <QUrl>

namespace {

// Critical and High fail a build, Medium and Low warn, Information notes.
QString levelOf(qint32 severity)
{
    if (severity == 1 || severity == 2)
        return QStringLiteral("error");
    if (severity == 5)
        return QStringLiteral("note");
    return QStringLiteral("warning");
}

QJsonObject text(const QString &value)
{
    return QJsonObject{{QStringLiteral("text"), value}};
}

QJsonObject location(const PreviewFinding &finding, const QString &baseFolder)
{
    QJsonObject artifact{
        {QStringLiteral("uri"), PreviewSarif::relativeUri(finding.file, baseFolder)},
        {QStringLiteral("uriBaseId"), QStringLiteral("%SRCROOT%")}};
    QJsonObject physical{{QStringLiteral("artifactLocation"), artifact}};
    if (finding.line > 0)
        physical.insert(QStringLiteral("region"),
                        QJsonObject{{QStringLiteral("startLine"), finding.line}});
    return QJsonObject{{QStringLiteral("physicalLocation"), physical}};
}

QJsonObject ruleDescriptor(const PreviewFinding &finding, const Rulebase &rulebase)
{
    QJsonObject rule{{QStringLiteral("id"), finding.ruleId},
                     {QStringLiteral("name"), finding.ruleTitle},
                     {QStringLiteral("shortDescription"), text(finding.ruleTitle)}};
    QJsonObject properties{{QStringLiteral("ruleKey"), finding.ruleKey}};
    if (finding.ruleType != 0) {
        const auto all = rulebase.RuleLists()->AllConventions();
        const qint32 index = all->FindIndexByKey(finding.ruleKey);
        if (index > 0) {
            const auto named = all->Item(index);
            if (!named->Description().isEmpty())
                rule.insert(QStringLiteral("fullDescription"), text(named->Description()));
            const auto definition = named->ViolationDefinition();
            if (definition && !definition->Advice().isEmpty())
                rule.insert(QStringLiteral("help"), text(definition->Advice()));
            properties.insert(QStringLiteral("ruleType"), RuleTypes::displayName(finding.ruleType));
        }
    }
    rule.insert(QStringLiteral("defaultConfiguration"),
                QJsonObject{{QStringLiteral("level"), levelOf(finding.severity)}});
    rule.insert(QStringLiteral("properties"), properties);
    return rule;
}

} // namespace

QString PreviewSarif::relativeUri(const QString &path, const QString &baseFolder)
{
    const QString relative = QDir(baseFolder).relativeFilePath(path);
    QStringList segments;
    for (const QString &segment : relative.split(QLatin1Char('/')))
        segments << QString::fromLatin1(QUrl::toPercentEncoding(segment));
    return segments.join(QLatin1Char('/'));
}

QJsonObject
PreviewSarif::log(const PreviewResult &result, const Rulebase &rulebase, const QString &baseFolder)
{
    QJsonArray rules;
    QHash<QString, qsizetype> ruleIndex;
    QJsonArray results;
    QJsonArray notifications;
    for (const PreviewFinding &finding : result.findings) {
        if (finding.kind == PreviewFinding::Kind::Unread) {
            notifications.append(QJsonObject{
                {QStringLiteral("level"), QStringLiteral("error")},
                {QStringLiteral("message"), text(finding.message)},
                {QStringLiteral("locations"), QJsonArray{location(finding, baseFolder)}}});
            continue;
        }
        if (!ruleIndex.contains(finding.ruleId)) {
            ruleIndex.insert(finding.ruleId, rules.size());
            rules.append(ruleDescriptor(finding, rulebase));
        }
        const bool open = finding.kind == PreviewFinding::Kind::NotPreviewed;
        QJsonObject entry{
            {QStringLiteral("ruleId"), finding.ruleId},
            {QStringLiteral("ruleIndex"), ruleIndex.value(finding.ruleId)},
            {QStringLiteral("kind"), open ? QStringLiteral("open") : QStringLiteral("fail")},
            {QStringLiteral("level"), open ? QStringLiteral("none") : levelOf(finding.severity)},
            {QStringLiteral("message"), text(finding.message)},
            {QStringLiteral("locations"), QJsonArray{location(finding, baseFolder)}}};
        QJsonObject properties{{QStringLiteral("objectKind"), finding.objectKind},
                               {QStringLiteral("name"), finding.name}};
        if (!finding.advice.isEmpty())
            properties.insert(QStringLiteral("advice"), finding.advice);
        if (finding.impact != 0)
            properties.insert(QStringLiteral("impact"), finding.impact);
        entry.insert(QStringLiteral("properties"), properties);
        results.append(entry);
    }

    QJsonObject driver{
        {QStringLiteral("name"), QStringLiteral("qrbtool")},
        {QStringLiteral("semanticVersion"), QrbTool::versionText().section(QLatin1Char(' '), 1)},
        {QStringLiteral("rules"), rules}};
    QString base = QUrl::fromLocalFile(baseFolder).toString(QUrl::FullyEncoded);
    if (!base.endsWith(QLatin1Char('/')))
        base += QLatin1Char('/');
    QJsonObject invocation{{QStringLiteral("executionSuccessful"), !result.cancelled}};
    if (!notifications.isEmpty())
        invocation.insert(QStringLiteral("toolExecutionNotifications"), notifications);
    QJsonObject run{
        {QStringLiteral("tool"), QJsonObject{{QStringLiteral("driver"), driver}}},
        {QStringLiteral("originalUriBaseIds"),
         QJsonObject{{QStringLiteral("%SRCROOT%"), QJsonObject{{QStringLiteral("uri"), base}}}}},
        {QStringLiteral("invocations"), QJsonArray{invocation}},
        {QStringLiteral("results"), results}};
    return QJsonObject{{QStringLiteral("$schema"),
                        QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
                       {QStringLiteral("version"), QStringLiteral("2.1.0")},
                       {QStringLiteral("runs"), QJsonArray{run}}};
}
