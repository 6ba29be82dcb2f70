#pragma once

#include <QString>

class VirtualObject;

// The file-name properties that project and source objects share.
namespace modVOSource {

// Adds "FullFilename" (the path as given), "Path" (its folder with the trailing separator),
// "Filename" (the name after the last separator) and "Extension" (from the name's last "." on,
// or empty) to the object's Properties. A key the object already holds keeps its value.
void AddFilenameRelatedProperties(VirtualObject &object, const QString &path);

} // namespace modVOSource
