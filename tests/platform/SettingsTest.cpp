#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/MRUUtils.h"
#include "platform/QuorinAdminData.h"
#include "platform/QuorinData.h"
#include "platform/QuorinError.h"
#include "platform/RegistryUtils.h"

#include "support/TestEnvironment.h"

#include <QRect>
#include <QSettings>

#include <gtest/gtest.h>

using namespace RegistryUtils;

namespace {

class SettingsTest : public ::testing::Test
{
protected:
    void SetUp() override { TestEnvironment::clearSettings(); }
    void TearDown() override { TestEnvironment::clearSettings(); }
    const QString adminKey = QuorinAdminData::settingsKey();
};

} // namespace

TEST_F(SettingsTest, FirstRunGivesTheDefaults)
{
    QuorinAdminData data;
    EXPECT_TRUE(data.FirstUse());
    EXPECT_EQ(data.MainTop(), 855);
    EXPECT_EQ(data.MainLeft(), 1470);
    EXPECT_EQ(data.MainHeight(), 8910);
    EXPECT_EQ(data.MainWidth(), 12450);
    EXPECT_EQ(data.TreeWidth(), 3810);
    EXPECT_EQ(data.ListLeft(), 3840);
    EXPECT_EQ(data.DocHeight(), 1835);
    EXPECT_TRUE(data.DisplayTips());
    EXPECT_TRUE(data.DocWinVisible());
    EXPECT_TRUE(data.QuorinBarVisible());
    EXPECT_FALSE(data.Maximised());
    EXPECT_TRUE(data.LastPath().isEmpty());
    EXPECT_EQ(data.LastStandardsPath(), QuorinData::programFolder());
    EXPECT_FLOAT_EQ(data.ListColWidthAC(3), 0.58f);
    EXPECT_FLOAT_EQ(data.ListColWidthAR(1), 0.35f);
    EXPECT_FLOAT_EQ(data.ListColWidthCC(2), 0.38f);
    EXPECT_EQ(data.ListCCSortCol(), 0);
    EXPECT_EQ(data.ListCVSortCol(), 1);
    EXPECT_EQ(data.ListUKSortCol(), 1);
    EXPECT_EQ(data.ListSVSortOrder(), 0);

    QuorinData machine;
    EXPECT_EQ(machine.LocalDataPath(), QuorinData::programFolder());
    EXPECT_EQ(machine.ErrorLogFile(), QuorinData::programFolder() + QStringLiteral("Error.log"));
    EXPECT_EQ(machine.ProductVersion(), QStringLiteral("6.2"));
}

TEST_F(SettingsTest, ValuesSurviveARunAndFractionsReadUnderAnyDecimalSign)
{
    {
        QuorinAdminData data;
        data.setFirstUse(false);
        data.setMainTop(1200);
        data.setLastCompanyName(QStringLiteral("Zinnober & Söhne"));
        data.setListColWidthCC(1, 0.2f);
        data.setListColWidthUK(1, 0.5f); // read only: never written back
    } // saved here
    SetRegString(adminKey, QStringLiteral("ListACCol1"), QStringLiteral("0,25"), HKEY_CURRENT_USER);

    QuorinAdminData data;
    EXPECT_FALSE(data.FirstUse());
    EXPECT_EQ(data.MainTop(), 1200);
    EXPECT_EQ(data.LastCompanyName(), QStringLiteral("Zinnober & Söhne"));
    EXPECT_FLOAT_EQ(data.ListColWidthCC(1), 0.2f);
    EXPECT_FLOAT_EQ(data.ListColWidthUK(1), 0.13f);
    EXPECT_FLOAT_EQ(data.ListColWidthAC(1), 0.25f);
}

TEST_F(SettingsTest, RegistryGivesDefaultsForMissingValuesAndRefusesNonText)
{
    const QString key = RegistryUtils::productKey() + QStringLiteral("\\Probe");
    EXPECT_FALSE(KeyExists(key, HKEY_CURRENT_USER));
    EXPECT_EQ(GetRegString(key, QStringLiteral("Missing"), QStringLiteral("dflt"), HKEY_CURRENT_USER),
              QStringLiteral("dflt"));
    EXPECT_TRUE(SetRegString(key, QStringLiteral("Name"), QStringLiteral("a,b"), HKEY_CURRENT_USER));
    EXPECT_TRUE(KeyExists(key, HKEY_CURRENT_USER));
    EXPECT_EQ(GetRegString(key, QStringLiteral("Name"), QString(), HKEY_CURRENT_USER), QStringLiteral("a,b"));
    // The machine-wide store is another place.
    EXPECT_FALSE(KeyExists(key, HKEY_LOCAL_MACHINE));

    {
        QSettings raw(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Tarnwick"), QStringLiteral("Quorin"));
        raw.setValue(QStringLiteral("6.2/Probe/Shape"), QRect(1, 2, 3, 4));
    }
    try {
        GetRegString(key, QStringLiteral("Shape"), QString(), HKEY_CURRENT_USER);
        FAIL() << "a non-text value was read as text";
    } catch (const QuorinError &e) {
        EXPECT_EQ(e.number(), qint32(0x8004026A));
        EXPECT_EQ(e.description(), QStringLiteral("Registry data type does not match the type requested."));
    }
}

TEST_F(SettingsTest, RecentListKeepsFourNewestFirstWithoutDuplicates)
{
    MRUUtils mru;
    mru.setAppName(QStringLiteral("Settings\\Rulebase"));
    EXPECT_EQ(mru.Count(), 0);
    for (const char *f : {"/a.qrb", "/b.qrb", "/c.qrb", "/d.qrb"})
        mru.Add(QLatin1String(f));
    EXPECT_EQ(mru.Count(), 4);
    EXPECT_EQ(mru.Item(1), QStringLiteral("/d.qrb"));

    mru.Add(QStringLiteral("/B.QRB")); // already there, in another case: moves to the top
    EXPECT_EQ(mru.Count(), 4);
    EXPECT_EQ(mru.Item(1), QStringLiteral("/B.QRB"));
    EXPECT_EQ(mru.Item(2), QStringLiteral("/d.qrb"));

    mru.Add(QStringLiteral("/e.qrb")); // a fifth drops the oldest
    EXPECT_EQ(mru.Count(), 4);
    EXPECT_EQ(mru.Item(4), QStringLiteral("/c.qrb"));

    mru.Remove(QStringLiteral("/d.qrb"));
    MRUUtils again;
    again.setAppName(QStringLiteral("Settings\\Rulebase"));
    ASSERT_EQ(again.Count(), 3);
    EXPECT_EQ(again.Item(1), QStringLiteral("/e.qrb"));
    EXPECT_EQ(again.Item(2), QStringLiteral("/B.QRB"));
    EXPECT_EQ(again.Item(3), QStringLiteral("/c.qrb"));
    EXPECT_EQ(again.Item(4), QString());
}

TEST_F(SettingsTest, GlobalObjectsAreMadeOnceAndReleasedAtTheLastUser)
{
    ASSERT_EQ(CreateGlobalObjects(), 0);
    ASSERT_EQ(CreateGlobalObjects(), 0);
    const auto log = gobjLogFile;
    ASSERT_TRUE(log);
    EXPECT_EQ(log->ComponentVersion(), QStringLiteral("6.02.0001"));
    EXPECT_EQ(log->logFileName(), gobjQuorinData->ErrorLogFile());
    EXPECT_EQ(gobjAdminData->LastPath(), gobjQuorinData->LocalDataPath());
    DestroyGlobalObjects();
    EXPECT_EQ(gobjLogFile, log);
    DestroyGlobalObjects();
    EXPECT_FALSE(gobjLogFile);
    EXPECT_FALSE(gobjAdminData);
    EXPECT_EQ(glGlobalObjectsUsers, 0);
}
