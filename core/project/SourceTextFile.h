#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

// The runtime's numbers for the file failures a reader can meet.
namespace FileErrorNumber {
constexpr qint32 FileNotFound = 53;
constexpr qint32 InputPastEndOfFile = 62;
constexpr qint32 PathFileAccessError = 75;
constexpr qint32 PathNotFound = 76;
} // namespace FileErrorNumber

// A text file opened for input and read line by line as the original runtime reads it:
// Windows-1252, a line ends at CR LF, CR or LF (files written elsewhere end lines in LF), and
// a last line without a line end is still a line. Reading past the end fails.
class SourceTextFile final
{
public:
    // Finds the file ignoring case; raises QuorinError 53, 76 or 75 when it can't be opened.
    explicit SourceTextFile(const QString &filename);

    bool atEnd() const { return m_position >= m_bytes.size(); }
    // The next line without its line end; raises error 62 at the end of the file.
    QString readLine();
    // The same line as the file's bytes, valid while the file lives.
    QByteArrayView readLineBytes();
    // Length of the file in bytes.
    qint64 size() const { return m_bytes.size(); }

private:
    QByteArray m_bytes;
    qsizetype m_position = 0;
};
