#include "tools/ToolCommand.h"

#include "platform/ErrorFrame.h"
#include "tools/ConsoleUserInterface.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"

#include <QCommandLineParser>
#include <QTextStream>

ToolCommand::~ToolCommand() = default;

int ToolCommand::run(const QStringList &arguments, ToolContext &context)
{
    ConsoleUserInterface console(&context.err());
    const int result = guarded("run", "ToolCommand", ToolExit::Failure, [&]() -> int {
        QCommandLineParser parser;
        parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
        const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                      QStringLiteral("Shows this help."));
        parser.addOption(help);
        parser.addOptions(options());
        if (!parser.parse(QStringList{QStringLiteral("qrbtool")} + arguments))
            return usageError(context, parser.errorText());
        if (parser.isSet(help)) {
            context.out() << helpText();
            return ToolExit::Ok;
        }
        return execute(parser, context);
    });
    context.endProgress();
    context.out().flush();
    context.err().flush();
    return result;
}

QString ToolCommand::helpText() const
{
    QString text;
    QTextStream stream(&text);
    stream << "Usage: qrbtool " << synopsis() << "\n\n" << description() << '\n';
    QList<QCommandLineOption> all = options();
    all.prepend(QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")},
                                   QStringLiteral("Shows this help.")));
    stream << "\nOptions:\n";
    for (const QCommandLineOption &option : all) {
        QStringList names;
        for (const QString &name : option.names())
            names << (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
        QString left = names.join(QStringLiteral(", "));
        if (!option.valueName().isEmpty())
            left += QLatin1Char(' ') + option.valueName();
        stream << "  " << left.leftJustified(26) << ' ' << option.description() << '\n';
    }
    stream << "\nExit codes: 0 success, 1 findings, 2 usage or input/output error.\n";
    stream.flush();
    return text;
}

int ToolCommand::usageError(ToolContext &context, const QString &reason) const
{
    error(context, reason);
    context.err() << "Try 'qrbtool " << name() << " --help' for more information.\n";
    return ToolExit::Failure;
}

void ToolCommand::error(ToolContext &context, const QString &text) const
{
    context.endProgress();
    context.err() << "qrbtool " << name() << ": " << text << '\n';
    context.err().flush();
}

QCommandLineOption ToolCommand::formatOption()
{
    return QCommandLineOption(QStringLiteral("format"),
                              QStringLiteral("Output format: text (default) or json."),
                              QStringLiteral("text|json"),
                              QStringLiteral("text"));
}

bool ToolCommand::readJsonFormat(const QCommandLineParser &parser,
                                 ToolContext &context,
                                 bool &json) const
{
    const QString format = parser.value(formatOption()).toLower();
    if (format != QLatin1String("text") && format != QLatin1String("json")) {
        usageError(context, QStringLiteral("unknown format '%1' (use text or json)").arg(format));
        return false;
    }
    json = format == QLatin1String("json");
    return true;
}
