#include "gui/GuiUserInterface.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

#include "GuiTestSupport.h"

#include <gtest/gtest.h>

TEST(GuiUserInterface, EnterOnAQuestionGivesItsDefaultAnswer)
{
    struct Case
    {
        MessageButtons buttons;
        MessageResult defaultButton;
    };
    const Case cases[] = {
        {MessageButtons::YesNo, MessageResult::No},
        {MessageButtons::YesNo, MessageResult::Yes},
        {MessageButtons::YesNoCancel, MessageResult::No},
        {MessageButtons::YesNoCancel, MessageResult::Cancel},
        {MessageButtons::OKCancel, MessageResult::Cancel},
    };
    GuiUserInterface ui(true);
    for (const Case &c : cases) {
        SCOPED_TRACE(int(c.defaultButton));
        whenModal(QStringLiteral("QuorinMessageBox"), [](QDialog &box) {
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QApplication::sendEvent(&box, &enter);
        });
        EXPECT_EQ(ui.messageBox(QStringLiteral("Delete it?"),
                                c.buttons,
                                MessageIcon::Question,
                                QStringLiteral("Test"),
                                c.defaultButton),
                  c.defaultButton);
    }
}

TEST(GuiUserInterface, ProjectBrowsingOffersProjectsAndGroupsTogetherFirst)
{
    const QString first = GuiUserInterface::qtFilter(5, false).split(QStringLiteral(";;")).first();
    EXPECT_TRUE(first.contains(QLatin1String("*.vbp")) && first.contains(QLatin1String("*.vbg")))
        << first.toStdString();
}
