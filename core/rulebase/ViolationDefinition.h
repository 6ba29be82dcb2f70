#pragma once

#include <QString>

#include <memory>

// What the review product reports when a rule fires. Severity refers to a
// SeverityItem::SeverityLevel, CategoryID to a CategoryItem::ID (-1: no category).
class ViolationDefinition final
{
public:
    qint32 Severity() const { return m_severity; }
    void setSeverity(qint32 severity);
    qint16 Impact() const { return m_impact; }
    void setImpact(qint16 impact);
    // The reported text; may hold %Object.Property% placeholders.
    QString Description() const { return m_description; }
    void setDescription(const QString &description);
    // For the rulebase author only; setting it leaves Dirty alone, and it is not saved.
    QString ViolationDescription() const { return m_violationDescription; }
    void setViolationDescription(const QString &text) { m_violationDescription = text; }
    QString Title() const { return m_title; }
    void setTitle(const QString &title);
    QString Advice() const { return m_advice; }
    void setAdvice(const QString &advice);
    bool Dirty() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }
    qint32 CategoryID() const { return m_categoryID; }
    void setCategoryID(qint32 categoryID);

    // A new definition filled through the setters with every field of this one; what a
    // cloned rule gets, so that definitions are never shared.
    std::shared_ptr<ViolationDefinition> Copy() const;

private:
    qint32 m_severity = 0;
    qint16 m_impact = 0;
    QString m_description;
    QString m_violationDescription;
    QString m_title;
    QString m_advice;
    bool m_dirty = false;
    qint32 m_categoryID = -1;
};
