#pragma once

#include <QString>
#include <QStringList>

// The project files a path given by a person stands for: itself for a project (.vbp), the
// projects of a group (.vbg) in file order. Shared by every reader of projects from the
// command line or a file dialog, so that they all refuse the same things with the same words.
class ProjectFileList final
{
public:
    // Absolute paths. False, with the reason, for a missing file, a folder, another kind of
    // file or a group that names no project.
    static bool expand(const QString &argument, QStringList &projects, QString &problem);
};
