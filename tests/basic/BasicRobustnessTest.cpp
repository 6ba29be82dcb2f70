// The checker, the colouring and the completion must survive any text an editor can hold: a
// corpus of nasty inputs is always checked, and a mutation fuzzer checks a fixed number of inputs.
#include "BasicTestSupport.h"

#include "basic/BasicColouring.h"
#include "basic/BasicCompletion.h"
#include "basic/ConditionRules.h"
#include "rulebase/IRule.h"

#include "support/TestEnvironment.h"
#include "support/TestSeed.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>

#include <iterator>
#include <random>

using namespace Qt::StringLiterals;

namespace {

// Line of every position: the lexer's idea of lines, where CR LF, CR and LF each end one.
struct LineMap
{
    explicit LineMap(const QString &text)
    {
        starts.push_back(0);
        for (qsizetype i = 0; i < text.size(); ++i) {
            if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
                ++i;
            if (text[i] == u'\r' || text[i] == u'\n')
                starts.push_back(i + 1);
        }
        starts.push_back(text.size() + 1);
    }
    int lineCount() const { return int(starts.size()) - 1; }
    qsizetype length(int line) const { return starts[size_t(line)] - starts[size_t(line - 1)]; }

    std::vector<qsizetype> starts;
};

// What must hold of every check, whatever the text; the first broken rule, or empty.
std::string violatedInvariant(const QString &text, std::mt19937 &random)
{
    BasicSyntaxChecker checker;
    const bool ok = checker.check(text);
    if (ok != checker.errors().empty() || ok != checker.syntaxOK())
        return "verdict disagrees with the error list";
    if (!ok && checker.errorText() != checker.errors().front().message)
        return "first error text";

    const std::vector<BasicToken> &tokens = checker.tokens();
    if (tokens.empty() || tokens.back().kind != BasicTokenKind::EndOfText)
        return "tokens do not end in EndOfText";
    qsizetype end = 0;
    for (const BasicToken &token : tokens) {
        if (token.offset < end || token.length < 0 || token.offset + token.length > text.size())
            return "token outside the text or overlapping";
        end = token.offset + token.length;
    }

    const LineMap lines(text);
    for (const auto *list : {&checker.errors(), &checker.warnings()}) {
        const BasicDiagnostic *previous = nullptr;
        for (const BasicDiagnostic &d : *list) {
            if (d.line < 1 || d.line > lines.lineCount() || d.column < 1
                || d.column > lines.length(d.line) + 1)
                return "diagnostic placed outside the text: " + std::to_string(d.line) + ":"
                       + std::to_string(d.column);
            if (d.message.isEmpty())
                return "diagnostic without a message";
            if (previous
                && (previous->line > d.line
                    || (previous->line == d.line && previous->column > d.column)))
                return "diagnostics out of text order";
            previous = &d;
        }
    }

    bool continued = false;
    for (int line = 1; line <= lines.lineCount(); ++line) {
        const QStringView view
            = QStringView(text).sliced(lines.starts[size_t(line - 1)]).left(lines.length(line));
        int from = 0;
        for (const StyledRange &range : BasicColouring::colourLine(view, continued)) {
            if (range.start < from || range.length <= 0 || range.start + range.length > view.size())
                return "coloured range outside its line or overlapping";
            from = range.start + range.length;
        }
    }

    for (int i = 0; i < 8; ++i) {
        const int caret = int(std::uniform_int_distribution<qsizetype>(0, text.size())(random));
        const CompletionContext context = BasicCompletion::contextAt(text, caret);
        if (context.kind != CompletionKind::None
            && (context.start > caret
                || text.mid(context.start, caret - context.start) != context.prefix))
            return "completion prefix is not the text before the caret";
    }

    ConditionRules::CheckCondition(text, RuleTypes::NamingConvention);
    return {};
}

QString corpusDir()
{
    return TestEnvironment::sourceDir() + u"/tests/basic/corpus"_s;
}

// Every file of the corpus and of the modules the parser test accepts, read three ways: as
// UTF-8, byte by byte, and as raw UTF-16.
std::vector<std::pair<QString, QString>> corpus()
{
    std::vector<std::pair<QString, QString>> inputs;
    const QString procedures = TestEnvironment::sourceDir() + u"/tests/basic/procedures"_s;
    for (const QString &folder : {corpusDir(), procedures}) {
        const QDir dir(folder);
        for (const QString &name : dir.entryList(QDir::Files, QDir::Name)) {
            QFile file(dir.filePath(name));
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QByteArray bytes = file.readAll();
            inputs.emplace_back(name, QString::fromUtf8(bytes));
            inputs.emplace_back(name + u" (bytes)"_s, QString::fromLatin1(bytes));
            inputs.emplace_back(
                name + u" (utf-16)"_s,
                QString(reinterpret_cast<const QChar *>(bytes.constData()), bytes.size() / 2));
        }
    }
    return inputs;
}

// Pieces that make a parser take its rarer paths, separated by "|".
const QStringList dictionary
    = QString::fromUtf8(
          "Sub Main\r\n|End Sub\r\n|If | Then|Then\r\n| Else |ElseIf |End If\r\n|"
          "Select Case |Case |Case Else|End Select|For i = 1 To 9| Step |Next|"
          "For Each x In y|Do While |Loop Until |While |Wend|With x|End With|.a|!b|Quorin.|"
          "Quorin.ParserEvent() = \"|Quorin.GetObjectProperty(\"Procedure\", \"|"
          "Quorin.GetObjectWorkField(|Call Quorin.RaiseViolation()|Quorin.ApplyConvention|"
          "\"|\"\"|'|Rem | _\r\n|\r\n|\r|\n|:|(|)|,|=|<>|&|^|-|Not |And |#1/2/2003#|#|&H1F|"
          "&O7|1.5E+3|[|]|:=|Dim x As New |ReDim Preserve a(|On Error GoTo |Resume Next|"
          "10 |lbl:|Type T\r\n|Function F(|#If x Then\r\n|#ElseIf |#Else\r\n|#End If\r\n|"
          "#Const c = |Open f For Binary Access Read As #|Line Input #|.Line (1, 2)-Step(|"
          "Circle Step (|Lock #1, 1 To |Name a As |RaiseEvent |#1/2/2003|\t")
          .split(u'|');

QString mutate(QString text, const std::vector<QString> &seeds, std::mt19937 &random)
{
    auto pick
        = [&random](qsizetype n) { return std::uniform_int_distribution<qsizetype>(0, n)(random); };
    const int steps = int(pick(3)) + 1;
    for (int step = 0; step < steps; ++step) {
        const qsizetype at = pick(text.size());
        switch (pick(6)) {
        case 0:
            text.insert(at, dictionary[pick(dictionary.size() - 1)]);
            break;
        case 1:
            text.remove(at, pick(16));
            break;
        case 2: { // repeat a piece, to grow nesting and chains
            const QString piece = text.mid(at, pick(24));
            text.insert(at, piece.repeated(int(pick(40))));
            break;
        }
        case 3: // any UTF-16 unit, lone surrogates and NUL included
            if (at < text.size())
                text[at] = QChar(char16_t(pick(0xFFFF)));
            break;
        case 4: { // splice in a piece of another seed
            const QString &other = seeds[size_t(pick(seeds.size() - 1))];
            const qsizetype from = pick(other.size());
            text.insert(at, other.mid(from, pick(200)));
            break;
        }
        case 5:
            text.truncate(at);
            break;
        default:
            text.insert(at, QChar(char16_t(pick(127))));
            break;
        }
    }
    // Long inputs are the corpus's job; here many short ones are worth more.
    if (text.size() > 32 * 1024)
        text.truncate(32 * 1024);
    return text;
}

} // namespace

TEST(BasicRobustness, TheCorpusOfNastyInputsIsCheckedWithoutFault)
{
    const auto inputs = corpus();
    ASSERT_GE(inputs.size(), 3u * 20u) << qPrintable(corpusDir());
    const TestSeed seed(1u);
    std::mt19937 random(seed.value());
    for (const auto &[name, text] : inputs)
        EXPECT_EQ(violatedInvariant(text, random), std::string()) << qPrintable(name);
}

// QUORIN_FUZZ_RUNS sets the number of inputs (default 3000), QUORIN_TEST_SEED the start; the
// same seed replays the same inputs in the same order, so a crash is found again by running
// longer.
TEST(BasicRobustness, MutatedScriptsNeverBreakTheChecker)
{
    const int count = qEnvironmentVariableIsSet("QUORIN_FUZZ_RUNS")
                          ? qEnvironmentVariableIntValue("QUORIN_FUZZ_RUNS")
                          : 3000;
    const TestSeed seed(20240611u);
    std::mt19937 random(seed.value());

    std::vector<QString> seeds;
    for (const auto &[name, text] : corpus()) {
        if (text.size() < 8 * 1024 && !name.contains(QLatin1Char(' ')))
            seeds.push_back(text);
    }
    seeds.push_back(code("  Select Case Quorin.ParserEvent()|    Case \"begin File\"|"
                         "      If Quorin.GetObjectWorkField(\"File\", \"Lines\") > 2 Then|"
                         "        Call Quorin.RaiseViolation()|      End If|  End Select"));
    ASSERT_FALSE(seeds.empty());

    int runs = 0;
    QString input = seeds.front();
    for (; runs < count; ++runs) {
        // Mostly build on the last input, so that changes pile up; now and then start afresh.
        if (random() % 8 == 0)
            input = seeds[random() % seeds.size()];
        input = mutate(input, seeds, random);
        const std::string fault = violatedInvariant(input, random);
        if (!fault.empty()) {
            const QString saved = TestEnvironment::makeTempDir() + u"/failing.bas"_s;
            QFile file(saved);
            if (file.open(QIODevice::WriteOnly))
                file.write(input.toUtf8());
            FAIL() << fault << " after " << runs << " runs; input saved in " << qPrintable(saved);
        }
    }
}
