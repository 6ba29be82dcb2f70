#include "tools/StatsCommand.h"

#include "project/FolderListingCache.h"
#include "project/modQuorinUtils.h"
#include "tools/ProjectLineCounter.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"

#include <QCommandLineParser>
#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

using Lines = ProjectLineCounter::Lines;

QJsonObject linesObject(const Lines &lines)
{
    QJsonObject object;
    object.insert(QStringLiteral("codeLines"), lines.code);
    object.insert(QStringLiteral("commentLines"), lines.comment);
    object.insert(QStringLiteral("inLineCommentLines"), lines.inLineComment);
    object.insert(QStringLiteral("blankLines"), lines.blank);
    object.insert(QStringLiteral("totalLines"), lines.total);
    return object;
}

// Paths as the user sees them from where the tool was started.
QString shownPath(const QString &absolute)
{
    return QDir::current().relativeFilePath(absolute);
}

void writeRow(QTextStream &out, const QString &files, const Lines &lines, const QString &label)
{
    out << files.rightJustified(7) << QString::number(lines.code).rightJustified(10)
        << QString::number(lines.comment).rightJustified(10)
        << QString::number(lines.blank).rightJustified(10)
        << QString::number(lines.total).rightJustified(10) << "  " << label << '\n';
}

} // namespace

QString StatsCommand::summary() const
{
    return QStringLiteral("Counts the code, comment and blank lines of VB projects.");
}

QString StatsCommand::synopsis() const
{
    return QStringLiteral("stats [--format text|json] [--files] PROJECT.vbp|GROUP.vbg...");
}

QString StatsCommand::description() const
{
    return QStringLiteral(
        "Reads each project, or each project of a group, and counts the lines of its source\n"
        "files past their headers as the reviewer does: code lines (in-line comments\n"
        "included), comment-only lines and blank lines. A project named twice is counted\n"
        "once. Source files, and projects of a group, that are missing or unreadable are\n"
        "reported on standard error and give exit code 1; a project or group named here\n"
        "that can't be read gives 2.");
}

QCommandLineOption StatsCommand::filesOption()
{
    return QCommandLineOption(QStringLiteral("files"),
                              QStringLiteral("Lists every source file under its project."));
}

QList<QCommandLineOption> StatsCommand::options() const
{
    return {formatOption(), filesOption()};
}

int StatsCommand::execute(const QCommandLineParser &parser, ToolContext &context)
{
    bool json = false;
    if (!readJsonFormat(parser, context, json))
        return ToolExit::Failure;
    const QStringList arguments = parser.positionalArguments();
    if (arguments.isEmpty())
        return usageError(context, QStringLiteral("no project or group file given"));
    const bool listFiles = parser.isSet(filesOption());

    // Nothing changes the trees while they are counted: each folder is listed once.
    const FolderListingCache folders;
    int result = ToolExit::Ok;
    QStringList projectFiles;
    QSet<QString> seen;
    // The group each project named by a group came through: such a project that can't be read
    // is a finding, as a missing source file is, since the group itself was read.
    QHash<QString, QString> groupOf;
    for (const QString &argument : arguments) {
        QStringList found;
        QString problem;
        if (!ProjectLineCounter::projectFiles(argument, found, problem)) {
            error(context, argument + QStringLiteral(": ") + problem);
            result = ToolExit::Failure;
            continue;
        }
        for (const QString &file : found) {
            // The same project through two groups, or twice in one group, counts once.
            if (!seen.contains(file.toLower())) {
                seen.insert(file.toLower());
                projectFiles << file;
                if (modQuorinUtils::IsVBGFile(argument))
                    groupOf.insert(file, argument);
            }
        }
    }

    std::vector<ProjectLineCounter::Project> projects;
    for (qsizetype n = 0; n < projectFiles.size(); ++n) {
        context.progress(QStringLiteral("Counting %1 (%2 of %3)")
                             .arg(shownPath(projectFiles.at(n)))
                             .arg(n + 1)
                             .arg(projectFiles.size()));
        ProjectLineCounter::Project project = ProjectLineCounter::count(projectFiles.at(n));
        if (!project.read) {
            const QString group = groupOf.value(project.path);
            if (group.isEmpty()) {
                error(context, shownPath(project.path) + QStringLiteral(": ") + project.problem);
                result = ToolExit::Failure;
                continue;
            }
            error(context,
                  QStringLiteral("%1: %2 (in group %3)")
                      .arg(shownPath(project.path), project.problem, shownPath(group)));
            if (result == ToolExit::Ok)
                result = ToolExit::Findings;
            continue;
        }
        for (const ProjectLineCounter::SourceFile &file : project.files) {
            if (!file.read) {
                error(context,
                      QStringLiteral("%1: %2 (in project %3)")
                          .arg(shownPath(file.path), file.problem, project.name));
                if (result == ToolExit::Ok)
                    result = ToolExit::Findings;
            }
        }
        projects.push_back(std::move(project));
    }
    context.endProgress();

    Lines total;
    qint64 totalFiles = 0;
    for (const auto &project : projects) {
        total.add(project.lines);
        totalFiles += project.filesRead;
    }

    if (json) {
        QJsonArray projectArray;
        for (const auto &project : projects) {
            QJsonObject object = linesObject(project.lines);
            object.insert(QStringLiteral("name"), project.name);
            object.insert(QStringLiteral("file"), shownPath(project.path));
            object.insert(QStringLiteral("files"), project.filesRead);
            QJsonArray sourceFiles;
            QJsonArray unread;
            for (const auto &file : project.files) {
                if (!file.read) {
                    QJsonObject missing;
                    missing.insert(QStringLiteral("file"), shownPath(file.path));
                    missing.insert(QStringLiteral("problem"), file.problem);
                    unread.append(missing);
                    continue;
                }
                QJsonObject entry = linesObject(file.lines);
                entry.insert(QStringLiteral("name"), file.name);
                entry.insert(QStringLiteral("file"), shownPath(file.path));
                sourceFiles.append(entry);
            }
            object.insert(QStringLiteral("sourceFiles"), sourceFiles);
            object.insert(QStringLiteral("unreadFiles"), unread);
            projectArray.append(object);
        }
        QJsonObject totals = linesObject(total);
        totals.insert(QStringLiteral("files"), totalFiles);
        totals.insert(QStringLiteral("projects"), qint64(projects.size()));
        QJsonObject root;
        root.insert(QStringLiteral("projects"), projectArray);
        root.insert(QStringLiteral("total"), totals);
        context.out() << QJsonDocument(root).toJson(QJsonDocument::Indented);
        return result;
    }

    QTextStream &out = context.out();
    out << QStringLiteral("Files").rightJustified(7) << QStringLiteral("Code").rightJustified(10)
        << QStringLiteral("Comment").rightJustified(10)
        << QStringLiteral("Blank").rightJustified(10) << QStringLiteral("Total").rightJustified(10)
        << "  Project\n";
    for (const auto &project : projects) {
        writeRow(out,
                 QString::number(project.filesRead),
                 project.lines,
                 project.name + QStringLiteral(" (") + shownPath(project.path) + QLatin1Char(')'));
        if (!listFiles)
            continue;
        for (const auto &file : project.files) {
            if (file.read)
                writeRow(out, QString(), file.lines, QStringLiteral("  ") + shownPath(file.path));
        }
    }
    writeRow(out, QString::number(totalFiles), total, QStringLiteral("Total"));
    return result;
}
