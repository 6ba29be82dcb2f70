#include "ToolTestSupport.h"

#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ScriptsCommand, WritesTheProgramsScriptFileOrNothingWithTheReason)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + u"/Team.qrb"_s, sampleBytes());
    const QString out = dir + u"/build/conditions.qrs"_s;
    QDir().mkpath(dir + u"/build"_s);

    const ToolRun run = runQrbTool({u"scripts"_s, rulebase, u"-o"_s, out});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();
    // Byte for byte what the program hands the reviewer (written into a folder of its own),
    // and one case for each condition.
    const QByteArray savedTemp = qgetenv("TMPDIR");
    qputenv("TMPDIR", TestEnvironment::makeTempDir().toLocal8Bit());
    const QString programs = loadQuietly(rulebase)->RuleLists()->CreateScriptFile();
    qputenv("TMPDIR", savedTemp);
    const QByteArray text = readFile(out);
    EXPECT_EQ(text, readFile(programs));
    const qsizetype cases = text.count("\r\n        Case ");
    EXPECT_GT(cases, 0);
    EXPECT_EQ(run.out, rulebase + u": %1 conditions written to "_s.arg(cases) + out + '\n');
    EXPECT_EQ(QDir(dir).entryList(QDir::Files), QStringList{u"Team.qrb"_s});

    // A folder that isn't there, a rulebase read only in part, and the rulebase itself as the
    // target: exit 2 with the reason, and no file.
    const QString broken = writeFile(dir + u"/Broken.qrb"_s, sampleBytes().left(3000));
    const struct
    {
        QString rulebase;
        QString out;
        const char *reason;
    } refused[] = {
        {rulebase,
         dir + u"/none/conditions.qrs"_s,
         "the condition script file could not be written"},
        {broken, dir + u"/broken.qrs"_s, "could not be read completely"},
        {rulebase, rulebase, ""},
    };
    for (const auto &row : refused) {
        const ToolRun failed = runQrbTool({u"scripts"_s, row.rulebase, u"-o"_s, row.out});
        EXPECT_EQ(failed.exitCode, 2) << row.reason;
        EXPECT_TRUE(failed.err.contains(QLatin1String(row.reason))) << failed.err.toStdString();
        EXPECT_TRUE(failed.out.isEmpty());
        EXPECT_EQ(QFileInfo::exists(row.out), row.out == rulebase) << row.reason;
    }
    EXPECT_FALSE(QFileInfo::exists(dir + u"/none"_s));
    EXPECT_EQ(readFile(rulebase), sampleBytes());
}
