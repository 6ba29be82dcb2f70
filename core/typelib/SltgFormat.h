#pragma once

#include "typelib/TypeLibInfo.h"

#include <optional>

class ByteReader;

// The older SLTG type library format. Only the library block is read: GUID, version, LCID,
// flags and help string; the name would need the type information blocks walked first.
namespace SltgFormat {

bool hasMagic(const ByteReader &data);
// The library's description; throws ByteReader::Malformed or gives nothing when the data is
// not a well-formed SLTG library.
std::optional<TypeLibInfo> read(const ByteReader &data);

} // namespace SltgFormat
