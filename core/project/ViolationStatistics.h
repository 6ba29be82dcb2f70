#pragma once

#include <QtGlobal>

// Violations and their summed impact by severity level (1 Critical to 5 Info), with totals.
class ViolationStatistics final
{
public:
    qint32 CriticalViolations() const { return m_criticalViolations; }
    void setCriticalViolations(qint32 value) { m_criticalViolations = value; }
    qint32 CriticalImpact() const { return m_criticalImpact; }
    void setCriticalImpact(qint32 value) { m_criticalImpact = value; }
    qint32 HighViolations() const { return m_highViolations; }
    void setHighViolations(qint32 value) { m_highViolations = value; }
    qint32 HighImpact() const { return m_highImpact; }
    void setHighImpact(qint32 value) { m_highImpact = value; }
    qint32 MediumViolations() const { return m_mediumViolations; }
    void setMediumViolations(qint32 value) { m_mediumViolations = value; }
    qint32 MediumImpact() const { return m_mediumImpact; }
    void setMediumImpact(qint32 value) { m_mediumImpact = value; }
    qint32 LowViolations() const { return m_lowViolations; }
    void setLowViolations(qint32 value) { m_lowViolations = value; }
    qint32 LowImpact() const { return m_lowImpact; }
    void setLowImpact(qint32 value) { m_lowImpact = value; }
    qint32 InfoViolations() const { return m_infoViolations; }
    void setInfoViolations(qint32 value) { m_infoViolations = value; }
    qint32 InfoImpact() const { return m_infoImpact; }
    void setInfoImpact(qint32 value) { m_infoImpact = value; }
    qint32 TotalViolations() const { return m_totalViolations; }
    void setTotalViolations(qint32 value) { m_totalViolations = value; }
    qint32 TotalImpact() const { return m_totalImpact; }
    void setTotalImpact(qint32 value) { m_totalImpact = value; }

    // Levels 1 to 5 count, the totals with them; any other level changes nothing.
    void IncrementCount(qint32 severityLevel, qint16 impact);

private:
    qint32 m_criticalViolations = 0;
    qint32 m_criticalImpact = 0;
    qint32 m_highViolations = 0;
    qint32 m_highImpact = 0;
    qint32 m_mediumViolations = 0;
    qint32 m_mediumImpact = 0;
    qint32 m_lowViolations = 0;
    qint32 m_lowImpact = 0;
    qint32 m_infoViolations = 0;
    qint32 m_infoImpact = 0;
    qint32 m_totalViolations = 0;
    qint32 m_totalImpact = 0;
};
