#include "vocabulary/ObjectTreeHelper.h"

#include "controls/RuleTreeControl.h"
#include "platform/ErrorFrame.h"
#include "rulebase/RuleLists.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/VBParserEvents.h"

#include <QString>

namespace {
constexpr char moduleName[] = "ObjectTreeHelper";
}

void ObjectTreeHelper::PopulateCodingConventionsTree(RuleTreeControl &tree, bool noRoot)
{
    guardedVoid("PopulateCodingConventionsTree", moduleName, [&] {
        tree.clear();
        // The root counts the ticked conventions, not every convention.
        const qint32 rootCount
            = m_ruleLists ? m_ruleLists->CodingConventions()->SelectedCount() : 0;
        int parent = 0;
        if (!noRoot) {
            parent = tree.addChild(0,
                                   QStringLiteral("ProjectKey"),
                                   withCount(QStringLiteral("Project"), rootCount),
                                   QStringLiteral("Project"));
            tree.setExpanded(parent, true);
            tree.setBold(parent, true);
        }
        AddBeginEndProject(tree, parent);
    });
}

void ObjectTreeHelper::PopulateNamingConventionsTree(RuleTreeControl &tree)
{
    guardedVoid("PopulateNamingConventionsTree", moduleName, [&] {
        tree.clear();
        const qint32 rootCount
            = m_ruleLists ? m_ruleLists->NamingConventions()->SelectedCount() : 0;
        const int root = tree.addChild(0,
                                       QStringLiteral("-1Key"),
                                       withCount(QStringLiteral("Objects"), rootCount),
                                       QStringLiteral("Project"));
        tree.setExpanded(root, true);
        tree.setBold(root, true);

        const int argument = AddObjectChildNode(tree, root, 1);
        for (const qint32 id : {13, 19, 20})
            AddObjectChildNode(tree, argument, id);
        const int constant = AddObjectChildNode(tree, root, 5);
        for (const qint32 id : {22, 26, 27})
            AddObjectChildNode(tree, constant, id);
        AddObjectChildNode(tree, root, 6);
        AddObjectChildNode(tree, root, 7);
        const int enumeration = AddObjectChildNode(tree, root, 9);
        AddObjectChildNode(tree, enumeration, 10);
        AddObjectChildNode(tree, root, 11);

        const int file = AddObjectChildNode(tree, root, 12);
        AddObjectChildNode(tree, file, 38);
        AddObjectChildNode(tree, file, 39);
        const int form = AddObjectChildNode(tree, file, 36);
        for (const qint32 id : {47, 48, 49})
            AddObjectChildNode(tree, form, id);
        for (const qint32 id : {37, 40, 41, 42})
            AddObjectChildNode(tree, file, id);

        AddObjectChildNode(tree, root, 15);
        const int procedure = AddObjectChildNode(tree, root, 17);
        for (const qint32 id : {46, 45, 44})
            AddObjectChildNode(tree, procedure, id);
        AddObjectChildNode(tree, root, 18);
        const int type = AddObjectChildNode(tree, root, 24);
        AddObjectChildNode(tree, type, 25);

        const int variable = AddObjectChildNode(tree, root, 28);
        const int noWithEvents = AddObjectChildNode(tree, variable, 43);
        for (const qint32 id : {29, 30, 31, 32})
            AddObjectChildNode(tree, noWithEvents, id);
        const int withEvents = AddObjectChildNode(tree, variable, 33);
        for (const qint32 id : {34, 35})
            AddObjectChildNode(tree, withEvents, id);
    });
}

// An end event is a sibling of its begin event, never its child.
void ObjectTreeHelper::AddBeginEndProject(RuleTreeControl &tree, int parent)
{
    const int project = AddChildNode(tree, parent, 1);
    tree.setExpanded(project, true);
    AddChildNode(tree, project, 26);
    AddBeginEndSourceFiles(tree, project);
    AddChildNode(tree, parent, 37);
}

void ObjectTreeHelper::AddBeginEndSourceFiles(RuleTreeControl &tree, int parent)
{
    const int sourceFiles = AddChildNode(tree, parent, 2);
    AddBeginEndSourceFile(tree, sourceFiles);
    AddChildNode(tree, parent, 36);
}

void ObjectTreeHelper::AddBeginEndSourceFile(RuleTreeControl &tree, int parent)
{
    const int file = AddChildNode(tree, parent, 3);
    AddSourceLine(tree, file);
    AddChildNode(tree, parent, 35);
}

void ObjectTreeHelper::AddSourceLine(RuleTreeControl &tree, int parent)
{
    AddSourceLineItems(tree, AddChildNode(tree, parent, 4));
}

void ObjectTreeHelper::AddSourceLineItems(RuleTreeControl &tree, int parent)
{
    AddChildNode(tree, parent, 5);
    AddLayoutItems(tree, parent);
    AddDeclarationsItems(tree, parent);
    AddProcedureItems(tree, parent);
}

void ObjectTreeHelper::AddLayoutItems(RuleTreeControl &tree, int parent)
{
    AddChildNode(tree, AddChildNode(tree, parent, 6), 7);
    AddChildNode(tree, parent, 8);
}

void ObjectTreeHelper::AddDeclarationsItems(RuleTreeControl &tree, int parent)
{
    const int declaration = AddChildNode(tree, AddChildNode(tree, parent, 9), 10);
    AddChildNode(tree, declaration, 11);
    AddChildNode(tree, AddChildNode(tree, declaration, 12), 13);
    AddChildNode(tree, AddChildNode(tree, AddChildNode(tree, declaration, 14), 15), 16);
    AddChildNode(tree, declaration, 17);
    AddChildNode(tree, AddChildNode(tree, declaration, 18), 19);
    AddChildNode(tree, declaration, 20);
    AddChildNode(tree, AddChildNode(tree, AddChildNode(tree, declaration, 21), 22), 23);
    AddChildNode(tree, declaration, 24);
    AddChildNode(tree, declaration, 25);
    AddChildNode(tree, parent, 27);
}

void ObjectTreeHelper::AddProcedureItems(RuleTreeControl &tree, int parent)
{
    const int procedure = AddChildNode(tree, parent, 28);
    AddChildNode(tree, procedure, 29);
    const int body = AddChildNode(tree, procedure, 30);
    const int localConst = AddChildNode(tree, body, 31);
    // Each goes straight after "Const (local)", so 32, added first, ends up behind 33.
    AddSiblingNode(tree, localConst, 32);
    AddSiblingNode(tree, localConst, 33);
    AddChildNode(tree, parent, 34);
}

int ObjectTreeHelper::AddChildNode(RuleTreeControl &tree, int parent, qint32 eventID)
{
    qint32 count = 0;
    if (m_ruleLists) {
        if (const auto rules = m_ruleLists->ParserEventCCList(eventID, false))
            count = rules->Count();
    }
    const int node = tree.addChild(parent,
                                   VBParserEvents::ParserEventKey(eventID),
                                   withCount(VBParserEvents::ParserEventText(eventID), count),
                                   VBParserEvents::ParserEventIcon(eventID));
    if (count > 0)
        tree.setBold(node, true);
    return node;
}

// No count and never bold, though rules can hang here: the views find them through the key.
int ObjectTreeHelper::AddSiblingNode(RuleTreeControl &tree, int sibling, qint32 eventID)
{
    return tree.addAfter(sibling,
                         VBParserEvents::ParserEventKey(eventID),
                         VBParserEvents::ParserEventText(eventID),
                         VBParserEvents::ParserEventIcon(eventID));
}

int ObjectTreeHelper::AddObjectChildNode(RuleTreeControl &tree, int parent, qint32 objectID)
{
    const qint32 count = m_ruleLists ? m_ruleLists->GetNCObjectRuleCount(objectID) : 0;
    const int node = tree.addChild(parent,
                                   ObjectHelper::ObjectKey(objectID),
                                   withCount(ObjectHelper::ObjectText(objectID), count),
                                   ObjectHelper::ObjectTreeIcon(objectID));
    if (count > 0)
        tree.setBold(node, true);
    return node;
}

QString ObjectTreeHelper::withCount(const QString &text, qint32 count) const
{
    if (count <= 0 || !m_ruleLists)
        return text;
    return text + QStringLiteral(" (") + QString::number(count) + QLatin1Char(')');
}
