#pragma once

#include <QHash>
#include <QString>

#include <vector>

// Where each key of a keyed list stands, by case-folded key, so that finding the first entry
// of a key needs no walk. The keyed list keeps it in step with every change of its keys.
class KeyIndex
{
public:
    // The lowest position holding the key, ignoring case; -1 when none does.
    qint32 first(const QString &key) const;
    void insert(const QString &key, qint32 position);
    void erase(const QString &key, qint32 position);
    void clear() { m_positions.clear(); }

    // The form two keys share exactly when they are equal ignoring case.
    static QString fold(const QString &key);

private:
    // Most keys stand once; the rare duplicates (lists filled without the uniqueness check)
    // go to `more`, ascending, so the common case allocates nothing beyond the hash node.
    struct Positions
    {
        qint32 lowest = -1;
        std::vector<qint32> more;
    };

    QHash<QString, Positions> m_positions;
};
