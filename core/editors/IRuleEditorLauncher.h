#pragma once

#include <memory>

class CategoryItem;
class IRule;
class SeverityItem;

// Shows the editors a view opens: a rule's dialog, and the category and severity dialogs of a
// tree node. Each runs modally and says whether it was confirmed (false: cancelled). Until one
// is installed, everything is cancelled.
class IRuleEditorLauncher
{
public:
    virtual ~IRuleEditorLauncher() = default;

    virtual bool EditRule(const std::shared_ptr<IRule> &rule) = 0;
    virtual bool EditCategory(const std::shared_ptr<CategoryItem> &category) = 0;
    virtual bool EditSeverity(const std::shared_ptr<SeverityItem> &severity) = 0;

    // The process-wide launcher; one that cancels everything until one is installed.
    static IRuleEditorLauncher &current();
    // Not owned; nullptr goes back to the cancelling one.
    static void install(IRuleEditorLauncher *launcher);
    // The launcher installed, or nullptr while the cancelling one stands in.
    static IRuleEditorLauncher *installed();
};
