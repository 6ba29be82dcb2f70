#pragma once

#include "collections/IListItem.h"

// A level of severity. Violations refer to it by SeverityLevel (1 is the highest); the levels
// are fixed, so there is no allocator. No dirty flag: changes show through the list's.
class SeverityItem final : public IListItem
{
public:
    QString Key() const override { return m_key; }
    void setKey(const QString &key) { m_key = key; }
    QString Title() const override { return m_title; }
    void setTitle(const QString &title) { m_title = title; }
    QString Description() const override { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    QString SeverityLevelText() const { return m_severityLevelText; }
    void setSeverityLevelText(const QString &text) { m_severityLevelText = text; }
    qint32 SeverityLevel() const { return m_severityLevel; }
    void setSeverityLevel(qint32 level) { m_severityLevel = level; }
    // Index of the severity's icon in the severity image list.
    qint32 Colour() const { return m_colour; }
    void setColour(qint32 colour) { m_colour = colour; }
    // Only the suggested impact; each violation keeps its own.
    qint16 Impact() const { return m_impact; }
    void setImpact(qint16 impact) { m_impact = impact; }

    qint32 ID() const override { return m_severityLevel; }

private:
    void setListKey(const QString &key) override { m_key = key; }

    QString m_key;
    QString m_title;
    QString m_description;
    QString m_severityLevelText;
    qint32 m_severityLevel = 0;
    qint32 m_colour = 0;
    qint16 m_impact = 0;
};
