#include "collections/ObjectArrayList.h"
#include "platform/QuorinError.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/CommonRuleFields.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

#include "support/RulebaseDump.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ViolationDefinition, OnlyTheReportedFieldsMarkItDirtyAndTheFiveDefaultsAreReachedByType)
{
    ViolationDefinition definition;
    EXPECT_EQ(definition.CategoryID(), -1);
    EXPECT_EQ(definition.Severity(), 0);
    definition.setViolationDescription(u"for the author"_s);
    EXPECT_FALSE(definition.Dirty());
    definition.setImpact(definition.Impact()); // an unchanged value still counts
    EXPECT_TRUE(definition.Dirty());

    const auto copy = definition.Copy();
    EXPECT_NE(copy.get(), &definition);
    EXPECT_EQ(copy->ViolationDescription(), u"for the author"_s);
    EXPECT_EQ(copy->CategoryID(), -1);

    // The five defaults, reached by type.
    DefaultViolations defaults;
    EXPECT_EQ(defaults.Count(), 5);
    EXPECT_TRUE(defaults.Dirty()); // built through the setters
    EXPECT_EQ(defaults.ItemByType(0), nullptr);
    EXPECT_EQ(defaults.ItemByType(6), nullptr);
    // The texts are pinned by the document test, which writes them all.
    EXPECT_EQ(defaults.ItemByType(5)->Title(), u"Unknown Control"_s);
    defaults.setDirty(false);
    EXPECT_FALSE(defaults.Dirty());
    defaults.Item(4)->setAdvice(u"x"_s);
    EXPECT_TRUE(defaults.Dirty());

    // Item goes by the list's bounds: a slot up to its capacity is null, beyond it fails.
    EXPECT_EQ(defaults.Item(6), nullptr);
    EXPECT_THROW(defaults.Item(11), QuorinError);
}

TEST(CodingConvention, EventArrayRefusesDuplicatesAndFillsGapsFromTheEnd)
{
    CodingConvention rule;
    EXPECT_EQ(rule.RuleKey(), u"0Key"_s);
    EXPECT_EQ(rule.ParserEventList(), QString());
    EXPECT_EQ(rule.EndEventID(), -1);

    EXPECT_TRUE(rule.AddParserEventID(12));
    rule.setDirty(false);
    EXPECT_TRUE(rule.AddParserEventID(12));
    EXPECT_EQ(rule.EventCount(), 1);
    EXPECT_FALSE(rule.Dirty()); // a refused duplicate changes nothing
    EXPECT_EQ(rule.ParserEventList(), u"12"_s);

    EXPECT_TRUE(rule.RemoveParserEventID(99)); // never assigned: still marks the rule
    EXPECT_TRUE(rule.Dirty());

    rule.RemoveParserEventID(-1);
    for (const qint32 id : {1, 2, 3})
        rule.AddParserEventID(id);
    rule.RemoveParserEventID(1);
    EXPECT_EQ(rule.ParserEventList(), u"3|2"_s);
    EXPECT_EQ(rule.ParserEventID(0), 3);
    EXPECT_FALSE(rule.IsAssignedToEvent(1));
    EXPECT_THROW(rule.ParserEventID(2), QuorinError);

    rule.RemoveParserEventID(-1);
    EXPECT_EQ(rule.EventCount(), 0);
    EXPECT_EQ(rule.ParserEventList(), QString());
}

TEST(CodingConvention, EnforcementFlagsNeedAPendingViolationAndDirtyFollowsTheDefinition)
{
    CodingConvention rule;
    IRule &asRule = rule;
    asRule.setTriggered(true);
    asRule.setCancelled(true);
    EXPECT_FALSE(rule.Triggered());
    EXPECT_FALSE(rule.Cancelled());
    EXPECT_FALSE(rule.Dirty()); // the flags never touch Dirty

    rule.setPendingViolation(true);
    asRule.setTriggered(true);
    EXPECT_TRUE(rule.Triggered());
    rule.setEndEventID(7);
    rule.setPendingViolation(false);
    EXPECT_EQ(rule.EndEventID(), 7);
    asRule.setTriggered(false); // ignored again: the old value stands
    EXPECT_TRUE(rule.Triggered());

    rule.setDirty(false);
    rule.ViolationDefinition()->setTitle(u"t"_s);
    EXPECT_TRUE(rule.Dirty());
    rule.setDirty(false);
    EXPECT_FALSE(rule.ViolationDefinition()->Dirty());
    rule.setCategoryID(4);
    EXPECT_EQ(rule.ViolationDefinition()->CategoryID(), 4);
    rule.setDirty(false);
    rule.setViolationDefinition(std::make_shared<ViolationDefinition>());
    EXPECT_FALSE(rule.Dirty());
    EXPECT_EQ(rule.CategoryID(), -1);
}

namespace {

// Every stored field of a rule, through a rulebase that holds it alone.
QString dumpOf(const std::shared_ptr<CommonRuleFields> &rule)
{
    Rulebase rulebase;
    rulebase.RuleLists()->AddConvention(rule, false);
    return dumpRulebase(rulebase);
}

} // namespace

// A clone is a new rule: no id, a title of its own, objects of its own; a naming convention's
// exclusions and case sensitivity stay behind.
TEST(RuleClone, CopiesEveryStoredFieldButTheIdAndTitle)
{
    auto coding = std::make_shared<CodingConvention>();
    coding->setRuleID(5003);
    coding->setTitle(u"No GoTo"_s);
    coding->setCondition(u"Sub Main\nEnd Sub"_s);
    coding->setPendingViolation(true);
    coding->setEndEventID(9);
    coding->setTriggered(true);
    for (const qint32 id : {5, 1, 8})
        coding->AddParserEventID(id);
    coding->ViolationDefinition()->setAdvice(u"Don't."_s);
    coding->ViolationDefinition()->setViolationDescription(u"why"_s);
    coding->setCategoryID(3);
    coding->setRuleActive(false);

    auto naming = std::make_shared<NamingConvention>();
    naming->setTitle(u"Forms"_s);
    naming->setCaseSensitive(false);
    naming->setExclusionList(u"frmMain;frmAbout"_s);
    naming->setObjectType(3);
    naming->setPropertyType(11);
    naming->setPropertyName(u"Name"_s);
    naming->setPrefixActive(true);
    naming->PrefixItems()->Item(1)->setPSType(2);
    naming->SuffixItems()->Item(4)->setPSType(1);
    naming->SuffixItems()->Item(4)->setValue(u"Form"_s);
    naming->setBodyPattern(u"[A-Z]\\w+"_s);
    naming->setMaxBodyLength(20);
    naming->setSuffixAdvice(u"End in Form"_s);

    const auto codingClone = std::dynamic_pointer_cast<CodingConvention>(coding->Clone());
    const auto namingClone = std::dynamic_pointer_cast<NamingConvention>(naming->Clone());
    ASSERT_TRUE(codingClone && namingClone);
    EXPECT_FALSE(codingClone->Triggered());
    EXPECT_TRUE(namingClone->CaseSensitive());
    EXPECT_TRUE(namingClone->ExclusionList().isEmpty());
    namingClone->setCaseSensitive(false);
    namingClone->setExclusionList(naming->ExclusionList());
    EXPECT_EQ(codingClone->Clone()->Title(), u"Clone of Clone of No GoTo"_s);
    const std::pair<std::shared_ptr<CommonRuleFields>, std::shared_ptr<CommonRuleFields>> pairs[]
        = {{coding, codingClone}, {naming, namingClone}};
    for (const auto &[source, clone] : pairs) {
        EXPECT_EQ(clone->RuleID(), 0);
        EXPECT_EQ(clone->Title(), u"Clone of "_s + source->Title());
        clone->setRuleID(source->RuleID());
        clone->setTitle(source->Title());
        EXPECT_EQ(dumpOf(clone).toStdString(), dumpOf(source).toStdString());
    }

    codingClone->ViolationDefinition()->setAdvice(u"changed"_s);
    EXPECT_EQ(coding->ViolationDefinition()->Advice(), u"Don't."_s);
    namingClone->SuffixItems()->Item(4)->setValue(u"Dialog"_s);
    EXPECT_EQ(naming->SuffixItems()->Item(4)->Value(), u"Form"_s);
}
