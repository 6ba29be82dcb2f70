#include "collections/IKeyedList.h"
#include "collections/ObjectKeyedListAdapter.h"
#include "platform/QuorinError.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/Report.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/TableItem.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<CategoryItem> category(const QString &title, qint32 id = 0)
{
    auto item = std::make_shared<CategoryItem>();
    item->setTitle(title);
    if (id)
        item->setID(id);
    return item;
}

QString raisedSource(const std::function<void()> &call)
{
    try {
        call();
    } catch (const QuorinError &e) {
        return e.number() == ErrorNumber::NoSuchItem ? e.source() : u"other error"_s;
    }
    return {};
}

} // namespace

TEST(CategoryList, AllocatesIdsThatTheKeysFollow)
{
    CategoryList list;
    const auto first = category(u"Naming"_s);
    list.Add(first, true);
    EXPECT_EQ(first->ID(), 1);
    EXPECT_EQ(first->Key(), u"1K"_s);
    EXPECT_EQ(list.Item(u"1k"_s), first);
    EXPECT_TRUE(list.ContainsID(1));
    EXPECT_FALSE(list.ContainsID(-1));
    EXPECT_EQ(CategoryList::CategoryIDToKey(-1), u"-1K"_s);

    // An id given by hand leaves LastID behind, and the next allocation collides.
    list.Add(category(u"Style"_s, 2), false);
    EXPECT_EQ(list.LastID(), 1);
    try {
        list.Add(category(u"Clash"_s), true);
        FAIL() << "no duplicate error";
    } catch (const QuorinError &e) {
        EXPECT_EQ(e.number(), ErrorNumber::DuplicateKey);
        EXPECT_EQ(e.description(),
                  u"The item cannot be added, because the key '2K' is already in use."_s);
    }
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.LastID(), 2);

    // A new id changes the item's key, not the key it has in the list.
    first->setID(9);
    EXPECT_EQ(first->Key(), u"9K"_s);
    EXPECT_FALSE(list.ContainsID(9));
    EXPECT_EQ(list.Item(u"1K"_s), first);
}

// Sorted by title, later equals first, keys along; an empty list sorts without a change.
TEST(CategoryList, SortMovesKeysAlongAndMarksTheListDirty)
{
    CategoryList list;
    list.Sort();
    EXPECT_FALSE(list.Dirty());
    list.Add(category(u"b"_s), true);
    list.Add(category(u"A"_s), true);
    list.Add(category(u"a"_s), true);
    list.setDirty(false);
    list.Sort();
    QStringList titles;
    for (qint32 i = 1; i <= list.Count(); ++i)
        titles << list.Item(i)->Title();
    EXPECT_EQ(titles, (QStringList{"a", "A", "b"}));
    EXPECT_EQ(list.Item(u"3K"_s)->Title(), u"a"_s);
    EXPECT_EQ(list.Item(u"1K"_s)->Title(), u"b"_s);
    EXPECT_TRUE(list.Dirty());
}

TEST(AuthorisedItems, AddOfAKnownLibIdGivesADetachedBlankItemAndBadKeysRaiseUnderTheListsName)
{
    AuthorisedComponents components;
    const auto grid = components.Add(u"{GUID-1}"_s, u"Grid.ocx"_s, u"1.0"_s, QString());
    EXPECT_TRUE(components.Dirty());
    EXPECT_EQ(components.Item(u"{guid-1}"_s), grid);
    components.setDirty(false);

    const auto again = components.Add(u"{GUID-1}"_s, u"Other.ocx"_s, QString(), QString());
    EXPECT_NE(again, grid);
    EXPECT_TRUE(again->Filename().isEmpty());
    EXPECT_EQ(components.Count(), 1);
    EXPECT_FALSE(components.Dirty());
    auto twin = std::make_shared<AuthorisedComponent>();
    twin->setLibID(u"{guid-1}"_s);
    EXPECT_FALSE(components.AddComponent(twin));
    EXPECT_FALSE(components.Dirty());

    EXPECT_EQ(components.FindByFilename(u"GRID.OCX"_s), 1);
    EXPECT_EQ(components.FindByFilename(u"none.ocx"_s), -1);
    EXPECT_EQ(components.FindByLibID(u"{nope}"_s), -1);

    // The item's own Selected starts True; the wrapped list's flag is another thing.
    EXPECT_TRUE(grid->Selected());
    EXPECT_EQ(components.SelectedCount(), 1);
    grid->setSelected(false);
    EXPECT_EQ(components.SelectedCount(), 0);
    const IAuthorisedItem &face = *grid;
    EXPECT_EQ(face.Title(), u"Grid.ocx"_s);
    EXPECT_EQ(face.TypeLibGuid(), u"{GUID-1}"_s);

    // Bad positions and keys raise under the list's own name.
    AuthorisedReferences references;
    references.Add(u"{R}"_s, u"Scripting Runtime"_s, u"scrrun.dll"_s, QString(), QString());
    EXPECT_EQ(references.Item(1)->Title(), u"Scripting Runtime"_s);
    references.setDirty(false);

    EXPECT_EQ(raisedSource([&] { references.Item(u"{unknown}"_s); }),
              u"AuthorisedReferences::Item"_s);
    EXPECT_EQ(raisedSource([&] { references.Remove(2); }), u"AuthorisedReferences::Remove"_s);
    EXPECT_FALSE(references.Dirty());
    references.RemoveByLibID(u"{unknown}"_s);
    EXPECT_FALSE(references.Dirty());
    references.RemoveByLibID(u"{r}"_s);
    EXPECT_TRUE(references.Dirty());
    EXPECT_EQ(references.Count(), 0);

    EXPECT_EQ(raisedSource([&] { components.Remove(0); }), u"AuthorisedComponents::Remove"_s);
}

TEST(Report, DirtyAndClonesFollowTablesAndShareCategories)
{
    Report report;
    EXPECT_FALSE(report.Dirty());
    EXPECT_EQ(report.CloneSections()->Count(), 0);

    auto table = std::make_shared<TableItem>();
    table->setTableKey(u"1T"_s);
    table->setTableTitle(u"Control Tags"_s);
    table->setTableText(u"abc"_s);
    const auto page = category(u"Naming"_s, 1);
    report.Sections()->Add(table);
    report.Sections()->Add(page);
    EXPECT_TRUE(report.Dirty());
    report.setDirty(false);
    EXPECT_FALSE(table->Dirty());

    table->setTableText(u"ABC"_s); // case only: not stored, not dirty
    EXPECT_EQ(table->TableText(), u"abc"_s);
    table->setTableType(4);
    EXPECT_FALSE(report.Dirty());

    const auto clone = report.CloneSections();
    clone->MoveItem(1, 2);
    std::dynamic_pointer_cast<TableItem>(clone->Item(2))->setTableTitle(u"Tags"_s);
    EXPECT_EQ(table->TableTitle(), u"Control Tags"_s);
    EXPECT_EQ(report.Sections()->Item(1), table);
    EXPECT_FALSE(report.Dirty());

    EXPECT_EQ(clone->Item(1), page); // shared, so its rules are the report's
    std::dynamic_pointer_cast<CategoryItem>(clone->Item(1))->CategoryRules()->Add(nullptr);
    EXPECT_EQ(page->CategoryRules()->Count(), 1);
    EXPECT_TRUE(report.Dirty());
}
