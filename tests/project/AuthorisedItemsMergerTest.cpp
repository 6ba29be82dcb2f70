#include "ProjectTestSupport.h"

#include "project/AuthorisedItemsMerger.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"

#include "support/TestEnvironment.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString reportGuid = u"{0F9E8D7C-6B5A-4938-2716-05F4E3D2C1B0}"_s;

QString typelibFile(const char *name)
{
    return TestEnvironment::sharedDataDir() + u"/typelib/"_s + QLatin1String(name);
}

using AuthorisedItemsMergerTest = ProjectTest;

} // namespace

TEST_F(AuthorisedItemsMergerTest, SelectedCandidatesAreAddedOrJoinTheKnownVersionsInOrder)
{
    Rulebase rulebase;
    rulebase.AuthorisedComponents()->Add(u"{C1}"_s, u"one.ocx"_s, u"1.0"_s, {});
    rulebase.AuthorisedComponents()->setDirty(false);

    AuthorisedComponents components;
    components.Add(u"{C1}"_s, u"one.ocx"_s, u"1.0"_s, {});
    components.Add(u"{C2}"_s, u"two.ocx"_s, u"3.1"_s, {});
    components.Add(u"{C3}"_s, u"three.ocx"_s, u"1.0"_s, {})->setSelected(false);
    AuthorisedReferences references;
    references.Add(u"{R1}"_s, u"Lib"_s, u"lib.tlb"_s, u"2.0"_s, {});

    AuthorisedItemsMerger merger(rulebase);
    merger.MergeSelected(components, references);

    // The import offers only versions the rulebase lacks, so a known library takes the
    // version as given, repeats and all.
    EXPECT_EQ(rulebase.AuthorisedComponents()->Item(u"{C1}"_s)->VersionList(), u"1.0; 1.0"_s);
    EXPECT_TRUE(rulebase.AuthorisedComponents()->Dirty());
    EXPECT_TRUE(rulebase.AuthorisedComponents()->Contains(u"{C2}"_s));
    EXPECT_FALSE(rulebase.AuthorisedComponents()->Contains(u"{C3}"_s));
    EXPECT_TRUE(rulebase.AuthorisedReferences()->Contains(u"{R1}"_s));

    const std::vector<AuthorisedItemChange> &changes = merger.Changes();
    ASSERT_EQ(changes.size(), 3u);
    EXPECT_FALSE(changes[0].added);
    EXPECT_EQ(changes[0].libID(), u"{C1}"_s);
    EXPECT_EQ(changes[0].version, u"1.0"_s);
    EXPECT_EQ(changes[0].versionList(), u"1.0; 1.0"_s);
    EXPECT_TRUE(changes[1].added);
    EXPECT_EQ(changes[1].kind, AuthorisedItemChange::Kind::Component);
    // The rulebase's own item, so that a view may show it.
    EXPECT_EQ(changes[1].component, rulebase.AuthorisedComponents()->Item(u"{C2}"_s));
    EXPECT_EQ(changes[2].kind, AuthorisedItemChange::Kind::Reference);
    EXPECT_EQ(changes[2].reference->Description(), u"Lib"_s);
    EXPECT_EQ(merger.AddedCount(), 2);

    EXPECT_TRUE(AuthorisedItemsMerger::IsActiveXFilename(QStringLiteral("C:\\x\\a.Dll")));
    EXPECT_TRUE(AuthorisedItemsMerger::IsActiveXFilename(u"b.olb"_s));
    EXPECT_FALSE(AuthorisedItemsMerger::IsActiveXFilename(u"c.vbp"_s));
    EXPECT_FALSE(AuthorisedItemsMerger::IsActiveXFilename(QString()));
}

TEST_F(AuthorisedItemsMergerTest, ActiveXFilesTakeOnlyTheVersionsTheRulebaseLacks)
{
    if (!QFileInfo::exists(typelibFile("GridCtl.ocx")))
        GTEST_SKIP() << "no shared type library data";
    Rulebase rulebase;
    AuthorisedItemsMerger merger(rulebase);
    EXPECT_EQ(merger.MergeActiveXFile(typelibFile("GridCtl.ocx")), ActiveXFileResult::Merged);
    EXPECT_EQ(merger.MergeActiveXFile(typelibFile("ReportLib.tlb")), ActiveXFileResult::Merged);
    // Again, and the same library in another file: nothing more.
    EXPECT_EQ(merger.MergeActiveXFile(typelibFile("Reports.dll")), ActiveXFileResult::Merged);
    EXPECT_EQ(merger.MergeActiveXFile(typelibFile("GridCtl.ocx")), ActiveXFileResult::Merged);
    EXPECT_EQ(merger.MergeActiveXFile(typelibFile("NoTypeLib.dll")), ActiveXFileResult::NotActiveX);
    const QString badControl = writeFile(u"Bad.ocx"_s, "text");
    EXPECT_EQ(merger.MergeActiveXFile(badControl), ActiveXFileResult::ControlWithoutLibrary);

    ASSERT_EQ(merger.Changes().size(), 2u);
    EXPECT_EQ(merger.Changes()[0].component->Filename(), u"GridCtl.ocx"_s);
    EXPECT_EQ(merger.Changes()[0].component->LibID(), u"{6B1A3F20-5C2D-4E8F-9A10-1B2C3D4E5F60}"_s);
    EXPECT_EQ(merger.Changes()[0].component->VersionList(), u"1.0"_s);
    // The GridCtl library as a .tlb is a reference, not the component.
    EXPECT_EQ(merger.Changes()[1].reference->LibID(), reportGuid);
    EXPECT_EQ(rulebase.AuthorisedReferences()->Item(reportGuid)->VersionList(), u"2.5"_s);

    // A version the list lacks joins it once.
    rulebase.AuthorisedReferences()->Item(reportGuid)->setVersionList(u"1.0"_s);
    EXPECT_EQ(merger.MergeActiveXFile(typelibFile("ReportLib.tlb")), ActiveXFileResult::Merged);
    EXPECT_EQ(merger.MergeActiveXFile(typelibFile("Reports.dll")), ActiveXFileResult::Merged);
    EXPECT_EQ(rulebase.AuthorisedReferences()->Item(reportGuid)->VersionList(), u"1.0; 2.5"_s);
    ASSERT_EQ(merger.Changes().size(), 3u);
    EXPECT_FALSE(merger.Changes()[2].added);
    EXPECT_EQ(merger.Changes()[2].version, u"2.5"_s);
}
