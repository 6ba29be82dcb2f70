#pragma once

#include "platform/TextUtils.h"

#include <QHash>
#include <QString>
#include <QStringView>

#include <vector>

// Where each key of a keyed list stands, ignoring case, so that finding the first entry of a
// key needs no walk. The keyed list keeps it in step with every change of its keys.
class KeyIndex
{
public:
    // The lowest position holding the key, ignoring case; -1 when none does.
    qint32 first(const QString &key) const;
    void insert(const QString &key, qint32 position);
    void erase(const QString &key, qint32 position);
    void clear() { m_positions.clear(); }

    // Equal for any two keys that are equal ignoring case, and computed without a folded copy:
    // each position contributes the value QString::compare(..., Qt::CaseInsensitive) compares.
    static size_t hash(QStringView key, size_t seed = 0) noexcept;

private:
    // The key as the list holds it (shared, not copied); equal ignoring case.
    struct Key
    {
        QString text;
        friend bool operator==(const Key &a, const Key &b) noexcept
        {
            return Text::same(a.text, b.text);
        }
        friend size_t qHash(const Key &key, size_t seed) noexcept
        {
            return KeyIndex::hash(key.text, seed);
        }
    };

    // Most keys stand once; the rare duplicates (lists filled without the uniqueness check)
    // go to `more`, ascending, so the common case allocates nothing beyond the hash node.
    struct Positions
    {
        qint32 lowest = -1;
        std::vector<qint32> more;
    };

    QHash<Key, Positions> m_positions;
};
