#pragma once

#include "views/RuleViewBase.h"

// Every rule of the rulebase, whatever its type, arranged by category, with a last node for
// the rules of no category. A double click on a category node edits the category.
class CategoryView final : public RuleViewBase
{
public:
    CategoryView();

    void Populate() override;
    void OpenItem() override;
    void AddItem(const std::shared_ptr<IRule> &item) override;
    void CategoryListChanged() override;

private:
    void SetupTreeview() override;
    void PopulateList(qint32 categoryID) override;
    void ResetAllNodes() override;
    QString NodeDocumentation(int node) const override;
    modViewCommon::RuleByKey ViewRules() const override;
    void DblClick() override;

    void ResetCategoryNode();
    void ResetUnallocatedNode();
    void ResetNode(const QString &key);
    void UpdateConvention(int row, const IRule &rule);

    bool AllowsDrag() const override { return true; }
    void MoveDroppedRules(const QString &keys, qint32 from, qint32 to) override;
    void MoveConventions(const QString &keys, qint32 from, qint32 to);
};
