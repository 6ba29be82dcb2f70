#include "ProjectTestSupport.h"

#include "editors/AddFromProjectForm.h"
#include "editors/IFormFactory.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "editors/AddFromProject.h"
#include "project/VirtualComponent.h"
#include "project/VirtualReference.h"
#include "project/modTypelib.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <functional>

namespace {

const QString stdole = QStringLiteral("{00020430-0000-0000-C000-000000000046}");
const QString comctl = QStringLiteral("{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}");

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

// The three libraries every project is taken to reference, known at their version.
void authoriseDefaultReferences(Rulebase &rulebase)
{
    for (const char *guid : {"{000204EF-0000-0000-C000-000000000046}",
                             "{EA544A21-C82D-11D1-A3E4-00A0C90AEA82}",
                             "{FCFB3D2E-A0FA-1068-A738-08002B3371B5}"})
        rulebase.AuthorisedReferences()->Add(
            QLatin1String(guid), {}, {}, QStringLiteral("6.0"), {});
}

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
        authoriseDefaultReferences(*rulebase);
        rulebase->AuthorisedReferences()->Add(stdole,
                                              QStringLiteral("OLE Automation"),
                                              QStringLiteral("stdole2.tlb"),
                                              QStringLiteral("2.0"),
                                              {});
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
    EXPECT_EQ(
        AddFromProject::NewItemsMessage(0, 0, QStringLiteral("a.vbp")),
        QStringLiteral("No new components or references were found for the project 'a.vbp'."));
    // The missing blank before "was" belongs to the message.
    EXPECT_EQ(AddFromProject::NewItemsMessage(1, 0, QStringLiteral("a.vbp")),
              QStringLiteral("1 new componentwas found for the project 'a.vbp'."));
    EXPECT_EQ(AddFromProject::NewItemsMessage(3, 0, QString()),
              QStringLiteral("3 new componentswere found for the selected projects."));
    EXPECT_EQ(AddFromProject::NewItemsMessage(0, 1, QString()),
              QStringLiteral("1 new reference was found for the selected projects."));
    EXPECT_EQ(AddFromProject::NewItemsMessage(2, 1, QString()),
              QStringLiteral(
                  "2 new components and 1 new reference was found for the selected projects."));
    EXPECT_EQ(
        AddFromProject::NewItemsMessage(1, 2, QStringLiteral("b.vbg")),
        QStringLiteral("1 new component and 2 new references were found for the project 'b.vbg'."));
    // The reference text keeps its verb whatever it is told.
    EXPECT_EQ(AddFromProject::NewReferencesMessage(1, true),
              QStringLiteral("1 new reference was found"));
    EXPECT_EQ(AddFromProject::NewComponentsMessage(1, true), QStringLiteral("1 new component"));
}

TEST_F(AddFromProjectTest, AProjectWhollyAuthorisedAddsNothingAndSaysSo)
{
    rulebase->AuthorisedComponents()->Add(
        comctl, QStringLiteral("MSCOMCTL.OCX"), QStringLiteral("2.0; 2.1"), {});
    importer.ParseSingleFile(writeFile(QStringLiteral("a.vbp"), project("2.1")));

    EXPECT_EQ(importer.ComponentList()->Count(), 0);
    EXPECT_EQ(importer.ReferenceList()->Count(), 0);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(
        ui.messages[0].text,
        QStringLiteral("No new components or references were found for the project 'a.vbp'."));
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::OK);
    EXPECT_EQ(ui.messages[0].title, QStringLiteral("Quorin Administrator"));
}

TEST_F(AddFromProjectTest, AKnownLibraryAtANewVersionIsACandidateOfThatVersionAlone)
{
    rulebase->AuthorisedComponents()->Add(
        comctl, QStringLiteral("MSCOMCTL.OCX"), QStringLiteral("2.1"), {});
    importer.ParseSingleFile(writeFile(QStringLiteral("a.vbp"), project("2.0")));

    ASSERT_EQ(importer.ComponentList()->Count(), 1);
    const auto candidate = importer.ComponentList()->Item(1);
    EXPECT_EQ(candidate->LibID(), comctl);
    EXPECT_EQ(candidate->VersionList(), QStringLiteral("2.0"));
    EXPECT_EQ(candidate->Filename(), QStringLiteral("MSCOMCTL.OCX"));
    EXPECT_TRUE(candidate->Selected());
    EXPECT_EQ(lastMessage(), QStringLiteral("1 new componentwas found for the project 'a.vbp'."));
    // Nothing of the rulebase itself changes while gathering.
    EXPECT_EQ(rulebase->AuthorisedComponents()->Item(comctl)->VersionList(), QStringLiteral("2.1"));
    EXPECT_EQ(dialog.runs, 0);
}

TEST_F(AddFromProjectTest, VersionsAreHeldByAPlainSubstringSearch)
{
    rulebase->AuthorisedComponents()->Add(
        comctl, QStringLiteral("MSCOMCTL.OCX"), QStringLiteral("11.1; 2.0"), {});
    importer.ParseSingleFile(writeFile(QStringLiteral("a.vbp"), project("1.1")));
    EXPECT_EQ(importer.ComponentList()->Count(), 0);

    // A known library at an empty version list still holds nothing of "3.0".
    rulebase->AuthorisedComponents()->Item(comctl)->setVersionList(QString());
    importer.ParseSingleFile(writeFile(QStringLiteral("b.vbp"), project("3.0")));
    EXPECT_EQ(importer.ComponentList()->Count(), 1);
}

TEST_F(AddFromProjectTest, CandidatesKeepTheFirstVersionFoundAndTheDialogFollows)
{
    const QString a = writeFile(QStringLiteral("a.vbp"), project("2.0"));
    const QString b = writeFile(QStringLiteral("sub/b.vbp"), project("2.5"));
    importer.ParseFileList(QStringList{a, b}, rulebase);

    ASSERT_EQ(importer.ComponentList()->Count(), 1);
    EXPECT_EQ(importer.ComponentList()->Item(1)->VersionList(), QStringLiteral("2.0"));
    EXPECT_EQ(lastMessage(), QStringLiteral("1 new componentwas found for the selected projects."));
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
    importer.ParseSingleFile(writeFile(QStringLiteral("a.vbp"), project("2.0")));

    // The three references every project has, and the one it names.
    ASSERT_EQ(importer.ReferenceList()->Count(), 4);
    const auto ole = importer.ReferenceList()->Item(stdole);
    EXPECT_EQ(ole->Description(), QStringLiteral("OLE Automation"));
    EXPECT_EQ(ole->Filename(), QStringLiteral("C:\\WINDOWS\\System32\\stdole2.tlb"));
    EXPECT_EQ(ole->VersionList(), QStringLiteral("2.0"));
    EXPECT_EQ(importer.ReferenceList()->Item(1)->Filename(), QStringLiteral("MSVBVM60.DLL"));
    EXPECT_EQ(
        lastMessage(),
        QStringLiteral("1 new component and 4 new references were found for the project 'a.vbp'."));

    // The same file again finds nothing new among the candidates.
    importer.ParseSingleFile(path(QStringLiteral("a.vbp")));
    EXPECT_EQ(
        lastMessage(),
        QStringLiteral("No new components or references were found for the project 'a.vbp'."));
}

TEST_F(AddFromProjectTest, UnreadableAndForeignFilesAddNothingButStillGetTheBox)
{
    importer.ParseSingleFile(path(QStringLiteral("missing.vbp")));
    EXPECT_EQ(lastMessage(),
              QStringLiteral(
                  "No new components or references were found for the project 'missing.vbp'."));
    importer.ParseSingleFile(
        writeFile(QStringLiteral("notes.txt"), "Reference=*\\G{1}#1.0#0#x#y\r\n"));
    EXPECT_EQ(
        lastMessage(),
        QStringLiteral("No new components or references were found for the project 'notes.txt'."));
    EXPECT_EQ(importer.ComponentList()->Count() + importer.ReferenceList()->Count(), 0);

    // No list at all: no box and no dialog; an empty list: the box alone.
    const size_t shown = ui.messages.size();
    AddFromProject none;
    none.ParseFileList(std::nullopt, rulebase);
    EXPECT_EQ(ui.messages.size(), shown);
    EXPECT_FALSE(none.Cancelled());
    none.ParseFileList(QStringList{}, rulebase);
    EXPECT_EQ(
        lastMessage(),
        QStringLiteral("No new components or references were found for the selected projects."));
    EXPECT_EQ(dialog.runs, 0);
}

TEST_F(AddFromProjectTest, EverySharedProjectAndGroupImportsIntoTheSample)
{
    QUORIN_REQUIRE_VB6_DATA(dir);
    const std::shared_ptr<Rulebase> sample
        = RulebaseManager().LoadRulebase(TestEnvironment::sampleRulebase());
    ASSERT_NE(sample, nullptr);

    QStringList files;
    QDirIterator it(dir,
                    {QStringLiteral("*.vbp"), QStringLiteral("*.vbg")},
                    QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        files << it.next();
    files.sort();
    ASSERT_EQ(files.size(), 6);

    QHash<QString, QString> messages;
    for (const QString &file : files) {
        AddFromProject single;
        single.setRulebase(sample);
        single.ParseSingleFile(file);
        messages.insert(QFileInfo(file).fileName(), lastMessage());
        // Every candidate is new to the sample, or new at its version.
        for (qint32 i = 1; i <= single.ComponentList()->Count(); ++i) {
            const auto c = single.ComponentList()->Item(i);
            const qint32 known = sample->AuthorisedComponents()->FindByLibID(c->LibID());
            if (known != -1) {
                EXPECT_FALSE(sample->AuthorisedComponents()->Item(known)->VersionList().contains(
                    c->VersionList()));
            }
        }
    }
    // Only the libraries every project has are new to the sample here.
    EXPECT_EQ(messages.value(QStringLiteral("Empty.vbp")),
              QStringLiteral("3 new references were found for the project 'Empty.vbp'."));
    EXPECT_EQ(messages.value(QStringLiteral("Report Builder.vbp")),
              QStringLiteral("3 new references were found for the project 'Report Builder.vbp'."));
    // Another project of the group, used at design time, stands with an empty GUID.
    EXPECT_EQ(messages.value(QStringLiteral("Ledger.vbp")),
              QStringLiteral(
                  "1 new component and 4 new references were found for the project 'Ledger.vbp'."));
    EXPECT_EQ(messages.value(QStringLiteral("Suite.vbg")),
              messages.value(QStringLiteral("Ledger.vbp"))
                  .replace(QStringLiteral("Ledger.vbp"), QStringLiteral("Suite.vbg")));

    // All at once, as dropped files: one dialog, and the candidates of every file.
    AddFromProject all;
    all.ParseFileList(files, sample);
    EXPECT_EQ(lastMessage(),
              QStringLiteral(
                  "1 new component and 4 new references were found for the selected projects."));
    EXPECT_EQ(dialog.runs, 1);
    EXPECT_FALSE(all.ReferenceList()->Contains(stdole)); // the sample knows it at 2.0
    EXPECT_FALSE(all.ComponentList()->Contains(comctl)); // and this at 2.0
}

TEST_F(AddFromProjectTest, TypeLibrariesOfTheSharedFilesReadAsComponentsAndReferences)
{
    const QString dir = TestEnvironment::sharedDataDir() + QStringLiteral("/typelib");
    QFile expected(dir + QStringLiteral("/expected.tsv"));
    if (!expected.open(QIODevice::ReadOnly | QIODevice::Text))
        GTEST_SKIP() << "no shared type library data";
    expected.readLine(); // the header
    int files = 0;
    while (!expected.atEnd()) {
        const QStringList fields
            = QString::fromUtf8(expected.readLine()).trimmed().split(QLatin1Char('\t'));
        const QString name = fields.value(0);
        SCOPED_TRACE(name.toStdString());
        ++files;
        bool componentOk = false;
        bool referenceOk = false;
        const auto component
            = modTypelib::LoadComponentFromFile(dir + QLatin1Char('/') + name, componentOk);
        const auto reference
            = modTypelib::LoadReferenceFromFile(dir + QLatin1Char('/') + name, referenceOk);
        EXPECT_EQ(component->Filename(), name);
        EXPECT_EQ(reference->Filename(), name);
        EXPECT_FALSE(component->DesignTime());
        if (fields.value(1) == QLatin1String("none")) {
            EXPECT_FALSE(componentOk);
            EXPECT_FALSE(referenceOk);
            EXPECT_TRUE(component->GUID().isEmpty());
            EXPECT_TRUE(reference->Description().isEmpty());
            continue;
        }
        EXPECT_TRUE(componentOk);
        EXPECT_TRUE(referenceOk);
        EXPECT_EQ(component->GUID(), fields.value(1));
        EXPECT_EQ(reference->GUID(), fields.value(1));
        EXPECT_EQ(component->Version(), fields.value(2) + QLatin1Char('.') + fields.value(3));
        EXPECT_EQ(reference->Version(), component->Version());
        EXPECT_EQ(reference->Description(), fields.value(4));
    }
    EXPECT_EQ(files, 8);
    // Each unreadable file left an error record of its own source, and no box.
    int records = 0;
    for (const QString &record : logRecords())
        records += record.contains(QStringLiteral("modTypelib")) ? 1 : 0;
    EXPECT_EQ(records, 6);
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(AddFromProjectTest, AFileWithoutALibraryIsLoggedWithoutTheErrorBox)
{
    gobjLogFile->setQuiet(false);
    bool ok = true;
    const auto component = modTypelib::LoadComponentFromFile(
        writeFile(QStringLiteral("plain.ocx"), "not a library"), ok);
    EXPECT_FALSE(ok);
    EXPECT_EQ(component->Filename(), QStringLiteral("plain.ocx"));
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_FALSE(gobjLogFile->Quiet());
    ASSERT_FALSE(logRecords().isEmpty());
    EXPECT_TRUE(logRecords().last().contains(QStringLiteral("LoadComponentFromFile")));
}
