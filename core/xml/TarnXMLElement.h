#pragma once

#include <QAnyStringView>
#include <QList>
#include <QString>
#include <QUtf8StringView>

#include <memory>

class TarnXMLDocState;
// The DOM's node, opaque outside core/xml: callers may compare it, nothing more.
struct TarnXMLNode;

// A light handle on one node of a TarnXMLDoc's tree; it keeps the tree alive. Children are
// addressed by 0-based position. Searches that find nothing give a null handle; every member
// except isNull() and XMLNode() fails on a null handle with the runtime's error for a missing
// object (QuorinError), which reaches the caller's error frame. Attribute values are escaped
// on the way in and restored on the way out (ReplaceIllegalChars / RestoreIllegalChars); the
// characters XML 1.0 can't hold are dropped on the way in (xmlSafeText), so a save always loads.
// A removed node is freed at once unless a handle holds it or a node below it: then it stays,
// and the handle valid, until the tree goes.
class TarnXMLElement final
{
public:
    TarnXMLElement() = default;
    TarnXMLElement(const TarnXMLElement &other);
    TarnXMLElement(TarnXMLElement &&other) noexcept;
    TarnXMLElement &operator=(const TarnXMLElement &other);
    TarnXMLElement &operator=(TarnXMLElement &&other) noexcept;
    ~TarnXMLElement();

    bool isNull() const { return m_node == nullptr; }
    explicit operator bool() const { return m_node != nullptr; }

    // Null for a null handle.
    TarnXMLNode *XMLNode() const { return m_node; }
    QString XMLString() const;
    // All child nodes, as the loaders rely on whitespace-only text having been dropped.
    qint32 ElementCount() const;
    // The DOM's node type: 1 element, 3 text, 4 CDATA, 8 comment...
    qint32 ElementType() const;
    // The base name; empty for nodes that have none, such as text.
    QString ElementName() const;

    // The plain accessors: an index or name that names no attribute fails (QuorinError).
    qint32 AttributeCount() const;
    QString AttributeName(qint32 index) const;
    QString AttributeValue(qint32 index) const;
    void setAttributeValue(qint32 index, const QString &value);
    QString AttributeValueByName(const QString &name) const;
    // The same for an ASCII name known at compile time; loaders call it for every value they read.
    QString AttributeValueByName(QLatin1StringView name) const;
    // That value as UTF-8 viewed in place, for readers that parse it without a QString; valid
    // until the attribute changes. Null when it can't be had so (no such attribute, a value to
    // restore, a null handle): the caller then asks AttributeValueByName.
    QUtf8StringView AttributeUtf8ByName(QLatin1StringView name) const;
    // Adds the attribute when it is absent, so assignment always works.
    void setAttributeValueByName(const QString &name, const QString &value);
    // The same for a name known at compile time; savers call it for every value they write.
    void setAttributeValueByName(QLatin1StringView name, const QString &value);
    // And for a value in UTF-8, such as the digits of a number, without making a QString of it.
    void setAttributeValueByName(QLatin1StringView name, QUtf8StringView value);
    // Replaces an attribute of that name.
    void AddAttribute(const QString &name, const QString &value);

    // The first child from `startAt` on (from 0 when it lies outside the children) whose name
    // matches ignoring case; `position` gets its position, or -1.
    TarnXMLElement ElementByName(const QString &name) const;
    TarnXMLElement ElementByName(const QString &name, qint32 &position, qint32 startAt = 0) const;
    // The same for a name known at compile time, without making a QString of it.
    TarnXMLElement ElementByName(QLatin1StringView name) const;
    // All descendants of that tag name (exact case, "*" for all), in document order.
    QList<TarnXMLElement> ElementListByName(const QString &name) const;
    // O(1) a step when a caller walks the positions in order.
    TarnXMLElement ElementAtPosition(qint32 position) const;
    // The first child whose attribute holds `value` once escaped, ignoring case.
    TarnXMLElement ElementByAttributeValue(const QString &attributeName,
                                           const QString &value) const;
    // -1, or any position outside the children, appends.
    TarnXMLElement AddElement(const QString &name, qint32 position = -1);
    bool RemoveElement(qint32 position);
    // No matching child is a failure that the routine's frame reports.
    bool RemoveElementByAttributeValue(const QString &attributeName, const QString &value);

    // CR LF, TAB, "<" and ">" become "%CRLF%", "%TAB%", "%LT%", "%GT%"; a lone CR or LF stays.
    static QString ReplaceIllegalChars(const QString &value);
    // The reverse in the same order, ignoring case, so a literal "%lt%" comes back as "<".
    static QString RestoreIllegalChars(const QString &value);
    void RemoveAllElements();

private:
    friend class TarnXMLDoc;
    friend class TarnXMLDocState;
    TarnXMLElement(std::shared_ptr<TarnXMLDocState> document, TarnXMLNode *node);
    // Enters the handle in its document's list, or takes it out.
    void attach();
    void detach();

    // Fails the way a call on a null object does, before the member's own frame is armed.
    void requireNode(const char *function) const;
    // ElementByName for either form of name.
    template<typename Name>
    TarnXMLElement childNamed(Name name, qint32 &position, qint32 startAt) const;
    void LogParserError() const;
    template<typename Value>
    void setByName(QLatin1StringView name, const Value &value);
    // AddAttribute's body, inside the caller's frame: the name in UTF-8 and the value as stored
    // (escaped UTF-8), each ending in a NUL. `absent` says that no attribute has the name.
    void addAttribute(QAnyStringView name, const char *utf8Name, const char *stored, bool absent);

    std::shared_ptr<TarnXMLDocState> m_document;
    TarnXMLNode *m_node = nullptr;
    // Where the last name look-up ended: loaders read attributes in file order, so the next
    // search starts after it and usually succeeds at once.
    mutable void *m_lastAttribute = nullptr;
    // The document lists every handle on its tree, through these links.
    TarnXMLElement *m_previousHandle = nullptr;
    TarnXMLElement *m_nextHandle = nullptr;
};
