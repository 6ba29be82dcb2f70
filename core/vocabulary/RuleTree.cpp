#include "vocabulary/RuleTree.h"

#include "platform/QuorinError.h"

#include <algorithm>

namespace {

QString sourceOf(const char *member)
{
    return QStringLiteral("RuleTree::") + QString::fromLatin1(member);
}

} // namespace

void RuleTree::clear()
{
    m_nodes.clear();
    m_topLevel.clear();
    m_byKey.clear();
}

int RuleTree::addChild(int parent, const QString &key, const QString &text, const QString &image)
{
    if (parent != 0)
        at(parent, "addChild");
    const auto end = std::vector<int>::difference_type(siblingsOf(parent).size());
    return insert(parent, end, key, text, image, "addChild");
}

int RuleTree::addAfter(int sibling, const QString &key, const QString &text, const QString &image)
{
    const int parent = at(sibling, "addAfter").parent;
    const std::vector<int> &siblings = siblingsOf(parent);
    const auto position = std::find(siblings.begin(), siblings.end(), sibling) - siblings.begin();
    return insert(parent, position + 1, key, text, image, "addAfter");
}

void RuleTree::setBold(int node, bool bold)
{
    at(node, "setBold").bold = bold;
}

void RuleTree::setExpanded(int node, bool expanded)
{
    at(node, "setExpanded").expanded = expanded;
}

void RuleTree::setText(int node, const QString &text)
{
    at(node, "setText").text = text;
}

void RuleTree::setImage(int node, const QString &image)
{
    at(node, "setImage").image = image;
}

const RuleTreeNode &RuleTree::node(int index) const
{
    if (index < 1 || index > count())
        throw QuorinError::subscriptOutOfRange(sourceOf("node"));
    return m_nodes[std::size_t(index - 1)];
}

int RuleTree::find(const QString &key) const
{
    return m_byKey.value(key.toCaseFolded(), 0);
}

RuleTreeNode &RuleTree::at(int index, const char *member)
{
    if (index < 1 || index > count())
        throw QuorinError::subscriptOutOfRange(sourceOf(member));
    return m_nodes[std::size_t(index - 1)];
}

int RuleTree::insert(int parent,
                     std::vector<int>::difference_type position,
                     const QString &key,
                     const QString &text,
                     const QString &image,
                     const char *member)
{
    const QString folded = key.toCaseFolded();
    if (m_byKey.contains(folded))
        throw QuorinError(ErrorNumber::DuplicateKey,
                          sourceOf(member),
                          QStringLiteral("The node cannot be added, because the key '%1' is "
                                         "already in use.")
                              .arg(key));
    RuleTreeNode added;
    added.key = key;
    added.text = text;
    added.image = image;
    added.parent = parent;
    m_nodes.push_back(std::move(added));
    const int index = count();
    std::vector<int> &siblings = siblingsOf(parent);
    siblings.insert(siblings.begin() + position, index);
    m_byKey.insert(folded, index);
    return index;
}

std::vector<int> &RuleTree::siblingsOf(int parent)
{
    return parent == 0 ? m_topLevel : m_nodes[std::size_t(parent - 1)].children;
}
