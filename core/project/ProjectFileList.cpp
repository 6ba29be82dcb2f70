#include "project/ProjectFileList.h"

#include "project/modQuorinUtils.h"

#include <QFileInfo>
#include <QSet>

bool ProjectFileList::expand(const QString &argument, QStringList &projects, QString &problem)
{
    const QFileInfo info(argument);
    if (!info.exists()) {
        problem = QStringLiteral("No such file");
        return false;
    }
    if (!info.isFile()) {
        problem = QStringLiteral("Not a file");
        return false;
    }
    const QString path = info.absoluteFilePath();
    if (modQuorinUtils::IsVBPFile(path)) {
        projects << path;
        return true;
    }
    if (modQuorinUtils::IsVBGFile(path)) {
        const StringArrayList list = modQuorinUtils::ProjectFileListFromVBG(path);
        for (qint32 i = 1; i <= list.Count(); ++i)
            projects << list.Item(i);
        if (list.Count() == 0) {
            problem = QStringLiteral("The group names no project");
            return false;
        }
        return true;
    }
    problem = QStringLiteral("Neither a project (.vbp) nor a group (.vbg) file");
    return false;
}

QStringList ProjectFileList::expandAll(
    const QStringList &arguments,
    const std::function<void(const QString &argument, const QString &problem)> &refused)
{
    QStringList projects;
    QSet<QString> seen;
    for (const QString &argument : arguments) {
        QStringList found;
        QString problem;
        if (!expand(argument, found, problem)) {
            refused(argument, problem);
            continue;
        }
        for (const QString &file : found) {
            // The same project through two groups, or twice in one group, is read once.
            if (!seen.contains(file.toLower())) {
                seen.insert(file.toLower());
                projects << file;
            }
        }
    }
    return projects;
}
