#include "views/CodingConventionsView.h"

#include "editors/IRuleEditorLauncher.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "views/IMainForm.h"
#include "vocabulary/ObjectTreeHelper.h"
#include "vocabulary/VBParserEvents.h"

CodingConventionsView::CodingConventionsView()
    : RuleViewBase(Shape{
        "CodingConventionsView",
        QStringLiteral(" Coding Conventions"),
        QStringLiteral(" Parser Event"),
        QStringLiteral("This will permanently delete the selected coding convention(s) from the "
                       "rulebase, are you sure you wish to continue?"),
        {QStringLiteral("tlCodingConvention")},
        {QStringLiteral("tlCloneRule"), QStringLiteral("tlCodingConvention")},
        SortSettings::Conventions,
    })
{
}

modViewCommon::RuleByKey CodingConventionsView::ViewRules() const
{
    return modViewCommon::rulesOf(ruleLists().CodingConventions());
}

void CodingConventionsView::SetupTreeview()
{
    m_tvwTree->clear();
    m_tvwTree->setImageList(QStringLiteral("ilsEventTree"));
    ObjectTreeHelper helper;
    if (m_rulebase)
        helper.setRuleLists(m_rulebase->RuleLists());
    helper.PopulateCodingConventionsTree(*m_tvwTree, false);
}

void CodingConventionsView::PopulateList(qint32 eventID)
{
    m_lvwList->clear();
    if (eventID == 0) {
        const auto all = ruleLists().CodingConventions();
        for (qint32 i = 1; i <= all->Count(); ++i)
            AddRow(*all->Item(i));
    } else if (const auto list = ruleLists().ParserEventCCList(eventID, false)) {
        for (qint32 i = 1; i <= list->Count(); ++i)
            AddRow(*list->Item(i));
    }
    RefreshView();
}

void CodingConventionsView::ResetAllNodes()
{
    ResetProjectNode();
    for (int node = 1; node <= m_tvwTree->count(); ++node)
        ResetNode(NodeValue(node));
}

void CodingConventionsView::ResetProjectNode()
{
    if (m_rulebase && m_tvwTree->count() > 0)
        SetNodeCount(1, QStringLiteral("Project"), ruleLists().CodingConventions()->Count());
}

void CodingConventionsView::ResetNode(qint32 eventID)
{
    if (eventID == 0) {
        ResetProjectNode();
        return;
    }
    if (!m_rulebase)
        return;
    const int node = m_tvwTree->find(VBParserEvents::ParserEventKey(eventID));
    if (node == 0)
        return;
    const auto list = ruleLists().ParserEventCCList(eventID, false);
    SetNodeCount(node, VBParserEvents::ParserEventText(eventID), list ? list->Count() : 0);
}

QString CodingConventionsView::NodeDocumentation(int node) const
{
    const qint32 eventID = NodeValue(node);
    if (eventID == 0)
        return QStringLiteral("Add one or more coding conventions.");
    return QStringLiteral("Event: ") + VBParserEvents::ParserEventText(eventID)
           + QStringLiteral("\r\n\r\n") + VBParserEvents::ParserEventHelp(eventID);
}

void CodingConventionsView::AddItem(const std::shared_ptr<IRule> &item)
{
    guardedVoid("IViewController_AddItem", module(), [&] {
        const auto convention = std::dynamic_pointer_cast<CodingConvention>(item);
        if (!convention || !hasControls() || !m_rulebase)
            return;
        const qint32 eventID = SelectedNodeValue();
        if (eventID == 0 || convention->IsAssignedToEvent(eventID))
            AddRow(*convention);
        RefreshView();
    });
}

void CodingConventionsView::OpenItem()
{
    RunOpenItem([this] {
        const QString key = m_lvwList->key(m_lvwList->selectedItem());
        const std::shared_ptr<CodingConvention> convention
            = ruleLists().CodingConventions()->Item(key);
        const QString events = convention->ParserEventList();
        const qint32 endEventID = convention->EndEventID();
        if (!IRuleEditorLauncher::current().EditRule(convention))
            return;

        const bool eventsChanged = !Text::same(convention->ParserEventList(), events);
        if (eventsChanged) {
            // Out of every list, then back in under its new events.
            ruleLists().RemoveRuleFromAllPECCLists(convention->RuleID(), events);
            ruleLists().AddConvention(convention, false);
        }
        if (convention->EndEventID() != endEventID) {
            if (endEventID != -1)
                ruleLists().RemoveRuleFromPendingList(convention, endEventID);
            if (convention->PendingViolation())
                ruleLists().AddRuleToPendingList(convention, convention->EndEventID());
        }
        UpdateConvention(m_lvwList->find(key), *convention);
        if (!eventsChanged) {
            const qint32 selected = SelectedNodeValue();
            ResetNode(selected);
            if (convention->EventCount() > 0)
                ResetNode(convention->ParserEventID(0));
            if (selected != 0)
                ResetProjectNode();
        } else {
            ResetAllNodes();
        }
        SetStatusBarText();
        SetDocumentationWindowText(*convention);
    });
}

void CodingConventionsView::UpdateConvention(int row, const CodingConvention &convention)
{
    const qint32 eventID = SelectedNodeValue();
    if (eventID == 0 || convention.IsAssignedToEvent(eventID)) {
        UpdateRow(convention, row);
        return;
    }
    m_lvwList->remove(m_lvwList->key(row));
    m_frmMain->setNoItemsVisible(m_lvwList->count() == 0);
}

bool CodingConventionsView::IsDropTarget(qint32 eventID) const
{
    return eventID >= 1 && eventID != m_lCurrentEventID;
}

void CodingConventionsView::MoveDroppedRules(const QString &keys, qint32 fromEvent, qint32 toEvent)
{
    const QString movable = RemovePendingViolationsFromIDList(keys);
    if (!movable.isEmpty())
        MoveConvention(movable, fromEvent, toEvent);
}

// A pending violation is raised at its end event, so such a convention keeps its events.
QString CodingConventionsView::RemovePendingViolationsFromIDList(const QString &keys)
{
    QStringList kept;
    bool dropped = false;
    const auto conventions = ruleLists().CodingConventions();
    for (const QString &key : keys.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        if (conventions->Item(key)->PendingViolation())
            dropped = true;
        else
            kept << key;
    }
    if (dropped)
        UserInterface::current().messageBox(
            QStringLiteral("Coding conventions defined to trigger pending violations cannot be "
                           "re-assigned to a different event by dragging and must instead be "
                           "moved manually."),
            MessageButtons::OK,
            MessageIcon::Information,
            programTitle(),
            MessageResult::OK);
    return kept.join(QLatin1Char('|'));
}

void CodingConventionsView::MoveConvention(const QString &keys, qint32 fromEvent, qint32 toEvent)
{
    if (fromEvent == toEvent)
        return;
    const auto conventions = ruleLists().CodingConventions();
    for (const QString &key : keys.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        ruleLists().MoveCodingConvention(Text::valLong(key), fromEvent, toEvent);
        const std::shared_ptr<CodingConvention> convention = conventions->Item(key);
        // Only the one event changes; a convention on several events keeps the others.
        convention->RemoveParserEventID(fromEvent);
        convention->AddParserEventID(toEvent);
        if (m_lvwList->find(key) != 0)
            m_lvwList->remove(key);
    }
    RefreshView();
}
