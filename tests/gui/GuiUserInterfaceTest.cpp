#include "gui/GuiUserInterface.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

#include "GuiTestSupport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

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
        whenModal(u"QuorinMessageBox"_s, [](QDialog &box) {
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QApplication::sendEvent(&box, &enter);
        });
        EXPECT_EQ(
            ui.messageBox(
                u"Delete it?"_s, c.buttons, MessageIcon::Question, u"Test"_s, c.defaultButton),
            c.defaultButton);
    }
}

TEST(GuiUserInterface, ProjectBrowsingOffersProjectsAndGroupsTogetherFirst)
{
    const QString first = GuiUserInterface::qtFilter(5, false).split(u";;"_s).first();
    EXPECT_TRUE(first.contains("*.vbp"_L1) && first.contains("*.vbg"_L1)) << first.toStdString();
}
