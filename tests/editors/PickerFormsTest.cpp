#include "editors/ObjectPropertyForm.h"
#include "editors/ParserEventForm.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ObjectListType.h"
#include "vocabulary/VBParserEvents.h"

#include "support/ScriptedUserInterface.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

int rowOf(const std::vector<ObjectPropertyForm::ListEntry> &list, qint32 id)
{
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (list[i].id == id)
            return int(i);
    }
    return -1;
}

} // namespace

TEST(ObjectPropertyForm, PropertyModePicksAPropertyOrANameByHandAndObjectModeTheObject)
{
    ObjectPropertyForm form;
    form.setSelectionMode(ObjectPropertyForm::PropertyMode);
    form.setObjectListType(ObjectListType::Everything);
    form.Load();
    auto &s = form.screen();
    ASSERT_FALSE(s.lvwObject.empty());
    EXPECT_EQ(s.selectedObject, 0);
    EXPECT_EQ(s.txtDescription, ObjectHelper::ObjectDescription(s.lvwObject[0].id));
    EXPECT_FALSE(form.cmdOKEnabled());

    ASSERT_FALSE(s.lvwProperty.empty());
    form.lvwProperty_Click(0);
    EXPECT_TRUE(form.cmdOKEnabled());
    EXPECT_EQ(s.txtDescription,
              ObjectHelper::ObjectPropertyDescription(s.lvwObject[0].id, s.lvwProperty[0].id));
    form.cmdOK_Click();
    EXPECT_EQ(form.UserSelection(), "%" + s.lvwObject[0].text + "." + s.lvwProperty[0].text + "%");
    EXPECT_EQ(form.PropertyType(), s.lvwProperty[0].id);

    // The control's design-time properties have no list: they are typed or picked by hand.
    const int controlProperties = rowOf(s.lvwObject, 3);
    ASSERT_GE(controlProperties, 0);
    form.lvwObject_Click(controlProperties);
    EXPECT_TRUE(s.lvwProperty.empty());
    EXPECT_TRUE(s.cboManualEntryEnabled);
    EXPECT_FALSE(form.cmdOKEnabled());
    s.cboManualEntry = "Caption";
    EXPECT_TRUE(form.cmdOKEnabled());
    form.cmdOK_Click();
    EXPECT_EQ(form.UserSelection(), u"%ControlProperties.Caption%"_s);

    form.cmdCancel_Click();
    EXPECT_TRUE(form.UserSelection().isEmpty());

    // The object mode needs the object alone.
    ObjectPropertyForm objects;
    objects.setSelectionMode(ObjectPropertyForm::ObjectMode);
    objects.setObjectListType(ObjectListType::CodingConvention);
    objects.Load();
    EXPECT_FALSE(objects.screen().lvwPropertyVisible);
    EXPECT_TRUE(objects.cmdOKEnabled());
    objects.cmdOK_Click();
    EXPECT_EQ(objects.UserSelection(), "%" + objects.screen().lvwObject[0].text + "%");
}

TEST(ObjectPropertyForm, WorkfieldModesExtendTheCallersList)
{
    QStringList workfields{"Scope"};
    {
        ObjectPropertyForm form;
        form.setSelectionMode(ObjectPropertyForm::WorkfieldMode);
        form.setObjectListType(ObjectListType::NamingConvention);
        form.setWorkfields(&workfields);
        form.setObjectType(28);
        form.Load();
        auto &s = form.screen();
        EXPECT_FALSE(s.lvwPropertyVisible);
        ASSERT_GE(s.selectedObject, 0);
        EXPECT_EQ(s.lvwObject[std::size_t(s.selectedObject)].id, 28);
        EXPECT_EQ(s.cboManualEntryItems, QStringList{"Scope"});
        s.cboManualEntry = "Kind";
        form.cboManualEntry_LostFocus();
        // Kept even though the author then cancels.
        form.cmdCancel_Click();
        EXPECT_TRUE(form.UserSelection().isEmpty());
    }
    EXPECT_EQ(workfields, (QStringList{"Scope", "Kind"}));

    ObjectPropertyForm form;
    form.setSelectionMode(ObjectPropertyForm::PropertyOrWorkfieldMode);
    form.setObjectListType(ObjectListType::Everything);
    form.setWorkfields(&workfields);
    form.setObjectType(1);
    form.Load();
    auto &s = form.screen();
    const int pseudo = rowOf(s.lvwProperty, ObjectPropertyForm::workfieldsProperty);
    ASSERT_EQ(pseudo, int(s.lvwProperty.size()) - 1);
    form.lvwProperty_Click(pseudo);
    EXPECT_TRUE(s.cboManualEntryEnabled);
    EXPECT_EQ(s.cboManualEntryItems.size(), 2);
    s.cboManualEntry = "Scope";
    form.cmdOK_Click();
    EXPECT_EQ(form.UserSelection(), u"%Argument.WF.Scope%"_s);
    EXPECT_EQ(workfields.size(), 2); // "Scope" was there already

    // An object without workfields has no such entry.
    const int source = rowOf(s.lvwObject, 23);
    ASSERT_GE(source, 0);
    form.lvwObject_Click(source);
    EXPECT_EQ(rowOf(s.lvwProperty, ObjectPropertyForm::workfieldsProperty), -1);
}

TEST(ParserEventForm, PicksANodeOfTheRuleTree)
{
    ScriptedUserInterface ui;
    ParserEventForm form;
    form.setRuleType(4);
    form.Load();
    auto &tree = form.screen().tvwEvent;
    ASSERT_GT(tree.count(), 30);
    EXPECT_EQ(tree.find("ProjectKey"), 0); // no root for the event tree
    EXPECT_FALSE(form.cmdOK_Click());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text, u"Please select a parser event."_s);
    EXPECT_TRUE(form.Cancelled());

    const int control = tree.find(VBParserEvents::ParserEventKey(7));
    form.tvwEvent_NodeClick(control);
    EXPECT_EQ(form.screen().txtDescription, VBParserEvents::ParserEventHelp(7));
    for (int node = 1; node <= tree.count(); ++node)
        tree.setExpanded(node, true);
    form.cmdCollapse_Click();
    EXPECT_FALSE(tree.isExpanded(1));
    EXPECT_TRUE(form.cmdOK_Click());
    EXPECT_FALSE(form.Cancelled());
    EXPECT_EQ(form.ParserEvent(), VBParserEvents::ParserEventText(7));

    // The object tree reads the same help table: its root reads -1.
    ParserEventForm objects;
    objects.setRuleType(5);
    objects.Load();
    const int root = objects.screen().tvwEvent.find("-1Key");
    ASSERT_NE(root, 0);
    objects.tvwEvent_NodeClick(root);
    EXPECT_EQ(objects.screen().txtDescription, u"Unknown Parser Event"_s);
    objects.cmdCancel_Click();
    EXPECT_TRUE(objects.Cancelled());
}
