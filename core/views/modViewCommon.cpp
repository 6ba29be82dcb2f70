#include "views/modViewCommon.h"

#include "controls/ListControl.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/IRule.h"
#include "rulebase/RuleLists.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"

namespace modViewCommon {

namespace {

constexpr const char *module = "modViewCommon";

QString CategoryTitle(qint32 categoryID, const CategoryList &categories)
{
    if (!categories.ContainsID(categoryID))
        return QString();
    return categories.Item(CategoryList::CategoryIDToKey(categoryID))->Title();
}

} // namespace

QString RuleText(const IRule &rule)
{
    QString text = Text::zeroPadded(rule.RuleID(), 4);
    if (rule.PendingViolation())
        text += QLatin1Char('p');
    return text;
}

qint32 SeverityColour(qint32 severityLevel, const SeverityList &severities)
{
    return severities.Item(QString::number(severityLevel) + QStringLiteral("Key"))->Colour();
}

void AddRuleToList(const IRule &rule,
                   ListControl &list,
                   const CategoryList &categories,
                   const SeverityList &severities)
{
    guardedVoid("AddRuleToList", module, [&] {
        const ViolationDefinition &definition = *rule.ViolationDefinition();
        const qint32 colour = SeverityColour(definition.Severity(), severities);
        const QString category = CategoryTitle(definition.CategoryID(), categories);
        const int row = list.add(rule.RuleKey(), RuleText(rule), colour);
        list.setSubItemText(row, 1, rule.Title());
        list.setSubItemText(row, 2, category);
        list.setSubItemText(row, 3, QString::number(definition.Impact()));
        list.setSelected(row, false);
        HighlightConvention(row, rule.RuleActive(), list);
    });
}

void UpdateRuleInList(const IRule &rule,
                      int row,
                      ListControl &list,
                      const CategoryList &categories,
                      const SeverityList &severities)
{
    guardedVoid("UpdateRuleInList", module, [&] {
        const ViolationDefinition &definition = *rule.ViolationDefinition();
        const qint32 colour = SeverityColour(definition.Severity(), severities);
        const QString category = CategoryTitle(definition.CategoryID(), categories);
        list.setText(row, RuleText(rule));
        list.setSmallIcon(row, colour);
        list.setSubItemText(row, 1, rule.Title());
        list.setSubItemText(row, 2, category);
        list.setSubItemText(row, 3, QString::number(definition.Impact()));
        HighlightConvention(row, rule.RuleActive(), list);
    });
}

void HighlightConvention(int row, bool active, ListControl &list)
{
    guardedVoid("HighlightConvention", module, [&] {
        const qint32 colour = active ? list.foreColor() : InactiveColour;
        list.setForeColor(row, colour);
        list.setSubItemForeColor(row, 1, colour);
        list.setSubItemForeColor(row, 2, colour);
    });
}

void ActivateRules(bool active, const RuleByKey &rules, ListControl &list)
{
    guardedVoid("ActivateRules", module, [&] {
        for (int row = 1; row <= list.count(); ++row) {
            if (!list.selected(row))
                continue;
            rules(list.key(row))->setRuleActive(active);
            HighlightConvention(row, active, list);
        }
    });
}

int GetItemsActiveState(const RuleByKey &rules, ListControl &list)
{
    return guarded("GetItemsActiveState", module, 2, [&] {
        int state = 2;
        qint16 selected = 0;
        qint16 active = 0;
        for (int row = 1; row <= list.count(); ++row) {
            if (!list.selected(row))
                continue;
            ++selected;
            if (rules(list.key(row))->RuleActive())
                ++active;
        }
        if (selected == active)
            state = 1;
        else if (active > 0)
            state = 3;
        return state;
    });
}

void CloneRules(RuleLists &ruleLists,
                ListControl &list,
                const CategoryList &categories,
                const SeverityList &severities)
{
    guardedVoid("CloneRules", module, [&] {
        const auto all = ruleLists.AllConventions();
        for (const QString &key : SelectedItemKeys(list)) {
            if (!all->Contains(key))
                continue;
            const std::shared_ptr<IRule> rule = all->Item(key);
            if (!rule)
                continue;
            const std::shared_ptr<IRule> clone = rule->Clone();
            ruleLists.AddConvention(clone, true);
            AddRuleToList(*clone, list, categories, severities);
        }
    });
}

void DeleteRules(RuleLists &ruleLists, ListControl &list)
{
    guardedVoid("DeleteRules", module, [&] {
        for (const QString &key : SelectedItemKeys(list)) {
            ruleLists.RemoveRule(key);
            list.remove(key);
        }
    });
}

void UpdateCategories(const RuleByKey &rules,
                      ListControl &list,
                      int column,
                      const CategoryList &categories)
{
    guardedVoid("UpdateCategories", module, [&] {
        for (int row = 1; row <= list.count(); ++row) {
            const std::shared_ptr<ViolationDefinition> definition
                = rules(list.key(row))->ViolationDefinition();
            if (categories.ContainsID(definition->CategoryID())) {
                list.setSubItemText(
                    row, column - 1, CategoryTitle(definition->CategoryID(), categories));
            } else {
                definition->setCategoryID(-1);
                list.setSubItemText(row, column - 1, QString());
            }
        }
    });
}

void UpdateSeverities(const RuleByKey &rules, ListControl &list, const SeverityList &severities)
{
    guardedVoid("UpdateSeverities", module, [&] {
        for (int row = 1; row <= list.count(); ++row) {
            const qint32 level = rules(list.key(row))->ViolationDefinition()->Severity();
            list.setSmallIcon(row, SeverityColour(level, severities));
        }
    });
}

void SortListByColumn(ListControl &list, int column)
{
    guardedVoid("lvwMain_ColumnClick", "frmMain", [&] {
        QString image = QStringLiteral("SortAscending");
        if (column - 1 == list.sortKey()) {
            if (list.sortOrder() == 0) {
                list.setSortOrder(1);
                image = QStringLiteral("SortDescending");
            } else {
                list.setSortOrder(0);
            }
        } else {
            list.setSortKey(column - 1);
            list.setSortOrder(0);
        }
        list.setSorted(true);
        for (int i = 1; i <= list.columnCount(); ++i)
            list.setColumnIcon(i, QString());
        list.setColumnIcon(column, image);
        if (list.columnAlignment(column) == ColumnAlignment::Right)
            list.setColumnAlignment(column, ColumnAlignment::Right);
    });
}

QStringList SelectedItemKeys(const ListControl &list)
{
    QStringList keys;
    for (int row = 1; row <= list.count(); ++row) {
        if (list.selected(row))
            keys << list.key(row);
    }
    return keys;
}

} // namespace modViewCommon
