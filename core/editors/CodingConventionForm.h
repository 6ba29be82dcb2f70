#pragma once

#include "editors/CheckableTree.h"
#include "editors/ConventionForm.h"

class CodingConvention;

// "Coding Convention": the form model of one coding convention. A pending rule has one start
// and one end event, picked in two combos; any other rule a set of events, ticked in a tree.
class CodingConventionForm final : public ConventionForm<CodingConvention>
{
public:
    enum Tab { RuleTab = 1, EventTab = 2, ConditionTab = 3, ViolationTab = 4 };

    struct Screen : CommonScreen
    {
        // "Event"
        QString fraEvent;
        CheckableTree tvwEvent;
        bool tvwEventVisible = true;
        ChoiceList imgcboEvent;
        QString lblEventHelp;
        bool chkPending = false;
        // lblPending with imgcboPending, inside fraPendingViolation
        bool imgcboPendingEnabled = false;
        ChoiceList imgcboPending;
        // "Condition"
        QString txtCondition;
    };

    static const char *const caption;
    static const char *const conditionHelp;
    static const char *const pendingHelp;
    // cmdCollapse 0 to 2.
    static QString CollapseToolTip(int index);

    explicit CodingConventionForm(std::shared_ptr<CodingConvention> rule = {});

    Screen &screen() { return m_screen; }
    const Screen &screen() const { return m_screen; }
    CommonScreen &common() override { return m_screen; }
    const CommonScreen &common() const override { return m_screen; }

    // Then the event tab, as the loaded pending flag wants it.
    void Load() override;
    void DataToScreen() override;
    // Run after the author (or the load) set chkPending.
    void chkPending_Click();
    void InitialiseEventTab();
    // A click on a node or on a row of imgcboEvent: the event's help.
    void tvwEvent_NodeClick(int node);
    void imgcboEvent_Click();
    // 0 expand all, 1 select none, 2 collapse all.
    void cmdCollapse_Click(int index);
    void ExpandCollapseAll(bool expand);
    void SelectAllNodes(bool select);

    std::optional<FormFault> FirstFault() const override;
    void DataFromScreen() override;

    // What the condition editor is given.
    static constexpr qint32 conditionRuleType = 4;

private:
    void PopulateOwnLists() override;

    Screen m_screen;
};
