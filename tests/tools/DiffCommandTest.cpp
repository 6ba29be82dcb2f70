#include "ToolTestSupport.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(DiffCommand, ARulebaseEqualsItselfAndAnUnreadableSideIsAnError)
{
    const QString sample = TestEnvironment::sampleRulebase();
    const ToolRun text = runQrbTool({u"diff"_s, sample, sample});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_TRUE(text.out.isEmpty()) << text.out.toStdString();

    const ToolRun json = runQrbTool({u"diff"_s, u"--format=json"_s, sample, sample});
    EXPECT_EQ(json.exitCode, 0);
    const QJsonObject root = parseJsonObject(json.out);
    EXPECT_TRUE(root.value(u"identical"_s).toBool());
    EXPECT_TRUE(root.value(u"changes"_s).toArray().isEmpty());

    // A saved 6.0 copy differs only where the upgrade had to fill in what 6.0 lacked.
    const QString dir = TestEnvironment::makeTempDir();
    const QString old = writeFile(dir + u"/Old.qrb"_s, sampleInOldSchema(u"6.0"_s));
    const ToolRun upgraded = runQrbTool({u"diff"_s, sample, old});
    EXPECT_EQ(upgraded.exitCode, 1);
    EXPECT_TRUE(upgraded.out.contains("    ArrayTag: \"a\" -> \"\"\n"_L1))
        << upgraded.out.toStdString();
    EXPECT_TRUE(upgraded.out.contains(
        "    ToleranceCount: \"0|10|40|-1|-1|150\" -> \"-1|-1|-1|-1|-1|-1\"\n"_L1));

    const QString truncated = writeFile(dir + u"/Truncated.qrb"_s, sampleBytes().left(900));
    for (const QStringList &pair :
         {QStringList{sample, truncated}, QStringList{dir + u"/None.qrb"_s, sample}}) {
        const ToolRun bad = runQrbTool(QStringList{u"diff"_s} + pair);
        EXPECT_EQ(bad.exitCode, 2);
        EXPECT_TRUE(bad.out.isEmpty());
        EXPECT_TRUE(bad.err.contains(pair.at(0) == sample ? truncated : pair.at(0)))
            << bad.err.toStdString();
    }
}

TEST(DiffCommand, ChangesComeBySectionAndKeyFieldByFieldWithConditionsAsUnifiedDiffs)
{
    const QByteArray original = sampleBytes();
    QByteArray edited = original;
    edited.replace("VB6 Coding Standards\"", "VB6 Coding Standards (draft)\"");
    replaceOnLine(edited,
                  "<CategoryItem ID=\"4\"",
                  "Title=\"Declarations\"",
                  "Title=\"Declarations and scope\"");
    replaceOnLine(edited, "TagName=\"VB.Form\"", "TagValue=\"frm\"", "TagValue=\"form\"");
    replaceOnLine(edited, "Filename=\"MSCOMCT2.OCX\"", "DTPicker and UpDown", "DTPicker");
    const qsizetype grid
        = edited.lastIndexOf('\n', edited.indexOf("Filename=\"MSFLXGRD.OCX\"")) + 1;
    edited.remove(grid, edited.indexOf('\n', grid) + 1 - grid);
    replaceOnLine(edited,
                  "RuleID=\"5024\"",
                  "%TAB%%TAB%Call Quorin.CancelPendingViolation()",
                  "%TAB%%TAB%Quorin.CancelPendingViolation");
    replaceOnLine(edited, "RuleID=\"5024\"", "SeverityLevel=\"1\"", "SeverityLevel=\"2\"", 1);
    // Rule 5030 taken out (its element, violation and end tag) and put back as 5200.
    const qsizetype rule = edited.lastIndexOf('\n', edited.indexOf("RuleID=\"5030\"")) + 1;
    const QByteArray end = "</CodingConvention>\n";
    const QByteArray typedArguments
        = edited.mid(rule, edited.indexOf(end, rule) + end.size() - rule);
    edited.remove(edited.indexOf(typedArguments), typedArguments.size());
    QByteArray copy = typedArguments;
    copy.replace("RuleID=\"5030\"", "RuleID=\"5200\"")
        .replace("Title=\"Typed arguments\"", "Title=\"Typed arguments, again\"");
    edited.replace("</CodingConventions>", copy + "</CodingConventions>");

    const QString dir = TestEnvironment::makeTempDir();
    const QString before = writeFile(dir + u"/Before.qrb"_s, original);
    const QString after = writeFile(dir + u"/After.qrb"_s, edited);

    const ToolRun text = runQrbTool({u"diff"_s, before, after});
    EXPECT_EQ(text.exitCode, 1) << text.err.toStdString();
    const QString expectedStart
        = u"--- %1\n+++ %2\n"
          u"changed properties\n"
          u"    Title: \"Kestrel & Vane VB6 Coding Standards\" -> \"Kestrel & Vane "
          u"VB6 Coding Standards (draft)\"\n"
          u"changed category 4 \"Declarations and scope\"\n"
          u"    Title: \"Declarations\" -> \"Declarations and scope\"\n"
          u"changed control tag VB.Form\n"
          u"    TagValue: \"frm\" -> \"form\"\n"
          u"removed authorised component {5E9E78A0-531B-11CF-91F6-C2863C385E30} "
          u"\"MSFLXGRD.OCX\"\n"
          u"changed authorised component {86CF1D34-0C5F-11D2-A9FC-0000F8754DA1} "
          u"\"MSCOMCT2.OCX\"\n"
          u"    Advice: \"DTPicker and UpDown only. Any version may be used.\" -> "
          u"\"DTPicker only. Any version may be used.\"\n"
          u"changed rule 5024 coding convention \"Option Explicit\"\n"
          u"    Condition:\n"
          u"        @@ -1,5 +1,5 @@\n"
          u"         Sub Main\n"_s.arg(before, after);
    EXPECT_TRUE(text.out.startsWith(expectedStart)) << text.out.toStdString();
    EXPECT_TRUE(text.out.contains(
        QLatin1String("        -\t\tCall Quorin.CancelPendingViolation()\n"
                      "        +\t\tQuorin.CancelPendingViolation\n"
                      "         \tEnd If\n"
                      "         End Sub\n"
                      "    Violation.Severity: \"1\" -> \"2\"\n"
                      "removed rule 5030 coding convention \"Typed arguments\"\n"
                      "added rule 5200 coding convention \"Typed arguments, again\"\n"
                      "    RuleType: \"coding convention\"\n")))
        << text.out.toStdString();
    // Its condition comes as the block of lines it is.
    EXPECT_TRUE(text.out.contains(
        "    Condition:\n        Sub Main\n        \tDim sDataType As String\n"_L1))
        << text.out.toStdString();

    const ToolRun json = runQrbTool({u"diff"_s, u"--format"_s, u"json"_s, before, after});
    EXPECT_EQ(json.exitCode, 1);
    const QJsonObject root = parseJsonObject(json.out);
    EXPECT_FALSE(root.value(u"identical"_s).toBool());
    const QJsonArray changes = root.value(u"changes"_s).toArray();
    QStringList summary;
    for (const QJsonValue &value : changes) {
        const QJsonObject change = value.toObject();
        summary << change.value(u"change"_s).toString() + QLatin1Char(' ')
                       + change.value(u"section"_s).toString() + QLatin1Char(' ')
                       + change.value(u"key"_s).toString();
    }
    EXPECT_EQ(summary,
              (QStringList{u"changed properties "_s,
                           u"changed category 4"_s,
                           u"changed control-tag VB.Form"_s,
                           u"removed authorised-component {5E9E78A0-531B-11CF-91F6-C2863C385E30}"_s,
                           u"changed authorised-component {86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}"_s,
                           u"changed rule 5024"_s,
                           u"removed rule 5030"_s,
                           u"added rule 5200"_s}));
    const QJsonArray fields = changes.at(5).toObject().value(u"fields"_s).toArray();
    ASSERT_EQ(fields.size(), 2);
    const QJsonObject condition = fields.at(0).toObject();
    EXPECT_EQ(condition.value(u"field"_s).toString(), u"Condition"_s);
    EXPECT_TRUE(condition.value(u"old"_s).toString().contains("Call Quorin."_L1));
    EXPECT_EQ(condition.value(u"diff"_s).toArray().size(), 7);
    EXPECT_EQ(fields.at(1).toObject().value(u"new"_s).toString(), u"2"_s);
    // An added rule carries its new values only, a removed one its old values only.
    const QJsonObject added
        = changes.at(7).toObject().value(u"fields"_s).toArray().at(0).toObject();
    EXPECT_FALSE(added.contains(u"old"_s));
    EXPECT_EQ(added.value(u"new"_s).toString(), u"coding convention"_s);
    const QJsonObject gone = changes.at(6).toObject().value(u"fields"_s).toArray().at(0).toObject();
    EXPECT_FALSE(gone.contains(u"new"_s));
}
