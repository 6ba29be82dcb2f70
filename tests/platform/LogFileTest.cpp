#include "platform/LogFile.h"
#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinError.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList readLines(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

class LogFileTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        dir = TestEnvironment::makeTempDir();
        log.setLogFileName(dir + u"/Error.log"_s);
        log.setComponent(u"QuorinAdmin"_s);
        log.setComponentVersion(u"6.02.0001"_s);
    }
    QString dir;
    LogFile log;
    ScriptedUserInterface ui;
};

} // namespace

TEST_F(LogFileTest, RecordsHaveFiveFieldsWithPaddedComponentAndType)
{
    log.LogEvent(u"No element at position 3"_s, u"ElementAtPosition"_s, u"TarnXMLElement"_s);
    log.LogAssert(false, u"bad"_s, u"F"_s, u"M"_s);
    log.LogAssert(true, u"never"_s, u"F"_s, u"M"_s);
    log.setComponent(u"AVeryLongComponentName"_s);
    log.LogDebugTrace(u"trace"_s, u"F"_s, u"M"_s);

    const QStringList lines = readLines(log.logFileName());
    ASSERT_EQ(lines.size(), 3);
    const QRegularExpression record(QStringLiteral(
        R"(^\d\d/\d\d/\d\d \d\d:\d\d:\d\d#QuorinAdmin  \(6\.02\.0001\)#Event #No element at position 3#TarnXMLElement::ElementAtPosition$)"));
    EXPECT_TRUE(record.match(lines[0]).hasMatch()) << lines[0].toStdString();
    EXPECT_TRUE(lines[1].contains(u"#Assert#bad#M::F"_s));
    EXPECT_TRUE(lines[2].contains(u"#AVeryLongCom (6.02.0001)#Debug #"_s));
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LogFileTest, ErrorsShowTheUnexpectedErrorBoxUnlessQuiet)
{
    const QuorinError error(ErrorNumber::NoSuchItem, u"KeyedArrayList::Item"_s, u"No such item."_s);
    log.LogBasicError(error, u"LoadTags"_s, u"RulebaseManager"_s);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, u"Quorin Unexpected Error"_s);
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(ui.messages[0].text,
              u"Error -2147220990 - No such item. in function LoadTags module RulebaseManager"_s);

    log.setQuiet(true);
    log.LogBasicError(error, u"LoadTags"_s, u"RulebaseManager"_s);
    log.LogSetupError(u"setup"_s, u"F"_s, u"M"_s);
    EXPECT_EQ(ui.messages.size(), 1u);

    const QStringList lines = readLines(log.logFileName());
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(
        lines[0].contains(u"#Error #-2147220990 - No such item.#RulebaseManager::LoadTags"_s));
    EXPECT_TRUE(lines[2].contains(u"#Setup #setup#M::F"_s));
}

TEST_F(LogFileTest, ReviewLogTakesRecordsUntilClosed)
{
    const QString review = dir + u"/review.log"_s;
    {
        QFile existing(review);
        ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
        existing.write("old\n");
    }
    log.SetReviewLog(review, false);
    log.LogMessage(u"first"_s);
    log.CloseReview();
    log.LogMessage(u"second"_s);
    EXPECT_EQ(readLines(review), (QStringList{u"old"_s, u"first"_s}));
    EXPECT_EQ(readLines(log.logFileName()), QStringList{u"second"_s});

    log.SetReviewLog(review, true);
    log.LogMessage(u"fresh"_s);
    EXPECT_EQ(readLines(review), QStringList{u"fresh"_s});

    // A log whose folder is missing loses the record quietly.
    log.CloseReview();
    log.setLogFileName(dir + u"/missing/Error.log"_s);
    log.LogMessage(u"lost"_s);
    EXPECT_FALSE(QFile::exists(log.logFileName()));
}

TEST_F(LogFileTest, ErrorFrameReportsAndGivesTheFailureValue)
{
    gobjLogFile = std::make_shared<LogFile>(log);
    const int result = guarded(
        "Compute", "Calc", -1, []() -> int { throw QuorinError::subscriptOutOfRange(u"x"_s); });
    const bool ran = guardedVoid("Nothing", "Calc", [] {});
    gobjLogFile.reset();
    EXPECT_EQ(result, -1);
    EXPECT_TRUE(ran);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text,
              u"Error 9 - Subscript out of range in function Compute module Calc"_s);
}
