#pragma once

#include "views/RuleViewBase.h"

// The naming conventions arranged by the kind of object they name; the root shows them all.
class NamingConventionsView final : public RuleViewBase
{
public:
    NamingConventionsView();

    void OpenItem() override;
    void AddItem(const std::shared_ptr<IRule> &item) override;

    // "Add naming conventions applicable to ..." for an object type.
    static QString ObjectDescription(qint32 objectType);

private:
    void SetupTreeview() override;
    void PopulateList(qint32 objectType) override;
    void ResetAllNodes() override;
    QString NodeDocumentation(int node) const override;
    modViewCommon::RuleByKey ViewRules() const override;

    void AddObjectRules(qint32 objectType);
    void ResetObjectNode();
    void ResetNode(qint32 objectType);
};
