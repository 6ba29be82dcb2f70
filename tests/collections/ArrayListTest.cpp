#include "collections/ArrayList.h"
#include "collections/LongArrayList.h"
#include "collections/ObjectArrayList.h"
#include "collections/StringArrayList.h"
#include "collections/VariantObject.h"
#include "platform/QuorinError.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

StringArrayList strings(std::initializer_list<const char *> texts)
{
    StringArrayList list;
    for (const char *text : texts)
        list.Add(QString::fromLatin1(text));
    return list;
}

QStringList contents(const StringArrayList &list)
{
    QStringList out;
    for (qint32 i = 1; i <= list.Count(); ++i)
        out << list.Item(i);
    return out;
}

qint32 subscriptError(const std::function<void()> &call)
{
    try {
        call();
    } catch (const QuorinError &e) {
        return e.number();
    }
    return 0;
}

} // namespace

TEST(ArrayList, CapacityDoublesOnGrowthAndHalvesDownToOne)
{
    LongArrayList list;
    for (qint32 i = 1; i <= 10; ++i)
        list.Add(i);
    EXPECT_EQ(list.Capacity(), 10);
    EXPECT_EQ(list.Add(11), 11);
    EXPECT_EQ(list.Capacity(), 20);

    // Halving happens once Count drops below Capacity / 2, one step per Remove.
    std::vector<qint32> capacities;
    while (list.Count() > 0) {
        list.Remove(list.Count());
        capacities.push_back(list.Capacity());
    }
    EXPECT_EQ(capacities.back(), 1); // never 0: 0 is not below 1 / 2
    EXPECT_EQ(capacities[1], 10);    // Count 9 < 20 / 2
    EXPECT_EQ(std::vector<qint32>(capacities.end() - 4, capacities.end()),
              (std::vector<qint32>{5, 5, 2, 1}));
}

TEST(ArrayList, ItemReachesStaleSlotsUpToCapacityOnly)
{
    StringArrayList list = strings({"A", "B", "C"});
    EXPECT_EQ(list.Item(4), QString()); // beyond Count, inside the array: no error
    EXPECT_EQ(subscriptError([&] { list.Item(11); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(subscriptError([&] { list.Item(0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(subscriptError([&] { list.setItem(11, QStringLiteral("x")); }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(subscriptError([&] { list.setSelected(0, true); }), ErrorNumber::SubscriptOutOfRange);

    // Removing from the middle leaves a stale copy of the old last entry behind Count.
    list.Remove(1);
    EXPECT_EQ(contents(list), (QStringList{"B", "C"}));
    EXPECT_EQ(list.Item(3), QStringLiteral("C"));

    // Writing a stale slot is allowed and marks the list dirty, but does not grow Count.
    list.setDirty(false);
    list.setItem(5, QStringLiteral("Z"));
    EXPECT_TRUE(list.Dirty());
    EXPECT_EQ(list.Count(), 2);
}

TEST(ArrayList, RemoveKeepsFlagsWithValuesAndSetsDirtyEvenWhenNothingGoes)
{
    StringArrayList list = strings({"A", "B", "C", "D"});
    list.setSelected(3, true);
    list.setDirty(false);
    list.Remove(9); // beyond Count: only Dirty
    EXPECT_EQ(list.Count(), 4);
    EXPECT_TRUE(list.Dirty());

    list.Remove(2);
    EXPECT_EQ(contents(list), (QStringList{"A", "C", "D"}));
    EXPECT_TRUE(list.Selected(2));
    EXPECT_FALSE(list.Selected(3));
    EXPECT_EQ(list.SelectedCount(), 1);

    // A flag left behind a removed last entry is not counted any more.
    list.setSelected(3, true);
    list.Remove(3);
    EXPECT_EQ(list.SelectedCount(), 1);
    EXPECT_EQ(list.Item(3), QString()); // the last slot is emptied

    // An index below 1 fails inside the frame: reported, nothing thrown, nothing changed.
    list.setDirty(false);
    EXPECT_NO_THROW(list.Remove(0));
    EXPECT_EQ(contents(list), (QStringList{"A", "C"}));
    EXPECT_FALSE(list.Dirty());

    list.Remove(2);
    EXPECT_TRUE(list.Dirty());
    list.Clear();
    EXPECT_FALSE(list.Dirty());
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(list.Capacity(), 10);
    EXPECT_EQ(list.Item(1), QString()); // Clear drops the stale values too
}

TEST(ArrayList, RemovingTheLastEntryClearsItsSlotByElementType)
{
    LongArrayList numbers;
    numbers.Add(7);
    numbers.Add(8);
    numbers.Remove(2);
    EXPECT_EQ(numbers.Item(2), 8); // numbers are not cleared

    ObjectArrayList<int> objects;
    objects.Add(std::make_shared<int>(1));
    objects.Remove(1);
    EXPECT_EQ(objects.Item(1), nullptr);

    ArrayList values;
    values.Add(QStringLiteral("x"));
    values.Add(VariantObject::wrap(std::make_shared<int>(2)));
    values.Remove(2);
    EXPECT_TRUE(VariantObject::holdsObject(values.Item(2)));
    EXPECT_EQ(VariantObject::identity(values.Item(2)), nullptr);
    values.Remove(1);
    EXPECT_FALSE(values.Item(1).isValid());
}

TEST(ArrayList, MoveItemShiftsTheEntriesBetweenWithTheirFlags)
{
    StringArrayList list = strings({"A", "B", "C"});
    list.setSelected(1, true);
    list.MoveItem(1, 3);
    EXPECT_EQ(contents(list), (QStringList{"B", "C", "A"}));
    EXPECT_TRUE(list.Selected(3));
    EXPECT_FALSE(list.Selected(1));

    list = strings({"A", "B", "C"});
    list.setSelected(3, true);
    list.MoveItem(3, 1);
    EXPECT_EQ(contents(list), (QStringList{"C", "A", "B"}));
    EXPECT_TRUE(list.Selected(1));

    list.setDirty(false);
    list.MoveItem(2, 2);
    EXPECT_FALSE(list.Dirty());
    list.MoveItem(2, 3);
    EXPECT_TRUE(list.Dirty());
}

TEST(ArrayList, IndexOfValueMatchesByTheRulesOfEachElementType)
{
    StringArrayList texts = strings({"x", "ABC"});
    EXPECT_EQ(texts.IndexOfValue(QStringLiteral("abc")), 2);
    EXPECT_EQ(texts.IndexOfValue(QStringLiteral("abd")), -1);
    EXPECT_TRUE(texts.ContainsValue(QStringLiteral("X")));

    const auto shared = std::make_shared<int>(5);
    const auto twin = std::make_shared<int>(5);
    ArrayList values;
    values.Add(QStringLiteral("ABC"));
    values.Add(12);
    values.Add(VariantObject::wrap(shared));
    EXPECT_EQ(values.IndexOfValue(QStringLiteral("abc")), 1);
    EXPECT_EQ(values.IndexOfValue(QStringLiteral("12")), 2); // text-mode equality
    EXPECT_EQ(values.IndexOfValue(VariantObject::wrap(shared)), 3);
    EXPECT_EQ(values.IndexOfValue(VariantObject::wrap(twin)), -1); // identity, not equality
    EXPECT_EQ(VariantObject::unwrap<int>(values.Item(3)), shared);
    EXPECT_EQ(VariantObject::unwrap<double>(values.Item(3)), nullptr);

    ObjectArrayList<int> objects;
    objects.Add(twin);
    objects.Add(shared);
    EXPECT_EQ(objects.IndexOfValue(shared), 2);
    objects.RemoveByValue(twin);
    EXPECT_EQ(objects.Count(), 1);
    EXPECT_EQ(objects.Item(1), shared);

    LongArrayList numbers;
    numbers.Add(-1);
    numbers.Add(5000);
    EXPECT_EQ(numbers.IndexOfValue(5000), 2);
    EXPECT_EQ(numbers.IndexOfValue(5001), -1);
}

TEST(ArrayList, SortIsCaseInsensitiveLaterEqualsFirstAndLeavesFlagsAndDirty)
{
    StringArrayList list = strings({"b", "A", "c"});
    list.setSelected(1, true);
    list.setDirty(false);
    list.Sort();
    EXPECT_EQ(contents(list), (QStringList{"A", "b", "c"}));
    EXPECT_TRUE(list.Selected(1)); // the flag stayed at its position
    EXPECT_FALSE(list.Dirty());

    list = strings({"a", "B", "A", "b", "a"});
    list.Sort();
    // Of texts equal but for case the later comes first.
    EXPECT_EQ(contents(list), (QStringList{"a", "A", "a", "b", "B"}));
    list.Remove(5);
    list.Sort(); // the stale slot beyond Count takes no part
    EXPECT_EQ(list.Count(), 4);
    EXPECT_EQ(list.Item(5), QString());
}
