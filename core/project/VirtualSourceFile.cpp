#include "project/VirtualSourceFile.h"

#include "collections/KeyedArrayList.h"
#include "collections/StringKeyedArrayList.h"
#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/TextUtils.h"
#include "project/SourceLineStatistics.h"
#include "project/SourceTextFile.h"
#include "project/VirtualObject.h"
#include "project/modQuorinUtils.h"
#include "project/modSource.h"
#include "project/modVOSource.h"

#include <QDebug>

#include <limits>

namespace {

constexpr const char *Module = "VirtualSourceFile";

constexpr qint32 ResultGood = 0;
constexpr qint32 ResultNoNameOrType = 2;
constexpr qint32 ResultNotSourceLine = 3;

qint32 fileTypeFromWord(const QString &word)
{
    static const std::pair<const char *, qint32> types[] = {
        {"Class", SourceFileType::Class},
        {"Form", SourceFileType::Form},
        {"Designer", SourceFileType::Designer},
        {"Module", SourceFileType::Module},
        {"PropertyPage", SourceFileType::PropertyPage},
        {"UserDocument", SourceFileType::UserDocument},
        {"UserControl", SourceFileType::UserControl},
        {"MDIForm", SourceFileType::MDIForm},
    };
    for (const auto &[name, type] : types) {
        if (Text::same(word, QLatin1String(name)))
            return type;
    }
    return 0;
}

QByteArrayView trimRight(QByteArrayView text)
{
    qsizetype end = text.size();
    while (end > 0 && text[end - 1] == ' ')
        --end;
    return text.first(end);
}

QByteArrayView trimBlanks(QByteArrayView text)
{
    text = trimRight(text);
    qsizetype start = 0;
    while (start < text.size() && text[start] == ' ')
        ++start;
    return text.sliced(start);
}

// `text` begins with the ASCII `prefix`, the case of letters ignored. No byte beyond ASCII
// decodes to a character that folds to an ASCII letter, so the bytes can be compared as they are.
bool startsWithNoCase(QByteArrayView text, QLatin1String prefix)
{
    if (text.size() < prefix.size())
        return false;
    for (qsizetype i = 0; i < prefix.size(); ++i) {
        const char c = text[i];
        const char p = prefix[i].toLatin1();
        if (c != p && !(((c | 0x20) == (p | 0x20)) && (p | 0x20) >= 'a' && (p | 0x20) <= 'z'))
            return false;
    }
    return true;
}

// One logical line as the file's bytes, continued lines joined. The rules look at ASCII only,
// and no other Windows-1252 byte decodes to ASCII, so the text is decoded only when asked for.
struct LogicalLine
{
    QByteArrayView first; // its first physical line
    QByteArrayView text;  // the first line itself, or `joined`
    QByteArray joined;
    QByteArray raw; // the physical lines joined by CR LF, when asked for
    qint32 physical = 0;
};

void readLogicalLine(SourceTextFile &file, LogicalLine &line, bool withRaw)
{
    line.physical = 0;
    if (!line.joined.isEmpty())
        line.joined.resize(0); // the buffers keep their room for the next continued line
    if (!line.raw.isEmpty())
        line.raw.resize(0);
    bool continues = true;
    while (continues && !file.atEnd()) {
        const QByteArrayView physical = file.readLineBytes();
        QByteArrayView piece = physical;
        // Only a line whose last non-blank character is "_" can continue; the full
        // classification decides, but most lines are settled by this look at their end.
        const QByteArrayView trimmed = trimRight(physical);
        if (trimmed.endsWith('_')
            && modSource::LineTypeOfWindows1252(physical) == SourceLineType::Continuation) {
            piece = trimRight(trimmed.chopped(1));
        } else {
            continues = false;
        }
        if (line.physical++ == 0) {
            line.first = physical;
            if (!continues) {
                line.text = physical; // the common case: nothing to join
                return;
            }
        }
        if (withRaw) {
            if (line.physical > 1)
                line.raw.append("\r\n");
            line.raw.append(physical);
        }
        if (line.joined.isEmpty()) {
            line.joined.append(piece);
        } else {
            line.joined.append(' ');
            line.joined.append(trimBlanks(piece));
        }
    }
    line.text = line.joined;
}

} // namespace

VirtualSourceFile::VirtualSourceFile()
    : m_object(std::make_shared<VirtualObject>())
{
}

VirtualSourceFile::~VirtualSourceFile() = default;

std::shared_ptr<KeyedArrayList> VirtualSourceFile::Properties() const
{
    return m_object->Properties();
}

std::shared_ptr<StringKeyedArrayList> VirtualSourceFile::EventItems()
{
    if (!m_eventItems)
        m_eventItems = std::make_shared<StringKeyedArrayList>();
    return m_eventItems;
}

bool VirtualSourceFile::HasLayout() const
{
    switch (m_fileType) {
    case SourceFileType::Form:
    case SourceFileType::Designer:
    case SourceFileType::PropertyPage:
    case SourceFileType::UserDocument:
    case SourceFileType::UserControl:
    case SourceFileType::MDIForm:
        return true;
    default:
        return false;
    }
}

qint32 VirtualSourceFile::InitFileFromVBProjectFileLine(const QString &line,
                                                        const QString &projectFolder)
{
    return guarded("InitFileFromVBProjectFileLine", Module, ResultNoNameOrType, [&] {
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals < 0)
            return ResultNotSourceLine;
        QString typeWord = line.left(equals);
        const QString rest = line.mid(equals + 1);

        QString name;
        QString path;
        qint32 result = ResultGood;
        const qsizetype semicolon = rest.indexOf(QLatin1Char(';'));
        if (semicolon >= 0) {
            // "Class=CFoo; foo.cls" names the file itself: the file is not opened.
            name = rest.left(semicolon);
            path = Text::trimBlanks(rest.mid(semicolon + 1));
            m_filename = modQuorinUtils::RelativeToAbsolutePath(path, projectFolder);
        } else {
            path = rest;
            m_filename = modQuorinUtils::RelativeToAbsolutePath(path, projectFolder);
            result = DetermineNameAndFileType(name, typeWord);
        }

        if (result == ResultGood) {
            m_fileType = fileTypeFromWord(typeWord);
            if (m_fileType == 0)
                return ResultNotSourceLine;
        }
        if (name.isEmpty())
            name = m_filename;
        m_name = name;

        m_object->AddProperty(QStringLiteral("Name"), name);
        m_object->AddProperty(QStringLiteral("Type"), typeWord);
        modVOSource::AddFilenameRelatedProperties(*m_object, path);
        return result;
    });
}

qint32 VirtualSourceFile::DetermineNameAndFileType(QString &name, QString &typeWord)
{
    return guarded("DetermineNameAndFileType", Module, ResultNoNameOrType, [&] {
        static const std::pair<const char *, const char *> layouts[] = {
            {"Begin VB.Form ", "Form"},
            {"Begin VB.MDIForm ", "MDIForm"},
            {"Begin {", "Designer"},
            {"Begin VB.PropertyPage ", "PropertyPage"},
            {"Begin VB.UserDocument ", "UserDocument"},
            {"Begin VB.UserControl ", "UserControl"},
        };
        const QLatin1String attributeName("Attribute VB_Name = ");

        SourceTextFile file(m_filename, SourceTextFile::Reading::AsLinesAreRead);
        // A line is read before the end is tested: an empty file fails in the read.
        do {
            const QString line = file.readLine();
            for (const auto &[prefix, word] : layouts) {
                const QLatin1String begin(prefix);
                if (!line.startsWith(begin, Qt::CaseInsensitive))
                    continue;
                if (begin == QLatin1String("Begin {"))
                    name = Text::trimBlanks(line.mid(line.indexOf(QLatin1Char('}')) + 2));
                else
                    name = Text::trimBlanks(line.mid(begin.size()));
                typeWord = QLatin1String(word);
                return ResultGood;
            }
            if (line.startsWith(attributeName, Qt::CaseInsensitive)) {
                const qsizetype open = line.indexOf(QLatin1Char('"'));
                const qsizetype close = open < 0 ? -1 : line.indexOf(QLatin1Char('"'), open + 1);
                if (open >= 0)
                    name = Text::trimBlanks(close < 0 ? line.mid(open + 1)
                                                      : line.mid(open + 1, close - open - 1));
                return ResultGood; // the type word of the project line stands
            }
        } while (!file.atEnd());
        return ResultNoNameOrType;
    });
}

qint32 VirtualSourceFile::Connect()
{
    return ConnectFile();
}

qint32 VirtualSourceFile::ConnectFile()
{
    m_file.reset();
    try {
        m_file = std::make_unique<SourceTextFile>(m_filename);
        m_size = qint32(std::min<qint64>(m_file->size(), std::numeric_limits<qint32>::max()));
        return 0;
    } catch (const std::exception &e) {
        const QuorinError error = QuorinError::fromStd(e);
        reportError(error, "ConnectFile", Module);
        const QString message = QStringLiteral("Failed to open file ") + m_filename
                                + QStringLiteral(" - Error ") + QString::number(error.number())
                                + QLatin1Char(' ') + error.description();
        if (gobjLogFile)
            gobjLogFile->LogMessage(message);
        else
            qWarning().noquote() << message;
        return error.number() != 0 ? error.number() : 1;
    }
}

bool VirtualSourceFile::GetNextSourceLine(QString &rawText,
                                          QString &logicalLine,
                                          qint32 &physicalLines,
                                          qint32 &length)
{
    return guarded("GetNextSourceLine", Module, false, [&] {
        if (!m_file || m_file->atEnd())
            return false;
        LogicalLine line;
        readLogicalLine(*m_file, line, true);
        QByteArrayView logical = line.text;
        physicalLines = PassLogicalLine(line.first, logical, line.physical);
        rawText = m_file->decode(line.physical > 1 ? QByteArrayView(line.raw) : line.first);
        logicalLine = m_file->decode(logical);
        length = qint32(rawText.size());
        return true;
    });
}

qint32
VirtualSourceFile::PassLogicalLine(QByteArrayView first, QByteArrayView &logical, qint32 physical)
{
    if (!first.isEmpty() && (first[0] | 0x20) == 'a'
        && startsWithNoCase(first, QLatin1String("Attribute"))) {
        // Attribute lines count for nothing; the name attribute closes the header.
        if (startsWithNoCase(first, QLatin1String("Attribute VB_Name =")))
            m_headerSeen = true;
        return 0;
    }
    if (m_headerSeen)
        m_lineCountingEnabled = true;
    // Old-style line numbers go from the logical line; the raw text keeps them.
    qsizetype digits = 0;
    while (digits < logical.size() && logical[digits] >= '0' && logical[digits] <= '9')
        ++digits;
    if (digits > 0)
        logical = logical.sliced(digits);
    return physical;
}

void VirtualSourceFile::Disconnect()
{
    m_file.reset();
    m_lineCountingEnabled = false;
    m_headerSeen = false;
}

qint32 VirtualSourceFile::CountSourceLines()
{
    const qint32 status = Connect();
    if (status != 0)
        return status;
    const auto stats = m_object->LineStats();
    m_object->setHasLSTATS(true);
    // GetNextSourceLine's walk without the decoding: the line types need the bytes only.
    qint64 counted[4] = {};
    guardedVoid("GetNextSourceLine", Module, [&] {
        LogicalLine line;
        while (!m_file->atEnd()) {
            readLogicalLine(*m_file, line, false);
            QByteArrayView logical = line.text;
            if (PassLogicalLine(line.first, logical, line.physical) > 0 && m_lineCountingEnabled) {
                const auto type = qint32(modSource::LineTypeOfWindows1252(logical));
                if (type < 4)
                    ++counted[type];
            }
        }
    });
    for (qint32 type = 0; type < 4; ++type) {
        if (counted[type] > 0)
            stats->IncrementCount(type, counted[type]);
    }
    Disconnect();
    return 0;
}
