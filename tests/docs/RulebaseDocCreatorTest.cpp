#include "DocTestSupport.h"

#include "docs/RulebaseDocCreator.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/TagItem.h"
#include "rulebase/ViolationDefinition.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace DocTestSupport;
using TestEnvironment::readFile;

namespace {

// Writes the document with the known organisation and date; gives its name, or empty.
QString writeDocument(Rulebase &rulebase)
{
    RulebaseDocCreator writer;
    writer.setOrganisation(organisation());
    writer.setPublished(publishedDate());
    QString filename;
    return writer.CreateDocumentation(rulebase, filename) ? filename : QString();
}

QString expectedDocument(const QString &name)
{
    QString text = readDocument(TestEnvironment::sourceDir() + u"/tests/docs/expected/"_s + name);
    return text.replace(u"{DATE}"_s,
                        QLocale::system().toString(publishedDate(), QLocale::LongFormat));
}

// With the log in place, so that a failure reaches the error box as in the program.
class RulebaseDocCreatorTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        TestEnvironment::clearSettings();
        ASSERT_EQ(CreateGlobalObjects(), 0);
    }
    void TearDown() override { DestroyGlobalObjects(); }
    ScriptedUserInterface ui;
    const QString folder = TestEnvironment::makeTempDir();
    const std::shared_ptr<Rulebase> rulebase = smallRulebase(folder);
};

} // namespace

TEST_F(RulebaseDocCreatorTest, WritesTheSmallRulebaseLineForLine)
{
    const QString filename = writeDocument(*rulebase);
    ASSERT_EQ(filename, folder + u"/Depot.html"_s);

    const QByteArray bytes = readFile(filename);
    // Every line ends in CR LF, and no bare LF hides anywhere.
    EXPECT_TRUE(bytes.endsWith("</html>\r\n"));
    EXPECT_EQ(bytes.count("\n"), bytes.count("\r\n"));

    const QStringList actual = readDocument(filename).split(u"\r\n"_s);
    const QStringList expected = expectedDocument(u"SmallDocument.html"_s).split(u"\r\n"_s);
    ASSERT_FALSE(expected.isEmpty());
    for (qsizetype i = 0; i < std::min(actual.size(), expected.size()); ++i)
        ASSERT_EQ(actual.at(i), expected.at(i)) << "line " << i + 1;
    EXPECT_EQ(actual.size(), expected.size());
    EXPECT_TRUE(ui.messages.empty());

    // The tag sets are sorted in place; the authorised items keep their order.
    EXPECT_EQ(rulebase->ControlTags()->Key(1), u"VB.CommandButton"_s);
    EXPECT_EQ(rulebase->DataTypeTags()->Key(1), u"Long"_s);
    EXPECT_EQ(rulebase->ScopeTags()->Key(1), u"Module"_s);
    EXPECT_EQ(rulebase->AuthorisedComponents()->Item(1)->Filename(), u"mscomctl.ocx"_s);
}

TEST(RulebaseDocCreatorName, NamesTheDocumentAfterTheRulebase)
{
    const std::pair<QString, QString> cases[] = {{u"/data/Team.qrb"_s, u"/data/Team.html"_s},
                                                 {u"/data/Team.v2.qrb"_s, u"/data/Team.v2.html"_s},
                                                 {u"/data/Team."_s, u"/data/Team.html"_s},
                                                 {u"/data/Team"_s, u"/data/Team"_s},
                                                 {QString(), QString()}};
    for (const auto &[rulebaseFile, document] : cases)
        EXPECT_EQ(RulebaseDocCreator::DocumentFilename(rulebaseFile), document);
}

TEST_F(RulebaseDocCreatorTest, NeverWritesOverTheRulebaseItselfNorWithoutAFile)
{
    // A rulebase file without a point would be its own document.
    const QString bare = folder + u"/Standards"_s;
    TestEnvironment::writeFile(bare, "<Quorin_Rulebase/>");
    rulebase->setFilename(bare);
    EXPECT_TRUE(writeDocument(*rulebase).isEmpty());
    EXPECT_EQ(readFile(bare), QByteArray("<Quorin_Rulebase/>"));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_TRUE(ui.messages.back().text.contains(u"would replace the rulebase itself"_s));

    // An unsaved rulebase has no place for its document.
    rulebase->setFilename(QString());
    EXPECT_TRUE(writeDocument(*rulebase).isEmpty());
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_TRUE(ui.messages.back().text.contains(u"Save it first"_s));
}

TEST_F(RulebaseDocCreatorTest, AnEmptyPlanGivesTitleContentsAndFooter)
{
    rulebase->Report()->Sections()->Clear();
    const QString text = readDocument(writeDocument(*rulebase));
    EXPECT_TRUE(text.contains(u"<h2>Tarnwick Freight</h2>"_s));
    EXPECT_TRUE(text.contains(u"            <ul type=\"square\">\r\n            </ul>\r\n"_s));
    EXPECT_TRUE(text.contains(u"\u00A9 2024 Tarnwick Freight. All rights reserved."_s));
    EXPECT_FALSE(text.contains(u"Page Body Table"_s));
    EXPECT_FALSE(text.contains(u"<!-- Category:"_s));
    EXPECT_TRUE(text.endsWith(u"<!-- End Of Footer Table -->\r\n\r\n\r\n</body>\r\n</html>\r\n"_s));
}

TEST_F(RulebaseDocCreatorTest, CopiesTextsAndRepeatsAsTheyStandAndEncodesWhatTheCodePageLacks)
{
    auto &sections = *rulebase->Report()->Sections();
    // The scope table twice, and a category whose title differs from another only by blanks.
    sections.Add(sections.Item(6));
    const auto twin = std::make_shared<CategoryItem>();
    twin->setTitle(u"Naming_&_Style"_s);
    twin->setID(40);
    sections.Add(twin);
    const auto page
        = std::dynamic_pointer_cast<CategoryItem>(rulebase->Report()->Sections()->Item(1));
    page->setTitle(u"Z\u00FCrich & <Co>"_s);
    rulebase->setDescription(u"Costs \u20AC; \u6F22 and \U0001F600."_s);
    const auto rule = page->CategoryRules()->Item(2);
    rule->setRuleID(12345);
    const auto first = page->CategoryRules()->Item(1);
    first->setRuleID(7);

    const QString filename = writeDocument(*rulebase);
    const QByteArray bytes = readFile(filename);
    // Markup goes through untouched, blanks alone become underscores in the anchor.
    EXPECT_TRUE(bytes.contains("id=\"category_Z\xFCrich_&_<Co>\""));
    EXPECT_TRUE(bytes.contains("<a href=\"#category_Z\xFCrich_&_<Co>\">Z\xFCrich & <Co></a>"));
    EXPECT_TRUE(bytes.contains("&gt; Z\xFCrich & <Co>\r\n"));
    // The euro sign has a byte of the code page; others go as numeric references.
    EXPECT_TRUE(bytes.contains("<h4>Costs \x80; &#28450; and &#128512;.</h4>"));
    // Ids print with four digits at least, and all of them above 9999.
    EXPECT_TRUE(bytes.contains("<tr id=\"rule_page_0007\">"));
    EXPECT_TRUE(bytes.contains("<span class=\"rule_id\">[0007]</span>"));
    EXPECT_TRUE(bytes.contains("<a href=\"#rule_page_12345\">"));
    EXPECT_TRUE(bytes.contains("<span class=\"rule_id\">[12345]</span>"));
    EXPECT_EQ(bytes.count("id=\"scope_tags_page\""), 2);
    EXPECT_EQ(bytes.count("id=\"category_Naming_&_Style\""), 2);
}

TEST_F(RulebaseDocCreatorTest, AFolderThatCannotBeWrittenLeavesTheOldDocument)
{
    const QString filename = writeDocument(*rulebase);
    ASSERT_FALSE(filename.isEmpty());
    const QByteArray before = readFile(filename);

    if (!TestEnvironment::makeReadOnly(folder))
        GTEST_SKIP() << "no way to make a folder read-only here";
    rulebase->setTitle(u"Changed Title"_s);
    RulebaseDocCreator writer;
    writer.setOrganisation(organisation());
    QString second;
    const bool written = writer.CreateDocumentation(*rulebase, second);
    TestEnvironment::makeWritable(folder);

    EXPECT_FALSE(written);
    EXPECT_EQ(second, filename);
    EXPECT_EQ(readFile(filename), before);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_TRUE(ui.messages[0].text.contains(u"Can't write the document '"_s + filename));
    EXPECT_TRUE(ui.messages[0].text.contains(u"module clsStandardsDocCreator"_s));
}

TEST_F(RulebaseDocCreatorTest, TakesTheRememberedOrganisationOrAsksOnce)
{
    QString filename;

    // Declined: nothing is written and nothing remembered.
    gobjAdminData->setLastCompanyName(QString());
    EXPECT_FALSE(RulebaseDocCreator().CreateDocumentation(*rulebase, filename));
    EXPECT_FALSE(QFile::exists(folder + u"/Depot.html"_s));
    EXPECT_EQ(ui.textPrompts.size(), 1);

    ui.textAnswers.push_back(u"  Harbour Lines  "_s);
    EXPECT_TRUE(RulebaseDocCreator().CreateDocumentation(*rulebase, filename));
    EXPECT_EQ(gobjAdminData->LastCompanyName(), u"Harbour Lines"_s);
    EXPECT_TRUE(readDocument(filename).contains(u"<h2>Harbour Lines</h2>"_s));

    // Remembered from now on: no more questions.
    EXPECT_TRUE(RulebaseDocCreator().CreateDocumentation(*rulebase, filename));
    EXPECT_EQ(ui.textPrompts.size(), 2);
    EXPECT_TRUE(readDocument(filename).contains(
        u"\u00A9 %1 Harbour Lines. All rights reserved."_s.arg(QDate::currentDate().year())));
    EXPECT_TRUE(ui.messages.empty());
}

// A reader clicks through the contents and the category pages: every internal link must land
// on exactly one anchor of the same document.
TEST_F(RulebaseDocCreatorTest, EveryInternalLinkOfTheSampleDocumentHasOneAnchor)
{
    const auto sample = RulebaseManager().LoadRulebase(TestEnvironment::sampleRulebase());
    ASSERT_NE(sample, nullptr);
    sample->setFilename(folder + u"/Sample.qrb"_s);
    const QString text = readDocument(writeDocument(*sample));
    QSet<QString> ids;
    for (const auto &match : QRegularExpression(u" id=\"([^\"]*)\""_s).globalMatch(text)) {
        EXPECT_FALSE(ids.contains(match.captured(1)))
            << "twice: " << match.captured(1).toStdString();
        ids.insert(match.captured(1));
    }
    int links = 0;
    for (const auto &match : QRegularExpression(u"<a href=\"#([^\"]*)\""_s).globalMatch(text)) {
        ++links;
        EXPECT_TRUE(ids.contains(match.captured(1)))
            << "broken: " << match.captured(1).toStdString();
    }
    EXPECT_GT(links, 50);
}
