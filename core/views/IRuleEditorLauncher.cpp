#include "views/IRuleEditorLauncher.h"

#include "editors/CategoryEditorForm.h"
#include "editors/IFormFactory.h"
#include "editors/SeverityEditorForm.h"
#include "platform/ErrorFrame.h"

namespace {

class CancellingLauncher final : public IRuleEditorLauncher
{
public:
    bool EditRule(const std::shared_ptr<IRule> &) override { return false; }
    bool EditCategory(const std::shared_ptr<CategoryItem> &category) override;
    bool EditSeverity(const std::shared_ptr<SeverityItem> &severity) override;
};

// The category and severity editors of a tree node run through the form factory.
bool CancellingLauncher::EditCategory(const std::shared_ptr<CategoryItem> &category)
{
    return guarded("EditCategory", "CategoryView", false, [&] {
        CategoryEditorForm form;
        form.setCategoryItem(category);
        form.Load();
        IFormFactory::current().runCategoryEditor(form);
        return !form.Cancelled();
    });
}

bool CancellingLauncher::EditSeverity(const std::shared_ptr<SeverityItem> &severity)
{
    return guarded("EditSeverity", "SeverityView", false, [&] {
        SeverityEditorForm form;
        form.setSeverityItem(severity);
        form.Load();
        IFormFactory::current().runSeverityEditor(form);
        return !form.Cancelled();
    });
}

CancellingLauncher cancelling;
IRuleEditorLauncher *installed = nullptr;

} // namespace

IRuleEditorLauncher &IRuleEditorLauncher::current()
{
    return installed ? *installed : cancelling;
}

void IRuleEditorLauncher::install(IRuleEditorLauncher *launcher)
{
    installed = launcher;
}
