#include "project/CaseInsensitivePath.h"

#include "platform/TextUtils.h"
#include "project/FolderListingCache.h"

#include <QDir>
#include <QFileInfo>

namespace CaseInsensitivePath {

namespace {

// The name in `folder` equal to `segment` ignoring case; the exact spelling wins over others.
QString matchInFolder(const QString &folder, const QString &segment)
{
    const FolderListingCache::Listing *cached = nullptr;
    if (FolderListingCache *cache = FolderListingCache::current()) {
        cached = &cache->listing(folder);
        if (cached->names.contains(segment))
            return segment;
    }
    // Also what a folder that can't be listed has to go by.
    if (QFileInfo::exists(folder + segment))
        return segment;
    const QStringList entries = cached
                                    ? cached->entries
                                    : QDir(folder).entryList(QDir::AllEntries | QDir::Hidden
                                                             | QDir::System | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        if (Text::same(entry, segment))
            return entry;
    }
    return {};
}

// QFileInfo::exists, answered from the folder's listing when one is kept and names the entry.
bool exists(const QString &path)
{
    if (FolderListingCache *cache = FolderListingCache::current()) {
        const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
        if (slash >= 0 && slash + 1 < path.size()
            && cache->listing(path.left(slash + 1)).names.contains(path.mid(slash + 1)))
            return true;
    }
    return QFileInfo::exists(path);
}

} // namespace

QString resolve(const QString &path)
{
    if (path.isEmpty())
        return path;
    const bool hasBackslash = path.contains(QLatin1Char('\\'));
    // On Windows a backslash is a separator the file system understands itself.
    if ((!hasBackslash || QDir::separator() == QLatin1Char('\\')) && exists(path))
        return path;

    QString text = path;
    text.replace(QLatin1Char('\\'), QLatin1Char('/'));
    QString current;
    if (text.startsWith(QLatin1String("//"))) {
        return path; // a network share: nothing to walk here
    } else if (text.size() >= 3 && text[1] == u':' && text[2] == u'/' && text[0].isLetter()) {
        if (QDir::separator() != QLatin1Char('\\'))
            return path; // a drive letter means nothing on this platform
        current = text.left(3);
        text = text.mid(3);
    } else if (text.startsWith(QLatin1Char('/'))) {
        current = QStringLiteral("/");
        text = text.mid(1);
    } else {
        current = QStringLiteral("./");
    }

    // "." and ".." are taken lexically, as Windows takes them: "sub\..\x" needs no "sub".
    QStringList segments;
    for (const QString &segment : text.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (segment == QLatin1String("."))
            continue;
        if (segment == QLatin1String("..") && !segments.isEmpty() && segments.last() != segment)
            segments.removeLast();
        else if (segment != QLatin1String("..") || current == QLatin1String("./"))
            segments.append(segment);
    }
    for (qsizetype i = 0; i < segments.size(); ++i) {
        const QString &segment = segments[i];
        const QString found
            = segment == QLatin1String("..") ? segment : matchInFolder(current, segment);
        if (found.isEmpty())
            return path;
        current += found;
        if (i + 1 < segments.size())
            current += QLatin1Char('/');
    }
    if (current.startsWith(QLatin1String("./")) && !path.startsWith(QLatin1String("./")))
        current = current.mid(2);
    return current;
}

} // namespace CaseInsensitivePath
