#include "collections/KeyedArrayList.h"
#include "collections/KeyIndex.h"
#include "collections/ObjectKeyedArrayList.h"
#include "collections/ObjectKeyedListAdapter.h"
#include "collections/StringKeyedArrayList.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "support/TestSeed.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <functional>
#include <random>

namespace {

class Named final : public IListItem
{
public:
    explicit Named(QString key = {})
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

class Other final : public IListItem
{
public:
    QString Key() const override { return QStringLiteral("other"); }
    QString Title() const override { return {}; }
    QString Description() const override { return {}; }
    qint32 ID() const override { return 0; }

private:
    void setListKey(const QString &) override {}
};

std::optional<QuorinError> raised(const std::function<void()> &call)
{
    try {
        call();
    } catch (const QuorinError &e) {
        return e;
    }
    return std::nullopt;
}

void expectNoSuchItem(const std::function<void()> &call, const char *member)
{
    const auto error = raised(call);
    ASSERT_TRUE(error.has_value()) << member;
    EXPECT_EQ(error->number(), ErrorNumber::NoSuchItem);
    EXPECT_EQ(error->description(), QStringLiteral("No such item."));
    EXPECT_EQ(error->source(), QStringLiteral("KeyedArrayList::") + QLatin1String(member));
}

} // namespace

TEST(KeyedArrayList, UnknownKeysAndPositionsRaiseNoSuchItemNamingTheMember)
{
    ObjectKeyedArrayList<int> list;
    list.Add(QStringLiteral("Key1"), std::make_shared<int>(1), false, true);
    EXPECT_EQ(*list.Item(QStringLiteral("KEY1")), 1);

    expectNoSuchItem([&] { list.Item(QStringLiteral("x")); }, "Item");
    expectNoSuchItem([&] { list.Item(2); }, "Item"); // a stale slot is no item here
    expectNoSuchItem([&] { list.Key(0); }, "Key");
    expectNoSuchItem([&] { list.setKey(2, QStringLiteral("k")); }, "Key");
    expectNoSuchItem([&] { list.Selected(QStringLiteral("x")); }, "Selected");
    expectNoSuchItem([&] { list.Remove(QStringLiteral("x")); }, "Remove");
    EXPECT_EQ(list.Count(), 1);

    KeyedArrayList values;
    expectNoSuchItem([&] { values.Remove(1); }, "Remove");
    StringKeyedArrayList texts;
    expectNoSuchItem([&] { texts.setItem(QStringLiteral("a"), QStringLiteral("b")); }, "Item");
}

TEST(KeyedArrayList, DuplicateKeysAreRefusedOnlyWhenChecked)
{
    ObjectKeyedArrayList<int> list;
    const auto first = std::make_shared<int>(1);
    EXPECT_EQ(list.Add(QStringLiteral("a"), first, false, false), 1);
    EXPECT_EQ(list.Add(QStringLiteral("A"), std::make_shared<int>(2), true, false), 2);
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.Item(QStringLiteral("a")), first); // look-ups find the first
    EXPECT_TRUE(list.Selected(2));

    const auto error = raised([&] { list.Add(QStringLiteral("a"), first, false, true); });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->number(), ErrorNumber::DuplicateKey);
    EXPECT_EQ(error->source(), QStringLiteral("KeyedArrayList::Add"));
    EXPECT_EQ(error->description(),
              QStringLiteral("The item cannot be added, because the key 'a' is already in use."));
    EXPECT_EQ(list.Count(), 2);

    // After the first of two equal keys goes, the second is found.
    list.Remove(1);
    EXPECT_EQ(*list.Item(QStringLiteral("a")), 2);

    // The lists without a CheckUnique argument always refuse.
    StringKeyedArrayList texts;
    texts.Add(QStringLiteral("k"), QStringLiteral("v"), false);
    EXPECT_TRUE(raised([&] { texts.Add(QStringLiteral("K"), QStringLiteral("w"), false); }));
    KeyedArrayList values;
    values.Add(QStringLiteral("k"), 1, false);
    EXPECT_TRUE(raised([&] { values.Add(QStringLiteral("K"), 2, false); }));
    EXPECT_EQ(texts.Count() + values.Count(), 2);
}

TEST(KeyedArrayList, NewUniqueKeyCountsPerListAndSurvivesClear)
{
    ObjectKeyedArrayList<int> list;
    list.Add(QStringLiteral("Item1"), nullptr, false, true);
    list.Add(QStringLiteral("Item2"), nullptr, false, true);
    // The counter does not look at the keys already held.
    EXPECT_EQ(list.NewUniqueKey(), QStringLiteral("Item1"));
    EXPECT_EQ(list.NewUniqueKey(), QStringLiteral("Item2"));
    list.Clear();
    EXPECT_EQ(list.Count(), 0);
    EXPECT_FALSE(list.Contains(QStringLiteral("Item1")));
    EXPECT_EQ(list.NewUniqueKey(), QStringLiteral("Item3"));

    ObjectKeyedArrayList<int> another;
    EXPECT_EQ(another.NewUniqueKey(), QStringLiteral("Item1"));
}

TEST(KeyedArrayList, RemoveAndMoveKeepKeysAndItemsPaired)
{
    ObjectKeyedArrayList<int> list;
    for (int i = 1; i <= 5; ++i)
        list.Add(QStringLiteral("k%1").arg(i), std::make_shared<int>(i), i == 4, true);
    EXPECT_EQ(list.Remove(QStringLiteral("K2")), 2);
    for (qint32 i = 1; i <= list.Count(); ++i)
        EXPECT_EQ(list.Key(i), QStringLiteral("k%1").arg(*list.Item(i)));
    EXPECT_EQ(list.FindIndexByKey(QStringLiteral("k5")), 4);
    EXPECT_TRUE(list.Selected(QStringLiteral("k4")));

    list.MoveItem(4, 1); // k5 to the front
    EXPECT_EQ(list.Key(1), QStringLiteral("k5"));
    EXPECT_EQ(*list.Item(QStringLiteral("k5")), 5);
    EXPECT_EQ(list.FindIndexByKey(QStringLiteral("k1")), 2);

    list.setKey(1, QStringLiteral("renamed"));
    EXPECT_FALSE(list.Contains(QStringLiteral("k5")));
    EXPECT_EQ(list.FindIndexByKey(QStringLiteral("RENAMED")), 1);

    const auto four = list.Item(QStringLiteral("k4"));
    list.RemoveByValue(four);
    EXPECT_FALSE(list.Contains(QStringLiteral("k4")));
    EXPECT_FALSE(list.ContainsValue(four));
    EXPECT_EQ(list.SelectedCount(), 0);

    // A move onto a stale slot beyond Count pulls that slot's old key into the list, as the
    // underlying arrays do; look-ups must follow the keys that are really there.
    ObjectKeyedArrayList<int> stale;
    for (int i = 1; i <= 4; ++i)
        stale.Add(QStringLiteral("s%1").arg(i), std::make_shared<int>(i), false, true);
    stale.Remove(2); // s1 s3 s4, and a stale copy of s4 in slot 4
    stale.MoveItem(1, 4);
    EXPECT_EQ(stale.Count(), 3);
    EXPECT_EQ(stale.Key(3), QStringLiteral("s4"));
    EXPECT_EQ(stale.FindIndexByKey(QStringLiteral("s4")), 2);
    EXPECT_EQ(stale.FindIndexByKey(QStringLiteral("s1")), -1);
    stale.Remove(2);
    EXPECT_EQ(stale.FindIndexByKey(QStringLiteral("s4")), 2);
}

TEST(KeyedArrayList, IKeyedListFaceSharesTheListAndGivesGeneratedKeys)
{
    auto list = std::make_shared<ObjectKeyedArrayList<Named>>();
    const std::shared_ptr<IKeyedList> face = asKeyedList(list);
    auto item = std::make_shared<Named>(QStringLiteral("ignored"));
    face->Add(item, true);
    EXPECT_EQ(item->Key(), QStringLiteral("Item1"));
    EXPECT_EQ(list->Item(QStringLiteral("item1")), item);
    face->Add(std::make_shared<Named>(QStringLiteral("own")), false);
    EXPECT_EQ(face->Key(2), QStringLiteral("own"));
    EXPECT_EQ(face->Item(2)->Title(), QStringLiteral("own"));

    const auto duplicate
        = raised([&] { face->Add(std::make_shared<Named>(QStringLiteral("OWN")), false); });
    ASSERT_TRUE(duplicate.has_value());
    EXPECT_EQ(duplicate->number(), ErrorNumber::DuplicateKey);
    const auto wrongKind = raised([&] { face->Add(std::make_shared<Other>(), false); });
    ASSERT_TRUE(wrongKind.has_value());
    EXPECT_EQ(wrongKind->number(), ErrorNumber::TypeMismatch);

    face->Remove(QStringLiteral("ITEM1"));
    EXPECT_EQ(list->Count(), 1);
    face->Clear();
    EXPECT_EQ(list->Count(), 0);
}

// Whatever happens to a list, the index must give what a plain walk of the keys gives.
TEST(KeyedArrayList, KeyLookupsAgreeWithALinearSearchAfterRandomChanges)
{
    const QStringList pool = {QStringLiteral("alpha"),
                              QStringLiteral("Beta"),
                              QStringLiteral("gamma"),
                              QStringLiteral("5000Key"),
                              QStringLiteral("straße"),
                              QStringLiteral("ΣΊΣΥΦΟΣ"),
                              QStringLiteral("ǆungla"),
                              QStringLiteral("𐐀x"),
                              QStringLiteral(""),
                              QStringLiteral("Item1")};
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
    auto linear = [&](const QString &key) {
        for (qint32 i = 1; i <= list.Count(); ++i) {
            if (Text::same(list.Key(i), key))
                return i;
        }
        return qint32(-1);
    };

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
            ASSERT_EQ(list.FindIndexByKey(probe), linear(probe))
                << "step " << step << " key " << qPrintable(probe);
        }
    }

    // The hash behind the index agrees with case-insensitive comparison for every character,
    // in the plane of single units and beyond it (surrogate pairs): equal exactly when the
    // comparison says equal.
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

// Keys beyond ASCII: the index finds what the case-insensitive comparison calls equal, for
// characters whose folding differs from their lower case, for surrogate pairs, and for lone
// surrogates, which the comparison takes unit by unit.
TEST(KeyedArrayList, KeyLookupsBeyondAsciiAgreeWithTheComparison)
{
    const QString lone = QString(QChar(0xDC00)) + QChar(0xD801);
    const QStringList keys = {QStringLiteral("k"),
                              QStringLiteral("σίσυφος"),
                              QStringLiteral("straße"),
                              QStringLiteral("\U00010400x"),
                              QStringLiteral("ǆ"),
                              QStringLiteral("İ"),
                              QStringLiteral("@[z"),
                              lone};
    const QStringList probes = {QStringLiteral("\u212A"), // Kelvin sign, folds to k
                                QStringLiteral("K"),
                                QStringLiteral("ΣΊΣΥΦΟΣ"),
                                QStringLiteral("ΣΊΣΥΦΟς"),
                                QStringLiteral("STRASSE"),
                                QStringLiteral("STRAẞE"),
                                QStringLiteral("\U00010428X"),
                                QStringLiteral("\U00010428x"),
                                QStringLiteral("ǅ"),
                                QStringLiteral("Ǆ"),
                                QStringLiteral("i"),
                                QStringLiteral("i̇"),
                                QStringLiteral("`{Z"),
                                QStringLiteral("@[Z"),
                                QString(QChar(0xDC00)) + QChar(0xD801),
                                QString(QChar(0xD801)) + QChar(0xDC00)};
    ObjectKeyedArrayList<int> list;
    for (const QString &key : keys)
        list.Add(key, nullptr, false, true);
    for (const QString &probe : probes) {
        qint32 expected = -1;
        for (qint32 i = 1; i <= list.Count() && expected == -1; ++i) {
            if (Text::same(list.Key(i), probe))
                expected = i;
        }
        EXPECT_EQ(list.FindIndexByKey(probe), expected) << qPrintable(probe);
    }
    EXPECT_EQ(list.FindIndexByKey(QStringLiteral("\u212A")), 1);
    EXPECT_EQ(list.FindIndexByKey(QStringLiteral("\U00010428X")), 4);
}

TEST(KeyedArrayList, AddAndLookupStayLinearOnLargeLists)
{
    constexpr qint32 n = 200000;
    ObjectKeyedArrayList<int> list;
    QElapsedTimer timer;
    timer.start();
    for (qint32 i = 1; i <= n; ++i)
        list.Add(QString::number(i) + QStringLiteral("Key"), nullptr, false, true);
    qint32 found = 0;
    for (qint32 i = n; i >= 1; --i)
        found += list.FindIndexByKey(QString::number(i) + QStringLiteral("KEY")) == i ? 1 : 0;
    EXPECT_EQ(found, n);
    // A walk per look-up would need some 10^10 comparisons here; hashing needs well under this.
    EXPECT_LT(timer.elapsed(), 10000);
}
