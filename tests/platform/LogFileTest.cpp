#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/QuorinError.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

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
        log.setLogFileName(dir + QStringLiteral("/Error.log"));
        log.setComponent(QStringLiteral("QuorinAdmin"));
        log.setComponentVersion(QStringLiteral("6.02.0001"));
    }
    QString dir;
    LogFile log;
    ScriptedUserInterface ui;
};

} // namespace

TEST_F(LogFileTest, RecordsHaveFiveFieldsWithPaddedComponentAndType)
{
    log.LogEvent(QStringLiteral("No element at position 3"),
                 QStringLiteral("ElementAtPosition"),
                 QStringLiteral("TarnXMLElement"));
    log.LogAssert(false, QStringLiteral("bad"), QStringLiteral("F"), QStringLiteral("M"));
    log.LogAssert(true, QStringLiteral("never"), QStringLiteral("F"), QStringLiteral("M"));
    log.setComponent(QStringLiteral("AVeryLongComponentName"));
    log.LogDebugTrace(QStringLiteral("trace"), QStringLiteral("F"), QStringLiteral("M"));

    const QStringList lines = readLines(log.logFileName());
    ASSERT_EQ(lines.size(), 3);
    const QRegularExpression record(QStringLiteral(
        R"(^\d\d/\d\d/\d\d \d\d:\d\d:\d\d#QuorinAdmin  \(6\.02\.0001\)#Event #No element at position 3#TarnXMLElement::ElementAtPosition$)"));
    EXPECT_TRUE(record.match(lines[0]).hasMatch()) << lines[0].toStdString();
    EXPECT_TRUE(lines[1].contains(QStringLiteral("#Assert#bad#M::F")));
    EXPECT_TRUE(lines[2].contains(QStringLiteral("#AVeryLongCom (6.02.0001)#Debug #")));
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LogFileTest, ErrorsShowTheUnexpectedErrorBoxUnlessQuiet)
{
    const QuorinError error(ErrorNumber::NoSuchItem, QStringLiteral("KeyedArrayList::Item"), QStringLiteral("No such item."));
    log.LogBasicError(error, QStringLiteral("LoadTags"), QStringLiteral("RulebaseManager"));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, QStringLiteral("Quorin Unexpected Error"));
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Critical);
    EXPECT_EQ(ui.messages[0].text,
              QStringLiteral("Error -2147220990 - No such item. in function LoadTags module RulebaseManager"));

    log.setQuiet(true);
    log.LogBasicError(error, QStringLiteral("LoadTags"), QStringLiteral("RulebaseManager"));
    log.LogSetupError(QStringLiteral("setup"), QStringLiteral("F"), QStringLiteral("M"));
    EXPECT_EQ(ui.messages.size(), 1u);

    const QStringList lines = readLines(log.logFileName());
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].contains(QStringLiteral("#Error #-2147220990 - No such item.#RulebaseManager::LoadTags")));
    EXPECT_TRUE(lines[2].contains(QStringLiteral("#Setup #setup#M::F")));
}

TEST_F(LogFileTest, ReviewLogTakesRecordsUntilClosed)
{
    const QString review = dir + QStringLiteral("/review.log");
    {
        QFile existing(review);
        ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
        existing.write("old\n");
    }
    log.SetReviewLog(review, false);
    log.LogMessage(QStringLiteral("first"));
    log.CloseReview();
    log.LogMessage(QStringLiteral("second"));
    EXPECT_EQ(readLines(review), (QStringList{QStringLiteral("old"), QStringLiteral("first")}));
    EXPECT_EQ(readLines(log.logFileName()), QStringList{QStringLiteral("second")});

    log.SetReviewLog(review, true);
    log.LogMessage(QStringLiteral("fresh"));
    EXPECT_EQ(readLines(review), QStringList{QStringLiteral("fresh")});

    // A log whose folder is missing loses the record quietly.
    log.CloseReview();
    log.setLogFileName(dir + QStringLiteral("/missing/Error.log"));
    log.LogMessage(QStringLiteral("lost"));
    EXPECT_FALSE(QFile::exists(log.logFileName()));
}

TEST_F(LogFileTest, ErrorFrameReportsAndGivesTheFailureValue)
{
    gobjLogFile = std::make_shared<LogFile>(log);
    const int result = guarded("Compute", "Calc", -1, []() -> int {
        throw QuorinError::subscriptOutOfRange(QStringLiteral("x"));
    });
    const bool ran = guardedVoid("Nothing", "Calc", [] {});
    gobjLogFile.reset();
    EXPECT_EQ(result, -1);
    EXPECT_TRUE(ran);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text,
              QStringLiteral("Error 9 - Subscript out of range in function Compute module Calc"));
}
