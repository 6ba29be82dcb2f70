#include "XmlTestSupport.h"

#include "xml/TarnXMLDoc.h"
#include "xml/TarnXMLElement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

constexpr qint32 InvalidPath = qint32(0x80070003u);
constexpr qint32 AccessDenied = qint32(0x80070005u);

bool runningAsRoot()
{
#ifdef Q_OS_UNIX
    return ::geteuid() == 0;
#else
    return false;
#endif
}

} // namespace

using DocumentTest = XmlTest;

TEST_F(DocumentTest, NewDocLeavesAnEmptyRoot)
{
    TarnXMLDoc doc;
    doc.NewDoc(QStringLiteral("Quorin_Rulebase"));
    EXPECT_EQ(doc.RootElement().ElementCount(), 0);
    EXPECT_EQ(doc.RootElement().ElementName(), QStringLiteral("Quorin_Rulebase"));
    EXPECT_EQ(doc.XMLString(), QStringLiteral("<Quorin_Rulebase/>"));
}

TEST_F(DocumentTest, RootElementMakesARootWhenThereIsNone)
{
    TarnXMLDoc doc;
    TarnXMLElement root = doc.RootElement();
    EXPECT_EQ(root.ElementName(), QStringLiteral("Root_Element"));
    EXPECT_EQ(root.ElementCount(), 0);
    // The same after a failed load, which leaves the document empty.
    EXPECT_FALSE(doc.LoadFromString(QStringLiteral("<a>")));
    EXPECT_EQ(doc.RootElement().ElementName(), QStringLiteral("Root_Element"));
}

TEST_F(DocumentTest, LoadKeepsElementsOnly)
{
    const QString file = writeFile(
        QStringLiteral("edited.qrb"),
        "<?xml version=\"1.0\"?>\n<!-- edited by hand -->\n<Root>\n  <A>\r\n  </A>\n\t<?note x?>\n"
        "  <!-- a comment -->\n  <B x=\"1\"/>\n</Root>\n<!-- trailer -->\n");
    TarnXMLDoc doc;
    ASSERT_TRUE(doc.LoadFromFile(file));
    const TarnXMLElement root = doc.RootElement();
    ASSERT_EQ(root.ElementCount(), 2);
    EXPECT_EQ(root.ElementAtPosition(0).ElementCount(), 0);
    EXPECT_EQ(root.ElementAtPosition(1).ElementName(), QStringLiteral("B"));
    EXPECT_EQ(doc.XMLString(), QStringLiteral("<Root><A/><B x=\"1\"/></Root>"));
}

TEST_F(DocumentTest, EncodingsOfFiles)
{
    TarnXMLDoc doc;
    // No declaration: UTF-8.
    ASSERT_TRUE(doc.LoadFromFile(writeFile(QStringLiteral("utf8.qrb"), "<R a=\"\xC3\xA9\"/>")));
    EXPECT_EQ(doc.RootElement().AttributeValueByName(QStringLiteral("a")), QStringLiteral("é"));
    ASSERT_TRUE(doc.LoadFromFile(writeFile(QStringLiteral("latin1.qrb"),
                                           "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"
                                           "<R a=\"\xE9\"/>")));
    EXPECT_EQ(doc.RootElement().AttributeValueByName(QStringLiteral("a")), QStringLiteral("é"));
    // A string is text already, whatever its declaration claims.
    ASSERT_TRUE(doc.LoadFromString(
        QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-16\"?><R a=\"é\"/>")));
    EXPECT_EQ(doc.RootElement().AttributeValueByName(QStringLiteral("a")), QStringLiteral("é"));
}

TEST_F(DocumentTest, BadFilesFailWithReasonAndPlace)
{
    const struct
    {
        const char *name;
        QByteArray bytes;
        const char *where;
    } cases[] = {
        {"empty.qrb", "", "(line 1, column 1)"},
        {"truncated.qrb", "<R>\n  <A x=\"1\">\n  <B", "(line 3"},
        {"text.qrb", "This is not XML.", "(line 1, column 1)"},
        {"mismatch.qrb", "<R>\n<A>\n  </B></R>", "(line 3, column 7)"},
        {"latin1.qrb", "<R>\n<A x=\"caf\xE9\"/></R>", "(line 2"},
    };
    // The library reports to the log, never to stderr.
    ::testing::internal::CaptureStderr();
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        TarnXMLDoc doc;
        EXPECT_FALSE(doc.LoadFromFile(writeFile(QString::fromLatin1(c.name), c.bytes)));
        const QStringList records = logged(QStringLiteral("#Event #XML Parser Error: Number="));
        if (records.isEmpty()) {
            ADD_FAILURE() << "nothing logged";
            continue;
        }
        EXPECT_TRUE(records.last().contains(QLatin1String(" Reason=")));
        EXPECT_TRUE(records.last().contains(QLatin1String(c.where)))
            << records.last().toStdString();
        EXPECT_TRUE(records.last().endsWith(QLatin1String("#TarnXMLDoc::LoadFromFile")));
    }
    EXPECT_EQ(logRecords().size(), std::size(cases));

    TarnXMLDoc doc;
    EXPECT_FALSE(doc.LoadFromFile(path(QStringLiteral("missing.qrb"))));
    EXPECT_FALSE(doc.LoadFromString(QStringLiteral("<R></S>")));
    // No network: a DTD on the web is not fetched, so the document can't be validated.
    EXPECT_FALSE(
        doc.LoadFromString(QStringLiteral("<!DOCTYPE R SYSTEM \"http://example.com/r.dtd\"><R/>")));
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), std::string());
    EXPECT_EQ(timesLogged("#TarnXMLDoc::LoadFromFile"), std::size(cases) + 1);
    EXPECT_EQ(timesLogged("#TarnXMLDoc::LoadFromString"), 2);
}

TEST_F(DocumentTest, ValidationBindsOnlyADocumentWithADtd)
{
    const QString invalid = QStringLiteral("<!DOCTYPE R [<!ELEMENT R EMPTY>]><R><A/></R>");
    TarnXMLDoc doc;
    EXPECT_TRUE(doc.LoadFromString(QStringLiteral("<R><A/></R>")));
    EXPECT_FALSE(doc.LoadFromString(invalid));
    doc.setValidateWhileParsing(false);
    EXPECT_TRUE(doc.LoadFromString(invalid));
}

// A rulebase needs no entities of its own: ones that expand without end, and ones or DTDs
// kept outside the file, are refused with the reason before they are expanded or read.
TEST_F(DocumentTest, EntityBombsAndExternalEntitiesAreRefused)
{
    QByteArray laughs = "<!DOCTYPE R [<!ELEMENT R ANY><!ATTLIST R a CDATA #IMPLIED>"
                        "<!ENTITY l0 \"lol\">";
    for (int i = 1; i < 10; ++i)
        laughs += "<!ENTITY l" + QByteArray::number(i) + " \""
                  + ("&l" + QByteArray::number(i - 1) + ';').repeated(10) + "\">";
    laughs += "]>";
    writeFile(QStringLiteral("secret.txt"), "top secret");
    writeFile(QStringLiteral("r.dtd"), "<!ELEMENT R ANY>");
    const struct
    {
        const char *name;
        QByteArray bytes;
        const char *reason; // null: the file loads
    } cases[] = {
        {"laughs.qrb", laughs + "<R>&l9;</R>", "expands to far more text"},
        {"laughs-in-attribute.qrb", laughs + "<R a=\"&l9;\"/>", "expands to far more text"},
        {"external.qrb",
         "<!DOCTYPE R [<!ELEMENT R ANY><!ENTITY x SYSTEM \"secret.txt\">]><R>&x;</R>",
         "external entity \"secret.txt\""},
        {"external-parameter.qrb",
         "<!DOCTYPE R [<!ENTITY % p SYSTEM \"r.dtd\"> %p;]><R/>",
         "external entity \"r.dtd\""},
        {"external-dtd.qrb", "<!DOCTYPE R SYSTEM \"r.dtd\"><R/>", "external entity \"r.dtd\""},
        {"internal.qrb",
         "<!DOCTYPE R [<!ELEMENT R ANY><!ATTLIST R a CDATA #IMPLIED><!ENTITY e \"x\">]>"
         "<R a=\"&e;&e;\"/>",
         nullptr},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        TarnXMLDoc doc;
        const bool loaded = doc.LoadFromFile(writeFile(QString::fromLatin1(c.name), c.bytes));
        if (c.reason == nullptr) {
            ASSERT_TRUE(loaded);
            EXPECT_EQ(doc.RootElement().AttributeValueByName(QStringLiteral("a")),
                      QStringLiteral("xx"));
            continue;
        }
        EXPECT_FALSE(loaded);
        const QStringList records = logged(QStringLiteral("#TarnXMLDoc::LoadFromFile"));
        ASSERT_FALSE(records.isEmpty());
        EXPECT_TRUE(records.last().contains(QLatin1String(c.reason)))
            << records.last().toStdString();
    }
    EXPECT_TRUE(logged(QStringLiteral("top secret")).isEmpty());
}

using SaveTest = XmlTest;

TEST_F(SaveTest, WritesTheTreeAsBuiltInUtf8)
{
    TarnXMLDoc doc;
    doc.NewDoc(QStringLiteral("Quorin_Rulebase"));
    TarnXMLElement root = doc.RootElement();
    root.AddAttribute(QStringLiteral("SchemaVersion"), QStringLiteral("6.2"));
    root.AddElement(QStringLiteral("RulebaseProperties"))
        .AddAttribute(QStringLiteral("Name"), QStringLiteral("Règles \"A&B\""));
    root.AddElement(QStringLiteral("Rules")).AddElement(QStringLiteral("CodingConventions"));
    const QString file = path(QStringLiteral("out.qrb"));
    ASSERT_TRUE(doc.SaveToFile(file));
    EXPECT_EQ(readFile(file),
              QStringLiteral("<Quorin_Rulebase SchemaVersion=\"6.2\"><RulebaseProperties "
                             "Name=\"Règles &quot;A&amp;B&quot;\"/><Rules><CodingConventions/>"
                             "</Rules></Quorin_Rulebase>")
                  .toUtf8());
    EXPECT_EQ(doc.LastError(), 0);
}

TEST_F(SaveTest, EmptyNameSavesToTheLoadedFile)
{
    const QString file = writeFile(QStringLiteral("r.qrb"), "<R/>");
    TarnXMLDoc doc;
    ASSERT_TRUE(doc.LoadFromFile(file));
    doc.RootElement().AddElement(QStringLiteral("A"));
    ASSERT_TRUE(doc.SaveToFile());
    EXPECT_EQ(readFile(file), QByteArray("<R><A/></R>"));
    // A string load forgets the name.
    ASSERT_TRUE(doc.LoadFromString(QStringLiteral("<S/>")));
    EXPECT_FALSE(doc.SaveToFile());
    EXPECT_EQ(doc.LastError(), InvalidPath);
}

TEST_F(SaveTest, MissingFolderIsAnInvalidPath)
{
    TarnXMLDoc doc;
    doc.NewDoc(QStringLiteral("R"));
    EXPECT_FALSE(doc.SaveToFile(path(QStringLiteral("no/such/folder/r.qrb"))));
    EXPECT_EQ(doc.LastError(), InvalidPath);
    EXPECT_EQ(TarnXMLDoc::SaveErrorText(doc.LastError()), QStringLiteral("Invalid path."));
    const QStringList records
        = logged(QStringLiteral("#Event #XML Parser Error: Number=-2147024893 "
                                "Reason="));
    ASSERT_EQ(records.size(), 1);
    EXPECT_TRUE(records.first().endsWith(QLatin1String("#TarnXMLDoc::SaveToFile")));
    // A later good save leaves the code of the failure.
    EXPECT_TRUE(doc.SaveToFile(path(QStringLiteral("r.qrb"))));
    EXPECT_EQ(doc.LastError(), InvalidPath);
}

TEST_F(SaveTest, FailedSaveLeavesTheOldFileIntact)
{
    // A name whose temporary sibling would be too long: the write fails whoever runs it.
    const QString file = path(QString(250, QLatin1Char('r')) + QStringLiteral(".qrb"));
    const QByteArray old = "<Old attribute=\"kept\"/>";
    writeFile(QFileInfo(file).fileName(), old);
    TarnXMLDoc doc;
    doc.NewDoc(QStringLiteral("New"));
    EXPECT_FALSE(doc.SaveToFile(file));
    EXPECT_NE(doc.LastError(), 0);
    EXPECT_EQ(readFile(file), old);
    EXPECT_EQ(QDir(m_dir).entryList(QDir::Files),
              QStringList({QStringLiteral("Error.log"), QFileInfo(file).fileName()}));
}

TEST_F(SaveTest, ReadOnlyFolderIsAccessDenied)
{
    const QString folder = path(QStringLiteral("locked"));
    ASSERT_TRUE(QDir().mkpath(folder));
    const QByteArray old = "<Old attribute=\"kept\"/>";
    const QString file = folder + QStringLiteral("/r.qrb");
    {
        QFile out(file);
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(old);
    }
    QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    TarnXMLDoc doc;
    doc.NewDoc(QStringLiteral("New"));
    const bool saved = doc.SaveToFile(file);
    QFile::setPermissions(folder,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    if (runningAsRoot())
        GTEST_SKIP() << "permissions do not bind root";
    EXPECT_FALSE(saved);
    EXPECT_EQ(doc.LastError(), AccessDenied);
    EXPECT_EQ(readFile(file), old);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList({"r.qrb"}));
}

TEST_F(SaveTest, ErrorTexts)
{
    EXPECT_EQ(TarnXMLDoc::SaveErrorText(qint32(0x80070005u)), QStringLiteral("Access denied."));
    EXPECT_EQ(TarnXMLDoc::SaveErrorText(qint32(0x80070013u)),
              QStringLiteral("Media is write-protected."));
    EXPECT_EQ(TarnXMLDoc::SaveErrorText(qint32(0x80070015u)), QStringLiteral("Device not ready."));
    EXPECT_EQ(TarnXMLDoc::SaveErrorText(qint32(0x80070070u)), QStringLiteral("Not enough space."));
    EXPECT_EQ(TarnXMLDoc::SaveErrorText(qint32(0x80004005u)),
              QStringLiteral("Unknown error -2147467259"));
    EXPECT_EQ(TarnXMLDoc::SaveErrorText(0), QStringLiteral("Unknown error 0"));
}

using TransformTest = XmlTest;

TEST_F(TransformTest, AppliesAStyleSheetAndLogsABadOne)
{
    TarnXMLDoc doc;
    ASSERT_TRUE(
        doc.LoadFromString(QStringLiteral("<R><Rule Title=\"Größe\"/><Rule Title=\"B\"/></R>")));
    TarnXMLDoc sheet;
    ASSERT_TRUE(sheet.LoadFromString(QStringLiteral(
        "<xsl:stylesheet version=\"1.0\" xmlns:xsl=\"http://www.w3.org/1999/XSL/Transform\">"
        "<xsl:output method=\"text\" encoding=\"ISO-8859-1\"/>"
        "<xsl:template match=\"/\"><xsl:for-each select=\"R/Rule\">"
        "<xsl:value-of select=\"@Title\"/>;</xsl:for-each></xsl:template></xsl:stylesheet>")));
    EXPECT_EQ(doc.TransformDocument(sheet), QStringLiteral("Größe;B;"));

    TarnXMLDoc notASheet;
    notASheet.NewDoc(QStringLiteral("Plain"));
    EXPECT_EQ(doc.TransformDocument(notASheet), QString());
    EXPECT_EQ(timesLogged("#TarnXMLDoc::TransformDocument"), 1);
}
