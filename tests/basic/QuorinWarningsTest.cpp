#include "BasicTestSupport.h"

#include "basic/ConditionRules.h"
#include "basic/QuorinExtension.h"
#include "rulebase/IRule.h"
#include "support/TestEnvironment.h"
#include "vocabulary/ObjectCatalogue.h"
#include "vocabulary/ParserEventCatalogue.h"

#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace {

struct SampleCondition
{
    qint32 ruleType;
    QString title;
    QString text;
};

// The conditions of the sample's rules, with the file's escapes restored.
std::vector<SampleCondition> sampleConditions()
{
    QFile file(TestEnvironment::sampleRulebase());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    std::vector<SampleCondition> result;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const bool coding = xml.name() == u"CodingConvention";
        if (!coding && xml.name() != u"NamingConvention")
            continue;
        QString text = xml.attributes().value("Condition"_L1).toString();
        text.replace("%CRLF%"_L1, "\r\n"_L1)
            .replace("%TAB%"_L1, "\t"_L1)
            .replace("%LT%"_L1, "<"_L1)
            .replace("%GT%"_L1, ">"_L1);
        result.push_back({coding ? RuleTypes::CodingConvention : RuleTypes::NamingConvention,
                          xml.attributes().value("Title"_L1).toString(),
                          text});
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return result;
}

} // namespace

// A rule that names what the extension or the vocabulary lacks never fires: an error. A name the
// catalogue does not list for a known object may still be right: a warning. The rest is clean.
TEST(QuorinWarnings, UnknownMembersAndObjectsAreErrorsOtherNamesWarn)
{
    const QString text
        = code("  Call Quorin.RaiseViolations()|"
               "  x = Quorin.Foo.Bar|"
               "  x = Quorin.GetObjectProperty(\"Source\")|"
               "  Quorin.ApplyConvention 1|"
               "  If Quorin.ParserEvent(1) = \"x\" Then Stop|"
               "  a = Quorin.GetObjectProperty(\"Procdure\", \"Name\")|"
               "  a = Quorin.GetObjectWorkField(\"Projct\", \"Anything\")|"
               "  a = Quorin.GetObjectProperty(\"Procedure\", \"CodLineCount\")|"
               "  a = Quorin.GetObjectProperty(\"Source\", \"Name\")|"
               "  a = Quorin.GetObjectWorkField(\"Source\", \"Anything\")|"
               // Known names, whatever their case, specialised objects, and the design-time
               // properties of forms and controls, which no catalogue lists.
               "  a = Quorin.GetObjectProperty(\"procedure\", \"codelinecount\")|"
               "  a = Quorin.GetObjectProperty(\"Variable (Local)\", \"Name\")|"
               "  a = Quorin.GetObjectProperty(\"ControlProperties\", \"Caption\")|"
               "  a = Quorin.GetObjectProperty(\"LayoutProperties\", \"StartUpPosition\")|"
               "  a = Quorin.GetObjectWorkField(\"Project\", \"Whatever\")|"
               // Only literal names can be checked.
               "  a = Quorin.GetObjectProperty(sObject, \"Nope\")|"
               "  a = Quorin.GetObjectProperty(\"File\", sProperty)|"
               // The calls the editor inserts.
               "  Call Quorin.RaiseViolation()|"
               "  Call Quorin.CancelPendingViolation|"
               "  quorin.applyconvention|"
               "  s = Quorin.GetObjectWorkField(\"Project\", \"SystemCode\")|"
               "  If Quorin.ParserEvent() = \"begin Procedure\" Then Exit Sub|"
               "  If Quorin.ParserEvent = \"Argument (Event)\" Then Exit Sub|"
               "  Quorin.GetObjectProperty \"Source\", \"Line\"");
    EXPECT_EQ(errorsOf(text),
              (QStringList{"2:15 Unknown Quorin member: \"RaiseViolations\"",
                           "3:14 Unknown Quorin member: \"Foo\"",
                           "4:14 Wrong number of arguments or invalid property assignment",
                           "5:10 Wrong number of arguments or invalid property assignment",
                           "6:13 Wrong number of arguments or invalid property assignment",
                           "7:32 Unknown object: \"Procdure\"",
                           "8:33 Unknown object: \"Projct\""}));
    EXPECT_EQ(warningsOf(text),
              (QStringList{"9:45 Unknown property of object \"Procedure\": \"CodLineCount\"",
                           "10:42 Unknown property of object \"Source\": \"Name\"",
                           "11:33 Object \"Source\" has no workfields"}));
}

TEST(QuorinWarnings, ParserEventComparisonsNameKnownEvents)
{
    const QString text = code("  If Quorin.ParserEvent() = \"begin Prject\" Then Stop|"
                              "  If \"Nope\" <> (Quorin.ParserEvent) Then Stop|"
                              "  If Quorin.ParserEvent() = \"end Project\" Then Stop|"
                              "  If Quorin.ParserEvent() & \"x\" = \"Nope\" Then Stop|"
                              "  Select Case Quorin.ParserEvent()|"
                              "    Case \"Variable\", \"Variabel\"|"
                              "    Case Is = \"Nope\", \"a\" To \"z\"|"
                              "  End Select|"
                              "  Select Case sOther|"
                              "    Case \"Nope\"|"
                              "  End Select");
    EXPECT_EQ(errorsOf(text), QStringList());
    EXPECT_EQ(warningsOf(text),
              (QStringList{"2:29 Unknown parser event: \"begin Prject\"",
                           "3:6 Unknown parser event: \"Nope\"",
                           "7:22 Unknown parser event: \"Variabel\"",
                           "8:15 Unknown parser event: \"Nope\""}));
}

TEST(QuorinWarnings, ACodedConditionWithoutSubMainWarns)
{
    EXPECT_EQ(warningsOf(u"Dim x"_s), QStringList{"1:1 The condition has no Sub Main"});
    EXPECT_EQ(warningsOf(u"' only a comment"_s), QStringList());
    EXPECT_EQ(warningsOf(QString()), QStringList());
}

TEST(QuorinWarnings, EverySampleConditionIsCleanAndAccepted)
{
    const auto conditions = sampleConditions();
    int scripts = 0;
    for (const SampleCondition &condition : conditions) {
        if (condition.text.isEmpty())
            continue;
        ++scripts;
        SCOPED_TRACE(condition.title.toStdString());
        EXPECT_EQ(errorsOf(condition.text), QStringList());
        EXPECT_EQ(warningsOf(condition.text), QStringList());
        const auto verdict = ConditionRules::CheckCondition(condition.text, condition.ruleType);
        EXPECT_TRUE(verdict.passed) << verdict.message.toStdString();
    }
    EXPECT_GE(scripts, 50);
}

TEST(QuorinWarnings, TheWholeVocabularyIsAccepted)
{
    for (const auto &object : ObjectCatalogue::objects()) {
        const QString name = object.name.toString();
        EXPECT_EQ(QuorinExtension::objectWarning(name), QString()) << object.id;
        const auto *set = ObjectCatalogue::findPropertySet(object.id);
        for (const auto &property :
             set ? set->rows : std::span<const ObjectCatalogue::PropertyRow>())
            EXPECT_EQ(QuorinExtension::propertyWarning(name, property.name().toString()), QString())
                << object.id << " " << property.id;
    }
    for (const auto &event : ParserEventCatalogue::events())
        EXPECT_EQ(QuorinExtension::parserEventWarning(event.text.toString().toUpper()), QString());
    EXPECT_NE(QuorinExtension::propertyWarning(u"Type"_s, u"Instancing"_s), QString());
}
