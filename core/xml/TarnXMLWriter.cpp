#include "xml/TarnXMLWriter.h"

#include "xml/TarnXMLDoc.h"
#include "xml/XmlSafeText.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace {

// What an attribute value's byte becomes: the escapes TarnXMLElement stores first (CR LF, tab,
// "<", ">"), then the entities the library writes for what stays (a lone CR or LF, the quote,
// "&"). Bytes beyond ASCII are UTF-8 and stand as they are.
constexpr std::array<const char *, 256> Replacements = [] {
    std::array<const char *, 256> replacements{};
    replacements['\t'] = "%TAB%";
    replacements['<'] = "%LT%";
    replacements['>'] = "%GT%";
    replacements['\n'] = "&#10;";
    replacements['\r'] = "&#13;"; // a CR before an LF is "%CRLF%" instead
    replacements['"'] = "&quot;";
    replacements['&'] = "&amp;";
    return replacements;
}();

} // namespace

TarnXMLWriter::Element::Element(TarnXMLWriter &writer, QLatin1String name)
    : m_writer(writer)
    , m_name(name)
    , m_depth(writer.m_depth + 1)
{
    QByteArray &bytes = writer.m_bytes;
    if (writer.m_inStartTag)
        bytes.append('>');
    bytes.append('<');
    bytes.append(name.data(), name.size());
    writer.m_depth = m_depth;
    writer.m_inStartTag = true;
}

TarnXMLWriter::Element::~Element()
{
    QByteArray &bytes = m_writer.m_bytes;
    if (m_writer.m_inStartTag) {
        bytes.append("/>");
    } else {
        bytes.append("</");
        bytes.append(m_name.data(), m_name.size());
        bytes.append('>');
    }
    m_writer.m_depth = m_depth - 1;
    m_writer.m_inStartTag = false;
}

void TarnXMLWriter::Element::requireInnermost(bool inStartTag) const
{
    if (m_depth != m_writer.m_depth || (inStartTag && !m_writer.m_inStartTag))
        throw std::logic_error("An XML element was written out of document order.");
}

TarnXMLWriter::Element TarnXMLWriter::Element::AddElement(QLatin1String name)
{
    requireInnermost(false);
    return Element(m_writer, name);
}

void TarnXMLWriter::Element::setAttribute(QLatin1String name, const QString &value)
{
    writeAttribute(name, QUtf8StringView(xmlSafeText(value).toUtf8()));
}

void TarnXMLWriter::Element::setAttribute(QLatin1String name, QUtf8StringView value)
{
    // Plain ASCII, such as digits, needs no decoding to know XML holds it.
    if (isXmlSafeAscii(value))
        writeAttribute(name, value);
    else
        setAttribute(name, value.toString());
}

void TarnXMLWriter::Element::writeAttribute(QLatin1String name, QUtf8StringView value)
{
    requireInnermost(true);
    QByteArray &bytes = m_writer.m_bytes;
    bytes.append(' ');
    bytes.append(name.data(), name.size());
    bytes.append("=\"");
    m_writer.appendEscaped(value);
    bytes.append('"');
}

TarnXMLWriter::Element TarnXMLWriter::RootElement(QLatin1String name)
{
    if (m_depth != 0 || !m_bytes.isEmpty())
        throw std::logic_error("An XML document has one root element.");
    return Element(*this, name);
}

void TarnXMLWriter::appendEscaped(QUtf8StringView value)
{
    const char *p = value.data();
    const char *const end = p + value.size();
    while (p != end) {
        const char *run = p;
        while (run != end && !Replacements[static_cast<unsigned char>(*run)])
            ++run;
        m_bytes.append(p, run - p);
        if (run == end)
            return;
        if (*run == '\r' && run + 1 != end && run[1] == '\n') {
            m_bytes.append("%CRLF%");
            p = run + 2;
        } else {
            m_bytes.append(Replacements[static_cast<unsigned char>(*run)]);
            p = run + 1;
        }
    }
}

bool TarnXMLWriter::SaveToFile(const QString &filename)
{
    m_lastError = TarnXMLDoc::saveBytes(filename, m_bytes);
    return m_lastError == 0;
}
