#include "editors/PatternTestForm.h"
#include "editors/ScriptPattern.h"

#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ScriptPattern, KeepsTheAuthorsMeaningAndTellsTheFiveFaultsWithTheirPosition)
{
    // Case is ignored unless asked for.
    EXPECT_TRUE(ScriptPattern("GOTO", false).test("x = 1: goto Fail"));
    EXPECT_FALSE(ScriptPattern("GOTO", true).test("x = 1: goto Fail"));
    // "$" is the very end of the text, not the place before a final line end.
    EXPECT_TRUE(ScriptPattern("End$", true).test("End"));
    EXPECT_FALSE(ScriptPattern("End$", true).test("End\n"));
    EXPECT_TRUE(ScriptPattern("[$]", true).test("a$b"));
    EXPECT_TRUE(ScriptPattern("\\$", true).test("a$b"));
    EXPECT_TRUE(ScriptPattern("^Dim ", true).test("Dim x"));
    EXPECT_FALSE(ScriptPattern("^Dim ", true).test(" Dim x"));
    // An empty text is a normal test.
    EXPECT_FALSE(ScriptPattern("x", false).test(QString()));
    EXPECT_TRUE(ScriptPattern("x*", false).test(QString()));

    // The five faults, told with their position.
    const struct
    {
        const char *pattern;
        ScriptPattern::Fault fault;
    } cases[] = {
        {"(abc", ScriptPattern::MissingParenthesis},
        {"[abc", ScriptPattern::MissingBracket},
        {"[z-a]", ScriptPattern::InvalidRange},
        {"*abc", ScriptPattern::UnexpectedQuantifier},
        {"abc)", ScriptPattern::SyntaxError},
    };
    for (const auto &c : cases) {
        const ScriptPattern pattern(QString::fromLatin1(c.pattern), false);
        EXPECT_FALSE(pattern.isValid()) << c.pattern;
        EXPECT_EQ(pattern.fault(), c.fault)
            << c.pattern << " " << pattern.engineError().toStdString();
        EXPECT_TRUE(pattern.faultMessage().startsWith(ScriptPattern::FaultText(c.fault)))
            << c.pattern;
        EXPECT_FALSE(pattern.test("abc"));
    }
    // Positions count in the author's pattern, past the "$" the engine sees differently.
    const ScriptPattern late("a$b$(", true);
    EXPECT_EQ(late.fault(), ScriptPattern::MissingParenthesis);
    EXPECT_EQ(late.faultOffset(), 5);
    EXPECT_TRUE(late.faultMessage().endsWith(u"position 6 of the pattern."_s));
    const ScriptPattern range("ab[9-0]", true);
    EXPECT_GE(range.faultOffset(), 3);
    EXPECT_LE(range.faultOffset(), 6);
}

TEST(PatternTestForm, TestsWithoutClosingAndHandsThePatternBack)
{
    ScriptedUserInterface ui;
    PatternTestForm form;
    form.setPattern("^Public ");
    form.Load();
    auto &s = form.screen();
    EXPECT_EQ(s.txtPattern, u"^Public "_s);
    EXPECT_TRUE(form.cmdTestEnabled());

    s.txtText = "public Sub Foo";
    form.cmdTest_Click();
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text, u"A match for the pattern was found in the text."_s);
    EXPECT_EQ(ui.messages[0].icon, MessageIcon::Information);
    s.chkCaseSensitive = true;
    form.cmdTest_Click();
    EXPECT_EQ(ui.messages.back().text, u"No match for the pattern was found in the text."_s);

    // A faulty pattern gives its warning and stays in the field.
    s.txtPattern = "^(Public ";
    form.cmdTest_Click();
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Exclamation);
    EXPECT_TRUE(
        ui.messages.back().text.startsWith(u"There is a missing ')' in the regular expression."_s));
    EXPECT_EQ(s.txtPattern, u"^(Public "_s);

    // Cancel keeps the pattern the dialog was given; OK takes the faulty one untested.
    form.cmdCancel_Click();
    EXPECT_TRUE(form.Cancelled());
    EXPECT_EQ(form.Pattern(), u"^Public "_s);
    const auto shown = ui.messages.size();
    form.cmdOK_Click();
    EXPECT_FALSE(form.Cancelled());
    EXPECT_EQ(form.Pattern(), u"^(Public "_s);
    EXPECT_EQ(ui.messages.size(), shown);

    s.txtPattern.clear();
    EXPECT_FALSE(form.cmdTestEnabled());
}
