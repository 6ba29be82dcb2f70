#include "XmlTestSupport.h"

#include "support/TestSeed.h"

#include "platform/QuorinError.h"
#include "xml/TarnXMLDoc.h"
#include "xml/TarnXMLElement.h"

#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

const QString CRLF = QStringLiteral("\r\n");

// A root with children named by `names`, each with an attribute Key holding its own name.
TarnXMLElement rootWith(TarnXMLDoc &doc, const QStringList &names)
{
    doc.NewDoc(QStringLiteral("Root"));
    TarnXMLElement root = doc.RootElement();
    for (const QString &name : names)
        root.AddElement(name).setAttributeValueByName(QStringLiteral("Key"), name);
    return root;
}

// The UTF-16 units as they stand: fromUtf16 would read a leading U+FFFE as a byte order mark.
QString units(const std::u16string &text)
{
    return QString(reinterpret_cast<const QChar *>(text.data()), qsizetype(text.size()));
}

QStringList childNames(const TarnXMLElement &element)
{
    QStringList names;
    for (qint32 i = 0; i < element.ElementCount(); ++i)
        names << element.ElementAtPosition(i).ElementName();
    return names;
}

} // namespace

using EscapingTest = XmlTest;

TEST_F(EscapingTest, ReplacesTheFourSequencesAndLeavesLoneLineEnds)
{
    const QString value = QStringLiteral("a<b>c\td") + CRLF + QStringLiteral("e\rf\ng\r\r\n");
    EXPECT_EQ(TarnXMLElement::ReplaceIllegalChars(value),
              QStringLiteral("a%LT%b%GT%c%TAB%d%CRLF%e\rf\ng\r%CRLF%"));
    EXPECT_EQ(TarnXMLElement::RestoreIllegalChars(TarnXMLElement::ReplaceIllegalChars(value)),
              value);
}

TEST_F(EscapingTest, RestoreIgnoresCaseAndRunsInOrder)
{
    EXPECT_EQ(TarnXMLElement::RestoreIllegalChars(QStringLiteral("x%tab%y%Lt%%gT%%crlf%")),
              QStringLiteral("x\ty<>") + CRLF);
    // The "%CRLF%" is found first and takes the "%" that "%TAB%" would need.
    EXPECT_EQ(TarnXMLElement::RestoreIllegalChars(QStringLiteral("%TAB%CRLF%")),
              QStringLiteral("%TAB") + CRLF);
    EXPECT_EQ(TarnXMLElement::RestoreIllegalChars(QStringLiteral("100% sure")),
              QStringLiteral("100% sure"));
}

using AttributeTest = XmlTest;

TEST_F(AttributeTest, ValuesSurviveSaveAndLoad)
{
    const QStringList values = {
        QStringLiteral("a<b>c\td") + CRLF + QStringLiteral("e"),
        QStringLiteral("&amp; & \"double\" 'single' &lt;"),
        QStringLiteral("Grüße, 日本語, \U0001F600"),
        QStringLiteral("lone\rCR and lone\nLF"),
        QStringLiteral("  leading and trailing blanks  "),
        QString(),
    };
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    for (qsizetype i = 0; i < values.size(); ++i)
        root.AddElement(QStringLiteral("Item")).AddAttribute(QStringLiteral("Value"), values[i]);
    const QString file = path(QStringLiteral("values.qrb"));
    ASSERT_TRUE(doc.SaveToFile(file));

    TarnXMLDoc loaded;
    ASSERT_TRUE(loaded.LoadFromFile(file));
    const TarnXMLElement loadedRoot = loaded.RootElement();
    ASSERT_EQ(loadedRoot.ElementCount(), values.size());
    for (qsizetype i = 0; i < values.size(); ++i) {
        const TarnXMLElement item = loadedRoot.ElementAtPosition(qint32(i));
        EXPECT_EQ(item.AttributeValueByName(QStringLiteral("Value")), values[i]);
        EXPECT_EQ(item.AttributeValue(0), values[i]);
    }
    // Overwriting a parsed value.
    loadedRoot.ElementAtPosition(0).setAttributeValue(0, values[1]);
    EXPECT_EQ(loadedRoot.ElementAtPosition(0).AttributeValueByName(QStringLiteral("Value")),
              values[1]);
    // Stored escaped, non-ASCII as UTF-8 bytes.
    const QByteArray bytes = readFile(file);
    EXPECT_TRUE(bytes.contains("a%LT%b%GT%c%TAB%d%CRLF%e"));
    EXPECT_TRUE(bytes.contains(QStringLiteral("Grüße").toUtf8()));
}

// Whatever the stored text, every way of reading it gives what the four restores in turn give,
// and the in-place view is the same text, or null when there is anything to restore.
TEST_F(AttributeTest, EveryReadingOfAStoredValueAgrees)
{
    const QStringList pieces = {QStringLiteral("%"),
                                QStringLiteral("%CRLF%"),
                                QStringLiteral("%crlf%"),
                                QStringLiteral("%TAB%"),
                                QStringLiteral("%Tab"),
                                QStringLiteral("%LT%"),
                                QStringLiteral("%gt%"),
                                QStringLiteral("CRLF"),
                                QStringLiteral("TAB%"),
                                QStringLiteral("G"),
                                QStringLiteral("x"),
                                QStringLiteral("é"),
                                QStringLiteral("€"),
                                QStringLiteral("\U00010400"),
                                QStringLiteral("&"),
                                QStringLiteral("\""),
                                QStringLiteral("12")};
    auto restoredInTurn = [](QString text) {
        const std::pair<const char *, QString> restores[] = {{"%CRLF%", CRLF},
                                                             {"%TAB%", QStringLiteral("\t")},
                                                             {"%LT%", QStringLiteral("<")},
                                                             {"%GT%", QStringLiteral(">")}};
        for (const auto &[escape, replacement] : restores)
            text.replace(QLatin1String(escape), replacement, Qt::CaseInsensitive);
        return text;
    };
    auto xmlEscaped = [](QString text) {
        return text.replace(QLatin1Char('&'), QStringLiteral("&amp;"))
            .replace(QLatin1Char('"'), QStringLiteral("&quot;"));
    };
    const TestSeed seed(7u);
    std::mt19937 random(seed.value());
    QStringList stored;
    QString xml = QStringLiteral("<Root>");
    for (int i = 0; i < 2000; ++i) {
        QString text;
        for (int n = int(random() % 8); n > 0; --n)
            text += pieces[qsizetype(random() % unsigned(pieces.size()))];
        stored << text;
        xml += QStringLiteral("<Item A=\"") + xmlEscaped(text) + QStringLiteral("\"/>");
    }
    xml += QStringLiteral("</Root>");
    TarnXMLDoc doc;
    ASSERT_TRUE(doc.LoadFromString(xml));
    const TarnXMLElement root = doc.RootElement();
    for (qint32 i = 0; i < stored.size(); ++i) {
        const TarnXMLElement item = root.ElementAtPosition(i);
        const QString expected = restoredInTurn(stored[i]);
        ASSERT_EQ(item.AttributeValueByName(QLatin1StringView("A")), expected) << i;
        ASSERT_EQ(item.AttributeValueByName(QStringLiteral("A")), expected) << i;
        ASSERT_EQ(TarnXMLElement::RestoreIllegalChars(stored[i]), expected) << i;
        const QUtf8StringView view = item.AttributeUtf8ByName(QLatin1StringView("A"));
        if (stored[i].contains(QLatin1Char('%')))
            ASSERT_TRUE(view.isNull()) << i;
        else
            ASSERT_EQ(QByteArray(view.data(), view.size()), expected.toUtf8()) << i;
    }
    EXPECT_TRUE(root.AttributeUtf8ByName(QLatin1StringView("A")).isNull());
    EXPECT_TRUE(TarnXMLElement().AttributeUtf8ByName(QLatin1StringView("A")).isNull());
}

// Every way of writing a value stores the same text: ReplaceIllegalChars of it, in UTF-8.
TEST_F(AttributeTest, EveryWayOfWritingAValueStoresTheSameText)
{
    const QStringList pieces = {QStringLiteral("\r\n"),
                                QStringLiteral("\r"),
                                QStringLiteral("\n"),
                                QStringLiteral("\t"),
                                QStringLiteral("<"),
                                QStringLiteral(">"),
                                QStringLiteral("%"),
                                QStringLiteral("&"),
                                QStringLiteral("\""),
                                QStringLiteral("é"),
                                QStringLiteral("日本"),
                                QStringLiteral("\U0001F600"),
                                QStringLiteral("x"),
                                QStringLiteral("42")};
    const TestSeed seed(11u);
    std::mt19937 random(seed.value());
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    for (int i = 0; i < 500; ++i) {
        QString value;
        for (int n = int(random() % 8); n > 0; --n)
            value += pieces[qsizetype(random() % unsigned(pieces.size()))];
        TarnXMLElement byName = root.AddElement(QStringLiteral("E"));
        byName.setAttributeValueByName(QStringLiteral("V"), value);
        TarnXMLElement byLatin1 = root.AddElement(QStringLiteral("E"));
        byLatin1.setAttributeValueByName(QLatin1StringView("V"), value);
        TarnXMLElement byUtf8 = root.AddElement(QStringLiteral("E"));
        const QByteArray utf8 = value.toUtf8();
        byUtf8.setAttributeValueByName(QLatin1StringView("V"), QUtf8StringView(utf8));
        TarnXMLElement added = root.AddElement(QStringLiteral("E"));
        added.AddAttribute(QStringLiteral("V"), value);
        TarnXMLElement replaced = root.AddElement(QStringLiteral("E"));
        replaced.AddAttribute(QStringLiteral("V"), QStringLiteral("old"));
        replaced.setAttributeValueByName(QLatin1StringView("V"), QUtf8StringView(utf8));
        TarnXMLElement byIndex = root.AddElement(QStringLiteral("E"));
        byIndex.AddAttribute(QStringLiteral("V"), QStringLiteral("old"));
        byIndex.setAttributeValue(0, value);

        const QString stored = TarnXMLElement::ReplaceIllegalChars(value);
        QString xml = stored;
        xml.replace(QLatin1Char('&'), QStringLiteral("&amp;"))
            .replace(QLatin1Char('"'), QStringLiteral("&quot;"))
            .replace(QLatin1Char('\r'), QStringLiteral("&#13;"))
            .replace(QLatin1Char('\n'), QStringLiteral("&#10;"));
        xml = QStringLiteral("<E V=\"") + xml + QStringLiteral("\"/>");
        for (const TarnXMLElement &element : {byName, byLatin1, byUtf8, added, replaced, byIndex}) {
            ASSERT_EQ(element.AttributeCount(), 1) << i;
            ASSERT_EQ(element.XMLString(), xml) << i;
            ASSERT_EQ(element.AttributeValue(0), TarnXMLElement::RestoreIllegalChars(stored)) << i;
        }
        ASSERT_EQ(root.ElementByAttributeValue(QStringLiteral("V"), value).XMLNode(),
                  byName.XMLNode())
            << i;
        root.RemoveAllElements();
    }
}

// XML 1.0 can't hold these even as character references: whichever way a value is written,
// they are dropped, so the save succeeds and the file loads again with the rest of the text.
TEST_F(AttributeTest, CharactersXmlForbidsAreDroppedSoTheFileLoadsAgain)
{
    using namespace std::string_literals;
    const struct
    {
        std::u16string value;
        std::u16string kept;
        bool viaUtf8; // the UTF-8 writer takes bytes, in which a lone surrogate can't be
    } cases[] = {
        {u"a\u0001b\x1F\x0B\x0C\x7F"s, u"ab\x7F"s, true},
        {u"nul\0end"s, u"nulend"s, true},
        {u"tab\t, CR LF\r\n, LF\n, CR\r"s, u"tab\t, CR LF\r\n, LF\n, CR\r"s, true},
        {u"\xFFFE\xFFFFok\xFFFD"s, u"ok\xFFFD"s, true},
        {u"lone \xD800, \xDC00; pair \xD83D\xDE00"s, u"lone , ; pair \xD83D\xDE00"s, false},
        {u"\xDC00\xD800"s, u""s, false},
    };
    using Writer = void (*)(TarnXMLElement &, const QString &);
    const Writer writers[] = {
        [](TarnXMLElement &e, const QString &v) {
            e.setAttributeValueByName(QStringLiteral("V"), v);
        },
        [](TarnXMLElement &e, const QString &v) {
            e.setAttributeValueByName(QLatin1StringView("V"), v);
        },
        [](TarnXMLElement &e, const QString &v) { e.AddAttribute(QStringLiteral("V"), v); },
        [](TarnXMLElement &e, const QString &v) {
            e.AddAttribute(QStringLiteral("V"), QString());
            e.setAttributeValue(0, v);
        },
        [](TarnXMLElement &e, const QString &v) {
            const QByteArray utf8 = v.toUtf8();
            e.setAttributeValueByName(QLatin1StringView("V"), QUtf8StringView(utf8));
        },
    };
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    QStringList expected;
    for (const auto &c : cases) {
        for (qsizetype w = 0; w < qsizetype(std::size(writers)); ++w) {
            if (w == qsizetype(std::size(writers)) - 1 && !c.viaUtf8)
                continue;
            TarnXMLElement item = root.AddElement(QStringLiteral("Item"));
            writers[w](item, units(c.value));
            expected << units(c.kept);
        }
    }
    const QString file = path(QStringLiteral("forbidden.qrb"));
    ASSERT_TRUE(doc.SaveToFile(file));
    TarnXMLDoc loaded;
    ASSERT_TRUE(loaded.LoadFromFile(file)) << readFile(file).toStdString();
    ASSERT_EQ(loaded.RootElement().ElementCount(), expected.size());
    for (qint32 i = 0; i < expected.size(); ++i)
        EXPECT_EQ(loaded.RootElement().ElementAtPosition(i).AttributeValue(0), expected[i]) << i;
    // A look-up finds what the value became.
    EXPECT_EQ(root.ElementByAttributeValue(QStringLiteral("V"), units(cases[0].value)).XMLNode(),
              root.ElementAtPosition(0).XMLNode());
}

TEST_F(AttributeTest, ByNameGetOnAbsentAttributeFailsAndLetAddsIt)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    try {
        root.AttributeValueByName(QStringLiteral("Missing"));
        FAIL() << "no error";
    } catch (const QuorinError &error) {
        EXPECT_EQ(error.number(), ErrorNumber::ObjectNotSet);
    }
    root.setAttributeValueByName(QStringLiteral("Missing"), QStringLiteral("1"));
    root.setAttributeValueByName(QStringLiteral("Missing"), QStringLiteral("2"));
    EXPECT_EQ(root.AttributeCount(), 1);
    EXPECT_EQ(root.AttributeValueByName(QStringLiteral("Missing")), QStringLiteral("2"));
    // Attribute names keep their case.
    EXPECT_THROW(root.AttributeValueByName(QStringLiteral("missing")), QuorinError);
}

TEST_F(AttributeTest, AddAttributeReplacesAndIndexesFollowTheOrder)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    root.AddAttribute(QStringLiteral("First"), QStringLiteral("1"));
    root.AddAttribute(QStringLiteral("Second"), QStringLiteral("2"));
    root.AddAttribute(QStringLiteral("First"), QStringLiteral("one"));
    ASSERT_EQ(root.AttributeCount(), 2);
    EXPECT_EQ(root.AttributeName(0), QStringLiteral("First"));
    EXPECT_EQ(root.AttributeValue(0), QStringLiteral("one"));
    root.setAttributeValue(1, QStringLiteral("<2>"));
    EXPECT_EQ(root.AttributeValueByName(QStringLiteral("Second")), QStringLiteral("<2>"));
    EXPECT_THROW(root.AttributeName(2), QuorinError);
    EXPECT_THROW(root.AttributeValue(-1), QuorinError);
}

TEST_F(AttributeTest, InvalidNameIsReportedNotWritten)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    root.AddAttribute(QStringLiteral("two words"), QStringLiteral("x"));
    EXPECT_EQ(root.AttributeCount(), 0);
    EXPECT_EQ(timesLogged("#Error #"), 1);
    EXPECT_EQ(timesLogged("TarnXMLElement::AddAttribute"), 1);
}

using SearchTest = XmlTest;

TEST_F(SearchTest, ElementByNameIgnoresCaseAndGivesThePosition)
{
    TarnXMLDoc doc;
    const TarnXMLElement root = rootWith(doc,
                                         {QStringLiteral("A"),
                                          QStringLiteral("Rules"),
                                          QStringLiteral("B"),
                                          QStringLiteral("RULES")});
    qint32 position = 99;
    EXPECT_EQ(root.ElementByName(QStringLiteral("rules"), position, 0)
                  .AttributeValueByName(QStringLiteral("Key")),
              QStringLiteral("Rules"));
    EXPECT_EQ(position, 1);
    // StartAt past a match finds the next one; beyond the last child searches from the start.
    EXPECT_EQ(root.ElementByName(QStringLiteral("rules"), position, 2).ElementName(),
              QStringLiteral("RULES"));
    EXPECT_EQ(position, 3);
    EXPECT_FALSE(root.ElementByName(QStringLiteral("rules"), position, 4).isNull());
    EXPECT_EQ(position, 1);
    EXPECT_FALSE(root.ElementByName(QStringLiteral("rules"), position, -5).isNull());
    EXPECT_EQ(position, 1);
    EXPECT_TRUE(root.ElementByName(QStringLiteral("Missing"), position, 0).isNull());
    EXPECT_EQ(position, -1);
    EXPECT_TRUE(root.ElementByName(QString(), position, 0).isNull());
    EXPECT_EQ(position, -1);
    EXPECT_EQ(
        timesLogged("#Event #An element name must be specified.#TarnXMLElement::ElementByName"), 1);
}

TEST_F(SearchTest, ElementByAttributeValueComparesEscapedValuesIgnoringCase)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {QStringLiteral("A"), QStringLiteral("B")});
    root.ElementAtPosition(1).setAttributeValueByName(QStringLiteral("Title"),
                                                      QStringLiteral("If <x> then"));
    EXPECT_EQ(root.ElementByAttributeValue(QStringLiteral("Title"), QStringLiteral("IF <X> THEN"))
                  .ElementName(),
              QStringLiteral("B"));
    EXPECT_TRUE(
        root.ElementByAttributeValue(QStringLiteral("Title"), QStringLiteral("If")).isNull());
    EXPECT_TRUE(root.ElementByAttributeValue(QString(), QStringLiteral("A")).isNull());
    EXPECT_EQ(timesLogged(
                  "#An attribute name must be specified.#TarnXMLElement::ElementByAttributeValue"),
              1);
}

TEST_F(SearchTest, ElementListByNameGivesDescendantsInDocumentOrder)
{
    TarnXMLDoc doc;
    ASSERT_TRUE(doc.LoadFromString(
        QStringLiteral("<R><X n='1'><X n='2'/></X><Y><X n='3'/><x n='no'/></Y></R>")));
    const QList<TarnXMLElement> found = doc.RootElement().ElementListByName(QStringLiteral("X"));
    QStringList numbers;
    for (const TarnXMLElement &element : found)
        numbers << element.AttributeValueByName(QStringLiteral("n"));
    EXPECT_EQ(numbers, QStringList({"1", "2", "3"}));
    EXPECT_EQ(doc.RootElement().ElementListByName(QStringLiteral("*")).size(), 5);
    EXPECT_TRUE(doc.RootElement().ElementListByName(QString()).isEmpty());
    EXPECT_EQ(timesLogged("#TarnXMLElement::ElementListByName"), 1);
}

using ChildListTest = XmlTest;

TEST_F(ChildListTest, AddElementInsertsOrAppends)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {QStringLiteral("A"), QStringLiteral("B")});
    EXPECT_FALSE(root.AddElement(QStringLiteral("End"), 99).isNull());
    EXPECT_FALSE(root.AddElement(QStringLiteral("First"), 0).isNull());
    EXPECT_FALSE(root.AddElement(QStringLiteral("Second"), 1).isNull());
    EXPECT_FALSE(root.AddElement(QStringLiteral("Last"), -1).isNull());
    EXPECT_EQ(childNames(root), QStringList({"First", "Second", "A", "B", "End", "Last"}));
    EXPECT_TRUE(root.AddElement(QStringLiteral("1st")).isNull());
    EXPECT_EQ(root.ElementCount(), 6);
    EXPECT_EQ(timesLogged("TarnXMLElement::AddElement"), 1);
}

TEST_F(ChildListTest, RemovalsAndTheirFailures)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(
        doc, {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("D")});
    EXPECT_TRUE(root.RemoveElement(1));
    EXPECT_FALSE(root.RemoveElement(3));
    EXPECT_EQ(
        timesLogged("#Event #No element to remove at position 3#TarnXMLElement::RemoveElement"), 1);
    EXPECT_TRUE(root.RemoveElementByAttributeValue(QStringLiteral("Key"), QStringLiteral("c")));
    EXPECT_EQ(childNames(root), QStringList({"A", "D"}));
    // No match is an access to a missing object, reported by the routine's frame.
    EXPECT_FALSE(root.RemoveElementByAttributeValue(QStringLiteral("Key"), QStringLiteral("Z")));
    EXPECT_EQ(timesLogged("#Error #91 - "), 1);
    root.RemoveAllElements();
    EXPECT_EQ(root.ElementCount(), 0);
}

TEST_F(ChildListTest, PositionsOutOfRangeAreLogged)
{
    TarnXMLDoc doc;
    const TarnXMLElement root = rootWith(doc, {QStringLiteral("A")});
    EXPECT_TRUE(root.ElementAtPosition(3).isNull());
    EXPECT_TRUE(root.ElementAtPosition(-1).isNull());
    EXPECT_EQ(timesLogged("#Event #No element at position 3#TarnXMLElement::ElementAtPosition"), 1);
}

TEST_F(ChildListTest, WalksByPositionStayCorrectAcrossChanges)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    constexpr qint32 Count = 10000;
    for (qint32 i = 0; i < Count; ++i) {
        TarnXMLElement rule = root.AddElement(QStringLiteral("Rule"));
        rule.AddAttribute(QStringLiteral("RuleID"), QString::number(i));
        rule.AddElement(QStringLiteral("Items")).AddElement(QStringLiteral("Item"));
        rule.AddElement(QStringLiteral("ViolationDefinition"));
    }
    ASSERT_EQ(root.ElementCount(), Count);
    // As a loader walks: lookups inside each child between the steps of the outer walk.
    for (qint32 i = 0; i < Count; ++i) {
        const TarnXMLElement rule = root.ElementAtPosition(i);
        ASSERT_EQ(rule.AttributeValue(0), QString::number(i));
        ASSERT_FALSE(rule.ElementByName(QStringLiteral("violationdefinition")).isNull());
        ASSERT_EQ(rule.ElementAtPosition(1).ElementName(), QStringLiteral("ViolationDefinition"));
        ASSERT_EQ(rule.ElementAtPosition(0).ElementCount(), 1);
    }
    // Backwards and jumps, as cached positions must not answer for other ones.
    EXPECT_EQ(root.ElementAtPosition(Count - 2).AttributeValue(0), QString::number(Count - 2));
    EXPECT_EQ(root.ElementAtPosition(5).AttributeValue(0), QStringLiteral("5"));
    EXPECT_EQ(root.ElementAtPosition(4).AttributeValue(0), QStringLiteral("4"));
    // A change under a cached position: the old child at 5 is gone.
    EXPECT_TRUE(root.RemoveElement(5));
    EXPECT_EQ(root.ElementAtPosition(5).AttributeValue(0), QStringLiteral("6"));
    root.AddElement(QStringLiteral("New"), 5);
    EXPECT_EQ(root.ElementAtPosition(5).ElementName(), QStringLiteral("New"));
    EXPECT_EQ(root.ElementAtPosition(6).AttributeValue(0), QStringLiteral("6"));
    // Another parent does not borrow the cache.
    TarnXMLElement other = root.AddElement(QStringLiteral("Other"), 0);
    other.AddElement(QStringLiteral("Inner"));
    EXPECT_EQ(other.ElementAtPosition(0).ElementName(), QStringLiteral("Inner"));
    EXPECT_TRUE(other.ElementAtPosition(1).isNull());
}

using HandleTest = XmlTest;

TEST_F(HandleTest, HandlesKeepTheirTreeAlive)
{
    TarnXMLElement kept;
    TarnXMLElement removed;
    {
        TarnXMLDoc doc;
        TarnXMLElement root = rootWith(doc, {QStringLiteral("A"), QStringLiteral("B")});
        kept = root.ElementAtPosition(0);
        removed = root.ElementAtPosition(1);
        root.RemoveElement(1);
        doc.NewDoc(QStringLiteral("Other"));
        EXPECT_EQ(doc.RootElement().ElementName(), QStringLiteral("Other"));
    }
    EXPECT_EQ(kept.AttributeValueByName(QStringLiteral("Key")), QStringLiteral("A"));
    EXPECT_EQ(removed.XMLString(), QStringLiteral("<B Key=\"B\"/>"));
}

// Removal frees what no handle holds; a handle on a removed node, or on any node below one,
// keeps it whole, however the handle was copied, moved or stored.
TEST_F(HandleTest, RemovedNodesStayWholeWhileAHandleHoldsThemOrANodeBelow)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    std::vector<TarnXMLElement> held;
    QStringList expected;
    for (int i = 0; i < 60; ++i) {
        TarnXMLElement child = root.AddElement(QStringLiteral("Child"));
        child.setAttributeValueByName(QLatin1StringView("Key"), QString::number(i));
        TarnXMLElement below = child.AddElement(QStringLiteral("Below"));
        below.setAttributeValueByName(QLatin1StringView("Key"), QStringLiteral("b%1").arg(i));
        if (i % 3 == 0) {
            held.push_back(below);
            expected << QStringLiteral("b%1").arg(i);
        } else if (i % 3 == 1) {
            held.push_back(std::move(child));
            expected << QString::number(i);
        }
    }
    TarnXMLElement assigned;
    assigned = held[0];
    TarnXMLElement moved = std::move(held[1]);
    held[1] = moved;
    moved = assigned;
    root.RemoveAllElements();
    EXPECT_EQ(root.ElementCount(), 0);
    ASSERT_EQ(held.size(), size_t(expected.size()));
    for (size_t i = 0; i < held.size(); ++i)
        EXPECT_EQ(held[i].AttributeValueByName(QLatin1StringView("Key")), expected[qsizetype(i)]);
    EXPECT_EQ(held[1].ElementAtPosition(0).AttributeValueByName(QStringLiteral("Key")),
              QStringLiteral("b1"));
    EXPECT_EQ(moved.AttributeValueByName(QStringLiteral("Key")), QStringLiteral("b0"));
    // What comes after the removal builds on a sound tree.
    root.AddElement(QStringLiteral("After"))
        .setAttributeValueByName(QLatin1StringView("Key"), QStringLiteral("x"));
    EXPECT_EQ(root.XMLString(), QStringLiteral("<Root><After Key=\"x\"/></Root>"));
}

TEST_F(HandleTest, NullHandleFailsInTheCaller)
{
    const TarnXMLElement null;
    EXPECT_FALSE(null);
    EXPECT_EQ(null.XMLNode(), nullptr);
    try {
        null.ElementCount();
        FAIL() << "no error";
    } catch (const QuorinError &error) {
        EXPECT_EQ(error.number(), ErrorNumber::ObjectNotSet);
        EXPECT_EQ(error.source(), QStringLiteral("TarnXMLElement::ElementCount"));
    }
    EXPECT_THROW(null.ElementByName(QStringLiteral("A")), QuorinError);
    // Nothing was caught and logged on the way.
    EXPECT_TRUE(logRecords().isEmpty());
}
