#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QString>
#include <QStringView>

#include <memory>
#include <vector>

class UnauthorisedKeyword;

// Tries the patterns of unauthorised keywords on lines of code at the parser events each is
// assigned to. Patterns match ignoring case, as the language's keywords do, and the first
// match counts. The keywords of one set of events are tried together in one expression first,
// so that a line without any of them costs one search.
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
    struct Group;
    Group &group(quint64 events);

    std::vector<std::shared_ptr<UnauthorisedKeyword>> m_keywords;
    std::vector<QRegularExpression> m_patterns; // invalid for a keyword with a problem
    std::vector<quint64> m_keywordEvents;
    std::vector<Problem> m_problems;
    quint64 m_events = 0;
    QHash<quint64, std::shared_ptr<Group>> m_groups;
};
