#include "ToolTestSupport.h"

#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "support/RulebaseDump.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

std::shared_ptr<Rulebase> loadQuietly(const QString &filename)
{
    ScriptedUserInterface ui;
    RulebaseManager::setAdministratorOverride(true);
    auto rulebase = RulebaseManager().LoadRulebase(filename);
    EXPECT_TRUE(ui.messages.empty()) << ui.messageTexts().join(QLatin1Char('\n')).toStdString();
    return rulebase;
}

} // namespace

TEST(UpgradeCommand, OldSchemasComeUpTo62WithTheirContentAndVersionKept)
{
    const QString dir = TestEnvironment::makeTempDir();
    for (const QString &version : {QStringLiteral("6.0"), QStringLiteral("6.1")}) {
        const QByteArray oldBytes = sampleInOldSchema(version);
        const QString in = writeFile(dir + QStringLiteral("/Old%1.qrb").arg(version), oldBytes);
        const QString out = dir + QStringLiteral("/New%1.qrb").arg(version);

        const ToolRun run = runQrbTool({QStringLiteral("upgrade"), in, QStringLiteral("-o"), out});
        ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
        EXPECT_TRUE(
            run.out.contains(QStringLiteral("schema %1 written as schema 6.2").arg(version)));
        EXPECT_EQ(readFile(in), oldBytes); // the input is never touched
        EXPECT_TRUE(readFile(out).startsWith("<Quorin_Rulebase SchemaVersion=\"6.2\">"));

        // The written file holds what the program reads from the old one, version number and
        // auto-increment flag included: an upgrade is no edit.
        const auto before = loadQuietly(in);
        const auto after = loadQuietly(out);
        ASSERT_TRUE(before && after);
        EXPECT_EQ(after->Version(), QStringLiteral("3.1.0042"));
        EXPECT_TRUE(after->AutoIncrementVersion());
        EXPECT_EQ(dumpRulebase(*after).toStdString(), dumpRulebase(*before).toStdString());
        EXPECT_EQ(after->RuleLists()->AllConventions()->Count(), sampleBytes().count(" RuleID=\""));

        // And it checks without the old-schema warning.
        const ToolRun check = runQrbTool({QStringLiteral("check"), out});
        EXPECT_FALSE(check.out.contains(QLatin1String("old-schema"))) << check.out.toStdString();
    }
}

TEST(UpgradeCommand, ACurrentRulebaseIsCopiedAsItReads)
{
    const QString out = TestEnvironment::makeTempDir() + QStringLiteral("/Copy.qrb");
    const ToolRun run = runQrbTool(
        {QStringLiteral("upgrade"), TestEnvironment::sampleRulebase(), QStringLiteral("-o"), out});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const auto sample = loadQuietly(TestEnvironment::sampleRulebase());
    const auto copy = loadQuietly(out);
    ASSERT_TRUE(sample && copy);
    EXPECT_EQ(dumpRulebase(*copy).toStdString(), dumpRulebase(*sample).toStdString());
    EXPECT_EQ(runQrbTool({QStringLiteral("diff"), TestEnvironment::sampleRulebase(), out}).exitCode,
              0);
}

TEST(UpgradeCommand, NeverOverwritesUnlessInPlaceAndNeverWritesAPartialFile)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QByteArray oldBytes = sampleInOldSchema(QStringLiteral("6.1"));
    const QString in = writeFile(dir + QStringLiteral("/Old.qrb"), oldBytes);
    const QString taken = writeFile(dir + QStringLiteral("/Taken.qrb"), "keep me");

    const ToolRun refused
        = runQrbTool({QStringLiteral("upgrade"), in, QStringLiteral("-o"), taken});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_TRUE(refused.err.contains(taken + QStringLiteral(": already exists")))
        << refused.err.toStdString();
    EXPECT_EQ(readFile(taken), QByteArray("keep me"));

    // Neither or both of -o and --in-place is a usage error.
    EXPECT_EQ(runQrbTool({QStringLiteral("upgrade"), in}).exitCode, 2);
    EXPECT_EQ(runQrbTool({QStringLiteral("upgrade"),
                          in,
                          QStringLiteral("--in-place"),
                          QStringLiteral("-o"),
                          dir + QStringLiteral("/x.qrb")})
                  .exitCode,
              2);
    EXPECT_FALSE(QFileInfo::exists(dir + QStringLiteral("/x.qrb")));

    // Input that can't be upgraded leaves no output behind, whatever the reason.
    const QByteArray sample = sampleBytes();
    const QString truncated
        = writeFile(dir + QStringLiteral("/Truncated.qrb"), oldBytes.left(oldBytes.size() / 3));
    const QString future
        = writeFile(dir + QStringLiteral("/Future.qrb"),
                     QByteArray(sample).replace("SchemaVersion=\"6.2\"", "SchemaVersion=\"7.0\""));
    QByteArray duplicate = oldBytes;
    duplicate.replace("RuleID=\"5030\"", "RuleID=\"5029\"");
    const QString partial = writeFile(dir + QStringLiteral("/Duplicate.qrb"), duplicate);
    for (const QString &bad : {truncated, future, partial, dir + QStringLiteral("/Missing.qrb")}) {
        const QString out = dir + QStringLiteral("/Out.qrb");
        const ToolRun run = runQrbTool({QStringLiteral("upgrade"), bad, QStringLiteral("-o"), out});
        EXPECT_EQ(run.exitCode, 2) << bad.toStdString();
        EXPECT_TRUE(run.err.contains(bad)) << run.err.toStdString();
        EXPECT_FALSE(QFileInfo::exists(out)) << bad.toStdString();
    }
    const ToolRun futureRun
        = runQrbTool({QStringLiteral("upgrade"), future, QStringLiteral("--in-place")});
    EXPECT_TRUE(futureRun.err.contains(QLatin1String("schema version \"7.0\" can't be upgraded")));
    EXPECT_EQ(readFile(future),
              QByteArray(sample).replace("SchemaVersion=\"6.2\"", "SchemaVersion=\"7.0\""));

    // A folder that takes no files: the write fails with the reason, and no file appears.
    const QString locked = dir + QStringLiteral("/locked");
    QDir().mkpath(locked);
    if (TestEnvironment::makeReadOnly(locked)) {
        const ToolRun run = runQrbTool({QStringLiteral("upgrade"),
                                        in,
                                        QStringLiteral("-o"),
                                        locked + QStringLiteral("/New.qrb")});
        TestEnvironment::makeWritable(locked);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(run.err.contains(locked + QStringLiteral("/New.qrb: ")))
            << run.err.toStdString();
        EXPECT_TRUE(QDir(locked).entryList(QDir::Files | QDir::Hidden).isEmpty());
    }

    // In place: the file itself is rewritten, once; a second run finds nothing to do.
    const ToolRun inPlace
        = runQrbTool({QStringLiteral("upgrade"), in, QStringLiteral("--in-place")});
    EXPECT_EQ(inPlace.exitCode, 0) << inPlace.err.toStdString();
    const QByteArray upgraded = readFile(in);
    EXPECT_TRUE(upgraded.startsWith("<Quorin_Rulebase SchemaVersion=\"6.2\">"));
    const ToolRun again = runQrbTool({QStringLiteral("upgrade"), in, QStringLiteral("--in-place")});
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_TRUE(again.out.contains(QLatin1String("already at schema 6.2; nothing written")));
    EXPECT_EQ(readFile(in), upgraded);
}
