#include "ToolTestSupport.h"

#include "rulebase/Rulebase.h"
#include "support/RulebaseDump.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(UpgradeCommand, OldSchemasComeUpTo62WithTheirContentAndVersionKept)
{
    const QString dir = TestEnvironment::makeTempDir();
    for (const QString &version : {u"6.0"_s, u"6.1"_s}) {
        const QByteArray oldBytes = sampleInOldSchema(version);
        const QString in = writeFile(dir + u"/Old%1.qrb"_s.arg(version), oldBytes);
        const QString out = dir + u"/New%1.qrb"_s.arg(version);

        const ToolRun run = runQrbTool({u"upgrade"_s, in, u"-o"_s, out});
        ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
        EXPECT_TRUE(run.out.contains(u"schema %1 written as schema 6.2"_s.arg(version)));
        EXPECT_EQ(readFile(in), oldBytes); // the input is never touched
        EXPECT_TRUE(readFile(out).startsWith("<Quorin_Rulebase SchemaVersion=\"6.2\">"));

        // The written file holds what the program reads from the old one, version number and
        // auto-increment flag included: an upgrade is no edit.
        const auto before = loadQuietly(in);
        const auto after = loadQuietly(out);
        ASSERT_TRUE(before && after);
        EXPECT_EQ(after->Version(), u"3.1.0042"_s);
        EXPECT_EQ(dumpRulebase(*after).toStdString(), dumpRulebase(*before).toStdString());
    }

    // A current rulebase is copied as it reads.
    const QString copy = dir + u"/Copy.qrb"_s;
    ASSERT_EQ(runQrbTool({u"upgrade"_s, TestEnvironment::sampleRulebase(), u"-o"_s, copy}).exitCode,
              0);
    EXPECT_EQ(runQrbTool({u"diff"_s, TestEnvironment::sampleRulebase(), copy}).exitCode, 0);
}

TEST(UpgradeCommand, NeverOverwritesUnlessInPlaceAndNeverWritesAPartialFile)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QByteArray oldBytes = sampleInOldSchema(u"6.1"_s);
    const QString in = writeFile(dir + u"/Old.qrb"_s, oldBytes);
    const QString taken = writeFile(dir + u"/Taken.qrb"_s, "keep me");

    const ToolRun refused = runQrbTool({u"upgrade"_s, in, u"-o"_s, taken});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_TRUE(refused.err.contains(taken + u": already exists"_s)) << refused.err.toStdString();
    EXPECT_EQ(readFile(taken), QByteArray("keep me"));

    // Input that can't be upgraded, or a folder that takes no files, leaves no output behind:
    // exit 2, naming what failed.
    const QByteArray future
        = sampleBytes().replace("SchemaVersion=\"6.2\"", "SchemaVersion=\"7.0\"");
    const QString futureFile = writeFile(dir + u"/Future.qrb"_s, future);
    const QString out = dir + u"/Out.qrb"_s;
    QList<std::pair<QString, QString>> refusals{
        {writeFile(dir + u"/Truncated.qrb"_s, oldBytes.left(oldBytes.size() / 3)), out},
        {futureFile, out},
        {writeFile(dir + u"/Duplicate.qrb"_s,
                   QByteArray(oldBytes).replace("RuleID=\"5030\"", "RuleID=\"5029\"")),
         out},
        {dir + u"/Missing.qrb"_s, out}};
    const QString locked = dir + u"/locked"_s;
    QDir().mkpath(locked);
    if (TestEnvironment::makeReadOnly(locked))
        refusals.append({in, locked + u"/New.qrb"_s});
    for (const auto &[input, output] : refusals) {
        const ToolRun run = runQrbTool({u"upgrade"_s, input, u"-o"_s, output});
        EXPECT_EQ(run.exitCode, 2) << input.toStdString();
        EXPECT_TRUE(run.err.contains(output.startsWith(locked) ? output + u": "_s : input))
            << run.err.toStdString();
        EXPECT_FALSE(QFileInfo::exists(output)) << input.toStdString();
    }
    TestEnvironment::makeWritable(locked);
    EXPECT_TRUE(QDir(locked).entryList(QDir::Files | QDir::Hidden).isEmpty());
    const ToolRun futureRun = runQrbTool({u"upgrade"_s, futureFile, u"--in-place"_s});
    EXPECT_TRUE(futureRun.err.contains("schema version \"7.0\" can't be upgraded"_L1));
    EXPECT_EQ(readFile(futureFile), future);

    // In place: the file itself is rewritten, once; a second run finds nothing to do.
    const ToolRun inPlace = runQrbTool({u"upgrade"_s, in, u"--in-place"_s});
    EXPECT_EQ(inPlace.exitCode, 0) << inPlace.err.toStdString();
    const QByteArray upgraded = readFile(in);
    EXPECT_TRUE(upgraded.startsWith("<Quorin_Rulebase SchemaVersion=\"6.2\">"));
    const ToolRun again = runQrbTool({u"upgrade"_s, in, u"--in-place"_s});
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_TRUE(again.out.contains("already at schema 6.2; nothing written"_L1));
    EXPECT_EQ(readFile(in), upgraded);
}
