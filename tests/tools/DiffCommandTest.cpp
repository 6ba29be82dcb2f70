#include "ToolTestSupport.h"

#include "support/TestEnvironment.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace {

// The three lines of one rule: its element, its violation and its end tag.
QByteArray ruleLines(const QByteArray &text, const QByteArray &ruleID)
{
    const qsizetype at = text.indexOf("RuleID=\"" + ruleID + "\"");
    const qsizetype start = text.lastIndexOf('\n', at) + 1;
    const qsizetype end
        = text.indexOf("</CodingConvention>", at) + int(sizeof("</CodingConvention>"));
    return text.mid(start, end - start);
}

QByteArray removed(QByteArray text, const QByteArray &part)
{
    const qsizetype at = text.indexOf(part);
    EXPECT_GE(at, 0) << part.toStdString();
    return at < 0 ? text : text.remove(at, part.size());
}

} // namespace

TEST(DiffCommand, ARulebaseEqualsItselfAndAnUnreadableSideIsAnError)
{
    const QString sample = TestEnvironment::sampleRulebase();
    const ToolRun text = runQrbTool({QStringLiteral("diff"), sample, sample});
    EXPECT_EQ(text.exitCode, 0);
    EXPECT_TRUE(text.out.isEmpty()) << text.out.toStdString();

    const ToolRun json
        = runQrbTool({QStringLiteral("diff"), QStringLiteral("--format=json"), sample, sample});
    EXPECT_EQ(json.exitCode, 0);
    const QJsonObject root = parseJsonObject(json.out);
    EXPECT_TRUE(root.value(QStringLiteral("identical")).toBool());
    EXPECT_TRUE(root.value(QStringLiteral("changes")).toArray().isEmpty());

    // A saved 6.0 copy differs only where the upgrade had to fill in what 6.0 lacked.
    const QString dir = TestEnvironment::makeTempDir();
    const QString old
        = writeFile(dir + QStringLiteral("/Old.qrb"), sampleInOldSchema(QStringLiteral("6.0")));
    const ToolRun upgraded = runQrbTool({QStringLiteral("diff"), sample, old});
    EXPECT_EQ(upgraded.exitCode, 1);
    EXPECT_TRUE(upgraded.out.contains(QLatin1String("    ArrayTag: \"a\" -> \"\"\n")))
        << upgraded.out.toStdString();
    EXPECT_TRUE(upgraded.out.contains(
        QLatin1String("    ToleranceCount: \"0|10|40|-1|-1|150\" -> \"-1|-1|-1|-1|-1|-1\"\n")));

    const QString truncated
        = writeFile(dir + QStringLiteral("/Truncated.qrb"), sampleBytes().left(900));
    for (const QStringList &pair :
         {QStringList{sample, truncated}, QStringList{dir + QStringLiteral("/None.qrb"), sample}}) {
        const ToolRun bad = runQrbTool(QStringList{QStringLiteral("diff")} + pair);
        EXPECT_EQ(bad.exitCode, 2);
        EXPECT_TRUE(bad.out.isEmpty());
        EXPECT_TRUE(bad.err.contains(pair.at(0) == sample ? truncated : pair.at(0)))
            << bad.err.toStdString();
    }
    EXPECT_EQ(runQrbTool({QStringLiteral("diff"), sample}).exitCode, 2);
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
    const qsizetype grid
        = edited.lastIndexOf('\n', edited.indexOf("Filename=\"MSFLXGRD.OCX\"")) + 1;
    edited.remove(grid, edited.indexOf('\n', grid) + 1 - grid);
    replaceOnLine(edited,
                  "RuleID=\"5024\"",
                  "%TAB%%TAB%Call Quorin.CancelPendingViolation()",
                  "%TAB%%TAB%Quorin.CancelPendingViolation");
    replaceOnLine(edited, "RuleID=\"5024\"", "SeverityLevel=\"1\"", "SeverityLevel=\"2\"", 1);
    const QByteArray typedArguments = ruleLines(edited, "5030");
    edited = removed(edited, typedArguments);
    QByteArray copy = typedArguments;
    copy.replace("RuleID=\"5030\"", "RuleID=\"5200\"")
        .replace("Title=\"Typed arguments\"", "Title=\"Typed arguments, again\"");
    edited.replace("</CodingConventions>", copy + "</CodingConventions>");

    const QString dir = TestEnvironment::makeTempDir();
    const QString before = writeFile(dir + QStringLiteral("/Before.qrb"), original);
    const QString after = writeFile(dir + QStringLiteral("/After.qrb"), edited);

    const ToolRun text = runQrbTool({QStringLiteral("diff"), before, after});
    EXPECT_EQ(text.exitCode, 1) << text.err.toStdString();
    const QString expectedStart
        = QStringLiteral("--- %1\n+++ %2\n"
                         "changed properties\n"
                         "    Title: \"Kestrel & Vane VB6 Coding Standards\" -> \"Kestrel & Vane "
                         "VB6 Coding Standards (draft)\"\n"
                         "changed category 4 \"Declarations and scope\"\n"
                         "    Title: \"Declarations\" -> \"Declarations and scope\"\n"
                         "changed control tag VB.Form\n"
                         "    TagValue: \"frm\" -> \"form\"\n"
                         "removed authorised component {5E9E78A0-531B-11CF-91F6-C2863C385E30} "
                         "\"MSFLXGRD.OCX\"\n"
                         "changed rule 5024 coding convention \"Option Explicit\"\n"
                         "    Condition:\n"
                         "        @@ -1,5 +1,5 @@\n"
                         "         Sub Main\n")
              .arg(before, after);
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
        QLatin1String("    Condition:\n        Sub Main\n        \tDim sDataType As String\n")))
        << text.out.toStdString();

    const ToolRun json = runQrbTool({QStringLiteral("diff"),
                                     QStringLiteral("--format"),
                                     QStringLiteral("json"),
                                     before,
                                     after});
    EXPECT_EQ(json.exitCode, 1);
    const QJsonObject root = parseJsonObject(json.out);
    EXPECT_FALSE(root.value(QStringLiteral("identical")).toBool());
    const QJsonArray changes = root.value(QStringLiteral("changes")).toArray();
    QStringList summary;
    for (const QJsonValue &value : changes) {
        const QJsonObject change = value.toObject();
        summary << change.value(QStringLiteral("change")).toString() + QLatin1Char(' ')
                       + change.value(QStringLiteral("section")).toString() + QLatin1Char(' ')
                       + change.value(QStringLiteral("key")).toString();
    }
    EXPECT_EQ(
        summary,
        (QStringList{
            QStringLiteral("changed properties "),
            QStringLiteral("changed category 4"),
            QStringLiteral("changed control-tag VB.Form"),
            QStringLiteral("removed authorised-component {5E9E78A0-531B-11CF-91F6-C2863C385E30}"),
            QStringLiteral("changed rule 5024"),
            QStringLiteral("removed rule 5030"),
            QStringLiteral("added rule 5200")}));
    const QJsonArray fields = changes.at(4).toObject().value(QStringLiteral("fields")).toArray();
    ASSERT_EQ(fields.size(), 2);
    const QJsonObject condition = fields.at(0).toObject();
    EXPECT_EQ(condition.value(QStringLiteral("field")).toString(), QStringLiteral("Condition"));
    EXPECT_TRUE(
        condition.value(QStringLiteral("old")).toString().contains(QLatin1String("Call Quorin.")));
    EXPECT_EQ(condition.value(QStringLiteral("diff")).toArray().size(), 7);
    EXPECT_EQ(fields.at(1).toObject().value(QStringLiteral("new")).toString(), QStringLiteral("2"));
    // An added rule carries its new values only, a removed one its old values only.
    const QJsonObject added
        = changes.at(6).toObject().value(QStringLiteral("fields")).toArray().at(0).toObject();
    EXPECT_FALSE(added.contains(QStringLiteral("old")));
    EXPECT_EQ(added.value(QStringLiteral("new")).toString(), QStringLiteral("coding convention"));
    const QJsonObject gone
        = changes.at(5).toObject().value(QStringLiteral("fields")).toArray().at(0).toObject();
    EXPECT_FALSE(gone.contains(QStringLiteral("new")));
}
