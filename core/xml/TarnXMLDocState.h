#pragma once

// Private to core/xml, like XmlSupport.h: public headers only forward declare TarnXMLDocState.

#include <QString>

#include <libxml/tree.h>

#include <array>
#include <memory>
#include <vector>

class TarnXMLElement;

// What a TarnXMLDoc shares with every element handle on its tree: the tree itself, its last
// parse error, the position cache and the list of handles. The last owner to go frees the tree.
class TarnXMLDocState final
{
public:
    // Takes ownership of `document` unless told otherwise: a parse in progress owns its own.
    explicit TarnXMLDocState(xmlDocPtr document, bool owned = true);
    ~TarnXMLDocState();
    TarnXMLDocState(const TarnXMLDocState &) = delete;
    TarnXMLDocState &operator=(const TarnXMLDocState &) = delete;

    xmlDocPtr document() const { return m_document; }
    // A handle on a node of this tree.
    static TarnXMLElement elementOf(const std::shared_ptr<TarnXMLDocState> &state, xmlNodePtr node);

    // The DOM's parseError: what the last load reported; 0 and empty after a good one.
    qint32 parseErrorCode() const { return m_parseErrorCode; }
    const QString &parseErrorReason() const { return m_parseErrorReason; }
    void setParseError(qint32 code, const QString &reason);

    // The child at a 0-based position, or null. Loaders walk a parent's children in order while
    // they look into each child, so the last answer for each of a few parents is kept, and the
    // next position costs one step.
    xmlNodePtr childAt(xmlNodePtr parent, qint32 position);
    void remember(xmlNodePtr parent, qint32 position, xmlNodePtr child);
    // Every change to a child list calls this.
    void childrenChanged();

    // Unlinks a node and frees it, unless a handle holds it or a node below it: then it stays
    // until the tree goes, and the handle stays valid.
    void retire(xmlNodePtr node);

    // Every handle on the tree enters itself on creation and leaves on destruction.
    void attach(TarnXMLElement *handle) noexcept;
    void detach(TarnXMLElement *handle) noexcept;

private:
    xmlDocPtr m_document;
    bool m_owned;
    qint32 m_parseErrorCode = 0;
    QString m_parseErrorReason;
    struct CachedChild
    {
        xmlNodePtr parent = nullptr;
        xmlNodePtr child = nullptr;
        qint32 position = 0;
        quint64 lastUse = 0;
    };
    CachedChild *cachedFor(xmlNodePtr parent);
    bool isHeld(xmlNodePtr node) const;

    // Least recently used goes first: a walk's parent outlives the lookups inside each child.
    std::array<CachedChild, 8> m_cache;
    quint64 m_uses = 0;
    std::vector<xmlNodePtr> m_retired;
    // The first of the handles, linked through their own members: no allocation per handle.
    TarnXMLElement *m_handles = nullptr;
};
