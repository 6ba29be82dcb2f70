#include "support/MemoryTreeControl.h"

#include "platform/QuorinError.h"

#include <algorithm>

void MemoryTreeControl::clear()
{
    m_tree.clear();
    m_selected = 0;
    m_dropHighlight = 0;
}

int MemoryTreeControl::addChild(int parent,
                                const QString &key,
                                const QString &text,
                                const QString &image)
{
    return m_tree.addChild(parent, key, text, image);
}

int MemoryTreeControl::addAfter(int sibling,
                                const QString &key,
                                const QString &text,
                                const QString &image)
{
    return m_tree.addAfter(sibling, key, text, image);
}

void MemoryTreeControl::setExpanded(int node, bool expanded)
{
    m_tree.setExpanded(node, expanded);
}

const std::vector<int> &MemoryTreeControl::siblingsOf(int node) const
{
    const int parent = m_tree.node(node).parent;
    return parent == 0 ? m_tree.topLevel() : m_tree.node(parent).children;
}

int MemoryTreeControl::sibling(int node, int step) const
{
    const std::vector<int> &siblings = siblingsOf(node);
    const auto at = std::find(siblings.begin(), siblings.end(), node) - siblings.begin() + step;
    return at >= 0 && at < std::ptrdiff_t(siblings.size()) ? siblings[std::size_t(at)] : 0;
}

int MemoryTreeControl::firstSibling(int node) const
{
    return siblingsOf(node).front();
}

void MemoryTreeControl::ensureVisible(int node)
{
    for (int up = m_tree.node(node).parent; up != 0; up = m_tree.node(up).parent)
        m_tree.setExpanded(up, true);
    m_madeVisible.push_back(node);
}

void MemoryTreeControl::setSelectedItem(int node)
{
    if (node != 0)
        m_tree.node(node);
    m_selected = node;
}

int MemoryTreeControl::hitTest(int, int y) const
{
    return y >= 1 && y <= count() ? y : 0;
}

void MemoryTreeControl::click(int node)
{
    setSelectedItem(node);
    if (m_events)
        m_events->NodeClick(node);
}

void MemoryTreeControl::collapse(int node)
{
    m_tree.setExpanded(node, false);
    if (m_events)
        m_events->Collapse(node);
}

void MemoryTreeControl::doubleClick()
{
    if (m_events)
        m_events->DblClick();
}

int MemoryTreeControl::edgeAt(int y) const
{
    if (m_height <= 0)
        return 0;
    if (y <= 1)
        return -1;
    return y >= m_height ? 1 : 0;
}

int MemoryTreeControl::dragOver(int y, int state, bool hasRuleData)
{
    return m_events ? m_events->OLEDragOver(hasRuleData, 0, y, state) : 0;
}

int MemoryTreeControl::drop(const QString &data, int y)
{
    return m_events ? m_events->OLEDragDrop(data, 0, y) : 0;
}
