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
        return e.number() == ErrorNumber::NoSuchItem ? e.source() : QStringLiteral("other error");
    }
    return {};
}

} // namespace

TEST(CategoryList, AllocatesIdsThatTheKeysFollow)
{
    CategoryList list;
    const auto first = category(QStringLiteral("Naming"));
    list.Add(first, true);
    EXPECT_EQ(first->ID(), 1);
    EXPECT_EQ(first->Key(), QStringLiteral("1K"));
    EXPECT_EQ(list.Item(QStringLiteral("1k")), first);
    EXPECT_TRUE(list.ContainsID(1));
    EXPECT_FALSE(list.ContainsID(-1));
    EXPECT_EQ(CategoryList::CategoryIDToKey(-1), QStringLiteral("-1K"));

    // An id given by hand leaves LastID behind, and the next allocation collides.
    list.Add(category(QStringLiteral("Style"), 2), false);
    EXPECT_EQ(list.LastID(), 1);
    try {
        list.Add(category(QStringLiteral("Clash")), true);
        FAIL() << "no duplicate error";
    } catch (const QuorinError &e) {
        EXPECT_EQ(e.number(), ErrorNumber::DuplicateKey);
        EXPECT_EQ(
            e.description(),
            QStringLiteral("The item cannot be added, because the key '2K' is already in use."));
    }
    EXPECT_EQ(list.Count(), 2);
    EXPECT_EQ(list.LastID(), 2);

    // A new id changes the item's key, not the key it has in the list.
    first->setID(9);
    EXPECT_EQ(first->Key(), QStringLiteral("9K"));
    EXPECT_FALSE(list.ContainsID(9));
    EXPECT_EQ(list.Item(QStringLiteral("1K")), first);
}

TEST(CategoryList, SortsByTitleLaterEqualsFirstWithKeysAlongAndMarksTheListDirty)
{
    CategoryList empty;
    empty.Sort();
    EXPECT_FALSE(empty.Dirty());

    CategoryList list;
    list.Add(category(QStringLiteral("b")), true);
    list.Add(category(QStringLiteral("A")), true);
    list.Add(category(QStringLiteral("a")), true);
    list.setDirty(false);
    list.Sort();
    QStringList titles;
    for (qint32 i = 1; i <= list.Count(); ++i)
        titles << list.Item(i)->Title();
    EXPECT_EQ(titles, (QStringList{"a", "A", "b"}));
    EXPECT_EQ(list.Item(QStringLiteral("3K"))->Title(), QStringLiteral("a"));
    EXPECT_EQ(list.Item(QStringLiteral("1K"))->Title(), QStringLiteral("b"));
    EXPECT_TRUE(list.Dirty());
}

TEST(CategoryList, KeyedListFaceAssignsIdsAndHidesKeys)
{
    auto list = std::make_shared<CategoryList>();
    const auto face = asKeyedList(list);
    const auto item = category(QStringLiteral("Design"));
    face->Add(item, true);
    EXPECT_EQ(item->ID(), 1);
    EXPECT_EQ(face->Key(1), QString()); // deliberately empty
    EXPECT_EQ(face->Item(QStringLiteral("1K"))->Title(), QStringLiteral("Design"));
    EXPECT_TRUE(face->Contains(QStringLiteral("1K")));
    EXPECT_THROW(face->Add(std::make_shared<TableItem>(), false), QuorinError);
    face->Remove(1);
    EXPECT_EQ(list->Count(), 0);
}

TEST(SeverityList, KeyedListFaceGivesLevelsAsIds)
{
    auto list = std::make_shared<ObjectKeyedArrayList<SeverityItem>>();
    auto level = std::make_shared<SeverityItem>();
    level->setSeverityLevel(3);
    level->setTitle(QStringLiteral("Medium"));
    list->Add(QStringLiteral("3Key"), level, true, false);
    const auto face = asKeyedList(list);
    EXPECT_EQ(face->Item(QStringLiteral("3key"))->ID(), 3);
    EXPECT_TRUE(face->Selected(1));
    auto added = std::make_shared<SeverityItem>();
    face->Add(added, true);
    EXPECT_EQ(added->Key(), QStringLiteral("Item1"));
    EXPECT_EQ(list->Count(), 2);
}

TEST(AuthorisedItems, AddOfAKnownLibIdGivesADetachedBlankItem)
{
    AuthorisedComponents components;
    const auto grid = components.Add(
        QStringLiteral("{GUID-1}"), QStringLiteral("Grid.ocx"), QStringLiteral("1.0"), QString());
    EXPECT_TRUE(components.Dirty());
    EXPECT_EQ(components.Item(QStringLiteral("{guid-1}")), grid);
    components.setDirty(false);

    const auto again = components.Add(
        QStringLiteral("{GUID-1}"), QStringLiteral("Other.ocx"), QString(), QString());
    EXPECT_NE(again, grid);
    EXPECT_TRUE(again->Filename().isEmpty());
    EXPECT_EQ(components.Count(), 1);
    EXPECT_FALSE(components.Dirty());
    auto twin = std::make_shared<AuthorisedComponent>();
    twin->setLibID(QStringLiteral("{guid-1}"));
    EXPECT_FALSE(components.AddComponent(twin));
    EXPECT_FALSE(components.Dirty());

    EXPECT_EQ(components.FindByFilename(QStringLiteral("GRID.OCX")), 1);
    EXPECT_EQ(components.FindByFilename(QStringLiteral("none.ocx")), -1);
    EXPECT_EQ(components.FindByLibID(QStringLiteral("{nope}")), -1);

    // The item's own Selected starts True; the wrapped list's flag is another thing.
    EXPECT_TRUE(grid->Selected());
    EXPECT_EQ(components.SelectedCount(), 1);
    grid->setSelected(false);
    EXPECT_EQ(components.SelectedCount(), 0);
    const IAuthorisedItem &face = *grid;
    EXPECT_EQ(face.Title(), QStringLiteral("Grid.ocx"));
    EXPECT_EQ(face.TypeLibGuid(), QStringLiteral("{GUID-1}"));
}

TEST(AuthorisedItems, BadPositionsAndKeysRaiseUnderTheListsOwnName)
{
    AuthorisedReferences references;
    references.Add(QStringLiteral("{R}"),
                   QStringLiteral("Scripting Runtime"),
                   QStringLiteral("scrrun.dll"),
                   QString(),
                   QString());
    EXPECT_EQ(references.Item(1)->Title(), QStringLiteral("Scripting Runtime"));
    references.setDirty(false);

    EXPECT_EQ(raisedSource([&] { references.Item(QStringLiteral("{unknown}")); }),
              QStringLiteral("AuthorisedReferences::Item"));
    EXPECT_EQ(raisedSource([&] { references.Remove(2); }),
              QStringLiteral("AuthorisedReferences::Remove"));
    EXPECT_FALSE(references.Dirty());
    references.RemoveByLibID(QStringLiteral("{unknown}"));
    EXPECT_FALSE(references.Dirty());
    references.RemoveByLibID(QStringLiteral("{r}"));
    EXPECT_TRUE(references.Dirty());
    EXPECT_EQ(references.Count(), 0);

    AuthorisedComponents components;
    EXPECT_EQ(raisedSource([&] { components.Remove(0); }),
              QStringLiteral("AuthorisedComponents::Remove"));
}

TEST(Report, DirtyAndClonesFollowTablesAndShareCategories)
{
    Report report;
    EXPECT_FALSE(report.Dirty());
    EXPECT_EQ(report.CloneSections()->Count(), 0);

    auto table = std::make_shared<TableItem>();
    table->setTableKey(QStringLiteral("1T"));
    table->setTableTitle(QStringLiteral("Control Tags"));
    table->setTableText(QStringLiteral("abc"));
    const auto page = category(QStringLiteral("Naming"), 1);
    report.Sections()->Add(table);
    report.Sections()->Add(page);
    EXPECT_TRUE(report.Dirty());
    report.setDirty(false);
    EXPECT_FALSE(table->Dirty());

    table->setTableText(QStringLiteral("ABC")); // case only: not stored, not dirty
    EXPECT_EQ(table->TableText(), QStringLiteral("abc"));
    table->setTableType(4);
    EXPECT_FALSE(report.Dirty());

    const auto clone = report.CloneSections();
    clone->MoveItem(1, 2);
    std::dynamic_pointer_cast<TableItem>(clone->Item(2))->setTableTitle(QStringLiteral("Tags"));
    EXPECT_EQ(table->TableTitle(), QStringLiteral("Control Tags"));
    EXPECT_EQ(report.Sections()->Item(1), table);
    EXPECT_FALSE(report.Dirty());

    EXPECT_EQ(clone->Item(1), page); // shared, so its rules are the report's
    std::dynamic_pointer_cast<CategoryItem>(clone->Item(1))->CategoryRules()->Add(nullptr);
    EXPECT_EQ(page->CategoryRules()->Count(), 1);
    EXPECT_TRUE(report.Dirty());
}
