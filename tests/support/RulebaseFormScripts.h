#pragma once

#include "editors/IFormFactory.h"

#include <functional>

// A form factory whose rulebase-wide dialogs do what each test scripts, in place of a person.
// An unscripted dialog is cancelled. Installs itself for its lifetime and counts the runs.
class RulebaseFormScripts final : public IFormFactory
{
public:
    RulebaseFormScripts() { IFormFactory::install(this); }
    ~RulebaseFormScripts() override { IFormFactory::install(nullptr); }

    bool runCategorySeverity(CategorySeverityForm &form) override
    {
        return run(categorySeverity, form);
    }
    bool runCategoryEditor(CategoryEditorForm &form) override { return run(categoryEditor, form); }
    bool runSeverityEditor(SeverityEditorForm &form) override { return run(severityEditor, form); }
    bool runDefaultViolations(DefaultViolationsForm &form) override
    {
        return run(defaultViolations, form);
    }
    bool runRulebaseProperties(RulebasePropertiesForm &form) override
    {
        return run(rulebaseProperties, form);
    }
    bool runTagList(TagListForm &form) override { return run(tagList, form); }
    bool runDocCreator(RulebaseDocCreatorForm &form) override { return run(docCreator, form); }

    std::function<bool(CategorySeverityForm &)> categorySeverity;
    std::function<bool(CategoryEditorForm &)> categoryEditor;
    std::function<bool(SeverityEditorForm &)> severityEditor;
    std::function<bool(DefaultViolationsForm &)> defaultViolations;
    std::function<bool(RulebasePropertiesForm &)> rulebaseProperties;
    std::function<bool(TagListForm &)> tagList;
    std::function<bool(RulebaseDocCreatorForm &)> docCreator;
    int runs = 0;

private:
    template<typename Form>
    bool run(const std::function<bool(Form &)> &script, Form &form)
    {
        ++runs;
        return script ? script(form) : false;
    }
};
