#include "application/Application.h"
#include "editors/IFormFactory.h"
#include "editors/RulebaseDocCreatorForm.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/Report.h"
#include "rulebase/Rulebase.h"
#include "views/IMainForm.h"

#include "support/MemoryMainForm.h"
#include "support/RulebaseFormScripts.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class GenerateDocumentationTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        TestEnvironment::clearSettings();
        ASSERT_EQ(CreateGlobalObjects(), 0);
        gobjAdminData->setLastCompanyName(u"Harbour Lines"_s);
        folder = TestEnvironment::makeTempDir();
        const QString rulebaseFile = folder + u"/Sample.qrb"_s;
        ASSERT_TRUE(QFile::copy(TestEnvironment::sampleRulebase(), rulebaseFile));
        QFile::setPermissions(rulebaseFile, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine, rulebaseFile));
        document = folder + u"/Sample.html"_s;
    }
    void TearDown() override { DestroyGlobalObjects(); }

    const QString question = u"Do you wish to generate the Rulebase documentation?"_s;
    ScriptedUserInterface ui;
    RulebaseFormScripts scripts;
    MemoryMainForm window;
    Application app{&window};
    QString folder;
    QString document;
};

} // namespace

TEST_F(GenerateDocumentationTest, TheQuestionAfterOKDecidesAndCancelOrNoDialogWritesNothing)
{
    // The sample's plan gains categories on opening, so Cancel asks before dropping them.
    scripts.docCreator = [](RulebaseDocCreatorForm &form) {
        form.Load();
        EXPECT_GT(form.sectionRows().size(), 6u);
        return !form.Cancel();
    };
    ui.answers = {MessageResult::Yes};
    app.GenerateDocumentation();
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_NE(ui.messages[0].text, question);

    scripts.docCreator = [](RulebaseDocCreatorForm &form) {
        form.Load();
        form.OK();
        return true;
    };
    ui.answers = {MessageResult::No, MessageResult::Yes};
    app.GenerateDocumentation();
    EXPECT_EQ(ui.messages.back().buttons, MessageButtons::YesNo);
    EXPECT_FALSE(QFile::exists(document));
    EXPECT_TRUE(ui.opened.isEmpty());
    app.GenerateDocumentation();
    EXPECT_EQ(ui.messageTexts().mid(1), (QStringList{question, question}));
    ASSERT_TRUE(QFile::exists(document));
    EXPECT_EQ(ui.opened, QStringList{document});
    // The hourglass only while writing, and the default pointer after every run.
    EXPECT_EQ(window.busyCalls, (std::vector<bool>{false, false, true, false}));
    EXPECT_TRUE(TestEnvironment::readFile(document).contains("<h2>Harbour Lines</h2>"));

    // Generated inside the dialog: no second question, the document just opens.
    QFile::remove(document);
    scripts.docCreator = [](RulebaseDocCreatorForm &form) {
        form.Load();
        EXPECT_TRUE(form.Generate());
        form.OK();
        return true;
    };
    app.GenerateDocumentation();
    EXPECT_EQ(ui.messages.size(), 3u);
    EXPECT_TRUE(QFile::exists(document));
    EXPECT_EQ(ui.opened.size(), 2);

    // Without a dialog the plan stays as it was found.
    app.rulebase()->setDirty(false);
    const qint32 count = app.rulebase()->Report()->Sections()->Count();
    IFormFactory::install(nullptr);
    app.GenerateDocumentation();
    IFormFactory::install(&scripts);
    EXPECT_EQ(scripts.runs, 4);
    EXPECT_EQ(app.rulebase()->Report()->Sections()->Count(), count);
    EXPECT_FALSE(app.rulebase()->Dirty());
    EXPECT_EQ(ui.unscriptedQuestions, 0);
}
