#include "views/RuleViewBase.h"

#include "editors/IRuleEditorLauncher.h"
#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "rulebase/IRule.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "views/DragDrop.h"
#include "views/IMainForm.h"

namespace {

const QString crlf2 = QStringLiteral("\r\n\r\n");

// The tools whose state follows the rows of the list.
const QStringList rowTools = {QStringLiteral("tlCloneRule"),
                              QStringLiteral("tlDeleteRule"),
                              QStringLiteral("tlOpenRule"),
                              QStringLiteral("tlRuleActive"),
                              QStringLiteral("tlRuleInactive")};

constexpr int ruleColumns = 4;

} // namespace

RuleViewBase::RuleViewBase(Shape shape)
    : m_shape(std::move(shape))
{
}

RuleViewBase::~RuleViewBase()
{
    guardedVoid("Class_Terminate", module(), [this] {
        if (m_tvwTree)
            m_tvwTree->setEventSink(nullptr);
        if (m_lvwList) {
            m_lvwList->setEventSink(nullptr);
            SaveColumns();
        }
        if (m_frmMain) {
            for (const QString &tool : m_shape.releaseTools)
                m_frmMain->setToolEnabled(tool, false);
        }
    });
}

void RuleViewBase::SaveColumns()
{
    if (!gobjAdminData)
        return;
    // Fractions of the list's width, so that the layout survives a change of window size.
    if (m_lvwList->width() > 0) {
        for (int i = 1; i <= std::min(ruleColumns, m_lvwList->columnCount()); ++i)
            gobjAdminData->setListColWidthCC(
                i, float(m_lvwList->columnWidth(i)) / float(m_lvwList->width()));
    }
    SaveSortSettings(m_lvwList->sortKey(), m_lvwList->sortOrder());
}

void RuleViewBase::setRulebase(std::shared_ptr<::Rulebase> rulebase)
{
    m_rulebase = std::move(rulebase);
}

void RuleViewBase::setMainForm(IMainForm *mainForm)
{
    m_frmMain = mainForm;
    m_tvwTree = mainForm ? mainForm->tree() : nullptr;
    m_lvwList = mainForm ? mainForm->list() : nullptr;
    if (m_tvwTree)
        m_tvwTree->setEventSink(this);
    if (m_lvwList)
        m_lvwList->setEventSink(this);
}

void RuleViewBase::Customise()
{
    guardedVoid("IViewController_Customise", module(), [this] {
        if (!m_frmMain)
            return;
        m_frmMain->setTreeTitle(m_shape.treeTitle);
        m_frmMain->setListTitle(m_shape.listTitle + QStringLiteral("[]"));
        if (!hasControls())
            return;
        SetupTreeview();
        SetupListview();
    });
}

void RuleViewBase::Populate()
{
    guardedVoid("IViewController_Populate", module(), [this] {
        if (!hasControls() || m_tvwTree->count() == 0)
            return;
        m_tvwTree->setSelectedItem(1);
        NodeClick(1);
        SetStatusBarText();
    });
}

void RuleViewBase::DeleteItems()
{
    guardedVoid("IViewController_DeleteItems", module(), [this] {
        if (!hasControls() || !m_rulebase)
            return;
        if (askYesNo(m_shape.deleteQuestion, MessageResult::No) != MessageResult::Yes)
            return;
        modViewCommon::DeleteRules(ruleLists(), *m_lvwList);
        RefreshView();
        SetDocumentationWindowText(m_tvwTree->selectedItem());
    });
}

void RuleViewBase::SetEnabledState()
{
    guardedVoid("IViewController_SetEnabledState", module(), [this] {
        if (!m_frmMain)
            return;
        for (const QString &tool : m_shape.newRuleTools)
            m_frmMain->setToolEnabled(tool, m_rulebase != nullptr);
        const bool rows = m_lvwList && m_lvwList->count() >= 1;
        for (const QString &tool : rowTools)
            m_frmMain->setToolEnabled(tool, rows);
    });
}

void RuleViewBase::ResizeView()
{
    ResizeListViewColumns();
}

void RuleViewBase::CloneItems()
{
    guardedVoid("IViewController_CloneItems", module(), [this] {
        if (!hasControls() || !m_rulebase)
            return;
        modViewCommon::CloneRules(
            ruleLists(), *m_lvwList, *m_rulebase->CategoryList(), *m_rulebase->SeverityList());
        RefreshView();
    });
}

int RuleViewBase::ItemsActiveState()
{
    return guarded("IViewController_ItemsActiveState", module(), 1, [this] {
        if (!m_lvwList || !m_rulebase)
            return 1;
        return modViewCommon::GetItemsActiveState(ViewRules(), *m_lvwList);
    });
}

void RuleViewBase::ActivateItems(bool active)
{
    guardedVoid("IViewController_ActivateItems", module(), [&] {
        if (!m_lvwList || !m_rulebase)
            return;
        modViewCommon::ActivateRules(active, ViewRules(), *m_lvwList);
        SetStatusBarText();
    });
}

void RuleViewBase::CategoryListChanged()
{
    guardedVoid("IViewController_CategoryListChanged", module(), [this] {
        if (!m_lvwList || !m_rulebase)
            return;
        modViewCommon::UpdateCategories(ViewRules(), *m_lvwList, 3, *m_rulebase->CategoryList());
    });
}

void RuleViewBase::SeverityListChanged()
{
    guardedVoid("IViewController_SeverityListChanged", module(), [this] {
        if (!m_lvwList || !m_rulebase)
            return;
        modViewCommon::UpdateSeverities(ViewRules(), *m_lvwList, *m_rulebase->SeverityList());
    });
}

void RuleViewBase::SetupListview()
{
    m_lvwList->clear();
    m_lvwList->setImageList(QStringLiteral("ilsSeverity"));
    m_lvwList->clearColumns();
    m_lvwList->addColumn(QStringLiteral("Rule"), ColumnAlignment::Left, 0);
    m_lvwList->addColumn(QStringLiteral("Title"), ColumnAlignment::Left, 0);
    m_lvwList->addColumn(QStringLiteral("Category"), ColumnAlignment::Left, 0);
    m_lvwList->addColumn(QStringLiteral("Impact"), ColumnAlignment::Right, 0);
    ResizeListViewColumns();
}

void RuleViewBase::ResizeListViewColumns()
{
    guardedVoid("ResizeListViewColumns", module(), [this] {
        if (!m_lvwList || !gobjAdminData)
            return;
        for (int i = 1; i <= std::min(ruleColumns, m_lvwList->columnCount()); ++i)
            m_lvwList->setColumnWidth(
                i, qRound(gobjAdminData->ListColWidthCC(i) * float(m_lvwList->width())));
    });
}

void RuleViewBase::SetStatusBarText()
{
    guardedVoid("SetStatusBarText", module(), [this] {
        if (!m_lvwList || !m_frmMain)
            return;
        const int rows = m_lvwList->count();
        // By colour, so the count always matches the red rows.
        int inactive = 0;
        for (int row = 1; row <= rows; ++row) {
            if (m_lvwList->foreColor(row) == modViewCommon::InactiveColour)
                ++inactive;
        }
        QString text = QString::number(rows)
                       + (rows == 1 ? QStringLiteral(" Item") : QStringLiteral(" Items"));
        if (inactive > 0)
            text += QStringLiteral(" (") + QString::number(inactive) + QStringLiteral(" Inactive)");
        m_frmMain->setStatusText(text);
    });
}

void RuleViewBase::SetDocumentationWindowText(int node)
{
    guardedVoid("SetDocumentationWindowText", module(), [&] {
        if (m_frmMain && m_tvwTree && node != 0)
            m_frmMain->setDocumentation(NodeDocumentation(node));
    });
}

void RuleViewBase::SetDocumentationWindowText(const IRule &rule)
{
    if (m_frmMain)
        m_frmMain->setDocumentation(QStringLiteral("Rule: ") + rule.Title() + crlf2
                                    + rule.Description());
}

void RuleViewBase::RefreshView()
{
    guardedVoid("RefreshView", module(), [this] {
        if (!hasControls())
            return;
        m_frmMain->setNoItemsVisible(m_lvwList->count() == 0);
        ResetAllNodes();
        SetEnabledState();
        SetStatusBarText();
    });
}

void RuleViewBase::ApplySort()
{
    guardedVoid("ApplySort", module(), [this] {
        const int column = SortColumnSetting();
        const int order = SortOrderSetting();
        m_lvwList->setSortKey(column);
        m_lvwList->setSortOrder(order);
        m_lvwList->setSorted(true);
        const int header = column + 1;
        m_lvwList->setColumnIcon(header,
                                 order == 1 ? QStringLiteral("SortDescending")
                                            : QStringLiteral("SortAscending"));
        // A header image loses the right alignment on some platforms.
        if (m_lvwList->columnAlignment(header) == ColumnAlignment::Right)
            m_lvwList->setColumnAlignment(header, ColumnAlignment::Right);
    });
}

void RuleViewBase::NodeClick(int node)
{
    guardedVoid("m_tvwTree_NodeClick", module(), [&] {
        if (!hasControls() || node == 0)
            return;
        m_frmMain->setListTitle(m_shape.listTitle + QStringLiteral(" [") + NodeName(node)
                                + QStringLiteral("]"));
        m_frmMain->setListHeaderImage(m_tvwTree->image(node));
        if (m_rulebase)
            PopulateList(NodeValue(node));
        ApplySort();
        SetDocumentationWindowText(node);
        if (m_lvwList->count() > 0)
            m_lvwList->setSelectedItem(1);
        SetStatusBarText();
        SetEnabledState();
    });
}

void RuleViewBase::Collapse(int node)
{
    if (m_tvwTree && node != 0 && node == m_tvwTree->selectedItem())
        NodeClick(node);
}

void RuleViewBase::ItemClick(int row)
{
    guardedVoid("m_lvwList_ItemClick", module(), [&] {
        if (m_lvwList && m_rulebase && row != 0)
            SetDocumentationWindowText(*ViewRules()(m_lvwList->key(row)));
    });
}

void RuleViewBase::ColumnClick(int column)
{
    guardedVoid("m_lvwList_ColumnClick", module(), [&] {
        if (m_lvwList)
            SaveSortSettings(column - 1, m_lvwList->sortOrder());
    });
}

void RuleViewBase::MouseMove(int x, int y)
{
    guardedVoid("m_lvwList_MouseMove", module(), [&] {
        if (!m_lvwList)
            return;
        const int row = m_lvwList->hitTest(x, y);
        if (row == 0)
            return;
        m_lvwList->setToolTipText(
            m_lvwList->foreColor(row) == modViewCommon::InactiveColour ? QStringLiteral(
                "This convention is not active and therefore will not be enforced.")
                                                                       : QString());
    });
}

::RuleLists &RuleViewBase::ruleLists() const
{
    return *m_rulebase->RuleLists();
}

qint32 RuleViewBase::NodeValue(int node) const
{
    return Text::valLong(m_tvwTree->key(node));
}

qint32 RuleViewBase::SelectedNodeValue() const
{
    const int node = m_tvwTree ? m_tvwTree->selectedItem() : 0;
    return node == 0 ? 0 : NodeValue(node);
}

QString RuleViewBase::NodeName(int node) const
{
    if (node == 1)
        return QStringLiteral("All Items");
    const QString text = m_tvwTree->text(node);
    const qsizetype bracket = text.indexOf(QLatin1Char('('));
    return Text::trimBlanks(bracket < 0 ? text : text.left(bracket));
}

QString RuleViewBase::WithCount(const QString &text, qint32 count)
{
    return count > 0 ? text + QStringLiteral(" (") + QString::number(count) + QStringLiteral(")")
                     : text;
}

void RuleViewBase::SetNodeCount(int node, const QString &text, qint32 count)
{
    m_tvwTree->setText(node, WithCount(text, count));
    m_tvwTree->setBold(node, count > 0);
}

void RuleViewBase::AddRow(const IRule &rule)
{
    modViewCommon::AddRuleToList(
        rule, *m_lvwList, *m_rulebase->CategoryList(), *m_rulebase->SeverityList());
}

void RuleViewBase::UpdateRow(const IRule &rule, int row)
{
    modViewCommon::UpdateRuleInList(
        rule, row, *m_lvwList, *m_rulebase->CategoryList(), *m_rulebase->SeverityList());
}

void RuleViewBase::RunOpenItem(const std::function<void()> &body)
{
    if (m_opening)
        return;
    m_opening = true;
    guardedVoid("IViewController_OpenItem", module(), [&] {
        if (hasControls() && m_rulebase && m_lvwList->selectedItem() != 0)
            body();
    });
    m_opening = false;
}

int RuleViewBase::SortColumnSetting() const
{
    if (!gobjAdminData)
        return 0;
    switch (m_shape.sort) {
    case SortSettings::Conventions:
        return gobjAdminData->ListCCSortCol();
    case SortSettings::Categories:
        return gobjAdminData->ListCVSortCol();
    case SortSettings::Severities:
        return gobjAdminData->ListSVSortCol();
    }
    return 0;
}

int RuleViewBase::SortOrderSetting() const
{
    if (!gobjAdminData)
        return 0;
    switch (m_shape.sort) {
    case SortSettings::Conventions:
        return gobjAdminData->ListCCSortOrder();
    case SortSettings::Categories:
        return gobjAdminData->ListCVSortOrder();
    case SortSettings::Severities:
        return gobjAdminData->ListSVSortOrder();
    }
    return 0;
}

void RuleViewBase::SaveSortSettings(int column, int order)
{
    if (!gobjAdminData)
        return;
    switch (m_shape.sort) {
    case SortSettings::Conventions:
        gobjAdminData->setListCCSortCol(column);
        gobjAdminData->setListCCSortOrder(order);
        break;
    case SortSettings::Categories:
        gobjAdminData->setListCVSortCol(column);
        gobjAdminData->setListCVSortOrder(order);
        break;
    case SortSettings::Severities:
        gobjAdminData->setListSVSortCol(column);
        gobjAdminData->setListSVSortOrder(order);
        break;
    }
}

QString RuleViewBase::EditSelectedRule()
{
    const QString key = m_lvwList->key(m_lvwList->selectedItem());
    const std::shared_ptr<IRule> rule = ruleLists().AllConventions()->Item(key);
    switch (rule->RuleType()) {
    case RuleTypes::CodingConvention:
    case RuleTypes::UnauthorisedKeyword:
    case RuleTypes::NamingConvention:
        break;
    default:
        return QString();
    }
    return IRuleEditorLauncher::current().EditRule(rule) ? key : QString();
}

QString RuleViewBase::OLEStartDrag()
{
    return guarded("m_lvwList_OLEStartDrag", module(), QString(), [this]() -> QString {
        if (!AllowsDrag() || !hasControls() || !m_rulebase)
            return QString();
        m_lCurrentEventID = SelectedNodeValue();
        // A drag needs a group to come from; the root is none.
        if (m_lCurrentEventID == 0)
            return QString();
        const QStringList keys = modViewCommon::SelectedItemKeys(*m_lvwList);
        if (keys.isEmpty())
            return QString();
        m_dragFormatRegistered = true;
        return DragDrop::payload(keys);
    });
}

void RuleViewBase::OLECompleteDrag()
{
    guardedVoid("m_lvwList_OLECompleteDrag", module(), [this] {
        if (m_tvwTree)
            m_tvwTree->setDropHighlight(0);
        m_dragNode = 0;
    });
}

bool RuleViewBase::IsDropTarget(qint32 value) const
{
    return value != 0 && value != m_lCurrentEventID;
}

int RuleViewBase::OLEDragOver(bool hasRuleData, int x, int y, int state)
{
    return guarded("m_tvwTree_OLEDragOver", module(), 0, [&]() -> int {
        if (state == DragDrop::StateLeave || !AllowsDrag() || !m_tvwTree)
            return DragDrop::EffectNone;
        if (!hasRuleData || !m_dragFormatRegistered)
            return DragDrop::EffectNone;

        const int node = m_tvwTree->hitTest(x, y);
        const int now = DragDrop::secondsSinceMidnight();
        int hover = 0;
        if (node != m_dragNode) {
            m_tvwTree->setDropHighlight(node);
            m_dragNode = node;
            m_dragNodeSince = now;
        } else {
            // Across midnight this goes negative and simply waits for the next node.
            hover = now - m_dragNodeSince;
        }
        if (node == 0)
            return DragDrop::EffectNone;
        const qint32 value = NodeValue(node);
        const int effect = value != 0 && value != m_lCurrentEventID ? DragDrop::EffectMove
                                                                    : DragDrop::EffectNone;
        if (hover < DragDrop::HoverSeconds)
            return effect;

        // Near an edge the tree scrolls one node per movement; elsewhere a closed node opens.
        bool scrolled = false;
        const int edge = m_tvwTree->edgeAt(y);
        if (edge < 0) {
            int up = m_tvwTree->previous(node);
            if (up == 0)
                up = m_tvwTree->parent(node);
            if (up != 0) {
                m_tvwTree->ensureVisible(up);
                scrolled = true;
            }
        } else if (edge > 0) {
            int down = m_tvwTree->next(node);
            if (down == 0)
                down = m_tvwTree->firstSibling(node);
            if (down != 0) {
                m_tvwTree->ensureVisible(down);
                scrolled = true;
            }
        }
        if (!scrolled && !m_tvwTree->expanded(node)) {
            m_tvwTree->setExpanded(node, true);
            m_tvwTree->ensureVisible(node);
        }
        return effect;
    });
}

int RuleViewBase::OLEDragDrop(const QString &data, int x, int y)
{
    return guarded("m_tvwTree_OLEDragDrop", module(), 0, [&]() -> int {
        if (!AllowsDrag() || !hasControls() || !m_rulebase || !m_dragFormatRegistered)
            return DragDrop::EffectNone;
        const int node = m_tvwTree->hitTest(x, y);
        if (node == 0)
            return DragDrop::EffectNone;
        const qint32 to = NodeValue(node);
        if (!IsDropTarget(to))
            return DragDrop::EffectNone;
        MoveDroppedRules(DragDrop::keyList(data), m_lCurrentEventID, to);
        NodeClick(m_tvwTree->selectedItem());
        return DragDrop::EffectMove;
    });
}
