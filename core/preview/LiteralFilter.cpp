#include "preview/LiteralFilter.h"

namespace {

QChar fold(QChar c)
{
    if (c.unicode() < 128)
        return (c >= u'A' && c <= u'Z') ? QChar(c.unicode() + 32) : c;
    return c.toCaseFolded();
}

// The mandatory literal runs of one alternative, or false when it has a construct this
// reading does not follow.
bool runsOf(QStringView pattern, QStringList &runs)
{
    QString run;
    auto endRun = [&] {
        if (!run.isEmpty())
            runs << run;
        run.clear();
    };
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == u'\\') {
            if (i + 1 >= pattern.size())
                return false;
            const QChar next = pattern[++i];
            if (next == u'Q' || next == u'E')
                return false;
            if (next.isLetterOrNumber()) {
                endRun(); // a class, an assertion, a back-reference, an escape of a code
                continue;
            }
            run += fold(next);
        } else if (c == u'[') {
            // A class: one character of a set, no literal.
            endRun();
            ++i;
            if (i < pattern.size() && pattern[i] == u'^')
                ++i;
            if (i < pattern.size() && pattern[i] == u']')
                ++i;
            while (i < pattern.size() && pattern[i] != u']') {
                if (pattern[i] == u'\\')
                    ++i;
                ++i;
            }
            if (i >= pattern.size())
                return false;
        } else if (c == u'(') {
            // A group's content is not followed: it may be optional or an alternation.
            if (pattern.mid(i).startsWith(u"(?") && i + 2 < pattern.size() && pattern[i + 2] != u':'
                && pattern[i + 2] != u'=' && pattern[i + 2] != u'!' && pattern[i + 2] != u'<') {
                // An option setting such as (?i) changes no letter's case here, but (?x)
                // makes blanks mean nothing.
                const qsizetype close = pattern.indexOf(u')', i);
                if (close < 0 || pattern.mid(i, close - i).contains(u'x'))
                    return false;
            }
            endRun();
            int depth = 0;
            for (; i < pattern.size(); ++i) {
                if (pattern[i] == u'\\') {
                    ++i;
                } else if (pattern[i] == u'[') {
                    while (i < pattern.size() && pattern[i] != u']')
                        i += pattern[i] == u'\\' ? 2 : 1;
                } else if (pattern[i] == u'(') {
                    ++depth;
                } else if (pattern[i] == u')' && --depth == 0) {
                    break;
                }
            }
            if (i >= pattern.size())
                return false;
        } else if (c == u'?' || c == u'*' || c == u'{') {
            // The atom before may be absent: it leaves the run.
            if (!run.isEmpty())
                run.chop(1);
            endRun();
            if (c == u'{') {
                const qsizetype close = pattern.indexOf(u'}', i);
                if (close < 0)
                    return false;
                i = close;
            }
        } else if (c == u'+') {
            endRun(); // the atom stays, what follows is not next to it
        } else if (c == u'.' || c == u'^' || c == u'$') {
            endRun();
        } else if (c == u')' || c == u'|') {
            return false;
        } else {
            run += fold(c);
        }
    }
    endRun();
    return true;
}

// Top-level alternatives, outside groups and classes.
QList<QStringView> alternatives(QStringView pattern)
{
    QList<QStringView> parts;
    int depth = 0;
    qsizetype start = 0;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern[i];
        if (c == u'\\') {
            ++i;
        } else if (c == u'[') {
            while (i < pattern.size() && pattern[i] != u']')
                i += pattern[i] == u'\\' ? 2 : 1;
        } else if (c == u'(') {
            ++depth;
        } else if (c == u')') {
            --depth;
        } else if (c == u'|' && depth == 0) {
            parts << pattern.mid(start, i - start);
            start = i + 1;
        }
    }
    parts << pattern.mid(start);
    return parts;
}

} // namespace

QStringList LiteralFilter::requiredLiterals(const QString &pattern)
{
    QStringList literals;
    for (const QStringView alternative : alternatives(pattern)) {
        QStringList runs;
        if (!runsOf(alternative, runs) || runs.isEmpty())
            return {};
        // The longest run of the alternative is the rarest to meet.
        QString best;
        for (const QString &run : runs) {
            if (run.size() > best.size())
                best = run;
        }
        literals << best;
    }
    return literals;
}

void LiteralFilter::add(qsizetype id, const QStringList &literals)
{
    for (const QString &literal : literals) {
        const char16_t first = literal.at(0).unicode();
        m_byFirst[first < 128 ? first : 128].push_back({literal, id});
    }
}

void LiteralFilter::find(QStringView text, std::vector<char> &hits)
{
    m_folded.resize(text.size());
    for (qsizetype i = 0; i < text.size(); ++i)
        m_folded[i] = fold(text[i]);
    const QStringView folded = m_folded;
    for (qsizetype i = 0; i < folded.size(); ++i) {
        const char16_t c = folded[i].unicode();
        for (const Literal &literal : m_byFirst[c < 128 ? c : 128]) {
            if (!hits[literal.id] && folded.mid(i).startsWith(literal.text))
                hits[literal.id] = 1;
        }
    }
}
