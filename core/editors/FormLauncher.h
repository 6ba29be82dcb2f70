#pragma once

#include "editors/IRuleEditorLauncher.h"
#include "editors/RuleDialogContext.h"

#include <functional>

// Opens what a view asks to edit through the form factory: a rule in the dialog of its type,
// in the context of the moment (the rulebase open now, the category list editor), and the
// category and severity editors of a tree node. Installed by the Application for its lifetime.
class FormLauncher final : public IRuleEditorLauncher
{
public:
    explicit FormLauncher(std::function<RuleDialogContext()> context)
        : m_context(std::move(context))
    {
    }

    bool EditRule(const std::shared_ptr<IRule> &rule) override;
    bool EditCategory(const std::shared_ptr<CategoryItem> &category) override;
    bool EditSeverity(const std::shared_ptr<SeverityItem> &severity) override;

private:
    std::function<RuleDialogContext()> m_context;
};
