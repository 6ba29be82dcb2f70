#include "TypeLibSamples.h"

#include <map>

namespace TypeLibSamples {

namespace {

void appendU16(QByteArray &data, quint16 value)
{
    data.append(char(value & 0xFF)).append(char(value >> 8));
}

void appendU32(QByteArray &data, quint32 value)
{
    appendU16(data, quint16(value & 0xFFFF));
    appendU16(data, quint16(value >> 16));
}

void align4(QByteArray &data, char filler)
{
    while (data.size() % 4)
        data.append(filler);
}

} // namespace

void putU16(QByteArray &data, qint64 offset, quint16 value)
{
    data[offset] = char(value & 0xFF);
    data[offset + 1] = char(value >> 8);
}

void putU32(QByteArray &data, qint64 offset, quint32 value)
{
    putU16(data, offset, quint16(value & 0xFFFF));
    putU16(data, offset + 2, quint16(value >> 16));
}

QByteArray sampleGuid()
{
    return QByteArray::fromHex("67452301AB89EFCD0123456789ABCDEF");
}

QByteArray msft(quint16 major, quint16 minor, const QByteArray &help, const QByteArray &name)
{
    constexpr int Guids = 0x54 + 15 * 16;
    QByteArray tables = sampleGuid();
    appendU32(tables, 0xFFFFFFFF); // type reference
    appendU32(tables, 0xFFFFFFFF); // hash link
    const int names = Guids + tables.size();
    appendU32(tables, 0xFFFFFFFF);
    appendU32(tables, 0xFFFFFFFF);
    appendU32(tables, quint32(name.size()));
    tables += name;
    align4(tables, 'W');
    const int strings = Guids + tables.size();
    if (!help.isNull()) {
        appendU16(tables, quint16(help.size()));
        tables += help;
        align4(tables, 'W');
    }

    QByteArray data("MSFT");
    appendU32(data, 0x00010002);
    appendU32(data, 0);      // GUID offset
    appendU32(data, 0x0409); // LCID
    appendU32(data, 0);
    appendU32(data, 0x41); // 32-bit system kind
    appendU32(data, quint32(minor) << 16 | major);
    appendU32(data, 0x08); // flags: has disk image
    appendU32(data, 0);    // type information count
    appendU32(data, help.isNull() ? 0xFFFFFFFF : 0);
    data.append(0x54 - data.size(), '\0');
    putU32(data, 0x38, 0);          // name offset
    putU32(data, 0x3C, 0xFFFFFFFF); // help file
    // Segments 5, 7 and 8 (GUIDs, names, strings) follow the directory; the others are absent.
    const int end = Guids + int(tables.size());
    const std::map<int, std::pair<int, int>> present
        = {{5, {Guids, names}}, {7, {names, strings}}, {8, {strings, end}}};
    for (int s = 0; s < 15; ++s) {
        const auto [from, to] = present.contains(s) ? present.at(s) : std::pair(-1, -1);
        appendU32(data, quint32(from));
        appendU32(data, quint32(to - from));
        appendU32(data, 0xFFFFFFFF);
        appendU32(data, 0x0F);
    }
    return data + tables;
}

QByteArray sltg(quint16 major, quint16 minor, const QByteArray &help)
{
    QByteArray library;
    appendU16(library, 0x51CC);
    appendU16(library, 3);
    appendU16(library, 0);      // name offset
    appendU16(library, 0xFFFF); // unknown string
    appendU16(library, quint16(help.size()));
    library += help;
    appendU16(library, 0xFFFF); // help file
    appendU32(library, 0);      // help context
    appendU16(library, 1);      // system kind
    appendU16(library, 0x0409);
    appendU32(library, 0);
    appendU16(library, 0x08); // flags
    appendU32(library, quint32(minor) << 16 | major);
    library += sampleGuid();
    const QByteArray typeInfo(10, 'T');
    // Index names: the fixed first one, the library block's, the type information block's.
    QByteArray index("\x01"
                     "CompObj");
    index.append('\0').append("dir").append('\0').append("0000000001").append('\0');

    QByteArray data("SLTG");
    appendU16(data, 3); // block entries + 1
    appendU16(data, 9); // pad length
    appendU16(data, quint16(index.size()));
    appendU16(data, 1); // first block
    data.append(24, '\0');
    appendU32(data, quint32(typeInfo.size()));
    appendU16(data, 13);
    appendU16(data, 2);
    appendU32(data, quint32(library.size()));
    appendU16(data, 9);
    appendU16(data, 0);
    return data + index + QByteArray(9, '\0') + typeInfo + library + QByteArray(0x40, '\xFF');
}

qint64 peDataEntry(int resourceCount, int index)
{
    return PeTypeDirectory + 16 + 8 * resourceCount + 24 * resourceCount + 16 * index;
}

QByteArray pe(bool pe64, const QList<Resource> &resources)
{
    const int n = int(resources.size());
    constexpr quint32 SectionRva = 0x2000;
    const int languages = 24 + 16 + 8 * n;
    const int dataEntries = languages + 24 * n;
    const int typeName = dataEntries + 16 * n;

    QByteArray tree;
    appendU32(tree, 0);
    appendU32(tree, 0);
    appendU32(tree, 0);
    appendU16(tree, 1); // named entries
    appendU16(tree, 0);
    appendU32(tree, 0x80000000u | quint32(typeName));
    appendU32(tree, 0x80000000u | 24);
    tree.append(12, '\0');
    appendU16(tree, 0);
    appendU16(tree, quint16(n));
    for (int i = 0; i < n; ++i) {
        appendU32(tree, resources[i].id);
        appendU32(tree, 0x80000000u | quint32(languages + 24 * i));
    }
    for (int i = 0; i < n; ++i) {
        tree.append(12, '\0');
        appendU16(tree, 0);
        appendU16(tree, 1);
        appendU32(tree, 0x0409);
        appendU32(tree, quint32(dataEntries + 16 * i));
    }
    QByteArray blobs;
    const int blobStart = typeName + 16;
    for (int i = 0; i < n; ++i) {
        appendU32(tree, SectionRva + quint32(blobStart + blobs.size()));
        appendU32(tree, quint32(resources[i].data.size()));
        appendU32(tree, 0);
        appendU32(tree, 0);
        blobs += resources[i].data;
        align4(blobs, '\0');
    }
    appendU16(tree, 7);
    for (const char c : QByteArray("TYPELIB"))
        appendU16(tree, quint16(c));
    tree += blobs;

    const quint16 optionalSize = pe64 ? 240 : 224;
    QByteArray data(0x3C, '\0');
    data[0] = 'M';
    data[1] = 'Z';
    appendU32(data, 0x40);
    data += QByteArray("PE\0\0", 4);
    appendU16(data, pe64 ? 0x8664 : 0x14C);
    appendU16(data, 1); // sections
    data.append(12, '\0');
    appendU16(data, optionalSize);
    appendU16(data, 0x2102);
    const qint64 optional = data.size();
    data.append(optionalSize, '\0');
    putU16(data, optional, pe64 ? 0x20B : 0x10B);
    putU32(data, optional + (pe64 ? 108 : 92), 16);
    putU32(data, optional + (pe64 ? 128 : 112), SectionRva);
    putU32(data, optional + (pe64 ? 132 : 116), quint32(tree.size()));
    data += QByteArray(".rsrc\0\0\0", 8);
    appendU32(data, quint32(tree.size()));
    appendU32(data, SectionRva);
    appendU32(data, quint32(tree.size()));
    appendU32(data, PeRoot);
    data.append(16, '\0');
    data.append(PeRoot - data.size(), '\0');
    return data + tree;
}

} // namespace TypeLibSamples
