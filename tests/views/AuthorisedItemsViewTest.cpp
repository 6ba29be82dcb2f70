#include "ViewTestSupport.h"

#include "application/Application.h"
#include "application/ToolDispatcher.h"
#include "editors/AddFromProjectForm.h"
#include "editors/AuthorisedComponentForm.h"
#include "editors/AuthorisedReferenceForm.h"
#include "editors/IFormFactory.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinData.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/RuleLists.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "views/AuthorisedItemsView.h"
#include "views/ViewFactory.h"
#include "views/modViewCommon.h"

#include "../typelib/TypeLibSamples.h"
#include "support/TestEnvironment.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

const QString comctl = u"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}"_s;
const QString comct2 = u"{86CF1D34-0C5F-11D2-A9FC-0000F8754DA1}"_s;
const QString gridGuid = u"{6B1A3F20-5C2D-4E8F-9A10-1B2C3D4E5F60}"_s;
const QString reportGuid = u"{0F9E8D7C-6B5A-4938-2716-05F4E3D2C1B0}"_s;
const QString dropMessage
    = u"Only Visual Basic project files (*.vbp or *.vbg) or ActiveX component files (*.dll, *.exe, "
      u"*.ocx, *.tlb, *.olb) can be accepted."_s;

// The dialogs of this view, run by script: each cancels unless told what to do.
class ScriptedForms final : public IFormFactory
{
public:
    ScriptedForms() { install(this); }
    ~ScriptedForms() override { install(nullptr); }

    bool runAuthorisedComponent(AuthorisedComponentForm &form) override
    {
        ++componentRuns;
        component ? component(form) : form.Cancel();
        return !form.Cancelled();
    }
    bool runAuthorisedReference(AuthorisedReferenceForm &form) override
    {
        ++referenceRuns;
        reference ? reference(form) : form.Cancel();
        return !form.Cancelled();
    }
    bool runAddFromProject(AddFromProjectForm &form) override
    {
        ++importRuns;
        import ? import(form) : form.OK();
        return !form.Cancelled();
    }

    std::function<void(AuthorisedComponentForm &)> component;
    std::function<void(AuthorisedReferenceForm &)> reference;
    std::function<void(AddFromProjectForm &)> import;
    int componentRuns = 0;
    int referenceRuns = 0;
    int importRuns = 0;
};

// The local data folder, where the report of files that are not ActiveX goes.
class DataFolderScope
{
public:
    DataFolderScope()
        : folder(TestEnvironment::makeTempDir() + QLatin1Char('/'))
    {
        gobjQuorinData = std::make_shared<QuorinData>();
        gobjQuorinData->setLocalDataPath(folder);
    }
    ~DataFolderScope() { gobjQuorinData.reset(); }
    QString folder;
};

struct ShownItems : ShownView<AuthorisedItemsView>
{
    void click(const char *key) { tree().click(tree().find(QLatin1String(key))); }
    int row(const QString &key) { return list().find(key); }
    bool tool(const char *id) const { return form.toolEnabled(QLatin1String(id)); }

    ScriptedForms forms;
};

QString typelibFile(const char *name)
{
    return TestEnvironment::sharedDataDir() + u"/typelib/"_s + QLatin1String(name);
}

using TestEnvironment::writeFile;

} // namespace

TEST(AuthorisedItemsView, ShowsThreeNodesEachWithAListOfItsOwnShape)
{
    ShownItems s;
    const MemoryTreeControl &tree = s.tree();
    MemoryListControl &list = s.list();
    ASSERT_EQ(tree.count(), 3);
    EXPECT_EQ(tree.text(1), u"Authorised Components (4)"_s);
    EXPECT_EQ(tree.text(2), u"Authorised References (4)"_s);
    EXPECT_EQ(tree.text(3), u"Unauthorised Keywords (20)"_s);
    EXPECT_EQ(tree.image(2), u"Reference"_s);
    EXPECT_TRUE(tree.bold(3));
    EXPECT_EQ(tree.parent(3), 0);

    // The components first.
    EXPECT_EQ(s.view->CurrentNodeKey(), u"AC"_s);
    ASSERT_EQ(list.count(), 4);
    const int grid = s.row(comctl);
    EXPECT_EQ(list.text(grid), u"MSCOMCTL.OCX"_s);
    EXPECT_EQ(list.subItemText(grid, 1), u"2.0; 2.1; 2.2"_s);
    EXPECT_EQ(list.subItemText(grid, 2), comctl);
    EXPECT_EQ(list.smallIcon(grid), 1);
    EXPECT_EQ(list.subItemText(s.row(comct2), 1), u"<All Versions>"_s);
    EXPECT_TRUE(s.rulebase->AuthorisedComponents()->Item(comct2)->VersionList().isEmpty());
    EXPECT_EQ(list.selectedItem(), 1);
    EXPECT_EQ(s.form.listHeaderImage, u"Component"_s);
    // Items that are no rules can be deleted and opened, never cloned or switched.
    EXPECT_TRUE(s.tool("tlDeleteRule"));
    EXPECT_FALSE(s.tool("tlCloneRule"));
    EXPECT_FALSE(s.tool("tlRuleInactive"));
    EXPECT_EQ(s.view->ItemsActiveState(), 4);
    EXPECT_FALSE(s.form.noItemsVisible);
    list.click(grid);
    EXPECT_EQ(s.form.documentation,
              u"Authorised Component:\r\n"_s
                  + s.rulebase->AuthorisedComponents()->Item(comctl)->Advice());

    s.click("AR");
    const QString ole = u"{00020430-0000-0000-C000-000000000046}"_s;
    EXPECT_EQ(list.text(s.row(ole)), u"OLE Automation"_s);
    EXPECT_EQ(list.subItemText(s.row(ole), 2), u"stdole2.tlb"_s);
    EXPECT_EQ(list.subItemText(s.row(ole), 3), ole);
    EXPECT_EQ(list.smallIcon(s.row(ole)), 2);
    list.click(s.row(ole));
    EXPECT_TRUE(s.form.documentation.startsWith(u"Authorised Reference:\r\nReferenced by every"_s));

    s.click("UK");
    EXPECT_EQ(list.columnAlignment(4), ColumnAlignment::Right);
    EXPECT_EQ(list.count(), 20);
    EXPECT_EQ(s.form.statusText, u"20 Items (1 Inactive)"_s);
    EXPECT_TRUE(s.tool("tlCloneRule"));
    EXPECT_EQ(s.view->ItemsActiveState(), 1);
    int inactive = 0;
    for (int row = 1; row <= list.count(); ++row)
        inactive = list.foreColor(row) == modViewCommon::InactiveColour ? row : inactive;
    ASSERT_NE(inactive, 0);
    list.moveOver(inactive);
    EXPECT_EQ(list.toolTipText(),
              u"The rule for this unauthorised keyword is not active and "
              u"therefore will not be enforced."_s);
    list.moveOver(inactive == 1 ? 2 : 1);
    EXPECT_TRUE(list.toolTipText().isEmpty());
    list.click(inactive);
    EXPECT_EQ(
        s.form.documentation,
        s.rulebase->RuleLists()->UnauthorisedKeywords()->Item(list.key(inactive))->Description());

    // Commands of rules do nothing on the other nodes.
    s.click("AC");
    list.click(1);
    s.view->ActivateItems(false);
    s.view->CloneItems();
    EXPECT_EQ(list.foreColor(1), list.foreColor());
    EXPECT_EQ(s.rulebase->RuleLists()->UnauthorisedKeywords()->Count(), 20);
}

TEST(AuthorisedItemsView, DeleteAsksThenRemovesFromTheRulebaseAndTheList)
{
    ShownItems s;
    MemoryListControl &list = s.list();
    list.click(1);
    list.select(2, true);
    const QString first = list.key(1);
    s.ui.answers = {MessageResult::No};
    s.view->DeleteItems();
    ASSERT_EQ(s.ui.messages.size(), 1u);
    EXPECT_EQ(s.ui.messages[0].text, u"Are you sure you wish to delete the selected item(s)?"_s);
    EXPECT_EQ(s.ui.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(s.ui.messages[0].icon, MessageIcon::Question);
    EXPECT_EQ(list.count(), 4);
    EXPECT_FALSE(s.rulebase->AuthorisedComponents()->Dirty());

    s.ui.answers = {MessageResult::Yes};
    s.view->DeleteItems();
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.find(first), 0);
    EXPECT_FALSE(s.rulebase->AuthorisedComponents()->Contains(first));
    EXPECT_EQ(s.rulebase->AuthorisedComponents()->Count(), 2);
    EXPECT_EQ(s.tree().text(1), u"Authorised Components (2)"_s);
    EXPECT_TRUE(s.rulebase->Dirty());

    list.click(1);
    s.ui.answers = {MessageResult::Yes};
    s.view->DeleteItems();
    EXPECT_EQ(s.form.statusText, u"1 Item"_s);
    list.click(1);
    s.ui.answers = {MessageResult::Yes};
    s.view->DeleteItems();
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(s.tree().text(1), u"Authorised Components"_s);
    EXPECT_FALSE(s.tree().bold(1));
    EXPECT_TRUE(s.form.noItemsVisible);
    EXPECT_FALSE(s.tool("tlDeleteRule"));
    EXPECT_FALSE(s.tool("tlOpenRule"));
    // With no row selected nothing is asked.
    s.view->DeleteItems();
    EXPECT_EQ(s.ui.messages.size(), 4u);

    s.click("UK");
    const QString keyword = list.key(1);
    list.click(1);
    s.ui.answers = {MessageResult::Yes};
    s.view->DeleteItems();
    EXPECT_FALSE(s.rulebase->RuleLists()->UnauthorisedKeywords()->Contains(keyword));
    EXPECT_EQ(s.tree().text(3), u"Unauthorised Keywords (19)"_s);
}

TEST(AuthorisedItemsView, OpenEditsTheItemOfTheRowAndCancelLeavesIt)
{
    ShownItems s;
    MemoryListControl &list = s.list();
    const int row = s.row(comctl);
    list.click(row);
    s.view->OpenItem(); // the script cancels
    EXPECT_EQ(s.forms.componentRuns, 1);
    EXPECT_EQ(list.subItemText(row, 1), u"2.0; 2.1; 2.2"_s);
    EXPECT_FALSE(s.rulebase->Dirty());

    s.forms.component = [](AuthorisedComponentForm &form) {
        EXPECT_EQ(form.Filename(), u"MSCOMCTL.OCX"_s);
        form.setVersions(QString());
        form.setFilename(u"MSCOMCTL2.OCX"_s);
        form.OK();
    };
    s.view->OpenItem();
    EXPECT_EQ(list.text(row), u"MSCOMCTL2.OCX"_s);
    EXPECT_EQ(list.subItemText(row, 1), u"<All Versions>"_s);
    EXPECT_EQ(list.key(row), comctl);
    EXPECT_TRUE(s.rulebase->AuthorisedComponents()->Item(comctl)->Advice().isEmpty());
    EXPECT_EQ(s.form.documentation, u"Authorised Component:\r\n"_s);
    // The item has no flag of its own, yet the edit must not be lost on closing.
    EXPECT_TRUE(s.rulebase->Dirty());

    s.click("AR");
    list.click(1);
    s.forms.reference = [](AuthorisedReferenceForm &form) {
        form.setDescription(u"Renamed"_s);
        form.setAdvice(u"New advice"_s);
        form.OK();
    };
    s.view->OpenItem();
    EXPECT_EQ(list.text(1), u"Renamed"_s);
    EXPECT_EQ(s.form.documentation, u"Authorised Reference:\r\nNew advice"_s);

    s.click("UK");
    s.launcher.edit
        = [](IRule &rule) { static_cast<UnauthorisedKeyword &>(rule).setTitle(u"Edited"_s); };
    list.click(2);
    s.view->OpenItem();
    EXPECT_EQ(s.launcher.opened, 1);
    EXPECT_EQ(list.subItemText(2, 1), u"Edited"_s);
}

TEST(AuthorisedItemsView, NewItemsComeThroughTheApplicationOnlyWhileThisViewIsCurrent)
{
    ViewTest::AdminDataScope settings;
    ScriptedUserInterface ui;
    ScriptedForms forms;
    MemoryMainForm form;
    Application app(&form, createView);
    ASSERT_TRUE(
        app.OpenRulebase(Application::OpenMode::CommandLine, TestEnvironment::sampleRulebase()));
    const auto &rulebase = app.rulebase();
    forms.component = [](AuthorisedComponentForm &f) {
        f.setFilename(u"new.ocx"_s);
        f.setGUID(u"{11111111-2222-3333-4444-555555555555}"_s);
        f.setVersions(u"1.0"_s);
        f.OK();
    };
    // Another view: the command does nothing.
    EXPECT_TRUE(ExecuteTool(app, u"tlAuthorisedComponent"_s));
    EXPECT_EQ(forms.componentRuns, 0);

    app.SwitchView(u"tlAuthorisedItems"_s);
    ASSERT_NE(dynamic_cast<AuthorisedItemsView *>(app.CurrentView()), nullptr);
    EXPECT_EQ(form.helpContext, 67);
    EXPECT_TRUE(form.toolEnabled(u"tlAddFromProject"_s));
    ExecuteTool(app, u"tlAuthorisedComponent"_s);
    EXPECT_EQ(forms.componentRuns, 1);
    EXPECT_EQ(rulebase->AuthorisedComponents()->Count(), 5);
    EXPECT_EQ(form.listControl.count(), 5);
    EXPECT_EQ(form.treeControl.text(1), u"Authorised Components (5)"_s);

    // The same GUID again is refused, and said so.
    ExecuteTool(app, u"tlAuthorisedComponent"_s);
    EXPECT_EQ(rulebase->AuthorisedComponents()->Count(), 5);
    ASSERT_FALSE(ui.messages.empty());
    EXPECT_TRUE(ui.messages.back().text.contains(u"{11111111-2222-3333-4444-555555555555}"_s));

    // A reference while the components show: stored and counted, the list unchanged.
    forms.reference = [](AuthorisedReferenceForm &f) {
        f.setDescription(u"New Library"_s);
        f.setGUID(u"{99999999-2222-3333-4444-555555555555}"_s);
        f.OK();
    };
    ExecuteTool(app, u"tlAuthorisedReference"_s);
    EXPECT_EQ(rulebase->AuthorisedReferences()->Count(), 5);
    EXPECT_EQ(form.listControl.count(), 5);
    EXPECT_EQ(form.treeControl.text(2), u"Authorised References (5)"_s);

    // Import through the dialog: browse to a project, keep its components only.
    const QString dir = TestEnvironment::makeTempDir();
    ui.openAnswers = {writeFile(
        dir + u"/p.vbp"_s,
        "Type=Exe\r\nObject={831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.5#0; MSCOMCTL.OCX\r\n"
        "Object={ABCDEF00-0000-0000-0000-000000000001}#1.0#0; fresh.ocx\r\nName=\"P\"\r\n")};
    forms.import = [](AddFromProjectForm &f) {
        EXPECT_FALSE(f.OKEnabled());
        ASSERT_TRUE(f.Browse());
        f.setCurrentTab(AddFromProjectForm::ReferencesTab);
        f.SelectNone();
        EXPECT_TRUE(f.OKEnabled());
        f.OK();
    };
    ExecuteTool(app, u"tlAddFromProject"_s);
    EXPECT_EQ(forms.importRuns, 1);
    EXPECT_EQ(ui.messages.back().text,
              u"2 new components and 3 new references were found for the project 'p.vbp'."_s);
    EXPECT_EQ(rulebase->AuthorisedComponents()->Item(comctl)->VersionList(),
              u"2.0; 2.1; 2.2; 2.5"_s);
    EXPECT_EQ(form.listControl.subItemText(form.listControl.find(comctl), 1),
              u"2.0; 2.1; 2.2; 2.5"_s);
    EXPECT_NE(form.listControl.find(u"{ABCDEF00-0000-0000-0000-000000000001}"_s), 0);
    EXPECT_EQ(rulebase->AuthorisedComponents()->Count(), 6);
    EXPECT_EQ(rulebase->AuthorisedReferences()->Count(), 5);
    EXPECT_EQ(form.treeControl.text(1), u"Authorised Components (6)"_s);

    // A cancelled import changes nothing.
    forms.import = [](AddFromProjectForm &f) { f.Cancel(); };
    ExecuteTool(app, u"tlAddFromProject"_s);
    EXPECT_EQ(rulebase->AuthorisedComponents()->Count(), 6);

    app.TerminateApplication();
    EXPECT_FALSE(form.toolEnabled(u"tlAddFromProject"_s));
    EXPECT_FALSE(form.toolEnabled(u"tlAuthorisedReference"_s));
    EXPECT_TRUE(form.treeTitle.isEmpty());
}

TEST(AuthorisedItemsView, DroppedFilesAreTakenAsProjectsElseAsActiveXElseRefused)
{
    ShownItems s;
    EXPECT_TRUE(AuthorisedItemsView::IsComponentFile(QStringLiteral("C:\\x\\a.Dll")));
    EXPECT_TRUE(AuthorisedItemsView::IsComponentFile(u"b.olb"_s));
    EXPECT_FALSE(AuthorisedItemsView::IsComponentFile(u"c.txt"_s));
    EXPECT_FALSE(AuthorisedItemsView::IsComponentFile(u"d.vbp"_s));
    EXPECT_FALSE(AuthorisedItemsView::IsComponentFile(QString()));
    EXPECT_TRUE(s.view->AcceptsFileDrops());

    s.view->FilesDropped({u"/tmp/readme.txt"_s, u"/tmp/x.bas"_s});
    ASSERT_EQ(s.ui.messages.size(), 1u);
    EXPECT_EQ(s.ui.messages[0].text, dropMessage);
    EXPECT_EQ(s.ui.messages[0].icon, MessageIcon::Information);

    // One project among ActiveX files: the project alone is read.
    const QString dir = TestEnvironment::makeTempDir();
    const QString project
        = writeFile(dir + u"/p.VBP"_s,
                    "Type=Exe\r\nObject={ABCDEF00-0000-0000-0000-000000000002}#1.0#0; one.ocx\r\n");
    s.view->FilesDropped({typelibFile("Reports.dll"), project, typelibFile("NoTypeLib.dll")});
    EXPECT_EQ(s.forms.importRuns, 1);
    EXPECT_EQ(s.ui.messages.back().text,
              u"1 new component and 3 new references were found for the selected projects."_s);
    EXPECT_FALSE(s.rulebase->AuthorisedReferences()->Contains(reportGuid));
    EXPECT_EQ(s.list().count(), 5);
    EXPECT_EQ(s.tree().text(2), u"Authorised References (7)"_s);
    EXPECT_EQ(s.ui.unscriptedQuestions, 0);

    // Without a rulebase nothing is taken.
    AuthorisedItemsView bare;
    EXPECT_FALSE(bare.AcceptsFileDrops());
    bare.FilesDropped({project});
    EXPECT_EQ(s.forms.importRuns, 1);
}

TEST(AuthorisedItemsView, ActiveXFilesBecomeComponentsAndReferencesAndTheRestAreReported)
{
    if (!QFileInfo::exists(typelibFile("GridCtl.ocx")))
        GTEST_SKIP() << "no shared type library data";
    ShownItems s;
    DataFolderScope data;
    const QString dir = TestEnvironment::makeTempDir();
    // A control without a library is passed over without a word.
    const QString badControl = writeFile(dir + u"/Bad.ocx"_s, "text");
    s.ui.answers = {MessageResult::Yes};
    s.view->AddAXComponentsFromFile({typelibFile("GridCtl.ocx"),
                                     typelibFile("ReportLib.tlb"),
                                     badControl,
                                     typelibFile("NoTypeLib.dll"),
                                     typelibFile("Text.tlb")});

    MemoryListControl &list = s.list();
    ASSERT_NE(s.row(gridGuid), 0);
    EXPECT_EQ(list.text(s.row(gridGuid)), u"GridCtl.ocx"_s);
    EXPECT_EQ(list.subItemText(s.row(gridGuid), 1), u"1.0"_s);
    const auto report = s.rulebase->AuthorisedReferences()->Item(reportGuid);
    EXPECT_EQ(report->Description(), u"Report Engine 2.5 Type Library"_s);
    EXPECT_EQ(report->Filename(), u"ReportLib.tlb"_s);
    EXPECT_EQ(report->VersionList(), u"2.5"_s);
    EXPECT_EQ(s.tree().text(1), u"Authorised Components (5)"_s);
    EXPECT_EQ(s.tree().text(2), u"Authorised References (5)"_s);

    ASSERT_EQ(s.ui.messages.size(), 1u);
    EXPECT_EQ(s.ui.messages[0].text,
              u"Of the files selected, 2 are not ActiveX components.  Would you like "
              u"to see the details?"_s);
    EXPECT_EQ(s.ui.messages[0].icon, MessageIcon::Question);
    const QString reportFile = data.folder + u"NonActiveXFiles.txt"_s;
    ASSERT_EQ(s.ui.opened, QStringList{reportFile});
    QFile written(reportFile);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(written.readAll());
    EXPECT_TRUE(text.contains(u"\r\nTHE FOLLOWING ARE NOT ACTIVEX COMPONENTS:\r\n"_s));
    EXPECT_TRUE(text.contains(typelibFile("NoTypeLib.dll")));
    EXPECT_TRUE(text.contains(typelibFile("Text.tlb")));
    EXPECT_FALSE(text.contains(u"Bad.ocx"_s));

    // One file alone is spoken of in the singular; No opens nothing.
    s.ui.answers = {MessageResult::No};
    s.view->AddAXComponentsFromFile({typelibFile("Truncated.tlb")});
    EXPECT_EQ(s.ui.messages.back().text,
              u"Of the files selected, 1 is not an ActiveX component.  Would you "
              u"like to see the details?"_s);
    EXPECT_EQ(s.ui.opened.size(), 1);

    // Two versions of one library dropped together: one row, both versions.
    s.click("AR");
    const QString v1 = writeFile(dir + u"/lib1.tlb"_s, TypeLibSamples::msft(1, 0, "Lib", "Lib"));
    const QString v2 = writeFile(dir + u"/lib2.tlb"_s, TypeLibSamples::msft(2, 0, "Lib", "Lib"));
    s.view->FilesDropped({v1, v2, v1});
    const QString guid = s.rulebase->AuthorisedReferences()->Item(6)->LibID();
    EXPECT_EQ(s.rulebase->AuthorisedReferences()->Count(), 6);
    EXPECT_EQ(list.subItemText(s.row(guid), 1), u"1.0; 2.0"_s);
}
