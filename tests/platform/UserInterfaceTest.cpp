#include "platform/UserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// Before a window or console installs itself, nobody can be asked: no file is chosen and every
// question, whatever its default, gets the answer that changes nothing.
TEST(UserInterface, WithNoneInstalledNothingIsChosenAndNoQuestionChangesAnything)
{
    UserInterface &ui = UserInterface::current();
    FileDialogRequest request;
    EXPECT_FALSE(ui.getOpenFilename(request));
    EXPECT_FALSE(ui.getSaveFilename(request));
    QString value = u"proposed"_s;
    EXPECT_FALSE(ui.getText(u"Organisation?"_s, QString(), value));
    EXPECT_EQ(askYesNoCancel(u"Save changes?"_s, MessageResult::Yes), MessageResult::Cancel);
    EXPECT_EQ(askYesNo(u"Delete the rule?"_s, MessageResult::Yes), MessageResult::No);
    EXPECT_EQ(ui.messageBox(u"Go on?"_s,
                            MessageButtons::OKCancel,
                            MessageIcon::Question,
                            QString(),
                            MessageResult::OK),
              MessageResult::Cancel);
}
