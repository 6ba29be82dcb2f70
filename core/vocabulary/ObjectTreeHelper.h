#pragma once

#include <QtGlobal>

#include <memory>
#include <utility>

class QString;
class RuleLists;
class RuleTreeControl;

// Builds the two trees through which the user reaches rules: parser events with their coding
// conventions, object types with their naming conventions. The views and dialogs read meaning
// back out of the node keys ("7Key", "ProjectKey" reads 0, "-1Key" reads -1), so the shape is
// fixed. With RuleLists set, node texts carry their rule counts and nodes with rules are bold.
class ObjectTreeHelper final
{
public:
    // Only the two convention views set it; pickers and editors want the bare shape.
    void setRuleLists(std::shared_ptr<::RuleLists> ruleLists)
    {
        m_ruleLists = std::move(ruleLists);
    }

    // With `noRoot` "begin Project" and "end Project" become the top-level nodes.
    void PopulateCodingConventionsTree(RuleTreeControl &tree, bool noRoot);
    void PopulateNamingConventionsTree(RuleTreeControl &tree);

private:
    void AddBeginEndProject(RuleTreeControl &tree, int parent);
    void AddBeginEndSourceFiles(RuleTreeControl &tree, int parent);
    void AddBeginEndSourceFile(RuleTreeControl &tree, int parent);
    void AddSourceLine(RuleTreeControl &tree, int parent);
    void AddSourceLineItems(RuleTreeControl &tree, int parent);
    void AddLayoutItems(RuleTreeControl &tree, int parent);
    void AddDeclarationsItems(RuleTreeControl &tree, int parent);
    void AddProcedureItems(RuleTreeControl &tree, int parent);

    int AddChildNode(RuleTreeControl &tree, int parent, qint32 eventID);
    int AddSiblingNode(RuleTreeControl &tree, int sibling, qint32 eventID);
    int AddObjectChildNode(RuleTreeControl &tree, int parent, qint32 objectID);

    // The text with " (n)" appended, unless n is 0 or there is no RuleLists.
    QString withCount(const QString &text, qint32 count) const;

    std::shared_ptr<::RuleLists> m_ruleLists;
};
