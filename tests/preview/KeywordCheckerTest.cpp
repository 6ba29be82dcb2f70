#include "PreviewTestSupport.h"

#include "preview/KeywordChecker.h"
#include "preview/LiteralFilter.h"
#include "preview/ParserEvent.h"
#include "rulebase/UnauthorisedKeyword.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace P = ParserEvent;

// The literals a pattern's every match holds, which decide the lines it is run on: a literal
// too many only costs time, one too few would lose a match.
TEST(KeywordChecker, FindsTheLiteralsEveryMatchOfAPatternHolds)
{
    const struct
    {
        const char *pattern;
        QStringList literals;
    } rows[] = {
        {R"(\bGoTo\b)", {"goto"}},
        {"^Public Sub", {"public sub"}},
        {R"(\bIIf\s*\()", {"iif"}},
        {R"(Debug\.Print)", {"debug.print"}},
        {R"(\b(Open|Close)\s+#)", {"#"}},
        {"colou?r", {"colo"}},
        {"ab*c{2}d", {"a"}},
        {R"(GoSub|Return\b)", {"gosub", "return"}},
        {R"((\w+) = \1)", {" = "}},
        {"\u00c4BC", {"\u00e4bc"}},
        {"[a-z]+", {}},
        {"a|[0-9]", {}},
        {R"([\]|x]y)", {"y"}}, // a bar inside a class, behind an escaped bracket, splits nothing
        {"(?x) g o", {}},
        {R"(\QGo\E)", {}},
    };
    for (const auto &row : rows)
        EXPECT_EQ(LiteralFilter::requiredLiterals(QString::fromUtf8(row.pattern)), row.literals)
            << row.pattern;
}

// Keywords are tried at their own events only, ignoring case, each once, whether or not
// their pattern has a literal to look for first; one that can't be tried says why.
TEST(KeywordChecker, TriesEachPatternAtItsEventsAndSaysWhichCantBeTried)
{
    KeywordChecker checker({
        unauthorisedKeyword(R"(\bGoTo\b)", {P::ProcedureBody}),
        unauthorisedKeyword(R"(\bStop\b)", {P::ProcedureBody, P::Declaration}),
        unauthorisedKeyword(R"((\w+) = \1\b)", {P::ProcedureBody}),
        unauthorisedKeyword("^Public Sub", {P::BeginProcedure}),
        unauthorisedKeyword("Sub (", {P::ProcedureBody}),
        unauthorisedKeyword("End", {1, 37}),
        unauthorisedKeyword("", {P::ProcedureBody}),
    });
    const struct
    {
        quint64 events;
        const char *code;
        std::vector<qsizetype> keywords;
    } rows[] = {
        {P::bit(P::SourceLine) | P::bit(P::ProcedureBody), "If a Then GoTo b", {0}},
        {P::bit(P::SourceLine) | P::bit(P::Declaration), "GoTo b", {}},
        {P::bit(P::Declaration), "stop", {1}},
        {P::bit(P::ProcedureBody), "x = x", {2}},
        {P::bit(P::ProcedureBody), "x = y", {}},
        {P::bit(P::ProcedureBody), "Stop: x = x: goto z", {0, 1, 2}},
        {P::bit(P::BeginProcedure), "Public Sub Foo()", {3}},
        {P::bit(P::ProcedureBody), "Public Sub Foo()", {}},
        {P::bit(P::EndProcedure), "End Sub", {}},
    };
    for (const auto &row : rows) {
        std::vector<KeywordChecker::Match> matches;
        checker.check(row.events, QString::fromLatin1(row.code), matches);
        std::vector<qsizetype> found;
        for (const auto &match : matches)
            found.push_back(match.keyword);
        std::sort(found.begin(), found.end());
        EXPECT_EQ(found, row.keywords) << row.code;
    }
    std::vector<KeywordChecker::Match> matches;
    checker.check(P::bit(P::ProcedureBody), u"x = GOTO", matches);
    ASSERT_EQ(matches.size(), 1u);
    EXPECT_EQ(matches[0].text, u"GOTO"_s);

    std::vector<std::pair<qsizetype, QString>> problems;
    for (const auto &problem : checker.problems())
        problems.emplace_back(problem.keyword, problem.reason);
    ASSERT_EQ(problems.size(), 3u);
    EXPECT_EQ(problems[0].first, 4);
    EXPECT_TRUE(problems[0].second.startsWith("its pattern does not compile"_L1));
    EXPECT_EQ(problems[1],
              std::make_pair(qsizetype(5), u"its parser events have no source line"_s));
    EXPECT_EQ(problems[2], std::make_pair(qsizetype(6), u"it has no pattern"_s));
}
