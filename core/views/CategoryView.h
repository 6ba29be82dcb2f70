#pragma once

#include "views/GroupedConventionsView.h"

// Every rule of the rulebase, whatever its type, arranged by category, with a last node for
// the rules of no category. A double click on a category node edits the category.
class CategoryView final : public GroupedConventionsView
{
public:
    CategoryView();

    void Populate() override;
    void CategoryListChanged() override;

private:
    qint32 GroupOf(const IRule &rule) const override;
    void UpdateConvention(int row, const IRule &rule) override;
    void SetupTreeview() override;
    void ResetAllNodes() override;
    QString NodeDocumentation(int node) const override;
    void DblClick() override;

    void ResetCategoryNode();
    void ResetUnallocatedNode();
    void ResetNode(const QString &key);

    void MoveDroppedRules(const QString &keys, qint32 from, qint32 to) override;
    void MoveConventions(const QString &keys, qint32 from, qint32 to);
};
