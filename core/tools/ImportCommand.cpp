#include "tools/ImportCommand.h"

#include "tools/ToolBackends.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"
#include "tools/ToolRulebaseLoader.h"

#include <QCommandLineParser>
#include <QFileInfo>

QString ImportCommand::summary() const
{
    return QStringLiteral("Adds the components and references of projects to a rulebase.");
}

QString ImportCommand::synopsis() const
{
    return QStringLiteral(
        "import FILE --from PROJECT.vbp|GROUP.vbg|LIB.tlb|CONTROL.ocx ... [--dry-run]");
}

QString ImportCommand::description() const
{
    return QStringLiteral(
        "Reads the references and components of Visual Basic projects and groups, or the\n"
        "type libraries of ActiveX files, and adds those the rulebase FILE lacks to its\n"
        "authorised items. --from may be given several times. With --dry-run the items are\n"
        "listed and nothing is written.");
}

QCommandLineOption ImportCommand::fromOption()
{
    return QCommandLineOption(QStringLiteral("from"),
                              QStringLiteral("A project, group, type library or ActiveX file."),
                              QStringLiteral("SOURCE"));
}

QCommandLineOption ImportCommand::dryRunOption()
{
    return QCommandLineOption(QStringLiteral("dry-run"),
                              QStringLiteral("List what would be added; write nothing."));
}

QList<QCommandLineOption> ImportCommand::options() const
{
    return {fromOption(), dryRunOption()};
}

int ImportCommand::execute(const QCommandLineParser &parser, ToolContext &context)
{
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1)
        return usageError(context, QStringLiteral("give exactly one rulebase"));
    const QStringList sources = parser.values(fromOption());
    if (sources.isEmpty())
        return usageError(context, QStringLiteral("nothing to import from (--from SOURCE)"));
    QString reason;
    if (!ToolRulebaseLoader::isReadable(positional.first(), reason)) {
        error(context, positional.first() + QStringLiteral(": ") + reason);
        return ToolExit::Failure;
    }
    for (const QString &source : sources) {
        if (!QFileInfo(source).isFile()) {
            error(context, source + QStringLiteral(": No such file"));
            return ToolExit::Failure;
        }
    }
    ImportRequest request;
    request.rulebase = positional.first();
    request.sources = sources;
    request.dryRun = parser.isSet(dryRunOption());
    return ToolBackends::importAuthorisedItems(request, context);
}
