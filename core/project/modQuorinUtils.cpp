#include "project/modQuorinUtils.h"

#include "platform/ErrorFrame.h"
#include "project/CaseInsensitivePath.h"
#include "project/SourceTextFile.h"

namespace modQuorinUtils {

namespace {

bool isSeparator(QChar c)
{
    return c == u'\\' || c == u'/';
}

bool endsWithType(const QString &filename, QLatin1String type)
{
    return filename.right(3).compare(type, Qt::CaseInsensitive) == 0;
}

} // namespace

bool IsVBPFile(const QString &filename)
{
    return endsWithType(filename, QLatin1String("VBP"));
}

bool IsVBGFile(const QString &filename)
{
    return endsWithType(filename, QLatin1String("VBG"));
}

StringArrayList ProjectFileListFromVBG(const QString &filename)
{
    StringArrayList projects;
    guardedVoid("ProjectFileListFromVBG", "modQuorinUtils", [&] {
        const QString baseFolder = ParentFolderFromPath(filename);
        SourceTextFile file(filename);
        while (!file.atEnd()) {
            const QString line = file.readLine();
            if (line.startsWith(QLatin1String("Project="), Qt::CaseInsensitive)
                || line.startsWith(QLatin1String("StartupProject="), Qt::CaseInsensitive)) {
                const QString path = line.mid(line.indexOf(QLatin1Char('=')) + 1);
                projects.Add(RelativeToAbsolutePath(path, baseFolder));
            }
        }
    });
    return projects;
}

QString RelativeToAbsolutePath(const QString &path, const QString &baseFolder)
{
    QString rest = path;
    QString folder = baseFolder;
    bool climbed = false;
    while (rest.size() >= 3 && rest.startsWith(QLatin1String("..")) && isSeparator(rest[2])) {
        rest = rest.mid(3);
        folder = ParentFolderFromPath(folder);
        climbed = true;
    }
    QString absolute;
    if (climbed)
        absolute = folder + rest;
    else if (rest.size() >= 3 && rest[1] == u':' && isSeparator(rest[2]))
        absolute = rest;
    else
        absolute = baseFolder + rest;
    return CaseInsensitivePath::resolve(absolute);
}

QString ParentFolderFromPath(const QString &path)
{
    QString folder = path;
    if (folder.isEmpty() || !std::any_of(folder.cbegin(), folder.cend(), isSeparator))
        return {};
    if (isSeparator(folder.back()))
        folder.chop(1);
    // The search stops at the second character, so a leading separator is never the answer
    // (but a POSIX root still has a parent: "/").
    for (qsizetype i = folder.size() - 1; i >= 1; --i) {
        if (isSeparator(folder[i]))
            return folder.left(i + 1);
    }
    return folder.startsWith(QLatin1Char('/')) ? QStringLiteral("/") : QString();
}

} // namespace modQuorinUtils
