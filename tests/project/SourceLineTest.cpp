#include "ProjectTestSupport.h"

#include "project/modSource.h"

namespace {

class SourceLineAnalysis : public ProjectTest
{
};

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
    EXPECT_TRUE(modSource::HasInLineComment(QStringLiteral("' only")));
    EXPECT_FALSE(modSource::IsCommentOnlyLine(QString()));
}

TEST_F(SourceLineAnalysis, QuotedTextIsEmptiedAndEndQuotesRemoved)
{
    EXPECT_EQ(modSource::StripQuotedText(QStringLiteral("x = \"it's\" ' note")),
              QStringLiteral("x = \"\" ' note"));
    EXPECT_EQ(modSource::StripQuotedText(QStringLiteral("a(\"x\", \"yz\")")),
              QStringLiteral("a(\"\", \"\")"));
    EXPECT_EQ(modSource::StripQuotedText(QStringLiteral("\"\"\"b\"")), QStringLiteral("\"\"\"\""));
    EXPECT_EQ(modSource::StripQuotedText(QStringLiteral("x = \"open")),
              QStringLiteral("x = \"open"));

    EXPECT_EQ(modSource::RemoveQuotes(QStringLiteral("\"")), QString());
    EXPECT_EQ(modSource::RemoveQuotes(QStringLiteral("\"abc")), QStringLiteral("abc"));
    EXPECT_EQ(modSource::RemoveQuotes(QStringLiteral("abc\"")), QStringLiteral("abc"));
    EXPECT_EQ(modSource::RemoveQuotes(QStringLiteral("\"\"\"")), QStringLiteral("\""));
}

TEST_F(SourceLineAnalysis, QuoteBeyondSixteenBitPositionIsLoggedOverflow)
{
    const QString line = QString(40000, QLatin1Char('x')) + QStringLiteral("\"a'b\"");
    EXPECT_EQ(modSource::StripQuotedText(line), QString());
    EXPECT_FALSE(modSource::HasInLineComment(line));
    const QStringList records = logRecords();
    ASSERT_FALSE(records.isEmpty());
    EXPECT_TRUE(records.first().contains(QStringLiteral("6 - Overflow#C_Source::StripQuotedText")));
    // Quotes early in a long line are fine.
    const QString early = QStringLiteral("x = \"a'b\"") + QString(40000, QLatin1Char('y'));
    EXPECT_EQ(modSource::StripQuotedText(early).size(), early.size() - 3);
}

} // namespace
