#include "xml/TarnXMLDoc.h"

#include "platform/ErrorFrame.h"
#include "platform/QuorinError.h"
#include "xml/TarnXMLChildReader.h"
#include "xml/TarnXMLDocState.h"
#include "xml/TarnXMLElement.h"
#include "xml/XmlSupport.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QScopeGuard>

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/xmlIO.h>
#include <libxslt/transform.h>
#include <libxslt/xsltInternals.h>
#include <libxslt/xsltutils.h>

#include <cerrno>
#include <memory>
#include <optional>
#include <vector>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace XmlSupport;

namespace {

constexpr char Module[] = "TarnXMLDoc";

// The codes a failed save leaves in LastError, as the original runtime numbered them.
constexpr qint32 InvalidPath = qint32(0x80070003u);
constexpr qint32 AccessDenied = qint32(0x80070005u);
constexpr qint32 WriteProtected = qint32(0x80070013u);
constexpr qint32 NotReady = qint32(0x80070015u);
constexpr qint32 DiskFull = qint32(0x80070070u);
constexpr qint32 FileNotFound = qint32(0x80070002u);

struct DocDeleter
{
    void operator()(xmlDocPtr document) const { xmlFreeDoc(document); }
};
using DocPtr = std::unique_ptr<xmlDoc, DocDeleter>;

void initialiseLibrary()
{
    static const bool done = [] {
        xmlInitParser();
        return true;
    }();
    (void)done;
}

DocPtr emptyDocument()
{
    DocPtr document(xmlNewDoc(reinterpret_cast<const xmlChar *>("1.0")));
    if (!document)
        throw std::bad_alloc();
    return document;
}

std::shared_ptr<TarnXMLDocState> makeState(DocPtr document, qint32 code, const QString &reason)
{
    auto state = std::make_shared<TarnXMLDocState>(document.get());
    document.release();
    state->setParseError(code, reason);
    return state;
}

bool isIgnorable(xmlNodePtr node)
{
    return (node->type == XML_TEXT_NODE && xmlIsBlankNode(node)) || node->type == XML_COMMENT_NODE
           || node->type == XML_PI_NODE;
}

// The DOM keeps no whitespace-only text, and the loaders count on every child being an element:
// the parser's own dropping misses some (an element holding only a line break), so a pass
// finishes it below `top`, and takes comments and processing instructions of hand-edited files
// with it.
void dropIgnorableNodes(xmlNodePtr top)
{
    xmlNodePtr node = top->children;
    while (node) {
        if (node->type == XML_ELEMENT_NODE && node->children) {
            node = node->children;
            continue;
        }
        xmlNodePtr next = node;
        while (next != top && next->next == nullptr)
            next = next->parent;
        next = next == top ? nullptr : next->next;
        if (isIgnorable(node)) {
            xmlUnlinkNode(node);
            xmlFreeNode(node);
        }
        node = next;
    }
}

// A TarnXMLChildReader's side of one parse: its parents are found as their start tags arrive,
// and their children offered as their end tags do.
class ChildStream final
{
public:
    explicit ChildStream(TarnXMLChildReader &reader)
        : m_reader(reader)
    {
        const QList<QLatin1StringView> lists = reader.ChildLists();
        for (const QLatin1StringView path : lists) {
            List list;
            for (const QLatin1StringView step : path.tokenize(QLatin1Char('/')))
                list.steps.push_back(step);
            list.found.assign(list.steps.size(), nullptr);
            m_unfound += list.steps.size();
            m_lists.push_back(std::move(list));
        }
    }

    void started(xmlParserCtxtPtr context)
    {
        const xmlNodePtr node = context->node;
        if (!node || node->type != XML_ELEMENT_NODE)
            return;
        const xmlNodePtr parent = node->parent;
        if (parent && parent->type == XML_DOCUMENT_NODE) {
            begin(context, node);
            return;
        }
        if (!m_on || m_unfound == 0)
            return;
        for (List &list : m_lists) {
            for (size_t step = 0; step < list.steps.size(); ++step) {
                const xmlNodePtr above = step == 0 ? m_root : list.found[step - 1];
                if (list.found[step] == nullptr && above == parent
                    && sameName(node->name, list.steps[step], Qt::CaseInsensitive)) {
                    list.found[step] = node;
                    --m_unfound;
                }
            }
        }
    }

    void ended(xmlNodePtr node)
    {
        if (!m_on || !node)
            return;
        for (size_t index = 0; index < m_lists.size(); ++index) {
            List &list = m_lists[index];
            const xmlNodePtr parent = list.found.back();
            if (parent == nullptr || list.ended)
                continue;
            if (node->parent == parent) {
                offer(qint32(index), list, node);
                return;
            }
            if (node == parent) {
                list.ended = true;
                call([&] { m_reader.ChildListEnded(qint32(index)); });
            }
        }
    }

private:
    struct List
    {
        std::vector<QLatin1StringView> steps;
        // The element of each step once its start tag has come.
        std::vector<xmlNodePtr> found;
        bool ended = false;
        // A child stayed: the rest of the list stay with it.
        bool stopped = false;
    };

    void begin(xmlParserCtxtPtr context, xmlNodePtr root)
    {
        m_root = root;
        const xmlDocPtr document = context->myDoc;
        // Validation needs the whole tree, and entities declared in a DTD stay the tree's.
        if (document->intSubset || document->extSubset)
            return;
        m_state = std::make_shared<TarnXMLDocState>(document, false);
        call([&] { m_on = m_reader.Begin(TarnXMLDocState::elementOf(m_state, root)); });
        if (!m_on)
            return;
        // Without a DTD only the five predefined entities exist, so the parser may put their
        // characters in attribute values itself rather than leave references to be parsed
        // again; and no attribute but xml:id can be an ID, of no use to a reader.
        context->replaceEntities = 1;
        context->loadsubset |= XML_SKIP_IDS;
    }

    void offer(qint32 index, List &list, xmlNodePtr child)
    {
        if (list.stopped)
            return;
        for (xmlNodePtr previous = child->prev; previous;) {
            const xmlNodePtr before = previous->prev;
            if (!isIgnorable(previous)) {
                list.stopped = true;
                return;
            }
            m_state->retire(previous);
            previous = before;
        }
        dropIgnorableNodes(child);
        bool taken = false;
        call(
            [&] { taken = m_reader.ReadChild(index, TarnXMLDocState::elementOf(m_state, child)); });
        if (!taken) {
            list.stopped = true;
            return;
        }
        // A parent found inside the child goes with it.
        for (List &other : m_lists) {
            for (xmlNodePtr &found : other.found) {
                for (xmlNodePtr above = found; above; above = above->parent) {
                    if (above == child) {
                        found = nullptr;
                        ++m_unfound;
                        other.stopped = true;
                        break;
                    }
                }
            }
        }
        m_state->retire(child);
    }

    // The reader must not throw into the parser; one that does is offered nothing more.
    template<typename Call>
    void call(Call &&body)
    {
        try {
            body();
        } catch (...) {
            m_on = false;
        }
    }

    TarnXMLChildReader &m_reader;
    std::vector<List> m_lists;
    // Steps whose element has yet to come: none, and start tags need no look.
    size_t m_unfound = 0;
    std::shared_ptr<TarnXMLDocState> m_state;
    xmlNodePtr m_root = nullptr;
    bool m_on = false;
};

// The stream of the parse running on this thread, for the parser's callbacks.
thread_local ChildStream *activeStream = nullptr;

void startElement(void *context,
                  const xmlChar *localName,
                  const xmlChar *prefix,
                  const xmlChar *uri,
                  int namespaceCount,
                  const xmlChar **namespaces,
                  int attributeCount,
                  int defaultedCount,
                  const xmlChar **attributes)
{
    xmlSAX2StartElementNs(context,
                          localName,
                          prefix,
                          uri,
                          namespaceCount,
                          namespaces,
                          attributeCount,
                          defaultedCount,
                          attributes);
    activeStream->started(static_cast<xmlParserCtxtPtr>(context));
}

void endElement(void *context, const xmlChar *localName, const xmlChar *prefix, const xmlChar *uri)
{
    const xmlNodePtr node = static_cast<xmlParserCtxtPtr>(context)->node;
    xmlSAX2EndElementNs(context, localName, prefix, uri);
    activeStream->ended(node);
}

struct ParseResult
{
    DocPtr document;
    qint32 code = 0;
    QString reason;
};

// The parser reads in chunks, as from a file: this library parses one large block markedly slower.
int readChunk(void *context, char *buffer, int length)
{
    const qint64 read = static_cast<QIODevice *>(context)->read(buffer, length);
    return read < 0 ? -1 : int(read);
}

// A rulebase is read on its own: an entity or DTD kept in another file is refused before it is
// read, whatever it names, and the parse stops there.
void refuseExternal(void *context, const xmlChar *systemId, const xmlChar *publicId)
{
    auto *parser = static_cast<xmlParserCtxtPtr>(context);
    const xmlChar *name = systemId ? systemId : publicId;
    QString reason = QStringLiteral("The file refers to the external entity \"") + fromXml(name)
                     + QStringLiteral("\"; a rulebase is read on its own, so the file was refused");
    if (const int line = xmlSAX2GetLineNumber(context); line > 0)
        reason += QStringLiteral(" (line %1)").arg(line);
    if (parser->_private)
        static_cast<ErrorCapture *>(parser->_private)->refuse(XML_ERR_ENTITY_IS_EXTERNAL, reason);
    // Stopping alone would hand back the tree read so far as a whole one.
    parser->wellFormed = 0;
    xmlStopParser(parser);
}

void entityDeclaration(void *context,
                       const xmlChar *name,
                       int type,
                       const xmlChar *publicId,
                       const xmlChar *systemId,
                       xmlChar *content)
{
    if (systemId || publicId)
        refuseExternal(context, systemId, publicId);
    else
        xmlSAX2EntityDecl(context, name, type, publicId, systemId, content);
}

void externalSubset(void *context,
                    const xmlChar *name,
                    const xmlChar *publicId,
                    const xmlChar *systemId)
{
    if (systemId || publicId)
        refuseExternal(context, systemId, publicId);
    else
        xmlSAX2ExternalSubset(context, name, publicId, systemId);
}

// `filename` empty: the device holds text handed over as a string. The library's limits on
// entity expansion stay in force, so a file of a few kilobytes can't expand to gigabytes.
ParseResult
parse(QIODevice &device, const QString &filename, bool validate, TarnXMLChildReader *reader)
{
    ParseResult result;
    int options = XML_PARSE_NOBLANKS | XML_PARSE_NONET | XML_PARSE_COMPACT;
    if (validate)
        options |= XML_PARSE_DTDVALID;
    // A string is ours, UTF-8 whatever its declaration says.
    const char *encoding = nullptr;
    if (filename.isEmpty()) {
        encoding = "UTF-8";
        options |= XML_PARSE_IGNORE_ENC;
    }
    const QByteArray url = filename.isEmpty()
                               ? QByteArray()
                               : QFile::encodeName(QFileInfo(filename).absoluteFilePath());

    ErrorCapture capture;
    std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> context(xmlNewParserCtxt(),
                                                                         xmlFreeParserCtxt);
    if (!context)
        throw std::bad_alloc();
    capture.attach(context.get());
    context->sax->entityDecl = entityDeclaration;
    context->sax->externalSubset = externalSubset;
    std::optional<ChildStream> stream;
    ChildStream *const outerStream = activeStream;
    const auto restoreStream = qScopeGuard([outerStream] { activeStream = outerStream; });
    if (reader) {
        stream.emplace(*reader);
        activeStream = &*stream;
        context->sax->startElementNs = startElement;
        context->sax->endElementNs = endElement;
    }
    DocPtr document(xmlCtxtReadIO(context.get(),
                                  readChunk,
                                  nullptr,
                                  &device,
                                  url.isEmpty() ? nullptr : url.constData(),
                                  encoding,
                                  options));
    bool ok = document && context->wellFormed;
    // Validity binds only a document that declares a DTD, as with the DOM.
    if (ok && validate && !context->valid && (document->intSubset || document->extSubset))
        ok = false;
    if (!ok) {
        result.code = capture.code(XML_ERR_INTERNAL_ERROR);
        result.reason = capture.reason(QStringLiteral("The document could not be parsed."));
        return result;
    }
    dropIgnorableNodes(reinterpret_cast<xmlNodePtr>(document.get()));
    result.document = std::move(document);
    return result;
}

// Why a file could not be opened for reading.
qint32 readErrorCode(const QString &filename)
{
    const QFileInfo info(filename);
    if (!info.exists())
        return QFileInfo(info.absolutePath()).isDir() ? FileNotFound : InvalidPath;
    if (info.isDir() || !info.isReadable())
        return AccessDenied;
    return DomFailure;
}

qint32 codeFromErrno(int error)
{
    switch (error) {
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
        return DiskFull;
    case EROFS:
        return WriteProtected;
    case EACCES:
    case EPERM:
    case EBUSY:
#ifdef ETXTBSY
    case ETXTBSY:
#endif
        return AccessDenied;
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
        return InvalidPath;
    case ENODEV:
    case ENXIO:
        return NotReady;
    default:
        return 0;
    }
}

// Why a save failed. The state of the folder and file decides first, since the error number
// the runtime left behind may belong to another call; it decides only what they can't show.
qint32 writeErrorCode(const QString &filename, int error)
{
    if (filename.isEmpty())
        return InvalidPath;
    const QFileInfo info(filename);
    const QString folder = info.absolutePath();
    if (!QFileInfo(folder).isDir())
        return InvalidPath;
    if (info.isDir())
        return AccessDenied;
#ifdef Q_OS_UNIX
    for (const QString &path : {folder, info.absoluteFilePath()}) {
        if (path != folder && !info.exists())
            continue;
        if (::access(QFile::encodeName(path).constData(), W_OK) != 0) {
            if (const qint32 code = codeFromErrno(errno))
                return code;
        }
    }
#else
    if (!QFileInfo(folder).isWritable() || (info.exists() && !info.isWritable()))
        return AccessDenied;
#endif
    if (const qint32 code = codeFromErrno(error))
        return code;
    return DomFailure;
}

bool writeAtomically(const QString &filename, QByteArrayView bytes, qint32 &code, QString &reason)
{
    QSaveFile file(filename);
    errno = 0;
    bool ok = !filename.isEmpty() && file.open(QIODevice::WriteOnly);
    int error = errno;
    if (ok) {
        ok = file.write(bytes.data(), bytes.size()) == bytes.size();
        error = errno;
        // A failed write leaves the temporary file to be discarded, never committed.
        if (ok) {
            ok = file.commit();
            error = errno;
        }
    }
    if (ok)
        return true;
    code = writeErrorCode(filename, error);
    reason = filename.isEmpty()
                 ? QStringLiteral("No file name was given.")
                 : file.errorString() + QStringLiteral(" (") + filename + QLatin1Char(')');
    return false;
}

} // namespace

TarnXMLDoc::TarnXMLDoc()
{
    initialiseLibrary();
    m_document = makeState(emptyDocument(), 0, QString());
}

TarnXMLDoc::~TarnXMLDoc() = default;

TarnXMLDocument *TarnXMLDoc::Document() const
{
    return reinterpret_cast<TarnXMLDocument *>(m_document->document());
}

// Replaces the tree by the parse of what the device holds, or by an empty one when they don't
// parse. A state of its own keeps handles on the old tree valid.
bool TarnXMLDoc::parseInto(QIODevice &device, const QString &filename, TarnXMLChildReader *reader)
{
    ParseResult result = parse(device, filename, m_validateWhileParsing, reader);
    const bool ok = result.document != nullptr;
    m_document
        = makeState(ok ? std::move(result.document) : emptyDocument(), result.code, result.reason);
    return ok;
}

bool TarnXMLDoc::parseText(const QString &text)
{
    QByteArray utf8 = text.toUtf8();
    QBuffer buffer(&utf8);
    buffer.open(QIODevice::ReadOnly);
    return parseInto(buffer, QString());
}

QString TarnXMLDoc::ParseErrorReason() const
{
    return m_document->parseErrorReason();
}

TarnXMLElement TarnXMLDoc::RootElement()
{
    return guarded("RootElement", Module, TarnXMLElement(), [&] {
        xmlNodePtr root = xmlDocGetRootElement(m_document->document());
        if (root == nullptr) {
            parseText(QStringLiteral("<Root_Element>\r\n</Root_Element>"));
            root = xmlDocGetRootElement(m_document->document());
        }
        return root ? TarnXMLElement(m_document, handleOf(root)) : TarnXMLElement();
    });
}

void TarnXMLDoc::NewDoc(const QString &rootName)
{
    guardedVoid("NewDoc", Module, [&] {
        const QString text
            = QLatin1Char('<') + rootName + QStringLiteral(">\r\n</") + rootName + QLatin1Char('>');
        parseText(text);
    });
}

QString TarnXMLDoc::XMLString() const
{
    return QString::fromUtf8(
        Serialised(m_document->document(), nullptr, "TarnXMLDoc::XMLString").bytes());
}

bool TarnXMLDoc::LoadFromFile(const QString &filename)
{
    return loadFile(filename, nullptr);
}

bool TarnXMLDoc::LoadFromFile(const QString &filename, TarnXMLChildReader &reader)
{
    return loadFile(filename, &reader);
}

bool TarnXMLDoc::loadFile(const QString &filename, TarnXMLChildReader *reader)
{
    return guarded("LoadFromFile", Module, false, [&] {
        m_filename = filename;
        QFile file(filename);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            m_document
                = makeState(emptyDocument(),
                            readErrorCode(filename),
                            QStringLiteral("The file could not be read: ") + file.errorString()
                                + QStringLiteral(" (") + filename + QLatin1Char(')'));
        } else if (parseInto(file, filename, reader)) {
            return true;
        }
        LogParserError(
            m_document->parseErrorCode(), m_document->parseErrorReason(), "LoadFromFile");
        return false;
    });
}

bool TarnXMLDoc::LoadFromString(const QString &xml)
{
    return guarded("LoadFromString", Module, false, [&] {
        m_filename.clear();
        if (parseText(xml))
            return true;
        LogParserError(
            m_document->parseErrorCode(), m_document->parseErrorReason(), "LoadFromString");
        return false;
    });
}

bool TarnXMLDoc::SaveToFile(const QString &filename)
{
    return guarded("SaveToFile", Module, false, [&] {
        const QString target = filename.isEmpty() ? m_filename : filename;
        // Serialised first: a failure here is raised, reaches this frame and leaves LastError.
        const Serialised text(m_document->document(), nullptr, "TarnXMLDoc::SaveToFile");
        qint32 code = 0;
        QString reason;
        if (writeAtomically(target, text.bytes(), code, reason))
            return true;
        m_lastError = code;
        LogParserError(code, reason, "SaveToFile");
        return false;
    });
}

qint32 TarnXMLDoc::saveBytes(const QString &filename, QByteArrayView bytes)
{
    return guarded("SaveToFile", Module, DomFailure, [&] {
        qint32 code = 0;
        QString reason;
        if (writeAtomically(filename, bytes, code, reason))
            return 0;
        logParserError(code, reason, "SaveToFile", Module);
        return code;
    });
}

QString TarnXMLDoc::TransformDocument(const TarnXMLDoc &stylesheet) const
{
    return guarded("TransformDocument", Module, QString(), [&] {
        if (m_document->parseErrorCode() != 0) {
            LogParserError(
                m_document->parseErrorCode(), m_document->parseErrorReason(), "TransformDocument");
            return QString();
        }
        ErrorCapture capture;
        const auto fail = [&](const QString &fallback) {
            LogParserError(capture.code(DomFailure), capture.reason(fallback), "TransformDocument");
            return QString();
        };
        // The compiled style sheet owns the tree it is given: give it a copy.
        DocPtr styleTree(xmlCopyDoc(stylesheet.m_document->document(), 1));
        if (!styleTree)
            throw std::bad_alloc();
        std::unique_ptr<xsltStylesheet, decltype(&xsltFreeStylesheet)> style(
            xsltParseStylesheetDoc(styleTree.get()), xsltFreeStylesheet);
        if (!style)
            return fail(QStringLiteral("The style sheet could not be compiled."));
        styleTree.release();
        DocPtr result(xsltApplyStylesheet(style.get(), m_document->document(), nullptr));
        if (!result)
            return fail(QStringLiteral("The transformation failed."));
        // Written through a UTF-8 encoder whatever output encoding the style sheet names.
        std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> buffer(xmlBufferCreate(),
                                                                    xmlBufferFree);
        xmlOutputBufferPtr output
            = buffer
                  ? xmlOutputBufferCreateBuffer(buffer.get(), xmlFindCharEncodingHandler("UTF-8"))
                  : nullptr;
        if (output == nullptr)
            throw std::bad_alloc();
        const int written = xsltSaveResultTo(output, result.get(), style.get());
        if (xmlOutputBufferClose(output) < 0 || written < 0)
            return fail(QStringLiteral("The result could not be written."));
        return QString::fromUtf8(reinterpret_cast<const char *>(xmlBufferContent(buffer.get())),
                                 xmlBufferLength(buffer.get()));
    });
}

QString TarnXMLDoc::SaveErrorText(qint32 code)
{
    switch (code) {
    case InvalidPath:
        return QStringLiteral("Invalid path.");
    case AccessDenied:
        return QStringLiteral("Access denied.");
    case WriteProtected:
        return QStringLiteral("Media is write-protected.");
    case NotReady:
        return QStringLiteral("Device not ready.");
    case DiskFull:
        return QStringLiteral("Not enough space.");
    default:
        return QStringLiteral("Unknown error ") + QString::number(code);
    }
}

void TarnXMLDoc::LogParserError(qint32 code, const QString &reason, const char *function) const
{
    logParserError(code, reason, function, Module);
}
