#include "rulebase/ScriptFile.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using TestEnvironment::readFile;

// Lines joined with CR LF, each one ended.
QString lines(std::initializer_list<const char *> texts)
{
    QString text;
    for (const char *line : texts)
        text += QString::fromUtf8(line) + u"\r\n"_s;
    return text;
}

} // namespace

// With no conditions the dispatcher is empty; an old file, even a read-only one, is replaced.
TEST(ScriptFile, GathersTheConditionsBehindAGeneratedDispatcher)
{
    const QString folder = TestEnvironment::makeTempDir();
    ScriptFile file(folder);
    EXPECT_EQ(file.FullFilename(), QDir::toNativeSeparators(folder + u"/QuorinScripts.qrs"_s));
    EXPECT_EQ(ScriptFile::ScriptPrototype(), u"Public Sub RunScript(ByVal v_lRuleID As Long)"_s);
    TestEnvironment::writeFile(file.FullFilename(), QByteArray("old text ").repeated(30));
    QFile::setPermissions(file.FullFilename(), QFileDevice::ReadOwner);
    ASSERT_TRUE(file.CreateScriptFile());
    EXPECT_EQ(QString::fromUtf8(readFile(file.FullFilename())),
              lines({"Attribute VB_Name = \"QuorinScripts\"",
                     "",
                     "Public Sub RunScript(ByVal v_lRuleID As Long)",
                     "",
                     "End Sub",
                     "",
                     ""}));

    file.AddScript(5000, u"sub main\r\n  Call Quorin.RaiseViolation()\r\nEnd Sub\r\n"_s);
    file.AddScript(5001, QString());                // nothing to run: no Case
    file.AddScript(5000, u"Sub Main\r\nEnd Sub"_s); // the first of an id stays
    file.AddScript(5002, u"Sub Main\r\nEnd Sub\r\nSub Main\r\nEnd Sub"_s);
    file.AddScript(5003, u"x = 1"_s); // no entry line: as it is
    ASSERT_TRUE(file.CreateScriptFile());

    const QString expected = lines({"Attribute VB_Name = \"QuorinScripts\"",
                                    "",
                                    "Public Sub RunScript(ByVal v_lRuleID As Long)",
                                    "",
                                    "    Select Case v_lRuleID",
                                    "        Case 5000",
                                    "            Call Method_5000",
                                    "        Case 5002",
                                    "            Call Method_5002",
                                    "        Case 5003",
                                    "            Call Method_5003",
                                    "    End Select",
                                    "",
                                    "End Sub",
                                    "",
                                    "",
                                    "Sub Method_5000",
                                    "  Call Quorin.RaiseViolation()",
                                    "End Sub",
                                    "",
                                    "",
                                    "Sub Method_5002",
                                    "End Sub",
                                    "Sub Main",
                                    "End Sub",
                                    "",
                                    "x = 1",
                                    ""});
    EXPECT_EQ(file.ScriptText(), expected);
    EXPECT_EQ(QString::fromUtf8(readFile(file.FullFilename())), expected);
}

TEST(ScriptFile, AFailedWriteIsReportedAndLeavesNoPartFile)
{
    ScriptedUserInterface ui;
    const QString folder = TestEnvironment::makeTempDir();
    if (!TestEnvironment::makeReadOnly(folder))
        GTEST_SKIP() << "this file system can't make a folder read-only";
    auto log = std::make_shared<LogFile>();
    log->setLogFileName(TestEnvironment::makeTempDir() + u"/Error.log"_s);
    gobjLogFile = log;
    ScriptFile file(folder);
    file.AddScript(5000, u"Sub Main\r\nEnd Sub"_s);
    const bool written = file.CreateScriptFile();
    TestEnvironment::makeWritable(folder);
    gobjLogFile.reset();

    EXPECT_FALSE(written);
    EXPECT_FALSE(QFile::exists(file.FullFilename()));
    EXPECT_TRUE(QDir(folder).entryList(QDir::Files | QDir::Hidden).isEmpty());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, u"Quorin Unexpected Error"_s);
    EXPECT_TRUE(ui.messages[0].text.contains(u"could not be written"_s));
    EXPECT_TRUE(ui.messages[0].text.contains(u"module ScriptFile"_s));
}
