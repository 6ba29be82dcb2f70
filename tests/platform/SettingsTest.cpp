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

using namespace Qt::StringLiterals;

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
    EXPECT_EQ(machine.ErrorLogFile(), QuorinData::programFolder() + u"Error.log"_s);
    EXPECT_EQ(machine.ProductVersion(), u"6.2"_s);
}

TEST_F(SettingsTest, ValuesSurviveARunAndFractionsReadUnderAnyDecimalSign)
{
    {
        QuorinAdminData data;
        data.setFirstUse(false);
        data.setMainTop(1200);
        data.setLastCompanyName(u"Zinnober & Söhne"_s);
        data.setListColWidthCC(1, 0.2f);
        data.setListColWidthUK(1, 0.5f); // read only: never written back
    }                                    // saved here
    SetRegString(adminKey, u"ListACCol1"_s, u"0,25"_s, HKEY_CURRENT_USER);

    QuorinAdminData data;
    EXPECT_FALSE(data.FirstUse());
    EXPECT_EQ(data.MainTop(), 1200);
    EXPECT_EQ(data.LastCompanyName(), u"Zinnober & Söhne"_s);
    EXPECT_FLOAT_EQ(data.ListColWidthCC(1), 0.2f);
    EXPECT_FLOAT_EQ(data.ListColWidthUK(1), 0.13f);
    EXPECT_FLOAT_EQ(data.ListColWidthAC(1), 0.25f);
}

TEST_F(SettingsTest, RegistryGivesDefaultsForMissingValuesAndRefusesNonText)
{
    const QString key = RegistryUtils::productKey() + u"\\Probe"_s;
    EXPECT_FALSE(KeyExists(key, HKEY_CURRENT_USER));
    EXPECT_EQ(GetRegString(key, u"Missing"_s, u"dflt"_s, HKEY_CURRENT_USER), u"dflt"_s);
    EXPECT_TRUE(SetRegString(key, u"Name"_s, u"a,b"_s, HKEY_CURRENT_USER));
    EXPECT_TRUE(KeyExists(key, HKEY_CURRENT_USER));
    EXPECT_EQ(GetRegString(key, u"Name"_s, QString(), HKEY_CURRENT_USER), u"a,b"_s);
    // The machine-wide store is another place.
    EXPECT_FALSE(KeyExists(key, HKEY_LOCAL_MACHINE));

    {
        QSettings raw(QSettings::NativeFormat, QSettings::UserScope, u"Tarnwick"_s, u"Quorin"_s);
        raw.setValue(u"6.2/Probe/Shape"_s, QRect(1, 2, 3, 4));
    }
    try {
        GetRegString(key, u"Shape"_s, QString(), HKEY_CURRENT_USER);
        FAIL() << "a non-text value was read as text";
    } catch (const QuorinError &e) {
        EXPECT_EQ(e.number(), qint32(0x8004026A));
        EXPECT_EQ(e.description(), u"Registry data type does not match the type requested."_s);
    }
}

TEST_F(SettingsTest, RecentListKeepsFourNewestFirstWithoutDuplicates)
{
    MRUUtils mru;
    mru.setAppName(u"Settings\\Rulebase"_s);
    EXPECT_EQ(mru.Count(), 0);
    for (const char *f : {"/a.qrb", "/b.qrb", "/c.qrb", "/d.qrb"})
        mru.Add(QLatin1String(f));
    EXPECT_EQ(mru.Count(), 4);
    EXPECT_EQ(mru.Item(1), u"/d.qrb"_s);

    mru.Add(u"/B.QRB"_s); // already there, in another case: moves to the top
    EXPECT_EQ(mru.Count(), 4);
    EXPECT_EQ(mru.Item(1), u"/B.QRB"_s);
    EXPECT_EQ(mru.Item(2), u"/d.qrb"_s);

    mru.Add(u"/e.qrb"_s); // a fifth drops the oldest
    EXPECT_EQ(mru.Count(), 4);
    EXPECT_EQ(mru.Item(4), u"/c.qrb"_s);

    mru.Remove(u"/d.qrb"_s);
    MRUUtils again;
    again.setAppName(u"Settings\\Rulebase"_s);
    ASSERT_EQ(again.Count(), 3);
    EXPECT_EQ(again.Item(1), u"/e.qrb"_s);
    EXPECT_EQ(again.Item(2), u"/B.QRB"_s);
    EXPECT_EQ(again.Item(3), u"/c.qrb"_s);
    EXPECT_EQ(again.Item(4), QString());
}

TEST_F(SettingsTest, GlobalObjectsAreMadeOnceAndReleasedAtTheLastUser)
{
    ASSERT_EQ(CreateGlobalObjects(), 0);
    ASSERT_EQ(CreateGlobalObjects(), 0);
    const auto log = gobjLogFile;
    ASSERT_TRUE(log);
    EXPECT_EQ(log->ComponentVersion(), u"6.02.0001"_s);
    EXPECT_EQ(log->logFileName(), gobjQuorinData->ErrorLogFile());
    EXPECT_EQ(gobjAdminData->LastPath(), gobjQuorinData->LocalDataPath());
    DestroyGlobalObjects();
    EXPECT_EQ(gobjLogFile, log);
    DestroyGlobalObjects();
    EXPECT_FALSE(gobjLogFile);
    EXPECT_FALSE(gobjAdminData);
    EXPECT_EQ(glGlobalObjectsUsers, 0);
}
