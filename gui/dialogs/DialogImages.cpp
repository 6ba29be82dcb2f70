#include "gui/dialogs/DialogImages.h"

#include "gui/window/Images.h"

#include <QIcon>

namespace DialogImages {

QIcon severityIcon(int image)
{
    return Images::severity(image);
}

QIcon folderIcon(bool hidden)
{
    return Images::icon(QStringLiteral("ilsImages"),
                        hidden ? QStringLiteral("HiddenFolder") : QStringLiteral("Folder"));
}

QIcon violationIcon(int type)
{
    // Types 1 and 2 concern components, 3 and 4 references, 5 an unknown control.
    switch (type) {
    case 1:
    case 2:
        return Images::icon(QStringLiteral("ilsImages"), QStringLiteral("Component"));
    case 3:
    case 4:
        return Images::icon(QStringLiteral("ilsImages"), QStringLiteral("Reference"));
    default:
        return Images::icon(QStringLiteral("ilsEventTree"), QStringLiteral("Control"));
    }
}

} // namespace DialogImages
