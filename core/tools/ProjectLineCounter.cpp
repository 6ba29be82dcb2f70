#include "tools/ProjectLineCounter.h"

#include "collections/ObjectKeyedArrayList.h"
#include "project/ProjectFileList.h"
#include "project/SourceLineStatistics.h"
#include "project/VirtualObject.h"
#include "project/VirtualProject.h"
#include "project/VirtualSourceFile.h"
#include "tools/ConsoleUserInterface.h"

#include <QFileInfo>

#include <algorithm>

void ProjectLineCounter::Lines::add(const Lines &other)
{
    code += other.code;
    comment += other.comment;
    inLineComment += other.inLineComment;
    blank += other.blank;
    total += other.total;
}

bool ProjectLineCounter::projectFiles(const QString &argument,
                                      QStringList &projects,
                                      QString &problem)
{
    // The reader's error frame would name its own routine: the file is named here instead.
    ConsoleUserInterface recorder(nullptr);
    const bool expanded = ProjectFileList::expand(argument, projects, problem);
    if (!recorder.messages().isEmpty()) {
        problem = QStringLiteral("The group file could not be read");
        return false;
    }
    return expanded;
}

ProjectLineCounter::Project ProjectLineCounter::count(const QString &projectFile)
{
    Project result;
    result.path = projectFile;
    result.name = QFileInfo(projectFile).completeBaseName();
    // A file that can't be read is reported below by its name; the readers' error frames,
    // which name their routines, are kept off the console.
    ConsoleUserInterface recorder(nullptr);
    auto project = std::make_shared<VirtualProject>();
    switch (project->LoadProject(projectFile)) {
    case ProjectLoadStatus::Read:
    case ProjectLoadStatus::LineNotDecoded:
        break;
    case ProjectLoadStatus::NotFound:
        result.problem = QStringLiteral("No such file");
        return result;
    default:
        result.problem = QStringLiteral("The project file could not be opened");
        return result;
    }
    result.read = true;
    if (!project->Name().isEmpty())
        result.name = project->Name();

    const auto sources = project->SourceFiles();
    for (qint32 i = 1; i <= sources->Count(); ++i) {
        const auto source = sources->Item(i);
        SourceFile file;
        file.name = source->Name();
        file.path = source->Filename();
        const QFileInfo info(file.path);
        if (!info.exists()) {
            file.problem = QStringLiteral("No such file");
        } else if (!info.isFile()) {
            file.problem = QStringLiteral("Not a file");
        } else if (source->CountSourceLines() != 0) {
            file.problem = QStringLiteral("The file could not be read");
        } else {
            file.read = true;
            const auto stats = source->FileStats()->LineStats();
            file.lines.code = stats->CodeLines();
            file.lines.comment = stats->CommentOnlyLines();
            file.lines.inLineComment = stats->InLineCommentLines();
            file.lines.blank = stats->BlankLines();
            file.lines.total = stats->TotalLines();
        }
        result.files.push_back(file);
    }
    std::stable_sort(
        result.files.begin(), result.files.end(), [](const SourceFile &a, const SourceFile &b) {
            return a.path.compare(b.path, Qt::CaseInsensitive) < 0;
        });
    for (const SourceFile &file : result.files) {
        if (file.read) {
            ++result.filesRead;
            result.lines.add(file.lines);
        } else {
            ++result.filesUnread;
        }
    }
    return result;
}
