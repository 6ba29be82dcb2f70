#include "ToolTestSupport.h"

#include "platform/QuorinAdminData.h"
#include "platform/RegistryUtils.h"
#include "rulebase/Rulebase.h"

#include <QDir>
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

QStringList filesIn(const QString &dir)
{
    return QDir(dir).entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

// The organisation comes from --organisation, else the remembered one, else a warning; none
// is ever asked for or remembered.
TEST(DocCommand, WritesTheDocumentToOutAloneAndLeavesTheSettingsAlone)
{
    TestEnvironment::clearSettings();
    const QString dir = TestEnvironment::makeTempDir();
    const QString rulebase = writeFile(dir + u"/Team.qrb"_s, sampleBytes());
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

    // A second run replaces the document; without an organisation it warns.
    const ToolRun none = runQrbTool({u"doc"_s, rulebase, u"-o"_s, out});
    ASSERT_EQ(none.exitCode, 0) << none.err.toStdString();
    EXPECT_TRUE(none.err.contains("warning: no organisation"_L1)) << none.err.toStdString();
    EXPECT_TRUE(readFile(out).contains("<h2>Your Organisation</h2>"));
    EXPECT_TRUE(allSettings().isEmpty());

    RegistryUtils::SetRegString(QuorinAdminData::settingsKey(),
                                u"LastCompanyName"_s,
                                u"Remembered & Co"_s,
                                RegistryUtils::HKEY_CURRENT_USER);
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
    const QString rulebase = writeFile(dir + u"/Team.qrb"_s, sampleBytes());

    // The rulebase itself is never the target.
    const ToolRun itself
        = runQrbTool({u"doc"_s, rulebase, u"-o"_s, QDir(dir).filePath(u"./Team.qrb"_s)});
    EXPECT_EQ(itself.exitCode, 2);
    EXPECT_TRUE(itself.err.contains("is the rulebase itself"_L1));
    EXPECT_EQ(readFile(rulebase), sampleBytes());

    // A folder that isn't there, and one that refuses new files.
    const QString locked = dir + u"/locked"_s;
    QDir().mkpath(locked);
    QStringList folders{dir + u"/none"_s};
    if (TestEnvironment::makeReadOnly(locked))
        folders << locked;
    for (const QString &folder : folders) {
        const QString out = folder + u"/doc.html"_s;
        const ToolRun run
            = runQrbTool({u"doc"_s, rulebase, u"-o"_s, out, u"--organisation"_s, u"K"_s});
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(run.err.startsWith(u"qrbtool doc: "_s + out)) << run.err.toStdString();
        EXPECT_TRUE(run.err.contains(u"'"_s + out + u"'"_s)) << run.err.toStdString();
        EXPECT_TRUE(run.out.isEmpty());
    }
    const QStringList left
        = QDir(locked).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    TestEnvironment::makeWritable(locked);
    EXPECT_TRUE(left.isEmpty()) << left.join(QLatin1Char(' ')).toStdString();
    EXPECT_FALSE(QFileInfo::exists(dir + u"/none"_s));
    if (folders.size() == 1)
        GTEST_SKIP() << "no read-only folder can be made here";
}
