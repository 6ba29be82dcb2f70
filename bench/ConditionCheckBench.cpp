#include "basic/BasicColouring.h"
#include "basic/BasicSyntaxChecker.h"

#include <QCoreApplication>
#include <QStringList>

#include <benchmark/benchmark.h>

namespace {

// A condition of about `lines` lines that uses every construct the editor sees often: nested
// blocks, Quorin calls with vocabulary names, comments, strings and arithmetic.
QString condition(int lines)
{
    const QStringList block = {
        "    ' Block %1: the procedure's name against the file's",
        "    If Quorin.ParserEvent() = \"begin Procedure\" Then",
        "        name%1 = Quorin.GetObjectProperty(\"Procedure\", \"Name\")",
        "        count%1 = Quorin.GetObjectWorkField(\"File\", \"Count%1\") + 1",
        "        For i = 1 To Len(name%1) Step 2",
        "            If Mid$(name%1, i, 1) = \"_\" And count%1 > %1 Then",
        "                Call Quorin.RaiseViolation()",
        "            ElseIf UCase$(name%1) Like \"*TEMP*\" Then",
        "                Call Quorin.CancelPendingViolation()",
        "            End If",
        "        Next i",
        "        Select Case Quorin.ParserEvent()",
        "            Case \"begin File\", \"end File\"",
        "                total = total + (count%1 * 2 - 1) / 3",
        "            Case Else",
        "                total = total & \"x\"",
        "        End Select",
        "    End If",
    };
    QStringList text{QStringLiteral("Sub Main")};
    for (int n = 1; text.size() < lines - 1; ++n) {
        for (const QString &line : block)
            text << (line.contains(QLatin1String("%1")) ? line.arg(n) : line);
    }
    text << QStringLiteral("End Sub");
    return text.join(QLatin1String("\r\n"));
}

// The whole syntax check, as the editor runs it after typing stops and on Save and Close.
void BM_CheckCondition(benchmark::State &state)
{
    const QString script = condition(int(state.range(0)));
    BasicSyntaxChecker checker;
    if (!checker.check(script))
        state.SkipWithError(qPrintable(checker.errorText()));
    for (auto _ : state)
        benchmark::DoNotOptimize(checker.check(script));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Colouring every line, as the highlighter does when a script is opened.
void BM_ColourCondition(benchmark::State &state)
{
    const QStringList lines = condition(int(state.range(0))).split(QStringLiteral("\r\n"));
    for (auto _ : state) {
        bool continued = false;
        size_t ranges = 0;
        for (const QString &line : lines)
            ranges += BasicColouring::colourLine(line, continued).size();
        benchmark::DoNotOptimize(ranges);
    }
}

} // namespace

BENCHMARK(BM_CheckCondition)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ColourCondition)->Arg(2000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
