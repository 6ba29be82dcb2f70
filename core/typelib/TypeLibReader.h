#pragma once

#include "typelib/TypeLibInfo.h"

#include <QByteArrayView>
#include <QList>

#include <optional>

// Reads the description of a type library: a stand-alone MSFT or SLTG library (.tlb, .olb)
// or one embedded as a TYPELIB resource in a PE file (.dll, .ocx, .exe). The file's content
// decides, not its extension. Anything else, and any file that is truncated or malformed,
// gives no library; nothing is read outside the data.
namespace TypeLibReader {

// The library of a file; for a PE file the TYPELIB resource with the id `resourceId`, or the
// first one when it is 0. On failure `error`, when given, receives the reason.
std::optional<TypeLibInfo>
readFile(const QString &path, int resourceId = 0, QString *error = nullptr);
std::optional<TypeLibInfo>
readData(QByteArrayView data, int resourceId = 0, QString *error = nullptr);

// Every readable library of a file in resource order; one at most for a stand-alone library.
QList<TypeLibInfo> listFile(const QString &path);
QList<TypeLibInfo> listData(QByteArrayView data);

} // namespace TypeLibReader
