#include "ProjectGenerator.h"

#include "collections/ObjectArrayList.h"
#include "collections/ObjectKeyedArrayList.h"
#include "preview/PreviewRun.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/TagItem.h"
#include "rulebase/UnauthorisedKeyword.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <random>

#if defined(__unix__)
#include <sys/resource.h>
#endif

namespace {

// The object types a naming convention can hang on.
constexpr int NamingTypes[]
    = {1,  13, 19, 20, 5,  22, 26, 27, 6,  7,  9,  10, 11, 12, 38, 39, 36, 47, 48, 49, 37,
       40, 41, 42, 15, 17, 46, 45, 44, 18, 24, 25, 28, 43, 29, 30, 31, 32, 33, 34, 35};

const char *const Keywords[] = {
    R"(\bGoSub\b)",
    R"(\bStop\b)",
    R"(\bDoEvents\b)",
    R"(\bSendKeys\b)",
    R"(\bShell\b)",
    R"(\bIIf\s*\()",
    R"(\bOn\s+Error\s+Resume\s+Next\b)",
    R"(\bGlobal\b)",
    R"(\bDefInt\b)",
    R"(\bLet\b)",
    R"(\bWhile\b)",
    R"(\bWend\b)",
    R"(\bCall\b)",
    R"(\bEnd\b\s*$)",
    R"(\bOption\s+Base\b)",
    R"(\bOn\s+\w+\s+GoTo\b)",
    R"(\bLSet\b)",
    R"(\bRSet\b)",
    R"(\bErase\b)",
    R"(\bMkDir\b)",
    R"(\bKill\b)",
    R"(\bRmDir\b)",
    R"(\bChDir\b)",
    R"(\bBeep\b)",
    R"(\bRandomize\b)",
    R"(\bLoad\s+\w+)",
    R"(\bUnload\b)",
    R"(\b(Open|Close)\s+#)",
    R"(\bGet\s+#)",
    R"(\bPut\s+#)",
    R"(\bInput\s+#)",
    R"(\bLine\s+Input\b)",
    R"(\bWrite\s+#)",
    R"(\bPrint\s+#)",
    R"(\bSavePicture\b)",
    R"(\bDeleteSetting\b)",
    R"(\bSaveSetting\b)",
    R"(\bAppActivate\b)",
    R"(\bCreateObject\s*\()",
    R"(\bGetObject\s*\()",
    R"(\bCallByName\b)",
    R"(\bVarPtr\b|\bStrPtr\b|\bObjPtr\b)",
    R"(\bDebug\.Assert\b)",
    R"(\bStatic\s+Function\b)",
    R"((\w+)\s*=\s*\1\s*$)",
    R"(\bxor\b)",
    R"(\bImp\b)",
    R"(\bEqv\b)",
    R"(\$\(\s*\))",
    R"(\bEnviron\$?\s*\()",
};
static_assert(std::size(Keywords) == 50);

// One convention that applies to every name of its type, as a standard has them.
struct Standard
{
    int objectType;
    std::initializer_list<std::pair<int, const char *>> prefix;
    const char *body;
    const char *exclusions;
};

const Standard Standards[] = {
    {36, {{1, "frm"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {47, {{1, "mdi"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {48, {{1, "frm"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {37, {{1, "mod"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {38, {{1, "(cls|I)"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {41, {{1, "uc"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {40, {{3, ""}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {39, {{1, "dsr"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {42, {{1, "doc"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {18, {{1, "KV"}}, "", ""},
    {6, {{2, ""}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {29, {{4, ""}, {6, ""}, {3, ""}}, "^[A-Z]", ""},
    {30, {{4, ""}, {6, ""}, {3, ""}}, "^[A-Z]", ""},
    {31, {{6, ""}, {3, ""}}, "^[A-Z]", "i; j; k; n"},
    {32, {{4, ""}, {6, ""}, {3, ""}}, "^[A-Z]", ""},
    {35, {{4, ""}, {1, "evt"}}, "^[A-Z]", ""},
    {22, {}, "^[A-Z][A-Z0-9_]*$", ""},
    {26, {}, "^[A-Z][A-Z0-9_]*$", ""},
    {27, {{1, "c"}, {3, ""}}, "^[A-Z]", ""},
    {9, {{1, "e"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {10, {{1, "[a-z]{2,4}"}}, "^[A-Z]", ""},
    {24, {{1, "udt"}}, "^[A-Z][A-Za-z0-9]*$", ""},
    {25, {{6, ""}, {3, ""}}, "^[A-Z]", ""},
    {46, {}, "^[A-Z][A-Za-z0-9]*$", ""},
    {45, {}, "^[A-Z][A-Za-z0-9]*$", ""},
    {44, {}, "^[A-Z][A-Za-z0-9_]*$", ""},
    {20, {{4, ""}, {6, ""}, {3, ""}}, "^[A-Z]", ""},
    {13, {}, "^[a-z]", ""},
    {19, {{3, ""}}, "^[A-Z]", ""},
    {7, {}, "^[A-Z][A-Za-z0-9]*$", ""},
    {11, {}, "^[A-Z][A-Za-z0-9]*$", ""},
    {15, {}, "^[A-Z][A-Za-z0-9]*$", ""},
};

// 200 naming conventions: one standard for each kind of name that applies to every name of
// its kind (32), and 168 more that narrow one of them down by a condition (Boolean functions,
// String locals...), which the preview counts but can't decide. 50 keywords at the three
// events the keyword editor offers. Tags filled as a team fills them. The same every time.
std::shared_ptr<Rulebase> benchRulebase(unsigned seed = 1)
{
    std::mt19937 random(seed);
    auto rulebase = std::make_shared<Rulebase>();
    const std::pair<const char *, const char *> types[] = {{"String", "str"},
                                                           {"Long", "lng"},
                                                           {"Boolean", "bln"},
                                                           {"Integer", "int"},
                                                           {"Variant", "vnt"},
                                                           {"Currency", "cur"},
                                                           {"Date", "dtm"},
                                                           {"Object", "obj"}};
    for (const auto &[name, value] : types)
        rulebase->DataTypeTags()->Item(QLatin1String(name))->setTagValue(QLatin1String(value));
    const std::pair<const char *, const char *> scopes[]
        = {{"Public (Global)", "g"}, {"Private (Module level)", "m"}, {"Local (Static)", "s"}};
    for (const auto &[name, value] : scopes)
        rulebase->ScopeTags()->Item(QLatin1String(name))->setTagValue(QLatin1String(value));
    rulebase->setArrayTag(QStringLiteral("a"));
    const auto lists = rulebase->RuleLists();
    for (int i = 0; i < 200; ++i) {
        const Standard &standard = Standards[i % std::size(Standards)];
        auto rule = std::make_shared<NamingConvention>();
        rule->setTitle(QStringLiteral("Naming %1").arg(i));
        rule->setObjectType(standard.objectType);
        int item = 1;
        for (const auto &[type, value] : standard.prefix) {
            rule->PrefixItems()->Item(item)->setPSType(type);
            rule->PrefixItems()->Item(item++)->setValue(QLatin1String(value));
        }
        rule->setPrefixActive(item > 1);
        rule->setBodyActive(true);
        rule->setBodyPattern(QLatin1String(standard.body));
        rule->setMinBodyLength(1);
        rule->setMaxBodyLength(qint16(30 + random() % 20));
        rule->setExclusionList(QLatin1String(standard.exclusions));
        if (i >= qsizetype(std::size(Standards)))
            rule->setCondition(QStringLiteral(
                "Sub Main\n    If Variable.DataType <> \"String\" Then Quorin.Cancel\nEnd Sub"));
        lists->AddConvention(rule, true);
    }
    for (const char *pattern : Keywords) {
        auto keyword = std::make_shared<UnauthorisedKeyword>();
        keyword->setTitle(QString::fromLatin1(pattern));
        keyword->setCondition(QString::fromLatin1(pattern));
        for (const qint32 event : {10, 28, 30})
            keyword->AddParserEventID(event);
        lists->AddConvention(keyword, true);
    }
    return rulebase;
}

double peakMegabytes()
{
#if defined(__unix__)
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024.0;
#else
    return 0;
#endif
}

// The whole preview of a million-line project: reading, scanning, keywords, names, libraries
// and tolerances.
void BM_PreviewMillionLines(benchmark::State &state)
{
    QTemporaryDir folder;
    const QString project = ProjectGenerator::writeProject(folder.path());
    if (project.isEmpty()) {
        state.SkipWithError("the project could not be written");
        return;
    }
    const std::shared_ptr<const Rulebase> rulebase = benchRulebase();
    qint64 lines = 0;
    qint64 findings = 0;
    for (auto _ : state) {
        PreviewRun run(rulebase);
        const PreviewResult result = run.run({project});
        lines = result.projects.at(0).totalLines;
        findings = qint64(result.findings.size());
        benchmark::DoNotOptimize(findings);
    }
    state.counters["lines"] = double(lines);
    state.counters["findings"] = double(findings);
    state.counters["peak_MB"] = peakMegabytes();
}

} // namespace

BENCHMARK(BM_PreviewMillionLines)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
