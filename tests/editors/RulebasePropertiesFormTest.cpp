#include "editors/RulebasePropertiesForm.h"

#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"

#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

namespace {

std::shared_ptr<Rulebase> loaded(RulebasePropertiesForm &form)
{
    auto rulebase = std::make_shared<Rulebase>();
    form.setRulebase(rulebase);
    form.Load();
    return rulebase;
}

} // namespace

TEST(RulebasePropertiesForm, ShowsTheRulebaseWithUnsetLimitsEmptyAndSeverityTitlesOnTheRows)
{
    RulebasePropertiesForm form;
    auto rulebase = std::make_shared<Rulebase>();
    rulebase->setDescription(QStringLiteral("Team standards"));
    rulebase->setVersion(QStringLiteral("2.3.45"));
    rulebase->setAutoIncrementVersion(false);
    rulebase->setToleranceCount(2, 12);
    rulebase->setToleranceImpact(6, 0);
    rulebase->setToleranceCyclomaticComplexity(15);
    rulebase->SeverityList()->Item(QStringLiteral("3Key"))->setTitle(QStringLiteral("Moderate"));
    form.setRulebase(rulebase);
    form.Load();

    EXPECT_EQ(form.Title(), QStringLiteral("Untitled"));
    EXPECT_EQ(form.Description(), QStringLiteral("Team standards"));
    EXPECT_EQ(form.Major(), QStringLiteral("2"));
    EXPECT_EQ(form.Minor(), QStringLiteral("3"));
    EXPECT_EQ(form.Revision(), QStringLiteral("0045"));
    EXPECT_FALSE(form.AutoIncrement());
    EXPECT_EQ(form.ToleranceCount(0), QString());
    EXPECT_EQ(form.ToleranceCount(1), QStringLiteral("12"));
    EXPECT_EQ(form.ToleranceImpact(5), QStringLiteral("0"));
    EXPECT_EQ(form.PercentageComments(), QString());
    EXPECT_EQ(form.CyclomaticComplexity(), QStringLiteral("15"));

    const QStringList labels{"Critical", "High", "Moderate", "Low", "Info", "Total"};
    for (int row = 0; row < RulebasePropertiesForm::ToleranceRows; ++row)
        EXPECT_EQ(form.SeverityToleranceLabel(row), labels.at(row)) << row;
}

TEST(RulebasePropertiesForm, VersionBoxesNormaliseOnLeavingAndTheTitleGatesOK)
{
    ScriptedUserInterface ui;
    RulebasePropertiesForm form;
    auto rulebase = loaded(form);

    form.setRevision(QStringLiteral("7"));
    EXPECT_EQ(form.Revision(), QStringLiteral("7"));
    form.leaveRevision();
    EXPECT_EQ(form.Revision(), QStringLiteral("0007"));
    form.setMajor(QString());
    form.leaveMajor();
    EXPECT_EQ(form.Major(), QStringLiteral("0"));
    form.setMinor(QStringLiteral("012"));
    form.leaveMinor();
    EXPECT_EQ(form.Minor(), QStringLiteral("12"));

    form.setTitle(QString());
    EXPECT_FALSE(form.CanOK());
    EXPECT_FALSE(form.OK());
    EXPECT_TRUE(form.Cancelled());
    EXPECT_EQ(rulebase->Version(), QStringLiteral("1.0.0"));
    EXPECT_FALSE(rulebase->Dirty());
    EXPECT_TRUE(ui.messages.empty());
}

TEST(RulebasePropertiesForm, OKStoresRealChangesOnlyAndWritesEveryLimit)
{
    RulebasePropertiesForm form;
    auto rulebase = loaded(form);
    rulebase->setDescription(QStringLiteral("abc"));
    rulebase->setDirty(false);

    form.setTitle(QStringLiteral("UNTITLED")); // case alone is no change
    form.setDescription(QStringLiteral("Changed"));
    form.setAutoIncrement(false);
    form.setToleranceCount(0, QStringLiteral("3"));
    form.setToleranceImpact(4, QString());
    form.setPercentageComments(QStringLiteral("25"));
    form.setCyclomaticComplexity(QString());
    ASSERT_TRUE(form.OK());
    EXPECT_FALSE(form.Cancelled());

    EXPECT_EQ(rulebase->Title(), QStringLiteral("Untitled"));
    EXPECT_EQ(rulebase->Description(), QStringLiteral("Changed"));
    EXPECT_EQ(rulebase->Version(), QStringLiteral("1.0.0000"));
    EXPECT_FALSE(rulebase->AutoIncrementVersion());
    EXPECT_EQ(rulebase->ToleranceCount(1), 3);
    EXPECT_EQ(rulebase->ToleranceCount(2), -1);
    EXPECT_EQ(rulebase->ToleranceImpact(5), -1);
    EXPECT_EQ(rulebase->TolerancePercentageComments(), 25);
    EXPECT_EQ(rulebase->ToleranceCyclomaticComplexity(), -1);
    EXPECT_TRUE(rulebase->Dirty());
}

TEST(RulebasePropertiesForm, CancelLeavesTheRulebaseCleanWhileOKRewritesTheLimits)
{
    {
        RulebasePropertiesForm form;
        auto rulebase = loaded(form);
        form.setTitle(QStringLiteral("Other"));
        form.setToleranceCount(3, QStringLiteral("9"));
        form.Cancel();
        EXPECT_TRUE(form.Cancelled());
        EXPECT_EQ(rulebase->Title(), QStringLiteral("Untitled"));
        EXPECT_EQ(rulebase->ToleranceCount(4), -1);
        EXPECT_FALSE(rulebase->Dirty());
    }
    {
        // With no edit at all the title block stays, but the limits go through their setters.
        RulebasePropertiesForm form;
        auto rulebase = loaded(form);
        rulebase->setVersion(QStringLiteral("1.0.0000"));
        rulebase->setDirty(false);
        form.Load();
        ASSERT_TRUE(form.OK());
        EXPECT_EQ(rulebase->Title(), QStringLiteral("Untitled"));
        EXPECT_EQ(rulebase->ToleranceCount(1), -1);
        EXPECT_TRUE(rulebase->Dirty());
    }
}
