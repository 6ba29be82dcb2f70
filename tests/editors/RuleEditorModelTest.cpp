#include "editors/RuleEditorModel.h"
#include "rulebase/IRule.h"
#include "vocabulary/ObjectListType.h"

#include "support/ScriptedUserInterface.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

const QString valid = QStringLiteral("Sub Main\n  Call Quorin.RaiseViolation()\nEnd Sub\n");
const QString faulty = QStringLiteral("Sub Main\n  If x Then\nEnd Sub\n");
const QString question = QStringLiteral("Do you want to save your changes?");
const QString syntaxTitle = QStringLiteral("Quorin Administrator - Syntax Error");

RuleEditorModel model(const QString &opening, qint32 ruleType = RuleTypes::CodingConvention)
{
    RuleEditorModel m;
    m.setRuleType(ruleType);
    m.setRuleCode(opening);
    return m;
}

} // namespace

TEST(RuleEditorModel, CaptionNamesTheRuleByIdAndTitle)
{
    RuleEditorModel m;
    EXPECT_EQ(m.Caption(), QStringLiteral("Condition Editor"));
    m.setRuleID(12);
    EXPECT_EQ(m.Caption(), QStringLiteral("Condition Editor")); // an id alone says nothing
    m.setRuleTitle(QStringLiteral("No GoTo"));
    EXPECT_EQ(m.Caption(), QStringLiteral("Condition Editor - [0012] No GoTo"));
    m.setRuleID(5000);
    EXPECT_EQ(m.Caption(), QStringLiteral("Condition Editor - [5000] No GoTo"));
    m.setRuleID(123456);
    EXPECT_EQ(m.Caption(), QStringLiteral("Condition Editor - [123456] No GoTo"));
    m.setRuleID(0);
    EXPECT_EQ(m.Caption(), QStringLiteral("Condition Editor - No GoTo"));
}

TEST(RuleEditorModel, InsertToolsPutTheirCallsAtTheCaret)
{
    EXPECT_EQ(RuleEditorModel::ToolText(QStringLiteral("tlRaiseViolation")),
              QStringLiteral("Call Quorin.RaiseViolation()\r\n"));
    EXPECT_EQ(RuleEditorModel::ToolText(QStringLiteral("TLCANCELPV")),
              QStringLiteral("Call Quorin.CancelPendingViolation()\r\n"));
    EXPECT_EQ(RuleEditorModel::ToolText(QStringLiteral("tlApplyConvention")),
              QStringLiteral("Quorin.ApplyConvention\r\n"));
    EXPECT_EQ(RuleEditorModel::ToolText(QStringLiteral("tlUndo")), QString());

    // At position 0 the line goes in front of everything, the caret behind it.
    auto at = RuleEditorModel::InsertScriptText(
        QStringLiteral("Sub Main"), 0, QStringLiteral("X\r\n"), -1);
    EXPECT_EQ(at.content, QStringLiteral("X\r\nSub Main"));
    EXPECT_EQ(at.caret, 3);
    at = RuleEditorModel::InsertScriptText(QStringLiteral("abcd"), 2, QStringLiteral("XY"), -1);
    EXPECT_EQ(at.content, QStringLiteral("abXYcd"));
    EXPECT_EQ(at.caret, 4);
    at = RuleEditorModel::InsertScriptText(QStringLiteral("abcd"), 4, QStringLiteral("XY"), 1);
    EXPECT_EQ(at.content, QStringLiteral("abcdXY"));
    EXPECT_EQ(at.caret, 5);
    at = RuleEditorModel::InsertScriptText(QStringLiteral("ab"), 99, QStringLiteral("X"), -1);
    EXPECT_EQ(at.content, QStringLiteral("abX"));

    EXPECT_EQ(RuleEditorModel::ObjectPropertyText(QStringLiteral("%Procedure.Name%")),
              QStringLiteral("Quorin.GetObjectProperty(\"Procedure\", \"Name\")"));
    // The property is everything behind the first dot.
    EXPECT_EQ(RuleEditorModel::ObjectPropertyText(QStringLiteral("%File.A.B%")),
              QStringLiteral("Quorin.GetObjectProperty(\"File\", \"A.B\")"));
    EXPECT_EQ(RuleEditorModel::ObjectWorkfieldText(QStringLiteral("%Procedure.WF.Count%")),
              QStringLiteral("Quorin.GetObjectWorkField(\"Procedure\", \"Count\")"));
    EXPECT_EQ(RuleEditorModel::ObjectWorkfieldText(QStringLiteral("%File.WF.a.b%")),
              QStringLiteral("Quorin.GetObjectWorkField(\"File\", \"a.b\")"));
    EXPECT_EQ(RuleEditorModel::ObjectPropertyText(QString()), QString());
    EXPECT_EQ(RuleEditorModel::ObjectWorkfieldText(QStringLiteral("%Procedure%")), QString());
    EXPECT_EQ(RuleEditorModel::ParserEventText(QStringLiteral("begin Project")),
              QStringLiteral("Quorin.ParserEvent() = \"begin Project\""));

    EXPECT_EQ(model({}, RuleTypes::CodingConvention).WorkfieldListType(),
              ObjectListType::CodingConvention);
    EXPECT_EQ(model({}, RuleTypes::NamingConvention).WorkfieldListType(),
              ObjectListType::NamingConvention);
}

TEST(RuleEditorModel, CheckConditionShowsTheFirstRefusal)
{
    ScriptedUserInterface ui;
    RuleEditorModel coding = model({});
    EXPECT_FALSE(coding.CheckCondition(QStringLiteral("Sub Main()\nEnd Sub")));
    EXPECT_FALSE(coding.CheckCondition(faulty));
    EXPECT_EQ(coding.ErrorLine(), 2);
    EXPECT_TRUE(coding.CheckCondition(valid));
    EXPECT_EQ(coding.ErrorLine(), 0);

    RuleEditorModel naming = model({}, RuleTypes::NamingConvention);
    EXPECT_FALSE(naming.CheckCondition(valid));
    EXPECT_TRUE(naming.CheckCondition(QString()));
    EXPECT_TRUE(
        naming.CheckCondition(QStringLiteral("Sub Main\n'Quorin.ApplyConvention\nEnd Sub")));

    ASSERT_EQ(ui.messages.size(), 3u);
    EXPECT_EQ(ui.messages[0].text,
              QStringLiteral(
                  "Quorin rule conditions do not support the use of Subs, Functions or Property "
                  "procedures other than the required Sub Main."));
    EXPECT_EQ(ui.messages[0].title, QStringLiteral("Quorin Administrator"));
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(ui.messages[1].text,
              QStringLiteral("line 2, column 3: Block If without End If Please fix before trying "
                             "to save the condition."));
    EXPECT_EQ(ui.messages[1].title, syntaxTitle);
    EXPECT_EQ(
        ui.messages[2].text,
        QStringLiteral(
            "A naming convention condition, if set, must contain the line Quorin.ApplyConvention "
            "to notify the parser that the convention must be applied."));
}

TEST(RuleEditorModel, CheckSyntaxReportsEitherOutcome)
{
    ScriptedUserInterface ui;
    RuleEditorModel m = model({});
    EXPECT_TRUE(m.CheckSyntax(valid));
    // The syntax tool checks the syntax alone: a second procedure is not its business.
    EXPECT_TRUE(m.CheckSyntax(QStringLiteral("Sub Main\nEnd Sub\nSub Other\nEnd Sub")));
    EXPECT_FALSE(m.CheckSyntax(faulty));
    EXPECT_EQ(m.ErrorLine(), 2);
    EXPECT_EQ(m.ErrorColumn(), 3);
    ASSERT_EQ(ui.messages.size(), 3u);
    EXPECT_EQ(ui.messages[0].text, QStringLiteral("Syntax correct."));
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(ui.messages[0].title, QStringLiteral("Quorin Administrator"));
    EXPECT_EQ(ui.messages[2].text, QStringLiteral("line 2, column 3: Block If without End If"));
    EXPECT_EQ(ui.messages[2].icon, MessageIcon::Exclamation);
    EXPECT_EQ(ui.messages[2].title, syntaxTitle);
}

TEST(RuleEditorModel, CloseAsksOnlyAboutRealChanges)
{
    ScriptedUserInterface ui;
    // A change of case or of line ends is no change: nothing is asked and the edit is lost.
    RuleEditorModel m = model(QStringLiteral("Sub Main\r\nx = 1\r\nEnd Sub"));
    EXPECT_TRUE(m.CloseTool(QStringLiteral("SUB MAIN\nX = 1\nEND SUB")));
    EXPECT_TRUE(m.Cancelled());
    EXPECT_TRUE(ui.messages.empty());

    // No: close without saving.
    m = model(valid);
    ui.answers = {MessageResult::No};
    EXPECT_TRUE(m.CloseTool(valid + QStringLiteral("' more\n")));
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
    EXPECT_TRUE(m.CloseTool(valid + QStringLiteral("' more\n")));
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
    const QString changed = valid + QStringLiteral("' more\n");

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
