#include "tools/DocCommand.h"

#include "tools/ToolBackends.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"
#include "tools/ToolRulebaseLoader.h"

#include <QCommandLineParser>

QString DocCommand::summary() const
{
    return QStringLiteral("Writes the HTML coding standards document of a rulebase.");
}

QString DocCommand::synopsis() const
{
    return QStringLiteral("doc FILE -o OUT.html [--organisation NAME]");
}

QString DocCommand::description() const
{
    return QStringLiteral(
        "Writes the coding standards document of the rulebase FILE as one HTML file, as\n"
        "Quorin Administrator's document designer does: the rulebase's plan, brought up to\n"
        "date with its categories and rules as the designer shows it. Without --organisation\n"
        "the name QuorinAdmin remembers stands in the document; without that either, \"Your\n"
        "Organisation\" does, with a warning.");
}

QCommandLineOption DocCommand::outputOption()
{
    return QCommandLineOption({QStringLiteral("o"), QStringLiteral("output")},
                              QStringLiteral("The HTML file to write."),
                              QStringLiteral("OUT.html"));
}

QCommandLineOption DocCommand::organisationOption()
{
    return QCommandLineOption(QStringLiteral("organisation"),
                              QStringLiteral("The organisation named in the document."),
                              QStringLiteral("NAME"));
}

QList<QCommandLineOption> DocCommand::options() const
{
    return {outputOption(), organisationOption()};
}

int DocCommand::execute(const QCommandLineParser &parser, ToolContext &context)
{
    const QStringList positional = parser.positionalArguments();
    if (positional.size() != 1)
        return usageError(context, QStringLiteral("give exactly one rulebase"));
    if (parser.value(outputOption()).isEmpty())
        return usageError(context, QStringLiteral("no output file given (-o OUT.html)"));
    QString reason;
    if (!ToolRulebaseLoader::isReadable(positional.first(), reason)) {
        error(context, positional.first() + QStringLiteral(": ") + reason);
        return ToolExit::Failure;
    }
    DocRequest request;
    request.rulebase = positional.first();
    request.output = parser.value(outputOption());
    request.organisation = parser.value(organisationOption());
    return ToolBackends::writeDocument(request, context);
}
