#include "tools/ScriptsCommand.h"

#include "tools/ToolBackends.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"
#include "tools/ToolRulebaseLoader.h"

#include <QCommandLineParser>

QString ScriptsCommand::summary() const
{
    return QStringLiteral("Writes the condition script file of a rulebase.");
}

QString ScriptsCommand::synopsis() const
{
    return QStringLiteral("scripts FILE -o OUT.qrs");
}

QString ScriptsCommand::description() const
{
    return QStringLiteral(
        "Writes the conditions of the rulebase FILE into one condition script file, the\n"
        "form in which the reviewer runs them.");
}

QCommandLineOption ScriptsCommand::outputOption()
{
    return QCommandLineOption({QStringLiteral("o"), QStringLiteral("output")},
                              QStringLiteral("The script file to write."),
                              QStringLiteral("OUT.qrs"));
}

QList<QCommandLineOption> ScriptsCommand::options() const
{
    return {outputOption()};
}

int ScriptsCommand::execute(const QCommandLineParser &parser, ToolContext &context)
{
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1)
        return usageError(context, QStringLiteral("give exactly one rulebase"));
    if (parser.value(outputOption()).isEmpty())
        return usageError(context, QStringLiteral("no output file given (-o OUT.qrs)"));
    QString reason;
    if (!ToolRulebaseLoader::isReadable(positional.first(), reason)) {
        error(context, positional.first() + QStringLiteral(": ") + reason);
        return ToolExit::Failure;
    }
    ScriptsRequest request;
    request.rulebase = positional.first();
    request.output = parser.value(outputOption());
    return ToolBackends::writeConditionScripts(request, context);
}
