#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <memory>

class QFile;

// The runtime's numbers for the file failures a reader can meet.
namespace FileErrorNumber {
constexpr qint32 FileNotFound = 53;
constexpr qint32 InputPastEndOfFile = 62;
constexpr qint32 PathFileAccessError = 75;
constexpr qint32 PathNotFound = 76;
} // namespace FileErrorNumber

// A text file opened for input and read line by line as the original runtime reads it:
// Windows-1252 (UTF-8 when the file has a byte order mark, or is valid UTF-8 and not plain
// ASCII), a line ends at CR LF, CR or LF (files written elsewhere end lines in LF), and
// a last line without a line end is still a line. Reading past the end fails.
class SourceTextFile final
{
public:
    enum class Reading {
        Whole,          // all at once
        AsLinesAreRead, // a block at a time, for a reader that may stop after a few lines
    };

    // Finds the file ignoring case; raises QuorinError 53, 76 or 75 when it can't be opened.
    explicit SourceTextFile(const QString &filename, Reading reading = Reading::Whole);
    ~SourceTextFile();

    bool atEnd() const { return m_position >= m_bytes.size(); }
    // The next line without its line end; raises error 62 at the end of the file.
    QString readLine();
    // The same line as the file's bytes, valid while the file lives. Reads the rest of a file
    // read as lines are read first.
    QByteArrayView readLineBytes();
    // Text of bytes read from this file, in the file's encoding.
    QString decode(QByteArrayView bytes) const;
    // Length in bytes of what has been read: the file's, when it was read whole.
    qint64 size() const { return m_bytes.size(); }

private:
    void startReading(std::unique_ptr<QFile> file, Reading reading);
    // Steps over a UTF-8 byte order mark and reads the file as UTF-8 when there is one.
    bool skipByteOrderMark();
    // Appends up to `room` bytes of the file; false at its end, where the file is closed.
    bool readBlock(qsizetype room);
    // Reads on until the bytes from m_position hold a whole line or the file is done, so
    // that atEnd tells the truth.
    void readLineAhead();
    QByteArrayView takeLine();

    QByteArray m_bytes;
    qsizetype m_position = 0;
    bool m_utf8 = false;
    std::unique_ptr<QFile> m_rest; // open while a file read as lines are read has more
};
