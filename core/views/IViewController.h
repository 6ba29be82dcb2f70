#pragma once

#include <memory>

class IMainForm;
class IRule;
class Rulebase;

// The contract of the five views. A view borrows the main window's tree and list for as long
// as it is current and turns the window's commands into changes of the rule objects.
class IViewController
{
public:
    virtual ~IViewController() = default;

    virtual void setRulebase(std::shared_ptr<Rulebase> rulebase) = 0;
    virtual void setMainForm(IMainForm *mainForm) = 0;
    virtual void Customise() = 0;
    virtual void Populate() = 0;
    virtual void DeleteItems() = 0;
    virtual void OpenItem() = 0;
    virtual void SetEnabledState() = 0;
    virtual void ResizeView() = 0;
    virtual void AddItem(const std::shared_ptr<IRule> &item) = 0;
    virtual void CloneItems() = 0;
    // 1 all selected active (or none selected), 2 none active, 3 mixed, 4 not a list of rules.
    virtual int ItemsActiveState() = 0;
    virtual void ActivateItems(bool active) = 0;
    virtual void CategoryListChanged() = 0;
    virtual void SeverityListChanged() = 0;
};
