#pragma once

#include "views/GroupedConventionsView.h"

// Every rule of the rulebase, whatever its type, arranged by severity. A double click on a
// severity node edits the severity.
class SeverityView final : public GroupedConventionsView
{
public:
    SeverityView();

    void SeverityListChanged() override;

private:
    qint32 GroupOf(const IRule &rule) const override;
    void UpdateConvention(int row, const IRule &rule) override;
    void SetupTreeview() override;
    void ResetAllNodes() override;
    QString NodeDocumentation(int node) const override;
    void DblClick() override;

    void ResetSeverityNode();
    void ResetNode(const QString &key);

    void MoveDroppedRules(const QString &keys, qint32 from, qint32 to) override;
    void MoveConventions(const QString &keys, qint32 from, qint32 to);
};
