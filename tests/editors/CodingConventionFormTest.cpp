#include "editors/CodingConventionForm.h"
#include "editors/NamingConventionForm.h"
#include "editors/RuleEditorModel.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/ViolationDefinition.h"
#include "vocabulary/VBParserEvents.h"

#include "EditorsTestSupport.h"
#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Opened
{
    std::shared_ptr<CodingConvention> rule = std::make_shared<CodingConvention>();
    CodingConventionForm form;

    void open()
    {
        form.setConvention(rule);
        form.setRulebase(EditorsTest::rulebaseWithCategories());
        form.Load();
    }
    int nodeOf(qint32 event) const
    {
        return form.screen().tvwEvent.find(VBParserEvents::ParserEventKey(event));
    }
    void tick(qint32 event, bool on = true)
    {
        form.screen().tvwEvent.setChecked(nodeOf(event), on);
    }
};

} // namespace

TEST(CodingConventionForm, NewRuleOpensWithFirstSeverityAndNoCategoryOrEvent)
{
    Opened o;
    o.open();
    const auto &screen = o.form.screen();
    EXPECT_EQ(screen.cboCategory.count(), 2);
    EXPECT_FALSE(screen.cboCategory.hasSelection());
    EXPECT_EQ(screen.cboSeverity.currentItemData(), 1);
    EXPECT_EQ(screen.txtVImpact, u"900"_s);
    EXPECT_EQ(screen.imgIcon, 14);
    EXPECT_TRUE(screen.tvwEventVisible);
    EXPECT_FALSE(screen.imgcboPendingEnabled);
    EXPECT_FALSE(screen.imgcboPending.hasSelection());
    // No event: the first node is selected and its help shown.
    ASSERT_NE(screen.tvwEvent.selected(), 0);
    EXPECT_EQ(screen.lblEventHelp,
              VBParserEvents::ParserEventHelp(screen.tvwEvent.value(screen.tvwEvent.selected())));
}

TEST(CodingConventionForm, ValidationWalksTheFaultsInOrder)
{
    ScriptedUserInterface ui;
    Opened o;
    o.open();
    auto &screen = o.form.screen();
    std::vector<FormFault> moved;
    const auto mover = [&](const FormFault &f) { moved.push_back(f); };

    EXPECT_FALSE(o.form.cmdOK_Click(mover));
    ASSERT_TRUE(o.form.lastFault());
    EXPECT_EQ(o.form.lastFault()->tab, 1);
    EXPECT_EQ(o.form.lastFault()->controlName(), u"txtTitle"_s);
    EXPECT_EQ(ui.messages.back().text, u"Please enter a title for the coding convention."_s);
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Exclamation);

    // A violation title alone does not excuse a rule without events.
    screen.txtTitle = u"No GoTo"_s;
    screen.txtVTitle = u"GoTo used"_s;
    EXPECT_FALSE(o.form.cmdOK_Click(mover));
    EXPECT_EQ(o.form.lastFault()->tab, 2);
    EXPECT_EQ(o.form.lastFault()->field, u"tvwEvent"_s);
    EXPECT_EQ(ui.messages.back().text,
              u"Please assign the coding convention to at least one parser event."_s);

    o.tick(30);
    screen.txtVTitle.clear();
    EXPECT_FALSE(o.form.cmdOK_Click(mover));
    EXPECT_EQ(o.form.lastFault()->tab, 4);
    EXPECT_EQ(o.form.lastFault()->field, u"txtVTitle"_s);
    EXPECT_EQ(ui.messages.back().text, u"Please enter a title for the violation."_s);
    ASSERT_EQ(moved.size(), 3u);
    EXPECT_EQ(moved[1].tab, 2);
    // Nothing reached the rule, and the dialog still counts as cancelled.
    EXPECT_TRUE(o.rule->Title().isEmpty());
    EXPECT_EQ(o.rule->EventCount(), 0);
    EXPECT_TRUE(o.form.Cancelled());

    screen.txtVTitle = u"GoTo used"_s;
    EXPECT_TRUE(o.form.cmdOK_Click(mover));
    EXPECT_FALSE(o.form.Cancelled());
    EXPECT_EQ(ui.messages.size(), 3u);
}

TEST(CodingConventionForm, OkWritesEveryFieldInTreeOrder)
{
    ScriptedUserInterface ui;
    Opened o;
    o.open();
    auto &screen = o.form.screen();
    screen.txtTitle = u"Title"_s;
    screen.txtDescription = u"Description"_s;
    screen.cboCategory.setCurrentIndex(screen.cboCategory.FindItemWithItemData(2));
    screen.txtCondition = u"Sub Main\r\nEnd Sub"_s;
    o.tick(30);
    o.tick(1);
    screen.chkRuleActive = false;
    screen.txtVTitle = u"VTitle"_s;
    screen.txtVDescription = u"%Procedure.Name%"_s;
    screen.cboSeverity.setCurrentIndex(screen.cboSeverity.FindItemWithItemData(3));
    o.form.cboSeverity_Click();
    EXPECT_EQ(screen.txtVImpact, u"500"_s);
    screen.txtVImpact = u"42abc"_s;
    screen.txtVAdvice = u"Advice"_s;
    ASSERT_TRUE(o.form.cmdOK_Click());

    const CodingConvention &rule = *o.rule;
    EXPECT_EQ(rule.Title(), u"Title"_s);
    EXPECT_EQ(rule.Description(), u"Description"_s);
    EXPECT_EQ(rule.CategoryID(), 2);
    EXPECT_EQ(rule.Condition(), u"Sub Main\r\nEnd Sub"_s);
    // "begin Project" stands before "Procedure <body>" in the tree.
    EXPECT_EQ(rule.ParserEventList(), u"1|30"_s);
    EXPECT_FALSE(rule.PendingViolation());
    EXPECT_EQ(rule.EndEventID(), -1);
    EXPECT_FALSE(rule.RuleActive());
    const auto def = rule.ViolationDefinition();
    EXPECT_EQ(def->Title(), u"VTitle"_s);
    EXPECT_EQ(def->Description(), u"%Procedure.Name%"_s);
    EXPECT_EQ(def->Severity(), 3);
    EXPECT_EQ(def->Impact(), 42);
    EXPECT_EQ(def->Advice(), u"Advice"_s);
}

TEST(CodingConventionForm, PendingFaceHasOneStartAndOneEndEvent)
{
    ScriptedUserInterface ui;
    Opened o;
    o.rule->setTitle(u"T"_s);
    o.rule->ViolationDefinition()->setTitle(u"V"_s);
    o.rule->AddParserEventID(12);
    o.rule->AddParserEventID(30);
    o.open();
    auto &screen = o.form.screen();
    screen.chkPending = true;
    o.form.chkPending_Click();
    EXPECT_FALSE(screen.tvwEventVisible);
    EXPECT_TRUE(screen.imgcboPendingEnabled);
    // Two events on the rule: the combo starts at event 1, not either of them.
    EXPECT_EQ(screen.imgcboEvent.currentKey(), u"1Key"_s);
    EXPECT_EQ(screen.lblEventHelp, VBParserEvents::ParserEventHelp(1));
    EXPECT_EQ(screen.imgcboPending.currentIndex(), 0);
    screen.imgcboEvent.setCurrentIndex(screen.imgcboEvent.findKey(u"28Key"_s));
    o.form.imgcboEvent_Click();
    EXPECT_EQ(screen.lblEventHelp, VBParserEvents::ParserEventHelp(28));
    screen.imgcboPending.setCurrentIndex(screen.imgcboPending.findKey(u"34Key"_s));
    ASSERT_TRUE(o.form.cmdOK_Click());
    EXPECT_TRUE(o.rule->PendingViolation());
    EXPECT_EQ(o.rule->EventCount(), 1);
    EXPECT_EQ(o.rule->ParserEventID(0), 28);
    EXPECT_EQ(o.rule->EndEventID(), 34);
}

TEST(CodingConventionForm, SwitchingPendingBackShowsWhatTheRuleHoldsAndResetsTheEndEvent)
{
    ScriptedUserInterface ui;
    Opened o;
    o.rule->setTitle(u"T"_s);
    o.rule->ViolationDefinition()->setTitle(u"V"_s);
    o.rule->setPendingViolation(true);
    o.rule->AddParserEventID(28);
    o.rule->setEndEventID(34);
    o.open();
    auto &screen = o.form.screen();
    EXPECT_EQ(screen.imgcboEvent.currentKey(), u"28Key"_s);
    EXPECT_EQ(screen.imgcboPending.currentKey(), u"34Key"_s);

    screen.chkPending = false;
    o.form.chkPending_Click();
    EXPECT_FALSE(screen.imgcboPending.hasSelection());
    EXPECT_TRUE(screen.tvwEvent.isChecked(o.nodeOf(28)));
    EXPECT_EQ(screen.tvwEvent.selected(), o.nodeOf(28));
    o.tick(28, false);
    o.tick(10);
    // Off and on again: the tree is rebuilt from the rule, not from the ticks of a moment ago.
    screen.chkPending = true;
    o.form.chkPending_Click();
    screen.chkPending = false;
    o.form.chkPending_Click();
    EXPECT_TRUE(screen.tvwEvent.isChecked(o.nodeOf(28)));
    EXPECT_FALSE(screen.tvwEvent.isChecked(o.nodeOf(10)));
    ASSERT_TRUE(o.form.cmdOK_Click());
    EXPECT_FALSE(o.rule->PendingViolation());
    EXPECT_EQ(o.rule->EndEventID(), -1);
    EXPECT_EQ(o.rule->ParserEventList(), u"28"_s);

    // A hand-made pending rule without an end event starts at the first end event.
    Opened bare;
    bare.rule->setPendingViolation(true);
    bare.rule->AddParserEventID(4);
    bare.open();
    EXPECT_EQ(bare.form.screen().imgcboPending.currentIndex(), 0);
    EXPECT_EQ(bare.form.screen().imgcboEvent.currentKey(), u"4Key"_s);
}

TEST(ConventionForms, OKRefusesAConditionTheConditionEditorWouldRefuseInItsWords)
{
    struct Case
    {
        qint32 ruleType;
        QString condition; // as the box holds it, LF line ends
    };
    const Case cases[] = {
        {RuleTypes::CodingConvention, "Sub Main\n  If x Then\n  y = 1\nEnd Sub"},
        {RuleTypes::CodingConvention, "Sub Main\nEnd Sub\nSub Other\nEnd Sub"},
        {RuleTypes::NamingConvention, "Sub Main\n  x = 1\nEnd Sub"},
        {RuleTypes::NamingConvention, "Sub Main\n  Quorin.ApplyConvention\n  x = (\nEnd Sub"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.condition.toStdString());
        ScriptedUserInterface ui;
        RuleEditorModel editor;
        editor.setRuleType(c.ruleType);
        ASSERT_FALSE(editor.SaveAndCloseForm(c.condition));
        ASSERT_EQ(ui.messages.size(), 1u);

        // Each dialog otherwise ready for OK.
        CodingConventionForm coding;
        NamingConventionForm naming;
        const bool isCoding = c.ruleType == RuleTypes::CodingConvention;
        ConventionFormBase &form = isCoding ? static_cast<ConventionFormBase &>(coding) : naming;
        if (isCoding) {
            coding.setConvention(std::make_shared<CodingConvention>());
        } else {
            auto rule = std::make_shared<NamingConvention>();
            rule->setObjectType(17);
            naming.setConvention(rule);
        }
        form.setRulebase(EditorsTest::rulebaseWithCategories());
        form.Load();
        if (isCoding)
            coding.screen().tvwEvent.setChecked(1, true);
        form.common().txtTitle = u"T"_s;
        form.common().txtVTitle = u"V"_s;
        QString &condition = isCoding ? coding.screen().txtCondition : naming.screen().txtCondition;
        condition = c.condition;

        EXPECT_FALSE(form.cmdOK_Click());
        EXPECT_TRUE(form.Cancelled());
        ASSERT_EQ(ui.messages.size(), 2u);
        EXPECT_EQ(ui.messages[1].text, ui.messages[0].text);
        EXPECT_EQ(ui.messages[1].title, ui.messages[0].title);
        ASSERT_TRUE(form.lastFault());
        EXPECT_EQ(form.lastFault()->field, u"txtCondition"_s);
        EXPECT_EQ(form.lastFault()->tab,
                  isCoding ? int(CodingConventionForm::ConditionTab)
                           : int(NamingConventionForm::ConditionTab));
        EXPECT_EQ(form.lastFault()->line, editor.ErrorLine());

        condition
            = isCoding ? u"Sub Main\nEnd Sub"_s : u"Sub Main\n  Quorin.ApplyConvention\nEnd Sub"_s;
        EXPECT_TRUE(form.cmdOK_Click());
    }
}
