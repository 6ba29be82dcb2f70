#pragma once

#include "editors/IRuleEditorLauncher.h"
#include "rulebase/Rulebase.h"

#include "support/MemoryMainForm.h"
#include "support/ScriptedUserInterface.h"

#include <functional>
#include <memory>

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

// A view of the sample on the in-memory controls, shown as SwitchView shows it, with a
// scripted person and rule editor.
template<typename View>
struct ShownView
{
    ShownView()
        : rulebase(ViewTest::loadSample())
        , view(std::make_unique<View>())
    {
        view->setRulebase(rulebase);
        view->setMainForm(&form);
        view->Customise();
        view->Populate();
        view->SetEnabledState();
    }
    MemoryTreeControl &tree() { return form.treeControl; }
    MemoryListControl &list() { return form.listControl; }
    RuleLists &lists() const { return *rulebase->RuleLists(); }

    ViewTest::AdminDataScope settings;
    ScriptedUserInterface ui;
    ScriptedLauncher launcher;
    MemoryMainForm form;
    std::shared_ptr<Rulebase> rulebase;
    std::unique_ptr<View> view;
};
