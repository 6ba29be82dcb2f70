#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QUtf8StringView>

// A document written as it goes, in document order, rather than built as a tree and then
// saved: a large rulebase is written without a second copy of itself. The bytes are those
// TarnXMLDoc::SaveToFile writes for the same tree (UTF-8, no declaration, no indentation, an
// empty element closed in its start tag), and attribute values are escaped as TarnXMLElement
// stores them. Names are the caller's ASCII constants and are not checked.
class TarnXMLWriter final
{
public:
    // An element, open while it lives. Its attributes come before its first child, and a child
    // is added to the innermost open element only.
    class Element final
    {
    public:
        ~Element();
        Element(const Element &) = delete;
        Element &operator=(const Element &) = delete;

        Element AddElement(QLatin1String name);
        void setAttribute(QLatin1String name, const QString &value);
        void setAttribute(QLatin1String name, QUtf8StringView value);

    private:
        friend class TarnXMLWriter;
        Element(TarnXMLWriter &writer, QLatin1String name);
        void requireInnermost(bool inStartTag) const;
        // `value` is known to hold only what XML can.
        void writeAttribute(QLatin1String name, QUtf8StringView value);

        TarnXMLWriter &m_writer;
        QLatin1String m_name;
        qint32 m_depth;
    };

    Element RootElement(QLatin1String name);
    QByteArrayView bytes() const { return m_bytes; }
    // As TarnXMLDoc::SaveToFile: atomic, a failure logged and its code kept in LastError.
    bool SaveToFile(const QString &filename);
    qint32 LastError() const { return m_lastError; }

private:
    void appendEscaped(QUtf8StringView value);

    QByteArray m_bytes;
    qint32 m_depth = 0;
    bool m_inStartTag = false; // the innermost element's start tag still takes attributes
    qint32 m_lastError = 0;
};
