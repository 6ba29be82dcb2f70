#include "typelib/TypeLibReader.h"

#include "typelib/ByteReader.h"
#include "typelib/MsftFormat.h"
#include "typelib/PeResources.h"
#include "typelib/SltgFormat.h"

#include <QFile>

namespace {

// Files that cannot be mapped are read whole, up to this size.
constexpr qint64 MaxReadSize = qint64(1) << 30;

void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

// A stand-alone library, or the content of one TYPELIB resource.
std::optional<TypeLibInfo> readLibrary(const ByteReader &data)
{
    if (MsftFormat::hasMagic(data))
        return MsftFormat::read(data);
    if (SltgFormat::hasMagic(data))
        return SltgFormat::read(data);
    return std::nullopt;
}

std::optional<TypeLibInfo> readResource(const ByteReader &data,
                                        const PeResources::Resource &resource)
{
    try {
        auto info = readLibrary(data.slice(resource.offset, resource.size));
        if (info)
            info->resourceId = resource.id;
        return info;
    } catch (const ByteReader::Malformed &) {
        return std::nullopt;
    }
}

// Gives the file's content to `use`, mapped when it can be.
template<typename Use>
void withFileData(const QString &path, QString *error, Use &&use)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        setError(error, QStringLiteral("Cannot open %1: %2").arg(path, file.errorString()));
        return;
    }
    const qint64 size = file.size();
    if (size > 0) {
        if (const uchar *mapped = file.map(0, size)) {
            use(QByteArrayView(mapped, size));
            return;
        }
    }
    const QByteArray content = file.read(MaxReadSize);
    if (!file.atEnd()) {
        setError(error, QStringLiteral("Cannot read all of %1").arg(path));
        return;
    }
    use(QByteArrayView(content));
}

} // namespace

namespace TypeLibReader {

std::optional<TypeLibInfo> readFile(const QString &path, int resourceId, QString *error)
{
    std::optional<TypeLibInfo> info;
    withFileData(
        path, error, [&](QByteArrayView data) { info = readData(data, resourceId, error); });
    return info;
}

std::optional<TypeLibInfo> readData(QByteArrayView data, int resourceId, QString *error)
{
    const ByteReader reader(data);
    try {
        if (!PeResources::hasMagic(reader)) {
            // A stand-alone library answers to the first resource only.
            auto info = resourceId <= 1 ? readLibrary(reader) : std::nullopt;
            if (!info)
                setError(error, QStringLiteral("The file is not a type library."));
            return info;
        }
        for (const PeResources::Resource &resource : PeResources::typeLibResources(reader)) {
            if (resourceId != 0 && resource.id != resourceId)
                continue;
            auto info = readResource(reader, resource);
            if (!info)
                setError(error,
                         QStringLiteral("The TYPELIB resource %1 is not a type library.")
                             .arg(resource.id));
            return info;
        }
        setError(error,
                 resourceId == 0
                     ? QStringLiteral("The file has no TYPELIB resource.")
                     : QStringLiteral("The file has no TYPELIB resource %1.").arg(resourceId));
    } catch (const ByteReader::Malformed &) {
        setError(error, QStringLiteral("The file is truncated or malformed."));
    }
    return std::nullopt;
}

QList<TypeLibInfo> listFile(const QString &path)
{
    QList<TypeLibInfo> list;
    withFileData(path, nullptr, [&](QByteArrayView data) { list = listData(data); });
    return list;
}

QList<TypeLibInfo> listData(QByteArrayView data)
{
    const ByteReader reader(data);
    QList<TypeLibInfo> list;
    try {
        if (!PeResources::hasMagic(reader)) {
            if (auto info = readLibrary(reader))
                list.append(*info);
            return list;
        }
        for (const PeResources::Resource &resource : PeResources::typeLibResources(reader)) {
            if (auto info = readResource(reader, resource))
                list.append(*info);
        }
    } catch (const ByteReader::Malformed &) {
        list.clear();
    }
    return list;
}

} // namespace TypeLibReader
