#include "preview/KeywordChecker.h"

#include "preview/ParserEvent.h"
#include "rulebase/UnauthorisedKeyword.h"

namespace {

constexpr auto MatchOptions = QRegularExpression::DontCheckSubjectStringMatchOption;

// A pattern that counts or names its groups would change meaning inside another expression.
bool combinable(const QString &pattern)
{
    static const QRegularExpression numbered(
        QStringLiteral(R"(\\[1-9gk]|\(\?(P|<[A-Za-z_]|'|\||\())"));
    return !numbered.match(pattern).hasMatch();
}

} // namespace

struct KeywordChecker::Group
{
    std::vector<qsizetype> members;
    // All members' patterns as alternatives; invalid when they can't be joined.
    QRegularExpression combined;
    std::vector<qsizetype> alone; // members always tried one by one
};

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
        m_patterns.push_back(std::move(pattern));
        m_keywordEvents.push_back(events);
        m_events |= events;
    }
}

KeywordChecker::~KeywordChecker() = default;

KeywordChecker::Group &KeywordChecker::group(quint64 events)
{
    auto found = m_groups.constFind(events);
    if (found != m_groups.constEnd())
        return **found;
    auto made = std::make_shared<Group>();
    QStringList alternatives;
    for (qsizetype i = 0; i < qsizetype(m_keywords.size()); ++i) {
        if ((m_keywordEvents[i] & events) == 0)
            continue;
        made->members.push_back(i);
        if (combinable(m_keywords[i]->Condition()))
            alternatives << QStringLiteral("(?:") + m_keywords[i]->Condition() + QLatin1Char(')');
        else
            made->alone.push_back(i);
    }
    if (alternatives.size() > 1) {
        made->combined = QRegularExpression(alternatives.join(QLatin1Char('|')),
                                            QRegularExpression::CaseInsensitiveOption);
        made->combined.optimize();
    }
    if (!made->combined.isValid() || alternatives.size() <= 1) {
        made->combined = QRegularExpression();
        made->alone = made->members;
    }
    m_groups.insert(events, made);
    return *made;
}

void KeywordChecker::check(quint64 events, QStringView code, std::vector<Match> &matches)
{
    events &= m_events;
    if (events == 0 || code.isEmpty())
        return;
    Group &found = group(events);
    auto tryOne = [&](qsizetype i) {
        const QRegularExpressionMatch match
            = m_patterns[i].match(code, 0, QRegularExpression::NormalMatch, MatchOptions);
        if (match.hasMatch())
            matches.push_back({i, match.captured(0)});
    };
    if (found.combined.isValid() && !found.combined.pattern().isEmpty()) {
        const bool any
            = found.combined.match(code, 0, QRegularExpression::NormalMatch, MatchOptions)
                  .hasMatch();
        if (any) {
            for (const qsizetype i : found.members)
                tryOne(i);
            return;
        }
    }
    for (const qsizetype i : found.alone)
        tryOne(i);
}
