#include "editors/UnauthorisedKeywordForm.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

#include "EditorsTestSupport.h"
#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(UnauthorisedKeywordForm, ValidationOrderAndWhatOkWrites)
{
    ScriptedUserInterface ui;
    auto rule = std::make_shared<UnauthorisedKeyword>();
    UnauthorisedKeywordForm form(rule);
    form.setRulebase(EditorsTest::rulebaseWithCategories());
    form.Load();
    auto &s = form.screen();
    EXPECT_EQ(s.cboSeverity.currentItemData(), 1);
    EXPECT_FALSE(s.chkDeclaration || s.chkProcedureDecl || s.chkProcedureBody);

    const auto expectFault = [&](int tab, const QString &control, const QString &message) {
        EXPECT_FALSE(form.cmdOK_Click());
        ASSERT_TRUE(form.lastFault());
        EXPECT_EQ(form.lastFault()->tab, tab);
        EXPECT_EQ(form.lastFault()->controlName(), control);
        EXPECT_EQ(ui.messages.back().text, message);
    };
    expectFault(1, "txtTitle", "Please enter a title for the rule.");
    s.txtTitle = "No End";
    expectFault(2, "txtCondition", "Please enter a pattern to match an unauthorised keyword.");
    // A faulty pattern is not this dialog's business.
    s.txtCondition = "^\\s*End(\\s|$";
    expectFault(
        2, "chkDeclaration", "Please select a parser event for the unauthorised keyword rule.");
    s.chkProcedureBody = true;
    s.chkDeclaration = true;
    expectFault(3, "txtVTitle", "Please enter a title for the violation.");
    EXPECT_TRUE(rule->Title().isEmpty());
    s.txtVTitle = "End used";
    s.txtVAdvice = "Raise an error instead.";
    s.cboCategory.setCurrentIndex(1);
    ASSERT_TRUE(form.cmdOK_Click());
    EXPECT_EQ(ui.messages.size(), 4u);

    EXPECT_EQ(rule->Title(), u"No End"_s);
    EXPECT_EQ(rule->Condition(), u"^\\s*End(\\s|$"_s);
    EXPECT_EQ(rule->CategoryID(), 2);
    EXPECT_EQ(rule->ParserEventList(), u"10|30"_s);
    EXPECT_EQ(rule->ViolationDefinition()->Title(), u"End used"_s);
    EXPECT_EQ(rule->ViolationDefinition()->Advice(), u"Raise an error instead."_s);
    EXPECT_EQ(rule->ViolationDefinition()->Impact(), 900);
}

TEST(UnauthorisedKeywordForm, OtherEventsAreDroppedOnOkAndKeptOnCancel)
{
    ScriptedUserInterface ui;
    auto rule = std::make_shared<UnauthorisedKeyword>();
    rule->setTitle("T");
    rule->setCondition("GoTo");
    rule->ViolationDefinition()->setTitle("V");
    rule->AddParserEventID(4);
    rule->AddParserEventID(28);
    rule->setDirty(false);

    UnauthorisedKeywordForm cancelled(rule);
    cancelled.Load();
    EXPECT_TRUE(cancelled.screen().chkProcedureDecl);
    EXPECT_FALSE(cancelled.screen().chkDeclaration);
    cancelled.screen().chkProcedureDecl = false;
    cancelled.cmdCancel_Click();
    EXPECT_EQ(rule->ParserEventList(), u"4|28"_s);
    EXPECT_FALSE(rule->Dirty());

    UnauthorisedKeywordForm form(rule);
    form.Load();
    ASSERT_TRUE(form.cmdOK_Click());
    EXPECT_EQ(rule->ParserEventList(), u"28"_s);
    // Without a rulebase there are no categories: OK saves none.
    EXPECT_EQ(rule->CategoryID(), -1);
    EXPECT_TRUE(ui.messages.empty());
}
