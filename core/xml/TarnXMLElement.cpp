#include "xml/TarnXMLElement.h"

#include "platform/ErrorFrame.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "xml/TarnXMLDocState.h"
#include "xml/XmlSupport.h"

#include <QByteArray>

#include <cstring>
#include <vector>

using namespace XmlSupport;

namespace {

constexpr char Module[] = "TarnXMLElement";

QString replaceText(const QString &value)
{
    const QChar *const begin = value.constData();
    const QChar *const end = begin + value.size();
    const QChar *p = begin;
    while (p != end && *p != u'\r' && *p != u'\t' && *p != u'<' && *p != u'>')
        ++p;
    if (p == end)
        return value;
    // One pass gives what the four replacements in turn give: no replacement text holds a
    // character that another one looks for.
    QString escaped;
    escaped.reserve(value.size() + 16);
    escaped.append(begin, p - begin);
    for (; p != end; ++p) {
        switch (p->unicode()) {
        case u'\r':
            if (p + 1 != end && p[1] == u'\n') {
                escaped += QLatin1String("%CRLF%");
                ++p;
            } else {
                escaped += *p;
            }
            break;
        case u'\t':
            escaped += QLatin1String("%TAB%");
            break;
        case u'<':
            escaped += QLatin1String("%LT%");
            break;
        case u'>':
            escaped += QLatin1String("%GT%");
            break;
        default:
            escaped += *p;
        }
    }
    return escaped;
}

// The four escapes in the order the restore applies them.
struct Escape
{
    const char *text;
    qsizetype length;
    const char *replacement;
};
constexpr Escape Escapes[] = {
    {"%CRLF%", 6, "\r\n"},
    {"%TAB%", 5, "\t"},
    {"%LT%", 4, "<"},
    {"%GT%", 4, ">"},
};

const Escape *escapeAt(const char *p, const char *end)
{
    for (const Escape &escape : Escapes) {
        if (end - p >= escape.length && qstrnicmp(p, escape.text, escape.length) == 0)
            return &escape;
    }
    return nullptr;
}

// Restores UTF-8 text in one pass, which gives what the four passes in turn give unless two
// escapes share a '%' ("%TAB%CRLF%"): then it gives false.
bool restoreInOnePass(const char *p, const char *end, QByteArray &restored)
{
    restored.reserve(end - p);
    const char *run = p;
    while ((p = static_cast<const char *>(std::memchr(p, '%', size_t(end - p))))) {
        const Escape *escape = escapeAt(p, end);
        if (escape == nullptr) {
            ++p;
            continue;
        }
        const char *last = p + escape->length - 1;
        if (escapeAt(last, end))
            return false;
        restored.append(run, p - run).append(escape->replacement);
        p = last + 1;
        run = p;
    }
    restored.append(run, end - run);
    return true;
}

QString restoreInPasses(const QString &value)
{
    QString restored = value;
    for (const Escape &escape : Escapes)
        restored.replace(
            QLatin1String(escape.text), QLatin1String(escape.replacement), Qt::CaseInsensitive);
    return restored;
}

QString restoreUtf8(const char *text, qsizetype size)
{
    if (!std::memchr(text, '%', size_t(size)))
        return QString::fromUtf8(text, size);
    QByteArray restored;
    if (restoreInOnePass(text, text + size, restored))
        return QString::fromUtf8(restored);
    return restoreInPasses(QString::fromUtf8(text, size));
}

QString restoreText(const QString &value)
{
    if (!value.contains(u'%'))
        return value;
    const QByteArray utf8 = value.toUtf8();
    return restoreUtf8(utf8.constData(), utf8.size());
}

// The attribute's text as stored, that is escaped. Parsed values are one text node.
QString storedValue(xmlAttrPtr attribute)
{
    const xmlNodePtr text = attribute->children;
    if (text == nullptr)
        return QString();
    if (text->next == nullptr && text->type == XML_TEXT_NODE && text->content)
        return fromXml(text->content);
    xmlChar *joined = xmlNodeListGetString(attribute->doc, text, 1);
    const QString value = fromXml(joined);
    xmlFree(joined);
    return value;
}

// The hot path of every loader: one conversion, and no restore pass without a '%'.
QString restoredValue(xmlAttrPtr attribute)
{
    const xmlNodePtr text = attribute->children;
    if (text && text->next == nullptr && text->type == XML_TEXT_NODE && text->content) {
        const char *content = reinterpret_cast<const char *>(text->content);
        return restoreUtf8(content, qsizetype(std::strlen(content)));
    }
    return restoreText(storedValue(attribute));
}

xmlAttrPtr attributeNamed(xmlNodePtr node, const QString &name)
{
    if (node->type != XML_ELEMENT_NODE)
        return nullptr;
    for (xmlAttrPtr attribute = node->properties; attribute; attribute = attribute->next) {
        if (sameName(attribute->name, name, Qt::CaseSensitive))
            return attribute;
    }
    return nullptr;
}

xmlAttrPtr attributeAt(xmlNodePtr node, qint32 index, const char *source)
{
    xmlAttrPtr attribute
        = node->type == XML_ELEMENT_NODE && index >= 0 ? node->properties : nullptr;
    for (; attribute && index > 0; --index)
        attribute = attribute->next;
    if (attribute == nullptr)
        throw QuorinError::objectNotSet(QString::fromLatin1(source));
    return attribute;
}

void storeValue(xmlAttrPtr attribute, const QString &value)
{
    const QByteArray utf8 = replaceText(value).toUtf8();
    // Sets the text as it stands: the DOM, not the caller, escapes entities.
    if (!xmlSetNsProp(attribute->parent, attribute->ns, attribute->name, xmlText(utf8)))
        throw std::bad_alloc();
}

// The DOM's getElementsByTagName: qualified name, exact case, "*" for any.
bool tagNameMatches(xmlNodePtr node, const QString &name)
{
    if (name == QLatin1String("*"))
        return true;
    if (node->ns && node->ns->prefix)
        return fromXml(node->ns->prefix) + QLatin1Char(':') + fromXml(node->name) == name;
    return sameName(node->name, name, Qt::CaseSensitive);
}

} // namespace

TarnXMLElement::TarnXMLElement(std::shared_ptr<TarnXMLDocState> document, TarnXMLNode *node)
    : m_document(std::move(document))
    , m_node(node)
{
}

void TarnXMLElement::requireNode(const char *function) const
{
    if (m_node == nullptr)
        throw QuorinError::objectNotSet(QStringLiteral("TarnXMLElement::")
                                        + QLatin1String(function));
}

QString TarnXMLElement::XMLString() const
{
    requireNode("XMLString");
    return QString::fromUtf8(
        serialise(m_document->document(), nodeOf(m_node), "TarnXMLElement::XMLString"));
}

qint32 TarnXMLElement::ElementCount() const
{
    requireNode("ElementCount");
    return guarded("ElementCount", Module, 0, [&] {
        qint32 count = 0;
        for (xmlNodePtr child = nodeOf(m_node)->children; child; child = child->next)
            ++count;
        return count;
    });
}

qint32 TarnXMLElement::ElementType() const
{
    requireNode("ElementType");
    return guarded("ElementType", Module, 0, [&] {
        // The library numbers nodes as the DOM does, but for its own kinds of document node.
        switch (const xmlElementType type = nodeOf(m_node)->type) {
        case XML_DTD_NODE:
            return qint32(XML_DOCUMENT_TYPE_NODE);
        case XML_HTML_DOCUMENT_NODE:
            return qint32(XML_DOCUMENT_NODE);
        default:
            return qint32(type);
        }
    });
}

QString TarnXMLElement::ElementName() const
{
    requireNode("ElementName");
    return guarded("ElementName", Module, QString(), [&] {
        const xmlNodePtr node = nodeOf(m_node);
        switch (node->type) {
        case XML_ELEMENT_NODE:
        case XML_ATTRIBUTE_NODE:
        case XML_ENTITY_REF_NODE:
        case XML_PI_NODE:
            return fromXml(node->name);
        default:
            return QString();
        }
    });
}

qint32 TarnXMLElement::AttributeCount() const
{
    requireNode("AttributeCount");
    const xmlNodePtr node = nodeOf(m_node);
    qint32 count = 0;
    if (node->type == XML_ELEMENT_NODE) {
        for (xmlAttrPtr attribute = node->properties; attribute; attribute = attribute->next)
            ++count;
    }
    return count;
}

QString TarnXMLElement::AttributeName(qint32 index) const
{
    requireNode("AttributeName");
    return fromXml(attributeAt(nodeOf(m_node), index, "TarnXMLElement::AttributeName")->name);
}

QString TarnXMLElement::AttributeValue(qint32 index) const
{
    requireNode("AttributeValue");
    return restoredValue(attributeAt(nodeOf(m_node), index, "TarnXMLElement::AttributeValue"));
}

void TarnXMLElement::setAttributeValue(qint32 index, const QString &value)
{
    requireNode("AttributeValue");
    storeValue(attributeAt(nodeOf(m_node), index, "TarnXMLElement::AttributeValue"), value);
}

QString TarnXMLElement::AttributeValueByName(QLatin1StringView name) const
{
    requireNode("AttributeValueByName");
    const xmlNodePtr node = nodeOf(m_node);
    if (node->type == XML_ELEMENT_NODE) {
        auto matches = [name](xmlAttrPtr a) {
            const char *own = reinterpret_cast<const char *>(a->name);
            return std::strlen(own) == size_t(name.size()) && std::memcmp(own, name.data(), size_t(name.size())) == 0;
        };
        const auto last = static_cast<xmlAttrPtr>(m_lastAttribute);
        // From the one after the last match to the end, then from the start up to it.
        const xmlAttrPtr start = last && last->parent == node && last->next ? last->next : node->properties;
        for (xmlAttrPtr a = start; a; a = a->next) {
            if (matches(a)) {
                m_lastAttribute = a;
                return restoredValue(a);
            }
        }
        for (xmlAttrPtr a = node->properties; a != start; a = a->next) {
            if (matches(a)) {
                m_lastAttribute = a;
                return restoredValue(a);
            }
        }
    }
    throw QuorinError::objectNotSet(QStringLiteral("TarnXMLElement::AttributeValueByName"));
}

QString TarnXMLElement::AttributeValueByName(const QString &name) const
{
    requireNode("AttributeValueByName");
    const xmlAttrPtr attribute = attributeNamed(nodeOf(m_node), name);
    if (attribute == nullptr)
        throw QuorinError::objectNotSet(QStringLiteral("TarnXMLElement::AttributeValueByName"));
    return restoredValue(attribute);
}

void TarnXMLElement::setAttributeValueByName(const QString &name, const QString &value)
{
    requireNode("AttributeValueByName");
    if (const xmlAttrPtr attribute = attributeNamed(nodeOf(m_node), name))
        storeValue(attribute, value);
    else
        AddAttribute(name, value);
}

void TarnXMLElement::AddAttribute(const QString &name, const QString &value)
{
    requireNode("AddAttribute");
    guardedVoid("AddAttribute", Module, [&] {
        const QByteArray utf8Name = name.toUtf8();
        requireValidName(name, utf8Name, "TarnXMLElement::AddAttribute");
        const QByteArray utf8Value = replaceText(value).toUtf8();
        const xmlNodePtr node = nodeOf(m_node);
        const xmlAttrPtr attribute = node->type == XML_ELEMENT_NODE
                                         ? xmlSetProp(node, xmlText(utf8Name), xmlText(utf8Value))
                                         : nullptr;
        if (attribute == nullptr || m_document->parseErrorCode() != 0)
            LogParserError();
    });
}

TarnXMLElement TarnXMLElement::ElementByName(const QString &name) const
{
    qint32 position;
    return ElementByName(name, position, 0);
}

TarnXMLElement
TarnXMLElement::ElementByName(const QString &name, qint32 &position, qint32 startAt) const
{
    requireNode("ElementByName");
    position = -1;
    return guarded("ElementByName", Module, TarnXMLElement(), [&] {
        if (name.isEmpty()) {
            logEvent(QStringLiteral("An element name must be specified."), "ElementByName", Module);
            return TarnXMLElement();
        }
        const xmlNodePtr parent = nodeOf(m_node);
        xmlNodePtr child = m_document->childAt(parent, startAt);
        qint32 at = startAt;
        if (child == nullptr) {
            child = parent->children;
            at = 0;
        }
        for (; child; child = child->next, ++at) {
            if (child->type == XML_ELEMENT_NODE
                && sameName(child->name, name, Qt::CaseInsensitive)) {
                if (at > 0)
                    m_document->remember(parent, at, child);
                position = at;
                return TarnXMLElement(m_document, handleOf(child));
            }
        }
        return TarnXMLElement();
    });
}

QList<TarnXMLElement> TarnXMLElement::ElementListByName(const QString &name) const
{
    requireNode("ElementListByName");
    return guarded("ElementListByName", Module, QList<TarnXMLElement>(), [&] {
        QList<TarnXMLElement> found;
        if (name.isEmpty()) {
            logEvent(
                QStringLiteral("An element name must be specified."), "ElementListByName", Module);
            return found;
        }
        // Document order is a depth-first walk below this node.
        const xmlNodePtr top = nodeOf(m_node);
        xmlNodePtr node = top->children;
        while (node) {
            if (node->type == XML_ELEMENT_NODE) {
                if (tagNameMatches(node, name))
                    found.append(TarnXMLElement(m_document, handleOf(node)));
                if (node->children) {
                    node = node->children;
                    continue;
                }
            }
            while (node != top && node->next == nullptr)
                node = node->parent;
            node = node == top ? nullptr : node->next;
        }
        return found;
    });
}

TarnXMLElement TarnXMLElement::ElementAtPosition(qint32 position) const
{
    requireNode("ElementAtPosition");
    return guarded("ElementAtPosition", Module, TarnXMLElement(), [&] {
        const xmlNodePtr child = m_document->childAt(nodeOf(m_node), position);
        if (child == nullptr) {
            logEvent(QStringLiteral("No element at position ") + QString::number(position),
                     "ElementAtPosition",
                     Module);
            return TarnXMLElement();
        }
        return TarnXMLElement(m_document, handleOf(child));
    });
}

TarnXMLElement TarnXMLElement::ElementByAttributeValue(const QString &attributeName,
                                                       const QString &value) const
{
    requireNode("ElementByAttributeValue");
    return guarded("ElementByAttributeValue", Module, TarnXMLElement(), [&] {
        if (attributeName.isEmpty()) {
            logEvent(QStringLiteral("An attribute name must be specified."),
                     "ElementByAttributeValue",
                     Module);
            return TarnXMLElement();
        }
        const QString escaped = replaceText(value);
        for (xmlNodePtr child = nodeOf(m_node)->children; child; child = child->next) {
            const xmlAttrPtr attribute = attributeNamed(child, attributeName);
            if (attribute && Text::same(storedValue(attribute), escaped))
                return TarnXMLElement(m_document, handleOf(child));
        }
        return TarnXMLElement();
    });
}

TarnXMLElement TarnXMLElement::AddElement(const QString &name, qint32 position)
{
    requireNode("AddElement");
    return guarded("AddElement", Module, TarnXMLElement(), [&] {
        const QByteArray utf8 = name.toUtf8();
        requireValidName(name, utf8, "TarnXMLElement::AddElement");
        const xmlNodePtr parent = nodeOf(m_node);
        if (parent->type != XML_ELEMENT_NODE)
            throw QuorinError(DomFailure,
                              QStringLiteral("TarnXMLElement::AddElement"),
                              QStringLiteral("Only an element can hold child elements."));
        const xmlNodePtr created
            = xmlNewDocNode(m_document->document(), nullptr, xmlText(utf8), nullptr);
        if (created == nullptr) {
            LogParserError();
            return TarnXMLElement();
        }
        const xmlNodePtr before = position == -1 ? nullptr : m_document->childAt(parent, position);
        const xmlNodePtr added
            = before ? xmlAddPrevSibling(before, created) : xmlAddChild(parent, created);
        m_document->childrenChanged();
        if (added == nullptr) {
            xmlFreeNode(created);
            LogParserError();
            return TarnXMLElement();
        }
        if (m_document->parseErrorCode() != 0) {
            LogParserError();
            return TarnXMLElement();
        }
        return TarnXMLElement(m_document, handleOf(added));
    });
}

bool TarnXMLElement::RemoveElement(qint32 position)
{
    requireNode("RemoveElement");
    return guarded("RemoveElement", Module, false, [&] {
        const xmlNodePtr child = m_document->childAt(nodeOf(m_node), position);
        if (child == nullptr) {
            logEvent(QStringLiteral("No element to remove at position ")
                         + QString::number(position),
                     "RemoveElement",
                     Module);
            return false;
        }
        m_document->retire(child);
        return true;
    });
}

bool TarnXMLElement::RemoveElementByAttributeValue(const QString &attributeName,
                                                   const QString &value)
{
    requireNode("RemoveElementByAttributeValue");
    return guarded("RemoveElementByAttributeValue", Module, false, [&] {
        const TarnXMLElement found = ElementByAttributeValue(attributeName, replaceText(value));
        // As with the DOM, removing nothing is an access to a missing object.
        if (found.isNull())
            throw QuorinError::objectNotSet(
                QStringLiteral("TarnXMLElement::RemoveElementByAttributeValue"));
        m_document->retire(nodeOf(found.m_node));
        return true;
    });
}

QString TarnXMLElement::ReplaceIllegalChars(const QString &value)
{
    return guarded("ReplaceIllegalChars", Module, QString(), [&] { return replaceText(value); });
}

QString TarnXMLElement::RestoreIllegalChars(const QString &value)
{
    return guarded("RestoreIllegalChars", Module, QString(), [&] { return restoreText(value); });
}

void TarnXMLElement::RemoveAllElements()
{
    requireNode("RemoveAllElements");
    guardedVoid("RemoveAllElements", Module, [&] {
        // Gathered first, so that removing does not disturb the walk.
        std::vector<xmlNodePtr> children;
        for (xmlNodePtr child = nodeOf(m_node)->children; child; child = child->next)
            children.push_back(child);
        for (xmlNodePtr child : children)
            m_document->retire(child);
    });
}

void TarnXMLElement::LogParserError() const
{
    logParserError(
        m_document->parseErrorCode(), m_document->parseErrorReason(), "LogParserError", Module);
}
