#include "application/Application.h"
#include "views/IMainForm.h"
#include "editors/IFormFactory.h"
#include "editors/RulebaseDocCreatorForm.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/Report.h"
#include "rulebase/Rulebase.h"

#include "support/MemoryMainForm.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFile>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// Runs the wizard as a person would, through the form's own buttons.
class ScriptedDocFactory final : public IFormFactory
{
public:
    ScriptedDocFactory() { IFormFactory::install(this); }
    ~ScriptedDocFactory() override { IFormFactory::install(nullptr); }

    bool runDocCreator(RulebaseDocCreatorForm &form) override
    {
        ++runs;
        form.Load();
        sectionsSeen = int(form.sectionRows().size());
        return script ? script(form) : false;
    }

    std::function<bool(RulebaseDocCreatorForm &)> script;
    int runs = 0;
    int sectionsSeen = 0;
};

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
    ScriptedDocFactory factory;
    MemoryMainForm window;
    Application app{&window};
    QString folder;
    QString document;
};

} // namespace

TEST_F(GenerateDocumentationTest, AfterOKTheQuestionDecidesWhetherTheDocumentIsWritten)
{
    factory.script = [](RulebaseDocCreatorForm &form) {
        form.OK();
        return true;
    };
    ui.answers.push_back(MessageResult::No);
    app.GenerateDocumentation();
    EXPECT_EQ(factory.runs, 1);
    EXPECT_GT(factory.sectionsSeen, 6);
    EXPECT_EQ(ui.messageTexts(), QStringList{question});
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_FALSE(QFile::exists(document));
    EXPECT_TRUE(ui.opened.isEmpty());
    EXPECT_EQ(window.busyCalls, std::vector<bool>{false});

    ui.answers.push_back(MessageResult::Yes);
    app.GenerateDocumentation();
    EXPECT_EQ(ui.messageTexts(), (QStringList{question, question}));
    ASSERT_TRUE(QFile::exists(document));
    EXPECT_EQ(ui.opened, QStringList{document});
    // The hourglass while writing, and the default pointer after every run.
    EXPECT_EQ(window.busyCalls, (std::vector<bool>{false, true, false}));
    EXPECT_TRUE(TestEnvironment::readFile(document).contains("<h2>Harbour Lines</h2>"));
    EXPECT_EQ(ui.unscriptedQuestions, 0);
}

TEST_F(GenerateDocumentationTest, CancelledAlreadyGeneratedOrWithoutADialogAsksNothing)
{
    factory.script = [](RulebaseDocCreatorForm &form) {
        EXPECT_TRUE(form.Cancel());
        return false;
    };
    // The sample's plan gains categories on opening, so Cancel asks first.
    ui.answers.push_back(MessageResult::Yes);
    app.GenerateDocumentation();
    EXPECT_EQ(factory.runs, 1);
    EXPECT_EQ(ui.messageTexts(),
              QStringList{u"Document content has changed. Continue without saving changes?"_s});
    EXPECT_FALSE(QFile::exists(document));

    factory.script = [](RulebaseDocCreatorForm &form) {
        EXPECT_TRUE(form.Generate());
        form.OK();
        return true;
    };
    app.GenerateDocumentation();
    EXPECT_FALSE(ui.messageTexts().contains(question));
    EXPECT_TRUE(QFile::exists(document));
    EXPECT_EQ(ui.opened, QStringList{document});
    EXPECT_EQ(window.busyCalls, (std::vector<bool>{false, false}));

    // Without a dialog the plan stays as it was found.
    app.rulebase()->setDirty(false);
    const qint32 count = app.rulebase()->Report()->Sections()->Count();
    IFormFactory::install(nullptr);
    app.GenerateDocumentation();
    IFormFactory::install(&factory);
    EXPECT_EQ(app.rulebase()->Report()->Sections()->Count(), count);
    EXPECT_FALSE(app.rulebase()->Dirty());
}
