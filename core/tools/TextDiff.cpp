#include "tools/TextDiff.h"

#include <QRegularExpression>

#include <vector>

namespace {

// Beyond this many cells the middle is shown as removed and added whole: a longest common
// subsequence table of that size would cost more memory than a condition deserves.
constexpr qsizetype maxTableCells = 4'000'000;

QString range(qsizetype start, qsizetype count)
{
    // Unified diffs number from 1, and an empty range names the line before it.
    if (count == 0)
        return QString::number(start) + QStringLiteral(",0");
    if (count == 1)
        return QString::number(start + 1);
    return QString::number(start + 1) + QLatin1Char(',') + QString::number(count);
}

} // namespace

QStringList TextDiff::splitLines(const QString &text)
{
    if (text.isEmpty())
        return {};
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\n|\r"));
    QStringList lines = text.split(lineEnd);
    // A final line end closes the last line; it does not open another.
    if (lines.size() > 1 && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QList<TextDiff::Step> TextDiff::steps(const QStringList &a, const QStringList &b)
{
    QList<Step> result;
    qsizetype prefix = 0;
    while (prefix < a.size() && prefix < b.size() && a.at(prefix) == b.at(prefix))
        ++prefix;
    qsizetype suffix = 0;
    while (suffix < a.size() - prefix && suffix < b.size() - prefix
           && a.at(a.size() - 1 - suffix) == b.at(b.size() - 1 - suffix))
        ++suffix;

    for (qsizetype i = 0; i < prefix; ++i)
        result.append({Op::Same, i, i});

    const qsizetype n = a.size() - prefix - suffix;
    const qsizetype m = b.size() - prefix - suffix;
    if (n > 0 && m > 0 && (n + 1) * (m + 1) <= maxTableCells) {
        // lcs[i][j]: the longest common subsequence of the middles from i and j on.
        std::vector<int> lcs(size_t((n + 1) * (m + 1)), 0);
        const auto at = [m](qsizetype i, qsizetype j) { return size_t(i * (m + 1) + j); };
        for (qsizetype i = n - 1; i >= 0; --i) {
            for (qsizetype j = m - 1; j >= 0; --j) {
                lcs[at(i, j)] = a.at(prefix + i) == b.at(prefix + j)
                                    ? lcs[at(i + 1, j + 1)] + 1
                                    : std::max(lcs[at(i + 1, j)], lcs[at(i, j + 1)]);
            }
        }
        qsizetype i = 0;
        qsizetype j = 0;
        while (i < n && j < m) {
            if (a.at(prefix + i) == b.at(prefix + j)) {
                result.append({Op::Same, prefix + i, prefix + j});
                ++i;
                ++j;
            } else if (lcs[at(i + 1, j)] >= lcs[at(i, j + 1)]) {
                result.append({Op::Removed, prefix + i, prefix + j});
                ++i;
            } else {
                result.append({Op::Added, prefix + i, prefix + j});
                ++j;
            }
        }
        for (; i < n; ++i)
            result.append({Op::Removed, prefix + i, prefix + m});
        for (; j < m; ++j)
            result.append({Op::Added, prefix + n, prefix + j});
    } else {
        for (qsizetype i = 0; i < n; ++i)
            result.append({Op::Removed, prefix + i, prefix});
        for (qsizetype j = 0; j < m; ++j)
            result.append({Op::Added, prefix + n, prefix + j});
    }

    for (qsizetype k = 0; k < suffix; ++k)
        result.append({Op::Same, a.size() - suffix + k, b.size() - suffix + k});
    return result;
}

QStringList TextDiff::unified(const QString &oldText, const QString &newText, int context)
{
    const QStringList a = splitLines(oldText);
    const QStringList b = splitLines(newText);
    if (a == b)
        return {};
    const QList<Step> all = steps(a, b);

    QStringList out;
    qsizetype k = 0;
    while (k < all.size()) {
        // Find the next change, then grow the hunk while changes lie within 2 * context.
        while (k < all.size() && all.at(k).op == Op::Same)
            ++k;
        if (k == all.size())
            break;
        qsizetype start = std::max<qsizetype>(0, k - context);
        qsizetype end = k;
        qsizetype lastChange = k;
        while (end < all.size()) {
            if (all.at(end).op != Op::Same)
                lastChange = end;
            else if (end - lastChange > 2 * context)
                break;
            ++end;
        }
        end = std::min(all.size(), lastChange + context + 1);

        qsizetype oldCount = 0;
        qsizetype newCount = 0;
        QStringList body;
        for (qsizetype s = start; s < end; ++s) {
            const Step &step = all.at(s);
            switch (step.op) {
            case Op::Same:
                body << QLatin1Char(' ') + a.at(step.oldLine);
                ++oldCount;
                ++newCount;
                break;
            case Op::Removed:
                body << QLatin1Char('-') + a.at(step.oldLine);
                ++oldCount;
                break;
            case Op::Added:
                body << QLatin1Char('+') + b.at(step.newLine);
                ++newCount;
                break;
            }
        }
        const Step &first = all.at(start);
        out << QStringLiteral("@@ -%1 +%2 @@")
                   .arg(range(first.oldLine, oldCount), range(first.newLine, newCount));
        out << body;
        k = end;
    }
    return out;
}
