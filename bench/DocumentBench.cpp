#include "bench/RulebaseGenerator.h"

#include "docs/RulebaseDocCreator.h"
#include "editors/RulebaseDocCreatorForm.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

// The whole document of a generated rulebase, every rule in the plan, written to disk.
void BM_CreateDocumentation(benchmark::State &state)
{
    const auto rulebase = generateRulebase(int(state.range(0)));
    QTemporaryDir dir;
    rulebase->setFilename(dir.path() + QStringLiteral("/synthetic.qrb"));
    RulebaseDocCreatorForm plan;
    plan.setRulebase(rulebase);

    RulebaseDocCreator writer;
    writer.setOrganisation(QStringLiteral("Benchmark Ltd"));
    QString document;
    for (auto _ : state) {
        if (!writer.CreateDocumentation(*rulebase, document))
            state.SkipWithError("the document was not written");
    }
    state.counters["bytes"] = double(QFileInfo(document).size());
    state.SetComplexityN(state.range(0));
}

// Opening the wizard on a rulebase whose stored plan needs reconciling with every rule.
void BM_ReconcilePlan(benchmark::State &state)
{
    const auto rulebase = generateRulebase(int(state.range(0)));
    RulebaseDocCreatorForm first;
    first.setRulebase(rulebase);
    for (auto _ : state) {
        RulebaseDocCreatorForm form;
        form.setRulebase(rulebase);
        benchmark::DoNotOptimize(form.Sections()->Count());
    }
    state.SetComplexityN(state.range(0));
}

} // namespace

BENCHMARK(BM_CreateDocumentation)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(BM_ReconcilePlan)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
