#include "xml/XmlSupport.h"

#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/QuorinError.h"

#include <QDebug>

#include <libxml/xmlsave.h>
#include <libxslt/xsltutils.h>

#include <cstdarg>
#include <cstdio>
#include <memory>
#include <new>

namespace XmlSupport {

void logEvent(const QString &message, const char *function, const char *module)
{
    const QString fn = QString::fromLatin1(function);
    const QString mod = QString::fromLatin1(module);
    if (gobjLogFile) {
        gobjLogFile->LogEvent(message, fn, mod);
        return;
    }
    qWarning().noquote()
        << QStringLiteral("Event %1 in function %2 module %3").arg(message, fn, mod);
}

void logParserError(qint32 code, const QString &reason, const char *function, const char *module)
{
    logEvent(QStringLiteral("XML Parser Error: Number=") + QString::number(code)
                 + QStringLiteral(" Reason=") + reason,
             function,
             module);
}

static char16_t unitAt(QStringView name, qsizetype i)
{
    return name[i].unicode();
}

static char16_t unitAt(QLatin1StringView name, qsizetype i)
{
    return uchar(name[i].toLatin1());
}

template<typename Name>
static bool sameNameAs(const xmlChar *utf8, Name name, Qt::CaseSensitivity cs)
{
    const qsizetype size = name.size();
    qsizetype i = 0;
    for (; utf8[i]; ++i) {
        const uchar c = utf8[i];
        if (i >= size)
            return false;
        const char16_t u = unitAt(name, i);
        // Outside ASCII, case folding needs the full rules.
        if (c >= 0x80 || u >= 0x80)
            return QString::compare(fromXml(utf8), name, cs) == 0;
        if (c == u)
            continue;
        if (cs == Qt::CaseSensitive || (c | 0x20) != (u | 0x20) || (c | 0x20) < 'a'
            || (c | 0x20) > 'z')
            return false;
    }
    return i == size;
}

bool sameName(const xmlChar *utf8, QStringView name, Qt::CaseSensitivity cs)
{
    return sameNameAs(utf8, name, cs);
}

bool sameName(const xmlChar *utf8, QLatin1StringView name, Qt::CaseSensitivity cs)
{
    return sameNameAs(utf8, name, cs);
}

Serialised::Serialised(xmlDocPtr document, xmlNodePtr node, const char *source)
    : m_buffer(xmlBufferCreate(), xmlBufferFree)
{
    ErrorCapture capture;
    xmlSaveCtxtPtr context
        = m_buffer ? xmlSaveToBuffer(m_buffer.get(), "UTF-8", XML_SAVE_NO_DECL) : nullptr;
    if (context == nullptr)
        throw std::bad_alloc();
    const long written = node ? xmlSaveTree(context, node) : xmlSaveDoc(context, document);
    if (xmlSaveClose(context) < 0 || written < 0)
        throw QuorinError(DomFailure,
                          QString::fromLatin1(source),
                          capture.reason(QStringLiteral("The document could not be written.")));
    m_size = xmlBufferLength(m_buffer.get());
    // The library ends the document with a line break; the file holds the tree alone.
    if (node == nullptr && m_size > 0 && bytes().back() == '\n')
        --m_size;
}

QByteArrayView Serialised::bytes() const
{
    return QByteArrayView(reinterpret_cast<const char *>(xmlBufferContent(m_buffer.get())), m_size);
}

void requireValidName(QAnyStringView name, const char *utf8, const char *source)
{
    if (name.isEmpty() || xmlValidateName(xmlText(utf8), 0) != 0)
        throw QuorinError(DomFailure,
                          QString::fromLatin1(source),
                          QStringLiteral("Invalid XML name: '") + name.toString()
                              + QLatin1Char('\''));
}

// The thread's handler, for reports raised without a parser context.
static void structuredError(void *context, xmlErrorPtr error)
{
    if (context)
        static_cast<ErrorCapture *>(context)->record(error);
}

// A parser context passes itself; its _private field holds the capture.
static void parserContextError(void *context, xmlErrorPtr error)
{
    auto *parser = static_cast<xmlParserCtxtPtr>(context);
    if (parser && parser->_private)
        static_cast<ErrorCapture *>(parser->_private)->record(error);
}

static void genericError(void *context, const char *format, ...)
{
    char text[1024];
    va_list args;
    va_start(args, format);
    std::vsnprintf(text, sizeof text, format, args);
    va_end(args);
    if (context)
        static_cast<ErrorCapture *>(context)->recordText(QString::fromUtf8(text));
}

ErrorCapture::ErrorCapture()
    : m_previousStructured(xmlStructuredError)
    , m_previousStructuredContext(xmlStructuredErrorContext)
    , m_previousGeneric(xmlGenericError)
    , m_previousGenericContext(xmlGenericErrorContext)
    , m_previousXslt(xsltGenericError)
    , m_previousXsltContext(xsltGenericErrorContext)
{
    xmlSetStructuredErrorFunc(this, structuredError);
    xmlSetGenericErrorFunc(this, genericError);
    xsltSetGenericErrorFunc(this, genericError);
}

ErrorCapture::~ErrorCapture()
{
    xmlSetStructuredErrorFunc(m_previousStructuredContext, m_previousStructured);
    xmlSetGenericErrorFunc(m_previousGenericContext, m_previousGeneric);
    xsltSetGenericErrorFunc(m_previousXsltContext, m_previousXslt);
}

void ErrorCapture::attach(xmlParserCtxtPtr context)
{
    context->_private = this;
    context->sax->serror = parserContextError;
}

qint32 ErrorCapture::code(qint32 fallback) const
{
    return m_level != XML_ERR_NONE && m_code != 0 ? m_code : fallback;
}

QString ErrorCapture::reason(const QString &fallback) const
{
    if (!m_reason.isEmpty())
        return m_reason;
    if (!m_text.isEmpty())
        return m_text;
    return fallback;
}

// One log record is one line: the library's multi-line messages are joined.
static QString oneLine(const QString &text)
{
    QString line = text;
    line.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
    return line.simplified();
}

void ErrorCapture::record(const xmlError *error)
{
    // Asking for validation of a file without a DTD is no fault.
    if (error == nullptr || error->code == XML_DTD_NO_DTD || error->level <= m_level)
        return;
    m_level = error->level;
    m_code = error->code;
    // The library's name for it fits only the loop, not the far likelier expansion attack.
    m_reason = error->code == XML_ERR_ENTITY_LOOP
                   ? QStringLiteral("An entity refers to itself or expands to far more text than "
                                    "the file holds; a rulebase needs no such entity, so the file "
                                    "was refused")
                   : oneLine(QString::fromUtf8(error->message ? error->message : ""));
    if (error->line > 0) {
        m_reason += QStringLiteral(" (line %1").arg(error->line);
        // Parser reports carry the column in int2.
        if (error->int2 > 0)
            m_reason += QStringLiteral(", column %1").arg(error->int2);
        m_reason += QLatin1Char(')');
    }
}

void ErrorCapture::refuse(qint32 code, const QString &reason)
{
    if (m_level == XML_ERR_FATAL)
        return;
    m_level = XML_ERR_FATAL;
    m_code = code;
    m_reason = reason;
}

void ErrorCapture::recordText(const QString &text)
{
    if (m_text.size() < 1000)
        m_text = oneLine(m_text + QLatin1Char(' ') + text);
}

} // namespace XmlSupport
