#pragma once

#include "editors/IRuleEditorLauncher.h"

#include <functional>
#include <memory>

class Rulebase;

namespace ViewTest {

// The sample rulebase, freshly loaded; fails the test when it cannot be read.
std::shared_ptr<Rulebase> loadSample();

// Creates the settings object the views read and write for the life of a test.
class AdminDataScope
{
public:
    AdminDataScope();
    ~AdminDataScope();
};

} // namespace ViewTest

// Confirms every editor after running `edit` on the rule, or cancels when told.
class ScriptedLauncher final : public IRuleEditorLauncher
{
public:
    ScriptedLauncher() { install(this); }
    ~ScriptedLauncher() override { install(nullptr); }

    bool EditRule(const std::shared_ptr<IRule> &rule) override;
    bool EditCategory(const std::shared_ptr<CategoryItem> &category) override;
    bool EditSeverity(const std::shared_ptr<SeverityItem> &severity) override;

    bool confirm = true;
    std::function<void(IRule &)> edit;
    std::function<void(CategoryItem &)> editCategory;
    std::function<void(SeverityItem &)> editSeverity;
    int opened = 0;
};
