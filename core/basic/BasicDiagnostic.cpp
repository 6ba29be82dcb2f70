#include "basic/BasicDiagnostic.h"

QString BasicDiagnostic::located() const
{
    return QStringLiteral("line %1, column %2: %3").arg(line).arg(column).arg(message);
}
