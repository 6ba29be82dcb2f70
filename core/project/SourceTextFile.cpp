#include "project/SourceTextFile.h"

#include "platform/QuorinError.h"
#include "project/ByteScan.h"
#include "project/CaseInsensitivePath.h"
#include "project/Windows1252.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <memory>

namespace {

QuorinError fileError(qint32 number, const QString &description)
{
    return {number, QStringLiteral("SourceTextFile"), description};
}

} // namespace

SourceTextFile::SourceTextFile(const QString &filename, Reading reading)
{
    // A path without backslashes that opens is the one the search below would find first.
    if (!filename.isEmpty() && !filename.contains(QLatin1Char('\\'))) {
        auto file = std::make_unique<QFile>(filename);
        if (file->open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            startReading(std::move(file), reading);
            return;
        }
    }
    const QString found = CaseInsensitivePath::resolve(filename);
    const QFileInfo info(found);
    if (found.isEmpty() || !info.exists()) {
        QString folder = found;
        folder.replace(QLatin1Char('\\'), QLatin1Char('/'));
        folder = folder.left(folder.lastIndexOf(QLatin1Char('/')) + 1);
        if (folder.isEmpty() || QFileInfo(CaseInsensitivePath::resolve(folder)).isDir())
            throw fileError(FileErrorNumber::FileNotFound, QStringLiteral("File not found"));
        throw fileError(FileErrorNumber::PathNotFound, QStringLiteral("Path not found"));
    }
    auto file = std::make_unique<QFile>(found);
    if (info.isDir() || !file->open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw fileError(FileErrorNumber::PathFileAccessError,
                        QStringLiteral("Path/File access error"));
    startReading(std::move(file), reading);
}

SourceTextFile::~SourceTextFile() = default;

void SourceTextFile::startReading(std::unique_ptr<QFile> file, Reading reading)
{
    m_rest = std::move(file);
    if (reading == Reading::AsLinesAreRead) {
        // Only a mark tells the encoding of a file that is not read whole.
        readLineAhead();
        skipByteOrderMark();
        return;
    }
    // Most source files fit the first block; each further block doubles what is held.
    qsizetype room = 64 * 1024;
    while (readBlock(room))
        room = m_bytes.size();
    if (!skipByteOrderMark()) {
        // Without a mark, text that is valid UTF-8 and not plain ASCII was saved as UTF-8.
        const auto firstHigh = std::find_if(m_bytes.cbegin(), m_bytes.cend(), [](char c) {
            return static_cast<unsigned char>(c) >= 0x80;
        });
        m_utf8 = firstHigh != m_bytes.cend()
                 && QByteArrayView(firstHigh, m_bytes.cend()).isValidUtf8();
    }
}

bool SourceTextFile::skipByteOrderMark()
{
    if (!m_bytes.startsWith("\xEF\xBB\xBF"))
        return false;
    m_utf8 = true;
    m_position = 3;
    return true;
}

bool SourceTextFile::readBlock(qsizetype room)
{
    // Plain reads into our own buffer: no size asked of the file and no second copy.
    const qsizetype have = m_bytes.size();
    m_bytes.resize(have + room);
    const qint64 got = m_rest->read(m_bytes.data() + have, room);
    m_bytes.resize(have + std::max<qint64>(got, 0));
    // A file's read fills the room unless the file ends first.
    if (got == room)
        return true;
    m_rest.reset();
    return false;
}

void SourceTextFile::readLineAhead()
{
    while (m_rest) {
        const char *data = m_bytes.constData();
        const char *end = data + m_bytes.size();
        const char *lineEnd = ByteScan::findLineEnd(data + m_position, end);
        // A CR needs the byte after it, which may be the LF of the same line end.
        if (lineEnd < end && (*lineEnd == '\n' || lineEnd + 1 < end))
            return;
        readBlock(std::max<qsizetype>(m_bytes.size(), 4096));
    }
}

QString SourceTextFile::readLine()
{
    const QString line = decode(takeLine());
    if (m_rest)
        readLineAhead();
    return line;
}

QString SourceTextFile::decode(QByteArrayView bytes) const
{
    return m_utf8 ? QString::fromUtf8(bytes) : Windows1252::decode(bytes);
}

QByteArrayView SourceTextFile::readLineBytes()
{
    while (m_rest && readBlock(std::max<qsizetype>(m_bytes.size(), 4096))) {
    }
    return takeLine();
}

QByteArrayView SourceTextFile::takeLine()
{
    if (atEnd())
        throw fileError(FileErrorNumber::InputPastEndOfFile,
                        QStringLiteral("Input past end of file"));
    const qsizetype size = m_bytes.size();
    const char *data = m_bytes.constData();
    const qsizetype start = m_position;
    qsizetype end = ByteScan::findLineEnd(data + start, data + size) - data;
    const QByteArrayView line(data + start, end - start);
    if (end < size && data[end] == '\r') {
        ++end;
        if (end < size && data[end] == '\n')
            ++end;
    } else if (end < size) {
        ++end;
    }
    m_position = end;
    return line;
}
