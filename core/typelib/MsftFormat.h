#pragma once

#include "typelib/TypeLibInfo.h"

#include <optional>

class ByteReader;

// The MSFT type library format, written by the MIDL-family compilers.
namespace MsftFormat {

bool hasMagic(const ByteReader &data);
// The library's description; throws ByteReader::Malformed or gives nothing when the data is
// not a well-formed MSFT library.
std::optional<TypeLibInfo> read(const ByteReader &data);

} // namespace MsftFormat
