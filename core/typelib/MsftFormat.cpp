#include "typelib/MsftFormat.h"

#include "typelib/ByteReader.h"

namespace {

// Offsets in the fixed header.
constexpr qint64 PosGuid = 0x08;
constexpr qint64 Lcid = 0x0C;
constexpr qint64 VarFlags = 0x14;
constexpr qint64 Version = 0x18;
constexpr qint64 Flags = 0x1C;
constexpr qint64 TypeInfoCount = 0x20;
constexpr qint64 HelpString = 0x24;
constexpr qint64 NameOffset = 0x38;
constexpr qint64 HeaderSize = 0x54;
// Set when the header is followed by the offset of a help string DLL.
constexpr quint32 HelpDllFlag = 0x100;

// The segment directory: fifteen entries of offset, length and two fixed words, the second
// always 0x0F; that word tells us we found the directory where we expected it.
constexpr qint64 SegmentEntrySize = 16;
constexpr quint32 SegmentMarker = 0x0F;
enum Segment { TypeInfoTable = 0, ImportInfo = 1, GuidTable = 5, NameTable = 7, StringTable = 8 };

qint64 segmentDirectory(const ByteReader &data)
{
    const qint64 count = data.i32(TypeInfoCount);
    if (count < 0)
        throw ByteReader::Malformed();
    const qint64 extra = (data.u32(VarFlags) & HelpDllFlag) ? 4 : 0;
    return HeaderSize + extra + 4 * count;
}

bool isSegmentDirectory(const ByteReader &data, qint64 directory)
{
    for (const Segment s : {TypeInfoTable, ImportInfo, GuidTable, NameTable, StringTable}) {
        if (data.u32(directory + s * SegmentEntrySize + 12) != SegmentMarker)
            return false;
    }
    return true;
}

ByteReader segment(const ByteReader &data, qint64 directory, Segment s)
{
    const qint64 entry = directory + s * SegmentEntrySize;
    return data.slice(data.i32(entry), data.i32(entry + 4));
}

} // namespace

namespace MsftFormat {

bool hasMagic(const ByteReader &data)
{
    return data.contains(0, 4) && data.bytes(0, 4) == QByteArrayView("MSFT");
}

std::optional<TypeLibInfo> read(const ByteReader &data)
{
    if (!hasMagic(data))
        return std::nullopt;
    const qint64 directory = segmentDirectory(data);
    if (!isSegmentDirectory(data, directory))
        return std::nullopt;

    TypeLibInfo info;
    info.format = TypeLibInfo::Format::Msft;
    // A library without a GUID cannot be authorised; treat it as none.
    const qint32 guidOffset = data.i32(PosGuid);
    if (guidOffset < 0)
        return std::nullopt;
    info.guid = segment(data, directory, GuidTable).guid(guidOffset);

    const quint32 version = data.u32(Version);
    info.majorVersion = quint16(version & 0xFFFF);
    info.minorVersion = quint16(version >> 16);
    info.lcid = data.u32(Lcid);
    info.libFlags = quint16(data.u32(Flags));

    // Strings: a 16-bit length, then the bytes.
    if (const qint32 help = data.i32(HelpString); help >= 0) {
        const ByteReader strings = segment(data, directory, StringTable);
        const qint16 length = qint16(strings.u16(help));
        if (length > 0)
            info.helpString = strings.ansiText(qint64(help) + 2, length);
    }
    // Names: hash links and a length word whose low byte is the length, then the bytes.
    if (const qint32 name = data.i32(NameOffset); name >= 0) {
        const ByteReader names = segment(data, directory, NameTable);
        info.name = names.ansiText(qint64(name) + 12, names.u8(qint64(name) + 8));
    }
    return info;
}

} // namespace MsftFormat
