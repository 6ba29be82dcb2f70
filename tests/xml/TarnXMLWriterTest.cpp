#include "XmlTestSupport.h"

#include "xml/TarnXMLDoc.h"
#include "xml/TarnXMLElement.h"
#include "xml/TarnXMLWriter.h"

#include <random>

namespace {

using WriterTest = XmlTest;

// The writer gives the bytes of the tree built with the same calls: nested and empty elements,
// and values of every character the two escapes look at, every control character, text beyond
// ASCII and beyond the 16-bit plane, lone surrogates.
TEST_F(WriterTest, WritesWhatTheTreeSaves)
{
    const QString pieces[] = {QStringLiteral("x"),
                              QStringLiteral("<"),
                              QStringLiteral(">"),
                              QStringLiteral("&"),
                              QStringLiteral("\""),
                              QStringLiteral("'"),
                              QStringLiteral("%"),
                              QStringLiteral("\r\n"),
                              QStringLiteral("é"),
                              QStringLiteral("東"),
                              QStringLiteral("😀"),
                              QString(QChar(0xD800)),
                              QString(QChar(0xFFFE)),
                              QStringLiteral("]]>")};
    std::mt19937 random(5);
    auto text = [&] {
        QString value;
        for (int k = int(random() % 10); k > 0; --k) {
            if (random() % 3 == 0)
                value += QChar(char16_t(random() % 0x20)); // controls, tab, CR and LF among them
            else
                value += pieces[random() % std::size(pieces)];
        }
        return value;
    };
    for (int n = 0; n < 200; ++n) {
        TarnXMLDoc doc;
        doc.NewDoc(QStringLiteral("Root"));
        TarnXMLElement treeRoot = doc.RootElement();
        TarnXMLWriter writer;
        {
            TarnXMLWriter::Element root = writer.RootElement(QLatin1String("Root"));
            for (int child = int(random() % 3); child > 0; --child) {
                TarnXMLElement treeChild = treeRoot.AddElement(QStringLiteral("Child"));
                TarnXMLWriter::Element element = root.AddElement(QLatin1String("Child"));
                const QString a = text();
                const QString b = text();
                treeChild.setAttributeValueByName(QLatin1String("A"), a);
                element.setAttribute(QLatin1String("A"), a);
                treeChild.setAttributeValueByName(QLatin1String("B"), b);
                element.setAttribute(QLatin1String("B"), b);
                if (random() % 2) {
                    treeChild.AddElement(QStringLiteral("Leaf"));
                    const TarnXMLWriter::Element leaf = element.AddElement(QLatin1String("Leaf"));
                }
            }
        }
        const QString file = path(QStringLiteral("tree.xml"));
        ASSERT_TRUE(doc.SaveToFile(file));
        ASSERT_EQ(readFile(file), writer.bytes().toByteArray()) << n;
    }
}

TEST_F(WriterTest, RefusesOutOfOrderWritesAndFailsToSaveAsTheTreeDoes)
{
    TarnXMLWriter writer;
    {
        TarnXMLWriter::Element root = writer.RootElement(QLatin1String("R"));
        {
            const TarnXMLWriter::Element child = root.AddElement(QLatin1String("A"));
            EXPECT_THROW(root.AddElement(QLatin1String("B")), std::logic_error);
        }
        EXPECT_THROW(root.setAttribute(QLatin1String("late"), QStringLiteral("1")),
                     std::logic_error);
    }
    EXPECT_EQ(writer.bytes(), QByteArrayView("<R><A/></R>"));

    EXPECT_FALSE(writer.SaveToFile(path(QStringLiteral("no/such/folder/r.qrb"))));
    TarnXMLDoc doc;
    doc.NewDoc(QStringLiteral("R"));
    EXPECT_FALSE(doc.SaveToFile(path(QStringLiteral("no/such/folder/r.qrb"))));
    EXPECT_EQ(writer.LastError(), doc.LastError());
    const QStringList records = logged(QStringLiteral("#TarnXMLDoc::SaveToFile"));
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(records[0].section(QLatin1Char('#'), 1), records[1].section(QLatin1Char('#'), 1));
}

} // namespace
