#include "collections/KeyedArrayList.h"
#include "collections/KeyIndex.h"
#include "collections/ObjectKeyedArrayList.h"
#include "collections/ObjectKeyedListAdapter.h"
#include "collections/StringKeyedArrayList.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "support/TestSeed.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

using namespace Qt::StringLiterals;

namespace {

// An item keyed by the list; items of another Kind are another type.
template<int Kind>
class Item final : public IListItem
{
public:
    explicit Item(QString key = {})
        : m_key(std::move(key))
    {
    }
    QString Key() const override { return m_key; }
    QString Title() const override { return m_key; }
    QString Description() const override { return {}; }
    qint32 ID() const override { return 0; }

private:
    void setListKey(const QString &key) override { m_key = key; }
    QString m_key;
};
using Named = Item<0>;

// "number source: description" of what the call raised, or empty.
QString raised(const std::function<void()> &call)
{
    try {
        call();
    } catch (const QuorinError &e) {
        return u"%1 %2: %3"_s.arg(e.number()).arg(e.source(), e.description());
    }
    return {};
}

qint32 linearFind(const ObjectKeyedArrayList<int> &list, const QString &key)
{
    for (qint32 i = 1; i <= list.Count(); ++i) {
        if (Text::same(list.Key(i), key))
            return i;
    }
    return -1;
}

} // namespace

TEST(KeyedArrayList, UnknownKeysPositionsAndDuplicatesRaiseNamingTheMember)
{
    ObjectKeyedArrayList<int> list;
    list.Add(u"a"_s, std::make_shared<int>(1), false, false);
    list.Add(u"A"_s, std::make_shared<int>(2), true, false); // unchecked: accepted
    EXPECT_EQ(*list.Item(u"A"_s), 1);                        // look-ups find the first
    EXPECT_TRUE(list.Selected(2));

    const QString noItem = u"%1 KeyedArrayList::%2: No such item."_s.arg(ErrorNumber::NoSuchItem);
    const std::pair<std::function<void()>, const char *> missing[] = {
        {[&] { list.Item(u"x"_s); }, "Item"},
        {[&] { list.Item(3); }, "Item"}, // a stale slot is no item here
        {[&] { list.Key(0); }, "Key"},
        {[&] { list.setKey(3, u"k"_s); }, "Key"},
        {[&] { list.Selected(u"x"_s); }, "Selected"},
        {[&] { list.Remove(u"x"_s); }, "Remove"},
        {[] { KeyedArrayList().Remove(1); }, "Remove"},
        {[] { StringKeyedArrayList().setItem(u"a"_s, u"b"_s); }, "Item"},
    };
    for (const auto &[call, member] : missing)
        EXPECT_EQ(raised(call), noItem.arg(QLatin1String(member)));

    EXPECT_EQ(raised([&] { list.Add(u"a"_s, nullptr, false, true); }),
              u"%1 KeyedArrayList::Add: The item cannot be added, because the key 'a' is already "
              "in use."_s.arg(ErrorNumber::DuplicateKey));
    EXPECT_EQ(list.Count(), 2);
    list.Remove(1); // after the first of two equal keys goes, the second is found
    EXPECT_EQ(*list.Item(u"a"_s), 2);

    // The lists without a CheckUnique argument always refuse.
    StringKeyedArrayList texts;
    texts.Add(u"k"_s, u"v"_s, false);
    EXPECT_FALSE(raised([&] { texts.Add(u"K"_s, u"w"_s, false); }).isEmpty());
    KeyedArrayList values;
    values.Add(u"k"_s, 1, false);
    EXPECT_FALSE(raised([&] { values.Add(u"K"_s, 2, false); }).isEmpty());
    EXPECT_EQ(texts.Count() + values.Count(), 2);
}

TEST(KeyedArrayList, NewUniqueKeyCountsPerListAndTheFaceUsesIt)
{
    ObjectKeyedArrayList<int> list;
    list.Add(u"Item1"_s, nullptr, false, true);
    EXPECT_EQ(list.NewUniqueKey(), u"Item1"_s); // the counter does not look at the keys held
    list.Clear();
    EXPECT_FALSE(list.Contains(u"Item1"_s));
    EXPECT_EQ(list.NewUniqueKey(), u"Item2"_s); // and survives Clear
    EXPECT_EQ(ObjectKeyedArrayList<int>().NewUniqueKey(), u"Item1"_s);

    auto named = std::make_shared<ObjectKeyedArrayList<Named>>();
    const std::shared_ptr<IKeyedList> face = asKeyedList(named);
    auto item = std::make_shared<Named>(u"ignored"_s);
    face->Add(item, true);
    EXPECT_EQ(item->Key(), u"Item1"_s);
    EXPECT_EQ(named->Item(u"item1"_s), item);
    face->Add(std::make_shared<Named>(u"own"_s), false);
    EXPECT_EQ(face->Key(2), u"own"_s);
    EXPECT_EQ(face->Item(2)->Title(), u"own"_s);
    EXPECT_TRUE(raised([&] {
                    face->Add(std::make_shared<Named>(u"OWN"_s), false);
                }).startsWith(QString::number(ErrorNumber::DuplicateKey)));
    EXPECT_TRUE(raised([&] {
                    face->Add(std::make_shared<Item<1>>(), false);
                }).startsWith(QString::number(ErrorNumber::TypeMismatch)));
    face->Remove(u"ITEM1"_s);
    EXPECT_EQ(named->Count(), 1);
    face->Clear();
    EXPECT_EQ(named->Count(), 0);
}

TEST(KeyedArrayList, RemoveAndMoveKeepKeysAndItemsPaired)
{
    ObjectKeyedArrayList<int> list;
    for (int i = 1; i <= 5; ++i)
        list.Add(u"k%1"_s.arg(i), std::make_shared<int>(i), i == 4, true);
    EXPECT_EQ(list.Remove(u"K2"_s), 2);
    for (qint32 i = 1; i <= list.Count(); ++i)
        EXPECT_EQ(list.Key(i), u"k%1"_s.arg(*list.Item(i)));
    EXPECT_EQ(list.FindIndexByKey(u"k5"_s), 4);
    EXPECT_TRUE(list.Selected(u"k4"_s));

    list.MoveItem(4, 1); // k5 to the front
    EXPECT_EQ(list.Key(1), u"k5"_s);
    EXPECT_EQ(*list.Item(u"k5"_s), 5);
    EXPECT_EQ(list.FindIndexByKey(u"k1"_s), 2);
    list.setKey(1, u"renamed"_s);
    EXPECT_FALSE(list.Contains(u"k5"_s));
    EXPECT_EQ(list.FindIndexByKey(u"RENAMED"_s), 1);
    const auto four = list.Item(u"k4"_s);
    list.RemoveByValue(four);
    EXPECT_FALSE(list.Contains(u"k4"_s));
    EXPECT_FALSE(list.ContainsValue(four));
    EXPECT_EQ(list.SelectedCount(), 0);

    // A move onto a stale slot beyond Count pulls that slot's old key into the list, as the
    // underlying arrays do; look-ups must follow the keys that are really there.
    ObjectKeyedArrayList<int> stale;
    for (int i = 1; i <= 4; ++i)
        stale.Add(u"s%1"_s.arg(i), std::make_shared<int>(i), false, true);
    stale.Remove(2); // s1 s3 s4, and a stale copy of s4 in slot 4
    stale.MoveItem(1, 4);
    EXPECT_EQ(stale.Count(), 3);
    EXPECT_EQ(stale.Key(3), u"s4"_s);
    EXPECT_EQ(stale.FindIndexByKey(u"s4"_s), 2);
    EXPECT_EQ(stale.FindIndexByKey(u"s1"_s), -1);
    stale.Remove(2);
    EXPECT_EQ(stale.FindIndexByKey(u"s4"_s), 2);
}

// Whatever happens to a list, the index must give what a plain walk of the keys gives.
TEST(KeyedArrayList, KeyLookupsAgreeWithALinearSearchAfterRandomChanges)
{
    const QStringList pool
        = u"alpha|Beta|gamma|5000Key|straße|ΣΊΣΥΦΟΣ|ǆungla|𐐀x||Item1"_s.split(u'|');
    const TestSeed seed(20240611u);
    std::mt19937 random(seed.value());
    auto pick = [&](int n) { return int(random() % unsigned(n)); };
    auto randomCase = [&](const QString &key) {
        QString out;
        for (const QChar c : key)
            out += pick(2) ? c.toUpper() : c.toLower();
        return out;
    };
    ObjectKeyedArrayList<int> list;
    for (int step = 0; step < 4000; ++step) {
        const int count = list.Count();
        switch (pick(count ? 7 : 1)) {
        case 0:
        case 1:
            list.Add(randomCase(pool[pick(int(pool.size()))]),
                     std::make_shared<int>(step),
                     false,
                     false);
            break;
        case 2:
            list.Remove(qint32(pick(count) + 1));
            break;
        case 3:
            list.Remove(list.Key(qint32(pick(count) + 1)));
            break;
        case 4:
            list.MoveItem(qint32(pick(count) + 1), qint32(pick(count) + 1));
            break;
        case 5:
            list.setKey(qint32(pick(count) + 1), randomCase(pool[pick(int(pool.size()))]));
            break;
        case 6:
            if (pick(20) == 0)
                list.Clear();
            else if (pick(10) == 0)
                list.SortBy([](const auto &a, const auto &b) { return *a % 7 < *b % 7; });
            break;
        }
        for (const QString &key : pool) {
            const QString probe = randomCase(key);
            ASSERT_EQ(list.FindIndexByKey(probe), linearFind(list, probe))
                << "step " << step << " key " << qPrintable(probe);
        }
    }
}

// Beyond ASCII the index finds what the case-insensitive comparison calls equal: characters
// whose folding differs from their lower case, surrogate pairs, and lone surrogates, which the
// comparison takes unit by unit. The hash agrees with the comparison for every character.
TEST(KeyedArrayList, KeyLookupsBeyondAsciiAgreeWithTheComparison)
{
    const QString lone = QString(QChar(0xDC00)) + QChar(0xD801);
    ObjectKeyedArrayList<int> list;
    for (const QString &key :
         {u"k"_s, u"σίσυφος"_s, u"straße"_s, u"\U00010400x"_s, u"ǆ"_s, u"İ"_s, u"@[z"_s, lone})
        list.Add(key, nullptr, false, true);
    for (const QString &probe :
         u"\u212A|K|ΣΊΣΥΦΟΣ|ΣΊΣΥΦΟς|STRASSE|STRAẞE|\U00010428X|\U00010428x|ǅ|Ǆ|i|i̇|`{Z|@[Z"_s.split(
             u'|')
             + QStringList{lone, QString(QChar(0xD801)) + QChar(0xDC00)})
        EXPECT_EQ(list.FindIndexByKey(probe), linearFind(list, probe)) << qPrintable(probe);
    EXPECT_EQ(list.FindIndexByKey(u"\u212A"_s), 1); // Kelvin sign, folds to k
    EXPECT_EQ(list.FindIndexByKey(u"\U00010428X"_s), 4);

    auto fromCode = [](char32_t code) { return QString::fromUcs4(&code, 1); };
    for (char32_t code = 0; code <= 0x10FFFF; ++code) {
        if (QChar::isSurrogate(code))
            continue;
        const QString c = fromCode(code);
        for (const char32_t other : {QChar::toUpper(code),
                                     QChar::toLower(code),
                                     QChar::toTitleCase(code),
                                     QChar::toCaseFolded(code)}) {
            const QString o = fromCode(other);
            ASSERT_EQ(KeyIndex::hash(c) == KeyIndex::hash(o), Text::same(c, o)) << int(code);
        }
    }
}
