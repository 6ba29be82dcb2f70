#include "ToolTestSupport.h"

#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinError.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"
#include "tools/ConsoleUserInterface.h"
#include "tools/QrbTool.h"
#include "tools/ToolBackends.h"
#include "tools/ToolCommand.h"
#include "tools/ToolContext.h"

#include <QFileInfo>
#include <QProcess>
#include <QTextStream>

#include <gtest/gtest.h>

TEST(QrbTool, OverviewVersionHelpAndUnknownCommands)
{
    const ToolRun none = runQrbTool({});
    EXPECT_EQ(none.exitCode, 2);
    EXPECT_TRUE(none.out.isEmpty());
    EXPECT_TRUE(none.err.startsWith(QLatin1String("Usage: qrbtool COMMAND")));

    const ToolRun help = runQrbTool({QStringLiteral("--help")});
    EXPECT_EQ(help.exitCode, 0);
    for (const char *command : {"check", "upgrade", "diff", "stats", "doc", "scripts", "import"})
        EXPECT_TRUE(help.out.contains(QStringLiteral("\n  %1 ").arg(QLatin1String(command))))
            << command;

    const ToolRun version = runQrbTool({QStringLiteral("--version")});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.out, QrbTool::versionText() + QLatin1Char('\n'));

    const ToolRun unknown = runQrbTool({QStringLiteral("lint")});
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_TRUE(unknown.err.contains(QLatin1String("unknown command 'lint'")));

    // Every command answers --help and "help COMMAND" alike, on the output, with exit 0.
    QrbTool tool;
    for (const char *name : {"check", "upgrade", "diff", "stats", "doc", "scripts", "import"}) {
        const ToolCommand *command = tool.command(QLatin1String(name));
        ASSERT_NE(command, nullptr) << name;
        const ToolRun commandHelp = runQrbTool({QLatin1String(name), QStringLiteral("--help")});
        EXPECT_EQ(commandHelp.exitCode, 0) << name;
        EXPECT_TRUE(
            commandHelp.out.startsWith(QStringLiteral("Usage: qrbtool ") + command->synopsis()))
            << name;
        EXPECT_TRUE(commandHelp.out.contains(QLatin1String("Exit codes: 0 success")));
        EXPECT_EQ(runQrbTool({QStringLiteral("help"), QLatin1String(name)}).out, commandHelp.out)
            << name;
    }
}

TEST(QrbTool, CommandsOfFeaturesCheckTheirArgumentsFirst)
{
    const QString sample = TestEnvironment::sampleRulebase();
    const QString dir = TestEnvironment::makeTempDir();
    const QString project = writeFile(dir + QStringLiteral("/P.vbp"), "Type=Exe\r\n");

    // What a build without a feature says of its command.
    QString said;
    {
        QTextStream out(&said);
        QTextStream err(&said);
        ToolContext context(out, err);
        EXPECT_EQ(ToolBackends::notAvailable(QStringLiteral("scripts"), context), 2);
    }
    EXPECT_EQ(said, QStringLiteral("qrbtool: 'scripts' is not available in this build\n"));

    // Usage comes first: a missing -o or --from is said as such.
    const ToolRun noOutput = runQrbTool({QStringLiteral("doc"), sample});
    EXPECT_EQ(noOutput.exitCode, 2);
    EXPECT_TRUE(
        noOutput.err.contains(QLatin1String("qrbtool doc: no output file given (-o OUT.html)")));
    const ToolRun noSource = runQrbTool({QStringLiteral("import"), sample});
    EXPECT_TRUE(noSource.err.contains(QLatin1String("qrbtool import: nothing to import from")));
    const ToolRun noProject = runQrbTool({QStringLiteral("import"),
                                          sample,
                                          QStringLiteral("--from"),
                                          project + QStringLiteral("x")});
    EXPECT_EQ(noProject.exitCode, 2);
    EXPECT_TRUE(noProject.err.contains(QLatin1String("P.vbpx: No such file")));
    const ToolRun missing = runQrbTool({QStringLiteral("scripts"),
                                        dir + QStringLiteral("/None.qrb"),
                                        QStringLiteral("-o"),
                                        dir + QStringLiteral("/x.qrs")});
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_TRUE(missing.err.contains(QLatin1String("None.qrb: No such file")));
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
        EXPECT_EQ(askYesNo(QStringLiteral("Save?"), MessageResult::Yes), MessageResult::No);
        EXPECT_EQ(askYesNoCancel(QStringLiteral("Save now?"), MessageResult::Yes),
                  MessageResult::Cancel);
        EXPECT_EQ(console.messageBox(QStringLiteral("Go on?"),
                                     MessageButtons::OKCancel,
                                     MessageIcon::Question,
                                     QString(),
                                     MessageResult::OK),
                  MessageResult::Cancel);
        showWarning(QStringLiteral("Careful."));
        FileDialogRequest request;
        EXPECT_FALSE(console.getOpenFilename(request));
        EXPECT_FALSE(console.getSaveFilename(request));
        EXPECT_FALSE(console.shellOpen(QStringLiteral("x.html")));
        // Without a log of the process's own, the error frame's reports arrive here as well.
        if (!gobjLogFile)
            ADD_FAILURE() << "the console set up no log";
        reportError(QuorinError(5, QStringLiteral("Here::There"), QStringLiteral("Broken")),
                    "There",
                    "Here");
        echo.flush();
        const QStringList messages = console.messages();
        ASSERT_EQ(messages.size(), 5);
        EXPECT_EQ(messages.at(3), QStringLiteral("Careful."));
        EXPECT_TRUE(
            messages.at(4).startsWith(QLatin1String("Quorin Unexpected Error: Error 5 - Broken")));
        EXPECT_EQ(console.takeMessages().size(), 5);
        EXPECT_TRUE(console.messages().isEmpty());
    }
    EXPECT_TRUE(echoed.contains(QLatin1String("qrbtool: Careful.\n")));
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
    EXPECT_EQ(
        exitOf(
            {QStringLiteral("check"), QStringLiteral("--format"), QStringLiteral("json"), sample},
            &out),
        0);
    EXPECT_TRUE(parseJsonObject(out).value(QStringLiteral("files")).isArray());
    const QString broken
        = writeFile(dir + QStringLiteral("/Broken.qrb"), sampleBytes().left(3000));
    EXPECT_EQ(exitOf({QStringLiteral("check"), broken}, &out), 1);
    EXPECT_TRUE(out.startsWith(broken + QLatin1Char(':'))) << out.toStdString();
    EXPECT_EQ(exitOf({QStringLiteral("diff"), sample, broken}), 2);
    EXPECT_EQ(exitOf({QStringLiteral("check"), dir + QStringLiteral("/None.qrb")}), 2);
    EXPECT_EQ(exitOf({}), 2);
    EXPECT_EQ(exitOf({QStringLiteral("doc"),
                      sample,
                      QStringLiteral("-o"),
                      dir + QStringLiteral("/x.html"),
                      QStringLiteral("--organisation"),
                      QStringLiteral("K")}),
              0);
    EXPECT_TRUE(QFileInfo::exists(dir + QStringLiteral("/x.html")));
    EXPECT_EQ(exitOf({QStringLiteral("doc"),
                      sample,
                      QStringLiteral("-o"),
                      dir + QStringLiteral("/none/x.html"),
                      QStringLiteral("--organisation"),
                      QStringLiteral("K")}),
              2);
    // The program writes no log beside itself.
    EXPECT_FALSE(
        QFileInfo::exists(QFileInfo(program).absolutePath() + QStringLiteral("/Error.log")));
#endif
}
