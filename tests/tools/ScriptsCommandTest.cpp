#include "ToolTestSupport.h"

#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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
    const QString rulebase = writeFile(dir + u"/Team.qrb"_s, sampleBytes());
    const QString out = dir + u"/build/conditions.qrs"_s;
    QDir().mkpath(dir + u"/build"_s);

    const ToolRun run = runQrbTool({u"scripts"_s, rulebase, u"-o"_s, out});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();
    const QByteArray text = readFile(out);
    EXPECT_TRUE(text.startsWith("Attribute VB_Name = \"QuorinScripts\"\r\n\r\n"
                                "Public Sub RunScript(ByVal v_lRuleID As Long)\r\n"));
    // Byte for byte what the program hands the reviewer, and one case for each condition.
    EXPECT_EQ(text, programsScriptFile(rulebase));
    const qsizetype cases = text.count("\r\n        Case ");
    EXPECT_GT(cases, 0);
    EXPECT_EQ(run.out, rulebase + u": %1 conditions written to "_s.arg(cases) + out + '\n');
    EXPECT_EQ(QDir(dir).entryList(QDir::Files), QStringList{u"Team.qrb"_s});
    EXPECT_EQ(readFile(rulebase), sampleBytes());
}

TEST(ScriptsCommand, AFileThatCantBeWrittenIsNamedAndNothingIsLeft)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + u"/Team.qrb"_s, sampleBytes());
    const QString out = dir + u"/none/conditions.qrs"_s;

    const ToolRun run = runQrbTool({u"scripts"_s, rulebase, u"-o"_s, out});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.err.startsWith(u"qrbtool scripts: "_s + out
                                   + u": the condition script file could not be "
                                     u"written"_s))
        << run.err.toStdString();
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(dir + u"/none"_s));

    // A rulebase read only in part gives no file at all.
    const QString broken = writeFile(dir + u"/Broken.qrb"_s, sampleBytes().left(3000));
    const QString fromBroken = dir + u"/broken.qrs"_s;
    const ToolRun partial = runQrbTool({u"scripts"_s, broken, u"-o"_s, fromBroken});
    EXPECT_EQ(partial.exitCode, 2);
    EXPECT_TRUE(partial.err.contains("could not be read completely"_L1));
    EXPECT_FALSE(QFileInfo::exists(fromBroken));

    // Nor over the rulebase itself.
    const ToolRun itself = runQrbTool({u"scripts"_s, rulebase, u"-o"_s, rulebase});
    EXPECT_EQ(itself.exitCode, 2);
    EXPECT_EQ(readFile(rulebase), sampleBytes());
}
