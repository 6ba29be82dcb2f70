#include "views/GroupedConventionsView.h"

#include "platform/ErrorFrame.h"
#include "rulebase/IRule.h"
#include "rulebase/RuleLists.h"

GroupedConventionsView::GroupedConventionsView(const char *module,
                                               const QString &treeTitle,
                                               const QString &listTitle,
                                               SortSettings sort)
    : RuleViewBase(Shape{
        module,
        treeTitle,
        listTitle,
        QStringLiteral("This will permanently delete the selected convention(s) from the "
                       "rulebase, are you sure you wish to continue?"),
        {QStringLiteral("tlCodingConvention"),
         QStringLiteral("tlNamingConvention"),
         QStringLiteral("tlUnauthorisedKeyword")},
        {QStringLiteral("tlCloneRule"),
         QStringLiteral("tlCodingConvention"),
         QStringLiteral("tlNamingConvention"),
         QStringLiteral("tlUnauthorisedKeyword")},
        sort,
    })
{
}

modViewCommon::RuleByKey GroupedConventionsView::ViewRules() const
{
    return modViewCommon::rulesOf(ruleLists().AllConventions());
}

void GroupedConventionsView::PopulateList(qint32 group)
{
    m_lvwList->clear();
    const auto all = ruleLists().AllConventions();
    for (qint32 i = 1; i <= all->Count(); ++i) {
        const std::shared_ptr<IRule> rule = all->Item(i);
        if (group == 0 || GroupOf(*rule) == group)
            AddRow(*rule);
    }
    RefreshView();
}

qint32 GroupedConventionsView::CountInGroup(qint32 group) const
{
    // A scan per node: refreshing is quadratic in the rulebase, which its size allows.
    const auto all = ruleLists().AllConventions();
    qint32 count = 0;
    for (qint32 i = 1; i <= all->Count(); ++i) {
        if (GroupOf(*all->Item(i)) == group)
            ++count;
    }
    return count;
}

void GroupedConventionsView::AddItem(const std::shared_ptr<IRule> &item)
{
    guardedVoid("IViewController_AddItem", module(), [&] {
        if (!item || !hasControls() || !m_rulebase)
            return;
        const qint32 group = SelectedNodeValue();
        if (group == 0 || GroupOf(*item) == group)
            AddRow(*item);
        RefreshView();
    });
}

void GroupedConventionsView::OpenItem()
{
    RunOpenItem([this] {
        const QString key = EditSelectedRule();
        if (key.isEmpty())
            return;
        const std::shared_ptr<IRule> rule = ruleLists().AllConventions()->Item(key);
        // No index of RuleLists is kept up to date here: the event and object lists catch up
        // when the rulebase is read again.
        UpdateConvention(m_lvwList->find(key), *rule);
        SetDocumentationWindowText(*rule);
    });
}
