#include "rulebase/Rulebase.h"
#include "platform/QuorinError.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/RulebaseLoadCriteria.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/TableItem.h"
#include "rulebase/TagItem.h"
#include "rulebase/VersionNumber.h"
#include "rulebase/ViolationDefinition.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

// The default texts are pinned by the document test, which writes them all.
TEST(Rulebase, NewRulebaseHasItsDefaultsAndIsClean)
{
    Rulebase rulebase;
    EXPECT_FALSE(rulebase.Dirty());
    EXPECT_EQ(rulebase.Title(), u"Untitled"_s);
    EXPECT_EQ(rulebase.Version(), u"1.0.0"_s);
    EXPECT_TRUE(rulebase.AutoIncrementVersion());
    EXPECT_EQ(rulebase.RuleCount(), 0);
    EXPECT_EQ(rulebase.TolerancePercentageComments(), -1);
    for (qint32 i = 1; i <= 6; ++i)
        EXPECT_EQ(rulebase.ToleranceCount(i) + rulebase.ToleranceImpact(i), -2) << i;
    for (const auto &tags :
         {rulebase.ControlTags(), rulebase.DataTypeTags(), rulebase.ScopeTags()}) {
        EXPECT_GT(tags->Count(), 0);
        for (qint32 i = 1; i <= tags->Count(); ++i) {
            EXPECT_TRUE(tags->Item(i)->Locked() && !tags->Item(i)->Dirty() && !tags->Selected(i));
            EXPECT_EQ(tags->Key(i), tags->Item(i)->TagName());
        }
    }
    const auto dataTypes = rulebase.DataTypeTags();
    EXPECT_LT(dataTypes->FindIndexByKey(u"Single"_s), dataTypes->FindIndexByKey(u"Object"_s));
    EXPECT_LT(dataTypes->FindIndexByKey(u"Byte"_s), dataTypes->FindIndexByKey(u"Boolean"_s));
    EXPECT_EQ(rulebase.ControlTags()->Item(u"(unknown progid)"_s)->TagValue(), u"ctl"_s);

    // Severities by level, keyed "<level>Key", all selected.
    const auto severities = rulebase.SeverityList();
    ASSERT_EQ(severities->Count(), 5);
    for (qint32 level = 1; level <= 5; ++level) {
        EXPECT_EQ(severities->Item(QString::number(level) + u"Key"_s)->SeverityLevel(), level);
        EXPECT_TRUE(severities->Selected(level));
    }
}

// A change counts whether or not it changes the value; tag sets count through their items, not
// their own flags; setDirty(false) reaches into every part.
TEST(Rulebase, DirtyIsComputedFromItsPartsAndFileTitleFromTheName)
{
    Rulebase rulebase;
    EXPECT_EQ(rulebase.FileTitle(), u"[Untitled]"_s);
    const auto rule = std::make_shared<CodingConvention>();
    const auto table = std::make_shared<TableItem>();
    const std::pair<std::function<void()>, bool> changes[] = {
        {[&] { rulebase.setTitle(rulebase.Title()); }, true},
        {[&] { rulebase.setFilename(u"C:\\a\\b.qrb"_s); }, false},
        {[&] { rulebase.DefaultViolations()->ItemByType(2)->setAdvice(u"Upgrade."_s); }, true},
        {[&] { rulebase.ControlTags()->setDirty(true); }, false},
        {[&] { rulebase.ScopeTags()->Item(7)->setTagValue(u"r"_s); }, true},
        {[&] { rulebase.ScopeTags()->Item(7)->setLocked(false); }, false},
        {[&] { rulebase.setToleranceImpact(3, 100); }, true},
        {[&] { rulebase.RuleLists()->AddConvention(rule, true); }, true},
        {[&] { rule->ViolationDefinition()->setSeverity(2); }, true},
        {[&] { rulebase.Report()->Sections()->Add(table); }, true},
        {[&] { table->setTableTitle(u"Scope Tags"_s); }, true},
        {[&] { rulebase.AuthorisedComponents()->Add(u"{G}"_s, u"x.ocx"_s, {}, {}); }, true},
        {[&] { rulebase.SeverityList()->setItem(1, rulebase.SeverityList()->Item(1)); }, true},
        {[&] { rulebase.CategoryList()->Add(std::make_shared<CategoryItem>(), true); }, true},
    };
    for (size_t i = 0; i < std::size(changes); ++i) {
        EXPECT_FALSE(rulebase.Dirty()) << i;
        changes[i].first();
        EXPECT_EQ(rulebase.Dirty(), changes[i].second) << i;
        rulebase.setDirty(false);
    }
    EXPECT_FALSE(rulebase.DefaultViolations()->Dirty());
    EXPECT_FALSE(rulebase.ScopeTags()->Item(7)->Dirty());
    EXPECT_FALSE(rule->Dirty());
    EXPECT_FALSE(table->Dirty());
    EXPECT_EQ(rulebase.RuleCount(), 2);
    EXPECT_THROW(rulebase.ToleranceCount(11), QuorinError);

    EXPECT_EQ(rulebase.FileTitle(), u"b.qrb"_s);
    rulebase.setFilename(u"C:\\a\\b"_s);
    EXPECT_EQ(rulebase.FileTitle(), QString());
}

TEST(VersionNumber, IncrementCarriesAndShortVersionsStopAtTheMissingPart)
{
    VersionNumber version;
    version.setVersion(u"1.0.0"_s);
    version.Increment();
    EXPECT_EQ(version.Version(), u"1.0.0001"_s);

    version.setVersion(u"1.2.9999"_s);
    version.Increment();
    EXPECT_EQ(version.Version(), u"1.3.0000"_s);
    version.setVersion(u"4.9999.9999"_s);
    version.Increment();
    EXPECT_EQ(version.Version(), u"5.0.0000"_s);

    // Reported through the frame; the parts before the missing one are set.
    version.setVersion(u"7.8"_s);
    EXPECT_EQ(version.Major(), 7);
    EXPECT_EQ(version.Minor(), 8);
    EXPECT_EQ(version.Revision(), 0);

    version.setRevisionString(QString());
    version.setMinorString(u"12"_s);
    EXPECT_EQ(version.Version(), u"7.12.0000"_s);
    EXPECT_THROW(version.setMajorString(u"x"_s), QuorinError);
}

TEST(RulebaseLoadCriteria, OnlyRealChangesOfTheFilterMarkItDirty)
{
    RulebaseLoadCriteria criteria;
    EXPECT_FALSE(criteria.LoadForEdit());
    criteria.setRulebaseFile(u"C:\\R.qrb"_s);
    EXPECT_TRUE(criteria.Dirty());
    criteria.setDirty(false);
    criteria.setRulebaseFile(u"c:\\r.QRB"_s);
    criteria.setCodingConventions(false);
    criteria.setLoadForEdit(true);
    criteria.setNumAuthComps(4);
    criteria.setRulebaseTitle(u"t"_s);
    EXPECT_FALSE(criteria.Dirty());

    EXPECT_FALSE(criteria.SeverityLevel(0));
    criteria.setSeverityLevel(6, true);
    EXPECT_FALSE(criteria.SeverityLevel(6));
    EXPECT_FALSE(criteria.Dirty());
    criteria.setSeverityLevel(1, true);
    EXPECT_TRUE(criteria.SeverityLevel(1));
    EXPECT_TRUE(criteria.Dirty());

    criteria.setDirty(false);
    criteria.AddExcludedCategoryID(3);
    criteria.AddExcludedCategoryID(3);
    EXPECT_EQ(criteria.ExcludedCategoryIDCount(), 1);
    EXPECT_TRUE(criteria.IsExcludedCategoryID(3));
    criteria.setDirty(false);
    criteria.RemoveExcludedCategoryID(8);
    EXPECT_FALSE(criteria.Dirty());
    criteria.RemoveExcludedCategoryID(3);
    EXPECT_TRUE(criteria.Dirty());
    EXPECT_FALSE(criteria.IsExcludedCategoryID(3));
}
