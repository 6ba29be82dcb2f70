#include "collections/ArrayList.h"
#include "collections/LongArrayList.h"
#include "collections/ObjectArrayList.h"
#include "collections/StringArrayList.h"
#include "collections/VariantObject.h"
#include "platform/QuorinError.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

StringArrayList strings(const QString &spaced)
{
    StringArrayList list;
    for (const QString &text : spaced.split(u' ', Qt::SkipEmptyParts))
        list.Add(text);
    return list;
}

// The entries up to Count, "*" after a selected one.
QString contents(const StringArrayList &list)
{
    QStringList out;
    for (qint32 i = 1; i <= list.Count(); ++i)
        out << list.Item(i) + (list.Selected(i) ? u"*"_s : QString());
    return out.join(u' ');
}

qint32 errorOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const QuorinError &e) {
        return e.number();
    }
    return 0;
}

} // namespace

// The storage is a fixed array of Capacity slots: callers read stale slots behind Count.
TEST(ArrayList, StaleSlotsUpToCapacityAreReachableAndOnlyIndexesOutsideFail)
{
    StringArrayList list = strings(u"A B C D"_s);
    EXPECT_EQ(list.Item(5), QString());
    for (const auto &call : std::vector<std::function<void()>>{[&] { list.Item(11); },
                                                               [&] { list.Item(0); },
                                                               [&] { list.setItem(11, u"x"_s); },
                                                               [&] { list.setSelected(0, true); }})
        EXPECT_EQ(errorOf(call), ErrorNumber::SubscriptOutOfRange);

    list.setSelected(3, true);
    list.setDirty(false);
    list.Remove(9); // beyond Count: only Dirty
    EXPECT_TRUE(list.Dirty());
    list.Remove(1);
    EXPECT_EQ(contents(list), u"B C* D"_s);
    EXPECT_EQ(list.Item(4), u"D"_s); // a stale copy of the old last entry
    list.setSelected(3, true);
    list.Remove(3); // the last slot is emptied and its flag no longer counts
    EXPECT_EQ(list.Item(3), QString());
    EXPECT_EQ(list.SelectedCount(), 1);

    list.setDirty(false);
    list.setItem(5, u"Z"_s); // writing a stale slot marks the list but does not grow it
    EXPECT_TRUE(list.Dirty());
    EXPECT_EQ(list.Count(), 2);
    list.setDirty(false);
    EXPECT_NO_THROW(list.Remove(0)); // reported inside the frame, nothing changed
    EXPECT_EQ(contents(list), u"B C*"_s);
    EXPECT_FALSE(list.Dirty());
    list.Clear();
    EXPECT_FALSE(list.Dirty());
    EXPECT_EQ(list.Item(1), QString()); // Clear drops the stale values too

    for (int i = 0; i < 11; ++i)
        list.Add(u"x"_s); // growing past ten keeps every entry
    EXPECT_EQ(list.Item(11), u"x"_s);
    while (list.Count() > 1)
        list.Remove(list.Count());
    EXPECT_EQ(list.Item(1), u"x"_s);
}

TEST(ArrayList, MoveItemShiftsTheEntriesBetweenWithTheirFlags)
{
    const struct
    {
        qint32 from, to;
        const char *expected;
    } cases[] = {{1, 3, "B C A*"}, {3, 1, "C A* B"}, {2, 2, "A* B C"}};
    for (const auto &c : cases) {
        StringArrayList list = strings(u"A B C"_s);
        list.setSelected(1, true);
        list.setDirty(false);
        list.MoveItem(c.from, c.to);
        EXPECT_EQ(contents(list), QString::fromLatin1(c.expected));
        EXPECT_EQ(list.Dirty(), c.from != c.to);
    }
}

// Each element type finds a value by its own equality and clears an emptied last slot its own way.
TEST(ArrayList, EachElementTypeMatchesAndClearsByItsOwnRules)
{
    StringArrayList texts = strings(u"x ABC"_s);
    EXPECT_EQ(texts.IndexOfValue(u"abc"_s), 2);
    EXPECT_EQ(texts.IndexOfValue(u"abd"_s), -1);
    EXPECT_TRUE(texts.ContainsValue(u"X"_s));

    const auto shared = std::make_shared<int>(5);
    const auto twin = std::make_shared<int>(5);
    ArrayList values;
    values.Add(u"ABC"_s);
    values.Add(12);
    values.Add(VariantObject::wrap(shared));
    EXPECT_EQ(values.IndexOfValue(u"abc"_s), 1);
    EXPECT_EQ(values.IndexOfValue(u"12"_s), 2); // text-mode equality
    EXPECT_EQ(values.IndexOfValue(VariantObject::wrap(shared)), 3);
    EXPECT_EQ(values.IndexOfValue(VariantObject::wrap(twin)), -1); // identity, not equality
    EXPECT_EQ(VariantObject::unwrap<int>(values.Item(3)), shared);
    EXPECT_EQ(VariantObject::unwrap<double>(values.Item(3)), nullptr);
    values.Remove(3);
    EXPECT_TRUE(VariantObject::holdsObject(values.Item(3)));
    EXPECT_EQ(VariantObject::identity(values.Item(3)), nullptr);
    values.Remove(2);
    values.Remove(1);
    EXPECT_FALSE(values.Item(1).isValid());

    ObjectArrayList<int> objects;
    objects.Add(twin);
    objects.Add(shared);
    EXPECT_EQ(objects.IndexOfValue(shared), 2);
    objects.RemoveByValue(twin);
    EXPECT_EQ(objects.Item(1), shared);
    objects.Remove(1);
    EXPECT_EQ(objects.Item(1), nullptr);

    LongArrayList numbers;
    numbers.Add(-1);
    numbers.Add(5000);
    EXPECT_EQ(numbers.IndexOfValue(5000), 2);
    EXPECT_EQ(numbers.IndexOfValue(5001), -1);
    numbers.Remove(2);
    EXPECT_EQ(numbers.Item(2), 5000); // numbers are not cleared
}

TEST(ArrayList, SortIsCaseInsensitiveLaterEqualsFirstAndLeavesFlagsAndDirty)
{
    StringArrayList list = strings(u"b A c"_s);
    list.setSelected(1, true);
    list.setDirty(false);
    list.Sort();
    EXPECT_EQ(contents(list), u"A* b c"_s); // the flag stayed at its position
    EXPECT_FALSE(list.Dirty());

    list = strings(u"a B A b a"_s);
    list.Sort();
    EXPECT_EQ(contents(list), u"a A a b B"_s);
    list.Remove(5);
    list.Sort(); // the stale slot beyond Count takes no part
    EXPECT_EQ(list.Count(), 4);
    EXPECT_EQ(list.Item(5), QString());
}
