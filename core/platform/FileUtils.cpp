#include "platform/FileUtils.h"

#include <QFileInfo>

namespace FileUtils {

static qsizetype lastSeparator(const QString &filename)
{
    return std::max(filename.lastIndexOf(QLatin1Char('\\')),
                    filename.lastIndexOf(QLatin1Char('/')));
}

bool FileExists(const QString &filename)
{
    if (filename.isEmpty())
        return false;
    const QFileInfo info(filename);
    return info.exists() && info.isFile();
}

QString PathFromFilename(const QString &filename)
{
    const qsizetype at = lastSeparator(filename);
    return at < 0 ? QString() : filename.left(at + 1);
}

QString FilenameFromFullPathName(const QString &filename)
{
    const QString name = filename.mid(lastSeparator(filename) + 1);
    return name.contains(QLatin1Char('.')) ? name : QString();
}

QString RemoveQuotes(const QString &text)
{
    QString result = text;
    if (result.startsWith(QLatin1Char('"')))
        result.remove(0, 1);
    if (result.endsWith(QLatin1Char('"')))
        result.chop(1);
    return result;
}

} // namespace FileUtils
