#include "gui/frmMain.h"
#include "gui/window/frmAbout.h"
#include "gui/window/frmTip.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/UserInterface.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

// Runs the event loop until `done` or `ms` milliseconds have gone.
template<typename Done>
bool waitFor(Done done, int ms = 3000)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < ms)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    return done();
}

struct Globals
{
    Globals()
    {
        TestEnvironment::clearSettings();
        EXPECT_EQ(CreateGlobalObjects(), 0);
    }
    ~Globals() { DestroyGlobalObjects(); }
};

} // namespace

TEST(About, ShowsTitleVersionAndClosesOnOK)
{
    Globals globals;
    frmAbout about;
    about.show();
    EXPECT_EQ(about.findChild<QLabel *>(QStringLiteral("lblTitle"))->text(), QStringLiteral("Quorin Administrator"));
    EXPECT_EQ(about.findChild<QLabel *>(QStringLiteral("lblVersion"))->text(), QStringLiteral("Version ") + programComponentVersion());
    EXPECT_FALSE(about.findChild<QLabel *>(QStringLiteral("lblDescription"))->text().isEmpty());
    QPushButton *ok = about.findChild<QPushButton *>(QStringLiteral("cmdOK"));
    ASSERT_NE(ok, nullptr);
    EXPECT_TRUE(ok->isVisible());
    ok->click();
    EXPECT_FALSE(about.isVisible());
    EXPECT_EQ(about.result(), QDialog::Accepted);
}

TEST(About, TheSplashHidesItsButtonAndClosesItselfWithoutBlocking)
{
    Globals globals;
    QPointer<frmAbout> splash = new frmAbout;
    splash->ShowSplashScreen();
    // ShowSplashScreen returned at once, with the form up and its timer armed.
    ASSERT_TRUE(splash->isVisible());
    EXPECT_FALSE(splash->findChild<QPushButton *>(QStringLiteral("cmdOK"))->isVisible());
    QTimer *delay = splash->findChild<QTimer *>(QStringLiteral("tmrDelay"));
    ASSERT_NE(delay, nullptr);
    EXPECT_TRUE(delay->isActive());
    EXPECT_EQ(delay->interval(), frmAbout::SplashMilliseconds);
    EXPECT_EQ(frmAbout::SplashMilliseconds, 1500);
    // It goes away by itself, and takes its memory with it.
    EXPECT_TRUE(waitFor([&] { return splash.isNull(); }, 4000));
}

TEST(TipOfTheDay, TipsComeInTurnAndStartAgainAfterTheLast)
{
    Globals globals;
    const QStringList tips = frmTip::LoadTips(frmTip::tipsFile());
    EXPECT_GE(tips.size(), 20);
    for (const QString &tip : tips)
        EXPECT_FALSE(tip.startsWith(QLatin1Char(';'))) << tip.toStdString();

    frmTip form;
    ASSERT_EQ(form.tipCount(), tips.size());
    form.setLastTip(3);
    EXPECT_EQ(form.LastTip(), 4);
    EXPECT_EQ(form.findChild<QLabel *>(QStringLiteral("lblTipText"))->text(), tips.at(3));
    form.findChild<QPushButton *>(QStringLiteral("cmdNextTip"))->click();
    EXPECT_EQ(form.LastTip(), 5);
    EXPECT_EQ(form.currentTip(), tips.at(4));

    // After the last comes the first; a number beyond the file starts at the first too.
    form.setLastTip(int(tips.size()) - 1);
    EXPECT_EQ(form.LastTip(), tips.size());
    form.NextTip();
    EXPECT_EQ(form.LastTip(), 1);
    form.setLastTip(int(tips.size()) + 10);
    EXPECT_EQ(form.LastTip(), 1);

    // A tips file of comments and blanks only, or none at all, gives no tips.
    const QString dir = TestEnvironment::makeTempDir();
    QFile file(dir + QStringLiteral("/empty.tip"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("; nothing here\n\n   \n");
    file.close();
    EXPECT_TRUE(frmTip::LoadTips(file.fileName()).isEmpty());
    EXPECT_TRUE(frmTip::LoadTips(dir + QStringLiteral("/missing.tip")).isEmpty());
}

TEST(TipOfTheDay, TheCheckBoxIsTheStartUpSettingAndTheWindowRemembersTheLastTip)
{
    Globals globals;
    gobjAdminData->setDisplayTips(true);
    {
        frmTip form;
        QCheckBox *box = form.findChild<QCheckBox *>(QStringLiteral("chkLoadTipsAtStartup"));
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->text(), QStringLiteral("&Show tips at startup"));
        EXPECT_TRUE(box->isChecked());
        box->click();
        EXPECT_FALSE(gobjAdminData->DisplayTips());
    }

    // Run modally by the window: Next Tip once, then OK; the last tip shown comes back.
    frmMain window(true);
    QTimer::singleShot(0, [] {
        QWidget *modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        EXPECT_EQ(modal->objectName(), QStringLiteral("frmTip"));
        modal->findChild<QPushButton *>(QStringLiteral("cmdNextTip"))->click();
        modal->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    });
    EXPECT_EQ(window.RunTipOfDay(2), 4);

    // A window that waits for nobody shows no tip and keeps the number.
    frmMain quiet(false);
    EXPECT_EQ(quiet.RunTipOfDay(7), 7);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
