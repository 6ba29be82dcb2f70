#include "ProjectTestSupport.h"

#include "collections/KeyedArrayList.h"
#include "collections/ObjectKeyedArrayList.h"
#include "collections/StringKeyedArrayList.h"
#include "project/VirtualComponent.h"
#include "project/VirtualProject.h"
#include "project/VirtualReference.h"
#include "project/VirtualSourceFile.h"
#include "project/modQuorinUtils.h"

#include <QDirIterator>

namespace {

class ProjectReader : public ProjectTest
{
protected:
    std::shared_ptr<VirtualProject>
    load(const char *name, const QByteArray &bytes, bool noChildItems = false)
    {
        auto project = std::make_shared<VirtualProject>();
        const QString filename = writeFile(QLatin1String(name), bytes);
        EXPECT_EQ(noChildItems ? project->LoadProjectFile(filename, true)
                               : project->LoadProject(filename),
                  ProjectLoadStatus::Read);
        return project;
    }
};

QString property(const VirtualProject &project, const char *key)
{
    return project.Properties()->Item(QLatin1String(key)).toString();
}

// ---- The shared VB6 projects ----

TEST_F(ProjectReader, EveryProjectAndGroupOfTheSharedDataReadsCleanly)
{
    QUORIN_REQUIRE_VB6_DATA(dir);
    QStringList read;
    QDirIterator it(dir,
                    {QStringLiteral("*.vbp"), QStringLiteral("*.vbg")},
                    QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString filename = it.next();
        SCOPED_TRACE(filename.toStdString());
        QStringList projects{filename};
        if (modQuorinUtils::IsVBGFile(filename)) {
            const StringArrayList members = modQuorinUtils::ProjectFileListFromVBG(filename);
            ASSERT_EQ(members.Count(), 3);
            EXPECT_EQ(members.Item(1), dir + QStringLiteral("/Suite/App/Ledger.vbp"));
            projects = {members.Item(1), members.Item(2), members.Item(3)};
        }
        for (const QString &name : projects) {
            auto project = std::make_shared<VirtualProject>();
            ASSERT_EQ(project->LoadProject(name), ProjectLoadStatus::Read) << name.toStdString();
            EXPECT_FALSE(project->Name().isEmpty());
            // The section after the project keys is not read as project keys.
            EXPECT_FALSE(project->Properties()->Contains(QStringLiteral("AutoRefresh")));
            for (qint32 i = 1; i <= project->SourceFiles()->Count(); ++i) {
                const auto file = project->SourceFiles()->Item(i);
                EXPECT_EQ(file->ReviewStatus(), 0) << file->Filename().toStdString();
                EXPECT_NE(file->FileType(), 0);
                EXPECT_EQ(file->Project(), project);
            }
            read.append(name);
        }
    }
    EXPECT_EQ(read.size(), 8); // five projects, and three again through the group
    EXPECT_TRUE(logRecords().isEmpty()) << logRecords().join(QLatin1Char('\n')).toStdString();
}

TEST_F(ProjectReader, LedgerListsReferencesComponentsAndFilesAsTheFileHoldsThem)
{
    QUORIN_REQUIRE_VB6_DATA(dir);
    auto project = std::make_shared<VirtualProject>();
    const QString filename = dir + QStringLiteral("/Suite/App/Ledger.vbp");
    ASSERT_EQ(project->LoadProject(filename), ProjectLoadStatus::Read);
    EXPECT_EQ(project->Name(), QStringLiteral("Ledger"));
    EXPECT_EQ(project->ProjectType(), QStringLiteral("Exe"));

    // Three libraries every project has, then the file's own.
    const auto references = project->References();
    ASSERT_EQ(references->Count(), 5);
    EXPECT_EQ(references->Key(2), QStringLiteral("{EA544A21-C82D-11D1-A3E4-00A0C90AEA82}"));
    EXPECT_EQ(references->Item(2)->Filename(), QStringLiteral("MSVBVM60.DLL\\3"));
    const auto stdole = references->Item(4);
    EXPECT_EQ(references->Key(4), QStringLiteral("{00020430-0000-0000-C000-000000000046}"));
    EXPECT_EQ(stdole->Version(), QStringLiteral("2.0"));
    EXPECT_EQ(stdole->LCID(), 0);
    EXPECT_EQ(stdole->Filename(), QStringLiteral("C:\\WINDOWS\\System32\\stdole2.tlb"));
    EXPECT_EQ(stdole->Description(), QStringLiteral("OLE Automation"));
    EXPECT_EQ(references->Key(5), QStringLiteral("A..\\Core\\LedgerCore.vbp"));
    EXPECT_TRUE(references->Item(5)->DesignTime());

    const auto components = project->Components();
    ASSERT_EQ(components->Count(), 2);
    const auto comctl = components->Item(QStringLiteral("{831fdd16-0c5c-11d2-a9fc-0000f8754da1}"));
    EXPECT_EQ(comctl->GUID(), QStringLiteral("{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}"));
    EXPECT_EQ(comctl->Version(), QStringLiteral("2.0"));
    EXPECT_EQ(comctl->Filename(), QStringLiteral("MSCOMCTL.OCX"));
    EXPECT_EQ(components->Key(2), QStringLiteral("A..\\Controls\\Gauge.vbp"));
    EXPECT_TRUE(components->Item(2)->DesignTime());
    EXPECT_EQ(project->RelatedDocs()->Item(QStringLiteral("1")), QStringLiteral("..\\README.TXT"));

    const auto files = project->SourceFiles();
    ASSERT_EQ(files->Count(), 4);
    EXPECT_EQ(files->Key(1), QStringLiteral("frmMain"));
    EXPECT_EQ(files->Key(3), QStringLiteral("frmSettings"));
    // Named in another case by the project, found under its real name.
    EXPECT_EQ(files->Item(3)->Filename(), dir + QStringLiteral("/Suite/App/frmSettings.frm"));
    EXPECT_EQ(project->FileCount(SourceFileType::Form), 3);
    EXPECT_EQ(project->FileCount(SourceFileType::Module), 1);

    EXPECT_EQ(property(*project, "Startup"), QStringLiteral("Sub Main"));
    EXPECT_EQ(property(*project, "FavorPentiumPro"), QStringLiteral("0"));
    EXPECT_EQ(property(*project, "FullFilename"), filename);
    EXPECT_EQ(property(*project, "Extension"), QStringLiteral(".vbp"));
}

TEST_F(ProjectReader, OtherSharedProjectsGiveTheirControlsAndTypedFiles)
{
    QUORIN_REQUIRE_VB6_DATA(dir);
    auto gauge = std::make_shared<VirtualProject>();
    ASSERT_EQ(gauge->LoadProject(dir + QStringLiteral("/Suite/Controls/Gauge.vbp")), 0);
    EXPECT_EQ(gauge->SourceFiles()->Item(QStringLiteral("Gauge"))->FileType(),
              SourceFileType::UserControl);
    EXPECT_EQ(gauge->SourceFiles()->Item(QStringLiteral("ppgGauge"))->FileType(),
              SourceFileType::PropertyPage);

    auto report = std::make_shared<VirtualProject>();
    ASSERT_EQ(report->LoadProject(dir + QStringLiteral("/Tools/Report Builder/Report Builder.vbp")),
              0);
    const auto dialogs
        = report->Components()->Item(QStringLiteral("{F9043C88-F6F2-101A-A3C9-08002B2F49FB}"));
    EXPECT_EQ(dialogs->Version(), QStringLiteral("1.2"));
    EXPECT_EQ(dialogs->Filename(), QStringLiteral("comdlg32.ocx"));
    // The missing module is named by its line, so the reader never opens it.
    const auto gone = report->SourceFiles()->Item(QStringLiteral("modGone"));
    EXPECT_EQ(gone->FileType(), SourceFileType::Module);
    EXPECT_EQ(gone->Filename(), dir + QStringLiteral("/Tools/Report Builder/modGone.bas"));
}

// ---- Project lines ----

TEST_F(ProjectReader, ReadingEndsAtTheFirstEmptyLineOrSection)
{
    auto stopped = load("a.vbp", crlf("Type=Exe\n\nName=\"Late\"\nModule=m; m.bas\n"));
    EXPECT_EQ(stopped->ProjectType(), QStringLiteral("Exe"));
    EXPECT_EQ(stopped->Name(), QString());
    EXPECT_EQ(stopped->FileCount(SourceFileType::Module), 0);

    // Another tool's section repeats project keys: they don't reach the project.
    auto sectioned = load("b.vbp",
                          crlf("Type=Exe\nName=\"Mine\"\n[MS Transaction Server]\n"
                               "Name=\"Theirs\"\nModule=x; x.bas\nAutoRefresh=1\n"));
    EXPECT_EQ(sectioned->Name(), QStringLiteral("Mine"));
    EXPECT_EQ(sectioned->FileCount(SourceFileType::Module), 0);
    EXPECT_FALSE(sectioned->Properties()->Contains(QStringLiteral("AutoRefresh")));
}

TEST_F(ProjectReader, KeysAndValuesAreTakenAsTheyStand)
{
    auto project = load("c.vbp",
                        crlf("NAME=\"Upper\"\nName\nTitle=\"Open\nHelpFile=\"\"\ntype=Exe\n"
                             "Type=OleDll\nFavorPentiumPro(tm)=1\nOdd Key= spaced \n"
                             "Command32=a=b\n"));
    EXPECT_EQ(project->Name(), QStringLiteral("Upper"));
    const auto properties = project->Properties();
    EXPECT_EQ(properties->Key(1), QStringLiteral("NAME"));
    EXPECT_EQ(properties->Item(QStringLiteral("Title")).toString(), QStringLiteral("Ope"));
    EXPECT_EQ(properties->Item(QStringLiteral("HelpFile")).toString(), QString());
    EXPECT_EQ(project->ProjectType(), QStringLiteral("Exe"))
        << "a repeated key keeps its first value";
    EXPECT_EQ(properties->Item(QStringLiteral("FavorPentiumPro")).toString(), QStringLiteral("1"));
    EXPECT_EQ(properties->Item(QStringLiteral("Odd Key")).toString(), QStringLiteral(" spaced "));
    EXPECT_EQ(properties->Item(QStringLiteral("Command32")).toString(), QStringLiteral("a=b"));
    EXPECT_TRUE(logRecords().isEmpty());
}

TEST_F(ProjectReader, ReferencesAndComponentsSplitIntoTheirParts)
{
    auto project = load("d.vbp",
                        crlf("Reference=*\\G{A1}#1.5#409#C:\\x\\a b.tlb#Lib # One\n"
                             "Reference=*\\G{A2}#2.0#zz#b.tlb#Bad LCID\n"
                             "Reference=*\\G{A3}#2.0#0#too few\n"
                             "Reference=*\\A..\\Other\\Other.vbp\n"
                             "Object={B1}#1.1#0; \"quoted.ocx\"\n"
                             "Object={B2}#1.1#0 no-semicolon.ocx\n"
                             "Object=*\\A..\\Ctl\\Ctl.vbp\nName=\"AfterBadLines\"\n"));
    const auto references = project->References();
    ASSERT_EQ(references->Count(), 6);
    EXPECT_EQ(references->Item(4)->LCID(), 0x409);
    EXPECT_EQ(references->Item(4)->Filename(), QStringLiteral("C:\\x\\a b.tlb"));
    EXPECT_EQ(references->Item(4)->Description(), QStringLiteral("Lib "))
        << "a '#' ends the description";
    EXPECT_EQ(references->Item(5)->LCID(), 0);
    EXPECT_EQ(references->Key(6), QStringLiteral("A..\\Other\\Other.vbp"));
    const auto components = project->Components();
    ASSERT_EQ(components->Count(), 2);
    EXPECT_EQ(components->Item(1)->Filename(), QStringLiteral("quoted.ocx"));
    EXPECT_EQ(components->Key(2), QStringLiteral("A..\\Ctl\\Ctl.vbp"));

    // The malformed lines are logged and skipped; reading goes on.
    EXPECT_EQ(project->Name(), QStringLiteral("AfterBadLines"));
    const QStringList records = logRecords();
    ASSERT_EQ(records.size(), 2);
    EXPECT_TRUE(records[0].contains(QStringLiteral("VirtualProject::AddProjectFileReference")));
    EXPECT_TRUE(records[1].contains(QStringLiteral("VirtualProject::AddProjectFileComponent")));
}

TEST_F(ProjectReader, FileLinesCountAndBecomeSourceFilesUnlessNoChildItems)
{
    writeFile(QStringLiteral("src/main.frm"),
              crlf("VERSION 5.00\nBegin VB.MDIForm mdiMain\nEnd\n"));
    const QByteArray lines = crlf("Form=MAIN.FRM\nMDIForm=x.frm\nDesigner=d; d.dsr\n"
                                  "UserDocument=u; u.dob\nReference=*\\G{A}#1.0#0#a.tlb#A\n"
                                  "RelatedDoc=a.txt\nRelatedDoc=b.txt\n");
    auto project = load("src/e.vbp", lines);
    EXPECT_EQ(project->FileCount(SourceFileType::Form), 2);
    EXPECT_EQ(project->FileCount(SourceFileType::Designer), 1);
    EXPECT_EQ(project->FileCount(SourceFileType::UserDocument), 1);
    EXPECT_EQ(project->FileCount(9), 0);
    const auto files = project->SourceFiles();
    ASSERT_EQ(files->Count(), 4);
    EXPECT_EQ(files->Key(1), QStringLiteral("mdiMain"));
    EXPECT_EQ(files->Item(1)->FileType(), SourceFileType::MDIForm);
    // x.frm doesn't exist: no name, so the key is the path; the failure is logged.
    EXPECT_EQ(files->Key(2), path(QStringLiteral("src/x.frm")));
    EXPECT_EQ(files->Item(2)->ReviewStatus(), 2);
    EXPECT_EQ(logRecords().size(), 1);
    EXPECT_EQ(project->RelatedDocs()->Item(QStringLiteral("2")), QStringLiteral("b.txt"));

    auto counted = load("src/f.vbp", lines, true);
    EXPECT_EQ(counted->FileCount(SourceFileType::Form), 2);
    EXPECT_EQ(counted->References()->Count(), 0);
    EXPECT_EQ(counted->SourceFiles()->Count(), 0);
    EXPECT_EQ(counted->RelatedDocs()->Count(), 0);
    EXPECT_EQ(logRecords().size(), 1) << "x.frm is not opened again";
}

TEST_F(ProjectReader, TextEncodingsAndLineEndsOfRealFiles)
{
    // Windows-1252 (0x97 em dash, 0x80 euro, 0xE9 e acute); LF ends; no final line end.
    auto project
        = load("h.vbp", QByteArray("Type=Exe\nTitle=\"Ledger \x97 \x80 caf\xE9\"\nName=\"Last\""));
    EXPECT_EQ(property(*project, "Title"), QStringLiteral("Ledger \u2014 \u20AC caf\u00E9"));
    EXPECT_EQ(project->Name(), QStringLiteral("Last"));
    EXPECT_EQ(load("i.vbp", QByteArray("Type=Exe\rName=\"Mac\"\r"))->Name(), QStringLiteral("Mac"));
    EXPECT_EQ(load("j.vbp", QByteArray())->References()->Count(), 3);
}

TEST_F(ProjectReader, StatusTellsWhyAFileWasNotRead)
{
    auto project = std::make_shared<VirtualProject>();
    EXPECT_EQ(project->LoadProject(path(QStringLiteral("none.vbp"))), ProjectLoadStatus::NotFound);
    EXPECT_EQ(project->LoadProject(path(QStringLiteral("no folder/none.vbp"))),
              ProjectLoadStatus::NotFound);
    writeFile(QStringLiteral("folder.vbp/x"), "x");
    EXPECT_EQ(project->LoadProject(path(QStringLiteral("folder.vbp"))),
              ProjectLoadStatus::NotOpened);
    EXPECT_EQ(project->References()->Count(), 0);
    EXPECT_TRUE(logRecords().isEmpty()) << "the status is the report";

    writeFile(QStringLiteral("Mixed/Case.vbp"), crlf("Name=\"M\"\n"));
    EXPECT_EQ(project->LoadProject(path(QStringLiteral("MIXED/case.VBP"))),
              ProjectLoadStatus::Read);
    EXPECT_EQ(project->Name(), QStringLiteral("M"));
}

} // namespace
