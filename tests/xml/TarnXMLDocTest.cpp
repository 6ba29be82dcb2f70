#include "XmlTestSupport.h"

#include "support/TestEnvironment.h"
#include "xml/TarnXMLDoc.h"
#include "xml/TarnXMLElement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

constexpr qint32 InvalidPath = qint32(0x80070003u);
constexpr qint32 AccessDenied = qint32(0x80070005u);

using DocumentTest = XmlTest;

TEST_F(DocumentTest, LoadKeepsElementsOnlyInTheFilesEncodingAndAFailedOneLeavesAnEmptyRoot)
{
    TarnXMLDoc doc;
    EXPECT_EQ(doc.RootElement().ElementName(), u"Root_Element"_s); // made when there is none
    doc.NewDoc(u"Quorin_Rulebase"_s);
    EXPECT_EQ(doc.XMLString(), u"<Quorin_Rulebase/>"_s);
    ASSERT_TRUE(doc.LoadFromFile(writeFile(
        u"edited.qrb"_s,
        "<?xml version=\"1.0\"?>\n<!-- edited by hand -->\n<Root>\n  <A>\r\n  </A>\n\t<?note x?>\n"
        "  <!-- a comment -->\n  <B x=\"1\"/>\n</Root>\n<!-- trailer -->\n")));
    EXPECT_EQ(doc.XMLString(), u"<Root><A/><B x=\"1\"/></Root>"_s);

    const std::pair<const char *, QByteArray> files[]
        = {{"utf8.qrb", "<R a=\"\xC3\xA9\"/>"}, // no declaration: UTF-8
           {"latin1.qrb", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><R a=\"\xE9\"/>"}};
    for (const auto &[name, bytes] : files) {
        ASSERT_TRUE(doc.LoadFromFile(writeFile(QString::fromLatin1(name), bytes))) << name;
        EXPECT_EQ(doc.RootElement().AttributeValueByName(u"a"_s), u"é"_s) << name;
    }
    // A string is text already, whatever its declaration claims.
    ASSERT_TRUE(doc.LoadFromString(u"<?xml version=\"1.0\" encoding=\"UTF-16\"?><R a=\"é\"/>"_s));
    EXPECT_EQ(doc.RootElement().AttributeValueByName(u"a"_s), u"é"_s);
    EXPECT_FALSE(doc.LoadFromString(u"<a>"_s));
    EXPECT_EQ(doc.RootElement().ElementName(), u"Root_Element"_s);
    EXPECT_EQ(doc.RootElement().ElementCount(), 0);
}

// A bad file fails with the reason and the place, in the log only. A rulebase needs no entities
// of its own: ones that expand without end, and ones or DTDs kept outside the file, are refused
// with the reason before they are expanded or read.
TEST_F(DocumentTest, BadFilesFailWithReasonAndPlaceInTheLogOnly)
{
    QByteArray laughs = "<!DOCTYPE R [<!ELEMENT R ANY><!ATTLIST R a CDATA #IMPLIED>"
                        "<!ENTITY l0 \"lol\">";
    for (int i = 1; i < 10; ++i)
        laughs += "<!ENTITY l" + QByteArray::number(i) + " \""
                  + ("&l" + QByteArray::number(i - 1) + ';').repeated(10) + "\">";
    laughs += "]>";
    writeFile(u"secret.txt"_s, "top secret");
    writeFile(u"r.dtd"_s, "<!ELEMENT R ANY>");
    const std::tuple<const char *, QByteArray, const char *> cases[] = {
        {"empty.qrb", "", "(line 1, column 1)"},
        {"truncated.qrb", "<R>\n  <A x=\"1\">\n  <B", "(line 3"},
        {"text.qrb", "This is not XML.", "(line 1, column 1)"},
        {"mismatch.qrb", "<R>\n<A>\n  </B></R>", "(line 3, column 7)"},
        {"latin1.qrb", "<R>\n<A x=\"caf\xE9\"/></R>", "(line 2"},
        {"laughs.qrb", laughs + "<R>&l9;</R>", "expands to far more text"},
        {"laughs-in-attribute.qrb", laughs + "<R a=\"&l9;\"/>", "expands to far more text"},
        {"external.qrb",
         "<!DOCTYPE R [<!ELEMENT R ANY><!ENTITY x SYSTEM \"secret.txt\">]><R>&x;</R>",
         "external entity \"secret.txt\""},
        {"external-parameter.qrb",
         "<!DOCTYPE R [<!ENTITY % p SYSTEM \"r.dtd\"> %p;]><R/>",
         "external entity \"r.dtd\""},
        {"external-dtd.qrb", "<!DOCTYPE R SYSTEM \"r.dtd\"><R/>", "external entity \"r.dtd\""},
    };
    ::testing::internal::CaptureStderr();
    for (const auto &[name, bytes, reason] : cases) {
        TarnXMLDoc doc;
        EXPECT_FALSE(doc.LoadFromFile(writeFile(QString::fromLatin1(name), bytes))) << name;
        const QStringList records = logged(u"#Event #XML Parser Error: Number="_s);
        const QString last = records.isEmpty() ? QString() : records.last();
        EXPECT_TRUE(last.contains(" Reason="_L1) && last.contains(QLatin1String(reason))
                    && last.endsWith("#TarnXMLDoc::LoadFromFile"_L1))
            << name << ": " << last.toStdString();
    }
    EXPECT_EQ(logRecords().size(), std::size(cases));
    EXPECT_TRUE(logged(u"top secret"_s).isEmpty());

    TarnXMLDoc doc;
    EXPECT_FALSE(doc.LoadFromFile(path(u"missing.qrb"_s)));
    EXPECT_FALSE(doc.LoadFromString(u"<R></S>"_s));
    // No network: a DTD on the web is not fetched, so the document can't be validated.
    EXPECT_FALSE(doc.LoadFromString(u"<!DOCTYPE R SYSTEM \"http://example.com/r.dtd\"><R/>"_s));
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), std::string());
    EXPECT_EQ(timesLogged("#TarnXMLDoc::LoadFromFile"), std::size(cases) + 1);
    EXPECT_EQ(timesLogged("#TarnXMLDoc::LoadFromString"), 2);

    // Validation binds only a document with a DTD, and only while it is asked for.
    const QString invalid = u"<!DOCTYPE R [<!ELEMENT R EMPTY>]><R><A/></R>"_s;
    EXPECT_TRUE(doc.LoadFromString(u"<R><A/></R>"_s));
    EXPECT_FALSE(doc.LoadFromString(invalid));
    doc.setValidateWhileParsing(false);
    EXPECT_TRUE(doc.LoadFromString(invalid));
    // An entity of the file's own expands.
    ASSERT_TRUE(doc.LoadFromFile(
        writeFile(u"internal.qrb"_s,
                  "<!DOCTYPE R [<!ELEMENT R ANY><!ATTLIST R a CDATA #IMPLIED><!ENTITY e \"x\">]>"
                  "<R a=\"&e;&e;\"/>")));
    EXPECT_EQ(doc.RootElement().AttributeValueByName(u"a"_s), u"xx"_s);
}

using SaveTest = XmlTest;

TEST_F(SaveTest, WritesTheTreeAsBuiltInUtf8AndAnEmptyNameMeansTheLoadedFile)
{
    TarnXMLDoc doc;
    doc.NewDoc(u"Quorin_Rulebase"_s);
    TarnXMLElement root = doc.RootElement();
    root.AddAttribute(u"SchemaVersion"_s, u"6.2"_s);
    root.AddElement(u"RulebaseProperties"_s).AddAttribute(u"Name"_s, u"Règles \"A&B\""_s);
    root.AddElement(u"Rules"_s).AddElement(u"CodingConventions"_s);
    const QString file = path(u"out.qrb"_s);
    ASSERT_TRUE(doc.SaveToFile(file));
    EXPECT_EQ(
        readFile(file),
        u"<Quorin_Rulebase SchemaVersion=\"6.2\"><RulebaseProperties Name=\"Règles "
        "&quot;A&amp;B&quot;\"/><Rules><CodingConventions/></Rules></Quorin_Rulebase>"_s.toUtf8());
    EXPECT_EQ(doc.LastError(), 0);

    ASSERT_TRUE(doc.LoadFromFile(writeFile(u"r.qrb"_s, "<R/>")));
    doc.RootElement().AddElement(u"A"_s);
    ASSERT_TRUE(doc.SaveToFile());
    EXPECT_EQ(readFile(path(u"r.qrb"_s)), QByteArray("<R><A/></R>"));
    ASSERT_TRUE(doc.LoadFromString(u"<S/>"_s)); // a string load forgets the name
    EXPECT_FALSE(doc.SaveToFile());
    EXPECT_EQ(doc.LastError(), InvalidPath);
}

TEST_F(SaveTest, FailuresKeepTheOldFileAndGiveTheirCodeAndText)
{
    TarnXMLDoc doc;
    doc.NewDoc(u"New"_s);
    EXPECT_FALSE(doc.SaveToFile(path(u"no/such/folder/r.qrb"_s)));
    EXPECT_EQ(doc.LastError(), InvalidPath);
    const QStringList records = logged(u"#Event #XML Parser Error: Number=-2147024893 Reason="_s);
    ASSERT_EQ(records.size(), 1);
    EXPECT_TRUE(records.first().endsWith("#TarnXMLDoc::SaveToFile"_L1));
    EXPECT_TRUE(doc.SaveToFile(path(u"r.qrb"_s)));
    EXPECT_EQ(doc.LastError(), InvalidPath); // a later good save leaves the code of the failure

    // A name whose temporary sibling would be too long: the write fails whoever runs it.
    const QString name = QString(250, u'r') + u".qrb"_s;
    const QByteArray old = "<Old attribute=\"kept\"/>";
    writeFile(name, old);
    EXPECT_FALSE(doc.SaveToFile(path(name)));
    EXPECT_NE(doc.LastError(), 0);
    EXPECT_EQ(readFile(path(name)), old);
    EXPECT_EQ(QDir(m_dir).entryList(QDir::Files), QStringList({u"Error.log"_s, u"r.qrb"_s, name}));

    const QString folder = path(u"locked"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    writeFile(u"locked/r.qrb"_s, old);
    if (TestEnvironment::makeReadOnly(folder)) {
        const bool saved = doc.SaveToFile(folder + u"/r.qrb"_s);
        TestEnvironment::makeWritable(folder);
        EXPECT_FALSE(saved);
        EXPECT_EQ(doc.LastError(), AccessDenied);
        EXPECT_EQ(readFile(folder + u"/r.qrb"_s), old);
        EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList({u"r.qrb"_s}));
    }

    // The words the user reads: the failure met above has its own, any other code its number.
    EXPECT_EQ(TarnXMLDoc::SaveErrorText(InvalidPath), u"Invalid path."_s);
    EXPECT_EQ(TarnXMLDoc::SaveErrorText(qint32(0x80004005u)), u"Unknown error -2147467259"_s);
}

using TransformTest = XmlTest;

TEST_F(TransformTest, AppliesAStyleSheetAndLogsABadOne)
{
    TarnXMLDoc doc;
    ASSERT_TRUE(doc.LoadFromString(u"<R><Rule Title=\"Größe\"/><Rule Title=\"B\"/></R>"_s));
    TarnXMLDoc sheet;
    ASSERT_TRUE(sheet.LoadFromString(
        u"<xsl:stylesheet version=\"1.0\" xmlns:xsl=\"http://www.w3.org/1999/XSL/Transform\">"
        "<xsl:output method=\"text\" encoding=\"ISO-8859-1\"/>"
        "<xsl:template match=\"/\"><xsl:for-each select=\"R/Rule\">"
        "<xsl:value-of select=\"@Title\"/>;</xsl:for-each></xsl:template></xsl:stylesheet>"_s));
    EXPECT_EQ(doc.TransformDocument(sheet), u"Größe;B;"_s);
    TarnXMLDoc notASheet;
    notASheet.NewDoc(u"Plain"_s);
    EXPECT_EQ(doc.TransformDocument(notASheet), QString());
    EXPECT_EQ(timesLogged("#TarnXMLDoc::TransformDocument"), 1);
}
