#pragma once

#include "preview/LiteralFilter.h"

#include <QHash>
#include <QRegularExpression>
#include <QString>
#include <QStringView>

#include <memory>
#include <vector>

class UnauthorisedKeyword;

// Tries the patterns of unauthorised keywords on lines of code at the parser events each is
// assigned to. Patterns match ignoring case, as the language's keywords do, and the first
// match counts. A pattern runs only on a line that holds a literal every match of it needs,
// so that most lines cost one pass over their characters whatever the number of keywords.
class KeywordChecker final
{
public:
    struct Match
    {
        qsizetype keyword; // index into the list given
        QString text;      // what the pattern matched
    };
    // A keyword that can't be tried, and why.
    struct Problem
    {
        qsizetype keyword;
        QString reason;
    };

    explicit KeywordChecker(std::vector<std::shared_ptr<UnauthorisedKeyword>> keywords);
    ~KeywordChecker();

    const std::vector<std::shared_ptr<UnauthorisedKeyword>> &keywords() const { return m_keywords; }
    const std::vector<Problem> &problems() const { return m_problems; }
    // The events any keyword listens to; lines of no other event need not be offered.
    quint64 events() const { return m_events; }

    // Appends the keywords assigned to any of `events` whose pattern matches `code`, once each.
    void check(quint64 events, QStringView code, std::vector<Match> &matches);

private:
    // The keywords assigned to any of a set of events.
    const std::vector<qsizetype> &members(quint64 events);

    std::vector<std::shared_ptr<UnauthorisedKeyword>> m_keywords;
    std::vector<QRegularExpression> m_patterns; // invalid for a keyword with a problem
    std::vector<quint64> m_keywordEvents;
    std::vector<Problem> m_problems;
    std::vector<char> m_filtered; // the keyword has literals to look for first
    quint64 m_events = 0;
    QHash<quint64, std::vector<qsizetype>> m_members;
    LiteralFilter m_filter;
    std::vector<char> m_hits;
};
