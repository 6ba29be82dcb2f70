#include "editors/RulebasePropertiesForm.h"

#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"

#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(RulebasePropertiesForm, ShowsTheRulebaseAndNormalisesTheVersionAndTheTitleGatesOK)
{
    ScriptedUserInterface ui;
    RulebasePropertiesForm form;
    auto rulebase = std::make_shared<Rulebase>();
    rulebase->setDescription(u"Team standards"_s);
    rulebase->setVersion(u"2.3.45"_s);
    rulebase->setAutoIncrementVersion(false);
    rulebase->setToleranceCount(2, 12);
    rulebase->setToleranceImpact(6, 0);
    rulebase->setToleranceCyclomaticComplexity(15);
    rulebase->SeverityList()->Item(u"3Key"_s)->setTitle(u"Moderate"_s);
    form.setRulebase(rulebase);
    form.Load();

    EXPECT_EQ(form.Description(), u"Team standards"_s);
    EXPECT_EQ(form.Major(), u"2"_s);
    EXPECT_EQ(form.Minor(), u"3"_s);
    EXPECT_EQ(form.Revision(), u"0045"_s);
    EXPECT_FALSE(form.AutoIncrement());
    EXPECT_EQ(form.ToleranceCount(0), QString());
    EXPECT_EQ(form.ToleranceCount(1), u"12"_s);
    EXPECT_EQ(form.ToleranceImpact(5), u"0"_s);
    EXPECT_EQ(form.PercentageComments(), QString());
    EXPECT_EQ(form.CyclomaticComplexity(), u"15"_s);
    // The rows follow the rulebase's own severity titles.
    EXPECT_EQ(form.SeverityToleranceLabel(2), u"Moderate"_s);

    // The version boxes normalise on leaving; without a title OK writes nothing.
    rulebase->setDirty(false);
    form.setRevision(u"7"_s);
    EXPECT_EQ(form.Revision(), u"7"_s);
    form.leaveRevision();
    EXPECT_EQ(form.Revision(), u"0007"_s);
    form.setMajor(QString());
    form.leaveMajor();
    EXPECT_EQ(form.Major(), u"0"_s);
    form.setMinor(u"012"_s);
    form.leaveMinor();
    EXPECT_EQ(form.Minor(), u"12"_s);

    form.setTitle(QString());
    EXPECT_FALSE(form.CanOK());
    EXPECT_FALSE(form.OK());
    EXPECT_TRUE(form.Cancelled());
    EXPECT_EQ(rulebase->Version(), u"2.3.45"_s);
    EXPECT_FALSE(rulebase->Dirty());
    EXPECT_TRUE(ui.messages.empty());
}

TEST(RulebasePropertiesForm, OKStoresRealChangesOnlyAndWritesEveryLimit)
{
    RulebasePropertiesForm form;
    auto rulebase = std::make_shared<Rulebase>();
    form.setRulebase(rulebase);
    form.Load();
    rulebase->setDescription(u"abc"_s);
    rulebase->setDirty(false);

    form.setTitle(u"UNTITLED"_s); // case alone is no change
    form.setDescription(u"Changed"_s);
    form.setAutoIncrement(false);
    form.setToleranceCount(0, u"3"_s);
    form.setToleranceImpact(4, QString());
    form.setPercentageComments(u"25"_s);
    form.setCyclomaticComplexity(QString());
    ASSERT_TRUE(form.OK());
    EXPECT_FALSE(form.Cancelled());

    EXPECT_EQ(rulebase->Title(), u"Untitled"_s);
    EXPECT_EQ(rulebase->Description(), u"Changed"_s);
    EXPECT_EQ(rulebase->Version(), u"1.0.0000"_s);
    EXPECT_FALSE(rulebase->AutoIncrementVersion());
    EXPECT_EQ(rulebase->ToleranceCount(1), 3);
    EXPECT_EQ(rulebase->ToleranceCount(2), -1);
    EXPECT_EQ(rulebase->ToleranceImpact(5), -1);
    EXPECT_EQ(rulebase->TolerancePercentageComments(), 25);
    EXPECT_EQ(rulebase->ToleranceCyclomaticComplexity(), -1);
    EXPECT_TRUE(rulebase->Dirty());
}
