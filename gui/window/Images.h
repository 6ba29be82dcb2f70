#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

// The program's pictures: the three image lists of the main window, by key or by 1-based index,
// and the tools' icons. All are SVG files compiled into the program.
namespace Images {

// Makes the compiled-in pictures, help pages and tips reachable; safe to call more than once.
void initialise();

// The keys of an image list ("ilsEventTree", "ilsImages", "ilsSeverity") in index order.
QStringList keys(const QString &imageList);
// The picture of `image` in `imageList`: a key, or a 1-based index written in decimal. An empty
// list name searches every list. A null icon for an empty or unknown image.
QIcon icon(const QString &imageList, const QString &image);
// A severity's colour: the 1-based index into "ilsSeverity".
QIcon severity(int colour);
// The icon of a tool of the command table; null for a tool without one.
QIcon tool(const QString &toolId);

} // namespace Images
