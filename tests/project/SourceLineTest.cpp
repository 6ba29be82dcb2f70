#include "ProjectTestSupport.h"

#include "project/Windows1252.h"
#include "project/modSource.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

using SourceLineAnalysis = ProjectTest;

TEST_F(SourceLineAnalysis, ClassifiesLinesByTheTextRules)
{
    using T = SourceLineType;
    const std::pair<const char *, SourceLineType> cases[] = {
        {"", T::Blank},
        {" \t \t  ", T::Blank},
        {"  1", T::Code},
        {"10:\t:", T::Code}, // digits, colons and tabs: not blank, nothing left to comment
        {"10 ' note", T::CommentOnly},
        {"10: ' note", T::CommentOnly},
        {"\t10 REM note", T::CommentOnly},
        {"Rem", T::Code}, // the Trim takes the blank "Rem " needs
        {"Rem\tnote", T::Code},
        {"Remark = 1", T::Code},
        {"a = 1 ' note", T::InLineComment},
        {"a = 1 : rem note", T::InLineComment},
        {"a = 1 :rem note", T::Code}, // ": Rem " needs both blanks
        {"a = 1: rem", T::Code},      // and the trailing one
        {"x = \"a'b\"", T::Code},
        {"x = \"a'b", T::InLineComment}, // an odd last quote is not emptied
        {"x = \"a\"\"b'c\"", T::Code},   // a doubled quote ends one literal and begins another
        {"a = 1 + _", T::Continuation},
        {"a = 1 ' see x_", T::Continuation},
        {"' comment_", T::CommentOnly},
        {"_", T::Continuation},
        {"a = b _\t", T::Code}, // tabs are not trimmed
    };
    for (const auto &[line, type] : cases)
        EXPECT_EQ(modSource::SourceLineType(QString::fromLatin1(line)), type) << "line: " << line;
    // Only the order of the tests tells a comment-only line from one with an in-line comment.
    EXPECT_TRUE(modSource::HasInLineComment(u"' only"_s));
    EXPECT_FALSE(modSource::IsCommentOnlyLine(QString()));
}

// The file reader classifies the bytes as they stand; it must agree with the rules on the
// decoded text for every mix of the characters the rules look at and of bytes beyond ASCII.
TEST_F(SourceLineAnalysis, BytesClassifyAsTheirDecodedText)
{
    const QList<QByteArray> pieces
        = QByteArray(" |\t|:|7|'|\"|_|Rem |rEm|: rem |x|=|\xe9|\x8a|\x93|\xa0|\xd2").split('|');
    std::mt19937 random(7);
    for (int n = 0; n < 20000; ++n) {
        QByteArray line;
        for (int k = int(random() % 9); k > 0; --k)
            line += pieces[random() % pieces.size()];
        EXPECT_EQ(modSource::LineTypeOfWindows1252(line),
                  modSource::SourceLineType(Windows1252::decode(line)))
            << "line: " << line.toStdString();
    }
}

TEST_F(SourceLineAnalysis, QuotedTextIsEmptiedAndEndQuotesRemoved)
{
    EXPECT_EQ(modSource::StripQuotedText(u"x = \"it's\" ' note"_s), u"x = \"\" ' note"_s);
    EXPECT_EQ(modSource::StripQuotedText(u"a(\"x\", \"yz\")"_s), u"a(\"\", \"\")"_s);
    EXPECT_EQ(modSource::StripQuotedText(u"\"\"\"b\""_s), u"\"\"\"\""_s);
    EXPECT_EQ(modSource::StripQuotedText(u"x = \"open"_s), u"x = \"open"_s);

    EXPECT_EQ(modSource::RemoveQuotes(u"\""_s), QString());
    EXPECT_EQ(modSource::RemoveQuotes(u"\"abc"_s), u"abc"_s);
    EXPECT_EQ(modSource::RemoveQuotes(u"abc\""_s), u"abc"_s);
    EXPECT_EQ(modSource::RemoveQuotes(u"\"\"\""_s), u"\""_s);
}

TEST_F(SourceLineAnalysis, QuoteBeyondSixteenBitPositionIsLoggedOverflow)
{
    const QString line = QString(40000, QLatin1Char('x')) + u"\"a'b\""_s;
    EXPECT_EQ(modSource::StripQuotedText(line), QString());
    EXPECT_FALSE(modSource::HasInLineComment(line));
    ASSERT_FALSE(logRecords().isEmpty());
    EXPECT_TRUE(logRecords().first().contains(u"6 - Overflow#C_Source::StripQuotedText"_s));
    // The byte reader fails alike.
    const qsizetype logged = logRecords().size();
    EXPECT_EQ(modSource::LineTypeOfWindows1252(line.toLatin1()), SourceLineType::Code);
    EXPECT_EQ(logRecords().size(), logged + 1);
    // Quotes early in a long line are fine.
    const QString early = u"x = \"a'b\""_s + QString(40000, QLatin1Char('y'));
    EXPECT_EQ(modSource::StripQuotedText(early).size(), early.size() - 3);
}

} // namespace
