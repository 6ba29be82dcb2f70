#include "views/AuthorisedItemsView.h"

#include "editors/AddFromProject.h"
#include "editors/AuthorisedComponentForm.h"
#include "editors/AuthorisedReferenceForm.h"
#include "editors/IFormFactory.h"
#include "editors/IRuleEditorLauncher.h"
#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/QuorinData.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "platform/UserInterface.h"
#include "project/AuthorisedItemsMerger.h"
#include "project/modQuorinUtils.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryList.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "views/CommandTable.h"
#include "views/IMainForm.h"
#include "views/modViewCommon.h"

#include <QDate>
#include <QLocale>
#include <QSaveFile>

namespace {

constexpr const char *module = "AuthorisedItemsView";

const QString componentsKey = QStringLiteral("AC");
const QString referencesKey = QStringLiteral("AR");
const QString keywordsKey = QStringLiteral("UK");
const QString crlf = QStringLiteral("\r\n");
const QString allVersions = QStringLiteral("<All Versions>");
const QString title = QStringLiteral(" Authority Items");

// Positions in the image list "ilsImages".
constexpr int componentImage = 1;
constexpr int referenceImage = 2;

// Enabled while a rulebase is set, disabled when the view goes.
const QStringList itemTools
    = CommandTable::authorisedItemTools() + QStringList{QStringLiteral("tlUnauthorisedKeyword")};

QString versionsText(const QString &versionList)
{
    return versionList.isEmpty() ? allVersions : versionList;
}

QString nodeText(const QString &key)
{
    if (Text::same(key, componentsKey))
        return QStringLiteral("Authorised Components");
    if (Text::same(key, referencesKey))
        return QStringLiteral("Authorised References");
    return QStringLiteral("Unauthorised Keywords");
}

int columnCountOf(const QString &key)
{
    return Text::same(key, componentsKey) ? 3 : 4;
}

} // namespace

AuthorisedItemsView::AuthorisedItemsView() = default;

AuthorisedItemsView::~AuthorisedItemsView()
{
    guardedVoid("Class_Terminate", module, [this] {
        if (m_tvwTree)
            m_tvwTree->setEventSink(nullptr);
        if (m_lvwList) {
            m_lvwList->setEventSink(nullptr);
            if (m_lvwList->columnCount() > 0) {
                SaveListViewColumns(m_sCurrentNodeKey);
                SaveSortSettings(m_sCurrentNodeKey, m_lvwList->sortKey(), m_lvwList->sortOrder());
            }
        }
        if (m_frmMain) {
            m_frmMain->setTreeTitle(QString());
            m_frmMain->setListTitle(QString());
            for (const QString &tool : itemTools)
                m_frmMain->setToolEnabled(tool, false);
        }
    });
}

void AuthorisedItemsView::setRulebase(std::shared_ptr<::Rulebase> rulebase)
{
    m_rulebase = std::move(rulebase);
}

void AuthorisedItemsView::setMainForm(IMainForm *mainForm)
{
    m_frmMain = mainForm;
    m_tvwTree = mainForm ? mainForm->tree() : nullptr;
    m_lvwList = mainForm ? mainForm->list() : nullptr;
    if (m_tvwTree)
        m_tvwTree->setEventSink(this);
    if (m_lvwList)
        m_lvwList->setEventSink(this);
}

void AuthorisedItemsView::Customise()
{
    guardedVoid("IViewController_Customise", module, [this] {
        if (!m_frmMain)
            return;
        m_frmMain->setTreeTitle(title);
        m_frmMain->setListTitle(title + QStringLiteral("[]"));
        if (!hasControls())
            return;
        SetupTreeview();
        m_lvwList->setImageList(QStringLiteral("ilsImages"));
    });
}

void AuthorisedItemsView::SetupTreeview()
{
    guardedVoid("SetupTreeview", module, [this] {
        if (!m_tvwTree)
            return;
        m_tvwTree->clear();
        m_tvwTree->setImageList(QStringLiteral("ilsImages"));
        m_tvwTree->addChild(0, componentsKey, nodeText(componentsKey), QStringLiteral("Component"));
        m_tvwTree->addChild(0, referencesKey, nodeText(referencesKey), QStringLiteral("Reference"));
        m_tvwTree->addChild(0, keywordsKey, nodeText(keywordsKey), QStringLiteral("Keyword"));
        ResetItemNodes();
    });
}

void AuthorisedItemsView::Populate()
{
    guardedVoid("IViewController_Populate", module, [this] {
        if (!hasControls() || m_tvwTree->count() == 0)
            return;
        // A new rulebase keeps the tree, so its counts are brought up to date here.
        ResetItemNodes();
        m_tvwTree->setSelectedItem(1);
        NodeClick(1);
        SetStatusBarText();
    });
}

void AuthorisedItemsView::ResetItemNodes()
{
    ResetNode(componentsKey);
    ResetNode(referencesKey);
    ResetNode(keywordsKey);
}

void AuthorisedItemsView::ResetNode(const QString &key)
{
    guardedVoid("ResetNode", module, [&] {
        const int node = m_tvwTree ? m_tvwTree->find(key) : 0;
        if (node == 0)
            return;
        qint32 count = 0;
        if (m_rulebase) {
            if (Text::same(key, componentsKey))
                count = m_rulebase->AuthorisedComponents()->Count();
            else if (Text::same(key, referencesKey))
                count = m_rulebase->AuthorisedReferences()->Count();
            else
                count = m_rulebase->RuleLists()->UnauthorisedKeywords()->Count();
        }
        QString text = nodeText(key);
        if (count > 0)
            text += QStringLiteral(" (") + QString::number(count) + QStringLiteral(")");
        m_tvwTree->setText(node, text);
        m_tvwTree->setBold(node, count > 0);
    });
}

void AuthorisedItemsView::NodeClick(int node)
{
    guardedVoid("m_tvwTree_NodeClick", module, [&] {
        if (!hasControls() || node == 0)
            return;
        if (m_lvwList->columnCount() > 0)
            SaveListViewColumns(m_sCurrentNodeKey);
        m_sCurrentNodeKey = m_tvwTree->key(node);
        SetupListViewColumns(m_sCurrentNodeKey);

        const QString text = m_tvwTree->text(node);
        const qsizetype bracket = text.indexOf(QLatin1Char('('));
        m_frmMain->setListTitle(title + QStringLiteral(" [")
                                + Text::trimBlanks(bracket < 0 ? text : text.left(bracket))
                                + QStringLiteral("]"));

        m_lvwList->clear();
        if (m_rulebase) {
            if (keywordsShowing()) {
                m_lvwList->setImageList(QStringLiteral("ilsSeverity"));
                PopulateListWithKeywords();
            } else if (Text::same(m_sCurrentNodeKey, componentsKey)) {
                m_lvwList->setImageList(QStringLiteral("ilsImages"));
                PopulateListWithComponents();
            } else {
                m_lvwList->setImageList(QStringLiteral("ilsImages"));
                PopulateListWithReferences();
            }
            ApplySort(m_sCurrentNodeKey);
        }

        SetNodeDocumentationText(m_sCurrentNodeKey);
        if (m_lvwList->count() > 0)
            m_lvwList->setSelectedItem(1);
        m_frmMain->setListHeaderImage(m_tvwTree->image(node));
        SetStatusBarText();
        SetEnabledState();
    });
}

void AuthorisedItemsView::PopulateListWithComponents()
{
    const AuthorisedComponents &components = *m_rulebase->AuthorisedComponents();
    for (qint32 i = 1; i <= components.Count(); ++i)
        AddComponent(*components.Item(i));
}

void AuthorisedItemsView::AddComponent(const AuthorisedComponent &item)
{
    if (!m_lvwList || !Text::same(m_sCurrentNodeKey, componentsKey))
        return;
    const int row = m_lvwList->add(item.LibID(), item.Filename(), componentImage);
    m_lvwList->setSubItemText(row, 1, versionsText(item.VersionList()));
    m_lvwList->setSubItemText(row, 2, item.LibID());
    m_lvwList->setSelected(row, false);
}

void AuthorisedItemsView::PopulateListWithReferences()
{
    const AuthorisedReferences &references = *m_rulebase->AuthorisedReferences();
    for (qint32 i = 1; i <= references.Count(); ++i)
        AddReference(*references.Item(i));
}

void AuthorisedItemsView::AddReference(const AuthorisedReference &item)
{
    if (!m_lvwList || !Text::same(m_sCurrentNodeKey, referencesKey))
        return;
    const int row = m_lvwList->add(item.LibID(), item.Description(), referenceImage);
    m_lvwList->setSubItemText(row, 1, versionsText(item.VersionList()));
    m_lvwList->setSubItemText(row, 2, item.Filename());
    m_lvwList->setSubItemText(row, 3, item.LibID());
    m_lvwList->setSelected(row, false);
}

void AuthorisedItemsView::PopulateListWithKeywords()
{
    const auto keywords = m_rulebase->RuleLists()->UnauthorisedKeywords();
    for (qint32 i = 1; i <= keywords->Count(); ++i)
        modViewCommon::AddRuleToList(*keywords->Item(i),
                                     *m_lvwList,
                                     *m_rulebase->CategoryList(),
                                     *m_rulebase->SeverityList());
}

void AuthorisedItemsView::SetupListViewColumns(const QString &key)
{
    m_lvwList->clearColumns();
    if (Text::same(key, componentsKey)) {
        m_lvwList->addColumn(QStringLiteral("Component"), ColumnAlignment::Left, 0);
        m_lvwList->addColumn(QStringLiteral("Version(s)"), ColumnAlignment::Left, 0);
        m_lvwList->addColumn(QStringLiteral("GUID"), ColumnAlignment::Left, 0);
    } else if (Text::same(key, referencesKey)) {
        m_lvwList->addColumn(QStringLiteral("Reference"), ColumnAlignment::Left, 0);
        m_lvwList->addColumn(QStringLiteral("Version(s)"), ColumnAlignment::Left, 0);
        m_lvwList->addColumn(QStringLiteral("Filename"), ColumnAlignment::Left, 0);
        m_lvwList->addColumn(QStringLiteral("GUID"), ColumnAlignment::Left, 0);
    } else {
        m_lvwList->addColumn(QStringLiteral("Rule"), ColumnAlignment::Left, 0);
        m_lvwList->addColumn(QStringLiteral("Title"), ColumnAlignment::Left, 0);
        m_lvwList->addColumn(QStringLiteral("Category"), ColumnAlignment::Left, 0);
        m_lvwList->addColumn(QStringLiteral("Impact"), ColumnAlignment::Right, 0);
    }
    ResizeListViewColumns(key);
}

void AuthorisedItemsView::ResizeListViewColumns(const QString &key)
{
    guardedVoid("ResizeListViewColumns", module, [&] {
        if (!m_lvwList || !gobjAdminData)
            return;
        const int columns = std::min(columnCountOf(key), m_lvwList->columnCount());
        for (int i = 1; i <= columns; ++i) {
            float fraction = 0;
            if (Text::same(key, componentsKey))
                fraction = gobjAdminData->ListColWidthAC(i);
            else if (Text::same(key, referencesKey))
                fraction = gobjAdminData->ListColWidthAR(i);
            else
                fraction = gobjAdminData->ListColWidthUK(i);
            m_lvwList->setColumnWidth(i, qRound(fraction * float(m_lvwList->width())));
        }
    });
}

void AuthorisedItemsView::SaveListViewColumns(const QString &key)
{
    guardedVoid("SaveListViewColumns", module, [&] {
        // The keyword list's fractions stay at their defaults: they are read, never written.
        if (!m_lvwList || !gobjAdminData || m_lvwList->width() <= 0)
            return;
        const bool components = Text::same(key, componentsKey);
        if (!components && !Text::same(key, referencesKey))
            return;
        const int columns = std::min(columnCountOf(key), m_lvwList->columnCount());
        for (int i = 1; i <= columns; ++i) {
            const float fraction = float(m_lvwList->columnWidth(i)) / float(m_lvwList->width());
            if (components)
                gobjAdminData->setListColWidthAC(i, fraction);
            else
                gobjAdminData->setListColWidthAR(i, fraction);
        }
    });
}

void AuthorisedItemsView::ApplySort(const QString &key)
{
    int column = 0;
    int order = 0;
    if (gobjAdminData) {
        if (Text::same(key, componentsKey)) {
            column = gobjAdminData->ListACSortCol();
            order = gobjAdminData->ListACSortOrder();
        } else if (Text::same(key, referencesKey)) {
            column = gobjAdminData->ListARSortCol();
            order = gobjAdminData->ListARSortOrder();
        } else {
            column = gobjAdminData->ListUKSortCol();
            order = gobjAdminData->ListUKSortOrder();
        }
    }
    // A setting from a wider list falls back to the first column.
    if (column < 0 || column >= m_lvwList->columnCount())
        column = 0;
    m_lvwList->setSortKey(column);
    m_lvwList->setSortOrder(order);
    m_lvwList->setSorted(true);
    const int header = column + 1;
    m_lvwList->setColumnIcon(
        header, order == 1 ? QStringLiteral("SortDescending") : QStringLiteral("SortAscending"));
    // A header image loses the right alignment on some platforms.
    if (m_lvwList->columnAlignment(header) == ColumnAlignment::Right)
        m_lvwList->setColumnAlignment(header, ColumnAlignment::Right);
}

void AuthorisedItemsView::SaveSortSettings(const QString &key, int column, int order)
{
    if (!gobjAdminData)
        return;
    if (Text::same(key, componentsKey)) {
        gobjAdminData->setListACSortCol(column);
        gobjAdminData->setListACSortOrder(order);
    } else if (Text::same(key, referencesKey)) {
        gobjAdminData->setListARSortCol(column);
        gobjAdminData->setListARSortOrder(order);
    } else if (Text::same(key, keywordsKey)) {
        gobjAdminData->setListUKSortCol(column);
        gobjAdminData->setListUKSortOrder(order);
    }
}

void AuthorisedItemsView::ColumnClick(int column)
{
    guardedVoid("m_lvwList_ColumnClick", module, [&] {
        if (m_lvwList)
            SaveSortSettings(m_sCurrentNodeKey, column - 1, m_lvwList->sortOrder());
    });
}

bool AuthorisedItemsView::keywordsShowing() const
{
    return Text::same(m_sCurrentNodeKey, keywordsKey);
}

void AuthorisedItemsView::SetEnabledState()
{
    guardedVoid("IViewController_SetEnabledState", module, [this] {
        if (!m_frmMain)
            return;
        for (const QString &tool : itemTools)
            m_frmMain->setToolEnabled(tool, m_rulebase != nullptr);
        const bool rows = m_lvwList && m_lvwList->count() >= 1;
        m_frmMain->setToolEnabled(QStringLiteral("tlDeleteRule"), rows);
        m_frmMain->setToolEnabled(QStringLiteral("tlOpenRule"), rows);
        const bool ruleRows = rows && keywordsShowing();
        m_frmMain->setToolEnabled(QStringLiteral("tlCloneRule"), ruleRows);
        m_frmMain->setToolEnabled(QStringLiteral("tlRuleActive"), ruleRows);
        m_frmMain->setToolEnabled(QStringLiteral("tlRuleInactive"), ruleRows);
        m_frmMain->setNoItemsVisible(!rows);
    });
}

void AuthorisedItemsView::SetStatusBarText()
{
    guardedVoid("SetStatusBarText", module, [this] {
        if (!m_frmMain || !m_rulebase || m_sCurrentNodeKey.isEmpty())
            return;
        // The collection's count, not the rows'.
        qint32 count = 0;
        if (Text::same(m_sCurrentNodeKey, componentsKey))
            count = m_rulebase->AuthorisedComponents()->Count();
        else if (Text::same(m_sCurrentNodeKey, referencesKey))
            count = m_rulebase->AuthorisedReferences()->Count();
        else
            count = m_rulebase->RuleLists()->UnauthorisedKeywords()->Count();
        QString text = QString::number(count)
                       + (count == 1 ? QStringLiteral(" Item") : QStringLiteral(" Items"));
        if (keywordsShowing() && m_lvwList) {
            // By colour, so the count always matches the red rows.
            int inactive = 0;
            for (int row = 1; row <= m_lvwList->count(); ++row) {
                if (m_lvwList->foreColor(row) == modViewCommon::InactiveColour)
                    ++inactive;
            }
            if (inactive > 0)
                text += QStringLiteral(" (") + QString::number(inactive)
                        + QStringLiteral(" Inactive)");
        }
        m_frmMain->setStatusText(text);
    });
}

void AuthorisedItemsView::SetDocumentationWindowText(int row)
{
    guardedVoid("SetDocumentationWindowText", module, [&] {
        if (!m_frmMain || !m_lvwList || !m_rulebase || row == 0)
            return;
        const QString key = m_lvwList->key(row);
        if (Text::same(m_sCurrentNodeKey, componentsKey))
            m_frmMain->setDocumentation(QStringLiteral("Authorised Component:") + crlf
                                        + m_rulebase->AuthorisedComponents()->Item(key)->Advice());
        else if (Text::same(m_sCurrentNodeKey, referencesKey))
            m_frmMain->setDocumentation(QStringLiteral("Authorised Reference:") + crlf
                                        + m_rulebase->AuthorisedReferences()->Item(key)->Advice());
        else if (keywordsShowing())
            m_frmMain->setDocumentation(
                m_rulebase->RuleLists()->UnauthorisedKeywords()->Item(key)->Description());
    });
}

void AuthorisedItemsView::SetNodeDocumentationText(const QString &key)
{
    if (!m_frmMain)
        return;
    if (Text::same(key, componentsKey))
        m_frmMain->setDocumentation(QStringLiteral(
            "Add one or more ActiveX components which are authorised for use by projects."));
    else if (Text::same(key, referencesKey))
        m_frmMain->setDocumentation(QStringLiteral(
            "Add one or more ActiveX references which are authorised for use by projects."));
    else if (Text::same(key, keywordsKey))
        m_frmMain->setDocumentation(QStringLiteral(
            "Add one or more keywords which are not authorised for use by projects."));
}

void AuthorisedItemsView::ItemClick(int row)
{
    SetDocumentationWindowText(row);
}

void AuthorisedItemsView::MouseMove(int x, int y)
{
    guardedVoid("m_lvwList_MouseMove", module, [&] {
        if (!m_lvwList)
            return;
        const int row = keywordsShowing() ? m_lvwList->hitTest(x, y) : 0;
        const bool inactive
            = row != 0 && m_lvwList->foreColor(row) == modViewCommon::InactiveColour;
        m_lvwList->setToolTipText(inactive
                                      ? QStringLiteral("The rule for this unauthorised keyword "
                                                       "is not active and therefore will not "
                                                       "be enforced.")
                                      : QString());
    });
}

void AuthorisedItemsView::DeleteItems()
{
    guardedVoid("IViewController_DeleteItems", module, [this] {
        if (!hasControls() || !m_rulebase || m_lvwList->selectedItem() == 0)
            return;
        if (askYesNo(QStringLiteral("Are you sure you wish to delete the selected item(s)?"),
                     MessageResult::No)
            != MessageResult::Yes)
            return;
        const QString key = m_sCurrentNodeKey;
        if (Text::same(key, componentsKey))
            DeleteComponents();
        else if (Text::same(key, referencesKey))
            DeleteReferences();
        else
            modViewCommon::DeleteRules(*m_rulebase->RuleLists(), *m_lvwList);
        ResetNode(key);
        SetNodeDocumentationText(key);
        SetEnabledState();
        SetStatusBarText();
    });
}

void AuthorisedItemsView::DeleteComponents()
{
    AuthorisedComponents &components = *m_rulebase->AuthorisedComponents();
    QStringList rows;
    for (int row = 1; row <= m_lvwList->count(); ++row) {
        if (!m_lvwList->selected(row))
            continue;
        components.RemoveByLibID(m_lvwList->subItemText(row, 2));
        rows << m_lvwList->key(row);
    }
    // Rows go only after the walk, which they would otherwise disturb.
    for (const QString &key : std::as_const(rows))
        m_lvwList->remove(key);
}

void AuthorisedItemsView::DeleteReferences()
{
    AuthorisedReferences &references = *m_rulebase->AuthorisedReferences();
    QStringList rows;
    for (int row = 1; row <= m_lvwList->count(); ++row) {
        if (!m_lvwList->selected(row))
            continue;
        references.RemoveByLibID(m_lvwList->key(row));
        rows << m_lvwList->key(row);
    }
    for (const QString &key : std::as_const(rows))
        m_lvwList->remove(key);
}

void AuthorisedItemsView::OpenItem()
{
    // A double click and a menu command may both arrive while a dialog is up.
    if (m_opening)
        return;
    m_opening = true;
    guardedVoid("IViewController_OpenItem", module, [this] {
        if (!hasControls() || !m_rulebase)
            return;
        const int row = m_lvwList->selectedItem();
        if (row == 0)
            return;
        if (Text::same(m_sCurrentNodeKey, componentsKey))
            OpenComponent(row);
        else if (Text::same(m_sCurrentNodeKey, referencesKey))
            OpenReference(row);
        else if (keywordsShowing())
            OpenKeyword(row);
    });
    m_opening = false;
}

void AuthorisedItemsView::OpenComponent(int row)
{
    AuthorisedComponents &components = *m_rulebase->AuthorisedComponents();
    const std::shared_ptr<AuthorisedComponent> item = components.Item(m_lvwList->key(row));
    AuthorisedComponentForm form(item);
    IFormFactory::current().runAuthorisedComponent(form);
    if (form.Cancelled())
        return;
    // The item has no flag of its own; the list's tells the rulebase that it changed.
    components.setDirty(true);
    m_lvwList->setText(row, item->Filename());
    m_lvwList->setSubItemText(row, 1, versionsText(item->VersionList()));
    m_lvwList->setSubItemText(row, 2, item->LibID());
    SetDocumentationWindowText(row);
}

void AuthorisedItemsView::OpenReference(int row)
{
    AuthorisedReferences &references = *m_rulebase->AuthorisedReferences();
    const std::shared_ptr<AuthorisedReference> item = references.Item(m_lvwList->key(row));
    AuthorisedReferenceForm form(item);
    IFormFactory::current().runAuthorisedReference(form);
    if (form.Cancelled())
        return;
    references.setDirty(true);
    m_lvwList->setText(row, item->Description());
    m_lvwList->setSubItemText(row, 1, versionsText(item->VersionList()));
    m_lvwList->setSubItemText(row, 2, item->Filename());
    m_lvwList->setSubItemText(row, 3, item->LibID());
    SetDocumentationWindowText(row);
}

void AuthorisedItemsView::OpenKeyword(int row)
{
    RuleLists &ruleLists = *m_rulebase->RuleLists();
    const std::shared_ptr<UnauthorisedKeyword> keyword
        = ruleLists.UnauthorisedKeywords()->Item(m_lvwList->key(row));
    const QString events = keyword->ParserEventList();
    if (!IRuleEditorLauncher::current().EditRule(keyword))
        return;
    if (!Text::same(keyword->ParserEventList(), events)) {
        // Out of every event list, then back in under its new events.
        ruleLists.RemoveRuleFromAllPEUKLists(keyword->RuleID(), events);
        ruleLists.AddConvention(keyword, false);
    }
    modViewCommon::UpdateRuleInList(
        *keyword, row, *m_lvwList, *m_rulebase->CategoryList(), *m_rulebase->SeverityList());
    SetDocumentationWindowText(row);
}

void AuthorisedItemsView::ResizeView()
{
    guardedVoid("IViewController_ResizeView", module, [this] {
        const int node = m_tvwTree ? m_tvwTree->selectedItem() : 0;
        if (node != 0)
            ResizeListViewColumns(m_tvwTree->key(node));
    });
}

void AuthorisedItemsView::AddItem(const std::shared_ptr<IRule> &item)
{
    guardedVoid("IViewController_AddItem", module, [&] {
        // On the other nodes the keyword is stored and shows in the count of the next reset.
        if (!item || !hasControls() || !m_rulebase || !keywordsShowing())
            return;
        if (dynamic_cast<const UnauthorisedKeyword *>(item.get())) {
            modViewCommon::AddRuleToList(
                *item, *m_lvwList, *m_rulebase->CategoryList(), *m_rulebase->SeverityList());
            ResetNode(keywordsKey);
        }
        m_frmMain->setNoItemsVisible(m_lvwList->count() == 0);
    });
}

void AuthorisedItemsView::CloneItems()
{
    guardedVoid("IViewController_CloneItems", module, [this] {
        if (!hasControls() || !m_rulebase || !keywordsShowing())
            return;
        modViewCommon::CloneRules(*m_rulebase->RuleLists(),
                                  *m_lvwList,
                                  *m_rulebase->CategoryList(),
                                  *m_rulebase->SeverityList());
        ResetNode(keywordsKey);
        SetStatusBarText();
    });
}

int AuthorisedItemsView::ItemsActiveState()
{
    return guarded("IViewController_ItemsActiveState", module, 4, [this] {
        if (!m_lvwList || !m_rulebase || !keywordsShowing())
            return 4;
        return modViewCommon::GetItemsActiveState(
            modViewCommon::rulesOf(m_rulebase->RuleLists()->UnauthorisedKeywords()), *m_lvwList);
    });
}

void AuthorisedItemsView::ActivateItems(bool active)
{
    guardedVoid("IViewController_ActivateItems", module, [&] {
        if (!m_lvwList || !m_rulebase || !keywordsShowing())
            return;
        modViewCommon::ActivateRules(
            active,
            modViewCommon::rulesOf(m_rulebase->RuleLists()->UnauthorisedKeywords()),
            *m_lvwList);
        SetStatusBarText();
    });
}

void AuthorisedItemsView::CategoryListChanged()
{
    guardedVoid("IViewController_CategoryListChanged", module, [this] {
        if (!m_lvwList || !m_rulebase || !keywordsShowing())
            return;
        modViewCommon::UpdateCategories(
            modViewCommon::rulesOf(m_rulebase->RuleLists()->UnauthorisedKeywords()),
            *m_lvwList,
            3,
            *m_rulebase->CategoryList());
    });
}

void AuthorisedItemsView::SeverityListChanged()
{
    guardedVoid("IViewController_SeverityListChanged", module, [this] {
        if (!m_lvwList || !m_rulebase || !keywordsShowing())
            return;
        modViewCommon::UpdateSeverities(
            modViewCommon::rulesOf(m_rulebase->RuleLists()->UnauthorisedKeywords()),
            *m_lvwList,
            *m_rulebase->SeverityList());
    });
}

void AuthorisedItemsView::UpdateVersionsInRow(const QString &nodeKey,
                                              const QString &libID,
                                              const QString &versions)
{
    if (!m_lvwList || !Text::same(m_sCurrentNodeKey, nodeKey))
        return;
    const int row = m_lvwList->find(libID);
    if (row != 0)
        m_lvwList->setSubItemText(row, 1, versionsText(versions));
}

void AuthorisedItemsView::ShowChanges(const std::vector<AuthorisedItemChange> &changes)
{
    for (const AuthorisedItemChange &change : changes) {
        const bool component = change.kind == AuthorisedItemChange::Kind::Component;
        if (change.added && component)
            AddComponent(*change.component);
        else if (change.added)
            AddReference(*change.reference);
        else
            UpdateVersionsInRow(
                component ? componentsKey : referencesKey, change.libID(), change.versionList());
    }
}

void AuthorisedItemsView::NewAuthorisedComponent()
{
    guardedVoid("NewAuthorisedComponent", module, [this] {
        if (!m_rulebase)
            return;
        auto item = std::make_shared<::AuthorisedComponent>();
        AuthorisedComponentForm form(item);
        IFormFactory::current().runAuthorisedComponent(form);
        if (form.Cancelled())
            return;
        if (!m_rulebase->AuthorisedComponents()->AddComponent(item)) {
            showWarning(QStringLiteral("The component was not added: the type library GUID '")
                        + item->LibID() + QStringLiteral("' is authorised already."));
            return;
        }
        AddComponent(*item);
        ResetNode(componentsKey);
        SetEnabledState();
        SetStatusBarText();
    });
}

void AuthorisedItemsView::NewAuthorisedReference()
{
    guardedVoid("NewAuthorisedReference", module, [this] {
        if (!m_rulebase)
            return;
        auto item = std::make_shared<::AuthorisedReference>();
        AuthorisedReferenceForm form(item);
        IFormFactory::current().runAuthorisedReference(form);
        if (form.Cancelled())
            return;
        if (!m_rulebase->AuthorisedReferences()->AddReference(item)) {
            showWarning(QStringLiteral("The reference was not added: the type library GUID '")
                        + item->LibID() + QStringLiteral("' is authorised already."));
            return;
        }
        AddReference(*item);
        ResetNode(referencesKey);
        SetEnabledState();
        SetStatusBarText();
    });
}

void AuthorisedItemsView::AddAuthorisedItemsFromProject(const std::optional<QStringList> &fileList)
{
    guardedVoid("AddAuthorisedItemsFromProject", module, [&] {
        if (!m_rulebase)
            return;
        AddFromProject importer;
        if (fileList)
            importer.ParseFileList(fileList, m_rulebase);
        else
            importer.ShowDialog(m_rulebase);
        if (importer.Cancelled())
            return;

        AuthorisedItemsMerger merger(*m_rulebase);
        merger.MergeSelected(*importer.ComponentList(), *importer.ReferenceList());
        ShowChanges(merger.Changes());

        ResetNode(componentsKey);
        ResetNode(referencesKey);
        SetEnabledState();
        SetStatusBarText();
    });
}

void AuthorisedItemsView::AddAXComponentsFromFile(const QStringList &fileList)
{
    guardedVoid("AddAXComponentsFromFile", module, [&] {
        if (!m_rulebase)
            return;
        AuthorisedItemsMerger merger(*m_rulebase);
        int notActiveX = 0;
        QString report;
        for (const QString &filename : fileList) {
            // A control without a library is passed over without a word.
            if (merger.MergeActiveXFile(filename) == ActiveXFileResult::NotActiveX) {
                ++notActiveX;
                report += crlf + filename;
            }
        }
        ShowChanges(merger.Changes());

        if (notActiveX > 0) {
            const bool one = notActiveX == 1;
            const QString question = QStringLiteral("Of the files selected, ")
                                     + QString::number(notActiveX)
                                     + (one ? QStringLiteral(" is not an ActiveX component")
                                            : QStringLiteral(" are not ActiveX components"))
                                     + QStringLiteral(".  Would you like to see the details?");
            if (askYesNo(question, MessageResult::Yes) == MessageResult::Yes) {
                const QString text
                    = QLocale().toString(QDate::currentDate(), QLocale::LongFormat) + crlf
                      + QStringLiteral("THE FOLLOWING")
                      + (one ? QStringLiteral(" IS NOT AN") : QStringLiteral(" ARE NOT"))
                      + QStringLiteral(" ACTIVEX COMPONENT")
                      + (one ? QString() : QStringLiteral("S")) + QStringLiteral(":") + crlf
                      + report;
                const QString reportFile
                    = (gobjQuorinData ? gobjQuorinData->LocalDataPath() : QString())
                      + QStringLiteral("NonActiveXFiles.txt");
                QSaveFile file(reportFile);
                if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0
                    || !file.commit())
                    throw QuorinError(
                        ErrorNumber::NoFilename,
                        QStringLiteral("AuthorisedItemsView::AddAXComponentsFromFile"),
                        QStringLiteral("Can't write the report '") + reportFile
                            + QStringLiteral("'."));
                UserInterface::current().shellOpen(reportFile);
            }
        }

        ResetNode(componentsKey);
        ResetNode(referencesKey);
        SetEnabledState();
        SetStatusBarText();
    });
}

bool AuthorisedItemsView::IsComponentFile(const QString &filename)
{
    return AuthorisedItemsMerger::IsActiveXFilename(filename);
}

void AuthorisedItemsView::FilesDropped(const QStringList &files)
{
    guardedVoid("m_lvwList_OLEDragDrop", module, [&] {
        if (!m_rulebase || files.isEmpty())
            return;
        QStringList projects;
        for (const QString &file : files) {
            if (modQuorinUtils::IsVBPFile(file) || modQuorinUtils::IsVBGFile(file))
                projects << file;
        }
        if (!projects.isEmpty()) {
            AddAuthorisedItemsFromProject(projects);
            return;
        }
        QStringList components;
        for (const QString &file : files) {
            if (IsComponentFile(file))
                components << file;
        }
        if (!components.isEmpty()) {
            AddAXComponentsFromFile(components);
            return;
        }
        UserInterface::current().messageBox(
            QStringLiteral("Only Visual Basic project files (*.vbp or *.vbg) or ActiveX component "
                           "files (*.dll, *.exe, *.ocx, *.tlb, *.olb) can be accepted."),
            MessageButtons::OK,
            MessageIcon::Information,
            programTitle(),
            MessageResult::OK);
    });
}
