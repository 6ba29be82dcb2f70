#include "ToolTestSupport.h"

#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

// The file the program itself writes for a rulebase, into a temporary folder of its own.
QByteArray programsScriptFile(const QString &rulebaseFile)
{
    ScriptedUserInterface ui;
    RulebaseManager::setAdministratorOverride(true);
    const auto rulebase = RulebaseManager().LoadRulebase(rulebaseFile);
    if (!rulebase)
        return {};
    const QByteArray saved = qgetenv("TMPDIR");
    qputenv("TMPDIR", TestEnvironment::makeTempDir().toLocal8Bit());
    const QString filename = rulebase->RuleLists()->CreateScriptFile();
    qputenv("TMPDIR", saved);
    return readFile(filename);
}

} // namespace

TEST(ScriptsCommand, WritesTheProgramsConditionScriptFileToOut)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + QStringLiteral("/Team.qrb"), sampleBytes());
    const QString out = dir + QStringLiteral("/build/conditions.qrs");
    QDir().mkpath(dir + QStringLiteral("/build"));

    const ToolRun run
        = runQrbTool({QStringLiteral("scripts"), rulebase, QStringLiteral("-o"), out});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();
    const QByteArray text = readFile(out);
    EXPECT_TRUE(text.startsWith("Attribute VB_Name = \"QuorinScripts\"\r\n\r\n"
                                "Public Sub RunScript(ByVal v_lRuleID As Long)\r\n"));
    // Byte for byte what the program hands the reviewer, and one case for each condition.
    EXPECT_EQ(text, programsScriptFile(rulebase));
    const qsizetype cases = text.count("\r\n        Case ");
    EXPECT_GT(cases, 0);
    EXPECT_EQ(run.out,
              rulebase + QStringLiteral(": %1 conditions written to ").arg(cases) + out + '\n');
    EXPECT_EQ(QDir(dir).entryList(QDir::Files), QStringList{QStringLiteral("Team.qrb")});
    EXPECT_EQ(readFile(rulebase), sampleBytes());
}

TEST(ScriptsCommand, AFileThatCantBeWrittenIsNamedAndNothingIsLeft)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + QStringLiteral("/Team.qrb"), sampleBytes());
    const QString out = dir + QStringLiteral("/none/conditions.qrs");

    const ToolRun run
        = runQrbTool({QStringLiteral("scripts"), rulebase, QStringLiteral("-o"), out});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.err.startsWith(QStringLiteral("qrbtool scripts: ") + out
                                   + QStringLiteral(": the condition script file could not be "
                                                    "written")))
        << run.err.toStdString();
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(dir + QStringLiteral("/none")));

    // A rulebase read only in part gives no file at all.
    const QString broken
        = writeFile(dir + QStringLiteral("/Broken.qrb"), sampleBytes().left(3000));
    const QString fromBroken = dir + QStringLiteral("/broken.qrs");
    const ToolRun partial
        = runQrbTool({QStringLiteral("scripts"), broken, QStringLiteral("-o"), fromBroken});
    EXPECT_EQ(partial.exitCode, 2);
    EXPECT_TRUE(partial.err.contains(QLatin1String("could not be read completely")));
    EXPECT_FALSE(QFileInfo::exists(fromBroken));

    // Nor over the rulebase itself.
    const ToolRun itself
        = runQrbTool({QStringLiteral("scripts"), rulebase, QStringLiteral("-o"), rulebase});
    EXPECT_EQ(itself.exitCode, 2);
    EXPECT_EQ(readFile(rulebase), sampleBytes());
}
