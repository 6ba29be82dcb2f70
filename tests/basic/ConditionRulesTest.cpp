#include "BasicTestSupport.h"

#include "basic/ConditionRules.h"
#include "rulebase/IRule.h"

using namespace Qt::StringLiterals;

using namespace ConditionRules;

const qint32 Coding = RuleTypes::CodingConvention;
const qint32 Naming = RuleTypes::NamingConvention;

TEST(ConditionRules, OnlyTheBareSubMainLineMayStartAProcedure)
{
    EXPECT_FALSE(ContainsMethods(QString()));
    EXPECT_FALSE(ContainsMethods(code("Sub Main|End Sub")));
    EXPECT_FALSE(ContainsMethods(code("SUB MAIN|End Sub")));
    EXPECT_TRUE(ContainsMethods(code("Sub Main()|End Sub")));
    EXPECT_TRUE(ContainsMethods(code("Sub Main |End Sub")));
    EXPECT_TRUE(ContainsMethods(code("Sub Main|End Sub|Function Foo|End Function")));
    EXPECT_TRUE(ContainsMethods(u"Private Sub Foo"_s));
    EXPECT_TRUE(ContainsMethods(u"Public Property Get X"_s));
    EXPECT_TRUE(ContainsMethods(u"Friend Function F"_s));
    EXPECT_TRUE(ContainsMethods(u"Property Let X(v)"_s));
    // The pattern is case-sensitive and anchored at the line start.
    EXPECT_FALSE(ContainsMethods(u"sub helper"_s));
    EXPECT_FALSE(ContainsMethods(u"  Sub Helper"_s));
    EXPECT_FALSE(ContainsMethods(u"Subtotal = 1"_s));
    // Any line end splits lines, not only CR LF.
    EXPECT_FALSE(ContainsMethods(u"Sub Main\nEnd Sub"_s));
    EXPECT_TRUE(ContainsMethods(u"Sub Main\nSub Foo"_s));
}

TEST(ConditionRules, CheckConditionAppliesTheRulesInOrder)
{
    // Procedures are refused before anything else, syntax errors included.
    auto verdict = CheckCondition(code("Function Foo(|End Function"), Naming);
    EXPECT_FALSE(verdict.passed);
    EXPECT_FALSE(verdict.syntaxError);
    EXPECT_EQ(verdict.message,
              u"Quorin rule conditions do not support the use of Subs, Functions or "
              u"Property procedures other than the required Sub Main."_s);

    verdict = CheckCondition(code("  If x Then"), Naming);
    EXPECT_FALSE(verdict.passed);
    EXPECT_EQ(verdict.message,
              u"A naming convention condition, if set, must contain the line "
              u"Quorin.ApplyConvention to notify the parser that the convention must "
              u"be applied."_s);

    verdict = CheckCondition(code("  If x Then|  Quorin.ApplyConvention"), Naming);
    EXPECT_FALSE(verdict.passed);
    EXPECT_TRUE(verdict.syntaxError);
    EXPECT_EQ(verdict.message,
              u"line 2, column 3: Block If without End If Please fix before trying to "
              u"save the condition."_s);
    EXPECT_EQ(verdict.line, 2);
    EXPECT_EQ(verdict.column, 3);

    // Coding conventions need not apply anything; an empty naming condition passes all three.
    EXPECT_TRUE(CheckCondition(code("  Call Quorin.RaiseViolation()"), Coding).passed);
    EXPECT_TRUE(CheckCondition(QString(), Naming).passed);
    EXPECT_TRUE(ValidNamingConvention(u"' quorin.applyconvention"_s)); // found in any case
    // Warnings don't stop a condition.
    EXPECT_TRUE(
        CheckCondition(code("  x = Quorin.GetObjectProperty(\"File\", \"Nope\")"), Coding).passed);
    EXPECT_FALSE(CheckCondition(code("  Call Quorin.Raise()"), Coding).passed);
}
