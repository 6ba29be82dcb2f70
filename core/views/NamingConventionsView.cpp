#include "views/NamingConventionsView.h"

#include "editors/IRuleEditorLauncher.h"
#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "views/IMainForm.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ObjectTreeHelper.h"

#include <QHash>

NamingConventionsView::NamingConventionsView()
    : RuleViewBase(Shape{
        "NamingConventionsView",
        QStringLiteral(" Naming Conventions"),
        QStringLiteral(" Object"),
        QStringLiteral("This will permanently delete the selected naming convention(s) from the "
                       "rulebase, are you sure you wish to continue?"),
        {QStringLiteral("tlNamingConvention")},
        {QStringLiteral("tlCloneRule"), QStringLiteral("tlNamingConvention")},
        SortSettings::Conventions,
    })
{
}

modViewCommon::RuleByKey NamingConventionsView::ViewRules() const
{
    return modViewCommon::rulesOf(ruleLists().NamingConventions());
}

void NamingConventionsView::SetupTreeview()
{
    m_tvwTree->clear();
    m_tvwTree->setImageList(QStringLiteral("ilsEventTree"));
    ObjectTreeHelper helper;
    if (m_rulebase)
        helper.setRuleLists(m_rulebase->RuleLists());
    helper.PopulateNamingConventionsTree(*m_tvwTree);
}

void NamingConventionsView::PopulateList(qint32 objectType)
{
    m_lvwList->clear();
    if (objectType == -1) {
        const auto all = ruleLists().NamingConventions();
        for (qint32 i = 1; i <= all->Count(); ++i)
            AddRow(*all->Item(i));
    } else {
        AddObjectRules(objectType);
    }
    RefreshView();
}

void NamingConventionsView::AddObjectRules(qint32 objectType)
{
    if (const auto list = ruleLists().ObjectNCList(objectType, false)) {
        for (qint32 i = 1; i <= list->Count(); ++i)
            AddRow(*list->Item(i));
    }
}

void NamingConventionsView::ResetAllNodes()
{
    ResetObjectNode();
    for (int node = 1; node <= m_tvwTree->count(); ++node)
        ResetNode(NodeValue(node));
}

void NamingConventionsView::ResetObjectNode()
{
    if (m_rulebase && m_tvwTree->count() > 0)
        SetNodeCount(1, QStringLiteral("Objects"), ruleLists().NamingConventions()->Count());
}

void NamingConventionsView::ResetNode(qint32 objectType)
{
    if (objectType == -1) {
        ResetObjectNode();
        return;
    }
    if (!m_rulebase)
        return;
    const int node = m_tvwTree->find(QString::number(objectType) + QStringLiteral("Key"));
    if (node == 0)
        return;
    QString text;
    switch (objectType) {
    case -2:
        text = QStringLiteral("Declarations");
        break;
    case -3:
        text = QStringLiteral("Layout");
        break;
    case -4:
        text = QStringLiteral("Source Files");
        break;
    default:
        text = ObjectHelper::ObjectName(objectType);
    }
    SetNodeCount(node, text, ruleLists().GetNCObjectRuleCount(objectType));
}

QString NamingConventionsView::NodeDocumentation(int node) const
{
    const qint32 objectType = NodeValue(node);
    if (objectType < 0)
        return QStringLiteral("Add one or more naming conventions.");
    return QStringLiteral("Object: ") + ObjectHelper::ObjectName(objectType)
           + QStringLiteral("\r\n\r\n") + ObjectDescription(objectType);
}

void NamingConventionsView::AddItem(const std::shared_ptr<IRule> &item)
{
    guardedVoid("IViewController_AddItem", module(), [&] {
        const auto convention = std::dynamic_pointer_cast<NamingConvention>(item);
        if (!convention || !hasControls() || !m_rulebase)
            return;
        const qint32 objectType = SelectedNodeValue();
        if (objectType == -1 || convention->ObjectType() == objectType)
            AddRow(*convention);
        RefreshView();
    });
}

void NamingConventionsView::OpenItem()
{
    RunOpenItem([this] {
        const QString key = m_lvwList->key(m_lvwList->selectedItem());
        const std::shared_ptr<NamingConvention> convention
            = ruleLists().NamingConventions()->Item(key);
        const qint32 node = SelectedNodeValue();
        if (!IRuleEditorLauncher::current().EditRule(convention))
            return;
        // With the root selected the convention stays in its former object's list.
        if (convention->ObjectType() == node || node == -1) {
            UpdateRow(*convention, m_lvwList->find(key));
        } else {
            ruleLists().MoveNamingConvention(convention->RuleID(), node, convention->ObjectType());
            m_lvwList->remove(key);
            RefreshView();
        }
        SetStatusBarText();
        SetDocumentationWindowText(*convention);
    });
}

QString NamingConventionsView::ObjectDescription(qint32 objectType)
{
    static const QHash<qint32, const char *> texts = {
        {1,
         "arguments defined within a 'Sub', 'Function', 'Property Get/Let/Set', 'Event' "
         "declaration or 'Declare' statement"},
        {5, "all 'Const' declarations"},
        {6, "controls"},
        {7, "'Declare' statements"},
        {9, "'Enum' declarations"},
        {10, "enumeration elements within an 'Enum' declaration"},
        {11, "'Event' statements"},
        {12, "all source files"},
        {13, "arguments defined within a 'Declare' statement"},
        {15, "line label declarations"},
        {17, "procedures ('Sub', 'Function', 'Property Get/Let/Set')"},
        {18, "the Visual Basic project and project properties"},
        {19, "arguments defined within an 'Event' declaration"},
        {20, "arguments defined within a 'Sub', 'Function' or 'Property Get/Let/Set' declaration"},
        {22, "'Public Const' or 'Global Const' declarations"},
        {24, "'Type' declarations"},
        {25, "individual elements within a 'Type' declaration"},
        {26, "'Private Const' declarations"},
        {27, "local 'Const' declarations"},
        {28, "all variable declarations (including 'WithEvents' declarations)"},
        {29, "'Public' or 'Global' variable declarations"},
        {30, "'Private' variable declarations"},
        {31, "local variable declarations"},
        {32, "local 'Static' variable declarations"},
        {33, "'WithEvents' variable declarations"},
        {34, "'Public WithEvents' variable declarations"},
        {35, "'Private WithEvents' variable declarations"},
        {36, "form source files"},
        {37, "module source files"},
        {38, "class module source files"},
        {39, "designer source files"},
        {40, "property page source files"},
        {41, "user control source files"},
        {42, "user document source files"},
        {43, "all variable declarations (excluding 'WithEvents' declarations)"},
        {44, "subroutines ('Sub' procedures)"},
        {45, "property (Get/Let/Set) procedures"},
        {46, "functions"},
        {47, "MDI form source files"},
        {48, "MDI child form source files"},
        {49, "non-MDI form source files"},
    };
    const char *text = texts.value(objectType, nullptr);
    if (!text && gobjLogFile)
        gobjLogFile->LogDebugTrace(QStringLiteral("Unknown Object Type = ")
                                       + QString::number(objectType),
                                   QStringLiteral("ObjectDescription"),
                                   QStringLiteral("NamingConventionsView.cls"));
    return QStringLiteral("Add naming conventions applicable to ") + QString::fromUtf8(text)
           + QStringLiteral(".");
}
