#include "ViewTestSupport.h"

#include "platform/TextUtils.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/ViolationDefinition.h"
#include "views/CategoryView.h"
#include "views/CodingConventionsView.h"
#include "views/DragDrop.h"
#include "views/NamingConventionsView.h"
#include "views/SeverityView.h"
#include "vocabulary/VBParserEvents.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A shown view with the hover clock in the test's hands.
template<typename View>
struct DragFixture : ShownView<View>
{
    DragFixture()
    {
        DragDrop::setClock([this] { return now; });
    }
    ~DragFixture() { DragDrop::setClock({}); }

    // Clicks the node of `key` and selects the first `rows` rows of its list.
    void showNode(const QString &key, int rows)
    {
        this->tree().click(this->tree().find(key));
        for (int row = 1; row <= this->list().count(); ++row)
            this->list().setSelected(row, row <= rows);
    }
    QStringList selectedKeys()
    {
        QStringList keys;
        for (int row = 1; row <= this->list().count(); ++row) {
            if (this->list().selected(row))
                keys << this->list().key(row);
        }
        return keys;
    }

    int now = 1000;
};

// The number of the node a rule shows under: its category or its severity.
template<typename View>
qint32 placeOf(const DragFixture<View> &f, const QString &key)
{
    const auto rule = f.rulebase->RuleLists()->AllConventions()->Item(key)->ViolationDefinition();
    return std::is_same_v<View, CategoryView> ? rule->CategoryID() : rule->Severity();
}

} // namespace

// The payload a list drag carries, and what a drop reads of whatever data arrives.
TEST(DragDrop, PayloadJoinsKeysAndTheDropReadsUpToTheFirstDoubleBar)
{
    EXPECT_EQ(DragDrop::payload({u"5001Key"_s, u"5002Key"_s}), u"5001Key|5002Key||"_s);
    EXPECT_EQ(DragDrop::payload({}), u"||"_s);
    const std::pair<const char *, const char *> drops[] = {
        {"5001Key|5002Key||junk", "5001Key|5002Key"},
        {"5001Key", "5001Key"}, // no terminator: all of it
        {"", ""},
        {"||", ""},
        {"|||", ""},
        {"a|||b||", "a"},
        {"a|b|", "a|b|"},
        {"||a||", ""},
    };
    for (const auto &[data, keys] : drops)
        EXPECT_EQ(DragDrop::keyList(QString::fromLatin1(data)), QString::fromLatin1(keys)) << data;
    for (const QStringList &keys :
         {QStringList{}, QStringList{u"1Key"_s}, QStringList{u"a"_s, u"b c"_s}})
        EXPECT_EQ(DragDrop::keyList(DragDrop::payload(keys)), keys.join(QLatin1Char('|')));
}

template<typename View>
class RuleDragDrop : public ::testing::Test
{
};
using RuleMovingViews = ::testing::Types<CategoryView, SeverityView>;
TYPED_TEST_SUITE(RuleDragDrop, RuleMovingViews);

TYPED_TEST(RuleDragDrop, RowsDraggedOntoAnotherNodeTakeItsNumberAndLeaveTheList)
{
    DragFixture<TypeParam> f;
    // From the root nothing can be dragged, and a view that started no drag refuses one.
    f.showNode(f.tree().key(1), 1);
    EXPECT_TRUE(f.list().startDrag().isEmpty());
    EXPECT_EQ(f.tree().dragOver(2), DragDrop::EffectNone);
    EXPECT_EQ(f.tree().drop(u"5001Key||"_s, 2), DragDrop::EffectNone);

    // The first node with two rules or more is the source; another is the target.
    int source = 0;
    for (int node = 2; node <= f.tree().count() && source == 0; ++node) {
        f.tree().click(node);
        if (f.list().count() >= 2)
            source = node;
    }
    ASSERT_NE(source, 0);
    const int target = source == 2 ? 3 : 2;
    const qint32 sourcePlace = Text::valLong(f.tree().key(source));
    f.showNode(f.tree().key(source), 2);
    const QStringList dragged = f.selectedKeys();
    const int rowsBefore = f.list().count();
    const QString data = f.list().startDrag();
    EXPECT_EQ(data, dragged.join('|') + "||");

    // Over the tree: none on the root, on the source and off the nodes, or without the format.
    EXPECT_EQ(f.tree().dragOver(1), DragDrop::EffectNone);
    EXPECT_EQ(f.tree().dragOver(source), DragDrop::EffectNone);
    EXPECT_EQ(f.tree().dragOver(f.tree().count() + 5), DragDrop::EffectNone);
    EXPECT_EQ(f.tree().dragOver(target, DragDrop::StateOver, false), DragDrop::EffectNone);
    EXPECT_EQ(f.tree().dragOver(target), DragDrop::EffectMove);
    EXPECT_EQ(f.tree().dropHighlight(), target);

    // Dropped on the root or the source nothing moves.
    EXPECT_EQ(f.tree().drop(data, 1), DragDrop::EffectNone);
    EXPECT_EQ(f.tree().drop(data, source), DragDrop::EffectNone);
    EXPECT_EQ(placeOf(f, dragged.first()), sourcePlace);

    EXPECT_EQ(f.tree().drop(data, target), DragDrop::EffectMove);
    for (const QString &key : dragged) {
        EXPECT_EQ(placeOf(f, key), Text::valLong(f.tree().key(target))) << key.toStdString();
        EXPECT_EQ(f.list().find(key), 0);
    }
    EXPECT_EQ(f.list().count(), rowsBefore - 2);
    EXPECT_TRUE(f.rulebase->Dirty());
    f.list().completeDrag();
    EXPECT_EQ(f.tree().dropHighlight(), 0);
    EXPECT_TRUE(f.ui.messages.empty());
}

TEST(CategoryDragDrop, ADropOnUnallocatedTakesTheCategoryAway)
{
    DragFixture<CategoryView> f;
    const int unallocated = f.tree().find(u"-1K"_s);
    f.showNode(f.tree().key(2), 1);
    const QString key = f.selectedKeys().first();
    const QString data = f.list().startDrag();
    EXPECT_EQ(f.tree().dragOver(unallocated), DragDrop::EffectMove);
    EXPECT_EQ(f.tree().drop(data, unallocated), DragDrop::EffectMove);
    EXPECT_EQ(placeOf(f, key), -1);
    EXPECT_TRUE(f.tree().text(unallocated).startsWith(u"Unallocated ("_s));
}

TEST(CodingConventionDragDrop, PendingConventionsStayAndTheOthersChangeOneEvent)
{
    DragFixture<CodingConventionsView> f;
    const qint32 from = 30;
    const qint32 to = 31;
    const QString fromKey = VBParserEvents::ParserEventKey(from);
    const int target = f.tree().find(VBParserEvents::ParserEventKey(to));
    ASSERT_NE(target, 0);
    RuleLists &lists = *f.rulebase->RuleLists();
    const int toBefore
        = lists.ParserEventCCList(to, false) ? lists.ParserEventCCList(to, false)->Count() : 0;

    f.showNode(fromKey, 1000);
    const QStringList keys = f.selectedKeys();
    ASSERT_TRUE(keys.contains(u"5020Key"_s)) << "the sample's pending convention";
    int pending = 0;
    for (const QString &key : keys)
        pending += lists.CodingConventions()->Item(key)->PendingViolation() ? 1 : 0;
    const QString data = f.list().startDrag();

    // The root is no target for a drop.
    EXPECT_EQ(f.tree().drop(data, 1), DragDrop::EffectNone);
    EXPECT_EQ(f.tree().drop(data, target), DragDrop::EffectMove);

    // One message however many pending conventions were held back.
    ASSERT_EQ(f.ui.messages.size(), 1u);
    EXPECT_EQ(
        f.ui.messages.front().text,
        u"Coding conventions defined to trigger pending violations cannot be "
        u"re-assigned to a different event by dragging and must instead be moved manually."_s);
    EXPECT_EQ(f.ui.messages.front().icon, MessageIcon::Information);

    for (const QString &key : keys) {
        const auto convention = lists.CodingConventions()->Item(key);
        if (convention->PendingViolation()) {
            EXPECT_TRUE(convention->IsAssignedToEvent(from)) << key.toStdString();
            EXPECT_FALSE(convention->IsAssignedToEvent(to)) << key.toStdString();
        } else {
            EXPECT_FALSE(convention->IsAssignedToEvent(from)) << key.toStdString();
            EXPECT_TRUE(convention->IsAssignedToEvent(to)) << key.toStdString();
        }
    }
    // The per-event lists follow, and the list shows what is left on the source event.
    EXPECT_EQ(lists.ParserEventCCList(to, false)->Count(), toBefore + int(keys.size()) - pending);
    EXPECT_EQ(f.list().count(), pending);
    EXPECT_TRUE(
        f.tree().text(target).contains(QString::number(toBefore + int(keys.size()) - pending)));
}

TEST(NamingConventionDragDrop, NamingConventionsAreNotDragged)
{
    DragFixture<NamingConventionsView> f;
    f.tree().click(2);
    for (int row = 1; row <= f.list().count(); ++row)
        f.list().setSelected(row, true);
    EXPECT_TRUE(f.list().startDrag().isEmpty());
    EXPECT_EQ(f.tree().dragOver(3), DragDrop::EffectNone);
    EXPECT_EQ(f.tree().drop(u"5001Key||"_s, 3), DragDrop::EffectNone);
    EXPECT_EQ(f.tree().dropHighlight(), 0);
}
