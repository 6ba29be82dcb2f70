#include "ProjectTestSupport.h"

#include "editors/AddFromProject.h"
#include "editors/AddFromProjectForm.h"
#include "editors/IFormFactory.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "project/VirtualComponent.h"
#include "project/VirtualReference.h"
#include "project/modTypelib.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString stdole = u"{00020430-0000-0000-C000-000000000046}"_s;
const QString comctl = u"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}"_s;

// Runs the import dialog without a window: the script may tick, untick and confirm.
class ScriptedImportDialog final : public IFormFactory
{
public:
    ScriptedImportDialog() { install(this); }
    ~ScriptedImportDialog() override { install(nullptr); }

    bool runAddFromProject(AddFromProjectForm &form) override
    {
        ++runs;
        if (script)
            script(form);
        else
            form.OK();
        return !form.Cancelled();
    }

    std::function<void(AddFromProjectForm &)> script;
    int runs = 0;
};

QByteArray project(const char *comctlVersion)
{
    return crlf("Type=Exe\n"
                "Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:"
                "\\WINDOWS\\System32\\stdole2.tlb#OLE Automation\n"
                "Object={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#")
           + comctlVersion + crlf("#0; MSCOMCTL.OCX\nName=\"A\"\n");
}

class AddFromProjectTest : public ProjectTest
{
protected:
    void SetUp() override
    {
        ProjectTest::SetUp();
        rulebase = std::make_shared<Rulebase>();
        // The three libraries every project is taken to reference, known at their version.
        for (const char *guid : {"{000204EF-0000-0000-C000-000000000046}",
                                 "{EA544A21-C82D-11D1-A3E4-00A0C90AEA82}",
                                 "{FCFB3D2E-A0FA-1068-A738-08002B3371B5}"})
            rulebase->AuthorisedReferences()->Add(QLatin1String(guid), {}, {}, u"6.0"_s, {});
        rulebase->AuthorisedReferences()->Add(
            stdole, u"OLE Automation"_s, u"stdole2.tlb"_s, u"2.0"_s, {});
        importer.setRulebase(rulebase);
    }

    QString lastMessage() const
    {
        return ui.messages.empty() ? QString() : ui.messages.back().text;
    }

    ScriptedUserInterface ui;
    ScriptedImportDialog dialog;
    std::shared_ptr<Rulebase> rulebase;
    AddFromProject importer;
};

} // namespace

TEST(AddFromProjectMessages, CountsVerbsAndTheProjectName)
{
    const std::tuple<int, int, const char *, const char *> cases[] = {
        {0, 0, "a.vbp", "No new components or references were found for the project 'a.vbp'."},
        // The missing blank before "was" belongs to the message.
        {1, 0, "a.vbp", "1 new componentwas found for the project 'a.vbp'."},
        {3, 0, "", "3 new componentswere found for the selected projects."},
        {0, 1, "", "1 new reference was found for the selected projects."},
        {2, 1, "", "2 new components and 1 new reference was found for the selected projects."},
        {1, 2, "b.vbg", "1 new component and 2 new references were found for the project 'b.vbg'."},
    };
    for (const auto &[components, references, project, text] : cases)
        EXPECT_EQ(AddFromProject::NewItemsMessage(components, references, QLatin1String(project)),
                  QLatin1String(text));
    // The reference text keeps its verb whatever it is told.
    EXPECT_EQ(AddFromProject::NewReferencesMessage(1, true), u"1 new reference was found"_s);
    EXPECT_EQ(AddFromProject::NewComponentsMessage(1, true), u"1 new component"_s);
}

// A known version is found by a plain substring search of the list; an empty list holds none.
TEST_F(AddFromProjectTest, AKnownLibraryAtAVersionItLacksIsACandidateOfThatVersionAlone)
{
    rulebase->AuthorisedComponents()->Add(comctl, u"MSCOMCTL.OCX"_s, QString(), {});
    const std::tuple<const char *, const char *, int> cases[]
        = {{"2.0; 2.1", "2.1", 0}, {"11.1; 2.0", "1.1", 0}, {"", "3.0", 1}, {"2.1", "2.0", 1}};
    for (const auto &[known, used, candidates] : cases) {
        rulebase->AuthorisedComponents()->Item(comctl)->setVersionList(QLatin1String(known));
        AddFromProject fresh;
        fresh.setRulebase(rulebase);
        fresh.ParseSingleFile(writeFile(u"a.vbp"_s, project(used)));
        EXPECT_EQ(fresh.ComponentList()->Count(), candidates) << known;
        EXPECT_EQ(fresh.ReferenceList()->Count(), 0) << known;
        // Nothing of the rulebase itself changes while gathering.
        EXPECT_EQ(rulebase->AuthorisedComponents()->Item(comctl)->VersionList(), known);
        if (candidates == 0)
            continue;
        const auto candidate = fresh.ComponentList()->Item(1);
        EXPECT_EQ(candidate->LibID(), comctl);
        EXPECT_EQ(candidate->VersionList(), QLatin1String(used));
        EXPECT_EQ(candidate->Filename(), u"MSCOMCTL.OCX"_s);
        EXPECT_TRUE(candidate->Selected());
    }
    ASSERT_EQ(ui.messages.size(), 4u);
    EXPECT_EQ(ui.messages[0].text, AddFromProject::NewItemsMessage(0, 0, u"a.vbp"_s));
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::OK);
    EXPECT_EQ(lastMessage(), AddFromProject::NewItemsMessage(1, 0, u"a.vbp"_s));
    EXPECT_EQ(dialog.runs, 0);
}

TEST_F(AddFromProjectTest, CandidatesKeepTheFirstVersionFoundAndTheDialogFollows)
{
    const QString a = writeFile(u"a.vbp"_s, project("2.0"));
    const QString b = writeFile(u"sub/b.vbp"_s, project("2.5"));
    importer.ParseFileList(QStringList{a, b}, rulebase);

    ASSERT_EQ(importer.ComponentList()->Count(), 1);
    EXPECT_EQ(importer.ComponentList()->Item(1)->VersionList(), u"2.0"_s);
    EXPECT_EQ(lastMessage(), AddFromProject::NewItemsMessage(1, 0, QString()));
    EXPECT_EQ(dialog.runs, 1);
    EXPECT_FALSE(importer.Cancelled());

    // A cancelled dialog is what the caller reads.
    AddFromProject again;
    dialog.script = [](AddFromProjectForm &form) { form.Cancel(); };
    again.ParseFileList(QStringList{a}, rulebase);
    EXPECT_TRUE(again.Cancelled());
}

TEST_F(AddFromProjectTest, ReferencesTakeDescriptionFilenameAndVersionFromTheProject)
{
    auto bare = std::make_shared<Rulebase>();
    importer.setRulebase(bare);
    importer.ParseSingleFile(writeFile(u"a.vbp"_s, project("2.0")));

    // The three references every project has, and the one it names.
    ASSERT_EQ(importer.ReferenceList()->Count(), 4);
    const auto ole = importer.ReferenceList()->Item(stdole);
    EXPECT_EQ(ole->Description(), u"OLE Automation"_s);
    EXPECT_EQ(ole->Filename(), u"C:\\WINDOWS\\System32\\stdole2.tlb"_s);
    EXPECT_EQ(ole->VersionList(), u"2.0"_s);
    EXPECT_EQ(importer.ReferenceList()->Item(1)->Filename(), u"MSVBVM60.DLL"_s);
    EXPECT_EQ(lastMessage(), AddFromProject::NewItemsMessage(1, 4, u"a.vbp"_s));

    // The same file again finds nothing new among the candidates.
    importer.ParseSingleFile(path(u"a.vbp"_s));
    EXPECT_EQ(lastMessage(), AddFromProject::NewItemsMessage(0, 0, u"a.vbp"_s));
}

TEST_F(AddFromProjectTest, UnreadableAndForeignFilesAddNothingButStillGetTheBox)
{
    importer.ParseSingleFile(path(u"missing.vbp"_s));
    EXPECT_EQ(lastMessage(), AddFromProject::NewItemsMessage(0, 0, u"missing.vbp"_s));
    importer.ParseSingleFile(writeFile(u"notes.txt"_s, "Reference=*\\G{1}#1.0#0#x#y\r\n"));
    EXPECT_EQ(lastMessage(), AddFromProject::NewItemsMessage(0, 0, u"notes.txt"_s));
    EXPECT_EQ(importer.ComponentList()->Count() + importer.ReferenceList()->Count(), 0);

    // No list at all: no box and no dialog; an empty list: the box alone.
    const size_t shown = ui.messages.size();
    AddFromProject none;
    none.ParseFileList(std::nullopt, rulebase);
    EXPECT_EQ(ui.messages.size(), shown);
    EXPECT_FALSE(none.Cancelled());
    none.ParseFileList(QStringList{}, rulebase);
    EXPECT_EQ(lastMessage(), AddFromProject::NewItemsMessage(0, 0, QString()));
    EXPECT_EQ(dialog.runs, 0);
}

TEST_F(AddFromProjectTest, AFileWithoutALibraryIsLoggedWithoutTheErrorBox)
{
    gobjLogFile->setQuiet(false);
    bool ok = true;
    const auto component
        = modTypelib::LoadComponentFromFile(writeFile(u"plain.ocx"_s, "not a library"), ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(component->Filename(), u"plain.ocx"_s);
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_FALSE(gobjLogFile->Quiet());
    ASSERT_FALSE(logRecords().isEmpty());
    EXPECT_TRUE(logRecords().last().contains(u"LoadComponentFromFile"_s));
}
