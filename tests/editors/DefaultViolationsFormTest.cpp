#include "editors/DefaultViolationsForm.h"

#include "rulebase/CategoryList.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"

#include "EditorsTestSupport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Opened
{
    Opened()
    {
        rulebase->setDirty(false);
        rulebase->DefaultViolations()->setDirty(false);
        form.setDefaultViolations(rulebase->DefaultViolations());
        form.setCategoryList(rulebase->CategoryList());
        form.setSeverityList(rulebase->SeverityList());
        form.Load();
    }
    std::shared_ptr<ViolationDefinition> original(qint32 type) const
    {
        return rulebase->DefaultViolations()->ItemByType(type);
    }

    std::shared_ptr<Rulebase> rulebase = EditorsTest::rulebaseWithCategories();
    DefaultViolationsForm form;
};

} // namespace

TEST(DefaultViolationsForm, OpensOnTheFirstViolationAndCancelWritesNone)
{
    Opened o;
    EXPECT_EQ(o.form.CurrentType(), 1);
    EXPECT_EQ(o.form.ViolationTitleLabel(), o.original(1)->ViolationDescription());
    EXPECT_EQ(o.form.Description(), o.original(1)->Description());
    EXPECT_EQ(o.form.Advice(), o.original(1)->Advice());
    EXPECT_EQ(o.form.SeverityIndex(), 0);
    // No category: no entry, and it stays -1 until one is chosen.
    EXPECT_EQ(o.form.CategoryIndex(), -1);
    EXPECT_EQ(o.form.Copy(1)->CategoryID(), -1);

    o.form.ToolClick(u"TLUNKNOWNCONTROL"_s);
    EXPECT_EQ(o.form.CurrentType(), 5);
    EXPECT_EQ(o.form.Description(), QString());
    o.form.ToolClick(u"tlNoSuchTool"_s);
    EXPECT_EQ(o.form.CurrentType(), 5);

    // Cancel writes none of the five.
    o.form.setDescription(u"x"_s);
    o.form.setSeverityIndex(4);
    o.form.ToolClick(u"tlUnauthCompVer"_s);
    o.form.setAdvice(u"y"_s);
    o.form.Cancel();
    EXPECT_TRUE(o.form.Cancelled());
    EXPECT_EQ(o.original(5)->Severity(), 1);
    EXPECT_NE(o.original(2)->Advice(), u"y"_s);
    EXPECT_FALSE(o.rulebase->DefaultViolations()->Dirty());
}

TEST(DefaultViolationsForm, EditsStayInTheCopiesAcrossToolsAndOKWritesAllFive)
{
    Opened o;
    o.form.setDescription(u"Component text"_s);
    o.form.setCategoryIndex(1);
    o.form.ToolClick(u"tlUnauthRef"_s);
    // Choosing a severity takes over its default impact.
    o.form.setSeverityIndex(3);
    EXPECT_EQ(o.form.Impact(), u"250"_s);
    o.form.setImpact(QString());
    EXPECT_EQ(o.form.Copy(3)->Impact(), 0);
    o.form.leaveImpact();
    EXPECT_EQ(o.form.Impact(), u"0"_s);
    o.form.setImpact(u"42"_s);
    const int after = o.form.InsertIntoAdvice(u"%Reference.Filename%"_s, 4, 3);
    EXPECT_EQ(o.form.Advice(), o.original(3)->Advice().replace(4, 3, u"%Reference.Filename%"_s));
    EXPECT_EQ(after, 4 + 20);

    o.form.ToolClick(u"tlUnauthComp"_s);
    EXPECT_EQ(o.form.Description(), u"Component text"_s);
    EXPECT_EQ(o.form.CategoryIndex(), 1);
    // Showing a violation writes nothing back into it.
    EXPECT_EQ(o.form.Copy(1)->Impact(), 900);
    EXPECT_EQ(o.original(1)->Description().contains(u"%Component.Filename%"_s), true);

    const QString referenceAdvice = o.form.Copy(3)->Advice();
    o.form.OK();
    EXPECT_FALSE(o.form.Cancelled());
    EXPECT_EQ(o.original(1)->Description(), u"Component text"_s);
    EXPECT_EQ(o.original(1)->CategoryID(), 2);
    EXPECT_EQ(o.original(3)->Severity(), 4);
    EXPECT_EQ(o.original(3)->Impact(), 42);
    EXPECT_EQ(o.original(3)->Advice(), referenceAdvice);
    EXPECT_EQ(o.original(5)->Title(), u"Unknown Control"_s);
    // A change made only here is a change of the rulebase.
    EXPECT_TRUE(o.rulebase->Dirty());
}
