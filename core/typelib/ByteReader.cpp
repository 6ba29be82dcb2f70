#include "typelib/ByteReader.h"

#include <QStringDecoder>

namespace {

// Windows-1252 where it differs from Latin-1; its five unassigned bytes keep their C1 code.
constexpr char16_t Cp1252High[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

} // namespace

bool ByteReader::contains(qint64 offset, qint64 length) const
{
    return offset >= 0 && length >= 0 && offset <= size() && length <= size() - offset;
}

void ByteReader::require(qint64 offset, qint64 length) const
{
    if (!contains(offset, length))
        throw Malformed();
}

quint8 ByteReader::u8(qint64 offset) const
{
    require(offset, 1);
    return quint8(m_data[offset]);
}

quint16 ByteReader::u16(qint64 offset) const
{
    require(offset, 2);
    return quint16(quint8(m_data[offset]) | quint8(m_data[offset + 1]) << 8);
}

quint32 ByteReader::u32(qint64 offset) const
{
    require(offset, 4);
    return quint32(u16(offset)) | quint32(u16(offset + 2)) << 16;
}

QByteArrayView ByteReader::bytes(qint64 offset, qint64 length) const
{
    require(offset, length);
    return m_data.sliced(offset, length);
}

ByteReader ByteReader::slice(qint64 offset, qint64 length) const
{
    return ByteReader(bytes(offset, length));
}

QString ByteReader::guid(qint64 offset) const
{
    require(offset, 16);
    QString text = QStringLiteral("{%1-%2-%3-")
                       .arg(u32(offset), 8, 16, QLatin1Char('0'))
                       .arg(u16(offset + 4), 4, 16, QLatin1Char('0'))
                       .arg(u16(offset + 6), 4, 16, QLatin1Char('0'));
    for (int i = 8; i < 16; ++i) {
        if (i == 10)
            text += QLatin1Char('-');
        text += QStringLiteral("%1").arg(u8(offset + i), 2, 16, QLatin1Char('0'));
    }
    text += QLatin1Char('}');
    return text.toUpper();
}

QString ByteReader::ansiText(qint64 offset, qint64 length) const
{
    QByteArrayView raw = bytes(offset, length);
    while (!raw.isEmpty() && raw.back() == '\0')
        raw.chop(1);

    // Stateless, so a lead byte at the end counts as an error rather than waiting for more.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(raw);
    if (!utf8.hasError())
        return text;

    text.clear();
    text.reserve(raw.size());
    for (const char c : raw) {
        const quint8 b = quint8(c);
        text += (b >= 0x80 && b < 0xA0) ? QChar(Cp1252High[b - 0x80]) : QChar(char16_t(b));
    }
    return text;
}
