#include "application/Application.h"
#include "application/Startup.h"
#include "collections/ObjectKeyedListAdapter.h"
#include "editors/CategorySeverityForm.h"
#include "editors/NamingConventionForm.h"
#include "editors/RuleEditorModel.h"
#include "editors/RulebaseDocCreatorForm.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/MRUUtils.h"
#include "platform/QuorinAdminData.h"
#include "platform/QuorinData.h"
#include "rulebase/CategoryList.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "views/IMainForm.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include "support/MemoryMainForm.h"
#include "support/RecordingView.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFile>

#include <gtest/gtest.h>

#include <functional>

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
    // The sample with one bad value, which loads in part; gives its bytes.
    QByteArray writePartFile(const QString &path)
    {
        QByteArray bytes = TestEnvironment::readFile(TestEnvironment::sampleRulebase());
        EXPECT_TRUE(bytes.contains("<CategoryList LastID=\"14\">"));
        bytes.replace("<CategoryList LastID=\"14\">", "<CategoryList LastID=\"fourteen\">");
        TestEnvironment::writeFile(path, bytes);
        return bytes;
    }

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
        EXPECT_EQ(app.CurrentViewName(), u"tlCategoryView"_s);
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

    // With nothing to open the window stands with no rulebase and no view.
    TestEnvironment::clearSettings();
    QFile::remove(sample);
    MemoryMainForm bare;
    Application empty(&bare, countingViews());
    EXPECT_FALSE(RunStartup(empty, QString()));
    EXPECT_FALSE(empty.RulebaseOpen());
    EXPECT_EQ(empty.CurrentView(), nullptr);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ApplicationTest, CommandLineNamesAreTakenWholeAndNeverTouchTheRecentList)
{
    const QString spaced = writeRulebase(u"My Standards.qrb"_s);
    {
        Application app(&form, countingViews());
        EXPECT_TRUE(RunStartup(app, QLatin1Char('"') + spaced + QLatin1Char('"')));
        EXPECT_EQ(app.rulebase()->Filename(), spaced);
    }
    {
        Application app(&form, countingViews());
        EXPECT_TRUE(RunStartup(app, spaced)); // unquoted, spaces and all
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
    EXPECT_EQ(form.calls.filter(u"MRU"_s),
              QStringList{u"RemoveFromMRUList "_s + dir + u"gone.qrb"_s});
}

TEST_F(ApplicationTest, AFailedOpenKeepsTheRulebaseBeforeItWholeAndSavable)
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
    EXPECT_EQ(RulebaseManager().LoadRulebase(good)->Title(), u"Edited"_s);
}

TEST_F(ApplicationTest, AFileThatLoadedInPartSaysSoAndAsksBeforeItIsWrittenOver)
{
    const QString path = dir + u"part.qrb"_s;
    const QByteArray bytes = writePartFile(path);

    Application app(&form, countingViews());
    ASSERT_TRUE(
        app.OpenRulebase(Application::OpenMode::CommandLine, TestEnvironment::sampleRulebase()));
    EXPECT_FALSE(app.rulebase()->LoadedInPart());
    ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine, path));
    EXPECT_TRUE(app.rulebase()->LoadedInPart());
    EXPECT_FALSE(app.rulebase()->Dirty());
    ui.messages.clear();

    // No keeps the file as it is.
    ui.answers = {MessageResult::No};
    EXPECT_FALSE(app.SaveRulebase());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_TRUE(ui.messages[0].text.contains(u"loaded only in part"_s));
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

TEST_F(ApplicationTest, NewStaysInTheCurrentViewWhileOpenGoesToTheCategoryView)
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

TEST_F(ApplicationTest, SaveAsProposesTheTitleAndSetsTheNameOnlyAfterSuccess)
{
    Application app(&form, countingViews());
    app.NewRulebase();
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
}

TEST_F(ApplicationTest, EveryQuestionThatDeletesOrDiscardsDefaultsToTheSafeAnswer)
{
    // Each case leaves its question last; Enter must not destroy anything.
    struct Case
    {
        const char *question;
        std::function<void(Application &, MemoryMainForm &)> ask;
        MessageResult safe;
    };
    const auto deleteInView = [](const QString &view) {
        return [view](Application &app, MemoryMainForm &window) {
            app.SwitchView(view);
            window.listControl.click(1);
            app.CurrentView()->DeleteItems();
        };
    };
    const QString gone = dir + u"gone.qrb"_s;
    const QString part = dir + u"part.qrb"_s;
    writePartFile(part);
    std::vector<Case> cases = {
        {"delete a category",
         [](Application &app, MemoryMainForm &) {
             CategorySeverityForm form;
             form.setDialogType(CategorySeverityForm::Categories);
             form.setItemList(asKeyedList(app.rulebase()->CategoryList()));
             form.setRulebase(app.rulebase());
             form.Load();
             form.Delete();
         },
         MessageResult::No},
        {"delete a naming convention's condition",
         [](Application &app, MemoryMainForm &) {
             NamingConventionForm form;
             form.setConvention(std::make_shared<NamingConvention>());
             form.setRulebase(app.rulebase());
             form.Load();
             form.screen().txtCondition = u"Quorin.ApplyConvention"_s;
             form.cmdDelete_Click();
         },
         MessageResult::No},
        {"drop the document designer's changes",
         [](Application &app, MemoryMainForm &) {
             RulebaseDocCreatorForm form;
             form.setRulebase(app.rulebase());
             form.Load();
             form.clickSection(2);
             form.moveSectionUp();
             form.Cancel();
         },
         MessageResult::No},
        {"close the condition editor with changes",
         [](Application &, MemoryMainForm &) {
             RuleEditorModel editor;
             editor.setRuleCode(u"Sub Main\r\nEnd Sub"_s);
             editor.CloseTool(u"Sub Main\r\n  x = 1\r\nEnd Sub"_s);
         },
         MessageResult::Cancel},
        {"remove a missing file from the recent list",
         [&](Application &app, MemoryMainForm &) {
             app.OpenRulebase(Application::OpenMode::RecentList, gone);
         },
         MessageResult::No},
        {"write over a file that loaded in part",
         [&](Application &app, MemoryMainForm &) {
             app.OpenRulebase(Application::OpenMode::CommandLine, part);
             app.SaveRulebase();
         },
         MessageResult::No},
    };
    for (const char *view : {"tlCodingConventions",
                             "tlNamingConventions",
                             "tlCategoryView",
                             "tlSeverityView",
                             "tlAuthorisedItems"})
        cases.push_back({view, deleteInView(QLatin1String(view)), MessageResult::No});
    for (const Case &c : cases) {
        SCOPED_TRACE(c.question);
        MemoryMainForm window;
        Application app(&window, createView);
        ASSERT_TRUE(app.OpenRulebase(Application::OpenMode::CommandLine,
                                     TestEnvironment::sampleRulebase()));
        ui.messages.clear();
        c.ask(app, window);
        ASSERT_FALSE(ui.messages.empty());
        EXPECT_NE(ui.messages.back().buttons, MessageButtons::OK)
            << ui.messages.back().text.toStdString();
        EXPECT_EQ(ui.messages.back().defaultButton, c.safe);
    }
}
