#include "collections/ObjectArrayList.h"
#include "platform/QuorinError.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(ViolationDefinition, OnlyTheReportedFieldsMarkItDirty)
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
}

TEST(DefaultViolations, FiveFixedDefinitionsReachedByType)
{
    DefaultViolations defaults;
    EXPECT_EQ(defaults.Count(), 5);
    EXPECT_TRUE(defaults.Dirty()); // built through the setters
    EXPECT_EQ(defaults.ItemByType(0), nullptr);
    EXPECT_EQ(defaults.ItemByType(6), nullptr);
    EXPECT_EQ(defaults.ItemByType(3)->Title(), u"Unauthorised Reference"_s);
    EXPECT_EQ(defaults.ItemByType(1)->Description(),
              u"The component '%Component.Filename%' has been detected in file "
              u"%File.Filename% but is not an authorised component."_s);

    const auto unknownControl = defaults.ItemByType(5);
    EXPECT_EQ(unknownControl->Title(), u"Unknown Control"_s);
    EXPECT_TRUE(unknownControl->Description().isEmpty());
    EXPECT_TRUE(unknownControl->Advice().isEmpty());
    for (qint32 type = 1; type <= 5; ++type) {
        EXPECT_EQ(defaults.Item(type)->Severity(), 1);
        EXPECT_EQ(defaults.Item(type)->Impact(), 900);
        EXPECT_EQ(defaults.Item(type)->CategoryID(), -1);
    }

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

TEST(CodingConvention, CloneCopiesTheRuleButNeitherItsIdNorItsDefinitionObject)
{
    CodingConvention source;
    source.setRuleID(5003);
    source.setTitle(u"No GoTo"_s);
    source.setCondition(u"Sub Main\nEnd Sub"_s);
    source.setPendingViolation(true);
    source.setEndEventID(9);
    source.setTriggered(true);
    for (const qint32 id : {5, 1, 8})
        source.AddParserEventID(id);
    source.ViolationDefinition()->setAdvice(u"Don't."_s);
    source.ViolationDefinition()->setViolationDescription(u"why"_s);
    source.setCategoryID(3);
    source.setRuleActive(false);

    const auto clone = std::dynamic_pointer_cast<CodingConvention>(source.Clone());
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->RuleID(), 0);
    EXPECT_EQ(clone->Title(), u"Clone of No GoTo"_s);
    EXPECT_EQ(clone->Clone()->Title(), u"Clone of Clone of No GoTo"_s);
    EXPECT_EQ(clone->ParserEventList(), u"5|1|8"_s);
    EXPECT_EQ(clone->Condition(), source.Condition());
    EXPECT_TRUE(clone->PendingViolation());
    EXPECT_EQ(clone->EndEventID(), 9);
    EXPECT_FALSE(clone->RuleActive());
    EXPECT_FALSE(clone->Triggered());
    EXPECT_EQ(clone->CategoryID(), 3);
    EXPECT_EQ(clone->ViolationDefinition()->ViolationDescription(), u"why"_s);
    EXPECT_NE(clone->ViolationDefinition(), source.ViolationDefinition());
    clone->ViolationDefinition()->setAdvice(u"changed"_s);
    EXPECT_EQ(source.ViolationDefinition()->Advice(), u"Don't."_s);
}

TEST(NamingConvention, CloneLeavesOutExclusionsAndCaseSensitivityAndOwnsItsItems)
{
    NamingConvention source;
    source.setTitle(u"Forms"_s);
    source.setCaseSensitive(false);
    source.setExclusionList(u"frmMain;frmAbout"_s);
    source.setObjectType(3);
    source.setPropertyType(11);
    source.setPropertyName(u"Name"_s);
    source.setPrefixActive(true);
    source.PrefixItems()->Item(1)->setPSType(2);
    source.SuffixItems()->Item(4)->setPSType(1);
    source.SuffixItems()->Item(4)->setValue(u"Form"_s);
    source.setBodyPattern(u"[A-Z]\\w+"_s);
    source.setMaxBodyLength(20);
    source.setSuffixAdvice(u"End in Form"_s);

    const auto clone = std::dynamic_pointer_cast<NamingConvention>(source.Clone());
    ASSERT_TRUE(clone);
    EXPECT_TRUE(clone->CaseSensitive());
    EXPECT_TRUE(clone->ExclusionList().isEmpty());
    EXPECT_EQ(clone->ObjectType(), 3);
    EXPECT_EQ(clone->PropertyType(), 11);
    EXPECT_EQ(clone->PropertyName(), u"Name"_s);
    EXPECT_TRUE(clone->PrefixActive());
    EXPECT_EQ(clone->PrefixItems()->Item(1)->PSType(), 2);
    EXPECT_EQ(clone->SuffixItems()->Item(4)->Value(), u"Form"_s);
    EXPECT_EQ(clone->BodyPattern(), source.BodyPattern());
    EXPECT_EQ(clone->MaxBodyLength(), 20);
    EXPECT_EQ(clone->SuffixAdvice(), u"End in Form"_s);

    EXPECT_NE(clone->PrefixItems()->Item(1), source.PrefixItems()->Item(1));
    clone->SuffixItems()->Item(4)->setValue(u"Dialog"_s);
    EXPECT_EQ(source.SuffixItems()->Item(4)->Value(), u"Form"_s);
}
