#include "project/SourceTextFile.h"

#include "platform/QuorinError.h"
#include "project/CaseInsensitivePath.h"
#include "project/Windows1252.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

QuorinError fileError(qint32 number, const QString &description)
{
    return {number, QStringLiteral("SourceTextFile"), description};
}

} // namespace

SourceTextFile::SourceTextFile(const QString &filename)
{
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
    QFile file(found);
    if (info.isDir() || !file.open(QIODevice::ReadOnly))
        throw fileError(FileErrorNumber::PathFileAccessError,
                        QStringLiteral("Path/File access error"));
    m_bytes = file.readAll();
    if (m_bytes.startsWith("\xEF\xBB\xBF")) {
        m_utf8 = true;
        m_position = 3;
    } else {
        const bool ascii = std::all_of(m_bytes.cbegin(), m_bytes.cend(), [](char c) {
            return static_cast<unsigned char>(c) < 0x80;
        });
        m_utf8 = !ascii && m_bytes.isValidUtf8();
    }
}

QString SourceTextFile::readLine()
{
    if (atEnd())
        throw fileError(FileErrorNumber::InputPastEndOfFile,
                        QStringLiteral("Input past end of file"));
    const qsizetype size = m_bytes.size();
    const char *data = m_bytes.constData();
    qsizetype end = m_position;
    while (end < size && data[end] != '\r' && data[end] != '\n')
        ++end;
    const QByteArrayView bytes(data + m_position, end - m_position);
    const QString line = m_utf8 ? QString::fromUtf8(bytes) : Windows1252::decode(bytes);
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
