#include "bench/RulebaseGenerator.h"

#include "basic/BasicColouring.h"
#include "basic/BasicSyntaxChecker.h"
#include "rulebase/RulebaseManager.h"
#include "tools/RulebaseChecker.h"
#include "tools/RulebaseFileScan.h"
#include "tools/ToolRulebaseLoader.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

// A Sub Main of about `lines` lines: `block` again and again, each %1 the block's number.
QStringList latin1Lines(std::initializer_list<const char *> lines)
{
    QStringList list;
    for (const char *line : lines)
        list << QLatin1String(line);
    return list;
}

QString repeated(const QStringList &block, int lines)
{
    QStringList text{QStringLiteral("Sub Main")};
    for (int n = 1; text.size() < lines - 1; ++n) {
        for (const QString &line : block)
            text << (line.contains(QLatin1String("%1")) ? line.arg(n) : line);
    }
    text << QStringLiteral("End Sub");
    return text.join(QLatin1String("\r\n"));
}

// A condition of about `lines` lines that uses every construct the editor sees often: nested
// blocks, Quorin calls with vocabulary names, comments, strings and arithmetic.
QString condition(int lines)
{
    const QStringList block = latin1Lines({
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
    });
    return repeated(block, lines);
}

// The same length of pasted module code: file statements, graphics, numbered lines, continued
// declarations and conditional compilation, whose branches are each read from their #If.
QString statementMix(int lines)
{
    const QStringList block = latin1Lines({
        "#If Win64 Then",
        "    Dim handle%1 As LongPtr, _",
        "        size%1 As LongLong",
        "#Else",
        "    Dim handle%1 As Long, _",
        "        size%1 As Long",
        "#End If",
        "%1 Open path For Binary Access Read Lock Write As #f Len = 512",
        "    Get #f, , record: Seek #f, %1: Put #f, , record",
        "    Line Input #f, text%1",
        "    Print #f, text%1; Tab(10); Spc(2); size%1, handle%1;",
        "    Close #f",
        "    pic.Line (0, %1)-Step(100, 10), RGB(%1 Mod 256, 0, 0), BF",
        "    pic.Circle Step (5, 5), %1, vbRed, , , 0.5",
        "    Select Case Quorin.ParserEvent()",
        "        Case \"begin File\": size%1 = size%1 + 1&",
        "        Case Else: Mid$(text%1, 1) = \"x\"",
        "    End Select",
    });
    return repeated(block, lines);
}

// The whole syntax check, as the editor runs it after typing stops and on Save and Close.
void checkScript(benchmark::State &state, const QString &script)
{
    BasicSyntaxChecker checker;
    if (!checker.check(script))
        state.SkipWithError(qPrintable(checker.errorMessage()));
    for (auto _ : state)
        benchmark::DoNotOptimize(checker.check(script));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_CheckCondition(benchmark::State &state)
{
    checkScript(state, condition(int(state.range(0))));
}

void BM_CheckStatementMix(benchmark::State &state)
{
    checkScript(state, statementMix(int(state.range(0))));
}

// What qrbtool check does with a loaded rulebase, conditions included: a third of the rules are
// coding conventions with a condition each.
void BM_CheckRulebase(benchmark::State &state)
{
    QTemporaryDir dir;
    const QString path = dir.path() + QStringLiteral("/synthetic.qrb");
    RulebaseManager().Save(*generateRulebase(int(state.range(0))), path);
    RulebaseFileScan scan;
    scan.scan(path);
    const LoadedRulebase loaded = ToolRulebaseLoader::load(path);
    if (!loaded.rulebase)
        state.SkipWithError("the synthetic rulebase does not load");
    for (auto _ : state)
        benchmark::DoNotOptimize(RulebaseChecker::check(scan, loaded));
    state.SetComplexityN(state.range(0));
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
BENCHMARK(BM_CheckStatementMix)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CheckRulebase)
    ->Arg(1000)
    ->Arg(3000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity(benchmark::oN);
BENCHMARK(BM_ColourCondition)->Arg(2000)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
