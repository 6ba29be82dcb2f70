#include "ToolTestSupport.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QJsonArray findingsOf(const QJsonObject &root, int file = 0)
{
    return root.value(u"files"_s).toArray().at(file).toObject().value(u"findings"_s).toArray();
}

// The findings of one code, as "line/ruleId" texts for readable failures.
QStringList where(const QJsonArray &findings, const QString &code)
{
    QStringList places;
    for (const QJsonValue &value : findings) {
        const QJsonObject finding = value.toObject();
        if (finding.value(u"code"_s).toString() == code) {
            places << u"%1/%2"_s.arg(finding.value(u"line"_s).toInteger())
                          .arg(finding.value(u"ruleId"_s).toInteger());
        }
    }
    return places;
}

QString place(int line, int ruleID)
{
    return u"%1/%2"_s.arg(line).arg(ruleID);
}

ToolRun checkJson(const QString &file)
{
    return runQrbTool({u"check"_s, u"--format"_s, u"json"_s, file});
}

} // namespace

TEST(CheckCommand, TheSampleLoadsCleanAndTextAndJsonAgree)
{
    const QString sample = TestEnvironment::sampleRulebase();
    const ToolRun text = runQrbTool({u"check"_s, sample});
    EXPECT_EQ(text.exitCode, 0) << text.out.toStdString() << text.err.toStdString();
    const QStringList lines = text.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QRegularExpression compilerStyle(
        u"^%1:\\d+: (error|warning): .+ \\[[a-z-]+\\]$"_s.arg(QRegularExpression::escape(sample)));
    for (const QString &line : lines)
        EXPECT_TRUE(compilerStyle.match(line).hasMatch()) << line.toStdString();
    EXPECT_TRUE(text.err.contains("0 error(s)"_L1)) << text.err.toStdString();

    const ToolRun json = checkJson(sample);
    EXPECT_EQ(json.exitCode, 0);
    const QJsonObject root = parseJsonObject(json.out);
    const QJsonObject file = root.value(u"files"_s).toArray().at(0).toObject();
    EXPECT_EQ(file.value(u"file"_s).toString(), sample);
    EXPECT_TRUE(file.value(u"loaded"_s).toBool());
    EXPECT_EQ(file.value(u"schemaVersion"_s).toString(), u"6.2"_s);
    EXPECT_EQ(root.value(u"errors"_s).toInt(), 0);
    EXPECT_EQ(root.value(u"warnings"_s).toInt(), lines.size());
    EXPECT_EQ(findingsOf(root).size(), lines.size());
    for (const QJsonValue &finding : findingsOf(root))
        EXPECT_GT(finding.toObject().value(u"line"_s).toInteger(), 0);
    // Two runs give the same bytes: nothing in the output depends on the time or on chance.
    EXPECT_EQ(checkJson(sample).out, json.out);

    // The sample's draft rule sits on no parser event; --strict counts that warning.
    EXPECT_EQ(where(findingsOf(root), u"no-parser-event"_s),
              QStringList{place(lineOf(sampleBytes(), "RuleID=\"5067\""), 5067)});
    EXPECT_EQ(runQrbTool({u"check"_s, u"--strict"_s, sample}).exitCode, 1);

    // An older schema loads, with a warning at its root element.
    const QString old
        = writeFile(TestEnvironment::makeTempDir() + u"/Old.qrb"_s, sampleInOldSchema(u"6.0"_s));
    const ToolRun oldRun = checkJson(old);
    EXPECT_EQ(oldRun.exitCode, 0) << oldRun.out.toStdString();
    EXPECT_EQ(where(findingsOf(parseJsonObject(oldRun.out)), u"old-schema"_s),
              QStringList{place(lineOf(readFile(old), "<Quorin_Rulebase"), 0)});
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
    // A naming convention's condition must apply the convention; no procedure but Sub Main.
    const int naming = replaceOnLine(
        bytes, "RuleID=\"5071\"", "Condition=\"\"", "Condition=\"Sub Main%CRLF%End Sub\"");
    const int methods
        = replaceOnLine(bytes,
                        "RuleID=\"5025\"",
                        "Condition=\"Sub Main%CRLF%",
                        "Condition=\"Function Helper()%CRLF%End Function%CRLF%Sub Main%CRLF%");
    const int vocabulary
        = replaceOnLine(bytes, "RuleID=\"5021\"", "StrippedStatement", "StripedStatement");
    const int object
        = replaceOnLine(bytes, "RuleID=\"5070\"", "ObjectType=\"36\"", "ObjectType=\"4711\"");
    const int defaults = lineOf(bytes, "<DefaultViolations>");
    replaceOnLine(bytes, "<DefaultViolations>", "SeverityLevel=\"2\"", "SeverityLevel=\"8\"", 1);
    replaceOnLine(bytes, "<DefaultViolations>", "Impact=\"500\"", "Impact=\"-5\"", 2);
    replaceOnLine(bytes, "<DefaultViolations>", "CategoryID=\"1\"", "CategoryID=\"55\"", 5);
    const QString file = writeFile(TestEnvironment::makeTempDir() + u"/Broken.qrb"_s, bytes);

    const ToolRun run = checkJson(file);
    EXPECT_EQ(run.exitCode, 1);
    const QJsonArray findings = findingsOf(parseJsonObject(run.out));
    EXPECT_EQ(where(findings, u"unknown-category"_s),
              (QStringList{place(defaults + 5, 0), place(category, 5028)}));
    EXPECT_EQ(where(findings, u"unknown-severity"_s),
              (QStringList{place(defaults + 1, 0), place(severity, 5037)}));
    EXPECT_EQ(where(findings, u"impact-range"_s), QStringList{place(defaults + 2, 0)});
    EXPECT_TRUE(run.out.contains("default violation 5 (Unknown Control)"_L1));
    EXPECT_EQ(where(findings, u"duplicate-rule-id"_s), QStringList{place(duplicate, 5029)});
    // The loader refuses the second rule of that id and says so.
    EXPECT_EQ(where(findings, u"section"_s).size(), 1);
    EXPECT_EQ(where(findings, u"condition-syntax"_s), QStringList{place(syntax, 5024)});
    EXPECT_EQ(where(findings, u"condition"_s),
              (QStringList{place(methods, 5025), place(naming, 5071)}));
    EXPECT_TRUE(where(findings, u"vocabulary"_s).contains(place(vocabulary, 5021)))
        << where(findings, u"vocabulary"_s).join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(where(findings, u"bad-pattern"_s),
              (QStringList{place(pattern, 5000), place(body, 5070)}));
    EXPECT_EQ(where(findings, u"unknown-object"_s), QStringList{place(object, 5070)});
    EXPECT_EQ(where(findings, u"no-parser-event"_s),
              (QStringList{place(noEvent, 5036), place(lineOf(bytes, "RuleID=\"5067\""), 5067)}));
    EXPECT_EQ(where(findings, u"unknown-parser-event"_s), QStringList{place(badEvent, 5039)});

    // The text form says the same, sorted by line, naming the file and the rule.
    const ToolRun text = runQrbTool({u"check"_s, file});
    EXPECT_EQ(text.exitCode, 1);
    const QStringList lines = text.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_EQ(lines.size(), findings.size());
    EXPECT_TRUE(lines.contains(u"%1:%2: error: coding convention 5028 \"Explicit procedure "
                               u"scope\" is in category 77, which the category list "
                               u"does not have [unknown-category]"_s.arg(file)
                                   .arg(category)))
        << text.out.toStdString();
    int previous = 0;
    for (const QString &line : lines) {
        const int number = line.section(QLatin1Char(':'), 1, 1).toInt();
        EXPECT_GE(number, previous) << line.toStdString();
        previous = number;
    }
}

TEST(CheckCommand, UnreadableFilesGiveTheParsersPlaceAndNeverCrash)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QByteArray sample = sampleBytes();
    // Cut anywhere, the sample is refused as a whole, with the parser's reason: the document
    // ends early, on the last line of what is left.
    for (int tenth = 1; tenth <= 9; ++tenth) {
        const QByteArray cut = sample.left(sample.size() * tenth / 10);
        const ToolRun run = checkJson(writeFile(dir + u"/Cut%1.qrb"_s.arg(tenth), cut));
        EXPECT_EQ(run.exitCode, 1) << tenth;
        const QJsonObject root = parseJsonObject(run.out);
        EXPECT_FALSE(root.value(u"files"_s).toArray().at(0).toObject().value(u"loaded"_s).toBool());
        QStringList xml;
        for (const QJsonValue &value : findingsOf(root)) {
            const QJsonObject finding = value.toObject();
            if (finding.value(u"code"_s).toString() == "xml"_L1)
                xml << u"%1 %2 %3"_s.arg(finding.value(u"line"_s).toInteger())
                           .arg(finding.value(u"column"_s).toInteger() > 0)
                           .arg(finding.value(u"severity"_s).toString());
        }
        EXPECT_EQ(xml, QStringList{u"%1 1 error"_s.arg(cut.count('\n') + 1)}) << tenth;
    }

    // Nothing that isn't a rulebase makes it stumble, and each gives findings, not a crash.
    const struct
    {
        QByteArray bytes;
        const char *says;
    } junk[] = {
        {QByteArray(), ""},
        {QByteArray("\x00\xff\xfe garbage \x01", 14), ""},
        {"<html><body/></html>", "the required element Rules is missing [missing-element]"},
        {"<Quorin_Rulebase/>", ""},
        {"<Quorin_Rulebase SchemaVersion=\"5.0\"/>", "schema version \"5.0\" is not supported"},
    };
    for (const auto &row : junk) {
        const ToolRun result = checkJson(writeFile(dir + u"/Junk.qrb"_s, row.bytes));
        EXPECT_EQ(result.exitCode, 1) << row.bytes.toStdString();
        QStringList messages;
        for (const QJsonValue &finding : findingsOf(parseJsonObject(result.out)))
            messages << finding[u"message"_s].toString() + u" ["_s + finding[u"code"_s].toString()
                            + u']';
        EXPECT_FALSE(messages.isEmpty()) << row.bytes.toStdString();
        EXPECT_TRUE(messages.join(u'\n').contains(QLatin1String(row.says)))
            << messages.join(u'\n').toStdString();
    }

    // A file the scan reads but the loader refuses gets the loader's reason.
    QByteArray withEntity = sample;
    withEntity.insert(sample.indexOf("?>") + 2,
                      "<!DOCTYPE Quorin_Rulebase [<!ENTITY x SYSTEM \"Cut1.qrb\">]>");
    const QString external = writeFile(dir + u"/External.qrb"_s, withEntity);
    const ToolRun refused = runQrbTool({u"check"_s, external});
    EXPECT_TRUE(refused.out.contains(
        QLatin1String("the file was refused: The file refers to the external entity "
                      "\"Cut1.qrb\"")))
        << refused.out.toStdString();

    // A file that isn't there is an input error: exit 2, named with its reason, and the files
    // beside it are still checked.
    const QString missing = dir + u"/Missing.qrb"_s;
    const ToolRun both = runQrbTool(
        {u"check"_s, u"--format"_s, u"json"_s, missing, TestEnvironment::sampleRulebase()});
    EXPECT_EQ(both.exitCode, 2);
    EXPECT_TRUE(both.err.contains(missing + u": No such file"_s)) << both.err.toStdString();
    const QJsonArray files = parseJsonObject(both.out).value(u"files"_s).toArray();
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(files.at(0).toObject().value(u"ioError"_s).toString(), u"No such file"_s);
    EXPECT_TRUE(files.at(1).toObject().value(u"loaded"_s).toBool());
}
