#include "editors/CodingConventionForm.h"

#include "platform/TextUtils.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/ViolationDefinition.h"
#include "vocabulary/ObjectTreeHelper.h"
#include "vocabulary/VBParserEvents.h"

const char *const CodingConventionForm::caption = "Coding Convention";
const char *const CodingConventionForm::conditionHelp
    = "Enter a condition appropriate to this coding convention. If the condition is met then the "
      "condition should raise the violation, cancel the pending violation or exit the rule.";
const char *const CodingConventionForm::pendingHelp
    = "Select the event in which the pending violation will be raised unless cancelled by the "
      "condition for this rule.";

QString CodingConventionForm::CollapseToolTip(int index)
{
    switch (index) {
    case 0:
        return QStringLiteral("Expand All");
    case 1:
        return QStringLiteral("Select None");
    default:
        return QStringLiteral("Collapse All");
    }
}

CodingConventionForm::CodingConventionForm(std::shared_ptr<CodingConvention> rule)
    : ConventionForm(std::move(rule))
{
}

void CodingConventionForm::Load()
{
    ConventionForm::Load();
    chkPending_Click();
}

void CodingConventionForm::PopulateOwnLists()
{
    VBParserEvents::PopulateCCEndEventsImageCombo(m_screen.imgcboPending);
    VBParserEvents::PopulateCCEventsImageCombo(m_screen.imgcboEvent);
}

void CodingConventionForm::DataToScreen()
{
    const CodingConvention &rule = *m_rule;
    RuleToScreen();
    m_screen.txtCondition = rule.Condition();
    m_screen.chkPending = rule.PendingViolation();
    ViolationToScreen(*rule.ViolationDefinition(), true);
}

void CodingConventionForm::chkPending_Click()
{
    if (m_screen.chkPending) {
        m_screen.imgcboPendingEnabled = true;
        if (!m_screen.imgcboPending.hasSelection())
            m_screen.imgcboPending.setCurrentIndex(0);
    } else {
        m_screen.imgcboPendingEnabled = false;
        m_screen.imgcboPending.setCurrentIndex(-1);
    }
    InitialiseEventTab();
}

void CodingConventionForm::InitialiseEventTab()
{
    const CodingConvention &rule = *m_rule;
    if (m_screen.chkPending) {
        m_screen.fraEvent
            = QStringLiteral("Select the parser event appropriate to this coding convention.");
        m_screen.tvwEventVisible = false;
        const qint32 event = rule.EventCount() == 1 ? rule.ParserEventID(0) : 1;
        m_screen.imgcboEvent.setCurrentIndex(
            m_screen.imgcboEvent.findKey(VBParserEvents::ParserEventKey(event)));
        imgcboEvent_Click();
        if (rule.EndEventID() != -1) {
            const int row
                = m_screen.imgcboPending.findKey(VBParserEvents::ParserEventKey(rule.EndEventID()));
            if (row >= 0)
                m_screen.imgcboPending.setCurrentIndex(row);
        }
        return;
    }

    // Rebuilt from the rule, so ticks of a moment ago are not what comes back.
    ObjectTreeHelper().PopulateCodingConventionsTree(m_screen.tvwEvent.beginFill(), true);
    m_screen.tvwEventVisible = true;
    m_screen.fraEvent
        = QStringLiteral("Select the parser event(s) appropriate to this coding convention.");
    CheckableTree &tree = m_screen.tvwEvent;
    int first = 0;
    for (int node : tree.nodesInOrder()) {
        if (rule.IsAssignedToEvent(tree.value(node))) {
            tree.setChecked(node, true);
            if (first == 0)
                first = node;
        }
    }
    if (first != 0) {
        // Made visible: its parents open.
        for (int parent = tree.tree().node(first).parent; parent != 0;
             parent = tree.tree().node(parent).parent)
            tree.setExpanded(parent, true);
    } else if (tree.count() > 0) {
        first = tree.nodesInOrder().front();
    }
    tvwEvent_NodeClick(first);
}

void CodingConventionForm::tvwEvent_NodeClick(int node)
{
    m_screen.tvwEvent.setSelected(node);
    if (node != 0)
        m_screen.lblEventHelp = VBParserEvents::ParserEventHelp(m_screen.tvwEvent.value(node));
}

void CodingConventionForm::imgcboEvent_Click()
{
    if (m_screen.imgcboEvent.hasSelection())
        m_screen.lblEventHelp
            = VBParserEvents::ParserEventHelp(Text::valLong(m_screen.imgcboEvent.currentKey()));
}

void CodingConventionForm::cmdCollapse_Click(int index)
{
    switch (index) {
    case 0:
        ExpandCollapseAll(true);
        break;
    case 1:
        SelectAllNodes(false);
        break;
    case 2:
        ExpandCollapseAll(false);
        break;
    default:
        break;
    }
}

void CodingConventionForm::ExpandCollapseAll(bool expand)
{
    for (int node = 1; node <= m_screen.tvwEvent.count(); ++node)
        m_screen.tvwEvent.setExpanded(node, expand);
}

void CodingConventionForm::SelectAllNodes(bool select)
{
    for (int node = 1; node <= m_screen.tvwEvent.count(); ++node)
        m_screen.tvwEvent.setChecked(node, select);
}

std::optional<FormFault> CodingConventionForm::FirstFault() const
{
    if (auto fault
        = TitleFault(RuleTab, QStringLiteral("Please enter a title for the coding convention.")))
        return fault;
    if (!m_screen.chkPending) {
        bool anyChecked = false;
        for (int node = 1; node <= m_screen.tvwEvent.count() && !anyChecked; ++node)
            anyChecked = m_screen.tvwEvent.isChecked(node);
        if (!anyChecked)
            return FormFault{
                EventTab,
                QStringLiteral("tvwEvent"),
                -1,
                QStringLiteral(
                    "Please assign the coding convention to at least one parser event.")};
    }
    if (auto fault = ConditionFault(ConditionTab, m_screen.txtCondition, conditionRuleType))
        return fault;
    return ViolationTitleFault(ViolationTab);
}

void CodingConventionForm::DataFromScreen()
{
    CodingConvention &rule = *m_rule;
    RuleFromScreen();
    rule.setCondition(m_screen.txtCondition);
    rule.RemoveParserEventID(-1);
    if (!m_screen.chkPending) {
        rule.setPendingViolation(false);
        rule.setEndEventID(-1);
        const CheckableTree &tree = m_screen.tvwEvent;
        for (int node : tree.nodesInOrder()) {
            if (tree.isChecked(node))
                rule.AddParserEventID(tree.value(node));
        }
    } else {
        rule.setPendingViolation(true);
        rule.AddParserEventID(Text::valLong(m_screen.imgcboEvent.currentKey()));
        rule.setEndEventID(Text::valLong(m_screen.imgcboPending.currentKey()));
    }
    ViolationFromScreen(*rule.ViolationDefinition(), true);
}
