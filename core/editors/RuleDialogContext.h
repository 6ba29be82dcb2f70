#pragma once

#include <functional>
#include <memory>

class Rulebase;

// What a rule dialog needs of the program around it: the rulebase whose categories and
// severities it offers, and the category list editor behind its category button (none: the
// button only refills the list).
struct RuleDialogContext
{
    std::shared_ptr<Rulebase> rulebase;
    std::function<void()> editCategories;
};
