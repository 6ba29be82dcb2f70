#pragma once

#include <QByteArrayView>
#include <QString>

#include <exception>

// Little-endian reads from an untrusted buffer. Every read is checked against the buffer's
// size and throws Malformed instead of reading past it, so the format readers above it can
// follow offsets taken from a hostile file without checking each one themselves.
class ByteReader final
{
public:
    // Thrown for any read outside the buffer, and by the format readers for data that cannot
    // be right; the type library reader turns it into "no library" and never lets it out.
    class Malformed final : public std::exception
    {
    public:
        const char *what() const noexcept override { return "malformed data"; }
    };

    explicit ByteReader(QByteArrayView data)
        : m_data(data)
    {
    }

    qint64 size() const { return m_data.size(); }
    bool contains(qint64 offset, qint64 length) const;

    quint8 u8(qint64 offset) const;
    quint16 u16(qint64 offset) const;
    quint32 u32(qint64 offset) const;
    qint32 i32(qint64 offset) const { return qint32(u32(offset)); }
    QByteArrayView bytes(qint64 offset, qint64 length) const;
    // A reader over part of this one, whose offsets start at `offset`.
    ByteReader slice(qint64 offset, qint64 length) const;

    // A GUID stored in its binary layout, as "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}".
    QString guid(qint64 offset) const;
    // Text in the 8-bit encoding type libraries use: UTF-8 when it is valid UTF-8 (as the
    // open-source compilers write it), else Windows-1252, the usual ANSI code page.
    QString ansiText(qint64 offset, qint64 length) const;

private:
    void require(qint64 offset, qint64 length) const;

    QByteArrayView m_data;
};
