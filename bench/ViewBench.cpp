#include "bench/RulebaseGenerator.h"

#include "gui/frmMain.h"
#include "rulebase/Rulebase.h"
#include "support/MemoryListControl.h"
#include "support/MemoryTreeControl.h"
#include "views/IMainForm.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

// A main window with the in-memory tree and list, and nothing else.
class MemoryForm final : public IMainForm
{
public:
    void Update() override {}
    void AddToMRUList(const QString &) override {}
    void RemoveFromMRUList(const QString &) override {}
    void SetCurrentViewTool(const QString &) override {}
    void SetHelpContext(int) override {}
    void SetBusy(bool) override {}
    void ShowSplashScreen() override {}
    void ShowWindow() override {}
    int RunTipOfDay(int last) override { return last; }
    void RunAbout() override {}
    TreeControl *tree() override { return &m_tree; }
    ListControl *list() override { return &m_list; }
    void setDocumentation(const QString &) override {}
    void setStatusText(const QString &) override {}
    void setTreeTitle(const QString &) override {}
    void setListTitle(const QString &) override {}
    void setListHeaderImage(const QString &) override {}
    void setNoItemsVisible(bool) override {}
    void setToolEnabled(const QString &, bool) override {}

private:
    MemoryTreeControl m_tree;
    MemoryListControl m_list;
};

const char *const views[]
    = {"tlCategoryView", "tlSeverityView", "tlCodingConventions", "tlNamingConventions"};

// What SwitchView does for one view: make it, give it the rulebase and the window, fill it.
// The root of each shows every rule of its kind, so the list gets them all.
void switchTo(IMainForm &form,
              const std::shared_ptr<Rulebase> &rulebase,
              const char *name,
              std::unique_ptr<IViewController> &current)
{
    std::unique_ptr<IViewController> view = createView(QLatin1String(name));
    view->setRulebase(rulebase);
    view->setMainForm(&form);
    view->Customise();
    view->Populate();
    view->SetEnabledState();
    current = std::move(view);
}

void runSwitches(benchmark::State &state, IMainForm &form)
{
    const auto rulebase = generateRulebase(int(state.range(0)));
    std::unique_ptr<IViewController> current;
    for (auto _ : state) {
        for (const char *name : views) {
            switchTo(form, rulebase, name, current);
            QApplication::processEvents();
        }
        benchmark::DoNotOptimize(form.list()->count());
    }
    current.reset();
    state.counters["rows"] = double(form.list()->count());
    state.SetLabel("four views per iteration");
}

void BM_SwitchViews_MemoryControls(benchmark::State &state)
{
    MemoryForm form;
    runSwitches(state, form);
}

// The same on the real tree and list models in their views, laid out offscreen.
void BM_SwitchViews_QtControls(benchmark::State &state)
{
    frmMain window(false);
    window.resize(1000, 700);
    window.show();
    QApplication::processEvents();
    runSwitches(state, window);
}

} // namespace

BENCHMARK(BM_SwitchViews_MemoryControls)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SwitchViews_QtControls)->Arg(10000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
