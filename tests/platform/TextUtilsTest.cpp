#include "platform/TextUtils.h"
#include "platform/FileUtils.h"
#include "platform/QuorinError.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace Qt::StringLiterals;

// The leading number of a text, as keys ("5000Key") and hand-typed values are read.
TEST(TextUtils, ValReadsTheLeadingNumberOnly)
{
    const std::pair<const char16_t *, double> cases[]
        = {{u"5000Key", 5000}, {u"7K", 7},        {u"K", 0},
           {u"", 0},           {u"0Key", 0},      {u"  -12.5abc", -12.5},
           {u"\t\r\n 3", 3},   {u"+4", 4},        {u"-", 0},
           {u".5", 0.5},       {u"1.2.3", 1.2},   {u"1 2 3x", 123},
           {u"1e3", 1000},     {u"2E-2x", 0.02},  {u"1e", 1},
           {u"1e+", 1},        {u"-1e2", -100},   {u"１２", 0},
           {u"x12", 0},        {u"12\u00a0", 12}, {u"99999999999", 99999999999.0}};
    for (const auto &[text, expected] : cases)
        EXPECT_DOUBLE_EQ(Text::val(QString::fromUtf16(text)), expected)
            << QString::fromUtf16(text).toStdString();

    // Rounded half to even into 32 bits, as the original runtime's CLng did.
    const std::pair<const char16_t *, qint32> longs[] = {{u"2.5", 2},
                                                         {u"3.5", 4},
                                                         {u"-2.5", -2},
                                                         {u"2.51", 3},
                                                         {u"2147483647", 2147483647},
                                                         {u"-2147483648", -2147483647 - 1},
                                                         {u"2147483647.4", 2147483647}};
    for (const auto &[text, expected] : longs)
        EXPECT_EQ(Text::valLong(QString::fromUtf16(text)), expected)
            << QString::fromUtf16(text).toStdString();
    for (const char16_t *text : {u"99999999999", u"2147483647.5", u"-2147483648.6"})
        EXPECT_THROW(Text::valLong(QString::fromUtf16(text)), QuorinError);
}

TEST(TextUtils, StrictConversionsRefuseWhatTheFileMayNotHold)
{
    const QString src = u"test"_s;
    for (const char *text : {"TRUE", "true", " True ", "-1", "2", "0.5"})
        EXPECT_TRUE(Text::toBool(QLatin1String(text), src)) << text;
    for (const char *text : {"false", "0", "-0"})
        EXPECT_FALSE(Text::toBool(QLatin1String(text), src)) << text;
    for (const char *text : {"Yes", "", "Truee", "1x"})
        EXPECT_THROW(Text::toBool(QLatin1String(text), src), QuorinError) << text;

    // The value, or the error's number.
    auto outcome = [&](auto convert, const char *text) -> qint64 {
        try {
            return convert(QLatin1String(text), src);
        } catch (const QuorinError &e) {
            return e.number() == ErrorNumber::Overflow ? -999999 : -888888;
        }
    };
    const std::tuple<const char *, qint64, qint64> cases[] = {
        // text, toLong, toInteger
        {"-1", -1, -1},
        {"5000.6", 5001, 5001},
        {"4.5", 4, 4},
        {" 12 ", 12, 12},
        {"32767", 32767, 32767},
        {"32768", 32768, -999999},
        {"-32768", -32768, -32768},
        {"-32769", -32769, -999999},
        {"2147483647", 2147483647, -999999},
        {"2147483648", -999999, -999999},
        {"-2147483648", -2147483648LL, -999999},
        {"1e3", 1000, 1000},
        {"", -888888, -888888},
        {"12abc", -888888, -888888},
        {"-", -888888, -888888},
        {"inf", -888888, -888888},
    };
    for (const auto &[text, asLong, asInteger] : cases) {
        EXPECT_EQ(outcome(Text::toLong, text), asLong) << text;
        EXPECT_EQ(outcome(Text::toInteger, text), asInteger) << text;
    }

    qint64 plain = 0;
    EXPECT_TRUE(Text::parsePlainInteger(QStringView(u"-0042"), plain));
    EXPECT_EQ(plain, -42);
    EXPECT_TRUE(Text::parsePlainInteger(QUtf8StringView("999999999999999999"), plain));
    EXPECT_EQ(plain, 999999999999999999LL);
    for (const char *text : {"", "-", "+1", "1.0", " 1", "1 ", "9999999999999999999", "0x1"})
        EXPECT_FALSE(Text::parsePlainInteger(QUtf8StringView(text), plain)) << text;
}

TEST(TextUtils, FormatsFractionsAndBlanks)
{
    EXPECT_EQ(Text::zeroPadded(1, 4), u"0001"_s);
    EXPECT_EQ(Text::zeroPadded(12345, 4), u"12345"_s);
    EXPECT_EQ(Text::zeroPadded(-7, 3), u"-007"_s);
    EXPECT_EQ(Text::fromBool(true), u"True"_s);
    EXPECT_EQ(Text::fromBool(false), u"False"_s);
    for (const auto &[text, expected] :
         {std::pair("0,25", 0.25f), {" 0.58 ", 0.58f}, {"x", 0.0f}, {"-1,5e1", -15.0f}})
        EXPECT_FLOAT_EQ(Text::stringToSingle(QLatin1String(text)), expected) << text;
    EXPECT_EQ(Text::trimBlanks(u"  a\t "_s), u"a\t"_s);
    EXPECT_EQ(Text::trimBlanks(u"   "_s), QString());
    EXPECT_TRUE(Text::same(u"ABC"_s, u"abc"_s));
    EXPECT_TRUE(Text::same(u"Straße"_s, u"STRAßE"_s));
    for (const auto &[a, b] :
         {std::pair(u"abc", u"abd"), {u"ab", u"abc"}, {u"@", u"`"}, {u"[", u"{"}})
        EXPECT_FALSE(Text::same(QString::fromUtf16(a), QString::fromUtf16(b)));
}

TEST(FileUtils, PathsSplitOnEitherSeparator)
{
    using namespace FileUtils;
    const std::tuple<const char *, const char *, const char *> paths[] = {
        // path, file name, folder
        {"C:\\a\\b.qrb", "b.qrb", "C:\\a\\"},
        {"C:\\a\\b", "", "C:\\a\\"},
        {"/home/x/r.qrb", "r.qrb", "/home/x/"},
        {"b.qrb", "b.qrb", ""},
    };
    for (const auto &[path, name, folder] : paths) {
        EXPECT_EQ(FilenameFromFullPathName(QLatin1String(path)), QLatin1String(name)) << path;
        EXPECT_EQ(PathFromFilename(QLatin1String(path)), QLatin1String(folder)) << path;
    }
    EXPECT_EQ(RemoveQuotes(u"\"C:\\My Files\\x.qrb\""_s), u"C:\\My Files\\x.qrb"_s);
    EXPECT_EQ(RemoveQuotes(u"\"half"_s), u"half"_s);
    EXPECT_FALSE(FileExists(QString()));
}
