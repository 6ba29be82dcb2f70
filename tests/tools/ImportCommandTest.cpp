#include "ToolTestSupport.h"

#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

const QString gridGuid = QStringLiteral("{6B1A3F20-5C2D-4E8F-9A10-1B2C3D4E5F60}");
const QString reportGuid = QStringLiteral("{0F9E8D7C-6B5A-4938-2716-05F4E3D2C1B0}");
const QString vbaGuid = QStringLiteral("{000204EF-0000-0000-C000-000000000046}");

QString typelibDir()
{
    const QString dir = TestEnvironment::sharedDataDir() + QStringLiteral("/typelib");
    return QFileInfo::exists(dir + QStringLiteral("/GridCtl.ocx")) ? dir : QString();
}

std::shared_ptr<Rulebase> loadQuietly(const QString &filename)
{
    ScriptedUserInterface ui;
    RulebaseManager::setAdministratorOverride(true);
    auto rulebase = RulebaseManager().LoadRulebase(filename);
    EXPECT_TRUE(ui.messages.empty());
    return rulebase;
}

QStringList importArguments(const QString &rulebase, const QStringList &sources)
{
    QStringList arguments{QStringLiteral("import"), rulebase};
    for (const QString &source : sources)
        arguments << QStringLiteral("--from") << source;
    return arguments;
}

// The listing of what was added: every line but the summary.
QStringList listing(const QString &out)
{
    QStringList lines = out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (!lines.isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace

TEST(ImportCommand, ADryRunListsWhatARealRunSavesAndASecondRunAddsNothing)
{
    const QString vb6 = vb6DataDir();
    const QString typelib = typelibDir();
    if (vb6.isEmpty() || typelib.isEmpty())
        GTEST_SKIP() << "no shared VB6 projects or type libraries";
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + QStringLiteral("/Team.qrb"), sampleBytes());
    const QStringList sources{vb6 + QStringLiteral("/Suite/Suite.vbg"),
                              vb6 + QStringLiteral("/Tools/Report Builder/Report Builder.vbp"),
                              typelib + QStringLiteral("/GridCtl.ocx"),
                              typelib + QStringLiteral("/ReportLib.tlb")};

    QStringList dryArguments = importArguments(rulebase, sources);
    dryArguments << QStringLiteral("--dry-run");
    const ToolRun dry = runQrbTool(dryArguments);
    ASSERT_EQ(dry.exitCode, 0) << dry.err.toStdString();
    EXPECT_TRUE(dry.err.isEmpty()) << dry.err.toStdString();
    EXPECT_EQ(readFile(rulebase), sampleBytes());
    EXPECT_TRUE(dry.out.endsWith(rulebase
                                 + QStringLiteral(": 2 components, 5 references and 0 versions "
                                                  "added; not written (--dry-run)\n")))
        << dry.out.toStdString();
    const QStringList lines = listing(dry.out);
    ASSERT_EQ(lines.size(), 7) << dry.out.toStdString();
    EXPECT_TRUE(lines.contains(QStringLiteral("added component 'GridCtl.ocx' ") + gridGuid
                               + QStringLiteral(", version 1.0")));
    EXPECT_TRUE(lines.contains(QStringLiteral("added reference 'Report Engine 2.5 Type Library' ")
                               + reportGuid + QStringLiteral(", version 2.5")));
    // Components first, then references, each by name.
    EXPECT_TRUE(lines.at(0).startsWith(QLatin1String("added component ")));
    EXPECT_TRUE(lines.at(2).startsWith(QLatin1String("added reference ")));
    for (qsizetype i = 3; i < lines.size(); ++i)
        EXPECT_LT(lines.at(i - 1).compare(lines.at(i), Qt::CaseInsensitive), 0);

    // The same sources in another order give the same listing.
    QStringList reversed = sources;
    std::reverse(reversed.begin(), reversed.end());
    QStringList reversedArguments = importArguments(rulebase, reversed);
    reversedArguments << QStringLiteral("--dry-run");
    EXPECT_EQ(listing(runQrbTool(reversedArguments).out), lines);

    const ToolRun real = runQrbTool(importArguments(rulebase, sources));
    ASSERT_EQ(real.exitCode, 0) << real.err.toStdString();
    EXPECT_EQ(listing(real.out), lines);
    EXPECT_TRUE(real.out.contains(QLatin1String("; saved as version 3.1.0043\n")))
        << real.out.toStdString();
    const auto saved = loadQuietly(rulebase);
    ASSERT_NE(saved, nullptr);
    EXPECT_EQ(saved->AuthorisedComponents()->Item(gridGuid)->VersionList(), QStringLiteral("1.0"));
    EXPECT_EQ(saved->AuthorisedReferences()->Item(reportGuid)->Description(),
              QStringLiteral("Report Engine 2.5 Type Library"));
    EXPECT_EQ(saved->AuthorisedReferences()->Item(vbaGuid)->VersionList(), QStringLiteral("6.0"));
    const auto original = loadQuietly(TestEnvironment::sampleRulebase());
    EXPECT_EQ(saved->AuthorisedComponents()->Count(),
              original->AuthorisedComponents()->Count() + 2);
    EXPECT_EQ(saved->AuthorisedReferences()->Count(),
              original->AuthorisedReferences()->Count() + 5);

    const QByteArray afterFirst = readFile(rulebase);
    const ToolRun second = runQrbTool(importArguments(rulebase, sources));
    EXPECT_EQ(second.exitCode, 0);
    EXPECT_EQ(second.out, rulebase + QStringLiteral(": nothing new; not written\n"));
    EXPECT_EQ(readFile(rulebase), afterFirst);
}

TEST(ImportCommand, UnreadSourcesAreNamedAndForeignOnesStopTheRun)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + QStringLiteral("/Team.qrb"), sampleBytes());

    // Not a project nor an ActiveX file: nothing is read or written.
    const QString text = writeFile(dir + QStringLiteral("/notes.txt"), "text");
    const ToolRun foreign = runQrbTool(importArguments(rulebase, {text}));
    EXPECT_EQ(foreign.exitCode, 2);
    EXPECT_TRUE(foreign.err.startsWith(QStringLiteral("qrbtool import: ") + text
                                       + QStringLiteral(": not a project (.vbp)")))
        << foreign.err.toStdString();
    EXPECT_TRUE(foreign.out.isEmpty());

    // A library file without a library, and a group naming a project that isn't there: the
    // rest is imported, the run gives 1 and names them.
    const QString noLibrary = writeFile(dir + QStringLiteral("/Empty.tlb"), "no library");
    const QString project = writeFile(
        dir + QStringLiteral("/p.vbp"),
        "Type=Exe\r\nObject={ABCDEF00-0000-0000-0000-000000000002}#1.0#0; one.ocx\r\n");
    const QString group = writeFile(dir + QStringLiteral("/g.vbg"),
                                     "VBGROUP 5.0\r\nStartupProject=p.vbp\r\nProject=gone.vbp\r\n");
    const ToolRun partial = runQrbTool(importArguments(rulebase, {noLibrary, group}));
    EXPECT_EQ(partial.exitCode, 1);
    EXPECT_TRUE(partial.err.contains(QStringLiteral("qrbtool import: ") + noLibrary
                                     + QStringLiteral(": holds no type library that can be read")))
        << partial.err.toStdString();
    EXPECT_TRUE(partial.err.contains(QLatin1String("gone.vbp: the project could not be read")));
    EXPECT_TRUE(partial.out.contains(QLatin1String(
        "added component 'one.ocx' {ABCDEF00-0000-0000-0000-000000000002}, version 1.0\n")))
        << partial.out.toStdString();
    const auto saved = loadQuietly(rulebase);
    ASSERT_NE(saved, nullptr);
    EXPECT_TRUE(saved->AuthorisedComponents()->Contains(
        QStringLiteral("{ABCDEF00-0000-0000-0000-000000000002}")));

    // A known library at a new version: the version joins its list.
    const QString newer = writeFile(
        dir + QStringLiteral("/q.vbp"),
        "Type=Exe\r\nObject={ABCDEF00-0000-0000-0000-000000000002}#2.1#0; one.ocx\r\n");
    const ToolRun version = runQrbTool(importArguments(rulebase, {newer}));
    EXPECT_EQ(version.exitCode, 0) << version.err.toStdString();
    EXPECT_TRUE(version.out.startsWith(
        QLatin1String("added version 2.1 to component 'one.ocx' "
                      "{ABCDEF00-0000-0000-0000-000000000002}, now 1.0; 2.1\n")))
        << version.out.toStdString();
    EXPECT_TRUE(version.out.contains(QLatin1String("0 components, ")));
}

// A project's texts go into the rulebase as they come; what XML can't hold is dropped on the
// way, so the saved rulebase loads again.
TEST(ImportCommand, AReferenceDescriptionWithACharacterXmlForbidsIsSavedWithoutIt)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + QStringLiteral("/Team.qrb"), sampleBytes());
    const QString guid = QStringLiteral("{ABCDEF00-0000-0000-0000-000000000003}");
    const QString project = writeFile(dir + QStringLiteral("/p.vbp"),
                                       "Type=Exe\r\nReference=*\\G" + guid.toLatin1()
                                           + "#1.0#0#odd.tlb#Odd\x01 Library\x1F\r\n");
    const ToolRun run = runQrbTool(importArguments(rulebase, {project}));
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const auto saved = loadQuietly(rulebase);
    ASSERT_NE(saved, nullptr);
    EXPECT_EQ(saved->AuthorisedReferences()->Item(guid)->Description(),
              QStringLiteral("Odd Library"));
}
