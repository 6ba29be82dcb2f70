#pragma once

#include "editors/RuleDialogContext.h"

#include <memory>

class IRule;

// The contract of the three rule dialogs, through which views and the application open a rule
// without knowing which dialog they have. The form writes into the rule only on OK; it neither
// adds the rule to the rule lists nor refreshes a view.
class IConventionForm
{
public:
    virtual ~IConventionForm() = default;

    virtual void setConvention(const std::shared_ptr<IRule> &rule) = 0;
    virtual void setContext(const RuleDialogContext &context) = 0;
    // True after Cancel or a close of the window; false after OK.
    virtual bool Cancelled() const = 0;
    // Shows the form modally over the main window.
    virtual void Show() = 0;
};
