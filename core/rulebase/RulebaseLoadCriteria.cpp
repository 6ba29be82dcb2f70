#include "rulebase/RulebaseLoadCriteria.h"

#include "platform/TextUtils.h"

void RulebaseLoadCriteria::setRulebaseFile(const QString &filename)
{
    // A change of letter case alone is no change of file: not stored, not dirty.
    if (Text::same(filename, m_rulebaseFile))
        return;
    m_rulebaseFile = filename;
    m_dirty = true;
}

void RulebaseLoadCriteria::setFlag(bool &flag, bool value)
{
    if (flag == value)
        return;
    flag = value;
    m_dirty = true;
}

bool RulebaseLoadCriteria::SeverityLevel(qint32 level) const
{
    if (level < 1 || level > qint32(m_severityLevels.size()))
        return false;
    return m_severityLevels[std::size_t(level - 1)];
}

void RulebaseLoadCriteria::setSeverityLevel(qint32 level, bool load)
{
    if (level < 1 || level > qint32(m_severityLevels.size()))
        return;
    setFlag(m_severityLevels[std::size_t(level - 1)], load);
}

void RulebaseLoadCriteria::AddExcludedCategoryID(qint32 id)
{
    if (m_excludedCategoryIDs.ContainsValue(id))
        return;
    m_excludedCategoryIDs.Add(id);
    m_dirty = true;
}

void RulebaseLoadCriteria::RemoveExcludedCategoryID(qint32 id)
{
    const qint32 index = m_excludedCategoryIDs.IndexOfValue(id);
    if (index == -1)
        return;
    m_excludedCategoryIDs.Remove(index);
    m_dirty = true;
}
