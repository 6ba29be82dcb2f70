#include "collections/KeyIndex.h"

#include <algorithm>

size_t KeyIndex::hash(QStringView key, size_t seed) noexcept
{
    // FNV-1a over the folded values, then a finaliser that spreads them over the low bits the
    // table uses. The comparison folds each unit on its own, but a low surrogate after a high
    // one as the whole code point; ASCII needs no table.
    quint64 h = 0xcbf29ce484222325ull ^ quint64(seed);
    const char16_t *const units = key.utf16();
    const qsizetype n = key.size();
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t u = units[i];
        char32_t folded;
        if (u < 0x80) {
            folded = u >= u'A' && u <= u'Z' ? char32_t(u | 0x20) : char32_t(u);
        } else if (QChar::isLowSurrogate(u) && i > 0 && QChar::isHighSurrogate(units[i - 1])) {
            folded = QChar::toCaseFolded(QChar::surrogateToUcs4(units[i - 1], u));
        } else {
            folded = QChar::toCaseFolded(char32_t(u));
        }
        h = (h ^ folded) * 0x100000001b3ull;
    }
    h ^= h >> 33;
    h *= 0xff51afd7ed558ccdull;
    h ^= h >> 33;
    h *= 0xc4ceb9fe1a85ec53ull;
    h ^= h >> 33;
    return size_t(h);
}

qint32 KeyIndex::first(const QString &key) const
{
    const auto it = m_positions.constFind(Key{key});
    return it == m_positions.cend() ? -1 : it->lowest;
}

void KeyIndex::insert(const QString &key, qint32 position)
{
    Positions &at = m_positions[Key{key}];
    if (at.lowest == -1) {
        at.lowest = position;
    } else if (position < at.lowest) {
        at.more.insert(at.more.begin(), at.lowest);
        at.lowest = position;
    } else {
        at.more.insert(std::upper_bound(at.more.begin(), at.more.end(), position), position);
    }
}

void KeyIndex::erase(const QString &key, qint32 position)
{
    const auto it = m_positions.find(Key{key});
    if (it == m_positions.end())
        return;
    Positions &at = *it;
    if (at.lowest == position) {
        if (at.more.empty()) {
            m_positions.erase(it);
            return;
        }
        at.lowest = at.more.front();
        at.more.erase(at.more.begin());
        return;
    }
    const auto found = std::lower_bound(at.more.begin(), at.more.end(), position);
    if (found != at.more.end() && *found == position)
        at.more.erase(found);
}
