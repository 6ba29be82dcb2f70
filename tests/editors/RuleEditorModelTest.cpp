#include "editors/RuleEditorModel.h"
#include "rulebase/IRule.h"

#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString valid = u"Sub Main\n  Call Quorin.RaiseViolation()\nEnd Sub\n"_s;
const QString faulty = u"Sub Main\n  If x Then\nEnd Sub\n"_s;
const QString syntaxTitle = u"Quorin Administrator - Syntax Error"_s;

RuleEditorModel model(const QString &opening, qint32 ruleType = RuleTypes::CodingConvention)
{
    RuleEditorModel m;
    m.setRuleType(ruleType);
    m.setRuleCode(opening);
    return m;
}

} // namespace

TEST(RuleEditorModel, PlaceholdersBecomeCallsSplitAtTheFirstDot)
{
    EXPECT_EQ(RuleEditorModel::ObjectPropertyText(u"%File.A.B%"_s),
              u"Quorin.GetObjectProperty(\"File\", \"A.B\")"_s);
    EXPECT_EQ(RuleEditorModel::ObjectWorkfieldText(u"%File.WF.a.b%"_s),
              u"Quorin.GetObjectWorkField(\"File\", \"a.b\")"_s);
    EXPECT_EQ(RuleEditorModel::ObjectPropertyText(QString()), QString());
    EXPECT_EQ(RuleEditorModel::ObjectWorkfieldText(u"%Procedure%"_s), QString());
    const auto at = RuleEditorModel::InsertScriptText(u"ab"_s, 99, u"X"_s, -1);
    EXPECT_EQ(at.content, u"abX"_s);
}

TEST(RuleEditorModel, ConditionAndSyntaxChecksShowTheFirstRefusal)
{
    ScriptedUserInterface ui;
    RuleEditorModel coding = model({});
    EXPECT_FALSE(coding.CheckCondition(u"Sub Main()\nEnd Sub"_s));
    EXPECT_FALSE(coding.CheckCondition(faulty));
    EXPECT_EQ(coding.ErrorLine(), 2);
    EXPECT_TRUE(coding.CheckCondition(valid));
    EXPECT_EQ(coding.ErrorLine(), 0);
    // The syntax tool checks the syntax alone: a second procedure is not its business.
    EXPECT_TRUE(coding.CheckSyntax(u"Sub Main\nEnd Sub\nSub Other\nEnd Sub"_s));
    EXPECT_FALSE(coding.CheckSyntax(faulty));
    EXPECT_EQ(coding.ErrorColumn(), 3);

    // A naming condition must apply its convention; an empty one needs not.
    RuleEditorModel naming = model({}, RuleTypes::NamingConvention);
    EXPECT_FALSE(naming.SaveAndCloseForm(valid));
    EXPECT_TRUE(naming.Cancelled());
    EXPECT_TRUE(naming.CheckCondition(u"Sub Main\n'Quorin.ApplyConvention\nEnd Sub"_s));
    EXPECT_TRUE(naming.SaveAndCloseForm(QString()));
    EXPECT_FALSE(naming.Cancelled());
    naming.CloseForm();
    EXPECT_TRUE(naming.Cancelled());

    ASSERT_EQ(ui.messages.size(), 5u);
    EXPECT_EQ(ui.messages[0].text,
              u"Quorin rule conditions do not support the use of Subs, Functions or Property "
              u"procedures other than the required Sub Main."_s);
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(ui.messages[1].text,
              u"line 2, column 3: Block If without End If Please fix before trying "
              u"to save the condition."_s);
    EXPECT_EQ(ui.messages[1].title, syntaxTitle);
    EXPECT_EQ(ui.messages[2].text, u"Syntax correct."_s);
    EXPECT_EQ(ui.messages[2].icon, MessageIcon::Information);
    EXPECT_EQ(ui.messages[3].text, u"line 2, column 3: Block If without End If"_s);
    EXPECT_EQ(ui.messages[3].title, syntaxTitle);
    EXPECT_EQ(
        ui.messages[4].text,
        u"A naming convention condition, if set, must contain the line Quorin.ApplyConvention "
        u"to notify the parser that the convention must be applied."_s);
}

TEST(RuleEditorModel, ClosingAsksOnlyAboutRealChangesAndFollowsTheEditorsState)
{
    ScriptedUserInterface ui;
    using U = RuleEditorModel::Unload;
    const QString changed = valid + u"' more\n"_s;

    // A change of case or of line ends is no change: nothing is asked and the edit is lost.
    RuleEditorModel m = model(u"Sub Main\r\nx = 1\r\nEnd Sub"_s);
    EXPECT_TRUE(m.CloseTool(u"SUB MAIN\nX = 1\nEND SUB"_s));
    EXPECT_TRUE(m.Cancelled());
    // Unchanged: the editor's busy answers hold the frame's close up.
    m = model(valid);
    EXPECT_EQ(m.QueryUnload(valid, true, -1), U::RetryLater);
    EXPECT_EQ(m.QueryUnload(valid, true, 1), U::Stay);
    EXPECT_EQ(m.QueryUnload(valid, true, 0), U::Close);
    EXPECT_TRUE(ui.messages.empty());

    // Yes with a faulty script: the fault is shown and the editor stays.
    ui.answers = {MessageResult::Yes};
    EXPECT_FALSE(m.CloseTool(faulty));
    EXPECT_FALSE(m.SaveOnClose());
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(ui.messages[0].defaultButton, MessageResult::Cancel);
    EXPECT_EQ(ui.messages[1].title, syntaxTitle);
    ui.answers = {MessageResult::Yes};
    EXPECT_EQ(m.QueryUnload(faulty, true, 0), U::Stay);

    // Yes: saved on the way out, even while the editor says it is busy.
    ui.answers = {MessageResult::Yes};
    EXPECT_EQ(m.QueryUnload(changed, true, -1), U::Close);
    EXPECT_FALSE(m.Cancelled());
    EXPECT_FALSE(m.SaveOnClose());

    // The program's own close asks nothing and leaves Cancelled as it stands.
    m = model(valid);
    ui.messages.clear();
    EXPECT_EQ(m.QueryUnload(faulty, false, 0), U::Close);
    EXPECT_EQ(m.QueryUnload(faulty, false, -1), U::RetryLater);
    EXPECT_TRUE(m.Cancelled());
    EXPECT_TRUE(ui.messages.empty());
    EXPECT_EQ(ui.unscriptedQuestions, 0);
}
