#pragma once

#include "views/IRuleEditorLauncher.h"

class Application;

// Opens what a view asks to edit through the form factory: a rule in the dialog of its type,
// told the application so that its category button can reach the category list, and the
// category and severity editors of a tree node. Installed by the Application for its lifetime.
class FormLauncher final : public IRuleEditorLauncher
{
public:
    explicit FormLauncher(Application *application)
        : m_application(application)
    {
    }

    bool EditRule(const std::shared_ptr<IRule> &rule) override;
    bool EditCategory(const std::shared_ptr<CategoryItem> &category) override;
    bool EditSeverity(const std::shared_ptr<SeverityItem> &severity) override;

private:
    Application *m_application; // not owned
};
