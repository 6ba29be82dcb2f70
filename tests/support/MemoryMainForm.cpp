#include "support/MemoryMainForm.h"

using namespace Qt::StringLiterals;

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
    calls << u"Update"_s;
}

void MemoryMainForm::SetCurrentViewTool(const QString &viewName)
{
    currentViewTool = viewName;
    calls << u"View "_s + viewName;
}

int MemoryMainForm::RunTipOfDay(int lastTip)
{
    calls << u"Tip"_s;
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
