#include "ToolTestSupport.h"

#include "platform/QuorinAdminData.h"
#include "platform/RegistryUtils.h"
#include "rulebase/Rulebase.h"
#include "support/TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Every stored setting with its value, to see that a run wrote none.
QMap<QString, QString> allSettings()
{
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, u"Tarnwick"_s, u"Quorin"_s);
    QMap<QString, QString> values;
    for (const QString &key : settings.allKeys())
        values.insert(key, settings.value(key).toString());
    return values;
}

void rememberOrganisation(const QString &name)
{
    RegistryUtils::SetRegString(QuorinAdminData::settingsKey(),
                                u"LastCompanyName"_s,
                                name,
                                RegistryUtils::HKEY_CURRENT_USER);
}

QString copyOfSample(const QString &dir)
{
    return writeFile(dir + u"/Team.qrb"_s, sampleBytes());
}

QStringList filesIn(const QString &dir)
{
    return QDir(dir).entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

TEST(DocCommand, WritesTheDocumentToOutAloneAndLeavesTheSettingsAlone)
{
    TestEnvironment::clearSettings();
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = copyOfSample(dir);
    const QString out = dir + u"/site/standards.html"_s;
    QDir().mkpath(dir + u"/site"_s);

    const ToolRun run
        = runQrbTool({u"doc"_s, rulebase, u"-o"_s, out, u"--organisation"_s, u"Kestrel Ltd"_s});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();
    EXPECT_EQ(run.out, rulebase + u": document written to "_s + out + '\n');
    // The document's content is the document test's; here, that it is this rulebase's.
    const QByteArray html = readFile(out);
    EXPECT_TRUE(html.contains("<h1>" + loadQuietly(rulebase)->Title().toUtf8() + "</h1>"));
    EXPECT_TRUE(html.contains("<h2>Kestrel Ltd</h2>"));
    // Nothing beside the rulebase, and the organisation given is not remembered.
    EXPECT_EQ(filesIn(dir), QStringList{u"Team.qrb"_s});
    EXPECT_EQ(filesIn(dir + u"/site"_s), QStringList{u"standards.html"_s});
    EXPECT_TRUE(allSettings().isEmpty());

    // A second run replaces the document.
    const ToolRun again
        = runQrbTool({u"doc"_s, rulebase, u"-o"_s, out, u"--organisation"_s, u"Other Ltd"_s});
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_TRUE(readFile(out).contains("<h2>Other Ltd</h2>"));
}

TEST(DocCommand, WithoutAnOrganisationTakesTheRememberedOneOrWarnsAndNeverAsks)
{
    TestEnvironment::clearSettings();
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = copyOfSample(dir);
    const QString out = dir + u"/doc.html"_s;

    const ToolRun none = runQrbTool({u"doc"_s, rulebase, u"-o"_s, out});
    ASSERT_EQ(none.exitCode, 0) << none.err.toStdString();
    EXPECT_TRUE(none.err.contains("warning: no organisation"_L1)) << none.err.toStdString();
    const QByteArray html = readFile(out);
    EXPECT_TRUE(html.contains("<h3>for</h3>\r\n            <h2>Your Organisation</h2>"));
    EXPECT_TRUE(html.contains(" Your Organisation. All rights reserved."));
    EXPECT_TRUE(allSettings().isEmpty());

    rememberOrganisation(u"Remembered & Co"_s);
    const QMap<QString, QString> before = allSettings();
    const ToolRun remembered = runQrbTool({u"doc"_s, rulebase, u"-o"_s, out});
    ASSERT_EQ(remembered.exitCode, 0) << remembered.err.toStdString();
    EXPECT_TRUE(remembered.err.isEmpty()) << remembered.err.toStdString();
    EXPECT_TRUE(readFile(out).contains("<h2>Remembered & Co</h2>"));
    EXPECT_EQ(allSettings(), before);
    TestEnvironment::clearSettings();
}

TEST(DocCommand, AFolderThatTakesNoFileFailsNamingTheFileAndLeavesNothing)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = copyOfSample(dir);

    // A folder that isn't there.
    const QString missing = dir + u"/none/doc.html"_s;
    const ToolRun noFolder
        = runQrbTool({u"doc"_s, rulebase, u"-o"_s, missing, u"--organisation"_s, u"K"_s});
    EXPECT_EQ(noFolder.exitCode, 2);
    EXPECT_TRUE(noFolder.err.startsWith(u"qrbtool doc: "_s + missing))
        << noFolder.err.toStdString();
    EXPECT_TRUE(noFolder.out.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(missing));

    // The rulebase itself is never the target.
    const ToolRun itself
        = runQrbTool({u"doc"_s, rulebase, u"-o"_s, QDir(dir).filePath(u"./Team.qrb"_s)});
    EXPECT_EQ(itself.exitCode, 2);
    EXPECT_TRUE(itself.err.contains("is the rulebase itself"_L1));
    EXPECT_EQ(readFile(rulebase), sampleBytes());

    // A folder that refuses new files.
    const QString locked = dir + u"/locked"_s;
    QDir().mkpath(locked);
    if (!TestEnvironment::makeReadOnly(locked))
        GTEST_SKIP() << "no read-only folder can be made here";
    const QString out = locked + u"/doc.html"_s;
    const ToolRun run = runQrbTool({u"doc"_s, rulebase, u"-o"_s, out, u"--organisation"_s, u"K"_s});
    const QStringList left
        = QDir(locked).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    TestEnvironment::makeWritable(locked);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.err.startsWith(u"qrbtool doc: "_s + out)) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(u"'"_s + out + u"'"_s));
    EXPECT_TRUE(left.isEmpty()) << left.join(QLatin1Char(' ')).toStdString();
}
