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

namespace {

QStringList tagNames(const ObjectKeyedArrayList<TagItem> &tags)
{
    QStringList names;
    for (qint32 i = 1; i <= tags.Count(); ++i)
        names << tags.Item(i)->TagName();
    return names;
}

} // namespace

// The default texts are pinned by the document test, which writes them all.
TEST(Rulebase, NewRulebaseHasItsDefaultsAndIsClean)
{
    Rulebase rulebase;
    EXPECT_FALSE(rulebase.Dirty());
    EXPECT_EQ(rulebase.Title(), QStringLiteral("Untitled"));
    EXPECT_EQ(rulebase.Version(), QStringLiteral("1.0.0"));
    EXPECT_TRUE(rulebase.AutoIncrementVersion());
    EXPECT_EQ(rulebase.RuleCount(), 0);
    EXPECT_EQ(rulebase.TolerancePercentageComments(), -1);
    for (qint32 i = 1; i <= 6; ++i)
        EXPECT_EQ(rulebase.ToleranceCount(i) + rulebase.ToleranceImpact(i), -2) << i;
    for (const auto &tags : {rulebase.ControlTags(), rulebase.DataTypeTags(), rulebase.ScopeTags()}) {
        EXPECT_GT(tags->Count(), 0);
        for (qint32 i = 1; i <= tags->Count(); ++i) {
            EXPECT_TRUE(tags->Item(i)->Locked() && !tags->Item(i)->Dirty() && !tags->Selected(i));
            EXPECT_EQ(tags->Key(i), tags->Item(i)->TagName());
        }
    }
    const QStringList dataTypes = tagNames(*rulebase.DataTypeTags());
    EXPECT_LT(dataTypes.indexOf(QStringLiteral("Single")), dataTypes.indexOf(QStringLiteral("Object")));
    EXPECT_LT(dataTypes.indexOf(QStringLiteral("Byte")), dataTypes.indexOf(QStringLiteral("Boolean")));
    EXPECT_EQ(rulebase.ControlTags()->Item(QStringLiteral("(unknown progid)"))->TagValue(),
              QStringLiteral("ctl"));

    // Severities by level, keyed "<level>Key", all selected, impact falling with the level.
    const auto severities = rulebase.SeverityList();
    ASSERT_EQ(severities->Count(), 5);
    const qint32 colours[] = {14, 16, 2, 11, 15};
    const qint16 impacts[] = {900, 750, 500, 250, 0};
    for (qint32 level = 1; level <= 5; ++level) {
        const auto item = severities->Item(QString::number(level) + QStringLiteral("Key"));
        EXPECT_EQ(item->SeverityLevel(), level);
        EXPECT_EQ(item->ID(), level);
        EXPECT_EQ(item->Colour(), colours[level - 1]);
        EXPECT_EQ(item->Impact(), impacts[level - 1]);
        EXPECT_TRUE(severities->Selected(level));
        EXPECT_FALSE(item->Title().isEmpty() || item->Description().isEmpty());
    }
}

TEST(Rulebase, DirtyIsComputedFromItsParts)
{
    Rulebase rulebase;
    EXPECT_FALSE(rulebase.Dirty());
    rulebase.setTitle(rulebase.Title()); // an unchanged value still counts
    EXPECT_TRUE(rulebase.Dirty());
    rulebase.setDirty(false);
    rulebase.setFilename(QStringLiteral("C:\\a\\b.qrb"));
    EXPECT_FALSE(rulebase.Dirty());

    // Only the default violations changed: that too is a change to save.
    rulebase.DefaultViolations()->ItemByType(2)->setAdvice(QStringLiteral("Upgrade."));
    EXPECT_TRUE(rulebase.Dirty());
    rulebase.setDirty(false);
    EXPECT_FALSE(rulebase.DefaultViolations()->Dirty());

    // Tag sets count through their items, not through their own flags.
    rulebase.ControlTags()->setDirty(true);
    EXPECT_FALSE(rulebase.Dirty());
    rulebase.ScopeTags()->Item(7)->setTagValue(QStringLiteral("r"));
    EXPECT_TRUE(rulebase.Dirty());
    rulebase.setDirty(false);
    EXPECT_FALSE(rulebase.ScopeTags()->Item(7)->Dirty());
    rulebase.ScopeTags()->Item(7)->setLocked(false);
    EXPECT_FALSE(rulebase.Dirty());

    rulebase.setToleranceImpact(3, 100);
    EXPECT_TRUE(rulebase.Dirty());
    rulebase.setDirty(false);
    EXPECT_THROW(rulebase.ToleranceCount(11), QuorinError);

    // Every other part counts, and setDirty(false) reaches into it.
    const auto rule = std::make_shared<CodingConvention>();
    rulebase.RuleLists()->AddConvention(rule, true);
    EXPECT_TRUE(rulebase.Dirty());
    rulebase.setDirty(false);
    EXPECT_FALSE(rule->Dirty());
    rule->ViolationDefinition()->setSeverity(2);
    EXPECT_TRUE(rulebase.Dirty());
    rulebase.setDirty(false);

    auto table = std::make_shared<TableItem>();
    rulebase.Report()->Sections()->Add(table);
    rulebase.setDirty(false);
    table->setTableTitle(QStringLiteral("Scope Tags"));
    EXPECT_TRUE(rulebase.Dirty());
    rulebase.setDirty(false);
    EXPECT_FALSE(table->Dirty());

    rulebase.AuthorisedComponents()->Add(QStringLiteral("{G}"), QStringLiteral("x.ocx"), {}, {});
    EXPECT_TRUE(rulebase.Dirty());
    EXPECT_EQ(rulebase.RuleCount(), 2);
    rulebase.setDirty(false);
    rulebase.SeverityList()->setItem(1, rulebase.SeverityList()->Item(1));
    EXPECT_TRUE(rulebase.Dirty());
    rulebase.setDirty(false);
    auto item = std::make_shared<CategoryItem>();
    rulebase.CategoryList()->Add(item, true);
    EXPECT_TRUE(rulebase.Dirty());
}

TEST(Rulebase, FileTitleIsTheNameAfterTheLastSeparator)
{
    Rulebase rulebase;
    EXPECT_EQ(rulebase.FileTitle(), QStringLiteral("[Untitled]"));
    rulebase.setFilename(QStringLiteral("C:\\a\\b.qrb"));
    EXPECT_EQ(rulebase.FileTitle(), QStringLiteral("b.qrb"));
    rulebase.setFilename(QStringLiteral("C:\\a\\b"));
    EXPECT_EQ(rulebase.FileTitle(), QString());
}

TEST(VersionNumber, IncrementCarriesAndShortVersionsStopAtTheMissingPart)
{
    VersionNumber version;
    version.setVersion(QStringLiteral("1.0.0"));
    version.Increment();
    EXPECT_EQ(version.Version(), QStringLiteral("1.0.0001"));

    version.setVersion(QStringLiteral("1.2.9999"));
    version.Increment();
    EXPECT_EQ(version.Version(), QStringLiteral("1.3.0000"));
    version.setVersion(QStringLiteral("4.9999.9999"));
    version.Increment();
    EXPECT_EQ(version.Version(), QStringLiteral("5.0.0000"));

    // Reported through the frame; the parts before the missing one are set.
    version.setVersion(QStringLiteral("7.8"));
    EXPECT_EQ(version.Major(), 7);
    EXPECT_EQ(version.Minor(), 8);
    EXPECT_EQ(version.Revision(), 0);

    version.setRevisionString(QString());
    version.setMinorString(QStringLiteral("12"));
    EXPECT_EQ(version.Version(), QStringLiteral("7.12.0000"));
    EXPECT_THROW(version.setMajorString(QStringLiteral("x")), QuorinError);
}

TEST(RulebaseLoadCriteria, OnlyRealChangesOfTheFilterMarkItDirty)
{
    RulebaseLoadCriteria criteria;
    EXPECT_FALSE(criteria.LoadForEdit());
    criteria.setRulebaseFile(QStringLiteral("C:\\R.qrb"));
    EXPECT_TRUE(criteria.Dirty());
    criteria.setDirty(false);
    criteria.setRulebaseFile(QStringLiteral("c:\\r.QRB"));
    criteria.setCodingConventions(false);
    criteria.setLoadForEdit(true);
    criteria.setNumAuthComps(4);
    criteria.setRulebaseTitle(QStringLiteral("t"));
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
