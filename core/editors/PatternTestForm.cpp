#include "editors/PatternTestForm.h"

#include "editors/ScriptPattern.h"
#include "platform/ErrorFrame.h"
#include "platform/UserInterface.h"

const char *const PatternTestForm::caption = "Pattern Test";

void PatternTestForm::cmdTest_Click()
{
    guardedVoid("cmdTest_Click", "frmPatternTest", [this] {
        const ScriptPattern pattern(m_screen.txtPattern, m_screen.chkCaseSensitive);
        if (!pattern.isValid()) {
            showWarning(pattern.faultMessage());
            return;
        }
        UserInterface::current().messageBox(
            pattern.test(m_screen.txtText)
                ? QStringLiteral("A match for the pattern was found in the text.")
                : QStringLiteral("No match for the pattern was found in the text."),
            MessageButtons::OK,
            MessageIcon::Information,
            programTitle(),
            MessageResult::OK);
    });
}

void PatternTestForm::cmdOK_Click()
{
    m_pattern = m_screen.txtPattern;
    m_cancelled = false;
}
