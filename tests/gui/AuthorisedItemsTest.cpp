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
        EXPECT_TRUE(window.tool(QStringLiteral("tlAuthorisedItems"))->isEnabled());
        EXPECT_FALSE(window.tool(QStringLiteral("tlAuthorisedReference"))->isEnabled());
        window.tool(QStringLiteral("tlAuthorisedItems"))->trigger();
        ASSERT_NE(dynamic_cast<AuthorisedItemsView *>(app.CurrentView()), nullptr);
        EXPECT_TRUE(window.tool(QStringLiteral("tlAuthorisedItems"))->isChecked());
        EXPECT_TRUE(window.tool(QStringLiteral("tlAuthorisedReference"))->isEnabled());
        EXPECT_TRUE(window.tool(QStringLiteral("tlAddFromProject"))->isEnabled());
        EXPECT_EQ(window.tvwMain()->model()->rowCount(), 3);
        EXPECT_EQ(window.lvwMain()->model()->rowCount(), 4);

        // The references' list, then a new reference through the dialog.
        window.tvwMain()->setCurrentIndex(window.tvwMain()->model()->index(1, 0));
        EXPECT_EQ(window.lvwMain()->model()->headerData(2, Qt::Horizontal).toString(),
                  QStringLiteral("Filename"));
        whenModal(QStringLiteral("frmAuthorisedReference"), [](QDialog &dialog) {
            EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Authorised Reference"));
            QPushButton *ok = child<QPushButton>(dialog, "cmdOK");
            EXPECT_FALSE(ok->isEnabled());
            EXPECT_FALSE(child<QPlainTextEdit>(dialog, "txtAdvice")->isEnabled());
            EXPECT_EQ(child<QPushButton>(dialog, "cmdBrowse")->text(),
                      QStringLiteral("Browse For Reference"));
            child<QLineEdit>(dialog, "txtDescription")
                ->setText(QStringLiteral("Window Test Library"));
            child<QLineEdit>(dialog, "txtGUID")
                ->setText(QStringLiteral("{12345678-AAAA-BBBB-CCCC-1234567890AB}"));
            EXPECT_TRUE(ok->isEnabled());
            child<QLineEdit>(dialog, "txtVersions")->setText(QStringLiteral("1.0"));
            EXPECT_TRUE(child<QPlainTextEdit>(dialog, "txtAdvice")->isEnabled());
            child<QPlainTextEdit>(dialog, "txtAdvice")
                ->setPlainText(QStringLiteral("Use 1.0 only."));
            ok->click();
        });
        window.tool(QStringLiteral("tlAuthorisedReference"))->trigger();
        ASSERT_TRUE(rulebase->AuthorisedReferences()->Contains(
            QStringLiteral("{12345678-AAAA-BBBB-CCCC-1234567890AB}")));
        const auto added = rulebase->AuthorisedReferences()->Item(
            QStringLiteral("{12345678-AAAA-BBBB-CCCC-1234567890AB}"));
        EXPECT_EQ(added->Description(), QStringLiteral("Window Test Library"));
        EXPECT_EQ(added->VersionList(), QStringLiteral("1.0"));
        EXPECT_EQ(added->Advice(), QStringLiteral("Use 1.0 only."));
        EXPECT_EQ(window.lvwMain()->model()->rowCount(), 5);
        EXPECT_EQ(window.findChild<QLabel *>(QStringLiteral("lblStatus"))->text(),
                  QStringLiteral("5 Items"));

        // A project file from the desktop, dropped on the list, goes through the import dialog.
        const QString project = TestEnvironment::makeTempDir() + QStringLiteral("/Dropped.vbp");
        TestEnvironment::writeFile(project,
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

        whenModal(QStringLiteral("frmAddFromProject"), [](QDialog &dialog) {
            auto *items = child<QTreeWidget>(dialog, "lvwItems");
            EXPECT_EQ(items->topLevelItemCount(), 1);
            EXPECT_EQ(items->topLevelItem(0)->text(0), QStringLiteral("dropped.ocx"));
            EXPECT_EQ(items->headerItem()->text(0), QStringLiteral("Component"));
            child<QPushButton>(dialog, "cmdOK")->click();
        });
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &drop);
        EXPECT_TRUE(drop.isAccepted());
        EXPECT_TRUE(waitFor([&] {
            return rulebase->AuthorisedComponents()->Contains(
                QStringLiteral("{FEDCBA98-0000-0000-0000-000000000001}"));
        }));
        ASSERT_FALSE(ui.messages.empty());
        EXPECT_EQ(
            ui.messages.back().text,
            QStringLiteral(
                "1 new component and 3 new references were found for the selected projects."));

        // Another view takes no files.
        window.tool(QStringLiteral("tlCategoryView"))->trigger();
        EXPECT_FALSE(window.tool(QStringLiteral("tlAuthorisedReference"))->isEnabled());
        QDragEnterEvent refused(
            QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(viewport, &refused);
        EXPECT_FALSE(refused.isAccepted());

        ui.answers = {MessageResult::No}; // not saving the changes
        EXPECT_TRUE(window.close());
    }
}
