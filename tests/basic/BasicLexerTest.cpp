#include "BasicTestSupport.h"

#include "basic/BasicLexer.h"

using namespace Qt::StringLiterals;

namespace {

using T = BasicTokenKind;

// "Kind:text" for every token but the last (EndOfText), line ends shown as "EOL", joined by "|".
QString describe(const QString &text)
{
    QStringList result;
    const auto tokens = BasicLexer::tokenize(text);
    for (size_t i = 0; i + 1 < tokens.size(); ++i) {
        const BasicToken &t = tokens[i];
        static const char *const kinds[]
            = {"Id", "Kw", "Num", "Str", "Date", "Op", "Punct", "Rem", "Cont", "EOL", "Bad", "End"};
        QString entry = QString::fromLatin1(kinds[int(t.kind)]);
        if (t.kind != T::LineEnd)
            entry += QLatin1Char(':') + text.mid(t.offset, t.length);
        result << entry;
    }
    return result.join(u'|');
}

} // namespace

// Words, numbers, strings, dates and symbols; a member name after a dot is never a keyword; Rem
// is a comment at a statement start only.
TEST(BasicLexer, SortsEveryKindOfToken)
{
    const std::pair<QString, QString> rows[] = {
        {u"dIM s$, n% : s = UCase$(\"a\"\"b\") & 1.5E-3"_s,
         u"Kw:dIM|Id:s$|Punct:,|Id:n%|Punct::|Id:s|Op:=|Id:UCase$|Punct:(|Str:\"a\"\"b\"|Punct:)|"
         u"Op:&|Num:1.5E-3"_s},
        {u"x = &HFF& + &O17 + 12% + 3# + .5 + 2@"_s,
         u"Id:x|Op:=|Num:&HFF&|Op:+|Num:&O17|Op:+|Num:12%|Op:+|Num:3#|Op:+|Num:.5|Op:+|Num:2@"_s},
        {u"d = #1/2/2000# : Print #1, a <= b <> c >= d, n:=1"_s,
         u"Id:d|Op:=|Date:#1/2/2000#|Punct::|Id:Print|Punct:#|Num:1|Punct:,|Id:a|Op:<=|Id:b|"
         u"Op:<>|Id:c|Op:>=|Id:d|Punct:,|Id:n|Punct::=|Num:1"_s},
        {u"d = #Jan 1, 2000# + #2000-01-02 12:30:00 PM# + #1-Feb-2000#"_s,
         u"Id:d|Op:=|Date:#Jan 1, 2000#|Op:+|Date:#2000-01-02 12:30:00 PM#|Op:+|"
         u"Date:#1-Feb-2000#"_s},
        {u"Write #1, a, #1/2/2000#"_s,
         u"Id:Write|Punct:#|Num:1|Punct:,|Id:a|Punct:,|Date:#1/2/2000#"_s},
        {u"Print #1, x: Print #1, y"_s,
         u"Id:Print|Punct:#|Num:1|Punct:,|Id:x|Punct::|Id:Print|Punct:#|Num:1|Punct:,|Id:y"_s},
        {u"rs.Type = x.End + rs!Name + a! + [My Name]"_s,
         u"Id:rs|Punct:.|Id:Type|Op:=|Id:x|Punct:.|Id:End|Op:+|Id:rs|Punct:!|Id:Name|Op:+|"
         u"Id:a!|Op:+|Id:[My Name]"_s},
        {u"Remark = 1 ' note\nREM all of it\nx = 1: Rem tail"_s,
         u"Id:Remark|Op:=|Num:1|Rem:' note|EOL|Rem:REM all of it|EOL|Id:x|Op:=|Num:1|Punct::|"
         u"Rem:Rem tail"_s},
        {u"If a Then Rem why"_s, u"Kw:If|Id:a|Kw:Then|Rem:Rem why"_s},
        {u"elseif WITHEVENTS Quorin"_s, u"Kw:elseif|Kw:WITHEVENTS|Id:Quorin"_s},
        {u"10 Rem numbered\nRem = 1 + Rem"_s, u"Num:10|Rem:Rem numbered|EOL|Rem:Rem = 1 + Rem"_s},
    };
    for (const auto &[text, tokens] : rows)
        EXPECT_EQ(describe(text), tokens) << text.toStdString();
}

TEST(BasicLexer, ContinuationJoinsLinesWithoutALineEnd)
{
    const QString text = u"x = a _\r\n    + b\r\ny = a_b"_s;
    EXPECT_EQ(describe(text), u"Id:x|Op:=|Id:a|Cont:_|Op:+|Id:b|EOL|Id:y|Op:=|Id:a_b"_s);
    const auto tokens = BasicLexer::tokenize(text);
    EXPECT_EQ(tokens[4].line, 2);
    EXPECT_EQ(tokens[4].column, 5);
    EXPECT_EQ(tokens[7].line, 3);

    // A comment ending in " _" runs on over the next line.
    EXPECT_EQ(describe(u"' one _\ntwo\nx"_s), u"Rem:' one _\ntwo|EOL|Id:x"_s);
}

TEST(BasicLexer, PositionsCountEveryKindOfLineEnd)
{
    const auto tokens = BasicLexer::tokenize(u"a\r\n\tb\nc\rd"_s);
    ASSERT_EQ(tokens.size(), 8u);
    const int expected[][2] = {{1, 1}, {1, 2}, {2, 2}, {2, 3}, {3, 1}, {3, 2}, {4, 1}, {4, 2}};
    for (size_t i = 0; i < tokens.size(); ++i) {
        EXPECT_EQ(tokens[i].line, expected[i][0]) << i;
        EXPECT_EQ(tokens[i].column, expected[i][1]) << i;
    }
    EXPECT_EQ(tokens.back().kind, T::EndOfText);
}

TEST(BasicLexer, FlagsUnterminatedStringsAndStrayCharacters)
{
    const auto tokens = BasicLexer::tokenize(u"s = \"open\nx ? y"_s);
    EXPECT_EQ(tokens[2].kind, T::String);
    EXPECT_FALSE(tokens[2].complete);
    EXPECT_EQ(tokens[2].length, 5);
    EXPECT_EQ(tokens[5].kind, T::Invalid);
    EXPECT_EQ(tokens[5].column, 3);
}
