#pragma once

#include "collections/ObjectKeyedArrayList.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class CategoryList;
class IRule;
class ListControl;
class RuleLists;
class SeverityItem;

using SeverityList = ObjectKeyedArrayList<SeverityItem>;

// The rows of rules that every rule list shares: columns "Rule", "Title", "Category", "Impact",
// keyed by the rule key, the severity's colour as icon, inactive rules in red. Each routine
// reports its own failure and gives up; none lets an error out.
namespace modViewCommon {

inline constexpr qint32 InactiveColour = 255;

// The rule behind a row key; raises "No such item." for a key that is not in the list.
using RuleByKey = std::function<std::shared_ptr<IRule>(const QString &key)>;
template<typename Rule>
RuleByKey rulesOf(std::shared_ptr<ObjectKeyedArrayList<Rule>> list)
{
    return [list](const QString &key) -> std::shared_ptr<IRule> { return list->Item(key); };
}

// "0012", or "0012p" with a pending violation.
QString RuleText(const IRule &rule);

void AddRuleToList(const IRule &rule,
                   ListControl &list,
                   const CategoryList &categories,
                   const SeverityList &severities);
void UpdateRuleInList(const IRule &rule,
                      int row,
                      ListControl &list,
                      const CategoryList &categories,
                      const SeverityList &severities);
// Row, Title and Category in red when inactive, else in the list's own colour; Impact stays.
void HighlightConvention(int row, bool active, ListControl &list);
void ActivateRules(bool active, const RuleByKey &rules, ListControl &list);
// 1 every selected row active (or none selected), 2 none active, 3 some.
int GetItemsActiveState(const RuleByKey &rules, ListControl &list);
// The clones join the list whatever it shows.
void CloneRules(RuleLists &ruleLists,
                ListControl &list,
                const CategoryList &categories,
                const SeverityList &severities);
void DeleteRules(RuleLists &ruleLists, ListControl &list);
// A row whose category is gone loses it: the rule's CategoryID becomes -1.
void UpdateCategories(const RuleByKey &rules,
                      ListControl &list,
                      int column,
                      const CategoryList &categories);
void UpdateSeverities(const RuleByKey &rules, ListControl &list, const SeverityList &severities);

// The window's half of a click on a column header: the same column again reverses the order,
// another sorts ascending by it; the clicked header alone shows the order's image.
void SortListByColumn(ListControl &list, int column);

// The keys of the selected rows in row order: a snapshot for loops that change the list.
QStringList SelectedItemKeys(const ListControl &list);
// The severity's icon; raises for a level that is not in the list.
qint32 SeverityColour(qint32 severityLevel, const SeverityList &severities);

} // namespace modViewCommon
