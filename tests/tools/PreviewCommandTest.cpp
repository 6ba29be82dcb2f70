#include "ToolTestSupport.h"

#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"

#include "support/PreviewRules.h"

#include <QDir>
#include <QJsonArray>
#include <QUrl>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// The preview as a build step: findings one a line, as JSON, or as a SARIF log whose results
// point at the lines by URIs relative to the current folder; exit 1 for violations and
// unread files, 0 when only what needs a condition is left, 2 for bad arguments.
TEST(PreviewCommand, ReportsFindingsAsTextJsonAndSarifWithTheBuildsExitCodes)
{
    // Private variables begin with "m_" (5000), GoTo is forbidden in procedures (5001), and a
    // convention on constants needs its condition (5002).
    Rulebase team;
    addPreviewRules(team, u"m_"_s, u"Constants"_s, 5);
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = dir + u"/Team.qrb"_s;
    ASSERT_TRUE(RulebaseManager().Save(team, rulebase));
    const QString folder = dir + u"/My Projects"_s;
    const QString module = writeFile(folder + u"/modA.bas"_s,
                                     "Attribute VB_Name = \"modA\"\r\n"
                                     "Option Explicit\r\n"
                                     "Private count As Long\r\n"
                                     "Private Const LIMIT = 3\r\n"
                                     "Public Sub Run()\n"
                                     "    GoTo Done ' a comment's GoTo is no code\n"
                                     "Done:\n"
                                     "End Sub\n");
    const QString project = writeFile(folder + u"/A.vbp"_s,
                                      "Type=Exe\r\nModule=modA; modA.bas\r\n"
                                      "Module=modGone; modGone.bas\r\nName=\"A\"\r\n");

    const ToolRun text = runQrbTool({u"preview"_s, rulebase, project});
    EXPECT_EQ(text.exitCode, 1) << text.err.toStdString();
    const QString shown = QDir::current().relativeFilePath(module);
    EXPECT_TRUE(text.out.contains(shown
                                  + u":3: 5000 \"Private variables\": Variable (Private) "
                                    u"'count': expected prefix 'm_'\n"_s))
        << text.out.toStdString();
    EXPECT_TRUE(text.out.contains(u"modGone.bas:0: UnreadFile"_s));
    EXPECT_TRUE(
        text.err.contains(u"2 violations, 1 not previewed, 1 file not read, in 1 project"_s))
        << text.err.toStdString();

    const ToolRun sarif = runQrbTool({u"preview"_s, u"--format=sarif"_s, rulebase, project});
    EXPECT_EQ(sarif.exitCode, 1);
    const QJsonObject log = parseJsonObject(sarif.out);
    EXPECT_EQ(log.value(u"version"_s).toString(), u"2.1.0"_s);
    const QJsonObject run = log.value(u"runs"_s).toArray().at(0).toObject();
    const QJsonArray rules = run[u"tool"_s][u"driver"_s][u"rules"_s].toArray();
    const QUrl base(run[u"originalUriBaseIds"_s][u"%SRCROOT%"_s][u"uri"_s].toString());
    QStringList seen;
    for (const QJsonValue &value : run.value(u"results"_s).toArray()) {
        const QJsonObject result = value.toObject();
        const QString id = result.value(u"ruleId"_s).toString();
        EXPECT_EQ(rules.at(result.value(u"ruleIndex"_s).toInt())[u"id"_s].toString(), id);
        const QJsonObject location = result[u"locations"_s][0][u"physicalLocation"_s].toObject();
        const QString uri = location[u"artifactLocation"_s][u"uri"_s].toString();
        // Relative and encoded, and pointing at the file from the base.
        EXPECT_FALSE(uri.startsWith(QLatin1Char('/'))) << uri.toStdString();
        EXPECT_TRUE(uri.contains("My%20Projects/"_L1)) << uri.toStdString();
        const QString target = base.resolved(QUrl(uri)).toLocalFile();
        seen << u"%1 %2 %3 %4"_s
                    .arg(id, result.value(u"kind"_s).toString(), QFileInfo(target).fileName())
                    .arg(location[u"region"_s][u"startLine"_s].toInt());
        EXPECT_TRUE(QFileInfo(target).isFile()) << target.toStdString();
    }
    EXPECT_EQ(seen,
              QStringList({"5002 open A.vbp 0", "5000 fail modA.bas 3", "5001 fail modA.bas 6"}));
    const QJsonArray notes = run[u"invocations"_s][0][u"toolExecutionNotifications"_s].toArray();
    ASSERT_EQ(notes.size(), 1);
    EXPECT_TRUE(
        notes.at(0)[u"locations"_s][0][u"physicalLocation"_s][u"artifactLocation"_s][u"uri"_s]
            .toString()
            .endsWith("/modGone.bas"_L1));

    const ToolRun json = runQrbTool(
        {u"preview"_s, u"--format"_s, u"json"_s, u"--rule"_s, u"5001,5002"_s, rulebase, project});
    const QJsonObject report = parseJsonObject(json.out);
    EXPECT_EQ(report.value(u"violations"_s).toInt(), 1);
    EXPECT_EQ(report.value(u"notPreviewed"_s).toInt(), 1);
    EXPECT_EQ(report.value(u"exitCode"_s).toInt(), json.exitCode);
    EXPECT_EQ(report[u"projects"_s][0][u"codeLines"_s].toInt(), 7);

    // What needs a condition alone fails nothing; a project that is all there reads cleanly.
    const QString clean = writeFile(folder + u"/B.vbp"_s, "Type=Exe\r\nModule=modA; modA.bas\r\n");
    EXPECT_EQ(runQrbTool({u"preview"_s, u"--rule=5002"_s, rulebase, clean}).exitCode, 0);

    const struct
    {
        QStringList arguments;
        const char *error;
    } bad[] = {
        {{rulebase}, "no project or group file given"},
        {{u"--rule"_s, u"1234"_s, rulebase, project}, "no rule or check 1234"},
        {{u"--format=xml"_s, rulebase, project}, "unknown format 'xml'"},
        {{dir + u"/None.qrb"_s, project}, "None.qrb: No such file"},
        {{project, project}, "could not be read completely"},
    };
    for (const auto &row : bad) {
        const ToolRun run = runQrbTool(QStringList{u"preview"_s} + row.arguments);
        EXPECT_EQ(run.exitCode, 2) << row.error;
        EXPECT_TRUE(run.err.contains(QLatin1String(row.error))) << run.err.toStdString();
        EXPECT_TRUE(run.out.isEmpty());
    }
}
