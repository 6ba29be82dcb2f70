#include "editors/TagListForm.h"
#include "editors/TagGridModel.h"

#include "rulebase/Rulebase.h"
#include "rulebase/TagItem.h"

#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

using TagList = TagListForm::TagList;

QStringList names(const TagList &list)
{
    QStringList out;
    for (qint32 i = 1; i <= list.Count(); ++i)
        out << list.Item(i)->TagName();
    return out;
}

} // namespace

TEST(TagListForm, DataTypesKeepTheirStereotypesAndCancelOrARepeatedNameKeepTheSet)
{
    ScriptedUserInterface ui;
    Rulebase rulebase;
    TagListForm form;
    form.setUseCTagsAsDTTags(true);
    form.setArrayTag(u"a"_s);
    form.Initialise(rulebase.DataTypeTags(), TagListForm::DataTypeTags);

    EXPECT_TRUE(form.Option());
    const qint32 stereotypes = form.secondList()->Count();
    for (const QString &name : names(*form.secondList()))
        EXPECT_TRUE(name.startsWith('(')) << name.toStdString();
    EXPECT_TRUE(form.InsertDeleteEnabled());

    ASSERT_TRUE(form.SelectTab(1));
    EXPECT_EQ(form.grid()->rowCount(), stereotypes);
    EXPECT_FALSE(form.InsertDeleteEnabled());
    EXPECT_EQ(form.Insert(), 0);
    EXPECT_EQ(form.secondList()->Count(), stereotypes);
    ASSERT_TRUE(form.SelectTab(0));
    EXPECT_EQ(form.grid()->data(form.grid()->index(0, 0)).toString(), u"Any"_s);

    // OK puts the first list back first, then the stereotypes, all clean still.
    ASSERT_TRUE(form.OK());
    EXPECT_EQ(names(*rulebase.DataTypeTags()).first(), u"Any"_s);
    EXPECT_EQ(names(*rulebase.DataTypeTags()).last(), u"(User Documents)"_s);
    EXPECT_FALSE(rulebase.Dirty());

    // Cancel, and a name repeated on OK, leave the set as it was.
    const QStringList before = names(*rulebase.ControlTags());
    TagListForm controls;
    controls.setUnknownControlViolation(false);
    controls.Initialise(rulebase.ControlTags(), TagListForm::ControlTags);
    const qint32 added = controls.Insert();
    controls.Delete(added);
    controls.Insert();
    controls.setOption(true);
    controls.Cancel();
    EXPECT_TRUE(controls.Cancelled());
    EXPECT_FALSE(controls.UnknownControlViolation());
    EXPECT_EQ(names(*rulebase.ControlTags()), before);
    EXPECT_FALSE(rulebase.Dirty());

    // A name repeated on OK is refused, and the set stays whole. "Friend" is unlocked to rename.
    const QStringList scopes = names(*rulebase.ScopeTags());
    TagListForm scopeForm;
    scopeForm.Initialise(rulebase.ScopeTags(), TagListForm::ScopeTags);
    scopeForm.currentList()->Item(2)->setLocked(false);
    ASSERT_TRUE(scopeForm.grid()->setData(scopeForm.grid()->index(1, 0), u"LOCAL"_s));
    EXPECT_FALSE(scopeForm.OK());
    EXPECT_TRUE(scopeForm.Cancelled());
    EXPECT_EQ(names(*rulebase.ScopeTags()), scopes);
}

TEST(TagListForm, EditsGoThroughTheSettersAndEmptyNamesAreRefused)
{
    ScriptedUserInterface ui;
    Rulebase rulebase;
    TagListForm form;
    form.Initialise(rulebase.ControlTags(), TagListForm::ControlTags);
    TagGridModel &grid = *form.grid();

    // A locked row: read-only name, no delete, but its value can be edited.
    const qint32 label = qint32(names(*form.currentList()).indexOf(u"VB.Label"_s)) + 1;
    ASSERT_GT(label, 0);
    EXPECT_FALSE(form.CanDelete(label));
    EXPECT_FALSE(form.NameEditable(label));
    EXPECT_FALSE(grid.flags(grid.index(label - 1, 1)) & Qt::ItemIsEditable);
    EXPECT_FALSE(grid.setData(grid.index(label - 1, 1), u"VB.Other"_s));
    EXPECT_TRUE(grid.data(grid.index(label - 1, 0), TagGridModel::LockedRole).toBool());
    ASSERT_TRUE(grid.setData(grid.index(label - 1, 2), u"lab"_s));
    EXPECT_EQ(form.currentList()->Item(label)->TagValue(), u"lab"_s);
    EXPECT_TRUE(form.currentList()->Item(label)->Dirty());
    // The original set is untouched until OK.
    EXPECT_EQ(rulebase.ControlTags()->Item(u"VB.Label"_s)->TagValue(), u"lbl"_s);
    EXPECT_FALSE(rulebase.Dirty());

    const qint32 added = form.Insert();
    ASSERT_EQ(added, 24);
    EXPECT_EQ(grid.rowCount(), 24);
    EXPECT_EQ(form.currentList()->Item(added)->TagName(), u"New Item1"_s);
    EXPECT_TRUE(form.CanDelete(added));
    EXPECT_FALSE(grid.setData(grid.index(added - 1, 1), QString()));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text, u"A ProgID must be entered."_s);
    EXPECT_EQ(form.currentList()->Item(added)->TagName(), u"New Item1"_s);
    ASSERT_TRUE(grid.setData(grid.index(added - 1, 1), u"My.Control"_s));
    ASSERT_TRUE(grid.setData(grid.index(added - 1, 2), u"my"_s));

    ASSERT_TRUE(form.OK());
    EXPECT_TRUE(rulebase.ControlTags()->Contains(u"My.Control"_s));
    EXPECT_FALSE(rulebase.ControlTags()->Contains(u"New Item1"_s));
    EXPECT_EQ(rulebase.ControlTags()->Item(u"VB.Label"_s)->TagValue(), u"lab"_s);
    EXPECT_TRUE(rulebase.Dirty());

    TagListForm data;
    data.Initialise(rulebase.DataTypeTags(), TagListForm::DataTypeTags);
    EXPECT_FALSE(data.GridIsValid(QString()));
    EXPECT_EQ(ui.messages.back().text, u"A data type must be entered."_s);
}
