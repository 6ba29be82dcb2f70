#include "project/SourceTextFile.h"

#include "platform/QuorinError.h"
#include "project/CaseInsensitivePath.h"
#include "project/Windows1252.h"

#include <QFile>
#include <QFileInfo>

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
}

QString SourceTextFile::readLine()
{
    return Windows1252::decode(readLineBytes());
}

QByteArrayView SourceTextFile::readLineBytes()
{
    if (atEnd())
        throw fileError(FileErrorNumber::InputPastEndOfFile,
                        QStringLiteral("Input past end of file"));
    const qsizetype size = m_bytes.size();
    const char *data = m_bytes.constData();
    const qsizetype start = m_position;
    qsizetype end = start;
    // Both line-end bytes are below 14, so one compare settles nearly every byte.
    while (end < size
           && (static_cast<unsigned char>(data[end]) > '\r'
               || (data[end] != '\r' && data[end] != '\n')))
        ++end;
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
