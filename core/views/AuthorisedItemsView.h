#pragma once

#include "controls/ListControl.h"
#include "controls/TreeControl.h"
#include "views/IViewController.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class AuthorisedComponent;
struct AuthorisedItemChange;
class AuthorisedReference;

// The "Authority Items" view: three top-level nodes, the authorised components ("AC"), the
// authorised references ("AR") and the unauthorised keywords ("UK"), each with a list of its
// own shape. Only the keyword list holds rules. It is the one view that takes files dropped
// from the desktop: project files to import from, or ActiveX files to authorise.
class AuthorisedItemsView final : public IViewController,
                                  private TreeControlEvents,
                                  private ListControlEvents
{
public:
    AuthorisedItemsView();
    ~AuthorisedItemsView() override;

    void setRulebase(std::shared_ptr<Rulebase> rulebase) override;
    void setMainForm(IMainForm *mainForm) override;
    void Customise() override;
    void Populate() override;
    void DeleteItems() override;
    void OpenItem() override;
    void SetEnabledState() override;
    void ResizeView() override;
    void AddItem(const std::shared_ptr<IRule> &item) override;
    void CloneItems() override;
    int ItemsActiveState() override;
    void ActivateItems(bool active) override;
    void CategoryListChanged() override;
    void SeverityListChanged() override;

    // Imports from project files; without a list the import dialog asks for them.
    void AddAuthorisedItemsFromProject(const std::optional<QStringList> &fileList = std::nullopt);
    // OCX files become components, any other file a reference; files without a type library
    // are listed in a report the user may open.
    void AddAXComponentsFromFile(const QStringList &fileList);
    void NewAuthorisedComponent();
    void NewAuthorisedReference();
    void SetupTreeview();

    // Files from the desktop are taken only while a rulebase is set.
    bool AcceptsFileDrops() const { return m_rulebase != nullptr; }
    // Project files if any (the rest ignored), else ActiveX files, else a message.
    void FilesDropped(const QStringList &files);
    // The last three letters, upper-cased, found within "DLL|EXE|OCX|TLB|OLB".
    static bool IsComponentFile(const QString &filename);

    // The key of the node whose list is showing: "AC", "AR", "UK", or empty before the first.
    QString CurrentNodeKey() const { return m_sCurrentNodeKey; }

private:
    // TreeControlEvents
    void NodeClick(int node) override;
    void Collapse(int) override {}
    void DblClick() override {}
    // ListControlEvents
    void ItemClick(int row) override;
    void ColumnClick(int column) override;
    void MouseMove(int x, int y) override;

    void PopulateListWithComponents();
    void AddComponent(const AuthorisedComponent &item);
    void PopulateListWithReferences();
    void AddReference(const AuthorisedReference &item);
    void PopulateListWithKeywords();
    void SetupListViewColumns(const QString &key);
    void ResizeListViewColumns(const QString &key);
    void SaveListViewColumns(const QString &key);
    void OpenComponent(int row);
    void OpenReference(int row);
    void OpenKeyword(int row);
    void DeleteComponents();
    void DeleteReferences();
    void SetStatusBarText();
    void SetDocumentationWindowText(int row);
    void SetNodeDocumentationText(const QString &key);
    void ResetNode(const QString &key);

    void ApplySort(const QString &key);
    void SaveSortSettings(const QString &key, int column, int order);
    // The row of a LibID rewrites its versions, when its node is showing.
    void UpdateVersionsInRow(const QString &nodeKey, const QString &libID, const QString &versions);
    // Rows for what a merge into the rulebase changed.
    void ShowChanges(const std::vector<AuthorisedItemChange> &changes);
    void ResetItemNodes();
    bool hasControls() const { return m_tvwTree && m_lvwList; }
    bool keywordsShowing() const;

    IMainForm *m_frmMain = nullptr;
    std::shared_ptr<::Rulebase> m_rulebase;
    TreeControl *m_tvwTree = nullptr;
    ListControl *m_lvwList = nullptr;
    QString m_sCurrentNodeKey;
    bool m_opening = false;
};
