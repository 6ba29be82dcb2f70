#include "editors/CodingConventionForm.h"
#include "editors/NamingConventionForm.h"
#include "editors/RuleEditorModel.h"
#include "platform/TextUtils.h"
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

TEST(CodingConventionForm, ANewRuleOpensEmptyAndValidationWalksTheFaultsInOrder)
{
    ScriptedUserInterface ui;
    Opened o;
    o.open();
    auto &screen = o.form.screen();
    EXPECT_FALSE(screen.cboCategory.hasSelection());
    EXPECT_EQ(screen.txtVImpact, u"900"_s);
    EXPECT_FALSE(screen.imgcboPendingEnabled);
    // No event: the first node is selected and its help shown.
    ASSERT_NE(screen.tvwEvent.selected(), 0);
    EXPECT_EQ(screen.lblEventHelp,
              VBParserEvents::ParserEventHelp(screen.tvwEvent.value(screen.tvwEvent.selected())));
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

// Whatever the rule held, the pending face ends with one start and one end event, and turning
// it off again shows the rule's events, not the ticks of a moment ago.
TEST(CodingConventionForm, PendingFaceHasOneStartAndOneEndEvent)
{
    struct Case
    {
        std::vector<qint32> events;
        bool pending;
        qint32 endEvent;
        QString startKey; // where the start combo opens
        QString endKey;   // where the end combo opens; empty for its first entry
    };
    const Case cases[] = {
        {{12, 30}, false, -1, u"1Key"_s, {}}, // two events: neither of them
        {{28}, true, 34, u"28Key"_s, u"34Key"_s},
        {{4}, true, -1, u"4Key"_s, {}}, // made by hand without an end event
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.startKey.toStdString());
        ScriptedUserInterface ui;
        Opened o;
        o.rule->setTitle(u"T"_s);
        o.rule->ViolationDefinition()->setTitle(u"V"_s);
        o.rule->setPendingViolation(c.pending);
        for (const qint32 id : c.events)
            o.rule->AddParserEventID(id);
        o.rule->setEndEventID(c.endEvent);
        o.open();
        auto &screen = o.form.screen();
        if (!c.pending) {
            screen.chkPending = true;
            o.form.chkPending_Click();
        }
        EXPECT_FALSE(screen.tvwEventVisible);
        EXPECT_TRUE(screen.imgcboPendingEnabled);
        EXPECT_EQ(screen.imgcboEvent.currentKey(), c.startKey);
        EXPECT_EQ(screen.lblEventHelp, VBParserEvents::ParserEventHelp(Text::valLong(c.startKey)));
        if (c.endKey.isEmpty())
            EXPECT_EQ(screen.imgcboPending.currentIndex(), 0);
        else
            EXPECT_EQ(screen.imgcboPending.currentKey(), c.endKey);
        screen.imgcboEvent.setCurrentIndex(screen.imgcboEvent.findKey(u"28Key"_s));
        o.form.imgcboEvent_Click();
        EXPECT_EQ(screen.lblEventHelp, VBParserEvents::ParserEventHelp(28));
        screen.imgcboPending.setCurrentIndex(screen.imgcboPending.findKey(u"34Key"_s));
        ASSERT_TRUE(o.form.cmdOK_Click());
        EXPECT_TRUE(o.rule->PendingViolation());
        EXPECT_EQ(o.rule->ParserEventList(), u"28"_s);
        EXPECT_EQ(o.rule->EndEventID(), 34);

        o.open(); // again, on what OK wrote
        for (const bool pending : {false, true, false}) {
            screen.chkPending = pending;
            o.form.chkPending_Click();
            if (pending)
                continue;
            EXPECT_FALSE(screen.imgcboPending.hasSelection());
            EXPECT_TRUE(screen.tvwEvent.isChecked(o.nodeOf(28)));
            EXPECT_FALSE(screen.tvwEvent.isChecked(o.nodeOf(10)));
            EXPECT_EQ(screen.tvwEvent.selected(), o.nodeOf(28));
            o.tick(28, false);
            o.tick(10);
        }
        o.tick(28);
        o.tick(10, false);
        ASSERT_TRUE(o.form.cmdOK_Click());
        EXPECT_FALSE(o.rule->PendingViolation());
        EXPECT_EQ(o.rule->EndEventID(), -1);
        EXPECT_EQ(o.rule->ParserEventList(), u"28"_s);
    }
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
        auto rule = std::make_shared<NamingConvention>();
        rule->setObjectType(17);
        naming.setConvention(rule);
        coding.setConvention(std::make_shared<CodingConvention>());
        form.setRulebase(EditorsTest::rulebaseWithCategories());
        form.Load();
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
