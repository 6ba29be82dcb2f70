#include "ToolTestSupport.h"

#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"

#include "support/PreviewRules.h"
#include "support/TestEnvironment.h"

#include <QDir>
#include <QJsonArray>
#include <QUrl>

#include <gtest/gtest.h>

namespace {

// Private variables begin with "m_" (5000), GoTo is forbidden in procedures (5001), and a
// convention on constants needs its condition (5002).
QString writeRulebase(const QString &folder)
{
    Rulebase rulebase;
    addPreviewRules(rulebase, QStringLiteral("m_"), QStringLiteral("Constants"), 5);
    const QString path = folder + QStringLiteral("/Team.qrb");
    EXPECT_TRUE(RulebaseManager().Save(rulebase, path));
    return path;
}

} // namespace

// The preview as a build step: findings one a line, as JSON, or as a SARIF log whose results
// point at the lines by URIs relative to the current folder; exit 1 for violations and
// unread files, 0 when only what needs a condition is left, 2 for bad arguments.
TEST(PreviewCommand, ReportsFindingsAsTextJsonAndSarifWithTheBuildsExitCodes)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeRulebase(dir);
    const QString folder = dir + QStringLiteral("/My Projects");
    const QString module = writeFile(folder + QStringLiteral("/modA.bas"),
                                      "Attribute VB_Name = \"modA\"\r\n"
                                      "Option Explicit\r\n"
                                      "Private count As Long\r\n"
                                      "Private Const LIMIT = 3\r\n"
                                      "Public Sub Run()\n"
                                      "    GoTo Done ' a comment's GoTo is no code\n"
                                      "Done:\n"
                                      "End Sub\n");
    const QString project = writeFile(folder + QStringLiteral("/A.vbp"),
                                       "Type=Exe\r\nModule=modA; modA.bas\r\n"
                                       "Module=modGone; modGone.bas\r\nName=\"A\"\r\n");

    const ToolRun text = runQrbTool({QStringLiteral("preview"), rulebase, project});
    EXPECT_EQ(text.exitCode, 1) << text.err.toStdString();
    const QString shown = QDir::current().relativeFilePath(module);
    EXPECT_TRUE(
        text.out.contains(shown
                          + QStringLiteral(":3: 5000 \"Private variables\": Variable (Private) "
                                           "'count': expected prefix 'm_'\n")))
        << text.out.toStdString();
    EXPECT_TRUE(text.out.contains(shown + QStringLiteral(":6: 5001 \"GoTo\": Source 'GoTo': ")));
    EXPECT_TRUE(text.out.contains(QStringLiteral("modGone.bas:0: UnreadFile")));
    EXPECT_TRUE(text.err.contains(
        QStringLiteral("2 violations, 1 not previewed, 1 file not read, in 1 project")))
        << text.err.toStdString();

    const ToolRun sarif = runQrbTool(
        {QStringLiteral("preview"), QStringLiteral("--format=sarif"), rulebase, project});
    EXPECT_EQ(sarif.exitCode, 1);
    const QJsonObject log = parseJsonObject(sarif.out);
    EXPECT_EQ(log.value(QStringLiteral("version")).toString(), QStringLiteral("2.1.0"));
    const QJsonObject run = log.value(QStringLiteral("runs")).toArray().at(0).toObject();
    const QJsonArray rules
        = run[QStringLiteral("tool")][QStringLiteral("driver")][QStringLiteral("rules")].toArray();
    const QUrl base(run[QStringLiteral("originalUriBaseIds")][QStringLiteral("%SRCROOT%")]
                       [QStringLiteral("uri")]
                           .toString());
    QStringList seen;
    for (const QJsonValue &value : run.value(QStringLiteral("results")).toArray()) {
        const QJsonObject result = value.toObject();
        const QString id = result.value(QStringLiteral("ruleId")).toString();
        EXPECT_EQ(rules.at(result.value(QStringLiteral("ruleIndex")).toInt())[QStringLiteral("id")]
                      .toString(),
                  id);
        const QJsonObject location
            = result[QStringLiteral("locations")][0][QStringLiteral("physicalLocation")].toObject();
        const QString uri
            = location[QStringLiteral("artifactLocation")][QStringLiteral("uri")].toString();
        // Relative and encoded, and pointing at the file from the base.
        EXPECT_FALSE(uri.startsWith(QLatin1Char('/'))) << uri.toStdString();
        EXPECT_TRUE(uri.contains(QLatin1String("My%20Projects/"))) << uri.toStdString();
        const QString target = base.resolved(QUrl(uri)).toLocalFile();
        seen << QStringLiteral("%1 %2 %3 %4")
                    .arg(id,
                         result.value(QStringLiteral("kind")).toString(),
                         QFileInfo(target).fileName())
                    .arg(location[QStringLiteral("region")][QStringLiteral("startLine")].toInt());
        EXPECT_TRUE(QFileInfo(target).isFile()) << target.toStdString();
    }
    EXPECT_EQ(seen,
              QStringList({"5002 open A.vbp 0", "5000 fail modA.bas 3", "5001 fail modA.bas 6"}));
    const QJsonArray notes
        = run[QStringLiteral("invocations")][0][QStringLiteral("toolExecutionNotifications")]
              .toArray();
    ASSERT_EQ(notes.size(), 1);
    EXPECT_TRUE(notes
                    .at(0)[QStringLiteral("locations")][0][QStringLiteral("physicalLocation")]
                          [QStringLiteral("artifactLocation")][QStringLiteral("uri")]
                    .toString()
                    .endsWith(QLatin1String("/modGone.bas")));

    const ToolRun json = runQrbTool({QStringLiteral("preview"),
                                     QStringLiteral("--format"),
                                     QStringLiteral("json"),
                                     QStringLiteral("--rule"),
                                     QStringLiteral("5001,5002"),
                                     rulebase,
                                     project});
    const QJsonObject report = parseJsonObject(json.out);
    EXPECT_EQ(report.value(QStringLiteral("violations")).toInt(), 1);
    EXPECT_EQ(report.value(QStringLiteral("notPreviewed")).toInt(), 1);
    EXPECT_EQ(report.value(QStringLiteral("exitCode")).toInt(), json.exitCode);
    EXPECT_EQ(report[QStringLiteral("projects")][0][QStringLiteral("codeLines")].toInt(), 7);

    // What needs a condition alone fails nothing; a project that is all there reads cleanly.
    const QString clean
        = writeFile(folder + QStringLiteral("/B.vbp"), "Type=Exe\r\nModule=modA; modA.bas\r\n");
    EXPECT_EQ(
        runQrbTool({QStringLiteral("preview"), QStringLiteral("--rule=5002"), rulebase, clean})
            .exitCode,
        0);

    const struct
    {
        QStringList arguments;
        const char *error;
    } bad[] = {
        {{rulebase}, "no project or group file given"},
        {{QStringLiteral("--rule"), QStringLiteral("1234"), rulebase, project},
         "no rule or check 1234"},
        {{QStringLiteral("--format=xml"), rulebase, project}, "unknown format 'xml'"},
        {{dir + QStringLiteral("/None.qrb"), project}, "None.qrb: No such file"},
        {{project, project}, "could not be read completely"},
    };
    for (const auto &row : bad) {
        const ToolRun run = runQrbTool(QStringList{QStringLiteral("preview")} + row.arguments);
        EXPECT_EQ(run.exitCode, 2) << row.error;
        EXPECT_TRUE(run.err.contains(QLatin1String(row.error))) << run.err.toStdString();
        EXPECT_TRUE(run.out.isEmpty());
    }
}
