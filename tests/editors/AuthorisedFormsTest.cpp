#include "editors/AddFromProject.h"
#include "editors/AddFromProjectForm.h"
#include "editors/AuthorisedComponentForm.h"
#include "editors/AuthorisedReferenceForm.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/AuthorisedComponent.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReference.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString noLibraryWarning
    = u"Unable to extract the type library information from the selected component."_s;

QString typelibFile(const char *name)
{
    return TestEnvironment::sharedDataDir() + u"/typelib/"_s + QLatin1String(name);
}

// The settings the dialogs read their starting folder from, for the length of a test.
class SettingsScope
{
public:
    SettingsScope()
    {
        TestEnvironment::clearSettings();
        gobjAdminData = std::make_shared<QuorinAdminData>();
    }
    ~SettingsScope() { gobjAdminData.reset(); }
};

QByteArray projectUsing(const char *guid, const char *version, const char *file)
{
    return QByteArray("Type=Exe\r\nObject=") + guid + "#" + version + "#0; " + file
           + "\r\nName=\"P\"\r\n";
}

} // namespace

TEST(AuthorisedItemForms, OKNeedsGuidAndFileOrDescriptionAndTheAdviceNeedsVersions)
{
    auto item = std::make_shared<AuthorisedComponent>();
    AuthorisedComponentForm form(item);
    EXPECT_FALSE(form.OKEnabled());
    EXPECT_FALSE(form.AdviceEnabled());
    EXPECT_FALSE(form.ObjectPropertyEnabled());
    EXPECT_TRUE(form.Cancelled());
    // OK while disabled writes nothing.
    EXPECT_FALSE(form.OK());
    EXPECT_TRUE(form.Cancelled());

    // File name and GUID both: that is all OK needs.
    form.setGUID(u"{G}"_s);
    EXPECT_FALSE(form.OKEnabled());
    form.setFilename(u"grid.ocx"_s);
    EXPECT_TRUE(form.OKEnabled());
    form.setFilename(QString());
    EXPECT_FALSE(form.OKEnabled());
    // A reference needs a description instead of the file name.
    AuthorisedReferenceForm reference(std::make_shared<AuthorisedReference>());
    reference.setFilename(u"x.dll"_s);
    reference.setGUID(u"{G}"_s);
    EXPECT_FALSE(reference.OKEnabled());
    reference.setDescription(u"X Library"_s);
    EXPECT_TRUE(reference.OKEnabled());
    reference.setFilename(QString());
    EXPECT_TRUE(reference.OKEnabled());

    // A known item fills the fields; a property macro goes in at the caret, over the selection.
    item->setFilename(u"MSCOMCTL.OCX"_s);
    item->setLibID(u"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}"_s);
    item->setVersionList(u"2.0; 2.1"_s);
    item->setAdvice(u"Use 2.1."_s);
    AuthorisedComponentForm known(item);
    EXPECT_TRUE(known.OKEnabled());
    EXPECT_TRUE(known.AdviceEnabled());
    EXPECT_TRUE(known.ObjectPropertyEnabled());
    const int caret = known.InsertIntoAdvice(known.ObjectPropertyMacro(u"Filename"_s), 4, 3);
    EXPECT_EQ(known.Advice(), u"Use %Component.Filename%."_s);
    EXPECT_EQ(caret, 24);
    known.setVersions(u"2.2"_s);
    ASSERT_TRUE(known.OK());
    EXPECT_FALSE(known.Cancelled());
    EXPECT_EQ(item->VersionList(), u"2.2"_s);
    EXPECT_EQ(item->Advice(), u"Use %Component.Filename%."_s);
    EXPECT_EQ(item->LibID(), u"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}"_s);

    // Clearing the versions clears the advice for good; Cancel then writes nothing.
    AuthorisedComponentForm again(item);
    again.setVersions(QString());
    EXPECT_TRUE(again.Advice().isEmpty());
    EXPECT_FALSE(again.AdviceEnabled());
    EXPECT_FALSE(again.ObjectPropertyEnabled());
    again.setVersions(u"1"_s);
    EXPECT_TRUE(again.AdviceEnabled());
    EXPECT_TRUE(again.Advice().isEmpty());
    again.Cancel();
    EXPECT_TRUE(again.Cancelled());
    EXPECT_EQ(item->VersionList(), u"2.2"_s);
    EXPECT_FALSE(item->Advice().isEmpty());
}

TEST(AuthorisedItemForms, BrowseReadsTheLibraryOrWarnsAndKeepsThePath)
{
    if (!QFileInfo::exists(typelibFile("GridCtl.ocx")))
        GTEST_SKIP() << "no shared type library data";
    SettingsScope settings;
    gobjAdminData->setLastPath(u"/start/"_s);
    ScriptedUserInterface ui;
    auto item = std::make_shared<AuthorisedComponent>();
    AuthorisedComponentForm form(item);

    ui.openAnswers = {typelibFile("GridCtl.ocx")};
    ASSERT_TRUE(form.Browse());
    ASSERT_EQ(ui.fileRequests.size(), 1u);
    EXPECT_EQ(ui.fileRequests[0].fileType, 6);
    EXPECT_EQ(ui.fileRequests[0].folder, u"/start/"_s);
    EXPECT_EQ(form.Filename(), typelibFile("GridCtl.ocx"));
    EXPECT_EQ(form.GUID(), u"{6B1A3F20-5C2D-4E8F-9A10-1B2C3D4E5F60}"_s);
    EXPECT_EQ(form.Versions(), u"1.0"_s);
    EXPECT_TRUE(form.OKEnabled());
    EXPECT_TRUE(form.AdviceEnabled());
    EXPECT_EQ(gobjAdminData->LastPath(), TestEnvironment::sharedDataDir() + u"/typelib/"_s);
    EXPECT_TRUE(ui.messages.empty());

    ui.openAnswers = {typelibFile("NoTypeLib.dll")};
    ASSERT_TRUE(form.Browse());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text, noLibraryWarning);
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(form.Filename(), typelibFile("NoTypeLib.dll"));
    EXPECT_TRUE(form.GUID().isEmpty());
    EXPECT_TRUE(form.Versions().isEmpty());
    EXPECT_FALSE(form.OKEnabled());

    // A cancelled file dialog changes nothing; Cancel after a browse leaves the item alone.
    ui.openAnswers = {std::nullopt};
    EXPECT_FALSE(form.Browse());
    EXPECT_EQ(form.Filename(), typelibFile("NoTypeLib.dll"));
    form.Cancel();
    EXPECT_TRUE(item->Filename().isEmpty());
    EXPECT_TRUE(item->LibID().isEmpty());

    // A reference takes the library's help string as its description.
    auto reference = std::make_shared<AuthorisedReference>();
    AuthorisedReferenceForm referenceForm(reference);
    ui.openAnswers = {typelibFile("ReportLib.tlb")};
    ASSERT_TRUE(referenceForm.Browse());
    EXPECT_EQ(ui.fileRequests.back().fileType, 7);
    EXPECT_EQ(referenceForm.Description(), u"Report Engine 2.5 Type Library"_s);
    EXPECT_EQ(referenceForm.GUID(), u"{0F9E8D7C-6B5A-4938-2716-05F4E3D2C1B0}"_s);
    EXPECT_EQ(referenceForm.Versions(), u"2.5"_s);
    ASSERT_TRUE(referenceForm.OK());
    EXPECT_EQ(reference->Description(), u"Report Engine 2.5 Type Library"_s);
    EXPECT_EQ(reference->Filename(), typelibFile("ReportLib.tlb"));
    EXPECT_EQ(reference->VersionList(), u"2.5"_s);

    // A truncated library: the warning, and the description stays as it was.
    AuthorisedReferenceForm second(reference);
    ui.openAnswers = {typelibFile("Truncated.tlb")};
    ASSERT_TRUE(second.Browse());
    EXPECT_EQ(ui.messages.back().text, noLibraryWarning);
    EXPECT_TRUE(second.GUID().isEmpty());
    EXPECT_EQ(second.Description(), u"Report Engine 2.5 Type Library"_s);
    EXPECT_FALSE(second.OKEnabled());
}

TEST(AddFromProjectForm, TabsListTheCandidatesAndTicksReachThem)
{
    const QString dir = TestEnvironment::makeTempDir();
    SettingsScope settings;
    ScriptedUserInterface ui;
    auto rulebase = std::make_shared<Rulebase>();
    AddFromProject importer;
    importer.setRulebase(rulebase);
    AddFromProjectForm form(importer);
    EXPECT_FALSE(form.OKEnabled());
    EXPECT_TRUE(form.Rows().isEmpty());

    ui.openAnswers = {TestEnvironment::writeFile(
        dir + u"/p.vbp"_s,
        projectUsing("{B0000000-0000-0000-0000-000000000002}", "1.0", "b.ocx")
            + projectUsing("{A0000000-0000-0000-0000-000000000001}", "3.1", "a.ocx"))};
    ASSERT_TRUE(form.Browse());
    EXPECT_EQ(ui.fileRequests[0].fileType, 5);
    EXPECT_EQ(form.File(), dir + u"/p.vbp"_s);
    EXPECT_EQ(gobjAdminData->LastPath(), dir + QLatin1Char('/'));
    EXPECT_EQ(ui.messages.back().text,
              u"2 new components and 3 new references were found for the project 'p.vbp'."_s);
    EXPECT_TRUE(form.OKEnabled());

    QList<AddFromProjectForm::Row> rows = form.Rows();
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[0].text, u"b.ocx"_s);
    EXPECT_EQ(rows[0].key, u"{B0000000-0000-0000-0000-000000000002}"_s);
    EXPECT_TRUE(rows[0].checked);

    // Sorting by a header: ascending first, then descending.
    form.ColumnClick(1);
    EXPECT_EQ(form.Rows()[0].text, u"a.ocx"_s);
    EXPECT_EQ(form.ColumnIcon(1), u"SortAscending"_s);
    form.ColumnClick(1);
    EXPECT_EQ(form.Rows()[0].text, u"b.ocx"_s);
    EXPECT_EQ(form.ColumnIcon(1), u"SortDescending"_s);
    form.ColumnClick(2);
    EXPECT_EQ(form.Rows()[0].version, u"1.0"_s);
    EXPECT_TRUE(form.ColumnIcon(1).isEmpty());

    // Ticks are the candidates' Selected; OK needs one of either tab.
    form.SelectNone();
    EXPECT_EQ(importer.ComponentList()->SelectedCount(), 0);
    EXPECT_TRUE(form.OKEnabled()); // the references are still ticked
    form.setCurrentTab(AddFromProjectForm::ReferencesTab);
    EXPECT_EQ(form.Rows().size(), 3);
    EXPECT_EQ(form.Rows()[0].text, u"Visual Basic For Applications"_s);
    form.SelectNone();
    EXPECT_FALSE(form.OKEnabled());
    form.setItemChecked(u"{FCFB3D2E-A0FA-1068-A738-08002B3371B5}"_s, true);
    EXPECT_TRUE(form.OKEnabled());
    EXPECT_TRUE(
        importer.ReferenceList()->Item(u"{FCFB3D2E-A0FA-1068-A738-08002B3371B5}"_s)->Selected());
    form.SelectAll();
    EXPECT_EQ(importer.ReferenceList()->SelectedCount(), 3);
    EXPECT_EQ(importer.ComponentList()->SelectedCount(), 0);

    EXPECT_TRUE(form.Cancelled());
    form.OK();
    EXPECT_FALSE(form.Cancelled());
}
