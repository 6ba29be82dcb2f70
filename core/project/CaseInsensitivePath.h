#pragma once

#include <QString>

// Project files name their files as Windows sees them: any case, "\" or "/" between folders.
// On a case-sensitive file system this finds the file or folder actually meant.
namespace CaseInsensitivePath {

// The path of the existing entry whose name matches `path` segment by segment ignoring case
// ("." and ".." segments are followed), written with "/". When nothing matches, `path` comes
// back unchanged, so that messages show what the project asked for.
QString resolve(const QString &path);

} // namespace CaseInsensitivePath
