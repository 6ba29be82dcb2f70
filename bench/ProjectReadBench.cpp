#include "ProjectGenerator.h"
#include "bench/ProjectCorpusGenerator.h"
#include "collections/ObjectKeyedArrayList.h"
#include "project/SourceLineStatistics.h"
#include "project/VirtualObject.h"
#include "project/VirtualProject.h"
#include "project/VirtualSourceFile.h"
#include "tools/QrbTool.h"
#include "tools/ToolContext.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTextStream>

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

// `qrbtool stats` over a generated corpus of a few hundred projects and groups, as a build
// server runs it: many small files, forms read for their names, shared files, paths to resolve.
void BM_StatsOverCorpus(benchmark::State &state)
{
    QTemporaryDir folder;
    const ProjectCorpus corpus = generateProjectCorpus(folder.path());
    const QStringList arguments = QStringList{QStringLiteral("stats")} + corpus.arguments;
    QString output;
    QString errors;
    for (auto _ : state) {
        output.clear();
        errors.clear();
        QTextStream out(&output);
        QTextStream err(&errors);
        ToolContext context(out, err);
        QrbTool().run(arguments, context);
    }
    const QStringList totals = output.trimmed()
                                   .split(QLatin1Char('\n'))
                                   .last()
                                   .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const double lines = totals.size() > 4 ? totals.at(4).toDouble() : 0;
    state.counters["counted_lines"] = lines;
    state.counters["counted_lines_per_second"]
        = benchmark::Counter(lines, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["file_reads"] = double(corpus.reads.size());
}

} // namespace

BENCHMARK(BM_ReadProjectWithLineAnalysis)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_StatsOverCorpus)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
