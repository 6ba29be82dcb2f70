#include "editors/NamingConventionForm.h"
#include "collections/ObjectArrayList.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/ViolationDefinition.h"

#include "EditorsTestSupport.h"
#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using Form = NamingConventionForm;

struct Opened
{
    std::shared_ptr<NamingConvention> rule = std::make_shared<NamingConvention>();
    Form form;

    void open()
    {
        form.setConvention(rule);
        form.setRulebase(EditorsTest::rulebaseWithCategories());
        form.Load();
    }
    Form::Screen &screen() { return form.screen(); }
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

} // namespace

TEST(NamingConventionForm, ANewRuleStartsWithEveryPartOffAndPassesWithItsTitles)
{
    ScriptedUserInterface ui;
    Opened o;
    o.open();
    auto &s = o.screen();
    EXPECT_FALSE(s.imgcboObject.hasSelection());
    EXPECT_FALSE(s.prefix.enabled);
    EXPECT_FALSE(s.prefix.rows[0].kindEnabled);
    EXPECT_FALSE(s.bodyEnabled);
    EXPECT_FALSE(o.form.cmdDeleteEnabled());

    // With every part off, an object, a title and a violation title are all OK needs.
    o.selectObject(17);
    s.txtTitle = "T";
    s.txtVTitle = "V";
    EXPECT_TRUE(o.form.cmdOK_Click());
    EXPECT_TRUE(ui.messages.empty());

    // A severity chosen overwrites the impact; a number field holds what its value can.
    s.cboSeverity.setCurrentIndex(s.cboSeverity.FindItemWithItemData(3));
    o.form.cboSeverity_Click();
    EXPECT_EQ(s.txtVImpact, u"500"_s);
    EXPECT_EQ(Form::NumberFromField(""), 0);
    EXPECT_EQ(Form::NumberFromField("99999"), 32767);

    // A placeholder picked for a box lands there without its percent signs.
    const std::pair<int, const char *> targets[] = {{0, "txtVDescription"},
                                                    {1, "txtPrefixAdvice"},
                                                    {2, "txtBody_0"},
                                                    {3, "txtBodyAdvice"},
                                                    {4, "txtSuffixAdvice"},
                                                    {5, "txtVDescription"}};
    for (const auto &[index, field] : targets)
        EXPECT_EQ(Form::ObjectPropertyTarget(index), QLatin1String(field)) << index;
    EXPECT_EQ(Form::StripPercent(u"%Variable.Name%"_s), u"Variable.Name"_s);
    EXPECT_EQ(Form::StripPercent(u"%%"_s), QString());
    EXPECT_EQ(Form::StripPercent(u"%"_s), QString());
}

TEST(NamingConventionForm, RowsOpenTopDownByKind)
{
    Opened o;
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
    EXPECT_TRUE(o.form.ActionPicksWorkfield(Form::Prefix, 1));
    rows[1].text = u"Procedure.WF.Scope"_s;

    o.prefixKind(2, 1);
    rows[2].text = u"str"_s;
    // A tag kind discards what its box held.
    o.prefixKind(2, 3);
    EXPECT_TRUE(rows[2].text.isEmpty());
    EXPECT_FALSE(rows[2].textEnabled);
    EXPECT_FALSE(rows[2].actionEnabled);
    EXPECT_TRUE(rows[3].kindEnabled);

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
    Opened o;
    o.open();
    auto &s = o.screen();
    const auto expectFault = [&](int tab, const QString &control, const QString &message) {
        EXPECT_FALSE(o.form.cmdOK_Click());
        ASSERT_TRUE(o.form.lastFault());
        EXPECT_EQ(o.form.lastFault()->tab, tab) << message.toStdString();
        EXPECT_EQ(o.form.lastFault()->controlName(), control) << message.toStdString();
        EXPECT_EQ(ui.messages.back().text, message);
    };

    expectFault(1, "txtTitle", "Please enter a title for the naming convention.");
    s.txtTitle = "Variables";
    expectFault(1, "imgcboObject", "Please select an object/property for the naming convention.");
    o.selectObject(28);

    s.chkPrefixActive = true;
    o.form.chkPrefixActive_Click();
    // All rows blank: only the advice is asked for.
    expectFault(3, "txtPrefixAdvice", "Please enter the violation advice for an invalid prefix.");
    o.prefixKind(0, 5);
    o.prefixKind(1, 1);
    // One pass over the rows: the workfield row 0 comes before the literal row 1.
    expectFault(3, "txtPrefix_0", "Please enter a workfield for the prefix item.");
    s.prefix.rows[0].text = "Variable.WF.Scope";
    expectFault(3, "txtPrefix_1", "Please enter a literal or pattern for the prefix item.");
    s.prefix.rows[1].text = "[a-z]";
    s.prefix.advice = "Prefix advice";

    s.chkBodyActive = true;
    o.form.chkBodyActive_Click();
    expectFault(4, "txtBodyAdvice", "Please enter the violation advice for an invalid body.");
    s.txtBodyAdvice = "Body advice";

    s.chkSuffixActive = true;
    o.form.chkSuffixActive_Click();
    auto &suffix = s.suffix.rows;
    suffix[0].kind.setCurrentIndex(1);
    o.form.cboSuffix_Click(0);
    expectFault(5, "txtSuffix_0", "Please enter a literal or pattern for the suffix item.");
    suffix[0].text = "s";
    suffix[1].kind.setCurrentIndex(5);
    o.form.cboSuffix_Click(1);
    expectFault(5, "txtSuffix_1", "Please enter a workfield for the suffix item.");
    suffix[1].text = "Variable.WF.Kind";
    expectFault(5, "txtSuffixAdvice", "Please enter the violation advice for an invalid suffix.");
    s.suffix.advice = "Suffix advice";
    expectFault(6, "txtVTitle", "Please enter a title for the violation.");
    EXPECT_TRUE(o.rule->Title().isEmpty());
    s.txtVTitle = "Bad name";
    EXPECT_TRUE(o.form.cmdOK_Click());
    EXPECT_EQ(ui.messages.size(), 10u);
}

TEST(NamingConventionForm, OkWritesTheRuleAndCancelWritesNothing)
{
    ScriptedUserInterface ui;
    Opened o;
    o.rule->setObjectType(28);
    o.rule->setPropertyType(37);
    o.rule->ViolationDefinition()->setAdvice(u"untouched"_s);
    o.rule->setDirty(false);
    o.open();
    auto &s = o.screen();
    ASSERT_TRUE(s.imgcboObject.hasSelection());
    EXPECT_EQ(s.imgcboObject.currentKey(), u"28Key"_s);
    EXPECT_GT(s.imgcboProperty.count(), 0);

    s.txtTitle = "Variables";
    s.txtDescription = "Names of variables";
    s.cboCategory.setCurrentIndex(0);
    s.chkCaseSensitive = false;
    s.txtExclusionList = "i;j";
    s.txtCondition = "Sub Main\r\n  Quorin.ApplyConvention\r\nEnd Sub";
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

    // Cancel first: nothing reaches the rule.
    Opened other;
    other.rule = o.rule;
    other.open();
    other.screen().txtTitle = "Changed";
    other.screen().chkRuleActive = false;
    other.form.cmdCancel_Click();
    EXPECT_TRUE(other.form.Cancelled());
    EXPECT_FALSE(o.rule->Dirty());
    EXPECT_TRUE(o.rule->Title().isEmpty());

    ASSERT_TRUE(o.form.cmdOK_Click());
    const NamingConvention &rule = *o.rule;
    EXPECT_EQ(rule.Title(), u"Variables"_s);
    EXPECT_EQ(rule.Description(), u"Names of variables"_s);
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
    EXPECT_EQ(rule.ViolationDefinition()->Title(), u"Bad variable name"_s);
    EXPECT_EQ(rule.ViolationDefinition()->Severity(), 1);
    EXPECT_EQ(rule.ViolationDefinition()->Impact(), 12);
    EXPECT_EQ(rule.ViolationDefinition()->Advice(), u"untouched"_s);

    // The rule reads back into a fresh dialog as it was written.
    Opened again;
    again.rule = o.rule;
    again.open();
    EXPECT_EQ(again.screen().prefix.rows[1].text, u"_"_s);
    EXPECT_EQ(again.screen().prefix.rows[1].kind.currentItemData(), 1);
    EXPECT_TRUE(again.screen().prefix.rows[2].kindEnabled);
    EXPECT_FALSE(again.screen().prefix.rows[3].kindEnabled);
    EXPECT_EQ(again.screen().txtBody[1], u"3"_s);
    EXPECT_EQ(again.screen().txtVImpact, u"12"_s);
}
