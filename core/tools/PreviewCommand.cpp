#include "tools/PreviewCommand.h"

#include "preview/PreviewRun.h"
#include "rulebase/Rulebase.h"
#include "tools/PreviewSarif.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"
#include "tools/ToolRulebaseLoader.h"

#include <QCommandLineParser>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

namespace {

QString shownPath(const QString &absolute)
{
    return QDir::current().relativeFilePath(absolute);
}

QString kindWord(PreviewFinding::Kind kind)
{
    switch (kind) {
    case PreviewFinding::Kind::Violation:
        return QStringLiteral("violation");
    case PreviewFinding::Kind::NotPreviewed:
        return QStringLiteral("not-previewed");
    case PreviewFinding::Kind::Unread:
        return QStringLiteral("unread");
    }
    return {};
}

QJsonObject jsonOf(const PreviewResult &result, const QString &rulebase, int exitCode)
{
    QJsonArray projects;
    for (const PreviewProject &project : result.projects) {
        projects.append(
            QJsonObject{{QStringLiteral("name"), project.name},
                        {QStringLiteral("file"), shownPath(project.path)},
                        {QStringLiteral("read"), project.read},
                        {QStringLiteral("files"), project.files},
                        {QStringLiteral("unreadFiles"), project.unreadFiles},
                        {QStringLiteral("codeLines"), project.codeLines},
                        {QStringLiteral("commentLines"), project.commentLines},
                        {QStringLiteral("inLineCommentLines"), project.inLineCommentLines},
                        {QStringLiteral("blankLines"), project.blankLines},
                        {QStringLiteral("totalLines"), project.totalLines}});
    }
    QJsonArray findings;
    for (const PreviewFinding &finding : result.findings) {
        QJsonObject entry{{QStringLiteral("kind"), kindWord(finding.kind)},
                          {QStringLiteral("ruleId"), finding.ruleId},
                          {QStringLiteral("ruleKey"), finding.ruleKey},
                          {QStringLiteral("ruleTitle"), finding.ruleTitle},
                          {QStringLiteral("objectKind"), finding.objectKind},
                          {QStringLiteral("name"), finding.name},
                          {QStringLiteral("file"), shownPath(finding.file)},
                          {QStringLiteral("line"), finding.line},
                          {QStringLiteral("message"), finding.message},
                          {QStringLiteral("severity"), finding.severity},
                          {QStringLiteral("impact"), finding.impact}};
        if (!finding.advice.isEmpty())
            entry.insert(QStringLiteral("advice"), finding.advice);
        if (finding.project >= 0)
            entry.insert(QStringLiteral("project"), result.projects[finding.project].name);
        findings.append(entry);
    }
    return QJsonObject{
        {QStringLiteral("rulebase"), shownPath(rulebase)},
        {QStringLiteral("projects"), projects},
        {QStringLiteral("findings"), findings},
        {QStringLiteral("violations"), result.count(PreviewFinding::Kind::Violation)},
        {QStringLiteral("notPreviewed"), result.count(PreviewFinding::Kind::NotPreviewed)},
        {QStringLiteral("unread"), result.count(PreviewFinding::Kind::Unread)},
        {QStringLiteral("cancelled"), result.cancelled},
        {QStringLiteral("exitCode"), exitCode}};
}

} // namespace

QString PreviewCommand::summary() const
{
    return QStringLiteral("Shows what a rulebase would report on VB projects.");
}

QString PreviewCommand::synopsis() const
{
    return QStringLiteral(
        "preview [--format text|json|sarif] [--rule ID]... RULEBASE PROJECT.vbp|GROUP.vbg...");
}

QString PreviewCommand::description() const
{
    return QStringLiteral(
        "Reads the projects, or the projects of each group, and shows rule by rule and file\n"
        "by file which names and lines the rulebase would report: names against the naming\n"
        "conventions, code against the unauthorised keywords, the Object= and Reference=\n"
        "lines against the authorised components and references, and each project against\n"
        "the tolerances. A convention with a condition, or one that takes a workfield, is\n"
        "reported as not previewed: only the reviewer can run its script.\n"
        "Text lines read FILE:LINE: RULE \"TITLE\": OBJECT 'NAME': MESSAGE. --format sarif\n"
        "writes a SARIF 2.1.0 log with locations relative to the current folder.\n"
        "Exit code 1 when a violation is found or a file can't be read (not-previewed\n"
        "findings alone give 0), 2 for a rulebase that can't be read completely.");
}

QCommandLineOption PreviewCommand::previewFormatOption()
{
    return QCommandLineOption(QStringLiteral("format"),
                              QStringLiteral("Output format: text (default), json or sarif."),
                              QStringLiteral("text|json|sarif"),
                              QStringLiteral("text"));
}

QCommandLineOption PreviewCommand::ruleOption()
{
    return QCommandLineOption(
        QStringLiteral("rule"),
        QStringLiteral("Only this rule (5000, or a check such as UnauthorisedReference); repeat "
                       "or separate with commas for more."),
        QStringLiteral("ID"));
}

QList<QCommandLineOption> PreviewCommand::options() const
{
    return {previewFormatOption(), ruleOption()};
}

int PreviewCommand::execute(const QCommandLineParser &parser, ToolContext &context)
{
    const QString format = parser.value(previewFormatOption()).toLower();
    if (format != QLatin1String("text") && format != QLatin1String("json")
        && format != QLatin1String("sarif"))
        return usageError(
            context, QStringLiteral("unknown format '%1' (use text, json or sarif)").arg(format));
    const QStringList positional = parser.positionalArguments();
    if (positional.isEmpty())
        return usageError(context, QStringLiteral("no rulebase given"));
    if (positional.size() < 2)
        return usageError(context, QStringLiteral("no project or group file given"));

    const QString rulebaseFile = positional.first();
    QString reason;
    if (!ToolRulebaseLoader::isReadable(rulebaseFile, reason)) {
        error(context, rulebaseFile + QStringLiteral(": ") + reason);
        return ToolExit::Failure;
    }
    const LoadedRulebase loaded = ToolRulebaseLoader::load(rulebaseFile);
    if (!loaded.rulebase || !loaded.messages.isEmpty()) {
        // A preview without some of the rules would say less than the reviewer will.
        error(context, rulebaseFile + QStringLiteral(": could not be read completely"));
        for (const QString &message : loaded.messages)
            context.err() << "  " << message << '\n';
        return ToolExit::Failure;
    }

    PreviewRun run(loaded.rulebase);
    QStringList ids;
    for (const QString &value : parser.values(ruleOption()))
        ids << value.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (QString &id : ids)
        id = id.trimmed();
    const QStringList unknown = run.setRuleFilter(ids);
    if (!unknown.isEmpty())
        return usageError(context,
                          QStringLiteral("no rule or check %1 in %2")
                              .arg(unknown.join(QStringLiteral(", ")), rulebaseFile));
    run.setProgress([&context](qint64 done, qint64 total, const QString &file) {
        if (!file.isEmpty())
            context.progress(QStringLiteral("Previewing %1 (%2 of %3)")
                                 .arg(shownPath(file))
                                 .arg(done + 1)
                                 .arg(total));
    });
    const PreviewResult result = run.run(positional.mid(1));
    context.endProgress();

    const qint64 violations = result.count(PreviewFinding::Kind::Violation);
    const qint64 notPreviewed = result.count(PreviewFinding::Kind::NotPreviewed);
    const qint64 unread = result.count(PreviewFinding::Kind::Unread);
    const int exitCode = violations > 0 || unread > 0 ? ToolExit::Findings : ToolExit::Ok;

    QTextStream &out = context.out();
    if (format == QLatin1String("json")) {
        out << QJsonDocument(jsonOf(result, rulebaseFile, exitCode))
                   .toJson(QJsonDocument::Indented);
    } else if (format == QLatin1String("sarif")) {
        out << QJsonDocument(PreviewSarif::log(result, *loaded.rulebase, QDir::currentPath()))
                   .toJson(QJsonDocument::Indented);
    } else {
        for (const PreviewFinding &finding : result.findings) {
            out << shownPath(finding.file) << ':' << finding.line << ": " << finding.ruleId << " \""
                << finding.ruleTitle << "\": " << finding.objectKind;
            if (!finding.name.isEmpty())
                out << " '" << finding.name << '\'';
            out << ": " << finding.message << '\n';
        }
    }
    context.err() << violations << (violations == 1 ? " violation, " : " violations, ")
                  << notPreviewed << " not previewed, " << unread
                  << (unread == 1 ? " file" : " files") << " not read, in "
                  << result.projects.size()
                  << (result.projects.size() == 1 ? " project\n" : " projects\n");
    return exitCode;
}
