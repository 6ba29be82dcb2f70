#include "XmlTestSupport.h"

#include "xml/TarnXMLDoc.h"
#include "xml/TarnXMLElement.h"
#include "xml/TarnXMLWriter.h"

#include <random>

using namespace Qt::StringLiterals;

using WriterTest = XmlTest;

// The writer gives the bytes of the tree built with the same calls: nested and empty elements,
// and values of every character the two escapes look at, every control character, text beyond
// ASCII and beyond the 16-bit plane, lone surrogates.
TEST_F(WriterTest, WritesWhatTheTreeSaves)
{
    const QStringList pieces = u"x|<|>|&|\"|'|%|\r\n|é|東|😀|\xD800|\xFFFE|]]>"_s.split(u'|');
    std::mt19937 random(5);
    auto text = [&] {
        QString value;
        for (int k = int(random() % 10); k > 0; --k) {
            if (random() % 3 == 0)
                value += QChar(char16_t(random() % 0x20)); // controls, tab, CR and LF among them
            else
                value += pieces[qsizetype(random() % unsigned(pieces.size()))];
        }
        return value;
    };
    for (int n = 0; n < 200; ++n) {
        TarnXMLDoc doc;
        doc.NewDoc(u"Root"_s);
        TarnXMLElement treeRoot = doc.RootElement();
        TarnXMLWriter writer;
        {
            TarnXMLWriter::Element root = writer.RootElement("Root"_L1);
            for (int child = int(random() % 3); child > 0; --child) {
                TarnXMLElement treeChild = treeRoot.AddElement(u"Child"_s);
                TarnXMLWriter::Element element = root.AddElement("Child"_L1);
                const QString a = text();
                const QString b = text();
                treeChild.setAttributeValueByName("A"_L1, a);
                element.setAttribute("A"_L1, a);
                treeChild.setAttributeValueByName("B"_L1, b);
                element.setAttribute("B"_L1, b);
                if (random() % 2) {
                    treeChild.AddElement(u"Leaf"_s);
                    const TarnXMLWriter::Element leaf = element.AddElement("Leaf"_L1);
                }
            }
        }
        const QString file = path(u"tree.xml"_s);
        ASSERT_TRUE(doc.SaveToFile(file));
        ASSERT_EQ(readFile(file), writer.bytes().toByteArray()) << n;
    }
}

TEST_F(WriterTest, RefusesOutOfOrderWritesAndFailsToSaveAsTheTreeDoes)
{
    TarnXMLWriter writer;
    {
        TarnXMLWriter::Element root = writer.RootElement("R"_L1);
        {
            const TarnXMLWriter::Element child = root.AddElement("A"_L1);
            EXPECT_THROW(root.AddElement("B"_L1), std::logic_error);
        }
        EXPECT_THROW(root.setAttribute("late"_L1, u"1"_s), std::logic_error);
    }
    EXPECT_EQ(writer.bytes(), QByteArrayView("<R><A/></R>"));

    EXPECT_FALSE(writer.SaveToFile(path(u"no/such/folder/r.qrb"_s)));
    TarnXMLDoc doc;
    doc.NewDoc(u"R"_s);
    EXPECT_FALSE(doc.SaveToFile(path(u"no/such/folder/r.qrb"_s)));
    EXPECT_EQ(writer.LastError(), doc.LastError());
    const QStringList records = logged(u"#TarnXMLDoc::SaveToFile"_s);
    ASSERT_EQ(records.size(), 2);
    EXPECT_EQ(records[0].section(QLatin1Char('#'), 1), records[1].section(QLatin1Char('#'), 1));
}
