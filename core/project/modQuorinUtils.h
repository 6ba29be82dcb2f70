#pragma once

#include "collections/StringArrayList.h"

#include <QString>

// Project and group files, and the Windows-style relative paths they hold. "\" and "/" both
// separate folders, so that the same rules hold for paths of this platform.
namespace modQuorinUtils {

// True when the last three characters are "VBP" (or "VBG"), in any case; nothing else of the
// name is looked at.
bool IsVBPFile(const QString &filename);
bool IsVBGFile(const QString &filename);

// The absolute paths of the group file's "Project=" and "StartupProject=" lines, in file order
// (a project on both lines is listed twice). A failure gives what was found before it.
StringArrayList ProjectFileListFromVBG(const QString &filename);

// `path` made absolute from `baseFolder` (which ends in a separator): leading "..\" climb from
// it, "X:\..." stays, anything else is appended, "\\share" included. The result is then looked
// up on disk ignoring case; when it is found the real spelling is given, else the text as built.
QString RelativeToAbsolutePath(const QString &path, const QString &baseFolder);
// The folder above `path`, with its trailing separator; empty when it holds no separator.
QString ParentFolderFromPath(const QString &path);

} // namespace modQuorinUtils
