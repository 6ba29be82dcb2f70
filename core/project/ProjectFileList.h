#pragma once

#include <QString>
#include <QStringList>

#include <functional>

// The project files a path given by a person stands for: itself for a project (.vbp), the
// projects of a group (.vbg) in file order. Shared by every reader of projects from the
// command line or a file dialog, so that they all refuse the same things with the same words.
class ProjectFileList final
{
public:
    // Absolute paths. False, with the reason, for a missing file, a folder, another kind of
    // file or a group that names no project.
    static bool expand(const QString &argument, QStringList &projects, QString &problem);
    // The projects of all the arguments, each once however many groups name it (paths
    // compared without case); an argument that stands for none goes to `refused` instead.
    static QStringList
    expandAll(const QStringList &arguments,
              const std::function<void(const QString &argument, const QString &problem)> &refused);
};
