#pragma once

#include <QString>

// Path helpers. Both "\" and "/" separate folders, so Windows-style names work on every platform.
namespace FileUtils {

bool FileExists(const QString &filename);
// The folder part with its trailing separator; empty when there is none.
QString PathFromFilename(const QString &filename);
// Everything after the last separator, or empty when that part has no ".".
QString FilenameFromFullPathName(const QString &filename);
// Drops one leading and one trailing double quote, each when present.
QString RemoveQuotes(const QString &text);

} // namespace FileUtils
