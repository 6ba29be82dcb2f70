#pragma once

#include "controls/ListControl.h"
#include "controls/TreeControl.h"
#include "views/IViewController.h"
#include "views/modViewCommon.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class RuleLists;

// What the four views of rules share: a tree of groups, the common rule list, the titles, the
// status and documentation texts, the column settings, the rule tools' enable state, and the
// commands on the selected rows. A view borrows the window's tree and list from setMainForm on
// and receives their events; with a window that has none, it shows nothing and fails nothing.
class RuleViewBase : public IViewController,
                     protected TreeControlEvents,
                     protected ListControlEvents
{
public:
    ~RuleViewBase() override;

    void setRulebase(std::shared_ptr<Rulebase> rulebase) override;
    void setMainForm(IMainForm *mainForm) override;
    void Customise() override;
    void Populate() override;
    void DeleteItems() override;
    void SetEnabledState() override;
    void ResizeView() override;
    void CloneItems() override;
    int ItemsActiveState() override;
    void ActivateItems(bool active) override;
    void CategoryListChanged() override;
    void SeverityListChanged() override;

protected:
    // Which pair of sort settings the view keeps; the column fractions are shared by all.
    enum class SortSettings { Conventions, Categories, Severities };

    struct Shape
    {
        const char *module;
        QString treeTitle;
        QString listTitle; // followed by "[]" or " [node]"
        QString deleteQuestion;
        QStringList newRuleTools; // enabled while a rulebase is set
        QStringList releaseTools; // disabled when the view goes
        SortSettings sort;
    };

    explicit RuleViewBase(Shape shape);

    virtual void SetupTreeview() = 0;
    // Clears the rows and shows those of the node with this value.
    virtual void PopulateList(qint32 nodeValue) = 0;
    virtual void ResetAllNodes() = 0;
    virtual QString NodeDocumentation(int node) const = 0;
    // The rules of this view's list, by row key.
    virtual modViewCommon::RuleByKey ViewRules() const = 0;

    void SetupListview();
    void ResizeListViewColumns();
    void SetStatusBarText();
    void SetDocumentationWindowText(int node);
    void SetDocumentationWindowText(const IRule &rule);
    void RefreshView();
    // Applies the saved sort column and order to the list, with the header's image.
    void ApplySort();
    void NodeClick(int node) override;
    void Collapse(int node) override;
    void DblClick() override {}
    void ItemClick(int row) override;
    void ColumnClick(int column) override;
    void MouseMove(int x, int y) override;

    // Dragging rows onto nodes moves their rules to the node's group. The hover over the tree
    // highlights the node, opens it or scrolls at the edges after a while; the view's own rules
    // come from the three hooks below.
    QString OLEStartDrag() override;
    void OLECompleteDrag() override;
    int OLEDragOver(bool hasRuleData, int x, int y, int state) override;
    int OLEDragDrop(const QString &data, int x, int y) override;
    // Whether rows of this view may be dragged at all.
    virtual bool AllowsDrag() const { return false; }
    // Whether a node of this value takes the rules dragged from the source group.
    virtual bool IsDropTarget(qint32 value) const;
    // Moves the rules of the "|"-joined keys from one group to another.
    virtual void MoveDroppedRules(const QString & /*keys*/, qint32 /*from*/, qint32 /*to*/) {}

    bool hasControls() const { return m_tvwTree && m_lvwList; }
    ::RuleLists &ruleLists() const;
    // The numeric reading of a node's key; of the selected node 0 when none is selected.
    qint32 NodeValue(int node) const;
    qint32 SelectedNodeValue() const;
    // "All Items" for node 1, else the text before its count.
    QString NodeName(int node) const;
    // " (n)" appended when n is above 0.
    static QString WithCount(const QString &text, qint32 count);
    void SetNodeCount(int node, const QString &text, qint32 count);
    void AddRow(const IRule &rule);
    void UpdateRow(const IRule &rule, int row);
    // Runs the body of OpenItem unless an OpenItem is already running (a modal editor is up).
    void RunOpenItem(const std::function<void()> &body);
    // Opens the editor of the selected row's rule; gives the row's key when the edit was
    // confirmed, an empty key otherwise (or when the row is not a rule).
    QString EditSelectedRule();
    const char *module() const { return m_shape.module; }

    IMainForm *m_frmMain = nullptr;
    std::shared_ptr<::Rulebase> m_rulebase;
    TreeControl *m_tvwTree = nullptr;
    ListControl *m_lvwList = nullptr;
    // The group the current drag started from.
    qint32 m_lCurrentEventID = 0;

private:
    int SortColumnSetting() const;
    int SortOrderSetting() const;
    void SaveSortSettings(int column, int order);
    void SaveColumns();

    Shape m_shape;
    bool m_opening = false;
    // Set by the first drag this view starts: a drag it did not start finds no format.
    bool m_dragFormatRegistered = false;
    // The node the drag last hovered and when it got there.
    int m_dragNode = 0;
    int m_dragNodeSince = 0;
};
