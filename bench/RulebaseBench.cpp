#include "bench/RulebaseGenerator.h"

#include "rulebase/Rulebase.h"
#include "rulebase/RulebaseManager.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

// One file per size, written once and shared by the cases.
QString fileOf(int rules)
{
    static QTemporaryDir dir;
    const QString path = dir.path() + QStringLiteral("/synthetic-%1.qrb").arg(rules);
    if (!QFile::exists(path)) {
        const auto rulebase = generateRulebase(rules);
        RulebaseManager().Save(*rulebase, path);
    }
    return path;
}

void BM_Load(benchmark::State &state)
{
    const QString path = fileOf(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(RulebaseManager().LoadRulebase(path));
    state.SetComplexityN(state.range(0));
}

void BM_Save(benchmark::State &state)
{
    const auto rulebase = generateRulebase(int(state.range(0)));
    QTemporaryDir dir;
    const QString path = dir.path() + QStringLiteral("/out.qrb");
    for (auto _ : state)
        benchmark::DoNotOptimize(RulebaseManager().Save(*rulebase, path));
    state.SetComplexityN(state.range(0));
}

void BM_RoundTrip(benchmark::State &state)
{
    const QString path = fileOf(int(state.range(0)));
    QTemporaryDir dir;
    const QString out = dir.path() + QStringLiteral("/out.qrb");
    for (auto _ : state) {
        const auto rulebase = RulebaseManager().LoadRulebase(path);
        benchmark::DoNotOptimize(RulebaseManager().Save(*rulebase, out));
    }
    state.SetComplexityN(state.range(0));
}

} // namespace

BENCHMARK(BM_Load)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
BENCHMARK(BM_Save)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
BENCHMARK(BM_RoundTrip)
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
