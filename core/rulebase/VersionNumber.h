#pragma once

#include <QString>

// A rulebase version "major.minor.revision", the revision written with four digits.
class VersionNumber final
{
public:
    // The largest minor and revision; one more carries into the part before.
    static constexpr qint16 LargestPart = 9999;

    qint16 Major() const { return m_major; }
    void setMajor(qint16 major) { m_major = major; }
    qint16 Minor() const { return m_minor; }
    void setMinor(qint16 minor) { m_minor = minor; }
    qint16 Revision() const { return m_revision; }
    void setRevision(qint16 revision) { m_revision = revision; }
    // The text setters take the empty string as 0 and raise a conversion error otherwise.
    QString MajorString() const { return QString::number(m_major); }
    void setMajorString(const QString &text);
    QString MinorString() const { return QString::number(m_minor); }
    void setMinorString(const QString &text);
    QString RevisionString() const;
    void setRevisionString(const QString &text);

    // "1.2.0003".
    QString Version() const;
    // A version of fewer than three parts is reported at the missing part, after the parts
    // before it were set.
    void setVersion(const QString &version);
    // Revision up by one, carrying past 9999 into Minor, and past 9999 there into Major.
    void Increment();

private:
    qint16 m_major = 0;
    qint16 m_minor = 0;
    qint16 m_revision = 0;
};
