#include "ToolTestSupport.h"

#include "support/TestEnvironment.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QJsonArray findingsOf(const QJsonObject &root, int file = 0)
{
    return root.value(QStringLiteral("files"))
        .toArray()
        .at(file)
        .toObject()
        .value(QStringLiteral("findings"))
        .toArray();
}

// The findings of one code, as "line/ruleId" texts for readable failures.
QStringList where(const QJsonArray &findings, const QString &code)
{
    QStringList places;
    for (const QJsonValue &value : findings) {
        const QJsonObject finding = value.toObject();
        if (finding.value(QStringLiteral("code")).toString() == code) {
            places << QStringLiteral("%1/%2")
                          .arg(finding.value(QStringLiteral("line")).toInteger())
                          .arg(finding.value(QStringLiteral("ruleId")).toInteger());
        }
    }
    return places;
}

QString place(int line, int ruleID)
{
    return QStringLiteral("%1/%2").arg(line).arg(ruleID);
}

ToolRun checkJson(const QString &file)
{
    return runQrbTool(
        {QStringLiteral("check"), QStringLiteral("--format"), QStringLiteral("json"), file});
}

} // namespace

TEST(CheckCommand, TheSampleLoadsCleanAndTextAndJsonAgree)
{
    const QString sample = TestEnvironment::sampleRulebase();
    const ToolRun text = runQrbTool({QStringLiteral("check"), sample});
    EXPECT_EQ(text.exitCode, 0) << text.out.toStdString() << text.err.toStdString();
    const QStringList lines = text.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QRegularExpression compilerStyle(
        QStringLiteral("^%1:\\d+: (error|warning): .+ \\[[a-z-]+\\]$")
            .arg(QRegularExpression::escape(sample)));
    for (const QString &line : lines) {
        EXPECT_TRUE(compilerStyle.match(line).hasMatch()) << line.toStdString();
        EXPECT_FALSE(line.contains(QLatin1String(": error: "))) << line.toStdString();
    }
    EXPECT_TRUE(text.err.contains(QLatin1String("0 error(s)"))) << text.err.toStdString();

    const ToolRun json = checkJson(sample);
    EXPECT_EQ(json.exitCode, 0);
    const QJsonObject root = parseJsonObject(json.out);
    const QJsonObject file = root.value(QStringLiteral("files")).toArray().at(0).toObject();
    EXPECT_EQ(file.value(QStringLiteral("file")).toString(), sample);
    EXPECT_TRUE(file.value(QStringLiteral("loaded")).toBool());
    EXPECT_EQ(file.value(QStringLiteral("schemaVersion")).toString(), QStringLiteral("6.2"));
    EXPECT_EQ(root.value(QStringLiteral("errors")).toInt(), 0);
    EXPECT_EQ(root.value(QStringLiteral("warnings")).toInt(), lines.size());
    EXPECT_EQ(findingsOf(root).size(), lines.size());
    for (const QJsonValue &finding : findingsOf(root))
        EXPECT_GT(finding.toObject().value(QStringLiteral("line")).toInteger(), 0);
    // Two runs give the same bytes: nothing in the output depends on the time or on chance.
    EXPECT_EQ(checkJson(sample).out, json.out);

    // The sample's draft rule sits on no parser event; --strict counts that warning.
    EXPECT_EQ(where(findingsOf(root), QStringLiteral("no-parser-event")),
              QStringList{place(lineOf(sampleBytes(), "RuleID=\"5067\""), 5067)});
    EXPECT_EQ(runQrbTool({QStringLiteral("check"), QStringLiteral("--strict"), sample}).exitCode,
              1);
}

TEST(CheckCommand, BrokenCopiesOfTheSampleAreReportedAtTheirRulesLines)
{
    QByteArray bytes = sampleBytes();
    const int category
        = replaceOnLine(bytes, "RuleID=\"5028\"", "CategoryID=\"4\"", "CategoryID=\"77\"", 1);
    const int severity
        = replaceOnLine(bytes, "RuleID=\"5037\"", "SeverityLevel=\"4\"", "SeverityLevel=\"9\"", 1);
    const int duplicate
        = replaceOnLine(bytes, "RuleID=\"5030\"", "RuleID=\"5030\"", "RuleID=\"5029\"");
    const int syntax
        = replaceOnLine(bytes, "RuleID=\"5024\"", "%TAB%End If%CRLF%End Sub", "End Sub");
    const int pattern
        = replaceOnLine(bytes, "RuleID=\"5000\"", "Condition=\"^(?!", "Condition=\"^((?!");
    const int body = replaceOnLine(bytes, "RuleID=\"5070\"", "BodyPattern=\"^", "BodyPattern=\"^(");
    const int noEvent
        = replaceOnLine(bytes, "RuleID=\"5036\"", "ParserEventID=\"28\"", "ParserEventID=\"\"");
    const int badEvent = replaceOnLine(
        bytes, "RuleID=\"5039\"", "ParserEventID=\"16\"", "ParserEventID=\"16|99\"");
    const QString file
        = writeFile(TestEnvironment::makeTempDir() + QStringLiteral("/Broken.qrb"), bytes);

    const ToolRun run = checkJson(file);
    EXPECT_EQ(run.exitCode, 1);
    const QJsonArray findings = findingsOf(parseJsonObject(run.out));
    EXPECT_EQ(where(findings, QStringLiteral("unknown-category")),
              QStringList{place(category, 5028)});
    EXPECT_EQ(where(findings, QStringLiteral("unknown-severity")),
              QStringList{place(severity, 5037)});
    EXPECT_EQ(where(findings, QStringLiteral("duplicate-rule-id")),
              QStringList{place(duplicate, 5029)});
    // The loader refuses the second rule of that id and says so.
    EXPECT_EQ(where(findings, QStringLiteral("section")).size(), 1);
    EXPECT_EQ(where(findings, QStringLiteral("condition-syntax")),
              QStringList{place(syntax, 5024)});
    EXPECT_EQ(where(findings, QStringLiteral("bad-pattern")),
              (QStringList{place(pattern, 5000), place(body, 5070)}));
    EXPECT_EQ(where(findings, QStringLiteral("no-parser-event")),
              (QStringList{place(noEvent, 5036), place(lineOf(bytes, "RuleID=\"5067\""), 5067)}));
    EXPECT_EQ(where(findings, QStringLiteral("unknown-parser-event")),
              QStringList{place(badEvent, 5039)});

    // The text form says the same, sorted by line, naming the file and the rule.
    const ToolRun text = runQrbTool({QStringLiteral("check"), file});
    EXPECT_EQ(text.exitCode, 1);
    const QStringList lines = text.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_EQ(lines.size(), findings.size());
    EXPECT_TRUE(
        lines.contains(QStringLiteral("%1:%2: error: coding convention 5028 \"Explicit procedure "
                                      "scope\" is in category 77, which the category list "
                                      "does not have [unknown-category]")
                           .arg(file)
                           .arg(category)))
        << text.out.toStdString();
    int previous = 0;
    for (const QString &line : lines) {
        const int number = line.section(QLatin1Char(':'), 1, 1).toInt();
        EXPECT_GE(number, previous) << line.toStdString();
        previous = number;
    }
}

TEST(CheckCommand, ConditionsVocabularyObjectsAndDefaultViolationsAreChecked)
{
    QByteArray bytes = sampleBytes();
    // A naming convention's condition must apply the convention; no procedure but Sub Main.
    const int naming = replaceOnLine(
        bytes, "RuleID=\"5071\"", "Condition=\"\"", "Condition=\"Sub Main%CRLF%End Sub\"");
    const int methods
        = replaceOnLine(bytes,
                        "RuleID=\"5029\"",
                        "Condition=\"Sub Main%CRLF%",
                        "Condition=\"Function Helper()%CRLF%End Function%CRLF%Sub Main%CRLF%");
    const int vocabulary
        = replaceOnLine(bytes, "RuleID=\"5024\"", "StrippedStatement", "StripedStatement");
    const int object
        = replaceOnLine(bytes, "RuleID=\"5070\"", "ObjectType=\"36\"", "ObjectType=\"4711\"");
    const int defaults = lineOf(bytes, "<DefaultViolations>");
    replaceOnLine(bytes, "<DefaultViolations>", "SeverityLevel=\"2\"", "SeverityLevel=\"8\"", 1);
    replaceOnLine(bytes, "<DefaultViolations>", "Impact=\"500\"", "Impact=\"-5\"", 2);
    replaceOnLine(bytes, "<DefaultViolations>", "CategoryID=\"1\"", "CategoryID=\"55\"", 5);
    const QString file
        = writeFile(TestEnvironment::makeTempDir() + QStringLiteral("/Vocabulary.qrb"), bytes);

    const ToolRun run = checkJson(file);
    EXPECT_EQ(run.exitCode, 1);
    const QJsonArray findings = findingsOf(parseJsonObject(run.out));
    EXPECT_EQ(where(findings, QStringLiteral("condition")),
              (QStringList{place(methods, 5029), place(naming, 5071)}));
    EXPECT_TRUE(where(findings, QStringLiteral("vocabulary")).contains(place(vocabulary, 5024)))
        << where(findings, QStringLiteral("vocabulary")).join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(where(findings, QStringLiteral("unknown-object")), QStringList{place(object, 5070)});
    EXPECT_EQ(where(findings, QStringLiteral("unknown-severity")),
              QStringList{place(defaults + 1, 0)});
    EXPECT_EQ(where(findings, QStringLiteral("impact-range")), QStringList{place(defaults + 2, 0)});
    EXPECT_EQ(where(findings, QStringLiteral("unknown-category")),
              QStringList{place(defaults + 5, 0)});
    EXPECT_TRUE(run.out.contains(QLatin1String("default violation 5 (Unknown Control)")));
}

TEST(CheckCommand, UnreadableFilesGiveTheParsersPlaceAndNeverCrash)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QByteArray sample = sampleBytes();
    const QByteArray half = sample.left(sample.size() / 2);
    const QString truncated = writeFile(dir + QStringLiteral("/Truncated.qrb"), half);

    const ToolRun run = checkJson(truncated);
    EXPECT_EQ(run.exitCode, 1);
    const QJsonObject root = parseJsonObject(run.out);
    const QJsonObject report = root.value(QStringLiteral("files")).toArray().at(0).toObject();
    EXPECT_FALSE(report.value(QStringLiteral("loaded")).toBool());
    bool sawXml = false;
    for (const QJsonValue &value : findingsOf(root)) {
        const QJsonObject finding = value.toObject();
        if (finding.value(QStringLiteral("code")).toString() != QLatin1String("xml"))
            continue;
        sawXml = true;
        // The document ends early, on the last line of what is left.
        EXPECT_EQ(finding.value(QStringLiteral("line")).toInteger(), half.count('\n') + 1);
        EXPECT_GT(finding.value(QStringLiteral("column")).toInteger(), 0);
        EXPECT_EQ(finding.value(QStringLiteral("severity")).toString(), QStringLiteral("error"));
    }
    EXPECT_TRUE(sawXml) << run.out.toStdString();

    // Cut anywhere, the sample is refused as a whole, with the parser's reason.
    for (int tenth = 1; tenth <= 9; ++tenth) {
        const QString cut = writeFile(dir + QStringLiteral("/Cut%1.qrb").arg(tenth),
                                       sample.left(sample.size() * tenth / 10));
        const ToolRun result = checkJson(cut);
        EXPECT_EQ(result.exitCode, 1) << tenth;
        const QJsonArray found = findingsOf(parseJsonObject(result.out));
        EXPECT_EQ(where(found, QStringLiteral("xml")).size(), 1) << tenth;
    }

    // Nothing that isn't a rulebase makes it stumble, and each gives findings, not a crash.
    const QByteArray junk[] = {QByteArray(),
                               QByteArray("\x00\xff\xfe garbage \x01", 14),
                               QByteArray("<html><body/></html>"),
                               QByteArray("<Quorin_Rulebase/>"),
                               QByteArray("<Quorin_Rulebase SchemaVersion=\"5.0\"/>")};
    int n = 0;
    for (const QByteArray &bytes : junk) {
        const QString file = writeFile(dir + QStringLiteral("/junk%1.qrb").arg(n++), bytes);
        const ToolRun result = checkJson(file);
        EXPECT_EQ(result.exitCode, 1) << file.toStdString();
        EXPECT_FALSE(findingsOf(parseJsonObject(result.out)).isEmpty()) << file.toStdString();
    }
    const ToolRun schema
        = runQrbTool({QStringLiteral("check"), dir + QStringLiteral("/junk4.qrb")});
    EXPECT_TRUE(schema.out.contains(QLatin1String("schema version \"5.0\" is not supported")))
        << schema.out.toStdString();
    const ToolRun html = runQrbTool({QStringLiteral("check"), dir + QStringLiteral("/junk2.qrb")});
    EXPECT_TRUE(
        html.out.contains(QLatin1String("the required element Rules is missing [missing-element]")))
        << html.out.toStdString();

    // A file the scan reads but the loader refuses gets the loader's reason.
    QByteArray withEntity = sample;
    withEntity.insert(sample.indexOf("?>") + 2,
                      "<!DOCTYPE Quorin_Rulebase [<!ENTITY x SYSTEM \"Truncated.qrb\">]>");
    const QString external = writeFile(dir + QStringLiteral("/External.qrb"), withEntity);
    const ToolRun refused = runQrbTool({QStringLiteral("check"), external});
    EXPECT_TRUE(refused.out.contains(
        QLatin1String("the file was refused: The file refers to the external entity "
                      "\"Truncated.qrb\"")))
        << refused.out.toStdString();

    // A file that isn't there is an input error: exit 2, named with its reason, and the files
    // beside it are still checked.
    const QString missing = dir + QStringLiteral("/Missing.qrb");
    const ToolRun both = runQrbTool({QStringLiteral("check"),
                                     QStringLiteral("--format"),
                                     QStringLiteral("json"),
                                     missing,
                                     TestEnvironment::sampleRulebase()});
    EXPECT_EQ(both.exitCode, 2);
    EXPECT_TRUE(both.err.contains(missing + QStringLiteral(": No such file")))
        << both.err.toStdString();
    const QJsonArray files = parseJsonObject(both.out).value(QStringLiteral("files")).toArray();
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(files.at(0).toObject().value(QStringLiteral("ioError")).toString(),
              QStringLiteral("No such file"));
    EXPECT_TRUE(files.at(1).toObject().value(QStringLiteral("loaded")).toBool());
}

TEST(CheckCommand, OlderSchemasLoadWithAWarningAndUsageErrorsExitTwo)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString old
        = writeFile(dir + QStringLiteral("/Old.qrb"), sampleInOldSchema(QStringLiteral("6.0")));
    const ToolRun run = checkJson(old);
    EXPECT_EQ(run.exitCode, 0) << run.out.toStdString();
    const QJsonArray findings = findingsOf(parseJsonObject(run.out));
    EXPECT_EQ(where(findings, QStringLiteral("old-schema")),
              QStringList{place(lineOf(readFile(old), "<Quorin_Rulebase"), 0)});
    EXPECT_EQ(runQrbTool({QStringLiteral("check"), QStringLiteral("--strict"), old}).exitCode, 1);

    EXPECT_EQ(runQrbTool({QStringLiteral("check")}).exitCode, 2);
    const ToolRun format = runQrbTool(
        {QStringLiteral("check"), QStringLiteral("--format"), QStringLiteral("xml"), old});
    EXPECT_EQ(format.exitCode, 2);
    EXPECT_TRUE(format.err.contains(QLatin1String("unknown format 'xml'")));
    EXPECT_TRUE(format.out.isEmpty());
    const ToolRun unknown
        = runQrbTool({QStringLiteral("check"), QStringLiteral("--frobnicate"), old});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_TRUE(unknown.err.contains(QLatin1String("qrbtool check: Unknown option 'frobnicate'")))
        << unknown.err.toStdString();
}
