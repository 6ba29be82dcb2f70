#include "ToolTestSupport.h"

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString gridGuid = u"{6B1A3F20-5C2D-4E8F-9A10-1B2C3D4E5F60}"_s;
const QString reportGuid = u"{0F9E8D7C-6B5A-4938-2716-05F4E3D2C1B0}"_s;

QStringList importArguments(const QString &rulebase, const QStringList &sources)
{
    QStringList arguments{u"import"_s, rulebase};
    for (const QString &source : sources)
        arguments << u"--from"_s << source;
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
    const QString vb6 = TestEnvironment::sharedDataDir() + u"/vb6"_s;
    const QString typelib = TestEnvironment::sharedDataDir() + u"/typelib"_s;
    if (!QFileInfo(vb6).isDir() || !QFileInfo::exists(typelib + u"/GridCtl.ocx"_s))
        GTEST_SKIP() << "no shared VB6 projects or type libraries";
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + u"/Team.qrb"_s, sampleBytes());
    const QStringList sources{vb6 + u"/Suite/Suite.vbg"_s,
                              vb6 + u"/Tools/Report Builder/Report Builder.vbp"_s,
                              typelib + u"/GridCtl.ocx"_s,
                              typelib + u"/ReportLib.tlb"_s};

    const ToolRun dry = runQrbTool(importArguments(rulebase, sources) << u"--dry-run"_s);
    ASSERT_EQ(dry.exitCode, 0) << dry.err.toStdString();
    EXPECT_TRUE(dry.err.isEmpty()) << dry.err.toStdString();
    EXPECT_EQ(readFile(rulebase), sampleBytes());
    EXPECT_TRUE(dry.out.endsWith(rulebase
                                 + u": 2 components, 5 references and 0 versions "
                                   u"added; not written (--dry-run)\n"_s))
        << dry.out.toStdString();
    const QStringList lines = listing(dry.out);
    ASSERT_EQ(lines.size(), 7) << dry.out.toStdString();
    EXPECT_TRUE(
        lines.contains(u"added component 'GridCtl.ocx' "_s + gridGuid + u", version 1.0"_s));
    EXPECT_TRUE(lines.contains(u"added reference 'Report Engine 2.5 Type Library' "_s + reportGuid
                               + u", version 2.5"_s));
    // Components first, then references, each by name.
    EXPECT_TRUE(lines.at(0).startsWith("added component "_L1));
    EXPECT_TRUE(lines.at(2).startsWith("added reference "_L1));
    for (qsizetype i = 3; i < lines.size(); ++i)
        EXPECT_LT(lines.at(i - 1).compare(lines.at(i), Qt::CaseInsensitive), 0);

    // The same sources in another order give the same listing.
    QStringList reversed = sources;
    std::reverse(reversed.begin(), reversed.end());
    EXPECT_EQ(listing(runQrbTool(importArguments(rulebase, reversed) << u"--dry-run"_s).out),
              lines);

    const ToolRun real = runQrbTool(importArguments(rulebase, sources));
    ASSERT_EQ(real.exitCode, 0) << real.err.toStdString();
    EXPECT_EQ(listing(real.out), lines);
    EXPECT_TRUE(real.out.contains("; saved as version 3.1.0043\n"_L1)) << real.out.toStdString();

    // All of it was saved: a second run finds nothing new.
    const QByteArray afterFirst = readFile(rulebase);
    const ToolRun second = runQrbTool(importArguments(rulebase, sources));
    EXPECT_EQ(second.exitCode, 0);
    EXPECT_EQ(second.out, rulebase + u": nothing new; not written\n"_s);
    EXPECT_EQ(readFile(rulebase), afterFirst);
}

TEST(ImportCommand, UnreadSourcesAreNamedAndForeignOnesStopTheRun)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + u"/Team.qrb"_s, sampleBytes());

    // Not a project nor an ActiveX file: nothing is read or written.
    const QString text = writeFile(dir + u"/notes.txt"_s, "text");
    const ToolRun foreign = runQrbTool(importArguments(rulebase, {text}));
    EXPECT_EQ(foreign.exitCode, 2);
    EXPECT_TRUE(foreign.err.startsWith(u"qrbtool import: "_s + text + u": not a project (.vbp)"_s))
        << foreign.err.toStdString();
    EXPECT_TRUE(foreign.out.isEmpty());

    // A library file without a library, and a group naming a project that isn't there: the
    // rest is imported, the run gives 1 and names them.
    const QString noLibrary = writeFile(dir + u"/Empty.tlb"_s, "no library");
    const QString project
        = writeFile(dir + u"/p.vbp"_s,
                    "Type=Exe\r\nObject={ABCDEF00-0000-0000-0000-000000000002}#1.0#0; one.ocx\r\n");
    const QString group = writeFile(dir + u"/g.vbg"_s,
                                    "VBGROUP 5.0\r\nStartupProject=p.vbp\r\nProject=gone.vbp\r\n");
    const ToolRun partial = runQrbTool(importArguments(rulebase, {noLibrary, group}));
    EXPECT_EQ(partial.exitCode, 1);
    EXPECT_TRUE(partial.err.contains(u"qrbtool import: "_s + noLibrary
                                     + u": holds no type library that can be read"_s))
        << partial.err.toStdString();
    EXPECT_TRUE(partial.err.contains("gone.vbp: the project could not be read"_L1));
    EXPECT_TRUE(partial.out.contains(QLatin1String(
        "added component 'one.ocx' {ABCDEF00-0000-0000-0000-000000000002}, version 1.0\n")))
        << partial.out.toStdString();

    // A known library at a new version, the one saved above: the version joins its list.
    const QString newer
        = writeFile(dir + u"/q.vbp"_s,
                    "Type=Exe\r\nObject={ABCDEF00-0000-0000-0000-000000000002}#2.1#0; one.ocx\r\n");
    const ToolRun version = runQrbTool(importArguments(rulebase, {newer}));
    EXPECT_EQ(version.exitCode, 0) << version.err.toStdString();
    EXPECT_TRUE(version.out.startsWith(
        QLatin1String("added version 2.1 to component 'one.ocx' "
                      "{ABCDEF00-0000-0000-0000-000000000002}, now 1.0; 2.1\n")))
        << version.out.toStdString();
    EXPECT_TRUE(version.out.contains("0 components, "_L1));
}
