#include "project/ViolationStatistics.h"

#include "platform/ErrorFrame.h"

#include <QtNumeric>

namespace {

constexpr const char *Module = "ViolationStatistics";

// Past the 32-bit range the sum fails and the counter keeps its value.
void add(qint32 &counter, qint32 amount)
{
    qint32 sum = 0;
    if (qAddOverflow(counter, amount, &sum))
        throw QuorinError::overflow(QString::fromLatin1(Module));
    counter = sum;
}

} // namespace

void ViolationStatistics::IncrementCount(qint32 severityLevel, qint16 impact)
{
    guardedVoid("IncrementCount", Module, [&] {
        struct Pair
        {
            qint32 &violations;
            qint32 &impact;
        };
        const Pair levels[] = {
            {m_criticalViolations, m_criticalImpact},
            {m_highViolations, m_highImpact},
            {m_mediumViolations, m_mediumImpact},
            {m_lowViolations, m_lowImpact},
            {m_infoViolations, m_infoImpact},
        };
        if (severityLevel < 1 || severityLevel > 5)
            return;
        const Pair &level = levels[severityLevel - 1];
        add(level.violations, 1);
        add(level.impact, impact);
        add(m_totalViolations, 1);
        add(m_totalImpact, impact);
    });
}
