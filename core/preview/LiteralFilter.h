#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>
#include <vector>

// Tells which patterns might match a text before any of them is run: each pattern is given
// the literal texts one of which every match of it must contain, found in the pattern
// itself; a text that holds none of them can't match. Letters compare case-folded.
class LiteralFilter final
{
public:
    // The literals one of which every match of `pattern` contains, case-folded; empty when
    // the pattern guarantees none that this reading can find.
    static QStringList requiredLiterals(const QString &pattern);

    // Registers the literals of pattern `id` (ids from 0, each added once).
    void add(qsizetype id, const QStringList &literals);
    // Sets `hits[id]` for every pattern whose literal occurs in `text`.
    void find(QStringView text, std::vector<char> &hits);

private:
    struct Literal
    {
        QString text; // case-folded
        qsizetype id;
    };
    // By the first character when it is ASCII; the others share the last bucket.
    std::array<std::vector<Literal>, 129> m_byFirst;
    QString m_folded; // the text being searched, case-folded
};
