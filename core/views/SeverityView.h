#pragma once

#include "views/RuleViewBase.h"

// Every rule of the rulebase, whatever its type, arranged by severity. A double click on a
// severity node edits the severity.
class SeverityView final : public RuleViewBase
{
public:
    SeverityView();

    void OpenItem() override;
    void AddItem(const std::shared_ptr<IRule> &item) override;
    void SeverityListChanged() override;

private:
    void SetupTreeview() override;
    void PopulateList(qint32 severityLevel) override;
    void ResetAllNodes() override;
    QString NodeDocumentation(int node) const override;
    modViewCommon::RuleByKey ViewRules() const override;
    void DblClick() override;

    void ResetSeverityNode();
    void ResetNode(const QString &key);
    void UpdateConvention(int row, const IRule &rule);

    bool AllowsDrag() const override { return true; }
    void MoveDroppedRules(const QString &keys, qint32 from, qint32 to) override;
    void MoveConventions(const QString &keys, qint32 from, qint32 to);
};
