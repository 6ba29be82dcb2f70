#include "views/SeverityView.h"

#include "collections/KeyedListErrors.h"
#include "editors/IRuleEditorLauncher.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "rulebase/IRule.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/ViolationDefinition.h"
#include "views/IMainForm.h"

namespace {
const QString rootKey = QStringLiteral("Severity");
}

SeverityView::SeverityView()
    : GroupedConventionsView("SeverityView",
                             QStringLiteral(" Conventions by Severity"),
                             QStringLiteral(" Severity"),
                             SortSettings::Severities)
{
}

qint32 SeverityView::GroupOf(const IRule &rule) const
{
    return rule.ViolationDefinition()->Severity();
}

void SeverityView::SetupTreeview()
{
    m_tvwTree->clear();
    m_tvwTree->setImageList(QStringLiteral("ilsSeverity"));
    const int root = m_tvwTree->addChild(0, rootKey, rootKey, rootKey);
    m_tvwTree->setExpanded(root, true);
    if (!m_rulebase)
        return;
    const auto severities = m_rulebase->SeverityList();
    for (qint32 i = 1; i <= severities->Count(); ++i) {
        const std::shared_ptr<SeverityItem> severity = severities->Item(i);
        m_tvwTree->addChild(
            root, severity->Key(), severity->Title(), QString::number(severity->Colour()));
    }
}

void SeverityView::ResetAllNodes()
{
    ResetSeverityNode();
    for (int node = 1; node <= m_tvwTree->count(); ++node)
        ResetNode(m_tvwTree->key(node));
}

void SeverityView::ResetSeverityNode()
{
    const int node = m_tvwTree->find(rootKey);
    if (m_rulebase && node != 0)
        SetNodeCount(node, rootKey, ruleLists().AllConventions()->Count());
}

void SeverityView::ResetNode(const QString &key)
{
    if (Text::same(key, rootKey)) {
        ResetSeverityNode();
        return;
    }
    const int node = m_tvwTree->find(key);
    if (!m_rulebase || node == 0)
        return;
    const std::shared_ptr<SeverityItem> severity = m_rulebase->SeverityList()->Item(key);
    SetNodeCount(node, severity->Title(), CountInGroup(Text::valLong(key)));
}

QString SeverityView::NodeDocumentation(int node) const
{
    const QString key = m_tvwTree->key(node);
    if (Text::same(key, rootKey))
        return QStringLiteral("Arrange conventions by severity.");
    const std::shared_ptr<SeverityItem> severity = m_rulebase->SeverityList()->Item(key);
    return QStringLiteral("Severity: ") + severity->Title() + QStringLiteral("\r\n\r\n")
           + severity->Description();
}

void SeverityView::SeverityListChanged()
{
    guardedVoid("IViewController_SeverityListChanged", module(), [this] {
        if (!hasControls() || !m_rulebase)
            return;
        const int selected = m_tvwTree->selectedItem();
        const QString key = selected != 0 ? m_tvwTree->key(selected) : QString();
        SetupTreeview();
        // No fallback: a node that has gone is an error.
        const int node = m_tvwTree->find(key);
        if (node == 0)
            KeyedListErrors::raiseNoSuchItem("Nodes");
        m_tvwTree->setSelectedItem(node);
        NodeClick(node);
        modViewCommon::UpdateSeverities(ViewRules(), *m_lvwList, *m_rulebase->SeverityList());
    });
}

void SeverityView::UpdateConvention(int row, const IRule &rule)
{
    if (rule.ViolationDefinition()->Severity() == SelectedNodeValue()
        || m_tvwTree->selectedItem() == 1) {
        UpdateRow(rule, row);
    } else {
        m_lvwList->remove(rule.RuleKey());
    }
    RefreshView();
}

void SeverityView::DblClick()
{
    guardedVoid("m_tvwTree_DblClick", module(), [this] {
        if (!hasControls() || !m_rulebase)
            return;
        const int node = m_tvwTree->selectedItem();
        if (node <= 1)
            return;
        const QString key = m_tvwTree->key(node);
        const std::shared_ptr<SeverityItem> severity = m_rulebase->SeverityList()->Item(key);
        if (!IRuleEditorLauncher::current().EditSeverity(severity))
            return;
        // The editor's setters leave the list clean; without this a close would not offer to save.
        m_rulebase->SeverityList()->setDirty(true);
        ResetNode(key);
        m_tvwTree->setImage(node, QString::number(severity->Colour()));
        m_frmMain->setListTitle(QStringLiteral(" Severity [") + severity->Title()
                                + QStringLiteral("]"));
        for (int row = 1; row <= m_lvwList->count(); ++row)
            m_lvwList->setSmallIcon(row, severity->Colour());
        SetDocumentationWindowText(node);
    });
}

void SeverityView::MoveDroppedRules(const QString &keys, qint32 from, qint32 to)
{
    MoveConventions(keys, from, to);
}

void SeverityView::MoveConventions(const QString &keys, qint32 from, qint32 to)
{
    if (from == to)
        return;
    const auto all = ruleLists().AllConventions();
    for (const QString &key : keys.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        all->Item(key)->ViolationDefinition()->setSeverity(to);
        if (m_lvwList->find(key) != 0)
            m_lvwList->remove(key);
    }
    RefreshView();
}
