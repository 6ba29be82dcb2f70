#include "ProjectGenerator.h"

#include "collections/ObjectKeyedArrayList.h"
#include "project/SourceLineStatistics.h"
#include "project/VirtualObject.h"
#include "project/VirtualProject.h"
#include "project/VirtualSourceFile.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

// Reads the project and classifies every line of every source file, as the import and the
// line statistics do.
void BM_ReadProjectWithLineAnalysis(benchmark::State &state)
{
    QTemporaryDir folder;
    const QString project = ProjectGenerator::writeProject(folder.path());
    if (project.isEmpty()) {
        state.SkipWithError("the project could not be written");
        return;
    }
    qint64 lines = 0;
    for (auto _ : state) {
        lines = 0;
        VirtualProject reader;
        reader.LoadProject(project);
        const auto sources = reader.SourceFiles();
        for (qint32 i = 1; i <= sources->Count(); ++i) {
            const auto source = sources->Item(i);
            if (source->CountSourceLines() != 0) {
                state.SkipWithError("a source file could not be read");
                return;
            }
            lines += source->FileStats()->LineStats()->TotalLines();
        }
    }
    state.counters["lines"] = double(lines);
    state.counters["lines_per_second"]
        = benchmark::Counter(double(lines), benchmark::Counter::kIsIterationInvariantRate);
}

} // namespace

BENCHMARK(BM_ReadProjectWithLineAnalysis)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
