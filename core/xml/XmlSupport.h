#pragma once

// Private to core/xml, like TarnXMLDocState.h: the only headers that name libxml2 types.

#include <QAnyStringView>
#include <QByteArrayView>
#include <QString>

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include <memory>

struct TarnXMLNode;

// Helpers shared by the document and element wrappers.
namespace XmlSupport {

// The number the DOM's own failures carry (E_FAIL), and the catch-all code of a failed save.
constexpr qint32 DomFailure = qint32(0x80004005u);

inline TarnXMLNode *handleOf(xmlNodePtr node)
{
    return reinterpret_cast<TarnXMLNode *>(node);
}
inline xmlNodePtr nodeOf(TarnXMLNode *node)
{
    return reinterpret_cast<xmlNodePtr>(node);
}

// LogEvent on the global log; stderr when the program runs without one.
void logEvent(const QString &message, const char *function, const char *module);
// The record every parser error is logged with.
void logParserError(qint32 code, const QString &reason, const char *function, const char *module);

inline QString fromXml(const xmlChar *text)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(text));
}
inline const xmlChar *xmlText(const char *utf8)
{
    return reinterpret_cast<const xmlChar *>(utf8);
}
inline const xmlChar *xmlText(const QByteArray &utf8)
{
    return xmlText(utf8.constData());
}

// UTF-8 text of the whole document (node null) or of one node, with no declaration and no
// indentation, left in the library's buffer: a large document is not copied again. Throws
// QuorinError from `source` when the library fails.
class Serialised final
{
public:
    Serialised(xmlDocPtr document, xmlNodePtr node, const char *source);
    QByteArrayView bytes() const;

private:
    std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> m_buffer;
    qsizetype m_size = 0;
};

// Compares a name held by libxml2 with ours without converting either when both are ASCII,
// which every name of a rulebase is.
bool sameName(const xmlChar *utf8, QStringView name, Qt::CaseSensitivity cs);
bool sameName(const xmlChar *utf8, QLatin1StringView name, Qt::CaseSensitivity cs);

// Throws QuorinError when `name` can't name an element or attribute, as the DOM refuses one;
// `utf8` is the name in UTF-8, ending in a NUL.
void requireValidName(QAnyStringView name, const char *utf8, const char *source);

// Collects the library's error reports for the length of one operation instead of letting them
// reach stderr. A parser context reports to it directly; the thread's own handlers, installed
// here and restored on destruction, catch the few reports raised without a context.
class ErrorCapture final
{
public:
    ErrorCapture();
    ~ErrorCapture();
    ErrorCapture(const ErrorCapture &) = delete;
    ErrorCapture &operator=(const ErrorCapture &) = delete;

    void attach(xmlParserCtxtPtr context);

    // The code of the most serious report (the first of that level); `fallback` without one.
    qint32 code(qint32 fallback) const;
    // Its message with the line and column of the fault, or the collected free text.
    QString reason(const QString &fallback) const;

    void record(const xmlError *error);
    void recordText(const QString &text);
    // Our own refusal of what the document holds; it outranks every report but an earlier one.
    void refuse(qint32 code, const QString &reason);

private:
    xmlErrorLevel m_level = XML_ERR_NONE;
    qint32 m_code = 0;
    QString m_reason;
    QString m_text;
    xmlStructuredErrorFunc m_previousStructured;
    void *m_previousStructuredContext;
    xmlGenericErrorFunc m_previousGeneric;
    void *m_previousGenericContext;
    xmlGenericErrorFunc m_previousXslt;
    void *m_previousXsltContext;
};

} // namespace XmlSupport
