#include "collections/KeyIndex.h"

#include <algorithm>

qint32 KeyIndex::first(const QString &key) const
{
    const auto it = m_positions.constFind(fold(key));
    return it == m_positions.cend() ? -1 : it->lowest;
}

void KeyIndex::insert(const QString &key, qint32 position)
{
    Positions &at = m_positions[fold(key)];
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
    const auto it = m_positions.find(fold(key));
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

QString KeyIndex::fold(const QString &key)
{
    // Folds each character the way QString::compare(..., Qt::CaseInsensitive) does, so that
    // equal folds and case-insensitive equality always agree.
    QString folded;
    folded.reserve(key.size());
    const qsizetype n = key.size();
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = key[i];
        if (c.isHighSurrogate() && i + 1 < n && key[i + 1].isLowSurrogate()) {
            const char32_t code = QChar::toCaseFolded(QChar::surrogateToUcs4(c, key[i + 1]));
            if (QChar::requiresSurrogates(code)) {
                folded += QChar(QChar::highSurrogate(code));
                folded += QChar(QChar::lowSurrogate(code));
            } else {
                folded += QChar(char16_t(code));
            }
            ++i;
        } else {
            folded += QChar(QChar::toCaseFolded(c.unicode()));
        }
    }
    return folded;
}
