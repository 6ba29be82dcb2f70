#include "bench/ProjectCorpusGenerator.h"
#include "collections/ObjectKeyedArrayList.h"
#include "project/SourceLineStatistics.h"
#include "project/VirtualObject.h"
#include "project/VirtualProject.h"
#include "project/VirtualSourceFile.h"
#include "tools/QrbTool.h"
#include "tools/ToolContext.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>

namespace {

constexpr int modulesInProject = 50;
constexpr int routinesPerModule = 1053; // 19 lines each: 20,000 lines a module, 1M in all

// One routine with what real code has: comments after code, an apostrophe inside a string,
// a continued line, a conditional compilation block, Windows-1252 text and blank lines.
QByteArray routine(int module, int n)
{
    const QByteArray id = QByteArray::number(module * routinesPerModule + n);
    return "Public Function Check" + id + "(ByVal Name As String, Optional ByVal Limit As Long = 25) As Boolean\r\n"
           "    ' checks name " + id + ": caf\xe9 na\xefve \x93quoted\x94\r\n"
           "    Dim k As Long, s As String\r\n"
           "    s = Trim$(Name) ' trailing comment\r\n"
           "\r\n"
           "    For k = 1 To Len(s)\r\n"
           "        If Mid$(s, k, 1) = \"'\" Then Exit For\r\n"
           "    Next k\r\n"
           "#If DEBUG_BUILD Then\r\n"
           "    Debug.Print \"Check" + id + ": \"\"\" & s & \"\"\"\"\r\n"
           "#End If\r\n"
           "    Rem the limit counts characters, not bytes\r\n"
           "    Check" + id + " = (Len(s) <= Limit) And _\r\n"
           "        (InStr(s, \"_\") = 0)\r\n"
           "\r\n"
           "    Select Case Left$(s, 1)\r\n"
           "        Case \"a\" To \"z\": Check" + id + " = False\r\n"
           "    End Select\r\n"
           "End Function\r\n"
           "\r\n";
}

// Writes a project of `modulesInProject` standard modules and gives its file name.
QString writeProject(const QString &folder)
{
    QByteArray vbp = "Type=Exe\r\n"
                     "Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:\\WINDOWS\\System32\\stdole2.tlb#OLE Automation\r\n";
    for (int m = 1; m <= modulesInProject; ++m) {
        const QByteArray name = "modVolume" + QByteArray::number(m);
        QByteArray text = "Attribute VB_Name = \"" + name + "\"\r\nOption Explicit\r\n";
        for (int r = 1; r <= routinesPerModule; ++r)
            text += routine(m, r);
        QFile file(folder + QLatin1Char('/') + QString::fromLatin1(name) + QStringLiteral(".bas"));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            return QString();
        vbp += "Module=" + name + "; " + name + ".bas\r\n";
    }
    vbp += "Name=\"Volume\"\r\n";
    const QString project = folder + QStringLiteral("/Volume.vbp");
    QFile file(project);
    if (!file.open(QIODevice::WriteOnly) || file.write(vbp) != vbp.size())
        return QString();
    return project;
}

// Reads the project and classifies every line of every source file, as the import and the
// line statistics do.
void BM_ReadProjectWithLineAnalysis(benchmark::State &state)
{
    QTemporaryDir folder;
    const QString project = writeProject(folder.path());
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
    const QStringList totals = output.trimmed().split(QLatin1Char('\n')).last().split(
        QLatin1Char(' '), Qt::SkipEmptyParts);
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
