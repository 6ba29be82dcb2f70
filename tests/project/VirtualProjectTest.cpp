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

using namespace Qt::StringLiterals;

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
    QDirIterator it(dir, {u"*.vbp"_s, u"*.vbg"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString filename = it.next();
        SCOPED_TRACE(filename.toStdString());
        QStringList projects{filename};
        if (modQuorinUtils::IsVBGFile(filename)) {
            const StringArrayList members = modQuorinUtils::ProjectFileListFromVBG(filename);
            ASSERT_EQ(members.Count(), 3);
            EXPECT_EQ(members.Item(1), dir + u"/Suite/App/Ledger.vbp"_s);
            projects = {members.Item(1), members.Item(2), members.Item(3)};
        }
        for (const QString &name : projects) {
            auto project = std::make_shared<VirtualProject>();
            ASSERT_EQ(project->LoadProject(name), ProjectLoadStatus::Read) << name.toStdString();
            EXPECT_FALSE(project->Name().isEmpty());
            // The section after the project keys is not read as project keys.
            EXPECT_FALSE(project->Properties()->Contains(u"AutoRefresh"_s));
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
    const QString filename = dir + u"/Suite/App/Ledger.vbp"_s;
    ASSERT_EQ(project->LoadProject(filename), ProjectLoadStatus::Read);
    EXPECT_EQ(project->Name(), u"Ledger"_s);
    EXPECT_EQ(project->ProjectType(), u"Exe"_s);

    // Three libraries every project has, then the file's own.
    const auto references = project->References();
    ASSERT_EQ(references->Count(), 5);
    EXPECT_EQ(references->Key(2), u"{EA544A21-C82D-11D1-A3E4-00A0C90AEA82}"_s);
    EXPECT_EQ(references->Item(2)->Filename(), u"MSVBVM60.DLL\\3"_s);
    const auto stdole = references->Item(4);
    EXPECT_EQ(references->Key(4), u"{00020430-0000-0000-C000-000000000046}"_s);
    EXPECT_EQ(stdole->Version(), u"2.0"_s);
    EXPECT_EQ(stdole->LCID(), 0);
    EXPECT_EQ(stdole->Filename(), u"C:\\WINDOWS\\System32\\stdole2.tlb"_s);
    EXPECT_EQ(stdole->Description(), u"OLE Automation"_s);
    EXPECT_EQ(references->Key(5), u"A..\\Core\\LedgerCore.vbp"_s);
    EXPECT_TRUE(references->Item(5)->DesignTime());

    const auto components = project->Components();
    ASSERT_EQ(components->Count(), 2);
    const auto comctl = components->Item(u"{831fdd16-0c5c-11d2-a9fc-0000f8754da1}"_s);
    EXPECT_EQ(comctl->GUID(), u"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}"_s);
    EXPECT_EQ(comctl->Version(), u"2.0"_s);
    EXPECT_EQ(comctl->Filename(), u"MSCOMCTL.OCX"_s);
    EXPECT_EQ(components->Key(2), u"A..\\Controls\\Gauge.vbp"_s);
    EXPECT_TRUE(components->Item(2)->DesignTime());
    EXPECT_EQ(project->RelatedDocs()->Item(u"1"_s), u"..\\README.TXT"_s);

    const auto files = project->SourceFiles();
    ASSERT_EQ(files->Count(), 4);
    EXPECT_EQ(files->Key(1), u"frmMain"_s);
    EXPECT_EQ(files->Key(3), u"frmSettings"_s);
    // Named in another case by the project, found under its real name.
    EXPECT_EQ(files->Item(3)->Filename(), dir + u"/Suite/App/frmSettings.frm"_s);
    EXPECT_EQ(project->FileCount(SourceFileType::Form), 3);
    EXPECT_EQ(project->FileCount(SourceFileType::Module), 1);

    EXPECT_EQ(property(*project, "Startup"), u"Sub Main"_s);
    EXPECT_EQ(property(*project, "FavorPentiumPro"), u"0"_s);
    EXPECT_EQ(property(*project, "FullFilename"), filename);
    EXPECT_EQ(property(*project, "Extension"), u".vbp"_s);
}

// ---- Project lines ----

TEST_F(ProjectReader, ReadingEndsAtTheFirstEmptyLineOrSection)
{
    auto stopped = load("a.vbp", crlf("Type=Exe\n\nName=\"Late\"\nModule=m; m.bas\n"));
    EXPECT_EQ(stopped->ProjectType(), u"Exe"_s);
    EXPECT_EQ(stopped->Name(), QString());
    EXPECT_EQ(stopped->FileCount(SourceFileType::Module), 0);

    // Another tool's section repeats project keys: they don't reach the project.
    auto sectioned = load("b.vbp",
                          crlf("Type=Exe\nName=\"Mine\"\n[MS Transaction Server]\n"
                               "Name=\"Theirs\"\nModule=x; x.bas\nAutoRefresh=1\n"));
    EXPECT_EQ(sectioned->Name(), u"Mine"_s);
    EXPECT_EQ(sectioned->FileCount(SourceFileType::Module), 0);
    EXPECT_FALSE(sectioned->Properties()->Contains(u"AutoRefresh"_s));
}

TEST_F(ProjectReader, KeysAndValuesAreTakenAsTheyStand)
{
    auto project = load("c.vbp",
                        crlf("NAME=\"Upper\"\nName\nTitle=\"Open\nHelpFile=\"\"\ntype=Exe\n"
                             "Type=OleDll\nFavorPentiumPro(tm)=1\nOdd Key= spaced \n"
                             "Command32=a=b\n"));
    EXPECT_EQ(project->Name(), u"Upper"_s);
    const auto properties = project->Properties();
    EXPECT_EQ(properties->Key(1), u"NAME"_s);
    EXPECT_EQ(properties->Item(u"Title"_s).toString(), u"Ope"_s);
    EXPECT_EQ(properties->Item(u"HelpFile"_s).toString(), QString());
    EXPECT_EQ(project->ProjectType(), u"Exe"_s) << "a repeated key keeps its first value";
    EXPECT_EQ(properties->Item(u"FavorPentiumPro"_s).toString(), u"1"_s);
    EXPECT_EQ(properties->Item(u"Odd Key"_s).toString(), u" spaced "_s);
    EXPECT_EQ(properties->Item(u"Command32"_s).toString(), u"a=b"_s);
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
    EXPECT_EQ(references->Item(4)->Description(), u"Lib "_s) << "a '#' ends the description";
    EXPECT_EQ(references->Item(5)->LCID(), 0);
    EXPECT_EQ(references->Key(6), u"A..\\Other\\Other.vbp"_s);
    const auto components = project->Components();
    ASSERT_EQ(components->Count(), 2);
    EXPECT_EQ(components->Item(1)->Filename(), u"quoted.ocx"_s);
    EXPECT_EQ(components->Key(2), u"A..\\Ctl\\Ctl.vbp"_s);

    // The malformed lines are logged and skipped; reading goes on.
    EXPECT_EQ(project->Name(), u"AfterBadLines"_s);
    const QStringList records = logRecords();
    ASSERT_EQ(records.size(), 2);
    EXPECT_TRUE(records[0].contains(u"VirtualProject::AddProjectFileReference"_s));
    EXPECT_TRUE(records[1].contains(u"VirtualProject::AddProjectFileComponent"_s));
}

TEST_F(ProjectReader, FileLinesCountAndBecomeSourceFilesUnlessNoChildItems)
{
    writeFile(u"src/main.frm"_s, crlf("VERSION 5.00\nBegin VB.MDIForm mdiMain\nEnd\n"));
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
    EXPECT_EQ(files->Key(1), u"mdiMain"_s);
    EXPECT_EQ(files->Item(1)->FileType(), SourceFileType::MDIForm);
    // x.frm doesn't exist: no name, so the key is the path; the failure is logged.
    EXPECT_EQ(files->Key(2), path(u"src/x.frm"_s));
    EXPECT_EQ(files->Item(2)->ReviewStatus(), 2);
    EXPECT_EQ(logRecords().size(), 1);
    EXPECT_EQ(project->RelatedDocs()->Item(u"2"_s), u"b.txt"_s);

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
    EXPECT_EQ(property(*project, "Title"), u"Ledger \u2014 \u20AC caf\u00E9"_s);
    EXPECT_EQ(project->Name(), u"Last"_s);
    EXPECT_EQ(load("i.vbp", QByteArray("Type=Exe\rName=\"Mac\"\r"))->Name(), u"Mac"_s);
    EXPECT_EQ(load("j.vbp", QByteArray())->References()->Count(), 3);
}

TEST_F(ProjectReader, StatusTellsWhyAFileWasNotRead)
{
    auto project = std::make_shared<VirtualProject>();
    EXPECT_EQ(project->LoadProject(path(u"none.vbp"_s)), ProjectLoadStatus::NotFound);
    EXPECT_EQ(project->LoadProject(path(u"no folder/none.vbp"_s)), ProjectLoadStatus::NotFound);
    writeFile(u"folder.vbp/x"_s, "x");
    EXPECT_EQ(project->LoadProject(path(u"folder.vbp"_s)), ProjectLoadStatus::NotOpened);
    EXPECT_EQ(project->References()->Count(), 0);
    EXPECT_TRUE(logRecords().isEmpty()) << "the status is the report";

    writeFile(u"Mixed/Case.vbp"_s, crlf("Name=\"M\"\n"));
    EXPECT_EQ(project->LoadProject(path(u"MIXED/case.VBP"_s)), ProjectLoadStatus::Read);
    EXPECT_EQ(project->Name(), u"M"_s);
}

} // namespace
