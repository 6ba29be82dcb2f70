#include "bench/RulebaseGenerator.h"

#include "rulebase/Rulebase.h"
#include "vocabulary/ObjectTreeHelper.h"
#include "vocabulary/RuleTree.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

namespace {

// Both trees with their counts, as the two convention views fill them.
void BM_BothRuleTrees(benchmark::State &state)
{
    const auto rulebase = generateRulebase(int(state.range(0)));
    ObjectTreeHelper helper;
    helper.setRuleLists(rulebase->RuleLists());
    RuleTree events;
    RuleTree objects;
    for (auto _ : state) {
        helper.PopulateCodingConventionsTree(events, false);
        helper.PopulateNamingConventionsTree(objects);
        benchmark::DoNotOptimize(events.count() + objects.count());
    }
}

} // namespace

BENCHMARK(BM_BothRuleTrees)->Arg(10000)->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
