#include "typelib/PeResources.h"

#include "typelib/ByteReader.h"

namespace {

constexpr qint64 NewHeaderOffset = 0x3C;
// Relative to the "PE\0\0" signature.
constexpr qint64 SectionCount = 4 + 2;
constexpr qint64 OptionalHeaderSize = 4 + 16;
constexpr qint64 OptionalHeader = 4 + 20;
constexpr quint16 Pe32Magic = 0x10B;
constexpr quint16 Pe32PlusMagic = 0x20B;
constexpr qint64 ResourceDataDirectory = 2;
constexpr qint64 SectionHeaderSize = 40;

// Resource directory: a 16-byte header whose last two words count the named and the numbered
// entries, then 8-byte entries. The high bit of an entry's first word marks a name, of its
// second a subdirectory; both then hold offsets from the start of the resource directory.
constexpr qint64 DirectoryHeaderSize = 16;
constexpr qint64 DirectoryEntrySize = 8;
constexpr quint32 HighBit = 0x80000000u;

struct Section
{
    quint32 virtualAddress = 0;
    quint32 virtualSize = 0;
    quint32 rawSize = 0;
    quint32 rawOffset = 0;
};

class Image
{
public:
    explicit Image(const ByteReader &data);

    // The file offset of `length` bytes at `rva`; they must lie in one section's file data.
    qint64 fileOffset(quint32 rva, qint64 length) const;
    quint32 resourceRva() const { return m_resourceRva; }

private:
    const ByteReader &m_data;
    QList<Section> m_sections;
    quint32 m_resourceRva = 0;
};

Image::Image(const ByteReader &data)
    : m_data(data)
{
    const qint64 pe = data.u32(NewHeaderOffset);
    if (data.bytes(pe, 4) != QByteArrayView("PE\0\0", 4))
        throw ByteReader::Malformed();
    const qint64 optional = pe + OptionalHeader;
    const qint64 optionalSize = data.u16(pe + OptionalHeaderSize);

    qint64 directoryCount = 0;
    qint64 directories = 0;
    switch (data.u16(optional)) {
    case Pe32Magic:
        directoryCount = 92;
        directories = 96;
        break;
    case Pe32PlusMagic:
        directoryCount = 108;
        directories = 112;
        break;
    default:
        throw ByteReader::Malformed();
    }
    const qint64 resourceEntry = directories + ResourceDataDirectory * 8;
    if (data.u32(optional + directoryCount) <= ResourceDataDirectory
        || resourceEntry + 8 > optionalSize)
        return; // no resource directory
    m_resourceRva = data.u32(optional + resourceEntry);

    const qint64 sections = optional + optionalSize;
    const int count = data.u16(pe + SectionCount);
    for (int i = 0; i < count; ++i) {
        const qint64 at = sections + i * SectionHeaderSize;
        m_sections.append(
            {data.u32(at + 12), data.u32(at + 8), data.u32(at + 16), data.u32(at + 20)});
    }
}

qint64 Image::fileOffset(quint32 rva, qint64 length) const
{
    for (const Section &s : m_sections) {
        if (rva < s.virtualAddress)
            continue;
        const qint64 into = qint64(rva) - s.virtualAddress;
        const qint64 mapped = qMax(s.virtualSize, s.rawSize);
        if (into >= mapped)
            continue;
        // Bytes past the section's file data are zeros in memory but absent from the file.
        if (length > qint64(s.rawSize) - into)
            throw ByteReader::Malformed();
        const qint64 offset = qint64(s.rawOffset) + into;
        if (!m_data.contains(offset, length))
            throw ByteReader::Malformed();
        return offset;
    }
    throw ByteReader::Malformed();
}

// Entries of a directory as (first word, second word) pairs.
QList<std::pair<quint32, quint32>> entries(const ByteReader &tree, qint64 directory)
{
    const qint64 count = qint64(tree.u16(directory + 12)) + tree.u16(directory + 14);
    // Checked in one piece, so a huge count fails before anything is allocated.
    const ByteReader table
        = tree.slice(directory + DirectoryHeaderSize, count * DirectoryEntrySize);
    QList<std::pair<quint32, quint32>> list;
    list.reserve(count);
    for (qint64 i = 0; i < count; ++i)
        list.append({table.u32(i * DirectoryEntrySize), table.u32(i * DirectoryEntrySize + 4)});
    return list;
}

bool isTypeLibName(const ByteReader &tree, quint32 name)
{
    if (!(name & HighBit))
        return false;
    const qint64 at = name & ~HighBit;
    const quint16 length = tree.u16(at);
    if (length != 7)
        return false;
    static constexpr char16_t TypeLib[] = u"TYPELIB";
    for (int i = 0; i < 7; ++i) {
        if (QChar(tree.u16(at + 2 + 2 * i)).toUpper() != QChar(TypeLib[i]))
            return false;
    }
    return true;
}

// The first language's data of one resource, as a file range.
PeResources::Resource
resourceData(const Image &image, const ByteReader &tree, quint32 id, quint32 target)
{
    if (!(target & HighBit))
        throw ByteReader::Malformed();
    const auto languages = entries(tree, target & ~HighBit);
    if (languages.isEmpty() || (languages.first().second & HighBit))
        throw ByteReader::Malformed();
    const qint64 data = languages.first().second;
    const qint64 size = tree.u32(data + 4);
    return {int(id), image.fileOffset(tree.u32(data), size), size};
}

} // namespace

namespace PeResources {

bool hasMagic(const ByteReader &data)
{
    return data.contains(0, 2) && data.bytes(0, 2) == QByteArrayView("MZ");
}

QList<Resource> typeLibResources(const ByteReader &data)
{
    const Image image(data);
    if (image.resourceRva() == 0)
        return {};
    // The directory's offsets are not bounded by the size its data directory entry gives, so
    // the tree may reach to the end of the file.
    const qint64 start = image.fileOffset(image.resourceRva(), DirectoryHeaderSize);
    const ByteReader tree = data.slice(start, data.size() - start);

    // Three levels of fixed meaning (type, id, language) are walked, never followed further,
    // so a directory that points back at itself cannot loop.
    QList<Resource> found;
    for (const auto &[type, typeTarget] : entries(tree, 0)) {
        if (!isTypeLibName(tree, type) || !(typeTarget & HighBit))
            continue;
        for (const auto &[id, target] : entries(tree, typeTarget & ~HighBit)) {
            if (id & HighBit)
                continue;
            try {
                found.append(resourceData(image, tree, id, target));
            } catch (const ByteReader::Malformed &) {
                // One broken resource does not hide the others.
            }
        }
        break;
    }
    return found;
}

} // namespace PeResources
