#include "ToolTestSupport.h"

#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "support/RulebaseDump.h"
#include "support/TestEnvironment.h"

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
        EXPECT_TRUE(after->AutoIncrementVersion());
        EXPECT_EQ(dumpRulebase(*after).toStdString(), dumpRulebase(*before).toStdString());
        EXPECT_EQ(after->RuleLists()->AllConventions()->Count(), sampleBytes().count(" RuleID=\""));

        // And it checks without the old-schema warning.
        const ToolRun check = runQrbTool({u"check"_s, out});
        EXPECT_FALSE(check.out.contains("old-schema"_L1)) << check.out.toStdString();
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

    // Input that can't be upgraded leaves no output behind, whatever the reason.
    const QByteArray sample = sampleBytes();
    const QString truncated
        = writeFile(dir + u"/Truncated.qrb"_s, oldBytes.left(oldBytes.size() / 3));
    const QString future
        = writeFile(dir + u"/Future.qrb"_s,
                    QByteArray(sample).replace("SchemaVersion=\"6.2\"", "SchemaVersion=\"7.0\""));
    QByteArray duplicate = oldBytes;
    duplicate.replace("RuleID=\"5030\"", "RuleID=\"5029\"");
    const QString partial = writeFile(dir + u"/Duplicate.qrb"_s, duplicate);
    for (const QString &bad : {truncated, future, partial, dir + u"/Missing.qrb"_s}) {
        const QString out = dir + u"/Out.qrb"_s;
        const ToolRun run = runQrbTool({u"upgrade"_s, bad, u"-o"_s, out});
        EXPECT_EQ(run.exitCode, 2) << bad.toStdString();
        EXPECT_TRUE(run.err.contains(bad)) << run.err.toStdString();
        EXPECT_FALSE(QFileInfo::exists(out)) << bad.toStdString();
    }
    const ToolRun futureRun = runQrbTool({u"upgrade"_s, future, u"--in-place"_s});
    EXPECT_TRUE(futureRun.err.contains("schema version \"7.0\" can't be upgraded"_L1));
    EXPECT_EQ(readFile(future),
              QByteArray(sample).replace("SchemaVersion=\"6.2\"", "SchemaVersion=\"7.0\""));

    // A folder that takes no files: the write fails with the reason, and no file appears.
    const QString locked = dir + u"/locked"_s;
    QDir().mkpath(locked);
    if (TestEnvironment::makeReadOnly(locked)) {
        const ToolRun run = runQrbTool({u"upgrade"_s, in, u"-o"_s, locked + u"/New.qrb"_s});
        TestEnvironment::makeWritable(locked);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(run.err.contains(locked + u"/New.qrb: "_s)) << run.err.toStdString();
        EXPECT_TRUE(QDir(locked).entryList(QDir::Files | QDir::Hidden).isEmpty());
    }

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
