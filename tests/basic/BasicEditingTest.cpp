#include "BasicTestSupport.h"

#include "basic/BasicColouring.h"
#include "basic/BasicCompletion.h"
#include "basic/ScriptText.h"
#include "vocabulary/ParserEventCatalogue.h"

using namespace Qt::StringLiterals;

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
    EXPECT_EQ(ScriptText::toEditor(u"a\r\nb\rc\nd\r\n"_s), u"a\nb\nc\nd\n"_s);
    EXPECT_EQ(ScriptText::toEditor(u"\r\r\n\n"_s), u"\n\n\n"_s);
    EXPECT_EQ(ScriptText::fromEditor(u"a\nb\n"_s), u"a\r\nb\r\n"_s);
    // Text that already has CR LF, or a mixture, is not doubled.
    EXPECT_EQ(ScriptText::fromEditor(u"a\r\nb\nc\rd"_s), u"a\r\nb\r\nc\r\nd"_s);
    EXPECT_EQ(ScriptText::fromEditor(QString()), QString());
    const QString stored = u"Sub Main\r\n  x = \"\u00e9\"\r\nEnd Sub"_s;
    EXPECT_EQ(ScriptText::fromEditor(ScriptText::toEditor(stored)), stored);
}

TEST(BasicColouring, ColoursTokensQuorinMembersAndVocabularyNames)
{
    EXPECT_EQ(colours(u"If x = 1.5 Then y = \"text\" ' done"_s),
              u"If=Keyword|1.5=Number|Then=Keyword|\"text\"=String|' done=Comment"_s);
    EXPECT_EQ(colours(u"  Call Quorin.RaiseViolation()"_s),
              u"Call=Keyword|Quorin=Member|RaiseViolation=Member"_s);
    // Names the vocabulary knows, whatever their case, inside strings only.
    EXPECT_EQ(
        colours(u"If Quorin.GetObjectProperty(\"procedure\", \"Name\") = \"Procedure\" Then"_s),
        u"If=Keyword|Quorin=Member|GetObjectProperty=Member|\"procedure\"=Vocabulary|"
        u"\"Name\"=Vocabulary|\"Procedure\"=Vocabulary|Then=Keyword"_s);
    EXPECT_EQ(colours(u"x = \"begin Project\" & \"\""_s),
              u"\"begin Project\"=Vocabulary|\"\"=String"_s);
    // A string the line ends in, a lone quote, a date, an invalid character and Rem.
    EXPECT_EQ(colours(u"x = \"Procedure"_s), u"\"Procedure=Vocabulary"_s);
    EXPECT_EQ(colours(u"x = \""_s), u"\"=String"_s);
    EXPECT_EQ(colours(u"d = #1/2/2003# ? 7"_s), u"#1/2/2003#=Number|?=Invalid|7=Number"_s);
    EXPECT_EQ(colours(u"Rem note"_s), u"Rem note=Comment"_s);
    // "Quorin" alone is an ordinary name.
    EXPECT_EQ(colours(u"Quorin = 1"_s), u"1=Number"_s);
}

TEST(BasicColouring, ACommentEndingInAContinuationGoesOnOverTheNextLine)
{
    bool continued = false;
    EXPECT_EQ(colours(u"x = 1 ' one _"_s, continued), u"1=Number|' one _=Comment"_s);
    EXPECT_TRUE(continued);
    EXPECT_EQ(colours(u"If still _"_s, continued), u"If still _=Comment"_s);
    EXPECT_TRUE(continued);
    EXPECT_EQ(colours(u"End If"_s, continued), u"End If=Comment"_s);
    EXPECT_FALSE(continued);
    EXPECT_EQ(colours(u"End If"_s, continued), u"End=Keyword|If=Keyword"_s);
    // An underscore glued to the word continues nothing.
    colours(u"' a_"_s, continued);
    EXPECT_FALSE(continued);
}

TEST(BasicCompletion, FindsWhatTheCaretMayBeCompletedWith)
{
    using K = CompletionKind;
    EXPECT_EQ(contextAt(u"  Call Quorin.|"_s), (CompletionContext{K::QuorinMember, 14, "", ""}));
    EXPECT_EQ(contextAt(u"x\r\n  Call quorin.Ra|ise"_s),
              (CompletionContext{K::QuorinMember, 17, "Ra", ""}));
    EXPECT_EQ(contextAt(u"x = Quorin.GetObjectProperty(\"Pro|"_s),
              (CompletionContext{K::Object, 30, "Pro", ""}));
    EXPECT_EQ(contextAt(u"x = Quorin.GetObjectProperty(\"Procedure\", \"Na|\")"_s),
              (CompletionContext{K::Property, 43, "Na", "Procedure"}));
    EXPECT_EQ(contextAt(u"x = Quorin.GetObjectWorkField(\"|"_s),
              (CompletionContext{K::WorkfieldObject, 31, "", ""}));
    EXPECT_EQ(contextAt(u"x = Quorin.GetObjectWorkField(\"File\", \"w|"_s),
              (CompletionContext{K::Workfield, 39, "w", "File"}));
    EXPECT_EQ(contextAt(u"If Quorin.ParserEvent() = \"begin|\" Then"_s),
              (CompletionContext{K::ParserEvent, 27, "begin", ""}));
    EXPECT_EQ(contextAt(u"If \"|\" <> Quorin.ParserEvent Then"_s).kind, K::None);
    EXPECT_EQ(contextAt(u"If Quorin.ParserEvent <> \"|"_s).kind, K::ParserEvent);

    // A Case of the innermost Select on the parser event, not of another Select.
    const QString select = u"Select Case Quorin.ParserEvent()\r\n"
                           u"  Case \"x\"\r\n"
                           u"    Select Case y\r\n"
                           u"      Case 1\r\n"
                           u"    End Select\r\n"
                           u"  Case \"a\", \"|\r\n"_s;
    EXPECT_EQ(contextAt(select).kind, K::ParserEvent);
    EXPECT_EQ(contextAt(u"Select Case y\nCase \"|"_s).kind, K::None);

    // Nothing in comments, behind a closed string, in other strings or calls, or at the ends.
    EXPECT_EQ(contextAt(u"' Quorin.|"_s).kind, K::None);
    EXPECT_EQ(contextAt(u"x = Quorin.GetObjectProperty(\"Procedure\"|"_s).kind, K::None);
    EXPECT_EQ(contextAt(u"x = Foo(\"|"_s).kind, K::None);
    EXPECT_EQ(contextAt(u"x = Quorin.Other(\"|"_s).kind, K::None);
    EXPECT_EQ(contextAt(u"|"_s).kind, K::None);
    EXPECT_EQ(BasicCompletion::contextAt(u"Quorin."_s, 99).kind, K::QuorinMember);
    EXPECT_EQ(BasicCompletion::contextAt(u"Quorin."_s, -5).kind, K::None);
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
    EXPECT_TRUE(objects.contains(u"Procedure"_s));
    EXPECT_TRUE(objects.contains(u"ControlProperties"_s));
    const QStringList workfieldObjects = BasicCompletion::words({K::WorkfieldObject, 0, {}, {}});
    EXPECT_TRUE(workfieldObjects.contains(u"Procedure"_s));
    EXPECT_FALSE(workfieldObjects.contains(u"ControlProperties"_s));
    EXPECT_LT(workfieldObjects.size(), objects.size());

    const QStringList properties = BasicCompletion::words({K::Property, 0, {}, u"procedure"_s});
    EXPECT_TRUE(properties.contains(u"Name"_s));
    EXPECT_TRUE(BasicCompletion::words({K::Property, 0, {}, u"NoSuchObject"_s}).isEmpty());

    EXPECT_EQ(BasicCompletion::words({K::Workfield, 0, {}, {}}, {"zeta", "Alpha", "alpha", ""}),
              (QStringList{"Alpha", "zeta"}));

    const QStringList events = BasicCompletion::words({K::ParserEvent, 0, {}, {}});
    EXPECT_EQ(events.size(), qsizetype(ParserEventCatalogue::events().size()));
    EXPECT_TRUE(events.contains(u"begin Project"_s));
    EXPECT_TRUE(BasicCompletion::words({}).isEmpty());
}
