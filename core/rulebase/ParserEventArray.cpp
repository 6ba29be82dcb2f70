#include "rulebase/ParserEventArray.h"

#include "platform/QuorinError.h"

#include <QStringList>

#include <algorithm>

qint32 ParserEventArray::ID(qint32 index) const
{
    if (index < 0 || index >= Count())
        throw QuorinError::subscriptOutOfRange(QStringLiteral("ParserEventID"));
    return m_ids[std::size_t(index)];
}

QString ParserEventArray::List() const
{
    QStringList parts;
    parts.reserve(qsizetype(m_ids.size()));
    for (const qint32 id : m_ids)
        parts << QString::number(id);
    return parts.join(QLatin1Char('|'));
}

bool ParserEventArray::Contains(qint32 id) const
{
    return std::find(m_ids.begin(), m_ids.end(), id) != m_ids.end();
}

bool ParserEventArray::Add(qint32 id)
{
    if (Contains(id))
        return false;
    m_ids.push_back(id);
    return true;
}

void ParserEventArray::Remove(qint32 id)
{
    if (id == -1) {
        m_ids.clear();
        return;
    }
    const auto found = std::find(m_ids.begin(), m_ids.end(), id);
    if (found == m_ids.end())
        return;
    *found = m_ids.back();
    m_ids.pop_back();
}
