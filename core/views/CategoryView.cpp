#include "views/CategoryView.h"

#include "editors/IRuleEditorLauncher.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/IRule.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/ViolationDefinition.h"
#include "views/IMainForm.h"

namespace {
const QString rootKey = QStringLiteral("Category");
const QString unallocatedKey = QStringLiteral("-1K");

QString folderImage(const CategoryItem &category)
{
    return category.Hidden() ? QStringLiteral("HiddenFolder") : QStringLiteral("Folder");
}
} // namespace

CategoryView::CategoryView()
    : GroupedConventionsView("CategoryView",
                             QStringLiteral(" Conventions by Category"),
                             QStringLiteral(" Category"),
                             SortSettings::Categories)
{
}

qint32 CategoryView::GroupOf(const IRule &rule) const
{
    return rule.ViolationDefinition()->CategoryID();
}

void CategoryView::Populate()
{
    guardedVoid("IViewController_Populate", module(), [this] {
        // A new rulebase brings its own categories.
        if (hasControls())
            SetupTreeview();
    });
    RuleViewBase::Populate();
}

void CategoryView::SetupTreeview()
{
    m_tvwTree->clear();
    m_tvwTree->setImageList(QStringLiteral("ilsImages"));
    const int root = m_tvwTree->addChild(0, rootKey, rootKey, QStringLiteral("Category"));
    m_tvwTree->setExpanded(root, true);
    if (m_rulebase) {
        const CategoryList &categories = *m_rulebase->CategoryList();
        for (qint32 i = 1; i <= categories.Count(); ++i) {
            const std::shared_ptr<CategoryItem> category = categories.Item(i);
            m_tvwTree->addChild(root, category->Key(), category->Title(), folderImage(*category));
        }
    }
    m_tvwTree->addChild(
        root, unallocatedKey, QStringLiteral("Unallocated"), QStringLiteral("Unallocated"));
}

void CategoryView::ResetAllNodes()
{
    ResetCategoryNode();
    ResetUnallocatedNode();
    for (int node = 1; node < m_tvwTree->count(); ++node)
        ResetNode(m_tvwTree->key(node));
}

void CategoryView::ResetCategoryNode()
{
    const int node = m_tvwTree->find(rootKey);
    if (m_rulebase && node != 0)
        SetNodeCount(node, rootKey, ruleLists().AllConventions()->Count());
}

void CategoryView::ResetUnallocatedNode()
{
    ResetNode(unallocatedKey);
}

void CategoryView::ResetNode(const QString &key)
{
    if (Text::same(key, rootKey)) {
        ResetCategoryNode();
        return;
    }
    const int node = m_tvwTree->find(key);
    if (!m_rulebase || node == 0)
        return;
    const bool unallocated = Text::same(key, unallocatedKey);
    std::shared_ptr<CategoryItem> category;
    if (!unallocated)
        category = m_rulebase->CategoryList()->Item(key);
    SetNodeCount(node,
                 unallocated ? QStringLiteral("Unallocated") : category->Title(),
                 CountInGroup(Text::valLong(key)));
    if (category)
        m_tvwTree->setImage(node, folderImage(*category));
}

QString CategoryView::NodeDocumentation(int node) const
{
    const QString key = m_tvwTree->key(node);
    if (Text::same(key, rootKey))
        return QStringLiteral("Arrange conventions by category.");
    if (Text::same(key, unallocatedKey))
        return QStringLiteral(
            "Conventions which have not yet been allocated to a specific category.");
    const std::shared_ptr<CategoryItem> category = m_rulebase->CategoryList()->Item(key);
    const QString heading
        = category->Hidden() ? QStringLiteral("Category (Hidden): ") : QStringLiteral("Category: ");
    return heading + category->Title() + QStringLiteral("\r\n\r\n") + category->Description();
}

void CategoryView::CategoryListChanged()
{
    guardedVoid("IViewController_CategoryListChanged", module(), [this] {
        if (!hasControls())
            return;
        const int selected = m_tvwTree->selectedItem();
        const QString key = selected != 0 ? m_tvwTree->key(selected) : QString();
        SetupTreeview();
        // The node's category may have gone with the edit: fall back to the root.
        int node = key.isEmpty() ? 0 : m_tvwTree->find(key);
        if (node == 0)
            node = 1;
        m_tvwTree->setSelectedItem(node);
        NodeClick(node);
    });
}

void CategoryView::UpdateConvention(int row, const IRule &rule)
{
    const qint32 categoryID = rule.ViolationDefinition()->CategoryID();
    if (m_rulebase->CategoryList()->ContainsID(categoryID)
        && (categoryID == SelectedNodeValue() || m_tvwTree->selectedItem() == 1)) {
        UpdateRow(rule, row);
    } else {
        m_lvwList->remove(rule.RuleKey());
    }
    RefreshView();
}

void CategoryView::DblClick()
{
    guardedVoid("m_tvwTree_DblClick", module(), [this] {
        if (!hasControls() || !m_rulebase)
            return;
        const int node = m_tvwTree->selectedItem();
        // Neither the root nor the unallocated node stands for a category.
        if (node < 2 || node >= m_tvwTree->count())
            return;
        const QString key = m_tvwTree->key(node);
        const std::shared_ptr<CategoryItem> category = m_rulebase->CategoryList()->Item(key);
        if (!IRuleEditorLauncher::current().EditCategory(category))
            return;
        // The editor's setters leave the list clean; without this a close would not offer to save.
        m_rulebase->CategoryList()->setDirty(true);
        ResetNode(key);
        m_frmMain->setListTitle(QStringLiteral(" Category [") + category->Title()
                                + QStringLiteral("]"));
        for (int row = 1; row <= m_lvwList->count(); ++row)
            m_lvwList->setSubItemText(row, 2, category->Title());
        SetDocumentationWindowText(node);
    });
}

void CategoryView::MoveDroppedRules(const QString &keys, qint32 from, qint32 to)
{
    MoveConventions(keys, from, to);
}

void CategoryView::MoveConventions(const QString &keys, qint32 from, qint32 to)
{
    if (from == to)
        return;
    const auto all = ruleLists().AllConventions();
    for (const QString &key : keys.split(QLatin1Char('|'), Qt::SkipEmptyParts)) {
        all->Item(key)->ViolationDefinition()->setCategoryID(to);
        if (m_lvwList->find(key) != 0)
            m_lvwList->remove(key);
    }
    RefreshView();
}
