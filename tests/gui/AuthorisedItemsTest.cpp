#include "application/Application.h"
#include "gui/frmMain.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"
#include "views/AuthorisedItemsView.h"

#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <QUrl>

#include "GuiTestSupport.h"
#include "StartedMainWindow.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

TEST(AuthorisedItemsWindow, TheViewShowsAndAReferenceIsAddedThroughItsDialog)
{
    ScriptedUserInterface ui;
    {
        StartedMainWindow session(TestEnvironment::sampleRulebase());
        ASSERT_TRUE(session.started);
        frmMain &window = session.window;
        Application &app = session.app;
        const std::shared_ptr<Rulebase> rulebase = app.rulebase();

        // Off until the authority items view stands.
        EXPECT_TRUE(window.tool(u"tlAuthorisedItems"_s)->isEnabled());
        EXPECT_FALSE(window.tool(u"tlAuthorisedReference"_s)->isEnabled());
        window.tool(u"tlAuthorisedItems"_s)->trigger();
        ASSERT_NE(dynamic_cast<AuthorisedItemsView *>(app.CurrentView()), nullptr);
        EXPECT_TRUE(window.tool(u"tlAuthorisedItems"_s)->isChecked());
        EXPECT_TRUE(window.tool(u"tlAuthorisedReference"_s)->isEnabled());
        EXPECT_TRUE(window.tool(u"tlAddFromProject"_s)->isEnabled());
        EXPECT_EQ(window.tvwMain()->model()->rowCount(), 3);
        EXPECT_EQ(window.lvwMain()->model()->rowCount(), 4);

        // The references' list, then a new reference through the dialog.
        window.tvwMain()->setCurrentIndex(window.tvwMain()->model()->index(1, 0));
        EXPECT_EQ(window.lvwMain()->model()->headerData(2, Qt::Horizontal).toString(),
                  u"Filename"_s);
        whenModal(u"frmAuthorisedReference"_s, [](QDialog &dialog) {
            EXPECT_EQ(dialog.windowTitle(), u"Authorised Reference"_s);
            QPushButton *ok = child<QPushButton>(dialog, "cmdOK");
            EXPECT_FALSE(ok->isEnabled());
            EXPECT_FALSE(child<QPlainTextEdit>(dialog, "txtAdvice")->isEnabled());
            EXPECT_EQ(child<QPushButton>(dialog, "cmdBrowse")->text(), u"Browse For Reference"_s);
            child<QLineEdit>(dialog, "txtDescription")->setText(u"Window Test Library"_s);
            child<QLineEdit>(dialog, "txtGUID")
                ->setText(u"{12345678-AAAA-BBBB-CCCC-1234567890AB}"_s);
            EXPECT_TRUE(ok->isEnabled());
            child<QLineEdit>(dialog, "txtVersions")->setText(u"1.0"_s);
            EXPECT_TRUE(child<QPlainTextEdit>(dialog, "txtAdvice")->isEnabled());
            child<QPlainTextEdit>(dialog, "txtAdvice")->setPlainText(u"Use 1.0 only."_s);
            ok->click();
        });
        window.tool(u"tlAuthorisedReference"_s)->trigger();
        ASSERT_TRUE(rulebase->AuthorisedReferences()->Contains(
            u"{12345678-AAAA-BBBB-CCCC-1234567890AB}"_s));
        const auto added
            = rulebase->AuthorisedReferences()->Item(u"{12345678-AAAA-BBBB-CCCC-1234567890AB}"_s);
        EXPECT_EQ(added->Description(), u"Window Test Library"_s);
        EXPECT_EQ(added->VersionList(), u"1.0"_s);
        EXPECT_EQ(added->Advice(), u"Use 1.0 only."_s);
        EXPECT_EQ(window.lvwMain()->model()->rowCount(), 5);
        EXPECT_EQ(window.findChild<QLabel *>(u"lblStatus"_s)->text(), u"5 Items"_s);

        // A project file from the desktop, dropped on the list, goes through the import dialog.
        const QString project = TestEnvironment::makeTempDir() + u"/Dropped.vbp"_s;
        TestEnvironment::writeFile(
            project,
            "Type=Exe\r\nObject={FEDCBA98-0000-0000-0000-000000000001}#1.0#0; "
            "dropped.ocx\r\nName=\"D\"\r\n");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(project)});
        QWidget *viewport = window.lvwMain()->viewport();
        QDragEnterEvent enter(
            QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &enter);
        EXPECT_TRUE(enter.isAccepted());
        EXPECT_EQ(enter.dropAction(), Qt::CopyAction);

        whenModal(u"frmAddFromProject"_s, [](QDialog &dialog) {
            auto *items = child<QTreeWidget>(dialog, "lvwItems");
            EXPECT_EQ(items->topLevelItemCount(), 1);
            EXPECT_EQ(items->topLevelItem(0)->text(0), u"dropped.ocx"_s);
            EXPECT_EQ(items->headerItem()->text(0), u"Component"_s);
            child<QPushButton>(dialog, "cmdOK")->click();
        });
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &drop);
        EXPECT_TRUE(drop.isAccepted());
        EXPECT_TRUE(waitFor([&] {
            return rulebase->AuthorisedComponents()->Contains(
                u"{FEDCBA98-0000-0000-0000-000000000001}"_s);
        }));
        ASSERT_FALSE(ui.messages.empty());
        EXPECT_EQ(ui.messages.back().text,
                  u"1 new component and 3 new references were found for the selected projects."_s);

        // Another view takes no files.
        window.tool(u"tlCategoryView"_s)->trigger();
        EXPECT_FALSE(window.tool(u"tlAuthorisedReference"_s)->isEnabled());
        QDragEnterEvent refused(
            QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &refused);
        EXPECT_FALSE(refused.isAccepted());

        ui.answers = {MessageResult::No}; // not saving the changes
        EXPECT_TRUE(window.close());
    }
}
