#include "collections/ObjectKeyedArrayList.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReference.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/CommonRuleFields.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseFileValues.h"
#include "rulebase/RulebaseLoadCriteria.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/TableItem.h"
#include "rulebase/TagItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"
#include "xml/TarnXMLDoc.h"
#include "xml/TarnXMLElement.h"

#include "support/RulebaseDump.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QCryptographicHash>
#include <QDir>
#include <QRegularExpression>

#include <random>

#include <gtest/gtest.h>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using TestEnvironment::readFile;
using TestEnvironment::writeFile;

// A small file of the current schema; the rule sections are the caller's.
QByteArray smallFile(const QByteArray &coding,
                     const QByteArray &naming,
                     const QByteArray &report = "<Report/>")
{
    return "<Quorin_Rulebase SchemaVersion=\"6.2\"><RulebaseProperties Name=\"Small\" "
           "Version=\"1.2.0003\" AutoIncrementVersion=\"False\" Description=\"\" "
           "UnknownControlViolation=\"0\" UseCTagsAsDTTags=\"-1\" ToleranceCount=\"1|2|3\" "
           "ToleranceImpact=\"-1|-1|-1|-1|-1|9\" TolerancePercentageComments=\"10\" "
           "ToleranceCyclomaticComplexity=\"15\" ArrayTag=\"a\"/><ControlTags><ControlTag "
           "TagName=\"vb.checkbox\" TagValue=\"ck\" TagDescription=\"d\" TagExample=\"ckA\"/>"
           "</ControlTags><DataTypeTags><DataTypeTag TagName=\"Long\" TagValue=\"l\" "
           "TagExample=\"\"/></DataTypeTags><ScopeTags><ScopeTag TagName=\"Local\" TagValue=\"\" "
           "TagExample=\"\"/></ScopeTags><DefaultViolations/><CategoryList LastID=\"4\">"
           "<CategoryItem ID=\"2\" Title=\"Naming\" Description=\"\" Hidden=\"False\"/>"
           "<CategoryItem ID=\"4\" Title=\"Hidden one\" Description=\"\" Hidden=\"True\"/>"
           "</CategoryList><SeverityList><SeverityItem Colour=\"3\" Description=\"extra\" "
           "Impact=\"5\" SeverityLevel=\"9\" SeverityLevelText=\"Nine\" Title=\"Ninth\"/>"
           "</SeverityList><AuthorisedComponents/><AuthorisedReferences/><UnauthorisedKeywords/>"
           "<Rules LastRuleID=\"5010\"><CodingConventions>"
           + coding + "</CodingConventions><NamingConventions>" + naming
           + "</NamingConventions></Rules>" + report + "</Quorin_Rulebase>";
}

QByteArray codingRule(const char *id, const char *active = "True")
{
    return QByteArray("<CodingConvention RuleID=\"") + id + "\" RuleActive=\"" + active
           + "\" Title=\"T\" Description=\"\" PendingViolation=\"False\" EndEventID=\"-1\" "
             "Condition=\"\" ParserEventID=\"12|15\"><ViolationDefinition Name=\"\" "
             "Description=\"\" SeverityLevel=\"1\" Impact=\"1\" CategoryID=\"2\" Advice=\"\"/>"
             "</CodingConvention>";
}

QByteArray namingRule(const char *id, const char *prefixItems)
{
    return QByteArray("<NamingConvention RuleID=\"") + id
           + "\" RuleActive=\"True\" CaseSensitive=\"False\" Title=\"N\" Description=\"\" "
             "ObjectType=\"4\" PropertyType=\"37\" PropertyName=\"Name\" Condition=\"\" "
             "ExclusionList=\" x;y \" PrefixActive=\"True\" PrefixAdvice=\"\" BodyActive=\"False\" "
             "BodyPattern=\"\" BodyMaxLength=\"0\" BodyMinLength=\"0\" BodyAdvice=\"\" "
             "SuffixActive=\"False\" SuffixAdvice=\"\"><PrefixItems>"
           + prefixItems
           + "</PrefixItems><ViolationDefinition Name=\"\" Description=\"\" SeverityLevel=\"2\" "
             "Impact=\"1\" CategoryID=\"4\" Advice=\"\"/></NamingConvention>";
}

class RulebaseFileTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        dir = TestEnvironment::makeTempDir() + QLatin1Char('/');
        auto log = std::make_shared<LogFile>();
        log->setLogFileName(dir + u"Error.log"_s);
        gobjLogFile = log;
        RulebaseManager::setAdministratorOverride(true);
    }
    void TearDown() override
    {
        RulebaseManager::setAdministratorOverride(std::nullopt);
        gobjLogFile.reset();
    }

    std::shared_ptr<Rulebase> load(const QString &path)
    {
        return RulebaseManager().LoadRulebase(path);
    }
    std::shared_ptr<Rulebase> loadBytes(const QByteArray &bytes,
                                        const QString &name = u"file.qrb"_s)
    {
        writeFile(dir + name, bytes);
        return load(dir + name);
    }
    QString logText() const { return QString::fromUtf8(readFile(dir + u"Error.log"_s)); }
    static std::string sha256(const QString &path)
    {
        return QCryptographicHash::hash(readFile(path), QCryptographicHash::Sha256)
            .toHex()
            .toStdString();
    }

    QString dir;
    ScriptedUserInterface ui;
};

} // namespace

TEST_F(RulebaseFileTest, SampleLoadsWithoutAFaultAndRoundTripsExactly)
{
    const auto sample = load(TestEnvironment::sampleRulebase());
    ASSERT_TRUE(sample);
    EXPECT_TRUE(ui.messages.empty()) << ui.messageTexts().join(QLatin1Char('\n')).toStdString();
    EXPECT_FALSE(sample->Dirty());
    EXPECT_GE(sample->CategoryList()->Count(), 8);
    EXPECT_EQ(sample->SeverityList()->Count(), 5);
    EXPECT_GE(sample->RuleLists()->AllConventions()->Count(), 60);

    // Without the version's increment, save -> load -> save gives the same bytes.
    sample->setAutoIncrementVersion(false);
    ASSERT_TRUE(RulebaseManager().Save(*sample, dir + u"a.qrb"_s));
    EXPECT_FALSE(sample->Dirty());
    const auto again = load(dir + u"a.qrb"_s);
    ASSERT_TRUE(again);
    EXPECT_EQ(dumpRulebase(*again).toStdString(), dumpRulebase(*sample).toStdString());
    ASSERT_TRUE(RulebaseManager().Save(*again, dir + u"b.qrb"_s));
    EXPECT_EQ(readFile(dir + u"a.qrb"_s), readFile(dir + u"b.qrb"_s));
    EXPECT_TRUE(ui.messages.empty());

    // The bytes as the writer that built a tree of the whole file wrote them.
    EXPECT_EQ(sha256(dir + u"a.qrb"_s),
              "9e01f2cbd330f5461672265c7772c38078627194f8169690cebc86214421e949");
}

TEST_F(RulebaseFileTest, EveryFieldSurvivesIncludingTextThatNeedsEscaping)
{
    const QString awkward
        = u"a<b>c & \"q\" 'apos' \ttab\r\nCRLF lone\nLF lone\rCR Zürich 東京 100%"_s;
    Rulebase rulebase;
    rulebase.setTitle(awkward);
    rulebase.setDescription(awkward + awkward);
    rulebase.setArrayTag(u"arr"_s);
    rulebase.setUnknownControlViolation(true);
    rulebase.setAutoIncrementVersion(false);
    rulebase.setToleranceCount(3, 42);
    rulebase.setToleranceImpact(6, -7);
    rulebase.setToleranceCyclomaticComplexity(25);
    rulebase.ControlTags()->Item(2)->setTagValue(awkward);
    auto tag = std::make_shared<TagItem>();
    tag->setTagName(u"Grid.Control"_s);
    tag->setTagValue(u"grd"_s);
    rulebase.ControlTags()->Add(tag->TagName(), tag, false, false);

    auto category = std::make_shared<CategoryItem>();
    category->setTitle(awkward);
    rulebase.CategoryList()->Add(category, true);

    auto reference = std::make_shared<AuthorisedReference>();
    reference->setLibID(u"{00020430-0000-0000-C000-000000000046}"_s);
    reference->setDescription(awkward);
    reference->setVersionList(u"2.0; 2.1"_s);
    rulebase.AuthorisedReferences()->AddReference(reference);

    auto coding = std::make_shared<CodingConvention>();
    coding->setTitle(u"Coding"_s);
    coding->setCondition(
        u"Sub Main\r\n\tIf Quorin.ParserEvent() <> \"x\" Then\r\n\tEnd If\r\nEnd Sub"_s);
    coding->AddParserEventID(15);
    coding->AddParserEventID(12);
    coding->setPendingViolation(true);
    coding->setEndEventID(30);
    coding->ViolationDefinition()->setImpact(-32768);
    coding->ViolationDefinition()->setCategoryID(category->ID());
    rulebase.RuleLists()->AddConvention(coding, true);

    auto keyword = std::make_shared<UnauthorisedKeyword>();
    keyword->setTitle(u"GoTo"_s);
    keyword->setCondition(u"^\\s*GoTo\\b"_s);
    keyword->setRuleActive(false);
    rulebase.RuleLists()->AddConvention(keyword, true);

    auto naming = std::make_shared<NamingConvention>();
    naming->setTitle(awkward);
    naming->setCaseSensitive(false);
    naming->setExclusionList(u"Form_Load; Main"_s);
    naming->setPrefixActive(true);
    naming->PrefixItems()->Item(1)->setPSType(4);
    naming->PrefixItems()->Item(3)->setPSType(1); // the empty second slot closes up on save
    naming->PrefixItems()->Item(3)->setValue(u"[a-z]+"_s);
    naming->setMaxBodyLength(32767);
    rulebase.RuleLists()->AddConvention(naming, true);

    auto table = std::make_shared<TableItem>();
    table->setTableKey(u"1T"_s);
    table->setTableTitle(awkward);
    table->setTableType(3);
    rulebase.Report()->Sections()->Add(table);
    auto page = std::make_shared<CategoryItem>();
    page->setID(category->ID());
    page->setTitle(category->Title());
    page->CategoryRules()->Add(naming);
    page->CategoryRules()->Add(coding);
    rulebase.Report()->Sections()->Add(page);

    ASSERT_TRUE(RulebaseManager().Save(rulebase, dir + u"a.qrb"_s));
    const auto loaded = load(dir + u"a.qrb"_s);
    ASSERT_TRUE(loaded);
    EXPECT_TRUE(ui.messages.empty()) << ui.messageTexts().join(QLatin1Char('\n')).toStdString();

    // The gap in the prefix items closed up; otherwise the models are equal.
    EXPECT_EQ(loaded->RuleLists()->NamingConventions()->Item(1)->PrefixItems()->Item(2)->PSType(),
              1);
    naming->PrefixItems()->Item(2)->setPSType(1);
    naming->PrefixItems()->Item(2)->setValue(u"[a-z]+"_s);
    naming->PrefixItems()->Item(3)->setPSType(0);
    naming->PrefixItems()->Item(3)->setValue(QString());
    EXPECT_EQ(dumpRulebase(*loaded).toStdString(), dumpRulebase(rulebase).toStdString());

    ASSERT_TRUE(RulebaseManager().Save(*loaded, dir + u"b.qrb"_s));
    EXPECT_EQ(readFile(dir + u"a.qrb"_s), readFile(dir + u"b.qrb"_s));
    EXPECT_TRUE(readFile(dir + u"a.qrb"_s).contains("a%LT%b%GT%c &amp; &quot;q&quot;"));
}

namespace {

// A rulebase of every rule type whose texts mix what the file escapes, in both its ways, with
// text beyond ASCII and beyond the 16-bit plane; the same for the same seed.
std::shared_ptr<Rulebase> awkwardRulebase(int rules, unsigned seed)
{
    const QString pieces[]
        = {u"a"_s, u"Zoo 42"_s, u"<"_s,  u">"_s,      u"&"_s,     u"\""_s, u"'"_s,
           u"%"_s, u"%LT%"_s,   u"\t"_s, u"\r\n"_s,   u"\r"_s,    u"\n"_s, u" "_s,
           u"é"_s, u"東京"_s,   u"😀"_s,  u"\uFFFD"_s, u"&amp;"_s, u"]]>"_s};
    std::mt19937 random(seed);
    auto text = [&] {
        QString value;
        for (int k = int(random() % 12); k > 0; --k)
            value += pieces[random() % std::size(pieces)];
        return value;
    };
    auto rulebase = std::make_shared<Rulebase>();
    rulebase->setAutoIncrementVersion(false);
    rulebase->setTitle(text());
    rulebase->setDescription(text());
    for (int i = 0; i < rules; ++i) {
        std::shared_ptr<CommonRuleFields> rule;
        if (i % 3 == 0) {
            auto coding = std::make_shared<CodingConvention>();
            coding->AddParserEventID(int(random() % 40) + 1);
            coding->setCondition(text());
            rule = coding;
        } else if (i % 3 == 1) {
            auto naming = std::make_shared<NamingConvention>();
            naming->setPrefixActive(true);
            naming->PrefixItems()->Item(1)->setPSType(1);
            naming->PrefixItems()->Item(1)->setValue(text());
            naming->setExclusionList(text());
            rule = naming;
        } else {
            auto keyword = std::make_shared<UnauthorisedKeyword>();
            keyword->setCondition(text());
            rule = keyword;
        }
        rule->setTitle(text());
        rule->setDescription(text());
        rulebase->RuleLists()->AddConvention(rule, true);
    }
    return rulebase;
}

} // namespace

// The bytes a save writes of texts the file escapes, as the writer that built a tree of the
// whole file wrote them.
TEST_F(RulebaseFileTest, SavedBytesAreThoseOfTheTreeWriter)
{
    ASSERT_TRUE(RulebaseManager().Save(*awkwardRulebase(300, 11), dir + u"saved.qrb"_s));
    EXPECT_EQ(sha256(dir + u"saved.qrb"_s),
              "4ea7f195b8304afcf38361410a6edf1d852c0f67d280d56bfae96770c198cf94");
}

// Rules are read as the parse reaches each one; indentation, comments and sections out of order
// must still give what the whole tree gives, rules in the same order.
TEST_F(RulebaseFileTest, LoadingKeepsFileQuirksWhateverTheLayout)
{
    const QByteArray items = "<PrefixItem PSType=\"1\" PSValue=\"%lt%x%TAB%\"/><PrefixItem "
                             "PSType=\"2\" PSValue=\"\"/>";
    const QByteArray coding = codingRule("5001") + codingRule("5002", "False");
    const QByteArray naming = namingRule("5003", items) + namingRule("5004", items);
    const auto written = loadBytes(smallFile(coding, naming));
    ASSERT_TRUE(written);
    EXPECT_TRUE(ui.messages.empty()) << ui.messageTexts().join(QLatin1Char('\n')).toStdString();
    // Tolerance parts fill entries from 1; the rest keep -1.
    EXPECT_EQ(written->ToleranceCount(3), 3);
    EXPECT_EQ(written->ToleranceCount(4), -1);
    EXPECT_TRUE(written->UseCTagsAsDTTags()); // "-1" is a Boolean too
    // A file's tag that differs from a default in case only updates the default.
    EXPECT_EQ(written->ControlTags()->Count(), 23);
    EXPECT_EQ(written->ControlTags()->Item(u"VB.CheckBox"_s)->TagValue(), u"ck"_s);
    // A ninth severity joins the five defaults.
    EXPECT_EQ(written->SeverityList()->Count(), 6);
    EXPECT_TRUE(written->SeverityList()->Contains(u"9Key"_s));
    // Rules stand in the lists of each of their events, in order; ids are kept.
    const auto rules = written->RuleLists();
    EXPECT_EQ(rules->LastID(), 5010);
    EXPECT_EQ(rules->ParserEventCCList(12, false)->Count(), 2);
    EXPECT_EQ(rules->ParserEventCCList(15, false)->Count(), 2);
    // Escapes restore whatever their case; edit loads keep the exclusion list as typed.
    const auto first = rules->NamingConventions()->Item(1);
    EXPECT_EQ(first->PrefixItems()->Item(1)->Value(), u"<x\t"_s);
    EXPECT_EQ(first->ExclusionList(), u" x;y "_s);
    EXPECT_FALSE(first->CaseSensitive());
    EXPECT_FALSE(written->Dirty());
    EXPECT_FALSE(written->LoadedInPart());

    auto order = [](const Rulebase &rulebase) {
        QStringList keys;
        const auto &all = *rulebase.RuleLists()->AllConventions();
        for (qint32 i = 1; i <= all.Count(); ++i)
            keys << all.Item(i)->RuleKey();
        return keys;
    };
    QByteArray indented = smallFile(coding, naming);
    for (const char *tag :
         {"<CodingConvention ", "<NamingConvention ", "<PrefixItem ", "<ViolationDefinition "})
        indented.replace(tag, QByteArray("\n  <!-- c --><?pi x?>\n  ") + tag);
    QByteArray swapped = smallFile(coding, naming);
    swapped.replace("<CodingConventions>" + coding + "</CodingConventions>", "")
        .replace("</NamingConventions>",
                 "</NamingConventions><CodingConventions>" + coding + "</CodingConventions>");
    for (const QByteArray &bytes : {indented, swapped}) {
        const auto rulebase = loadBytes(bytes);
        ASSERT_TRUE(rulebase);
        EXPECT_FALSE(rulebase->LoadedInPart());
        EXPECT_EQ(dumpRulebase(*rulebase), dumpRulebase(*written));
        EXPECT_EQ(order(*rulebase), order(*written));
    }
}

TEST_F(RulebaseFileTest, ABadValueStopsItsSectionAndIsReportedWithItsAttribute)
{
    const auto rulebase
        = loadBytes(smallFile(codingRule("5001") + codingRule("12x") + codingRule("5003"),
                              namingRule("5004", "<PrefixItem PSType=\"1\" PSValue=\"a\"/>")));
    ASSERT_TRUE(rulebase); // a section's fault is its own; the load goes on
    EXPECT_TRUE(rulebase->LoadedInPart());
    EXPECT_FALSE(rulebase->Dirty());
    EXPECT_EQ(rulebase->RuleLists()->CodingConventions()->Count(), 1);
    EXPECT_EQ(rulebase->RuleLists()->NamingConventions()->Count(), 1);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].title, u"Quorin Unexpected Error"_s);
    EXPECT_EQ(ui.messages[0].text,
              u"Error 13 - Type mismatch (attribute 'RuleID' of element "
              u"'CodingConvention') in function "
              u"LoadCodingConventions module RulebaseManager"_s);
    EXPECT_TRUE(
        logText().contains(u"#Error #13 - Type mismatch (attribute 'RuleID' of element "
                           u"'CodingConvention')#RulebaseManager::LoadCodingConventions"_s));

    ui.messages.clear();
    const QByteArray fiveItems = QByteArray("<PrefixItem PSType=\"1\" PSValue=\"a\"/>").repeated(5);
    const auto overflow
        = loadBytes(smallFile(codingRule("5001", "Yes"), namingRule("5004", fiveItems)));
    ASSERT_TRUE(overflow);
    EXPECT_TRUE(overflow->LoadedInPart());
    EXPECT_EQ(overflow->RuleLists()->AllConventions()->Count(), 0);
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_TRUE(
        ui.messages[0].text.startsWith(u"Error 13 - Type mismatch (attribute 'RuleActive'"_s));
    EXPECT_TRUE(ui.messages[1].text.contains(u"LoadNamingConventions"_s)); // a fifth prefix item

    // A rule refused on its own, as a second one of an id is, leaves the file loaded in part too.
    ui.messages.clear();
    const auto twice = loadBytes(smallFile(codingRule("5001") + codingRule("5001"), ""));
    ASSERT_TRUE(twice);
    EXPECT_EQ(twice->RuleLists()->CodingConventions()->Count(), 1);
    EXPECT_TRUE(twice->LoadedInPart());
    EXPECT_FALSE(ui.messages.empty());

    ui.messages.clear();
    QByteArray big = smallFile(codingRule("5001"), "");
    big.replace("Impact=\"5\"", "Impact=\"40000\"");
    ASSERT_TRUE(loadBytes(big));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text,
              u"Error 6 - Overflow (attribute 'Impact' of element 'SeverityItem') in function "
              u"LoadSeverityList module RulebaseManager"_s);
}

TEST_F(RulebaseFileTest, FilesThatAreNotRulebasesAreRefusedWithTheirWarnings)
{
    const QString parsing
        = u"Unable to load the rulebase because of an unexpected error during parsing."_s;
    const QString schema
        = u"Unable to load the rulebase because it has an incorrect schema version."_s;
    auto withSchema = [](const char *attribute) {
        return smallFile("", "").replace("SchemaVersion=\"6.2\"", attribute);
    };
    const std::pair<QByteArray, QString> cases[] = {
        {QByteArray(), parsing},
        {"this is not XML", parsing},
        {smallFile("", "").left(300), parsing},
        {"\xff\xfe<\x00Q\x00", parsing},
        {withSchema("SchemaVersion=\"6.3\""), schema},
        {withSchema("SchemaVersion=\"5.0\""), schema},
        {withSchema(""), schema},
    };
    for (const auto &[bytes, warning] : cases) {
        ui.messages.clear();
        EXPECT_FALSE(loadBytes(bytes));
        ASSERT_FALSE(ui.messages.empty());
        EXPECT_EQ(ui.messages.back().text, warning) << bytes.left(40).toStdString();
    }
    EXPECT_TRUE(logText().contains(u"XML Parser Error"_s));

    // Without "Rules" the frame itself fails; without "Report" only that section does.
    ui.messages.clear();
    QByteArray noRules = smallFile("", "");
    noRules.replace(
        noRules.indexOf("<Rules"), noRules.indexOf("</Rules>") + 8 - noRules.indexOf("<Rules"), "");
    EXPECT_FALSE(loadBytes(noRules));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_TRUE(ui.messages[0].text.endsWith(u"in function LoadRulebase module RulebaseManager"_s));
    ui.messages.clear();
    const auto noReport = loadBytes(smallFile("", "", ""));
    ASSERT_TRUE(noReport);
    EXPECT_TRUE(noReport->LoadedInPart());
    EXPECT_EQ(noReport->Report()->Sections()->Count(), 0);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_TRUE(ui.messages[0].text.endsWith(u"in function LoadReport module RulebaseManager"_s));

    try {
        RulebaseManager().LoadRulebase(QString());
        FAIL() << "an empty name loaded";
    } catch (const QuorinError &e) {
        EXPECT_EQ(e.number(), qint32(0x80040204));
        EXPECT_EQ(e.description(), u"No filename has been specified."_s);
    }
}

TEST_F(RulebaseFileTest, OlderSchemasComeUpToDateInMemoryOnly)
{
    // The small file without the attributes and sections its schema came without.
    auto older = [](const char *version, const QString &missing, const QByteArray &report) {
        QByteArray bytes = smallFile("", namingRule("5003", ""), report);
        bytes.replace("\"6.2\"", QByteArray("\"") + version + '"')
            .replace("AutoIncrementVersion=\"False\"", "AutoIncrementVersion=\"True\"");
        const QRegularExpression attributes(u" (%1)=\"[^\"]*\""_s.arg(missing));
        return QString::fromUtf8(bytes).remove(attributes).toUtf8();
    };
    const QString since62 = u"TagDescription|TagExample|ExclusionList|CaseSensitive|ArrayTag"_s;
    const QByteArray v60 = older("6.0", since62 + u"|Tolerance\\w+"_s, "");
    const auto old = loadBytes(v60, u"old.qrb"_s);
    ASSERT_TRUE(old);
    EXPECT_TRUE(ui.messages.empty()) << ui.messageTexts().join(QLatin1Char('\n')).toStdString();
    EXPECT_FALSE(old->Dirty());
    for (qint32 i = 1; i <= 6; ++i) {
        EXPECT_EQ(old->ToleranceCount(i), -1);
        EXPECT_EQ(old->ToleranceImpact(i), -1);
    }
    EXPECT_EQ(old->TolerancePercentageComments(), -1);
    EXPECT_EQ(old->Report()->Sections()->Count(), 0);
    EXPECT_EQ(old->ControlTags()->Item(u"VB.CheckBox"_s)->TagValue(), u"ck"_s);
    const auto naming = old->RuleLists()->NamingConventions()->Item(1);
    EXPECT_TRUE(naming->CaseSensitive());
    EXPECT_TRUE(naming->ExclusionList().isEmpty());
    EXPECT_EQ(readFile(dir + u"old.qrb"_s), v60); // the file stays as it was

    ASSERT_TRUE(RulebaseManager().Save(*old, QString()));
    EXPECT_TRUE(readFile(dir + u"old.qrb"_s).startsWith("<Quorin_Rulebase SchemaVersion=\"6.2\">"));
    const auto saved = load(dir + u"old.qrb"_s);
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->Version(), u"1.2.0004"_s);
    EXPECT_EQ(dumpRulebase(*saved).toStdString(), dumpRulebase(*old).toStdString());

    // 6.1 had tolerances and a report, and keeps them.
    const auto newer
        = loadBytes(older("6.1",
                          since62,
                          "<Report><Section SectionType=\"Table\" TableKey=\"6T\" "
                          "TableText=\"\" TableTitle=\"t\" TableType=\"5\"/></Report>"),
                    u"v61.qrb"_s);
    ASSERT_TRUE(newer);
    EXPECT_EQ(newer->ToleranceCount(2), 2);
    EXPECT_EQ(newer->TolerancePercentageComments(), 10);
    EXPECT_EQ(newer->Report()->Sections()->Count(), 1);
    EXPECT_TRUE(newer->RuleLists()->NamingConventions()->Item(1)->CaseSensitive());
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(RulebaseFileTest, SelectiveLoadsReadOnlyWhatTheCriteriaAskFor)
{
    const auto all = load(TestEnvironment::sampleRulebase());
    ASSERT_TRUE(all);

    RulebaseLoadCriteria bare;
    bare.setRulebaseFile(TestEnvironment::sampleRulebase());
    const auto frame = RulebaseManager().LoadRulebase(bare);
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->Title(), all->Title());
    EXPECT_EQ(frame->CategoryList()->Count(), all->CategoryList()->Count());
    EXPECT_EQ(frame->RuleLists()->AllConventions()->Count(), 0);
    EXPECT_EQ(frame->Report()->Sections()->Count(), 0);
    EXPECT_EQ(bare.NumCodingConventions(), all->RuleLists()->CodingConventions()->Count());
    EXPECT_EQ(bare.NumNamingConventions(), all->RuleLists()->NamingConventions()->Count());
    EXPECT_EQ(bare.NumUnauthKeywords(), all->RuleLists()->UnauthorisedKeywords()->Count());
    EXPECT_EQ(bare.NumAuthComps(), all->AuthorisedComponents()->Count());

    // The review side: active rules of severity 1 outside hidden categories, as a
    // non-administrator.
    RulebaseManager::setAdministratorOverride(false);
    RulebaseLoadCriteria review;
    review.setRulebaseFile(TestEnvironment::sampleRulebase());
    review.setSeverityLevel(1, true);
    review.setCodingConventions(true);
    review.setNamingConventions(true);
    review.setUnauthorisedKeywords(true);
    const auto partial = RulebaseManager().LoadRulebase(review);
    ASSERT_TRUE(partial);
    qint32 expected = 0;
    const auto &rules = *all->RuleLists()->AllConventions();
    for (qint32 i = 1; i <= rules.Count(); ++i) {
        const auto rule = rules.Item(i);
        const qint32 category = rule->ViolationDefinition()->CategoryID();
        const bool hidden
            = all->CategoryList()->ContainsID(category)
              && all->CategoryList()->Item(CategoryList::CategoryIDToKey(category))->Hidden();
        if (rule->RuleActive() && rule->ViolationDefinition()->Severity() == 1 && !hidden)
            ++expected;
    }
    EXPECT_GT(expected, 0);
    EXPECT_EQ(partial->RuleLists()->AllConventions()->Count(), expected);
    EXPECT_LT(partial->CategoryList()->Count(), all->CategoryList()->Count());
    EXPECT_GT(review.ExcludedCategoryIDCount(), 0);
    const auto &naming = *partial->RuleLists()->NamingConventions();
    for (qint32 i = 1; i <= naming.Count(); ++i) {
        EXPECT_TRUE(naming.Item(i)->ExclusionList().startsWith(QLatin1Char(';')));
        EXPECT_TRUE(naming.Item(i)->ExclusionList().endsWith(QLatin1Char(';')));
    }
}

TEST_F(RulebaseFileTest, AFailedSaveLeavesTheOldFileAndTheDirtyFlag)
{
    const QString folder = dir + u"locked"_s;
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString path = folder + u"/standards.qrb"_s;
    auto rulebase = load(TestEnvironment::sampleRulebase());
    ASSERT_TRUE(rulebase);
    ASSERT_TRUE(RulebaseManager().Save(*rulebase, path));
    const QByteArray before = readFile(path);
    const QString version = rulebase->Version();

    rulebase->setTitle(u"Changed"_s);
    if (!TestEnvironment::makeReadOnly(folder))
        GTEST_SKIP() << "this file system can't make a folder read-only";
    const bool saved = RulebaseManager().Save(*rulebase, path);
    TestEnvironment::makeWritable(folder);

    EXPECT_FALSE(saved);
    EXPECT_EQ(ui.messageTexts(), QStringList{u"Error during save: Access denied."_s});
    EXPECT_EQ(readFile(path), before);
    EXPECT_TRUE(rulebase->Dirty());
    EXPECT_NE(rulebase->Version(), version); // the increment stands: a retry counts twice
}

// Ids are 32-bit: once the last one is given, adding is refused with the reason, and the
// rulebase keeps what it had.
TEST_F(RulebaseFileTest, AddingPastTheLastIdIsRefusedAndChangesNothing)
{
    QByteArray bytes = smallFile(codingRule("5001"), "");
    bytes.replace("LastRuleID=\"5010\"", "LastRuleID=\"2147483646\"");
    bytes.replace("<CategoryList LastID=\"4\"", "<CategoryList LastID=\"2147483646\"");
    const auto rulebase = loadBytes(bytes);
    ASSERT_TRUE(rulebase);
    const auto rules = rulebase->RuleLists();
    const auto categories = rulebase->CategoryList();
    const struct
    {
        const char *refusal;
        std::function<void()> add;
        std::function<qint32()> count;
        std::function<qint32()> lastID;
    } adders[] = {
        {"every rule id",
         [&] { rules->AddConvention(std::make_shared<CodingConvention>(), true); },
         [&] { return rules->AllConventions()->Count(); },
         [&] { return rules->LastID(); }},
        {"every category id",
         [&] { categories->Add(std::make_shared<CategoryItem>(), true); },
         [&] { return categories->Count(); },
         [&] { return categories->LastID(); }},
    };
    for (const auto &adder : adders) {
        SCOPED_TRACE(adder.refusal);
        adder.add();
        const qint32 count = adder.count();
        EXPECT_EQ(adder.lastID(), std::numeric_limits<qint32>::max());
        try {
            adder.add();
            ADD_FAILURE() << "no refusal";
        } catch (const QuorinError &e) {
            EXPECT_TRUE(e.description().contains(QLatin1String(adder.refusal)))
                << e.description().toStdString();
        }
        EXPECT_EQ(adder.count(), count);
        EXPECT_EQ(adder.lastID(), std::numeric_limits<qint32>::max());
    }
}

// Numbers and Booleans are read in place when plain: whatever the text, the result, or the error
// with its attribute, is what the general conversion of the restored text gives.
TEST(RulebaseFileValuesTest, ReadsInPlaceAgreeWithTheGeneralConversions)
{
    const QStringList texts
        = u"0|-0|7|-7|007|2147483647|2147483648|-2147483648|-2147483649|32767|32768|-32768|-32769|"
          u"999999999999999999|9999999999999999999||-| 5|5 |+5|4.5|5.5|1e3|0x10|１２|True|False|"
          u"true|FALSE| True|Yes|%TAB%1|1%TAB%|%"_s.split(u'|');
    QString xml = u"<Root>"_s;
    for (const QString &text : texts)
        xml += u"<Item V=\""_s + text + u"\"/>"_s;
    xml += u"<Item/></Root>"_s;
    TarnXMLDoc doc;
    ASSERT_TRUE(doc.LoadFromString(xml));
    const TarnXMLElement root = doc.RootElement();

    // The outcome of a read as text: the value, or the error's number and description.
    auto outcome = [](auto &&read) {
        try {
            return QString::number(qint64(read()));
        } catch (const QuorinError &error) {
            return u"error %1: %2"_s.arg(error.number()).arg(error.description());
        }
    };
    const QString where = u" (attribute 'V' of element 'Item')"_s;
    auto general = [&](const TarnXMLElement &item, auto &&convert) {
        return outcome([&] {
            const QString text = RulebaseFileValues::readText(item, "V");
            try {
                return convert(text);
            } catch (const QuorinError &error) {
                throw QuorinError(error.number(), error.source(), error.description() + where);
            }
        });
    };
    for (qint32 i = 0; i < root.ElementCount(); ++i) {
        const TarnXMLElement item = root.ElementAtPosition(i);
        const QString text = i < texts.size() ? texts[i] : u"(none)"_s;
        EXPECT_EQ(outcome([&] { return RulebaseFileValues::readLong(item, "V"); }),
                  general(item, [](const QString &t) { return Text::toLong(t, QString()); }))
            << qPrintable(text);
        EXPECT_EQ(outcome([&] { return RulebaseFileValues::readInteger(item, "V"); }),
                  general(item, [](const QString &t) { return Text::toInteger(t, QString()); }))
            << qPrintable(text);
        EXPECT_EQ(outcome([&] { return RulebaseFileValues::readBool(item, "V"); }),
                  general(item, [](const QString &t) { return Text::toBool(t, QString()); }))
            << qPrintable(text);
    }
}
