#include "collections/ObjectArrayList.h"
#include "editors/CodingConventionForm.h"
#include "editors/NamingConventionForm.h"
#include "editors/RuleEditorModel.h"
#include "editors/UnauthorisedKeywordForm.h"
#include "platform/TextUtils.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"
#include "vocabulary/VBParserEvents.h"

#include "EditorsTestSupport.h"
#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A rule dialog on a rule of its own, opened on the categories "Style" (1) and "Naming" (2).
template<class Form, class Rule>
struct Opened
{
    std::shared_ptr<Rule> rule = std::make_shared<Rule>();
    Form form;

    void open()
    {
        form.setConvention(rule);
        form.setRulebase(EditorsTest::rulebaseWithCategories());
        form.Load();
    }
    auto &screen() { return form.screen(); }
    // OK refused at the control of a tab, with the warning shown.
    void expectFault(const ScriptedUserInterface &ui,
                     int tab,
                     const QString &control,
                     const QString &message,
                     const ConventionFormBase::FaultMover &moveTo = {})
    {
        EXPECT_FALSE(form.cmdOK_Click(moveTo));
        ASSERT_TRUE(form.lastFault());
        EXPECT_EQ(form.lastFault()->tab, tab) << message.toStdString();
        EXPECT_EQ(form.lastFault()->controlName(), control) << message.toStdString();
        EXPECT_EQ(ui.messages.back().text, message);
    }
};

struct Naming : Opened<NamingConventionForm, NamingConvention>
{
    // The author picks a kind in a row of the prefix.
    void prefixKind(int row, qint32 kind)
    {
        auto &combo = screen().prefix.rows[std::size_t(row)].kind;
        combo.setCurrentIndex(combo.FindItemWithItemData(kind));
        form.cboPrefix_Click(row);
    }
    void selectObject(qint32 id)
    {
        screen().imgcboObject.setCurrentIndex(
            screen().imgcboObject.findKey(QString::number(id) + "Key"));
        form.imgcboObject_Click();
    }
};

struct Coding : Opened<CodingConventionForm, CodingConvention>
{
    int nodeOf(qint32 event) const
    {
        return form.screen().tvwEvent.find(VBParserEvents::ParserEventKey(event));
    }
    void tick(qint32 event, bool on = true)
    {
        form.screen().tvwEvent.setChecked(nodeOf(event), on);
    }
};

using Keyword = Opened<UnauthorisedKeywordForm, UnauthorisedKeyword>;

} // namespace

TEST(CodingConventionForm, ValidationWalksTheFaultsInOrderThenOkWritesEveryFieldInTreeOrder)
{
    ScriptedUserInterface ui;
    Coding o;
    o.open();
    auto &screen = o.screen();
    EXPECT_FALSE(screen.cboCategory.hasSelection());
    EXPECT_EQ(screen.txtVImpact, u"900"_s);
    EXPECT_FALSE(screen.imgcboPendingEnabled);
    // No event: the first node is selected and its help shown.
    ASSERT_NE(screen.tvwEvent.selected(), 0);
    EXPECT_EQ(screen.lblEventHelp,
              VBParserEvents::ParserEventHelp(screen.tvwEvent.value(screen.tvwEvent.selected())));
    std::vector<FormFault> moved;
    const auto mover = [&](const FormFault &f) { moved.push_back(f); };

    o.expectFault(ui, 1, "txtTitle", "Please enter a title for the coding convention.", mover);
    EXPECT_EQ(ui.messages.back().icon, MessageIcon::Exclamation);
    // A violation title alone does not excuse a rule without events.
    screen.txtTitle = u"Title"_s;
    screen.txtVTitle = u"VTitle"_s;
    o.expectFault(ui,
                  2,
                  "tvwEvent",
                  "Please assign the coding convention to at least one parser event.",
                  mover);
    o.tick(30);
    screen.txtVTitle.clear();
    o.expectFault(ui, 4, "txtVTitle", "Please enter a title for the violation.", mover);
    ASSERT_EQ(moved.size(), 3u);
    EXPECT_EQ(moved[1].tab, 2);
    // Nothing reached the rule, and the dialog still counts as cancelled.
    EXPECT_TRUE(o.rule->Title().isEmpty());
    EXPECT_EQ(o.rule->EventCount(), 0);
    EXPECT_TRUE(o.form.Cancelled());

    screen.txtDescription = u"Description"_s;
    screen.cboCategory.setCurrentIndex(screen.cboCategory.FindItemWithItemData(2));
    screen.txtCondition = u"Sub Main\r\nEnd Sub"_s;
    o.tick(1);
    screen.chkRuleActive = false;
    screen.txtVTitle = u"VTitle"_s;
    screen.txtVDescription = u"%Procedure.Name%"_s;
    screen.cboSeverity.setCurrentIndex(screen.cboSeverity.FindItemWithItemData(3));
    o.form.cboSeverity_Click();
    EXPECT_EQ(screen.txtVImpact, u"500"_s);
    screen.txtVImpact = u"42abc"_s;
    screen.txtVAdvice = u"Advice"_s;
    ASSERT_TRUE(o.form.cmdOK_Click(mover));
    EXPECT_FALSE(o.form.Cancelled());
    EXPECT_EQ(ui.messages.size(), 3u);

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
        Coding o;
        o.rule->setTitle(u"T"_s);
        o.rule->ViolationDefinition()->setTitle(u"V"_s);
        o.rule->setPendingViolation(c.pending);
        for (const qint32 id : c.events)
            o.rule->AddParserEventID(id);
        o.rule->setEndEventID(c.endEvent);
        o.open();
        auto &screen = o.screen();
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
        Coding coding;
        Naming naming;
        naming.rule->setObjectType(17);
        coding.open();
        naming.open();
        coding.form.screen().tvwEvent.setChecked(1, true);
        const bool isCoding = c.ruleType == RuleTypes::CodingConvention;
        ConventionFormBase &form
            = isCoding ? static_cast<ConventionFormBase &>(coding.form) : naming.form;
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

TEST(NamingConventionForm, ANewRuleStartsWithEveryPartOffAndItsConditionCanBeDeleted)
{
    ScriptedUserInterface ui;
    Naming o;
    o.open();
    auto &s = o.screen();
    EXPECT_FALSE(s.imgcboObject.hasSelection());
    EXPECT_FALSE(s.prefix.enabled);
    EXPECT_FALSE(s.prefix.rows[0].kindEnabled);
    EXPECT_FALSE(s.bodyEnabled);
    EXPECT_FALSE(o.form.cmdDeleteEnabled());
    s.txtCondition = "x";
    EXPECT_TRUE(o.form.cmdDeleteEnabled());
    ui.answers = {MessageResult::Yes};
    o.form.cmdDelete_Click();
    EXPECT_FALSE(o.form.cmdDeleteEnabled());

    // A number field holds what its value can.
    EXPECT_EQ(NamingConventionForm::NumberFromField(""), 0);
    EXPECT_EQ(NamingConventionForm::NumberFromField("99999"), 32767);

    // A placeholder picked for a box lands there without its percent signs.
    const std::pair<int, const char *> targets[] = {{0, "txtVDescription"},
                                                    {1, "txtPrefixAdvice"},
                                                    {2, "txtBody_0"},
                                                    {3, "txtBodyAdvice"},
                                                    {4, "txtSuffixAdvice"},
                                                    {5, "txtVDescription"}};
    for (const auto &[index, field] : targets)
        EXPECT_EQ(NamingConventionForm::ObjectPropertyTarget(index), QLatin1String(field)) << index;
    EXPECT_EQ(NamingConventionForm::StripPercent(u"%Variable.Name%"_s), u"Variable.Name"_s);
    EXPECT_EQ(NamingConventionForm::StripPercent(u"%%"_s), QString());
    EXPECT_EQ(NamingConventionForm::StripPercent(u"%"_s), QString());
}

TEST(NamingConventionForm, RowsOpenTopDownByKind)
{
    Naming o;
    o.open();
    auto &rows = o.screen().prefix.rows;
    o.screen().chkPrefixActive = true;
    o.form.chkPrefixActive_Click();
    EXPECT_TRUE(o.screen().prefix.enabled);
    EXPECT_TRUE(rows[0].kindEnabled);
    EXPECT_FALSE(rows[1].kindEnabled);

    o.prefixKind(0, 1);
    EXPECT_TRUE(rows[0].textEnabled);
    EXPECT_FALSE(rows[0].textLocked);
    EXPECT_TRUE(rows[0].actionEnabled);
    EXPECT_EQ(rows[0].actionToolTip, u"Insert Pattern"_s);
    EXPECT_TRUE(rows[1].kindEnabled);

    o.prefixKind(1, 5);
    EXPECT_TRUE(rows[1].textEnabled);
    EXPECT_TRUE(rows[1].textLocked);
    EXPECT_EQ(rows[1].actionToolTip, u"Select Workfield"_s);
    EXPECT_TRUE(o.form.ActionPicksWorkfield(NamingConventionForm::Prefix, 1));
    rows[1].text = u"Procedure.WF.Scope"_s;

    o.prefixKind(2, 1);
    rows[2].text = u"str"_s;
    // A tag kind discards what its box held.
    o.prefixKind(2, 3);
    EXPECT_TRUE(rows[2].text.isEmpty());
    EXPECT_FALSE(rows[2].textEnabled);
    EXPECT_FALSE(rows[2].actionEnabled);
    EXPECT_TRUE(rows[3].kindEnabled);
    o.prefixKind(3, 1); // the last row opens no row below it
    EXPECT_TRUE(rows[3].textEnabled);

    // The blank kind in row 1 empties and closes rows 1 to 3.
    o.prefixKind(1, 0);
    for (int i = 1; i < 4; ++i) {
        EXPECT_EQ(rows[std::size_t(i)].kind.currentItemData(), 0) << i;
        EXPECT_TRUE(rows[std::size_t(i)].text.isEmpty()) << i;
        EXPECT_FALSE(rows[std::size_t(i)].textEnabled) << i;
    }
    EXPECT_TRUE(rows[1].kindEnabled);
    EXPECT_FALSE(rows[2].kindEnabled);
    EXPECT_FALSE(rows[3].kindEnabled);

    o.screen().prefix.advice = u"advice"_s;
    o.screen().chkPrefixActive = false;
    o.form.chkPrefixActive_Click();
    EXPECT_FALSE(o.screen().prefix.enabled);
    EXPECT_FALSE(rows[0].kindEnabled);
    EXPECT_TRUE(o.screen().prefix.advice.isEmpty());
}

TEST(NamingConventionForm, ValidationWalksTheTenFaultsInOrder)
{
    ScriptedUserInterface ui;
    Naming o;
    o.open();
    auto &s = o.screen();
    o.expectFault(ui, 1, "txtTitle", "Please enter a title for the naming convention.");
    s.txtTitle = "Variables";
    o.expectFault(
        ui, 1, "imgcboObject", "Please select an object/property for the naming convention.");
    o.selectObject(28);

    s.chkPrefixActive = true;
    o.form.chkPrefixActive_Click();
    // All rows blank: only the advice is asked for.
    o.expectFault(
        ui, 3, "txtPrefixAdvice", "Please enter the violation advice for an invalid prefix.");
    o.prefixKind(0, 5);
    o.prefixKind(1, 1);
    // One pass over the rows: the workfield row 0 comes before the literal row 1.
    o.expectFault(ui, 3, "txtPrefix_0", "Please enter a workfield for the prefix item.");
    s.prefix.rows[0].text = "Variable.WF.Scope";
    o.expectFault(ui, 3, "txtPrefix_1", "Please enter a literal or pattern for the prefix item.");
    s.prefix.rows[1].text = "[a-z]";
    s.prefix.advice = "Prefix advice";

    s.chkBodyActive = true;
    o.form.chkBodyActive_Click();
    o.expectFault(ui, 4, "txtBodyAdvice", "Please enter the violation advice for an invalid body.");
    s.txtBodyAdvice = "Body advice";

    s.chkSuffixActive = true;
    o.form.chkSuffixActive_Click();
    auto &suffix = s.suffix.rows;
    suffix[0].kind.setCurrentIndex(1);
    o.form.cboSuffix_Click(0);
    o.expectFault(ui, 5, "txtSuffix_0", "Please enter a literal or pattern for the suffix item.");
    suffix[0].text = "s";
    suffix[1].kind.setCurrentIndex(5);
    o.form.cboSuffix_Click(1);
    o.expectFault(ui, 5, "txtSuffix_1", "Please enter a workfield for the suffix item.");
    suffix[1].text = "Variable.WF.Kind";
    o.expectFault(
        ui, 5, "txtSuffixAdvice", "Please enter the violation advice for an invalid suffix.");
    s.suffix.advice = "Suffix advice";
    o.expectFault(ui, 6, "txtVTitle", "Please enter a title for the violation.");
    EXPECT_TRUE(o.rule->Title().isEmpty());
    s.txtVTitle = "Bad name";
    EXPECT_TRUE(o.form.cmdOK_Click());
    EXPECT_EQ(ui.messages.size(), 10u);
}

// The "Rule" and "Violation" tabs every dialog shares are pinned with the coding convention.
TEST(NamingConventionForm, OkWritesTheRuleAndAFreshDialogReadsItBack)
{
    ScriptedUserInterface ui;
    Naming o;
    o.rule->setObjectType(28);
    o.rule->setPropertyType(37);
    o.rule->ViolationDefinition()->setAdvice(u"untouched"_s);
    o.open();
    auto &s = o.screen();
    ASSERT_TRUE(s.imgcboObject.hasSelection());
    EXPECT_EQ(s.imgcboObject.currentKey(), u"28Key"_s);
    EXPECT_GT(s.imgcboProperty.count(), 0);

    s.txtTitle = "Variables";
    s.cboCategory.setCurrentIndex(0);
    s.chkCaseSensitive = false;
    s.txtExclusionList = "i;j";
    s.txtCondition = "Sub Main\r\n  Quorin.ApplyConvention\r\nEnd Sub";
    // Deleting the condition asks first, and Enter keeps it.
    ui.answers = {MessageResult::No};
    o.form.cmdDelete_Click();
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].defaultButton, MessageResult::No);
    EXPECT_TRUE(o.form.cmdDeleteEnabled());
    s.chkPrefixActive = true;
    o.form.chkPrefixActive_Click();
    o.prefixKind(0, 4);
    o.prefixKind(1, 1);
    s.prefix.rows[1].text = "_";
    s.prefix.advice = "pa";
    s.chkBodyActive = true;
    o.form.chkBodyActive_Click();
    s.txtBody = {"[A-Z][a-z]+", "3", ""};
    s.txtBodyAdvice = "ba";
    s.txtVTitle = "Bad variable name";
    s.txtVImpact = "12";
    ASSERT_TRUE(o.form.cmdOK_Click());

    const NamingConvention &rule = *o.rule;
    EXPECT_EQ(rule.CategoryID(), 1);
    EXPECT_EQ(rule.ObjectType(), 28);
    EXPECT_EQ(rule.PropertyType(), 37);
    EXPECT_FALSE(rule.PropertyName().isEmpty());
    EXPECT_FALSE(rule.CaseSensitive());
    EXPECT_EQ(rule.ExclusionList(), u"i;j"_s);
    EXPECT_EQ(rule.Condition(), u"Sub Main\r\n  Quorin.ApplyConvention\r\nEnd Sub"_s);
    EXPECT_TRUE(rule.PrefixActive());
    EXPECT_EQ(rule.PrefixItems()->Item(1)->PSType(), 4);
    EXPECT_EQ(rule.PrefixItems()->Item(2)->PSType(), 1);
    EXPECT_EQ(rule.PrefixItems()->Item(2)->Value(), u"_"_s);
    EXPECT_EQ(rule.PrefixItems()->Item(3)->PSType(), 0);
    EXPECT_EQ(rule.PrefixAdvice(), u"pa"_s);
    EXPECT_TRUE(rule.BodyActive());
    EXPECT_EQ(rule.BodyPattern(), u"[A-Z][a-z]+"_s);
    EXPECT_EQ(rule.MinBodyLength(), 3);
    EXPECT_EQ(rule.MaxBodyLength(), 0);
    EXPECT_EQ(rule.BodyAdvice(), u"ba"_s);
    EXPECT_FALSE(rule.SuffixActive());
    EXPECT_EQ(rule.ViolationDefinition()->Severity(), 1);
    EXPECT_EQ(rule.ViolationDefinition()->Impact(), 12);
    EXPECT_EQ(rule.ViolationDefinition()->Advice(), u"untouched"_s);

    Naming again;
    again.rule = o.rule;
    again.open();
    EXPECT_EQ(again.screen().prefix.rows[1].text, u"_"_s);
    EXPECT_EQ(again.screen().prefix.rows[1].kind.currentItemData(), 1);
    EXPECT_TRUE(again.screen().prefix.rows[2].kindEnabled);
    EXPECT_FALSE(again.screen().prefix.rows[3].kindEnabled);
    EXPECT_EQ(again.screen().txtBody[1], u"3"_s);
    EXPECT_EQ(again.screen().txtVImpact, u"12"_s);
}

TEST(UnauthorisedKeywordForm, ValidationOrderAndWhatOkWritesAndCancelKeeps)
{
    ScriptedUserInterface ui;
    Keyword o;
    o.open();
    auto &s = o.screen();
    EXPECT_EQ(s.cboSeverity.currentItemData(), 1);
    EXPECT_FALSE(s.chkDeclaration || s.chkProcedureDecl || s.chkProcedureBody);

    o.expectFault(ui, 1, "txtTitle", "Please enter a title for the rule.");
    s.txtTitle = "No End";
    o.expectFault(
        ui, 2, "txtCondition", "Please enter a pattern to match an unauthorised keyword.");
    // A faulty pattern is not this dialog's business.
    s.txtCondition = "^\\s*End(\\s|$";
    o.expectFault(
        ui, 2, "chkDeclaration", "Please select a parser event for the unauthorised keyword rule.");
    s.chkProcedureBody = true;
    s.chkDeclaration = true;
    o.expectFault(ui, 3, "txtVTitle", "Please enter a title for the violation.");
    EXPECT_TRUE(o.rule->Title().isEmpty());
    s.txtVTitle = "End used";
    s.txtVAdvice = "Raise an error instead.";
    s.cboCategory.setCurrentIndex(1);
    ASSERT_TRUE(o.form.cmdOK_Click());
    EXPECT_EQ(ui.messages.size(), 4u);

    const UnauthorisedKeyword &rule = *o.rule;
    EXPECT_EQ(rule.Title(), u"No End"_s);
    EXPECT_EQ(rule.Condition(), u"^\\s*End(\\s|$"_s);
    EXPECT_EQ(rule.CategoryID(), 2);
    EXPECT_EQ(rule.ParserEventList(), u"10|30"_s);
    EXPECT_EQ(rule.ViolationDefinition()->Title(), u"End used"_s);
    EXPECT_EQ(rule.ViolationDefinition()->Advice(), u"Raise an error instead."_s);
    EXPECT_EQ(rule.ViolationDefinition()->Impact(), 900);

    // Events the dialog has no box for are dropped on OK and kept on Cancel.
    ui.messages.clear();
    auto known = std::make_shared<UnauthorisedKeyword>();
    known->setTitle("T");
    known->setCondition("GoTo");
    known->ViolationDefinition()->setTitle("V");
    known->AddParserEventID(4);
    known->AddParserEventID(28);
    known->setDirty(false);

    UnauthorisedKeywordForm cancelled(known);
    cancelled.Load();
    EXPECT_TRUE(cancelled.screen().chkProcedureDecl);
    EXPECT_FALSE(cancelled.screen().chkDeclaration);
    cancelled.screen().chkProcedureDecl = false;
    cancelled.cmdCancel_Click();
    EXPECT_EQ(known->ParserEventList(), u"4|28"_s);
    EXPECT_FALSE(known->Dirty());

    UnauthorisedKeywordForm form(known);
    form.Load();
    ASSERT_TRUE(form.cmdOK_Click());
    EXPECT_EQ(known->ParserEventList(), u"28"_s);
    // Without a rulebase there are no categories: OK saves none.
    EXPECT_EQ(known->CategoryID(), -1);
    EXPECT_TRUE(ui.messages.empty());
}
