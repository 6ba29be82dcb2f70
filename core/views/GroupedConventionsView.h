#pragma once

#include "views/RuleViewBase.h"

// Every rule of the rulebase, whatever its type, grouped by one value of its violation (its
// category or its severity): a tree node per group, the list showing a group's rules, and rows
// dragged onto a node moving the rules into that group.
class GroupedConventionsView : public RuleViewBase
{
public:
    void OpenItem() override;
    void AddItem(const std::shared_ptr<IRule> &item) override;

protected:
    GroupedConventionsView(const char *module,
                           const QString &treeTitle,
                           const QString &listTitle,
                           SortSettings sort);

    // The group a rule belongs to, compared with a node's value.
    virtual qint32 GroupOf(const IRule &rule) const = 0;
    // Shows an edited rule's row again, or drops it when it has left the selected group.
    virtual void UpdateConvention(int row, const IRule &rule) = 0;

    // How many rules belong to a group.
    qint32 CountInGroup(qint32 group) const;
    modViewCommon::RuleByKey ViewRules() const override;

private:
    void PopulateList(qint32 group) override;
    bool AllowsDrag() const override { return true; }
};
