#pragma once

#include "views/RuleViewBase.h"

class CodingConvention;

// The coding conventions arranged by parser event: a convention shows under each of its events,
// and the root shows them all.
class CodingConventionsView final : public RuleViewBase
{
public:
    CodingConventionsView();

    void OpenItem() override;
    void AddItem(const std::shared_ptr<IRule> &item) override;

private:
    void SetupTreeview() override;
    void PopulateList(qint32 eventID) override;
    void ResetAllNodes() override;
    QString NodeDocumentation(int node) const override;
    modViewCommon::RuleByKey ViewRules() const override;

    void ResetProjectNode();
    void ResetNode(qint32 eventID);
    void UpdateConvention(int row, const CodingConvention &convention);

    bool AllowsDrag() const override { return true; }
    bool IsDropTarget(qint32 eventID) const override;
    void MoveDroppedRules(const QString &keys, qint32 fromEvent, qint32 toEvent) override;
    QString RemovePendingViolationsFromIDList(const QString &keys);
    void MoveConvention(const QString &keys, qint32 fromEvent, qint32 toEvent);
};
