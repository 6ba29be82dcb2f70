#include "project/modVOSource.h"

#include "platform/ErrorFrame.h"
#include "platform/FileUtils.h"
#include "project/VirtualObject.h"

#include <QVariant>

namespace modVOSource {

void AddFilenameRelatedProperties(VirtualObject &object, const QString &path)
{
    guardedVoid("AddFilenameRelatedProperties", "C_VOSource", [&] {
        const qsizetype separator
            = std::max(path.lastIndexOf(QLatin1Char('\\')), path.lastIndexOf(QLatin1Char('/')));
        const QString name = path.mid(separator + 1);
        const qsizetype point = name.lastIndexOf(QLatin1Char('.'));
        object.AddProperty(QStringLiteral("FullFilename"), path);
        object.AddProperty(QStringLiteral("Path"), FileUtils::PathFromFilename(path));
        object.AddProperty(QStringLiteral("Filename"), name);
        object.AddProperty(QStringLiteral("Extension"), point < 0 ? QString() : name.mid(point));
    });
}

} // namespace modVOSource
