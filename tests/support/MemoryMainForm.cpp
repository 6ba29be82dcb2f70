#include "support/MemoryMainForm.h"

void MemoryMainForm::setToolEnabled(const QString &toolId, bool enabled)
{
    m_tools.insert(toolId.toLower(), enabled);
}

bool MemoryMainForm::toolEnabled(const QString &toolId) const
{
    return m_tools.value(toolId.toLower(), false);
}

void MemoryMainForm::Update()
{
    ++updates;
    calls << QStringLiteral("Update");
}

void MemoryMainForm::SetCurrentViewTool(const QString &viewName)
{
    currentViewTool = viewName;
    calls << QStringLiteral("View ") + viewName;
}

int MemoryMainForm::RunTipOfDay(int lastTip)
{
    calls << QStringLiteral("Tip");
    return lastTip + 1;
}

TreeControl *MemoryMainForm::tree()
{
    return controls ? &treeControl : nullptr;
}

ListControl *MemoryMainForm::list()
{
    return controls ? &listControl : nullptr;
}
