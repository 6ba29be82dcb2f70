#include "ProjectTestSupport.h"

#include "project/AuthorisedItemsMerger.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"

#include "support/TestEnvironment.h"

#include <QFileInfo>

namespace {

const QString gridGuid = QStringLiteral("{6B1A3F20-5C2D-4E8F-9A10-1B2C3D4E5F60}");
const QString reportGuid = QStringLiteral("{0F9E8D7C-6B5A-4938-2716-05F4E3D2C1B0}");

QString typelibFile(const char *name)
{
    return TestEnvironment::sharedDataDir() + QStringLiteral("/typelib/") + QLatin1String(name);
}

using AuthorisedItemsMergerTest = ProjectTest;

} // namespace

TEST_F(AuthorisedItemsMergerTest, SelectedCandidatesAreAddedOrJoinTheKnownVersionsInOrder)
{
    Rulebase rulebase;
    rulebase.AuthorisedComponents()->Add(
        QStringLiteral("{C1}"), QStringLiteral("one.ocx"), QStringLiteral("1.0"), {});
    rulebase.AuthorisedComponents()->setDirty(false);

    AuthorisedComponents components;
    components.Add(QStringLiteral("{C1}"), QStringLiteral("one.ocx"), QStringLiteral("1.0"), {});
    components.Add(QStringLiteral("{C2}"), QStringLiteral("two.ocx"), QStringLiteral("3.1"), {});
    components.Add(QStringLiteral("{C3}"), QStringLiteral("three.ocx"), QStringLiteral("1.0"), {})
        ->setSelected(false);
    AuthorisedReferences references;
    references.Add(QStringLiteral("{R1}"),
                   QStringLiteral("Lib"),
                   QStringLiteral("lib.tlb"),
                   QStringLiteral("2.0"),
                   {});

    AuthorisedItemsMerger merger(rulebase);
    merger.MergeSelected(components, references);

    // The import offers only versions the rulebase lacks, so a known library takes the
    // version as given, repeats and all.
    EXPECT_EQ(rulebase.AuthorisedComponents()->Item(QStringLiteral("{C1}"))->VersionList(),
              QStringLiteral("1.0; 1.0"));
    EXPECT_TRUE(rulebase.AuthorisedComponents()->Dirty());
    EXPECT_TRUE(rulebase.AuthorisedComponents()->Contains(QStringLiteral("{C2}")));
    EXPECT_FALSE(rulebase.AuthorisedComponents()->Contains(QStringLiteral("{C3}")));
    EXPECT_TRUE(rulebase.AuthorisedReferences()->Contains(QStringLiteral("{R1}")));

    const std::vector<AuthorisedItemChange> &changes = merger.Changes();
    ASSERT_EQ(changes.size(), 3u);
    EXPECT_FALSE(changes[0].added);
    EXPECT_EQ(changes[0].libID(), QStringLiteral("{C1}"));
    EXPECT_EQ(changes[0].version, QStringLiteral("1.0"));
    EXPECT_EQ(changes[0].versionList(), QStringLiteral("1.0; 1.0"));
    EXPECT_TRUE(changes[1].added);
    EXPECT_EQ(changes[1].kind, AuthorisedItemChange::Kind::Component);
    // The rulebase's own item, so that a view may show it.
    EXPECT_EQ(changes[1].component, rulebase.AuthorisedComponents()->Item(QStringLiteral("{C2}")));
    EXPECT_EQ(changes[2].kind, AuthorisedItemChange::Kind::Reference);
    EXPECT_EQ(changes[2].reference->Description(), QStringLiteral("Lib"));
    EXPECT_EQ(merger.AddedCount(), 2);

    EXPECT_TRUE(AuthorisedItemsMerger::IsActiveXFilename(QStringLiteral("C:\\x\\a.Dll")));
    EXPECT_TRUE(AuthorisedItemsMerger::IsActiveXFilename(QStringLiteral("b.olb")));
    EXPECT_FALSE(AuthorisedItemsMerger::IsActiveXFilename(QStringLiteral("c.vbp")));
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
    const QString badControl = writeFile(QStringLiteral("Bad.ocx"), "text");
    EXPECT_EQ(merger.MergeActiveXFile(badControl), ActiveXFileResult::ControlWithoutLibrary);

    ASSERT_EQ(merger.Changes().size(), 2u);
    EXPECT_EQ(merger.Changes()[0].component->Filename(), QStringLiteral("GridCtl.ocx"));
    EXPECT_EQ(merger.Changes()[0].component->LibID(), gridGuid);
    EXPECT_EQ(merger.Changes()[0].component->VersionList(), QStringLiteral("1.0"));
    // The GridCtl library as a .tlb is a reference, not the component.
    EXPECT_EQ(merger.Changes()[1].reference->LibID(), reportGuid);
    EXPECT_EQ(rulebase.AuthorisedReferences()->Item(reportGuid)->VersionList(),
              QStringLiteral("2.5"));

    // A version the list lacks joins it once.
    rulebase.AuthorisedReferences()->Item(reportGuid)->setVersionList(QStringLiteral("1.0"));
    EXPECT_EQ(merger.MergeActiveXFile(typelibFile("ReportLib.tlb")), ActiveXFileResult::Merged);
    EXPECT_EQ(merger.MergeActiveXFile(typelibFile("Reports.dll")), ActiveXFileResult::Merged);
    EXPECT_EQ(rulebase.AuthorisedReferences()->Item(reportGuid)->VersionList(),
              QStringLiteral("1.0; 2.5"));
    ASSERT_EQ(merger.Changes().size(), 3u);
    EXPECT_FALSE(merger.Changes()[2].added);
    EXPECT_EQ(merger.Changes()[2].version, QStringLiteral("2.5"));
}
