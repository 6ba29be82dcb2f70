#include "support/MemoryMainForm.h"

void MemoryMainForm::setToolEnabled(const QString &toolId, bool enabled)
{
    m_tools.insert(toolId.toLower(), enabled);
}

bool MemoryMainForm::toolEnabled(const QString &toolId) const
{
    return m_tools.value(toolId.toLower(), false);
}
