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

using namespace Qt::StringLiterals;

namespace {

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

TEST(TipOfTheDay, TheCheckBoxIsTheStartUpSettingAndTheWindowRemembersTheLastTip)
{
    Globals globals;
    gobjAdminData->setDisplayTips(true);
    {
        frmTip form;
        QCheckBox *box = form.findChild<QCheckBox *>(u"chkLoadTipsAtStartup"_s);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->text(), u"&Show tips at startup"_s);
        EXPECT_TRUE(box->isChecked());
        box->click();
        EXPECT_FALSE(gobjAdminData->DisplayTips());
    }

    // Run modally by the window: Next Tip once, then OK; the last tip shown comes back.
    frmMain window(true);
    QTimer::singleShot(0, [] {
        QWidget *modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        EXPECT_EQ(modal->objectName(), u"frmTip"_s);
        modal->findChild<QPushButton *>(u"cmdNextTip"_s)->click();
        modal->findChild<QPushButton *>(u"cmdOK"_s)->click();
    });
    EXPECT_EQ(window.RunTipOfDay(2), 4);

    // A window that waits for nobody shows no tip and keeps the number.
    frmMain quiet(false);
    EXPECT_EQ(quiet.RunTipOfDay(7), 7);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
