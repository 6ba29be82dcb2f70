#include "XmlTestSupport.h"

#include "platform/QuorinError.h"
#include "xml/TarnXMLDoc.h"
#include "xml/TarnXMLElement.h"

#include <random>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QString CRLF = u"\r\n"_s;

// A root with children named by `names`, each with an attribute Key holding its own name.
TarnXMLElement rootWith(TarnXMLDoc &doc, const QStringList &names)
{
    doc.NewDoc(u"Root"_s);
    TarnXMLElement root = doc.RootElement();
    for (const QString &name : names)
        root.AddElement(name).setAttributeValueByName(u"Key"_s, name);
    return root;
}

// The UTF-16 units as they stand: fromUtf16 would read a leading U+FFFE as a byte order mark.
QString units(const std::u16string &text)
{
    return QString(reinterpret_cast<const QChar *>(text.data()), qsizetype(text.size()));
}

QString childNames(const TarnXMLElement &element)
{
    QStringList names;
    for (qint32 i = 0; i < element.ElementCount(); ++i)
        names << element.ElementAtPosition(i).ElementName();
    return names.join(u' ');
}

// Random texts of up to seven pieces.
QStringList randomTexts(unsigned seed, int count, const QStringList &pieces)
{
    std::mt19937 random(seed);
    QStringList texts;
    for (int i = 0; i < count; ++i) {
        QString text;
        for (int n = int(random() % 8); n > 0; --n)
            text += pieces[qsizetype(random() % unsigned(pieces.size()))];
        texts << text;
    }
    return texts;
}

} // namespace

using AttributeTest = XmlTest;

// The four escapes restore in order, whatever their case. Whatever the stored text, every way
// of reading it gives what the four restores in turn give, and the in-place view is the same
// text, or null when there is anything to restore.
TEST_F(AttributeTest, EscapesRestoreInOrderAndEveryReadingOfAStoredValueAgrees)
{
    const QString value = u"a<b>c\td"_s + CRLF + u"e\rf\ng\r\r\n"_s;
    EXPECT_EQ(TarnXMLElement::ReplaceIllegalChars(value),
              u"a%LT%b%GT%c%TAB%d%CRLF%e\rf\ng\r%CRLF%"_s); // lone line ends stay
    EXPECT_EQ(TarnXMLElement::RestoreIllegalChars(TarnXMLElement::ReplaceIllegalChars(value)),
              value);
    EXPECT_EQ(TarnXMLElement::RestoreIllegalChars(u"x%tab%y%Lt%%gT%%crlf%"_s), u"x\ty<>"_s + CRLF);
    // The "%CRLF%" is found first and takes the "%" that "%TAB%" would need.
    EXPECT_EQ(TarnXMLElement::RestoreIllegalChars(u"%TAB%CRLF%"_s), u"%TAB"_s + CRLF);
    EXPECT_EQ(TarnXMLElement::RestoreIllegalChars(u"100% sure"_s), u"100% sure"_s);

    const QStringList stored = randomTexts(
        7u,
        2000,
        u"%|%CRLF%|%crlf%|%TAB%|%Tab|%LT%|%gt%|CRLF|TAB%|G|x|é|€|\U00010400|&|\"|12"_s.split(u'|'));
    QString xml = u"<Root>"_s;
    for (QString text : stored)
        xml += u"<Item A=\""_s + text.replace(u'&', u"&amp;"_s).replace(u'"', u"&quot;"_s)
               + u"\"/>"_s;
    TarnXMLDoc doc;
    ASSERT_TRUE(doc.LoadFromString(xml + u"</Root>"_s));
    const TarnXMLElement root = doc.RootElement();
    for (qint32 i = 0; i < stored.size(); ++i) {
        QString expected = stored[i];
        const std::pair<QString, QString> restores[] = {
            {u"%CRLF%"_s, CRLF}, {u"%TAB%"_s, u"\t"_s}, {u"%LT%"_s, u"<"_s}, {u"%GT%"_s, u">"_s}};
        for (const auto &[escape, replacement] : restores)
            expected.replace(escape, replacement, Qt::CaseInsensitive);
        const TarnXMLElement item = root.ElementAtPosition(i);
        ASSERT_EQ(item.AttributeValueByName(QLatin1StringView("A")), expected) << i;
        ASSERT_EQ(item.AttributeValueByName(u"A"_s), expected) << i;
        ASSERT_EQ(TarnXMLElement::RestoreIllegalChars(stored[i]), expected) << i;
        const QUtf8StringView view = item.AttributeUtf8ByName(QLatin1StringView("A"));
        if (stored[i].contains(u'%'))
            ASSERT_TRUE(view.isNull()) << i;
        else
            ASSERT_EQ(QByteArray(view.data(), view.size()), expected.toUtf8()) << i;
    }
    EXPECT_TRUE(root.AttributeUtf8ByName(QLatin1StringView("A")).isNull());
    EXPECT_TRUE(TarnXMLElement().AttributeUtf8ByName(QLatin1StringView("A")).isNull());
}

// Every way of writing a value stores the same text, escaped as the file holds it; characters
// XML forbids are dropped on the way in, so the file loads again with the rest of the text.
TEST_F(AttributeTest, EveryWayOfWritingAValueStoresTheSameLoadableText)
{
    using namespace std::string_literals;
    struct Case
    {
        QString value, kept;
        bool viaUtf8; // UTF-8 can't carry a lone surrogate
    };
    std::vector<Case> cases;
    const std::tuple<std::u16string, std::u16string, bool> forbidden[] = {
        {u"a\u0001b\x1F\x0B\x0C\x7F"s, u"ab\x7F"s, true},
        {u"nul\0end"s, u"nulend"s, true},
        {u"tab\t, CR LF\r\n, LF\n, CR\r"s, u"tab\t, CR LF\r\n, LF\n, CR\r"s, true},
        {u"\xFFFE\xFFFFok\xFFFD"s, u"ok\xFFFD"s, true},
        {u"lone \xD800, \xDC00; pair \xD83D\xDE00"s, u"lone , ; pair \xD83D\xDE00"s, false},
        {u"\xDC00\xD800"s, u""s, false},
        {u"  blanks & \"quotes\" kept  "s, u"  blanks & \"quotes\" kept  "s, true},
    };
    for (const auto &[value, kept, viaUtf8] : forbidden)
        cases.push_back({units(value), units(kept), viaUtf8});
    for (const QString &value :
         randomTexts(11u, 500, u"\r\n|\r|\n|\t|<|>|%|&|\"|é|日本|\U0001F600|x|42"_s.split(u'|')))
        cases.push_back({value, value, true});

    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    for (size_t i = 0; i < cases.size(); ++i) {
        const Case &c = cases[i];
        const QString stored = TarnXMLElement::ReplaceIllegalChars(c.kept);
        QString xml = stored;
        xml.replace(u'&', u"&amp;"_s)
            .replace(u'"', u"&quot;"_s)
            .replace(u'\r', u"&#13;"_s)
            .replace(u'\n', u"&#10;"_s);
        TarnXMLElement group = root.AddElement(u"Case"_s);
        const QByteArray utf8 = c.value.toUtf8();
        // By either kind of name, as text or as UTF-8, added, or over a value already there.
        for (int way = 0; way < 6; ++way) {
            if (!c.viaUtf8 && (way == 2 || way == 4))
                continue;
            TarnXMLElement element = group.AddElement(u"E"_s);
            if (way >= 4)
                element.AddAttribute(u"V"_s, u"old"_s);
            if (way == 0)
                element.setAttributeValueByName(u"V"_s, c.value);
            else if (way == 1)
                element.setAttributeValueByName(QLatin1StringView("V"), c.value);
            else if (way == 2 || way == 4)
                element.setAttributeValueByName(QLatin1StringView("V"), QUtf8StringView(utf8));
            else if (way == 3)
                element.AddAttribute(u"V"_s, c.value);
            else
                element.setAttributeValue(0, c.value);
            ASSERT_EQ(element.AttributeCount(), 1) << i;
            ASSERT_EQ(element.XMLString(), u"<E V=\""_s + xml + u"\"/>"_s) << i;
            ASSERT_EQ(element.AttributeValue(0), TarnXMLElement::RestoreIllegalChars(stored)) << i;
        }
        // A look-up finds what the value became.
        ASSERT_EQ(group.ElementByAttributeValue(u"V"_s, c.value).XMLNode(),
                  group.ElementAtPosition(0).XMLNode())
            << i;
    }
    const QString file = path(u"written.qrb"_s);
    ASSERT_TRUE(doc.SaveToFile(file));
    TarnXMLDoc loaded;
    ASSERT_TRUE(loaded.LoadFromFile(file)) << readFile(file).toStdString();
    EXPECT_EQ(loaded.XMLString(), doc.XMLString());
}

TEST_F(AttributeTest, NamesKeepTheirCaseAndOrderAndBadOnesAreRefused)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {});
    try {
        root.AttributeValueByName(u"First"_s);
        FAIL() << "no error";
    } catch (const QuorinError &error) {
        EXPECT_EQ(error.number(), ErrorNumber::ObjectNotSet);
    }
    root.setAttributeValueByName(u"First"_s, u"1"_s); // a let adds what is absent
    root.AddAttribute(u"Second"_s, u"2"_s);
    root.AddAttribute(u"First"_s, u"one"_s); // and an add replaces what is there
    ASSERT_EQ(root.AttributeCount(), 2);
    EXPECT_EQ(root.AttributeName(0), u"First"_s);
    EXPECT_EQ(root.AttributeValue(0), u"one"_s);
    root.setAttributeValue(1, u"<2>"_s);
    EXPECT_EQ(root.AttributeValueByName(u"Second"_s), u"<2>"_s);
    EXPECT_THROW(root.AttributeValueByName(u"first"_s), QuorinError);
    EXPECT_THROW(root.AttributeName(2), QuorinError);
    EXPECT_THROW(root.AttributeValue(-1), QuorinError);

    root.AddAttribute(u"two words"_s, u"x"_s);
    EXPECT_EQ(root.AttributeCount(), 2);
    EXPECT_EQ(timesLogged("#Error #"), 1);
    EXPECT_EQ(timesLogged("TarnXMLElement::AddAttribute"), 1);
}

using SearchTest = XmlTest;

TEST_F(SearchTest, ElementByNameOrAttributeValueIgnoresCaseAndListByNameFindsDescendants)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {u"A"_s, u"Rules"_s, u"B"_s, u"RULES"_s});
    // StartAt past a match finds the next one; outside the children searches from the start.
    const std::tuple<QString, qint32, const char *, qint32> cases[] = {{u"rules"_s, 0, "Rules", 1},
                                                                       {u"rules"_s, 2, "RULES", 3},
                                                                       {u"rules"_s, 4, "Rules", 1},
                                                                       {u"rules"_s, -5, "Rules", 1},
                                                                       {u"Missing"_s, 0, "", -1},
                                                                       {QString(), 0, "", -1}};
    for (const auto &[name, startAt, key, expected] : cases) {
        qint32 position = 99;
        const TarnXMLElement found = root.ElementByName(name, position, startAt);
        EXPECT_EQ(found.isNull() ? QString() : found.AttributeValueByName(u"Key"_s),
                  QLatin1String(key));
        EXPECT_EQ(position, expected) << qPrintable(name) << " " << startAt;
    }
    EXPECT_EQ(
        timesLogged("#Event #An element name must be specified.#TarnXMLElement::ElementByName"), 1);

    root.ElementAtPosition(2).setAttributeValueByName(u"Title"_s, u"If <x> then"_s);
    EXPECT_EQ(root.ElementByAttributeValue(u"Title"_s, u"IF <X> THEN"_s).ElementName(), u"B"_s);
    EXPECT_TRUE(root.ElementByAttributeValue(u"Title"_s, u"If"_s).isNull());
    EXPECT_TRUE(root.ElementByAttributeValue(QString(), u"A"_s).isNull());
    EXPECT_EQ(timesLogged(
                  "#An attribute name must be specified.#TarnXMLElement::ElementByAttributeValue"),
              1);

    ASSERT_TRUE(
        doc.LoadFromString(u"<R><X n='1'><X n='2'/></X><Y><X n='3'/><x n='no'/></Y></R>"_s));
    QStringList numbers;
    for (const TarnXMLElement &element : doc.RootElement().ElementListByName(u"X"_s))
        numbers << element.AttributeValueByName(u"n"_s);
    EXPECT_EQ(numbers, QStringList({u"1"_s, u"2"_s, u"3"_s})); // descendants in document order
    EXPECT_EQ(doc.RootElement().ElementListByName(u"*"_s).size(), 5);
    EXPECT_TRUE(doc.RootElement().ElementListByName(QString()).isEmpty());
    EXPECT_EQ(timesLogged("#TarnXMLElement::ElementListByName"), 1);
}

using ChildListTest = XmlTest;

TEST_F(ChildListTest, AddsRemovesLogsBadPositionsAndWalksStayCorrectAcrossChanges)
{
    TarnXMLDoc doc;
    TarnXMLElement root = rootWith(doc, {u"A"_s, u"B"_s});
    const std::pair<QString, qint32> adds[]
        = {{u"End"_s, 99}, {u"First"_s, 0}, {u"Second"_s, 1}, {u"Last"_s, -1}};
    for (const auto &[name, at] : adds)
        EXPECT_FALSE(root.AddElement(name, at).isNull());
    EXPECT_EQ(childNames(root), u"First Second A B End Last"_s);
    EXPECT_TRUE(root.AddElement(u"1st"_s).isNull());
    EXPECT_EQ(timesLogged("TarnXMLElement::AddElement"), 1);

    root = rootWith(doc, {u"A"_s, u"B"_s, u"C"_s, u"D"_s});
    EXPECT_TRUE(root.RemoveElement(1));
    EXPECT_FALSE(root.RemoveElement(3));
    EXPECT_EQ(
        timesLogged("#Event #No element to remove at position 3#TarnXMLElement::RemoveElement"), 1);
    EXPECT_TRUE(root.RemoveElementByAttributeValue(u"Key"_s, u"c"_s));
    EXPECT_EQ(childNames(root), u"A D"_s);
    // No match is an access to a missing object, reported by the routine's frame.
    EXPECT_FALSE(root.RemoveElementByAttributeValue(u"Key"_s, u"Z"_s));
    EXPECT_EQ(timesLogged("#Error #91 - "), 1);
    EXPECT_TRUE(root.ElementAtPosition(2).isNull());
    EXPECT_TRUE(root.ElementAtPosition(-1).isNull());
    EXPECT_EQ(timesLogged("#Event #No element at position 2#TarnXMLElement::ElementAtPosition"), 1);
    root.RemoveAllElements();
    EXPECT_EQ(root.ElementCount(), 0);

    constexpr qint32 Count = 10000;
    for (qint32 i = 0; i < Count; ++i) {
        TarnXMLElement rule = root.AddElement(u"Rule"_s);
        rule.AddAttribute(u"RuleID"_s, QString::number(i));
        rule.AddElement(u"Items"_s).AddElement(u"Item"_s);
        rule.AddElement(u"ViolationDefinition"_s);
    }
    // As a loader walks: lookups inside each child between the steps of the outer walk.
    for (qint32 i = 0; i < Count; ++i) {
        const TarnXMLElement rule = root.ElementAtPosition(i);
        ASSERT_EQ(rule.AttributeValue(0), QString::number(i));
        ASSERT_FALSE(rule.ElementByName(u"violationdefinition"_s).isNull());
        ASSERT_EQ(rule.ElementAtPosition(1).ElementName(), u"ViolationDefinition"_s);
        ASSERT_EQ(rule.ElementAtPosition(0).ElementCount(), 1);
    }
    // Backwards and jumps, as cached positions must not answer for other ones.
    EXPECT_EQ(root.ElementAtPosition(Count - 2).AttributeValue(0), QString::number(Count - 2));
    EXPECT_EQ(root.ElementAtPosition(5).AttributeValue(0), u"5"_s);
    EXPECT_EQ(root.ElementAtPosition(4).AttributeValue(0), u"4"_s);
    EXPECT_TRUE(root.RemoveElement(5)); // a change under a cached position
    EXPECT_EQ(root.ElementAtPosition(5).AttributeValue(0), u"6"_s);
    root.AddElement(u"New"_s, 5);
    EXPECT_EQ(root.ElementAtPosition(5).ElementName(), u"New"_s);
    EXPECT_EQ(root.ElementAtPosition(6).AttributeValue(0), u"6"_s);
    TarnXMLElement other = root.AddElement(u"Other"_s, 0); // another parent has its own cache
    other.AddElement(u"Inner"_s);
    EXPECT_EQ(other.ElementAtPosition(0).ElementName(), u"Inner"_s);
    EXPECT_TRUE(other.ElementAtPosition(1).isNull());
}

using HandleTest = XmlTest;

// Removal frees what no handle holds; a handle on a removed node, or on any node below one,
// keeps it whole, however the handle was copied, moved or stored, even past its document.
TEST_F(HandleTest, RemovedNodesStayWholeWhileAHandleHoldsThemOrANodeBelow)
{
    TarnXMLElement outlived;
    std::vector<TarnXMLElement> held;
    QStringList expected;
    TarnXMLElement assigned, moved;
    {
        TarnXMLDoc doc;
        TarnXMLElement root = rootWith(doc, {});
        for (int i = 0; i < 60; ++i) {
            TarnXMLElement child = root.AddElement(u"Child"_s);
            child.setAttributeValueByName(QLatin1StringView("Key"), QString::number(i));
            TarnXMLElement below = child.AddElement(u"Below"_s);
            below.setAttributeValueByName(QLatin1StringView("Key"), u"b%1"_s.arg(i));
            if (i % 3 == 0) {
                held.push_back(below);
                expected << u"b%1"_s.arg(i);
            } else if (i % 3 == 1) {
                held.push_back(std::move(child));
                expected << QString::number(i);
            }
        }
        assigned = held[0];
        moved = std::move(held[1]);
        held[1] = moved;
        moved = assigned;
        root.RemoveAllElements();
        EXPECT_EQ(root.ElementCount(), 0);
        root.AddElement(u"After"_s).setAttributeValueByName(QLatin1StringView("Key"), u"x"_s);
        EXPECT_EQ(root.XMLString(), u"<Root><After Key=\"x\"/></Root>"_s);
        outlived = root.ElementAtPosition(0);
        doc.NewDoc(u"Other"_s);
        EXPECT_EQ(doc.RootElement().ElementName(), u"Other"_s);
    }
    ASSERT_EQ(held.size(), size_t(expected.size()));
    for (size_t i = 0; i < held.size(); ++i)
        EXPECT_EQ(held[i].AttributeValueByName(QLatin1StringView("Key")), expected[qsizetype(i)]);
    EXPECT_EQ(held[1].ElementAtPosition(0).AttributeValueByName(u"Key"_s), u"b1"_s);
    EXPECT_EQ(moved.AttributeValueByName(u"Key"_s), u"b0"_s);
    EXPECT_EQ(outlived.XMLString(), u"<After Key=\"x\"/>"_s);
}
