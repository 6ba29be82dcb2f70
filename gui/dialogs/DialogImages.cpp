#include "gui/dialogs/DialogImages.h"

#include <QApplication>
#include <QColor>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QStyle>

namespace DialogImages {

namespace {

// One colour for each image of the severity image list; index 0 stands for "no image".
const QColor severityColours[] = {
    QColor(0, 0, 0, 0),    QColor(128, 0, 0),    QColor(255, 128, 0), QColor(128, 128, 0),
    QColor(0, 128, 0),     QColor(0, 128, 128),  QColor(0, 0, 128),   QColor(128, 0, 128),
    QColor(128, 128, 128), QColor(192, 192, 192), QColor(0, 255, 255), QColor(0, 160, 0),
    QColor(0, 0, 255),     QColor(255, 0, 255),  QColor(255, 0, 0),   QColor(96, 160, 255),
    QColor(255, 200, 0),
};

QIcon disc(const QColor &colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    if (colour.alpha() > 0) {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(colour.darker(150));
        painter.setBrush(colour);
        painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    }
    return QIcon(pixmap);
}

} // namespace

QIcon severityIcon(int image)
{
    constexpr int count = int(sizeof severityColours / sizeof severityColours[0]);
    return disc(severityColours[image >= 0 && image < count ? image : 0]);
}

QIcon folderIcon(bool hidden)
{
    QStyle *style = QApplication::style();
    if (!hidden)
        return style->standardIcon(QStyle::SP_DirIcon);
    // A hidden folder is drawn faded.
    const QPixmap pixmap = style->standardIcon(QStyle::SP_DirIcon).pixmap(16, 16, QIcon::Disabled);
    return QIcon(pixmap);
}

QIcon violationIcon(int type)
{
    QStyle *style = QApplication::style();
    switch (type) {
    case 1:
    case 2:
        return style->standardIcon(QStyle::SP_FileIcon);
    case 3:
    case 4:
        return style->standardIcon(QStyle::SP_FileLinkIcon);
    default:
        return style->standardIcon(QStyle::SP_MessageBoxQuestion);
    }
}

} // namespace DialogImages
