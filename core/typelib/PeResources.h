#pragma once

#include <QList>

class ByteReader;

// The TYPELIB resources of a PE file (32- or 64-bit): the resource directory is walked from
// its data directory entry, and each resource's RVA is mapped to a file offset through the
// section table. Resources named rather than numbered are left out.
namespace PeResources {

struct Resource
{
    int id = 0;
    qint64 offset = 0;
    qint64 size = 0;
};

bool hasMagic(const ByteReader &data);
// In directory order, which is ascending id order in a well-formed file. Throws
// ByteReader::Malformed when the headers or the directory are broken; a broken entry below
// the TYPELIB type is skipped.
QList<Resource> typeLibResources(const ByteReader &data);

} // namespace PeResources
