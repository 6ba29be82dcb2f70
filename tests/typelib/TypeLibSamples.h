#pragma once

#include <QByteArray>
#include <QList>

// Small type libraries and PE files built in memory, for cases the shared files do not cover.
namespace TypeLibSamples {

// The GUID {01234567-89AB-CDEF-0123-456789ABCDEF} in its binary layout.
QByteArray sampleGuid();

// An MSFT library; a null help string is stored as none.
QByteArray msft(quint16 major, quint16 minor, const QByteArray &help, const QByteArray &name);

// An SLTG library with one type information block before the library block.
QByteArray sltg(quint16 major, quint16 minor, const QByteArray &help);
// Where its second block entry's "next" word lies.
constexpr qint64 SltgLibraryEntryNext = 0x24 + 8 + 6;

struct Resource
{
    quint32 id;
    QByteArray data;
};
// A PE file whose one section (RVA 0x2000) holds a resource directory with TYPELIB resources.
QByteArray pe(bool pe64, const QList<Resource> &resources);
// File offsets in it: the root directory, its one entry (the TYPELIB type), the type's
// directory with one entry per resource, then each resource's language directory.
constexpr qint64 PeRoot = 0x200;
constexpr qint64 PeRootEntry = PeRoot + 16;
constexpr qint64 PeTypeDirectory = PeRoot + 24;
qint64 peDataEntry(int resourceCount, int index);

void putU16(QByteArray &data, qint64 offset, quint16 value);
void putU32(QByteArray &data, qint64 offset, quint32 value);

} // namespace TypeLibSamples
