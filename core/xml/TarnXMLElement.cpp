#include "xml/TarnXMLElement.h"

#include "platform/ErrorFrame.h"
#include "platform/QuorinError.h"
#include "platform/TextUtils.h"
#include "xml/TarnXMLDocState.h"
#include "xml/XmlSafeText.h"
#include "xml/XmlSupport.h"

#include <QByteArray>
#include <QVarLengthArray>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

using namespace XmlSupport;

namespace {

constexpr char Module[] = "TarnXMLElement";

char16_t unitOf(QChar c)
{
    return c.unicode();
}

char16_t unitOf(char c)
{
    return uchar(c);
}

template<typename Char>
bool needsEscape(Char c)
{
    // CR, TAB, '<' and '>' as bits: one test per character.
    constexpr quint64 Escaped = (1ull << '\r') | (1ull << '\t') | (1ull << '<') | (1ull << '>');
    const char16_t u = unitOf(c);
    return u < 64 && (Escaped >> u) & 1;
}

void appendAscii(QString &out, QLatin1StringView text)
{
    out.append(text);
}

template<typename Bytes>
void appendAscii(Bytes &out, QLatin1StringView text)
{
    out.append(text.data(), text.size());
}

// ReplaceIllegalChars on text of either width. One pass gives what the four replacements in
// turn give: no replacement text holds a character that another one looks for. UTF-8 escapes
// as the text it encodes, since the escaped characters are ASCII, which UTF-8 keeps as it is
// and never uses within the encoding of another character.
template<typename Out, typename Char>
void appendEscaped(Out &out, const Char *p, const Char *const end)
{
    while (p != end) {
        const Char *const run = std::find_if(p, end, needsEscape<Char>);
        out.append(p, run - p);
        if (run == end)
            return;
        p = run;
        switch (unitOf(*p)) {
        case u'\r':
            if (p + 1 != end && unitOf(p[1]) == u'\n') {
                appendAscii(out, QLatin1StringView("%CRLF%"));
                ++p;
            } else {
                out.append(p, 1);
            }
            break;
        case u'\t':
            appendAscii(out, QLatin1StringView("%TAB%"));
            break;
        case u'<':
            appendAscii(out, QLatin1StringView("%LT%"));
            break;
        default:
            appendAscii(out, QLatin1StringView("%GT%"));
        }
        ++p;
    }
}

QString replaceText(const QString &value)
{
    const QChar *const begin = value.constData();
    const QChar *const end = begin + value.size();
    if (std::none_of(begin, end, needsEscape<QChar>))
        return value;
    QString escaped;
    escaped.reserve(value.size() + 16);
    appendEscaped(escaped, begin, end);
    return escaped;
}

// The text a value is stored as, and looked up by: what XML can hold of it, escaped.
QString storedText(const QString &value)
{
    return replaceText(xmlSafeText(value));
}

// A value as the tree stores it: without what XML can't hold, escaped, in UTF-8, ending in a
// NUL. Text that needs no escape is used as converted.
class StoredValue final
{
public:
    explicit StoredValue(const QString &value)
        : m_utf8(xmlSafeText(value).toUtf8())
        , m_data(m_utf8.constData())
    {
        if (std::any_of(m_utf8.cbegin(), m_utf8.cend(), needsEscape<char>))
            escape(m_utf8);
    }
    explicit StoredValue(QUtf8StringView value)
    {
        if (isXmlSafeAscii(value)) {
            escape(value);
            return;
        }
        m_utf8 = xmlSafeText(value.toString()).toUtf8();
        escape(m_utf8);
    }

    const char *data() const { return m_data; }

private:
    void escape(QUtf8StringView utf8)
    {
        appendEscaped(m_escaped, utf8.data(), utf8.data() + utf8.size());
        m_escaped.append('\0');
        m_data = m_escaped.constData();
    }

    QByteArray m_utf8;
    QVarLengthArray<char, 64> m_escaped;
    const char *m_data = nullptr;
};

// The four escapes in the order the restore applies them.
struct Escape
{
    const char *text; // upper case; matched ignoring case
    qsizetype length;
    const char16_t *replacement;
};
constexpr Escape Escapes[] = {
    {"%CRLF%", 6, u"\r\n"},
    {"%TAB%", 5, u"\t"},
    {"%LT%", 4, u"<"},
    {"%GT%", 4, u">"},
};

// On UTF-16 or UTF-8 alike: the escapes are ASCII, which UTF-8 never uses inside another
// character's encoding.
template<typename Char>
const Escape *escapeAt(const Char *p, const Char *end)
{
    // Each escape has a letter of its own after the '%': at most one can match.
    if (end - p < 4)
        return nullptr;
    const Escape *escape;
    switch (unitOf(p[1]) | 0x20) {
    case u'c':
        escape = &Escapes[0];
        break;
    case u't':
        escape = &Escapes[1];
        break;
    case u'l':
        escape = &Escapes[2];
        break;
    case u'g':
        escape = &Escapes[3];
        break;
    default:
        return nullptr;
    }
    if (end - p < escape->length)
        return nullptr;
    // ASCII folding is enough: no other character folds to a letter of an escape.
    for (qsizetype i = 0; i < escape->length; ++i) {
        const char16_t c = unitOf(p[i]);
        const char e = escape->text[i];
        if (c != char16_t(e) && !(e >= 'A' && e <= 'Z' && c == char16_t(e | 0x20)))
            return nullptr;
    }
    return escape;
}

// Restores the text in place in one pass, which gives what the four passes in turn give
// unless two escapes share a '%' ("%TAB%CRLF%"): then it gives false and leaves the text
// undefined. Every replacement is shorter than its escape, so the text only shrinks.
bool restoreInOnePass(QString &text)
{
    const qsizetype first = text.indexOf(u'%');
    if (first < 0)
        return true;
    QChar *const begin = text.data();
    const QChar *const end = begin + text.size();
    const QChar *p = begin + first;
    QChar *out = begin + first;
    while (p != end) {
        // `p` is at a '%'.
        if (const Escape *escape = escapeAt(p, end)) {
            const QChar *last = p + escape->length - 1;
            if (escapeAt(last, end))
                return false;
            for (const char16_t *r = escape->replacement; *r; ++r)
                *out++ = QChar(*r);
            p = last + 1;
        } else {
            *out++ = *p++;
        }
        const qsizetype run = p == end || *p == u'%' ? 0 : QStringView(p, end).indexOf(u'%');
        const QChar *next = run < 0 ? end : p + run;
        std::memmove(out, p, size_t(next - p) * sizeof(QChar));
        out += next - p;
        p = next;
    }
    text.truncate(out - begin);
    return true;
}

QString restoreInPasses(const QString &value)
{
    QString restored = value;
    for (const Escape &escape : Escapes)
        restored.replace(QLatin1String(escape.text),
                         QString::fromUtf16(escape.replacement),
                         Qt::CaseInsensitive);
    return restored;
}

QString restoreText(const QString &value)
{
    QString restored = value;
    if (restoreInOnePass(restored))
        return restored;
    return restoreInPasses(value);
}

// One conversion, and no restore pass without a '%'. The restore runs on the UTF-8, before
// the conversion, as restoreInOnePass does on the converted text.
QString restoreUtf8(const char *text, qsizetype size)
{
    const char *p = static_cast<const char *>(std::memchr(text, '%', size_t(size)));
    if (p == nullptr)
        return QString::fromUtf8(text, size);
    const char *const end = text + size;
    QVarLengthArray<char, 256> restored;
    restored.append(text, p - text);
    while (p != end) {
        // `p` is at a '%'.
        if (const Escape *escape = escapeAt(p, end)) {
            const char *last = p + escape->length - 1;
            if (escapeAt(last, end))
                return restoreInPasses(QString::fromUtf8(text, size));
            for (const char16_t *r = escape->replacement; *r; ++r)
                restored.append(char(*r));
            p = last + 1;
        } else {
            restored.append(*p++);
        }
        const char *next = static_cast<const char *>(std::memchr(p, '%', size_t(end - p)));
        if (next == nullptr)
            next = end;
        restored.append(p, next - p);
        p = next;
    }
    return QString::fromUtf8(restored.constData(), restored.size());
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

// By exact name, starting after `lastMatch`, the previous match, which it then holds; null when
// none matches. Loaders read attributes in file order, so the search usually succeeds at once.
xmlAttrPtr attributeNamed(xmlNodePtr node, QLatin1StringView name, void *&lastMatch)
{
    if (node->type != XML_ELEMENT_NODE)
        return nullptr;
    // strncmp stops at the end of a shorter name, so own[size] is inside it when reached.
    auto matches = [name](xmlAttrPtr a) {
        const char *own = reinterpret_cast<const char *>(a->name);
        return std::strncmp(own, name.data(), size_t(name.size())) == 0 && own[name.size()] == '\0';
    };
    const auto last = static_cast<xmlAttrPtr>(lastMatch);
    // From the one after the last match to the end, then from the start up to it.
    const xmlAttrPtr start
        = last && last->parent == node && last->next ? last->next : node->properties;
    for (xmlAttrPtr a = start; a; a = a->next) {
        if (matches(a)) {
            lastMatch = a;
            return a;
        }
    }
    for (xmlAttrPtr a = node->properties; a != start; a = a->next) {
        if (matches(a)) {
            lastMatch = a;
            return a;
        }
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

void storeEscaped(xmlAttrPtr attribute, const char *stored)
{
    // Sets the text as it stands: the DOM, not the caller, escapes entities.
    if (!xmlSetNsProp(attribute->parent, attribute->ns, attribute->name, xmlText(stored)))
        throw std::bad_alloc();
}

template<typename Value>
void storeValue(xmlAttrPtr attribute, const Value &value)
{
    storeEscaped(attribute, StoredValue(value).data());
}

QString textOf(const QString &value)
{
    return value;
}

QString textOf(QUtf8StringView value)
{
    return value.toString();
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
    attach();
}

TarnXMLElement::TarnXMLElement(const TarnXMLElement &other)
    : m_document(other.m_document)
    , m_node(other.m_node)
    , m_lastAttribute(other.m_lastAttribute)
{
    attach();
}

TarnXMLElement::TarnXMLElement(TarnXMLElement &&other) noexcept
{
    *this = std::move(other);
}

TarnXMLElement &TarnXMLElement::operator=(const TarnXMLElement &other)
{
    if (this != &other) {
        detach();
        m_document = other.m_document;
        m_node = other.m_node;
        m_lastAttribute = other.m_lastAttribute;
        attach();
    }
    return *this;
}

TarnXMLElement &TarnXMLElement::operator=(TarnXMLElement &&other) noexcept
{
    if (this != &other) {
        detach();
        other.detach();
        m_document = std::move(other.m_document);
        m_node = std::exchange(other.m_node, nullptr);
        m_lastAttribute = std::exchange(other.m_lastAttribute, nullptr);
        attach();
    }
    return *this;
}

TarnXMLElement::~TarnXMLElement()
{
    detach();
}

void TarnXMLElement::attach()
{
    if (m_document && m_node)
        m_document->attach(this);
}

void TarnXMLElement::detach()
{
    if (m_document && m_node)
        m_document->detach(this);
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
        Serialised(m_document->document(), nodeOf(m_node), "TarnXMLElement::XMLString").bytes());
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
    if (const xmlAttrPtr attribute = attributeNamed(nodeOf(m_node), name, m_lastAttribute))
        return restoredValue(attribute);
    throw QuorinError::objectNotSet(QStringLiteral("TarnXMLElement::AttributeValueByName"));
}

QUtf8StringView TarnXMLElement::AttributeUtf8ByName(QLatin1StringView name) const
{
    const xmlAttrPtr attribute
        = m_node ? attributeNamed(nodeOf(m_node), name, m_lastAttribute) : nullptr;
    const xmlNodePtr text = attribute ? attribute->children : nullptr;
    if (text == nullptr || text->next || text->type != XML_TEXT_NODE || text->content == nullptr)
        return {};
    const QUtf8StringView value(reinterpret_cast<const char *>(text->content));
    if (std::memchr(value.data(), '%', size_t(value.size())))
        return {};
    return value;
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

void TarnXMLElement::setAttributeValueByName(QLatin1StringView name, const QString &value)
{
    setByName(name, value);
}

void TarnXMLElement::setAttributeValueByName(QLatin1StringView name, QUtf8StringView value)
{
    setByName(name, value);
}

template<typename Value>
void TarnXMLElement::setByName(QLatin1StringView name, const Value &value)
{
    // The form that takes QStrings decides for names outside ASCII.
    if (std::any_of(name.begin(), name.end(), [](char c) { return uchar(c) >= 0x80; })) {
        setAttributeValueByName(QString(name), textOf(value));
        return;
    }
    requireNode("AttributeValueByName");
    const xmlNodePtr node = nodeOf(m_node);
    // The first of that name, as the general form finds it: an ASCII name is its own UTF-8.
    for (xmlAttrPtr attribute = node->type == XML_ELEMENT_NODE ? node->properties : nullptr;
         attribute;
         attribute = attribute->next) {
        const char *own = reinterpret_cast<const char *>(attribute->name);
        if (std::strncmp(own, name.data(), size_t(name.size())) == 0 && own[name.size()] == '\0') {
            storeValue(attribute, value);
            return;
        }
    }
    guardedVoid("AddAttribute", Module, [&] {
        QVarLengthArray<char, 64> utf8Name(name.begin(), name.end());
        utf8Name.append('\0');
        addAttribute(name, utf8Name.constData(), StoredValue(value).data(), true);
    });
}

void TarnXMLElement::AddAttribute(const QString &name, const QString &value)
{
    requireNode("AddAttribute");
    guardedVoid("AddAttribute", Module, [&] {
        const QByteArray utf8Name = name.toUtf8();
        addAttribute(name, utf8Name.constData(), StoredValue(value).data(), false);
    });
}

void TarnXMLElement::addAttribute(QAnyStringView name,
                                  const char *utf8Name,
                                  const char *stored,
                                  bool absent)
{
    requireValidName(name, utf8Name, "TarnXMLElement::AddAttribute");
    const xmlNodePtr node = nodeOf(m_node);
    xmlAttrPtr attribute = nullptr;
    // Setting replaces an attribute of that name; with none there, it is plain adding.
    if (node->type == XML_ELEMENT_NODE)
        attribute = absent ? xmlNewProp(node, xmlText(utf8Name), xmlText(stored))
                           : xmlSetProp(node, xmlText(utf8Name), xmlText(stored));
    if (attribute == nullptr || m_document->parseErrorCode() != 0)
        LogParserError();
}

template<typename Name>
TarnXMLElement TarnXMLElement::childNamed(Name name, qint32 &position, qint32 startAt) const
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

TarnXMLElement TarnXMLElement::ElementByName(const QString &name) const
{
    qint32 position;
    return childNamed(QStringView(name), position, 0);
}

TarnXMLElement TarnXMLElement::ElementByName(QLatin1StringView name) const
{
    qint32 position;
    return childNamed(name, position, 0);
}

TarnXMLElement
TarnXMLElement::ElementByName(const QString &name, qint32 &position, qint32 startAt) const
{
    return childNamed(QStringView(name), position, startAt);
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
        const QString escaped = storedText(value);
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
        requireValidName(name, utf8.constData(), "TarnXMLElement::AddElement");
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
