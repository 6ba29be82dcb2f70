#include "DocTestSupport.h"

#include "docs/RulebaseDocCreator.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// A reader clicks through the contents and the category pages: every internal link must land
// on exactly one anchor of the same document.
TEST(DocumentLinks, EveryInternalLinkOfTheSampleDocumentHasOneAnchor)
{
    ScriptedUserInterface ui;
    const auto rulebase = RulebaseManager().LoadRulebase(TestEnvironment::sampleRulebase());
    ASSERT_NE(rulebase, nullptr);
    rulebase->setFilename(TestEnvironment::makeTempDir() + u"/Sample.qrb"_s);
    RulebaseDocCreator writer;
    writer.setOrganisation(DocTestSupport::organisation());
    QString document;
    ASSERT_TRUE(writer.CreateDocumentation(*rulebase, document));
    const QString text = DocTestSupport::readDocument(document);

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
