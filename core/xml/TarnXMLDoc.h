#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

class QIODevice;
class TarnXMLChildReader;
class TarnXMLDocState;
class TarnXMLElement;
// The DOM's document, opaque outside core/xml.
struct TarnXMLDocument;

// An XML document. Loading drops whitespace-only text, comments and processing instructions, so
// a loader sees elements only; a failed load leaves an empty document and logs the parser's
// reason with its line and column. Saving is atomic and writes UTF-8 with no XML declaration
// and no indentation. Element handles taken before a load or NewDoc keep the old tree.
class TarnXMLDoc final
{
public:
    TarnXMLDoc();
    ~TarnXMLDoc();
    TarnXMLDoc(const TarnXMLDoc &) = delete;
    TarnXMLDoc &operator=(const TarnXMLDoc &) = delete;

    TarnXMLDocument *Document() const;
    // Why the last load failed, with the line and column the parser gave; empty after a good one.
    QString ParseErrorReason() const;
    // The code of the last failed SaveToFile; SaveErrorText gives its text.
    qint32 LastError() const { return m_lastError; }
    // Makes a "Root_Element" first when the document has no root.
    TarnXMLElement RootElement();
    // DTD validation; it binds only a document that has a DTD.
    void setValidateWhileParsing(bool validate) { m_validateWhileParsing = validate; }
    // Kept for the interface's sake: loads always finish before they return.
    void setAsynchronousDownload(bool asynchronous) { m_asynchronousDownload = asynchronous; }
    void NewDoc(const QString &rootName);
    QString XMLString() const;
    bool LoadFromFile(const QString &filename);
    // The same, with the reader taking children of the elements it names as they are parsed.
    bool LoadFromFile(const QString &filename, TarnXMLChildReader &reader);
    bool LoadFromString(const QString &xml);
    // An empty name means the name of the last LoadFromFile.
    bool SaveToFile(const QString &filename = QString());
    QString TransformDocument(const TarnXMLDoc &stylesheet) const;

    // The user's text for a LastError code, as a failed save reports it.
    static QString SaveErrorText(qint32 code);
    // Writes a document's bytes as SaveToFile does: atomically, a failure logged. Gives the
    // LastError code, 0 for success.
    static qint32 saveBytes(const QString &filename, QByteArrayView bytes);

private:
    bool loadFile(const QString &filename, TarnXMLChildReader *reader);
    bool
    parseInto(QIODevice &device, const QString &filename, TarnXMLChildReader *reader = nullptr);
    bool parseText(const QString &text);
    void LogParserError(qint32 code, const QString &reason, const char *function) const;

    std::shared_ptr<TarnXMLDocState> m_document;
    QString m_filename;
    qint32 m_lastError = 0;
    bool m_validateWhileParsing = true;
    bool m_asynchronousDownload = false;
};
