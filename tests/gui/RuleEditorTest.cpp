#include "GuiTestSupport.h"

#include "gui/editor/BasicEditor.h"
#include "gui/editor/RuleEditorPickers.h"
#include "gui/editor/frmRuleEditor.h"
#include "rulebase/IRule.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(RuleEditor, MarksAnErrorWhileTypingAndSavesOnceItIsFixed)
{
    ScriptedUserInterface ui;
    frmRuleEditor dialog;
    dialog.setRuleType(RuleTypes::CodingConvention);
    dialog.setRuleID(12);
    dialog.setRuleTitle(u"No GoTo"_s);
    dialog.setRuleCode(u"Sub Main\r\n  x = 1\r\nEnd Sub\r\n"_s);
    EXPECT_EQ(dialog.windowTitle(), u"Condition Editor - [0012] No GoTo"_s);
    EXPECT_TRUE(dialog.Cancelled());

    QStringList menus;
    for (QAction *menu : dialog.findChild<QMenuBar *>(u"abMain"_s)->actions())
        menus << menu->text();
    EXPECT_EQ(menus, (QStringList{"&Condition", "&Edit", "&Insert", "&Help"}));
    EXPECT_EQ(dialog.findChild<QMenu *>(u"mnuInsert"_s)->actions().size(), 6);
    EXPECT_EQ(dialog.tool(u"tlSaveAndClose"_s)->toolTip(), u"Save the condition and close"_s);
    EXPECT_EQ(dialog.tool(u"tlCheckSyntax"_s)->text(), u"Check S&yntax"_s);
    EXPECT_NE(dialog.findChild<QToolBar *>(u"tlbTools"_s), nullptr);

    BasicEditor *editor = dialog.findChild<BasicEditor *>(u"sbMain"_s);
    ASSERT_NE(editor, nullptr);
    editor->setRecheckDelay(10);
    dialog.show();

    // A block If without its end, typed behind "  x = 1": the new line keeps the indent.
    editor->goTo(2, 8);
    typeKeys(editor, u"\nIf y Then"_s);
    EXPECT_EQ(editor->toPlainText(), u"Sub Main\n  x = 1\n  If y Then\nEnd Sub\n"_s);
    ASSERT_TRUE(waitFor([&] { return editor->markOfLine(3) == BasicEditor::Mark::Error; }));
    EXPECT_EQ(editor->messagesOfLine(3), QStringList{u"Block If without End If"_s});
    EXPECT_EQ(editor->markOfLine(2), BasicEditor::Mark::None);

    // Refused with the checker's words; the caret goes to the fault.
    editor->setCaretPosition(0);
    dialog.tool(u"tlSaveAndClose"_s)->trigger();
    EXPECT_TRUE(dialog.isVisible());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text,
              u"line 3, column 3: Block If without End If Please fix before trying "
              u"to save the condition."_s);
    EXPECT_EQ(ui.messages[0].title, u"Quorin Administrator - Syntax Error"_s);
    EXPECT_EQ(editor->textCursor().blockNumber(), 2);

    // Fixed, with a violation raised inside the If: Enter goes one level (the text's two
    // spaces) deeper, and "End If" finds the If's indentation as it is typed.
    editor->goTo(3, 12);
    typeKeys(editor, u"\n"_s);
    dialog.tool(u"tlRaiseViolation"_s)->trigger();
    typeKeys(editor, u"End If"_s);
    ASSERT_TRUE(waitFor([&] { return editor->markOfLine(3) == BasicEditor::Mark::None; }));
    EXPECT_TRUE(editor->errors().empty());

    // Undo and redo go through the editor's own history.
    const QString fixed = editor->toPlainText();
    dialog.tool(u"tlUndo"_s)->trigger();
    EXPECT_NE(editor->toPlainText(), fixed);
    dialog.tool(u"tlRedo"_s)->trigger();
    EXPECT_EQ(editor->toPlainText(), fixed);

    dialog.tool(u"tlSaveAndClose"_s)->trigger();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_FALSE(dialog.Cancelled());
    EXPECT_EQ(
        dialog.RuleCode().toStdString(),
        std::string("Sub Main\r\n  x = 1\r\n  If y Then\r\n    Call Quorin.RaiseViolation()\r\n"
                    "  End If\r\nEnd Sub\r\n"));
    EXPECT_EQ(ui.messages.size(), 1u);
}

TEST(RuleEditor, ClosingAsksAboutChangesAndRunsModally)
{
    ScriptedUserInterface ui;
    {
        // Unchanged: the close tool ends the modal run at once, cancelled.
        frmRuleEditor dialog;
        dialog.setRuleCode(u"Sub Main\nEnd Sub"_s);
        QTimer::singleShot(0, &dialog, [&] { dialog.tool(u"tlClose"_s)->trigger(); });
        EXPECT_EQ(dialog.exec(), QDialog::Rejected);
        EXPECT_TRUE(dialog.Cancelled());
        EXPECT_TRUE(ui.messages.empty());
    }
    {
        frmRuleEditor dialog;
        dialog.setRuleCode(u"Sub Main\r\nEnd Sub"_s);
        dialog.show();
        dialog.editor()->setCaretPosition(0);
        typeKeys(dialog.editor(), u"' note\n"_s);

        // The frame's close asks; Cancel stays, No leaves without the change. Escape asks
        // with Cancel as the default, so Enter next keeps the text as it is.
        ui.answers = {MessageResult::Cancel, MessageResult::No};
        dialog.close();
        EXPECT_TRUE(dialog.isVisible());
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(dialog.editor(), &escape);
        EXPECT_FALSE(dialog.isVisible());
        ASSERT_EQ(ui.messages.size(), 2u);
        EXPECT_EQ(ui.messages[1].defaultButton, MessageResult::Cancel);
        EXPECT_TRUE(dialog.Cancelled());
        EXPECT_EQ(ui.messageTexts(),
                  (QStringList{"Do you want to save your changes?",
                               "Do you want to save your changes?"}));
        EXPECT_EQ(ui.unscriptedQuestions, 0);
    }
    {
        // Yes on the way out saves a passing condition.
        frmRuleEditor dialog;
        dialog.setRuleType(RuleTypes::NamingConvention);
        dialog.setRuleCode(u"Sub Main\nEnd Sub"_s);
        dialog.show();
        dialog.editor()->goTo(2, 1);
        dialog.tool(u"tlApplyConvention"_s)->trigger();
        ui.answers = {MessageResult::Yes};
        dialog.close();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_FALSE(dialog.Cancelled());
        EXPECT_EQ(dialog.RuleCode(), u"Sub Main\r\nQuorin.ApplyConvention\r\nEnd Sub"_s);
    }
}

TEST(RuleEditor, PickersAndCompletionInsertTheVocabulary)
{
    ScriptedUserInterface ui;
    RuleEditorPickers::ObjectRequest asked;
    RuleEditorPickers::setObjectPicker(
        [&](QWidget *, const RuleEditorPickers::ObjectRequest &request) {
            asked = request;
            return request.selectionMode == 3 ? u"%File.WF.Lines%"_s : u"%Procedure.Name%"_s;
        });
    qint32 eventRuleType = 0;
    RuleEditorPickers::setEventPicker([&](QWidget *, qint32 ruleType) {
        eventRuleType = ruleType;
        return u"begin File"_s;
    });

    frmRuleEditor dialog;
    dialog.setRuleType(RuleTypes::NamingConvention);
    dialog.show();
    BasicEditor *editor = dialog.editor();
    editor->clear(); // no skeleton: the inserts alone
    dialog.tool(u"tlObjectProperty"_s)->trigger();
    EXPECT_EQ(asked.selectionMode, 2);
    typeKeys(editor, u"\n"_s);
    dialog.tool(u"tlObjectWorkfield"_s)->trigger();
    EXPECT_EQ(asked.selectionMode, 3);
    EXPECT_NE(asked.workfields, nullptr);
    typeKeys(editor, u"\n"_s);
    dialog.tool(u"tlParserEvent"_s)->trigger();
    EXPECT_EQ(eventRuleType, RuleTypes::NamingConvention);
    EXPECT_EQ(editor->toPlainText(),
              u"Quorin.GetObjectProperty(\"Procedure\", \"Name\")\n"
              u"Quorin.GetObjectWorkField(\"File\", \"Lines\")\n"
              u"Quorin.ParserEvent() = \"begin File\""_s);
    RuleEditorPickers::setObjectPicker({});
    RuleEditorPickers::setEventPicker({});

    // "Quorin." offers the members; choosing one puts it in.
    typeKeys(editor, u"\nCall Quorin.Rai"_s);
    QCompleter *completer = editor->completer();
    ASSERT_TRUE(completer->popup()->isVisible());
    EXPECT_EQ(completer->currentCompletion(), u"RaiseViolation"_s);
    emit completer->activated(completer->currentCompletion());
    EXPECT_TRUE(editor->toPlainText().endsWith(u"\nCall Quorin.RaiseViolation"_s));

    // Inside a property call's first string: the objects, closed by a quote.
    typeKeys(editor, u"\nx = Quorin.GetObjectProperty(\"Proc"_s);
    ASSERT_TRUE(completer->popup()->isVisible());
    emit completer->activated(u"Procedure"_s);
    EXPECT_TRUE(editor->toPlainText().endsWith(u"GetObjectProperty(\"Procedure\""_s));

    // Text comes back as it went in, no-break spaces and all, with CR LF line ends.
    const QString odd = u"Sub Main\n  x = \"a\u00a0b\u00e9\"\r\rEnd Sub\r\n"_s;
    editor->setScript(odd);
    EXPECT_EQ(editor->script(), u"Sub Main\r\n  x = \"a\u00a0b\u00e9\"\r\n\r\nEnd Sub\r\n"_s);
    editor->setScript(u"Quorin.GetObjectProperty"_s);

    // With the caret at the start the line goes in front of everything, the caret behind it.
    editor->setCaretPosition(0);
    dialog.tool(u"tlRaiseViolation"_s)->trigger();
    EXPECT_TRUE(editor->toPlainText().startsWith(
        u"Call Quorin.RaiseViolation()\nQuorin.GetObjectProperty"_s));
    EXPECT_EQ(editor->caretPosition(), 29);
    EXPECT_TRUE(ui.messages.empty());
}
