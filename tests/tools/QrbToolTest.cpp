#include "ToolTestSupport.h"

#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinError.h"
#include "support/ScriptedUserInterface.h"
#include "tools/ConsoleUserInterface.h"
#include "tools/QrbTool.h"
#include "tools/ToolBackends.h"
#include "tools/ToolCommand.h"
#include "tools/ToolContext.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTextStream>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(QrbTool, OverviewVersionAndEveryCommandsHelp)
{
    const ToolRun help = runQrbTool({u"--help"_s});
    EXPECT_EQ(help.exitCode, 0);
    const ToolRun version = runQrbTool({u"--version"_s});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.out, QrbTool::versionText() + QLatin1Char('\n'));

    // Every command is in the overview and answers --help and "help COMMAND" alike, on the
    // output, with exit 0.
    QrbTool tool;
    for (const char *name : {"check", "upgrade", "diff", "stats", "doc", "scripts", "import"}) {
        EXPECT_TRUE(help.out.contains(u"\n  %1 "_s.arg(QLatin1String(name)))) << name;
        const ToolCommand *command = tool.command(QLatin1String(name));
        ASSERT_NE(command, nullptr) << name;
        const ToolRun commandHelp = runQrbTool({QLatin1String(name), u"--help"_s});
        EXPECT_EQ(commandHelp.exitCode, 0) << name;
        EXPECT_TRUE(commandHelp.out.startsWith(u"Usage: qrbtool "_s + command->synopsis())) << name;
        EXPECT_TRUE(commandHelp.out.contains("Exit codes: 0 success"_L1));
        EXPECT_EQ(runQrbTool({u"help"_s, QLatin1String(name)}).out, commandHelp.out) << name;
    }

    // What a build without a feature says of its command.
    QString said;
    {
        QTextStream out(&said);
        QTextStream err(&said);
        ToolContext context(out, err);
        EXPECT_EQ(ToolBackends::notAvailable(u"scripts"_s, context), 2);
    }
    EXPECT_EQ(said, u"qrbtool: 'scripts' is not available in this build\n"_s);
}

// Usage comes before any file is read: each of these exits 2 with its reason on the error
// stream and nothing on the output.
TEST(QrbTool, UsageAndMissingInputsExitTwoWithTheReason)
{
    const QString sample = TestEnvironment::sampleRulebase();
    const QString dir = TestEnvironment::makeTempDir();
    const QString project = writeFile(dir + u"/P.vbp"_s, "Type=Exe\r\n");
    const struct
    {
        QStringList arguments;
        QString reason;
    } refused[] = {
        {{}, u"Usage: qrbtool COMMAND"_s},
        {{u"lint"_s}, u"unknown command 'lint'"_s},
        {{u"check"_s}, QString()},
        {{u"check"_s, u"--format"_s, u"xml"_s, sample}, u"unknown format 'xml'"_s},
        {{u"check"_s, u"--frobnicate"_s, sample}, u"qrbtool check: Unknown option 'frobnicate'"_s},
        {{u"diff"_s, sample}, QString()},
        {{u"stats"_s}, QString()},
        {{u"upgrade"_s, sample}, QString()},
        {{u"upgrade"_s, sample, u"--in-place"_s, u"-o"_s, dir + u"/x.qrb"_s}, QString()},
        {{u"doc"_s, sample}, u"qrbtool doc: no output file given (-o OUT.html)"_s},
        {{u"import"_s, sample}, u"qrbtool import: nothing to import from"_s},
        {{u"import"_s, sample, u"--from"_s, project + u"x"_s}, u"P.vbpx: No such file"_s},
        {{u"scripts"_s, dir + u"/None.qrb"_s, u"-o"_s, dir + u"/x.qrs"_s},
         u"None.qrb: No such file"_s},
    };
    for (const auto &row : refused) {
        const QString call = row.arguments.join(QLatin1Char(' '));
        const ToolRun run = runQrbTool(row.arguments);
        EXPECT_EQ(run.exitCode, 2) << call.toStdString();
        EXPECT_TRUE(run.err.contains(row.reason)) << call.toStdString() << run.err.toStdString();
        EXPECT_TRUE(run.out.isEmpty()) << call.toStdString() << "\n" << run.out.toStdString();
    }
    EXPECT_EQ(QDir(dir).entryList(QDir::Files, QDir::Name), QStringList{u"P.vbp"_s});
}

TEST(QrbTool, TheConsoleAnswersEveryQuestionNoAndCatchesTheErrorFramesReports)
{
    ScriptedUserInterface scripted;
    QString echoed;
    {
        QTextStream echo(&echoed);
        ConsoleUserInterface console(&echo);
        EXPECT_EQ(&UserInterface::current(), &console);
        // Nobody to ask: the cautious answer, whatever the box's default.
        EXPECT_EQ(askYesNoCancel(u"Save now?"_s, MessageResult::Yes), MessageResult::Cancel);
        showWarning(u"Careful."_s);
        FileDialogRequest request;
        EXPECT_FALSE(console.getOpenFilename(request));
        EXPECT_FALSE(console.getSaveFilename(request));
        EXPECT_FALSE(console.shellOpen(u"x.html"_s));
        // Without a log of the process's own, the error frame's reports arrive here as well.
        if (!gobjLogFile)
            ADD_FAILURE() << "the console set up no log";
        reportError(QuorinError(5, u"Here::There"_s, u"Broken"_s), "There", "Here");
        echo.flush();
        const QStringList messages = console.messages();
        ASSERT_EQ(messages.size(), 3);
        EXPECT_EQ(messages.at(1), u"Careful."_s);
        EXPECT_TRUE(messages.at(2).startsWith("Quorin Unexpected Error: Error 5 - Broken"_L1));
        EXPECT_EQ(console.takeMessages().size(), 3);
        EXPECT_TRUE(console.messages().isEmpty());
    }
    EXPECT_TRUE(echoed.contains("qrbtool: Careful.\n"_L1));
    // What was there before comes back, log included.
    EXPECT_EQ(&UserInterface::current(), &scripted);
    EXPECT_FALSE(gobjLogFile);
    EXPECT_TRUE(scripted.messages.empty());
}

TEST(QrbTool, TheBuiltProgramGivesItsExitCodes)
{
#ifndef QRBTOOL_EXECUTABLE
    GTEST_SKIP() << "the program is not built with the tests";
#else
    const QString program = QStringLiteral(QRBTOOL_EXECUTABLE);
    ASSERT_TRUE(QFileInfo(program).isExecutable()) << program.toStdString();
    const auto exitOf = [&program](const QStringList &arguments, QString *out = nullptr) {
        QProcess process;
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        if (out)
            *out = QString::fromUtf8(process.readAllStandardOutput());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    };
    const QString sample = TestEnvironment::sampleRulebase();
    const QString dir = TestEnvironment::makeTempDir();
    QString out;
    EXPECT_EQ(exitOf({u"check"_s, u"--format"_s, u"json"_s, sample}, &out), 0);
    EXPECT_TRUE(parseJsonObject(out).value(u"files"_s).isArray());
    const QString broken = writeFile(dir + u"/Broken.qrb"_s, sampleBytes().left(3000));
    EXPECT_EQ(exitOf({u"check"_s, broken}, &out), 1);
    EXPECT_TRUE(out.startsWith(broken + QLatin1Char(':'))) << out.toStdString();
    EXPECT_EQ(exitOf({u"check"_s, dir + u"/None.qrb"_s}), 2);
    EXPECT_EQ(exitOf({u"doc"_s, sample, u"-o"_s, dir + u"/x.html"_s, u"--organisation"_s, u"K"_s}),
              0);
    EXPECT_TRUE(QFileInfo::exists(dir + u"/x.html"_s));
    // The program writes no log beside itself.
    EXPECT_FALSE(QFileInfo::exists(QFileInfo(program).absolutePath() + u"/Error.log"_s));
#endif
}
