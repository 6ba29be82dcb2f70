#pragma once

#include "editors/CheckableTree.h"

// "Parser Event Selection": the form model of the picker of one node of a rule tree, the
// parser events for a coding convention's condition, the objects for a naming convention's.
class ParserEventForm final
{
public:
    struct Screen
    {
        CheckableTree tvwEvent;
        QString txtDescription;
    };

    static const char *const caption;

    // 4 for coding conventions, 5 for naming conventions.
    void setRuleType(qint32 ruleType) { m_ruleType = ruleType; }
    qint32 RuleType() const { return m_ruleType; }
    bool Cancelled() const { return m_cancelled; }
    // The text of the selected node.
    QString ParserEvent() const;

    Screen &screen() { return m_screen; }
    const Screen &screen() const { return m_screen; }

    void Load();
    // The help of the node's number, for an object too: the one help table serves both.
    void tvwEvent_NodeClick(int node);
    // Collapses every node.
    void cmdCollapse_Click();
    // Refused with a warning while no node is selected; false keeps the dialog open.
    bool cmdOK_Click();
    void cmdCancel_Click() { m_cancelled = true; }

private:
    qint32 m_ruleType = 4;
    bool m_cancelled = true;
    Screen m_screen;
};
