#include "xml/TarnXMLDocState.h"

#include "xml/TarnXMLElement.h"
#include "xml/XmlSupport.h"

TarnXMLDocState::TarnXMLDocState(xmlDocPtr document, bool owned)
    : m_document(document)
    , m_owned(owned)
{
}

TarnXMLDocState::~TarnXMLDocState()
{
    // Retired nodes take their names from the document's dictionary: free them first.
    for (xmlNodePtr node : m_retired)
        xmlFreeNode(node);
    if (m_owned)
        xmlFreeDoc(m_document);
}

TarnXMLElement TarnXMLDocState::elementOf(const std::shared_ptr<TarnXMLDocState> &state,
                                          xmlNodePtr node)
{
    return TarnXMLElement(state, XmlSupport::handleOf(node));
}

void TarnXMLDocState::setParseError(qint32 code, const QString &reason)
{
    m_parseErrorCode = code;
    m_parseErrorReason = reason;
}

TarnXMLDocState::CachedChild *TarnXMLDocState::cachedFor(xmlNodePtr parent)
{
    for (CachedChild &entry : m_cache) {
        if (entry.parent == parent)
            return &entry;
    }
    return nullptr;
}

xmlNodePtr TarnXMLDocState::childAt(xmlNodePtr parent, qint32 position)
{
    if (position < 0 || parent == nullptr)
        return nullptr;
    if (position == 0)
        return parent->children;
    xmlNodePtr node = parent->children;
    qint32 at = 0;
    if (const CachedChild *entry = cachedFor(parent)) {
        if (position >= entry->position) {
            node = entry->child;
            at = entry->position;
        } else if (entry->position - position < position) {
            node = entry->child;
            for (at = entry->position; at > position; --at)
                node = node->prev;
        }
    }
    for (; node && at < position; ++at)
        node = node->next;
    if (node)
        remember(parent, position, node);
    return node;
}

void TarnXMLDocState::remember(xmlNodePtr parent, qint32 position, xmlNodePtr child)
{
    CachedChild *entry = cachedFor(parent);
    if (entry == nullptr) {
        entry = &m_cache.front();
        for (CachedChild &candidate : m_cache) {
            if (candidate.lastUse < entry->lastUse)
                entry = &candidate;
        }
    }
    *entry = {parent, child, position, ++m_uses};
}

void TarnXMLDocState::childrenChanged()
{
    m_cache.fill(CachedChild());
}

void TarnXMLDocState::retire(xmlNodePtr node)
{
    // Freed at once, the memory serves what the caller builds next: a loader removes each
    // rule once read, and the rules it makes take the place.
    const bool held = isHeld(node);
    if (held)
        m_retired.push_back(node);
    xmlUnlinkNode(node);
    childrenChanged();
    if (!held)
        xmlFreeNode(node);
}

bool TarnXMLDocState::isHeld(xmlNodePtr node) const
{
    for (const TarnXMLElement *handle = m_handles; handle; handle = handle->m_nextHandle) {
        for (xmlNodePtr held = XmlSupport::nodeOf(handle->m_node); held; held = held->parent) {
            if (held == node)
                return true;
        }
    }
    return false;
}

void TarnXMLDocState::attach(TarnXMLElement *handle) noexcept
{
    handle->m_previousHandle = nullptr;
    handle->m_nextHandle = m_handles;
    if (m_handles)
        m_handles->m_previousHandle = handle;
    m_handles = handle;
}

void TarnXMLDocState::detach(TarnXMLElement *handle) noexcept
{
    if (handle->m_previousHandle)
        handle->m_previousHandle->m_nextHandle = handle->m_nextHandle;
    else
        m_handles = handle->m_nextHandle;
    if (handle->m_nextHandle)
        handle->m_nextHandle->m_previousHandle = handle->m_previousHandle;
    handle->m_previousHandle = nullptr;
    handle->m_nextHandle = nullptr;
}
