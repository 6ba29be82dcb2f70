#include "platform/FileUtils.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"

#include <gtest/gtest.h>

TEST(TextUtils, ValReadsTheLeadingNumberOnly)
{
    EXPECT_EQ(Text::val(QStringLiteral("5000Key")), 5000);
    EXPECT_EQ(Text::val(QStringLiteral("7K")), 7);
    EXPECT_EQ(Text::val(QStringLiteral("K")), 0);
    EXPECT_EQ(Text::val(QStringLiteral("")), 0);
    EXPECT_EQ(Text::val(QStringLiteral("  -12.5abc")), -12.5);
    EXPECT_EQ(Text::val(QStringLiteral("0Key")), 0);
    EXPECT_EQ(Text::valLong(QStringLiteral("2.5")), 2); // banker's rounding, as the runtime
    EXPECT_EQ(Text::valLong(QStringLiteral("3.5")), 4);
    EXPECT_THROW(Text::valLong(QStringLiteral("99999999999")), QuorinError);
}

TEST(TextUtils, StrictConversionsRefuseWhatTheFileMayNotHold)
{
    const QString src = QStringLiteral("test");
    EXPECT_TRUE(Text::toBool(QStringLiteral("TRUE"), src));
    EXPECT_FALSE(Text::toBool(QStringLiteral("false"), src));
    EXPECT_TRUE(Text::toBool(QStringLiteral("-1"), src));
    EXPECT_FALSE(Text::toBool(QStringLiteral("0"), src));
    EXPECT_THROW(Text::toBool(QStringLiteral("Yes"), src), QuorinError);

    EXPECT_EQ(Text::toLong(QStringLiteral("-1"), src), -1);
    EXPECT_EQ(Text::toLong(QStringLiteral("5000.6"), src), 5001);
    EXPECT_THROW(Text::toLong(QStringLiteral(""), src), QuorinError);
    EXPECT_THROW(Text::toLong(QStringLiteral("12abc"), src), QuorinError);
    EXPECT_THROW(Text::toLong(QStringLiteral("2147483648"), src), QuorinError);
    EXPECT_EQ(Text::toInteger(QStringLiteral("32767"), src), 32767);
    try {
        Text::toInteger(QStringLiteral("32768"), src);
        FAIL() << "no overflow";
    } catch (const QuorinError &e) {
        EXPECT_EQ(e.number(), ErrorNumber::Overflow);
    }
}

TEST(TextUtils, FormatsAndFractions)
{
    EXPECT_EQ(Text::zeroPadded(1, 4), QStringLiteral("0001"));
    EXPECT_EQ(Text::zeroPadded(12345, 4), QStringLiteral("12345"));
    EXPECT_FLOAT_EQ(Text::stringToSingle(QStringLiteral("0,25")), 0.25f);
    EXPECT_FLOAT_EQ(Text::stringToSingle(QStringLiteral("0.58")), 0.58f);
    EXPECT_EQ(Text::trimBlanks(QStringLiteral("  a\t ")), QStringLiteral("a\t"));
}

TEST(FileUtils, PathsSplitOnEitherSeparator)
{
    using namespace FileUtils;
    EXPECT_EQ(FilenameFromFullPathName(QStringLiteral("C:\\a\\b.qrb")), QStringLiteral("b.qrb"));
    EXPECT_EQ(FilenameFromFullPathName(QStringLiteral("C:\\a\\b")), QString());
    EXPECT_EQ(FilenameFromFullPathName(QStringLiteral("/home/x/r.qrb")), QStringLiteral("r.qrb"));
    EXPECT_EQ(PathFromFilename(QStringLiteral("C:\\a\\b.qrb")), QStringLiteral("C:\\a\\"));
    EXPECT_EQ(PathFromFilename(QStringLiteral("b.qrb")), QString());
    EXPECT_EQ(RemoveQuotes(QStringLiteral("\"C:\\My Files\\x.qrb\"")), QStringLiteral("C:\\My Files\\x.qrb"));
    EXPECT_EQ(RemoveQuotes(QStringLiteral("\"half")), QStringLiteral("half"));
    EXPECT_FALSE(FileExists(QString()));
}
