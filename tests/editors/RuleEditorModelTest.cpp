#include "editors/RuleEditorModel.h"
#include "rulebase/IRule.h"
#include "vocabulary/ObjectListType.h"

#include "support/ScriptedUserInterface.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString valid = u"Sub Main\n  Call Quorin.RaiseViolation()\nEnd Sub\n"_s;
const QString faulty = u"Sub Main\n  If x Then\nEnd Sub\n"_s;
const QString question = u"Do you want to save your changes?"_s;
const QString syntaxTitle = u"Quorin Administrator - Syntax Error"_s;

RuleEditorModel model(const QString &opening, qint32 ruleType = RuleTypes::CodingConvention)
{
    RuleEditorModel m;
    m.setRuleType(ruleType);
    m.setRuleCode(opening);
    return m;
}

} // namespace

TEST(RuleEditorModel, InsertToolsPutTheirCallsAtTheCaret)
{
    EXPECT_EQ(RuleEditorModel::ToolText(u"tlRaiseViolation"_s),
              u"Call Quorin.RaiseViolation()\r\n"_s);
    EXPECT_EQ(RuleEditorModel::ToolText(u"TLCANCELPV"_s),
              u"Call Quorin.CancelPendingViolation()\r\n"_s);
    EXPECT_EQ(RuleEditorModel::ToolText(u"tlApplyConvention"_s), u"Quorin.ApplyConvention\r\n"_s);
    EXPECT_EQ(RuleEditorModel::ToolText(u"tlUndo"_s), QString());

    // At position 0 the line goes in front of everything, the caret behind it.
    auto at = RuleEditorModel::InsertScriptText(u"Sub Main"_s, 0, u"X\r\n"_s, -1);
    EXPECT_EQ(at.content, u"X\r\nSub Main"_s);
    EXPECT_EQ(at.caret, 3);
    at = RuleEditorModel::InsertScriptText(u"abcd"_s, 2, u"XY"_s, -1);
    EXPECT_EQ(at.content, u"abXYcd"_s);
    EXPECT_EQ(at.caret, 4);
    at = RuleEditorModel::InsertScriptText(u"abcd"_s, 4, u"XY"_s, 1);
    EXPECT_EQ(at.content, u"abcdXY"_s);
    EXPECT_EQ(at.caret, 5);
    at = RuleEditorModel::InsertScriptText(u"ab"_s, 99, u"X"_s, -1);
    EXPECT_EQ(at.content, u"abX"_s);

    EXPECT_EQ(RuleEditorModel::ObjectPropertyText(u"%Procedure.Name%"_s),
              u"Quorin.GetObjectProperty(\"Procedure\", \"Name\")"_s);
    // The property is everything behind the first dot.
    EXPECT_EQ(RuleEditorModel::ObjectPropertyText(u"%File.A.B%"_s),
              u"Quorin.GetObjectProperty(\"File\", \"A.B\")"_s);
    EXPECT_EQ(RuleEditorModel::ObjectWorkfieldText(u"%Procedure.WF.Count%"_s),
              u"Quorin.GetObjectWorkField(\"Procedure\", \"Count\")"_s);
    EXPECT_EQ(RuleEditorModel::ObjectWorkfieldText(u"%File.WF.a.b%"_s),
              u"Quorin.GetObjectWorkField(\"File\", \"a.b\")"_s);
    EXPECT_EQ(RuleEditorModel::ObjectPropertyText(QString()), QString());
    EXPECT_EQ(RuleEditorModel::ObjectWorkfieldText(u"%Procedure%"_s), QString());
    EXPECT_EQ(RuleEditorModel::ParserEventText(u"begin Project"_s),
              u"Quorin.ParserEvent() = \"begin Project\""_s);

    EXPECT_EQ(model({}, RuleTypes::CodingConvention).WorkfieldListType(),
              ObjectListType::CodingConvention);
    EXPECT_EQ(model({}, RuleTypes::NamingConvention).WorkfieldListType(),
              ObjectListType::NamingConvention);
}

TEST(RuleEditorModel, CheckConditionShowsTheFirstRefusal)
{
    ScriptedUserInterface ui;
    RuleEditorModel coding = model({});
    EXPECT_FALSE(coding.CheckCondition(u"Sub Main()\nEnd Sub"_s));
    EXPECT_FALSE(coding.CheckCondition(faulty));
    EXPECT_EQ(coding.ErrorLine(), 2);
    EXPECT_TRUE(coding.CheckCondition(valid));
    EXPECT_EQ(coding.ErrorLine(), 0);

    RuleEditorModel naming = model({}, RuleTypes::NamingConvention);
    EXPECT_FALSE(naming.CheckCondition(valid));
    EXPECT_TRUE(naming.CheckCondition(QString()));
    EXPECT_TRUE(naming.CheckCondition(u"Sub Main\n'Quorin.ApplyConvention\nEnd Sub"_s));

    ASSERT_EQ(ui.messages.size(), 3u);
    EXPECT_EQ(ui.messages[0].text,
              u"Quorin rule conditions do not support the use of Subs, Functions or Property "
              u"procedures other than the required Sub Main."_s);
    EXPECT_EQ(ui.messages[0].title, u"Quorin Administrator"_s);
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(ui.messages[1].text,
              u"line 2, column 3: Block If without End If Please fix before trying "
              u"to save the condition."_s);
    EXPECT_EQ(ui.messages[1].title, syntaxTitle);
    EXPECT_EQ(
        ui.messages[2].text,
        u"A naming convention condition, if set, must contain the line Quorin.ApplyConvention "
        u"to notify the parser that the convention must be applied."_s);
}

TEST(RuleEditorModel, CheckSyntaxReportsEitherOutcome)
{
    ScriptedUserInterface ui;
    RuleEditorModel m = model({});
    EXPECT_TRUE(m.CheckSyntax(valid));
    // The syntax tool checks the syntax alone: a second procedure is not its business.
    EXPECT_TRUE(m.CheckSyntax(u"Sub Main\nEnd Sub\nSub Other\nEnd Sub"_s));
    EXPECT_FALSE(m.CheckSyntax(faulty));
    EXPECT_EQ(m.ErrorLine(), 2);
    EXPECT_EQ(m.ErrorColumn(), 3);
    ASSERT_EQ(ui.messages.size(), 3u);
    EXPECT_EQ(ui.messages[0].text, u"Syntax correct."_s);
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(ui.messages[0].title, u"Quorin Administrator"_s);
    EXPECT_EQ(ui.messages[2].text, u"line 2, column 3: Block If without End If"_s);
    EXPECT_EQ(ui.messages[2].icon, MessageIcon::Exclamation);
    EXPECT_EQ(ui.messages[2].title, syntaxTitle);
}

TEST(RuleEditorModel, CloseAsksOnlyAboutRealChanges)
{
    ScriptedUserInterface ui;
    // A change of case or of line ends is no change: nothing is asked and the edit is lost.
    RuleEditorModel m = model(u"Sub Main\r\nx = 1\r\nEnd Sub"_s);
    EXPECT_TRUE(m.CloseTool(u"SUB MAIN\nX = 1\nEND SUB"_s));
    EXPECT_TRUE(m.Cancelled());
    EXPECT_TRUE(ui.messages.empty());

    // No: close without saving.
    m = model(valid);
    ui.answers = {MessageResult::No};
    EXPECT_TRUE(m.CloseTool(valid + u"' more\n"_s));
    EXPECT_TRUE(m.Cancelled());

    // Cancel: stay.
    m = model(valid);
    ui.answers = {MessageResult::Cancel};
    EXPECT_FALSE(m.CloseTool(faulty));
    EXPECT_TRUE(m.Cancelled());

    // Yes with a faulty script: the fault is shown and the editor stays.
    ui.messages.clear();
    ui.answers = {MessageResult::Yes};
    EXPECT_FALSE(m.CloseTool(faulty));
    EXPECT_FALSE(m.SaveOnClose());
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_EQ(ui.messages[0].text, question);
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Question);
    EXPECT_EQ(ui.messages[1].title, syntaxTitle);

    // Yes with a good script: saved, and the flag is spent.
    ui.answers = {MessageResult::Yes};
    EXPECT_TRUE(m.CloseTool(valid + u"' more\n"_s));
    EXPECT_FALSE(m.Cancelled());
    EXPECT_FALSE(m.SaveOnClose());
    EXPECT_EQ(ui.unscriptedQuestions, 0);
}

TEST(RuleEditorModel, SaveAndCloseNeedsAPassingCondition)
{
    ScriptedUserInterface ui;
    RuleEditorModel m = model({}, RuleTypes::NamingConvention);
    EXPECT_FALSE(m.SaveAndCloseForm(valid)); // a naming condition must apply its convention
    EXPECT_TRUE(m.Cancelled());
    EXPECT_TRUE(m.SaveAndCloseForm(QString())); // an empty one needs not
    EXPECT_FALSE(m.Cancelled());
    m.CloseForm();
    EXPECT_TRUE(m.Cancelled());
    EXPECT_EQ(ui.messages.size(), 1u);
}

TEST(RuleEditorModel, TheFrameCloseFollowsTheEditorsStateAndTheSaveQuestion)
{
    ScriptedUserInterface ui;
    using U = RuleEditorModel::Unload;
    const QString changed = valid + u"' more\n"_s;

    // Unchanged: the editor's busy answers hold the close up; a ready one lets it through.
    RuleEditorModel m = model(valid);
    EXPECT_EQ(m.QueryUnload(valid, true, -1), U::RetryLater);
    EXPECT_EQ(m.QueryUnload(valid, true, 1), U::Stay);
    EXPECT_EQ(m.QueryUnload(valid, true, 0), U::Close);
    EXPECT_TRUE(m.Cancelled());
    EXPECT_TRUE(ui.messages.empty());

    // Cancel at the question: stay, and the editor is not asked.
    m = model(valid);
    ui.answers = {MessageResult::Cancel};
    EXPECT_EQ(m.QueryUnload(changed, true, -1), U::Stay);

    // Yes: saved on the way out, even while the editor says it is busy.
    ui.answers = {MessageResult::Yes};
    EXPECT_EQ(m.QueryUnload(changed, true, -1), U::Close);
    EXPECT_FALSE(m.Cancelled());
    EXPECT_FALSE(m.SaveOnClose());

    // Yes with a fault: stay with the fault shown.
    m = model(valid);
    ui.messages.clear();
    ui.answers = {MessageResult::Yes};
    EXPECT_EQ(m.QueryUnload(faulty, true, 0), U::Stay);
    EXPECT_EQ(ui.messages.size(), 2u);

    // The program's own close asks nothing and leaves Cancelled as it stands.
    ui.messages.clear();
    EXPECT_EQ(m.QueryUnload(faulty, false, 0), U::Close);
    EXPECT_EQ(m.QueryUnload(faulty, false, -1), U::RetryLater);
    EXPECT_TRUE(m.Cancelled());
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_EQ(ui.unscriptedQuestions, 0);
}
