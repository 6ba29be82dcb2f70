#include "preview/KeywordChecker.h"

#include "preview/ParserEvent.h"
#include "rulebase/UnauthorisedKeyword.h"

namespace {

constexpr auto MatchOptions = QRegularExpression::DontCheckSubjectStringMatchOption;

} // namespace

KeywordChecker::KeywordChecker(std::vector<std::shared_ptr<UnauthorisedKeyword>> keywords)
    : m_keywords(std::move(keywords))
{
    for (qsizetype i = 0; i < qsizetype(m_keywords.size()); ++i) {
        const UnauthorisedKeyword &keyword = *m_keywords[i];
        quint64 events = 0;
        for (qint32 n = 0; n < keyword.EventCount(); ++n)
            events |= ParserEvent::bit(keyword.ParserEventID(n));
        events &= ParserEvent::withLines();
        QRegularExpression pattern(keyword.Condition(), QRegularExpression::CaseInsensitiveOption);
        if (keyword.Condition().isEmpty()) {
            m_problems.push_back({i, QStringLiteral("it has no pattern")});
            events = 0;
        } else if (!pattern.isValid()) {
            m_problems.push_back(
                {i, QStringLiteral("its pattern does not compile: ") + pattern.errorString()});
            events = 0;
        } else if (events == 0) {
            m_problems.push_back({i, QStringLiteral("its parser events have no source line")});
        }
        pattern.optimize();
        const QStringList literals
            = events != 0 ? LiteralFilter::requiredLiterals(keyword.Condition()) : QStringList();
        m_filter.add(i, literals);
        m_filtered.push_back(!literals.isEmpty());
        m_patterns.push_back(std::move(pattern));
        m_keywordEvents.push_back(events);
        m_events |= events;
    }
}

KeywordChecker::~KeywordChecker() = default;

const std::vector<qsizetype> &KeywordChecker::members(quint64 events)
{
    auto found = m_members.find(events);
    if (found == m_members.end()) {
        std::vector<qsizetype> list;
        for (qsizetype i = 0; i < qsizetype(m_keywords.size()); ++i) {
            if ((m_keywordEvents[i] & events) != 0)
                list.push_back(i);
        }
        found = m_members.insert(events, std::move(list));
    }
    return *found;
}

void KeywordChecker::check(quint64 events, QStringView code, std::vector<Match> &matches)
{
    events &= m_events;
    if (events == 0 || code.isEmpty())
        return;
    m_hits.assign(m_keywords.size(), 0);
    m_filter.find(code, m_hits);
    for (const qsizetype i : members(events)) {
        if (m_filtered[i] && !m_hits[i])
            continue;
        const QRegularExpressionMatch match
            = m_patterns[i].match(code, 0, QRegularExpression::NormalMatch, MatchOptions);
        if (match.hasMatch())
            matches.push_back({i, match.captured(0)});
    }
}
