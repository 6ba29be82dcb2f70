#include "BasicTestSupport.h"

#include "basic/BasicColouring.h"
#include "basic/BasicCompletion.h"
#include "basic/ScriptText.h"

namespace {

// The coloured pieces of one line as "text=style" words, joined by "|".
QString colours(const QString &line, bool &continued)
{
    static const char *names[]
        = {"Keyword", "String", "Comment", "Number", "Member", "Vocabulary", "Invalid"};
    QStringList result;
    for (const StyledRange &range : BasicColouring::colourLine(line, continued))
        result << line.mid(range.start, range.length) + QLatin1Char('=')
                      + QLatin1String(names[int(range.style)]);
    return result.join(u'|');
}

QString colours(const QString &line)
{
    bool continued = false;
    return colours(line, continued);
}

// The context at the "|" of `marked`, which is taken out of the text.
CompletionContext contextAt(QString marked)
{
    const int caret = int(marked.indexOf(QLatin1Char('|')));
    marked.remove(caret, 1);
    return BasicCompletion::contextAt(marked, caret);
}

} // namespace

// Found by argument lookup, so beside the type.
void PrintTo(const CompletionContext &c, std::ostream *os)
{
    *os << "kind " << int(c.kind) << " start " << c.start << " prefix \"" << c.prefix.toStdString()
        << "\" object \"" << c.object.toStdString() << '"';
}

TEST(ScriptText, LineEndsBecomeLFInTheEditorAndCRLFOnTheWayOut)
{
    EXPECT_EQ(ScriptText::toEditor(QStringLiteral("a\r\nb\rc\nd\r\n")),
              QStringLiteral("a\nb\nc\nd\n"));
    EXPECT_EQ(ScriptText::toEditor(QStringLiteral("\r\r\n\n")), QStringLiteral("\n\n\n"));
    EXPECT_EQ(ScriptText::fromEditor(QStringLiteral("a\nb\n")), QStringLiteral("a\r\nb\r\n"));
    // Text that already has CR LF, or a mixture, is not doubled.
    EXPECT_EQ(ScriptText::fromEditor(QStringLiteral("a\r\nb\nc\rd")),
              QStringLiteral("a\r\nb\r\nc\r\nd"));
    EXPECT_EQ(ScriptText::fromEditor(QString()), QString());
    const QString stored = QStringLiteral("Sub Main\r\n  x = \"\u00e9\"\r\nEnd Sub");
    EXPECT_EQ(ScriptText::fromEditor(ScriptText::toEditor(stored)), stored);
}

TEST(BasicColouring, ColoursTokensQuorinMembersAndVocabularyNames)
{
    EXPECT_EQ(colours(QStringLiteral("If x = 1.5 Then y = \"text\" ' done")),
              QStringLiteral("If=Keyword|1.5=Number|Then=Keyword|\"text\"=String|' done=Comment"));
    EXPECT_EQ(colours(QStringLiteral("  Call Quorin.RaiseViolation()")),
              QStringLiteral("Call=Keyword|Quorin=Member|RaiseViolation=Member"));
    // Names the vocabulary knows, whatever their case, inside strings only.
    EXPECT_EQ(
        colours(QStringLiteral(
            "If Quorin.GetObjectProperty(\"procedure\", \"Name\") = \"Procedure\" Then")),
        QStringLiteral("If=Keyword|Quorin=Member|GetObjectProperty=Member|\"procedure\"=Vocabulary|"
                       "\"Name\"=Vocabulary|\"Procedure\"=Vocabulary|Then=Keyword"));
    EXPECT_EQ(colours(QStringLiteral("x = \"begin Project\" & \"\"")),
              QStringLiteral("\"begin Project\"=Vocabulary|\"\"=String"));
    // A string the line ends in, a lone quote, a date, an invalid character and Rem.
    EXPECT_EQ(colours(QStringLiteral("x = \"Procedure")), QStringLiteral("\"Procedure=Vocabulary"));
    EXPECT_EQ(colours(QStringLiteral("x = \"")), QStringLiteral("\"=String"));
    EXPECT_EQ(colours(QStringLiteral("d = #1/2/2003# ? 7")),
              QStringLiteral("#1/2/2003#=Number|?=Invalid|7=Number"));
    EXPECT_EQ(colours(QStringLiteral("Rem note")), QStringLiteral("Rem note=Comment"));
    // "Quorin" alone is an ordinary name.
    EXPECT_EQ(colours(QStringLiteral("Quorin = 1")), QStringLiteral("1=Number"));
}

TEST(BasicColouring, ACommentEndingInAContinuationGoesOnOverTheNextLine)
{
    bool continued = false;
    EXPECT_EQ(colours(QStringLiteral("x = 1 ' one _"), continued),
              QStringLiteral("1=Number|' one _=Comment"));
    EXPECT_TRUE(continued);
    EXPECT_EQ(colours(QStringLiteral("If still _"), continued),
              QStringLiteral("If still _=Comment"));
    EXPECT_TRUE(continued);
    EXPECT_EQ(colours(QStringLiteral("End If"), continued), QStringLiteral("End If=Comment"));
    EXPECT_FALSE(continued);
    EXPECT_EQ(colours(QStringLiteral("End If"), continued),
              QStringLiteral("End=Keyword|If=Keyword"));
    // An underscore glued to the word continues nothing.
    colours(QStringLiteral("' a_"), continued);
    EXPECT_FALSE(continued);
}

TEST(BasicCompletion, FindsWhatTheCaretMayBeCompletedWith)
{
    using K = CompletionKind;
    EXPECT_EQ(contextAt(QStringLiteral("  Call Quorin.|")),
              (CompletionContext{K::QuorinMember, 14, "", ""}));
    EXPECT_EQ(contextAt(QStringLiteral("x\r\n  Call quorin.Ra|ise")),
              (CompletionContext{K::QuorinMember, 17, "Ra", ""}));
    EXPECT_EQ(contextAt(QStringLiteral("x = Quorin.GetObjectProperty(\"Pro|")),
              (CompletionContext{K::Object, 30, "Pro", ""}));
    EXPECT_EQ(contextAt(QStringLiteral("x = Quorin.GetObjectProperty(\"Procedure\", \"Na|\")")),
              (CompletionContext{K::Property, 43, "Na", "Procedure"}));
    EXPECT_EQ(contextAt(QStringLiteral("x = Quorin.GetObjectWorkField(\"|")),
              (CompletionContext{K::WorkfieldObject, 31, "", ""}));
    EXPECT_EQ(contextAt(QStringLiteral("x = Quorin.GetObjectWorkField(\"File\", \"w|")),
              (CompletionContext{K::Workfield, 39, "w", "File"}));
    EXPECT_EQ(contextAt(QStringLiteral("If Quorin.ParserEvent() = \"begin|\" Then")),
              (CompletionContext{K::ParserEvent, 27, "begin", ""}));
    EXPECT_EQ(contextAt(QStringLiteral("If \"|\" <> Quorin.ParserEvent Then")).kind, K::None);
    EXPECT_EQ(contextAt(QStringLiteral("If Quorin.ParserEvent <> \"|")).kind, K::ParserEvent);

    // A Case of the innermost Select on the parser event, not of another Select.
    const QString select = QStringLiteral("Select Case Quorin.ParserEvent()\r\n"
                                          "  Case \"x\"\r\n"
                                          "    Select Case y\r\n"
                                          "      Case 1\r\n"
                                          "    End Select\r\n"
                                          "  Case \"a\", \"|\r\n");
    EXPECT_EQ(contextAt(select).kind, K::ParserEvent);
    EXPECT_EQ(contextAt(QStringLiteral("Select Case y\nCase \"|")).kind, K::None);

    // Nothing in comments, behind a closed string, in other strings or calls, or at the ends.
    EXPECT_EQ(contextAt(QStringLiteral("' Quorin.|")).kind, K::None);
    EXPECT_EQ(contextAt(QStringLiteral("x = Quorin.GetObjectProperty(\"Procedure\"|")).kind,
              K::None);
    EXPECT_EQ(contextAt(QStringLiteral("x = Foo(\"|")).kind, K::None);
    EXPECT_EQ(contextAt(QStringLiteral("x = Quorin.Other(\"|")).kind, K::None);
    EXPECT_EQ(contextAt(QStringLiteral("|")).kind, K::None);
    EXPECT_EQ(BasicCompletion::contextAt(QStringLiteral("Quorin."), 99).kind, K::QuorinMember);
    EXPECT_EQ(BasicCompletion::contextAt(QStringLiteral("Quorin."), -5).kind, K::None);
}

TEST(BasicCompletion, OffersTheWordsOfTheVocabulary)
{
    using K = CompletionKind;
    const QStringList members = BasicCompletion::words({K::QuorinMember, 0, {}, {}});
    EXPECT_EQ(members,
              (QStringList{"ApplyConvention",
                           "CancelPendingViolation",
                           "GetObjectProperty",
                           "GetObjectWorkField",
                           "ParserEvent",
                           "RaiseViolation"}));

    const QStringList objects = BasicCompletion::words({K::Object, 0, {}, {}});
    EXPECT_TRUE(objects.contains(QStringLiteral("Procedure")));
    EXPECT_TRUE(objects.contains(QStringLiteral("ControlProperties")));
    const QStringList workfieldObjects = BasicCompletion::words({K::WorkfieldObject, 0, {}, {}});
    EXPECT_TRUE(workfieldObjects.contains(QStringLiteral("Procedure")));
    EXPECT_FALSE(workfieldObjects.contains(QStringLiteral("ControlProperties")));
    EXPECT_LT(workfieldObjects.size(), objects.size());

    const QStringList properties
        = BasicCompletion::words({K::Property, 0, {}, QStringLiteral("procedure")});
    EXPECT_TRUE(properties.contains(QStringLiteral("Name")));
    EXPECT_TRUE(
        BasicCompletion::words({K::Property, 0, {}, QStringLiteral("NoSuchObject")}).isEmpty());

    EXPECT_EQ(BasicCompletion::words({K::Workfield, 0, {}, {}}, {"zeta", "Alpha", "alpha", ""}),
              (QStringList{"Alpha", "zeta"}));

    const QStringList events = BasicCompletion::words({K::ParserEvent, 0, {}, {}});
    EXPECT_EQ(events.size(), 37);
    EXPECT_TRUE(events.contains(QStringLiteral("begin Project")));
    EXPECT_TRUE(BasicCompletion::words({}).isEmpty());
}
