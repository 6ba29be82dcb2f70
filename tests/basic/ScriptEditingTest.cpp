#include "BasicTestSupport.h"

#include "basic/ScriptEditing.h"

#include <functional>
#include <tuple>

using namespace Qt::StringLiterals;

TEST(ScriptEditing, BlocksIndentOutdentAndCommentLineByLine)
{
    using Edit = std::function<QStringList(const QStringList &)>;
    const Edit indentTab = [](const QStringList &l) { return ScriptEditing::indentLines(l, "\t"); };
    const Edit outdentTab
        = [](const QStringList &l) { return ScriptEditing::outdentLines(l, "\t"); };
    const Edit outdentTwo
        = [](const QStringList &l) { return ScriptEditing::outdentLines(l, "  "); };
    const Edit comment = ScriptEditing::toggleComment;
    const std::tuple<Edit, const char *, const char *> cases[] = {
        {indentTab, "a|  |\tb", "\ta|  |\t\tb"}, // blank lines stay blank
        {outdentTab, "\ta|    b|  c|d|\t\te", "a|b|c|d|\te"},
        {outdentTwo, "    a|\t b| c", "  a| b|c"},
        // Commented at the common indentation, and back again.
        {comment, "  x = 1||    y = 2", "  ' x = 1||  '   y = 2"},
        {comment, "  ' x = 1||  '   y = 2", "  x = 1||    y = 2"},
        {comment, "'a|\t' b", "a|\tb"},
        // One line that is not a comment yet comments them all.
        {comment, "' a|b", "' ' a|' b"},
        {comment, "|  ", "|  "},
    };
    for (const auto &[edit, in, out] : cases)
        EXPECT_EQ(edit(lines(in)), lines(out)) << in;

    // The unit is the text's own: its first indented line.
    EXPECT_EQ(ScriptEditing::indentUnit(u"Sub Main\n\tx\n  y"), u"\t"_s);
    EXPECT_EQ(ScriptEditing::indentUnit(u"  \nSub Main\n  x\n    y"), u"  "_s);
    EXPECT_EQ(ScriptEditing::indentUnit(u"Sub Main\nEnd Sub"), u"\t"_s);
}

TEST(ScriptEditing, NewAndClosingLinesTakeTheIndentationOfTheirBlock)
{
    const std::pair<const char *, const char *> newLines[] = {
        {"\tIf x Then", "\t\t"},
        {"\tIf x Then y = 1", "\t"},
        {"If x Then ' why", "\t"},
        {"  For Each c In list", "  \t"},
        {"Select Case x", "\t"},
        {"\tCase 1, 2", "\t\t"},
        {"Else", "\t"},
        {"Private Function F()", "\t"},
        {"Done: Do While x", "\t"},
        {"\tExit Sub", "\t"},
        {"x = \"If a Then\"", ""},
        {"' If x Then", ""},
    };
    for (const auto &[line, indent] : newLines)
        EXPECT_EQ(ScriptEditing::newLineIndent(QString::fromUtf8(line), "\t"),
                  QString::fromUtf8(indent))
            << line;

    // The lines before, the line typed, and what it becomes (nullptr: it stays as it is).
    const std::tuple<const char *, const char *, const char *> closing[] = {
        {"Sub Main|\tIf a Then|\t\tx = 1", "\t\tEnd If", "\tEnd If"},
        {"Sub Main|\tIf a Then|\t\tx = 1", "\t\tElse", "\tElse"},
        {"Sub Main|\tIf a Then|\t\tIf b Then|\t\tEnd If|\t\tx = 1", "\t\tend  if", "\tend  if"},
        {"\tFor i = 1 To 2|\t\tFor j = 1 To 2|\t\t\tx = 1", "\t\t\tNext", "\t\tNext"},
        {"\tFor i = 1 To 2|\t\tFor j = 1 To 2|\t\t\tNext j, i", "\t\t\tNext", nullptr},
        {"\tSelect Case x|\t\tCase 1|\t\t\ty = 1", "\t\t\tCase", "\t\tCase"},
        {"\tSelect Case x|\t\tCase 1|\t\t\ty = 1", "\t\t\tEnd Select", "\tEnd Select"},
        {"\tSelect Case x", "Case", "\t\tCase"},
        {"\tDo|\t\tIf a Then", "\t\tLoop", "\tLoop"},
        {"  While x", "      Wend", "  Wend"},
        {"Sub Main|\tDo|\t\tx = 1|\tLoop", "\tEnd Sub", "End Sub"},
        {"Sub Main|\tIf a Then", "\tEnd If", nullptr},    // already there
        {"Sub Main|\tIf a Then", "\t\tEnd Ifs", nullptr}, // not the closing words
        {"Sub Main|\tIf a Then", "\t\tEnd If x", nullptr},
        {"Sub Main", "\tNext", nullptr},                                        // nothing to close
        {"Sub Main|\tIf a Then|\t\tIf b Then x = 1", "\t\tEnd If", "\tEnd If"}, // one-line If
    };
    for (const auto &[before, line, outdented] : closing) {
        const std::optional<QString> result
            = ScriptEditing::outdentedAsTyped(lines(before), QString::fromUtf8(line), "\t");
        EXPECT_EQ(result.value_or(u"(unchanged)"_s),
                  outdented ? QString::fromUtf8(outdented) : u"(unchanged)"_s)
            << before << " / " << line;
    }
}

TEST(ScriptEditing, BracketsPairUpOutsideStringsAndComments)
{
    const std::tuple<const char *, int, int> cases[] = {
        {"If F(a, (b)) Then", 4, 11},
        {"If F(a, (b)) Then", 11, 4},
        {"If F(a, (b)) Then", 8, 10},
        {"If F(a, (b)) Then", 10, 8},
        {"If F(a, (b)) Then", 5, -1}, // not a bracket
        {"x = \"(\" & (a", 5, -1},    // in a string
        {"x = \"(\" & (a", 10, -1},   // never closed
        {"y ' (a)", 4, -1},
    };
    for (const auto &[line, index, partner] : cases)
        EXPECT_EQ(ScriptEditing::matchingBracket(QString::fromUtf8(line), index), partner)
            << line << " @" << index;

    // An error marks its word, or one character; behind the line's end, the last one.
    const auto span = [](const char *line, int column) {
        const ScriptEditing::Span s = ScriptEditing::markedSpan(QString::fromUtf8(line), column);
        return std::pair(s.start, s.end);
    };
    EXPECT_EQ(span("  Foo bar", 3), std::pair(2, 5));
    EXPECT_EQ(span("x = (", 5), std::pair(4, 5));
    EXPECT_EQ(span("abc", 10), std::pair(2, 3));
    EXPECT_EQ(span("", 1), std::pair(0, 0));

    // A new condition's skeleton counts as no text until something is written into it.
    EXPECT_TRUE(ScriptEditing::isNewScript(ScriptEditing::newScript()));
    EXPECT_TRUE(ScriptEditing::isNewScript(u"sub main\r\n\r\n   END SUB"));
    EXPECT_FALSE(ScriptEditing::isNewScript(u"Sub Main\n\tx = 1\nEnd Sub"));
    EXPECT_FALSE(ScriptEditing::isNewScript(u""));
}
