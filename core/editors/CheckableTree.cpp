#include "editors/CheckableTree.h"

#include "platform/TextUtils.h"

RuleTree &CheckableTree::beginFill()
{
    m_tree.clear();
    m_checked.clear();
    m_selected = 0;
    ++m_revision;
    return m_tree;
}

qint32 CheckableTree::value(int node) const
{
    return Text::valLong(key(node));
}

bool CheckableTree::isChecked(int node) const
{
    return node >= 1 && node <= int(m_checked.size()) && m_checked[std::size_t(node - 1)];
}

void CheckableTree::setChecked(int node, bool checked)
{
    if (node < 1 || node > count())
        return;
    if (m_checked.size() < std::size_t(count()))
        m_checked.resize(std::size_t(count()), false);
    m_checked[std::size_t(node - 1)] = checked;
}

void CheckableTree::setSelected(int node)
{
    m_selected = (node >= 1 && node <= count()) ? node : 0;
}

std::vector<int> CheckableTree::nodesInOrder() const
{
    std::vector<int> out;
    out.reserve(std::size_t(count()));
    for (int node : m_tree.topLevel())
        addInOrder(node, out);
    return out;
}

void CheckableTree::addInOrder(int node, std::vector<int> &out) const
{
    out.push_back(node);
    for (int child : m_tree.node(node).children)
        addInOrder(child, out);
}
