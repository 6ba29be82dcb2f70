#include "typelib/SltgFormat.h"

#include "typelib/ByteReader.h"

namespace {

// Header: magic, block count (entries + 1), pad length, index size, first block (1-based),
// a fixed GUID and two fixed words.
constexpr qint64 BlockCount = 0x04;
constexpr qint64 PadLength = 0x06;
constexpr qint64 IndexSize = 0x08;
constexpr qint64 FirstBlock = 0x0A;
constexpr qint64 HeaderSize = 0x24;
// Block entries: length, offset of its index name, next entry (1-based, 0 ends the chain).
constexpr qint64 EntrySize = 8;
constexpr QByteArrayView IndexMagic("\x01"
                                    "CompObj\0",
                                    9);
constexpr quint16 LibraryBlockMagic = 0x51CC;

// A length-prefixed string of the library block; 0xFFFF stands for none.
QString blockString(const ByteReader &data, qint64 &offset)
{
    const quint16 length = data.u16(offset);
    offset += 2;
    if (length == 0xFFFF)
        return {};
    const QString text = data.ansiText(offset, length);
    offset += length;
    return text;
}

// The library block is the last of the chain of blocks, which lie in the file in chain order.
qint64 libraryBlock(const ByteReader &data)
{
    const qint64 entries = qint64(data.u16(BlockCount)) - 1;
    if (entries < 1)
        throw ByteReader::Malformed();
    const qint64 index = HeaderSize + entries * EntrySize;
    if (data.bytes(index, IndexMagic.size()) != IndexMagic)
        throw ByteReader::Malformed();

    qint64 block = index + data.u16(IndexSize) + data.u16(PadLength);
    qint64 entry = qint64(data.u16(FirstBlock)) - 1;
    // At most one step per entry, so a chain that loops ends here.
    for (qint64 steps = 0; steps < entries; ++steps) {
        if (entry < 0 || entry >= entries)
            throw ByteReader::Malformed();
        const qint64 at = HeaderSize + entry * EntrySize;
        const quint16 next = data.u16(at + 6);
        if (next == 0)
            return block;
        block += data.u32(at);
        entry = qint64(next) - 1;
    }
    throw ByteReader::Malformed();
}

} // namespace

namespace SltgFormat {

bool hasMagic(const ByteReader &data)
{
    return data.contains(0, 4) && data.bytes(0, 4) == QByteArrayView("SLTG");
}

std::optional<TypeLibInfo> read(const ByteReader &data)
{
    if (!hasMagic(data))
        return std::nullopt;
    qint64 at = libraryBlock(data);
    if (data.u16(at) != LibraryBlockMagic)
        return std::nullopt;

    TypeLibInfo info;
    info.format = TypeLibInfo::Format::Sltg;
    // Magic, an unknown word, the name's offset in the name table, then three strings: one
    // unknown, the help string, the help file.
    at += 6;
    blockString(data, at);
    info.helpString = blockString(data, at);
    blockString(data, at);
    at += 4 + 2; // help context, system kind
    info.lcid = data.u16(at);
    at += 2 + 4; // an unknown double word
    info.libFlags = data.u16(at);
    at += 2;
    const quint32 version = data.u32(at);
    info.majorVersion = quint16(version & 0xFFFF);
    info.minorVersion = quint16(version >> 16);
    info.guid = data.guid(at + 4);
    return info;
}

} // namespace SltgFormat
