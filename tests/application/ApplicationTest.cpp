#include "application/Application.h"
#include "application/Startup.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/MRUUtils.h"
#include "platform/QuorinAdminData.h"
#include "platform/QuorinData.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "views/IMainForm.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include "support/MemoryMainForm.h"
#include "support/RecordingView.h"
#include "support/RulebaseFormScripts.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class ApplicationTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        TestEnvironment::clearSettings();
        dir = TestEnvironment::makeTempDir() + QLatin1Char('/');
        ASSERT_EQ(CreateGlobalObjects(), 0);
        gobjLogFile->setLogFileName(dir + u"Error.log"_s);
        gobjQuorinData->setLocalDataPath(dir);
        gobjAdminData->setDisplayTips(false);
        gobjAdminData->setFirstUse(false);
    }
    void TearDown() override
    {
        DestroyGlobalObjects();
        TestEnvironment::clearSettings();
    }

    // A valid rulebase file of a new rulebase, saved under a name of the test's folder.
    QString writeRulebase(const QString &name)
    {
        Rulebase rulebase;
        rulebase.setTitle(u"Written by the test"_s);
        const QString path = dir + name;
        EXPECT_TRUE(RulebaseManager().Save(rulebase, path));
        return path;
    }

    Application::ViewFactory countingViews() { return RecordingView::factory(&viewCalls); }
    qsizetype populates() const { return viewCalls.count(u"Populate"_s); }
    QString dir;
    ScriptedUserInterface ui;
    MemoryMainForm form;
    QStringList viewCalls;
};

} // namespace

TEST_F(ApplicationTest, StartUpOpensTheNewestRecentFileElseTheSampleElseNothing)
{
    const QString older = writeRulebase(u"older.qrb"_s);
    const QString newest = writeRulebase(u"newest.qrb"_s);
    {
        MRUUtils mru;
        mru.setAppName(u"Settings\\Rulebase"_s);
        mru.Add(older);
        mru.Add(newest);
    }
    gobjAdminData->setDisplayTips(true);
    gobjAdminData->setLastTip(4);
    gobjAdminData->setFirstUse(true);
    {
        Application app(&form, countingViews());
        EXPECT_TRUE(RunStartup(app, QString()));
        EXPECT_EQ(app.rulebase()->Filename(), newest);
        EXPECT_EQ(form.calls.mid(0, 4),
                  (QStringList{u"Splash"_s, u"Window"_s, u"Tip"_s, u"View tlCategoryView"_s}));
        EXPECT_EQ(gobjAdminData->LastTip(), 5);
        // First use shows the introduction once.
        EXPECT_EQ(ui.helpRequests.size(), 1u);
        EXPECT_FALSE(gobjAdminData->FirstUse());
    }

    // With no recent list the sample opens and joins the list.
    TestEnvironment::clearSettings();
    const QString sample = writeRulebase(u"Sample.qrb"_s);
    {
        Application app(&form, countingViews());
        EXPECT_TRUE(RunStartup(app, QString()));
        EXPECT_EQ(app.rulebase()->Filename(), sample);
        MRUUtils mru;
        mru.setAppName(u"Settings\\Rulebase"_s);
        EXPECT_EQ(mru.Item(1), sample);
    }

    // With nothing to open the window stands with no rulebase and no view, and no rulebase
    // dialog runs.
    TestEnvironment::clearSettings();
    QFile::remove(sample);
    MemoryMainForm bare;
    Application empty(&bare, countingViews());
    EXPECT_FALSE(RunStartup(empty, QString()));
    EXPECT_FALSE(empty.RulebaseOpen());
    EXPECT_EQ(empty.CurrentView(), nullptr);
    RulebaseFormScripts scripts;
    empty.ShowCategoryList();
    empty.ShowSeverityList();
    empty.ShowDefaultViolations();
    empty.ShowRulebasePropertiesDialog();
    empty.ShowTagList(1);
    EXPECT_EQ(scripts.runs, 0);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ApplicationTest, CommandLineNamesAreTakenWholeAndNeverTouchTheRecentList)
{
    const QString spaced = writeRulebase(u"My Standards.qrb"_s);
    // Quoted, or unquoted spaces and all.
    for (const QString &argument : {QLatin1Char('"') + spaced + QLatin1Char('"'), spaced}) {
        Application app(&form, countingViews());
        EXPECT_TRUE(RunStartup(app, argument));
        EXPECT_EQ(app.rulebase()->Filename(), spaced);
    }
    EXPECT_FALSE(form.calls.join(QLatin1Char('|')).contains(u"MRU"_s));

    // A missing file gives the plain warning and no offer to touch the list.
    Application app(&form, countingViews());
    EXPECT_FALSE(RunStartup(app, dir + u"gone.qrb"_s));
    EXPECT_FALSE(app.RulebaseOpen());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::OK);

    // From the recent list it offers to remove the name.
    ui.messages.clear();
    ui.answers = {MessageResult::Yes};
    EXPECT_FALSE(app.OpenRulebase(Application::OpenMode::RecentList, dir + u"gone.qrb"_s));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(ui.messages[0].defaultButton, MessageResult::No);
    EXPECT_EQ(form.calls.filter(u"MRU"_s),
              QStringList{u"RemoveFromMRUList "_s + dir + u"gone.qrb"_s});
}

TEST_F(ApplicationTest, AFailedOrPartOpenNeverCostsTheWorkNorTheFile)
{
    const QString good = writeRulebase(u"good.qrb"_s);
    const QString bad = dir + u"bad.qrb"_s;
    TestEnvironment::writeFile(bad, "<Quorin_Rulebase SchemaVersion=\"6.2\"><RulebaseProperties");
    Application app(&form, countingViews());
    ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine, good));
    const std::shared_ptr<Rulebase> before = app.rulebase();
    before->setTitle(u"Edited"_s);

    // No to saving first, then the open fails: the edited rulebase is still the open one.
    ui.answers = {MessageResult::No};
    EXPECT_FALSE(app.OpenRulebase(Application::OpenMode::CommandLine, bad));
    EXPECT_EQ(app.rulebase(), before);
    EXPECT_TRUE(before->Dirty());
    EXPECT_TRUE(ui.messageTexts().last().contains(bad));
    EXPECT_TRUE(TestEnvironment::readFile(dir + u"Error.log"_s).contains("XML Parser Error"));

    // Closing still asks, and Save writes the edit.
    ui.answers = {MessageResult::Cancel};
    EXPECT_FALSE(app.CheckForSave());
    EXPECT_TRUE(app.SaveRulebase());
    EXPECT_FALSE(app.rulebase()->LoadedInPart());
    EXPECT_EQ(RulebaseManager().LoadRulebase(good)->Title(), u"Edited"_s);

    // A file that loaded in part (the sample with one bad value) says so and asks before it is
    // written over; No keeps it.
    const QString path = dir + u"part.qrb"_s;
    QByteArray bytes = TestEnvironment::readFile(TestEnvironment::sampleRulebase());
    ASSERT_TRUE(bytes.contains("<CategoryList LastID=\"14\">"));
    bytes.replace("<CategoryList LastID=\"14\">", "<CategoryList LastID=\"fourteen\">");
    TestEnvironment::writeFile(path, bytes);
    ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine, path));
    EXPECT_TRUE(app.rulebase()->LoadedInPart());
    EXPECT_FALSE(app.rulebase()->Dirty());
    ui.messages.clear();
    ui.answers = {MessageResult::No};
    EXPECT_FALSE(app.SaveRulebase());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_TRUE(ui.messages[0].text.contains(u"loaded only in part"_s));
    EXPECT_EQ(ui.messages[0].defaultButton, MessageResult::No);
    EXPECT_EQ(TestEnvironment::readFile(path), bytes);

    // Save As to another file asks nothing; Yes over the file itself writes it.
    const QString copy = dir + u"copy.qrb"_s;
    ui.saveAnswers = {copy};
    EXPECT_TRUE(app.SaveRulebaseAs());
    EXPECT_FALSE(app.rulebase()->LoadedInPart());
    ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine, path));
    ui.answers = {MessageResult::Yes};
    EXPECT_TRUE(app.SaveRulebase());
    EXPECT_FALSE(app.rulebase()->LoadedInPart());
    ASSERT_TRUE(app.SaveRulebase()); // asked once only
    EXPECT_EQ(ui.messages.size(), 3u);
    EXPECT_EQ(ui.unscriptedQuestions, 0);
}

TEST_F(ApplicationTest, UnsavedChangesAreAskedAboutAndCancelStopsEverything)
{
    const QString first = writeRulebase(u"first.qrb"_s);
    const QString second = writeRulebase(u"second.qrb"_s);
    Application app(&form, countingViews());
    ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine, first));
    app.rulebase()->setTitle(u"Changed"_s);

    ui.answers = {MessageResult::Cancel};
    EXPECT_FALSE(app.OpenRulebase(Application::OpenMode::Ask));
    EXPECT_EQ(app.rulebase()->Filename(), first);
    EXPECT_TRUE(ui.fileRequests.empty()); // no file dialog after Cancel

    // No: the change is dropped and the dialog's file opens.
    ui.answers = {MessageResult::No};
    ui.openAnswers = {second};
    EXPECT_TRUE(app.OpenRulebase(Application::OpenMode::Ask));
    EXPECT_EQ(app.rulebase()->Filename(), second);
    EXPECT_EQ(gobjAdminData->LastPath(), dir);

    // Yes saves first.
    app.rulebase()->setTitle(u"Saved on the way"_s);
    ui.answers = {MessageResult::Yes};
    app.NewRulebase();
    EXPECT_EQ(RulebaseManager().LoadRulebase(second)->Title(), u"Saved on the way"_s);

    // A question that cannot be asked keeps the changes: nothing replaces the rulebase.
    ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine, second));
    app.rulebase()->setTitle(u"Changed"_s);
    ui.failQuestions = true;
    EXPECT_FALSE(app.CheckForSave());
    app.NewRulebase();
    EXPECT_EQ(app.rulebase()->Filename(), second);
    EXPECT_TRUE(app.rulebase()->Dirty());
}

TEST_F(ApplicationTest, NewStaysInTheViewSaveAsNamesOnlyOnSuccessAndOpenGoesToCategories)
{
    const QString file = writeRulebase(u"file.qrb"_s);
    Application app(&form, countingViews());
    app.NewRulebase();
    EXPECT_EQ(app.CurrentViewName(), u"tlCodingConventions"_s);
    app.SwitchView(u"tlSeverityView"_s);
    const qsizetype before = populates();
    app.NewRulebase();
    EXPECT_EQ(app.CurrentViewName(), u"tlSeverityView"_s);
    EXPECT_EQ(populates(), before + 1);
    EXPECT_FALSE(app.rulebase()->Dirty());

    // Save As proposes the title, and takes the name only once the file is written.
    app.rulebase()->setTitle(u"Team Standards"_s);
    ui.saveAnswers = {std::nullopt};
    EXPECT_FALSE(app.SaveRulebase()); // no name yet: Save As, cancelled
    EXPECT_EQ(ui.fileRequests.back().fileTitle, u"Team Standards.qrb"_s);
    EXPECT_TRUE(app.rulebase()->Filename().isEmpty());
    EXPECT_TRUE(app.rulebase()->Dirty());

    // A folder that does not exist: the save fails, nothing changes.
    const QString nowhere = dir + u"missing/Team Standards.qrb"_s;
    ui.saveAnswers = {nowhere};
    EXPECT_FALSE(app.SaveRulebaseAs());
    EXPECT_EQ(ui.messages.size(), 1u);
    EXPECT_TRUE(app.rulebase()->Filename().isEmpty());
    EXPECT_TRUE(app.rulebase()->Dirty());

    const QString target = dir + u"Team Standards.qrb"_s;
    ui.saveAnswers = {target};
    EXPECT_TRUE(app.SaveRulebaseAs());
    EXPECT_EQ(app.rulebase()->Filename(), target);
    EXPECT_FALSE(app.rulebase()->Dirty());
    EXPECT_EQ(form.calls.filter(u"AddToMRUList"_s), QStringList{u"AddToMRUList "_s + target});
    EXPECT_TRUE(app.CheckForSave());

    ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine, file));
    EXPECT_EQ(app.CurrentViewName(), u"tlCategoryView"_s);

    // Switching to the current view, in any case, does nothing at all.
    const qsizetype populated = populates();
    const qsizetype calls = form.calls.size();
    app.SwitchView(u"TLCATEGORYVIEW"_s);
    EXPECT_EQ(populates(), populated);
    EXPECT_EQ(form.calls.size(), calls);
    // An unknown name leaves the view as it is.
    app.SwitchView(u"tlNoSuchView"_s);
    EXPECT_EQ(app.CurrentViewName(), u"tlCategoryView"_s);
}

// Enter on a view's delete question must not delete anything.
TEST_F(ApplicationTest, EveryViewsDeleteQuestionDefaultsToNo)
{
    for (const char *view : {"tlCodingConventions",
                             "tlNamingConventions",
                             "tlCategoryView",
                             "tlSeverityView",
                             "tlAuthorisedItems"}) {
        SCOPED_TRACE(view);
        MemoryMainForm window;
        Application app(&window, createView);
        ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine,
                                     TestEnvironment::sampleRulebase()));
        app.SwitchView(QLatin1String(view));
        window.listControl.click(1);
        ui.messages.clear();
        app.CurrentView()->DeleteItems();
        ASSERT_EQ(ui.messages.size(), 1u);
        EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNo);
        EXPECT_EQ(ui.messages[0].defaultButton, MessageResult::No);
    }
}
