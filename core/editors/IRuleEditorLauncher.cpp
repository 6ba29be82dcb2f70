#include "editors/IRuleEditorLauncher.h"

namespace {

class CancellingLauncher final : public IRuleEditorLauncher
{
public:
    bool EditRule(const std::shared_ptr<IRule> &) override { return false; }
    bool EditCategory(const std::shared_ptr<CategoryItem> &) override { return false; }
    bool EditSeverity(const std::shared_ptr<SeverityItem> &) override { return false; }
};

CancellingLauncher cancelling;
IRuleEditorLauncher *installedLauncher = nullptr;

} // namespace

IRuleEditorLauncher &IRuleEditorLauncher::current()
{
    return installedLauncher ? *installedLauncher : cancelling;
}

void IRuleEditorLauncher::install(IRuleEditorLauncher *launcher)
{
    installedLauncher = launcher;
}

IRuleEditorLauncher *IRuleEditorLauncher::installed()
{
    return installedLauncher;
}
