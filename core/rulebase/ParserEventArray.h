#pragma once

#include <QString>

#include <vector>

// The parser events that run a coding convention or an unauthorised keyword: 0-based, without
// duplicates, in the order they came, except that a removal moves the last id into the gap.
class ParserEventArray final
{
public:
    qint32 Count() const { return qint32(m_ids.size()); }
    // A subscript error outside 0..Count-1.
    qint32 ID(qint32 index) const;
    // "12|15|3"; empty when there are none.
    QString List() const;
    bool Contains(qint32 id) const;
    // False when the id was there already and nothing changed.
    bool Add(qint32 id);
    // -1 removes all; an id not held leaves the array as it is.
    void Remove(qint32 id);

private:
    std::vector<qint32> m_ids;
};
