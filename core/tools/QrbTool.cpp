#include "tools/QrbTool.h"

#include "tools/CheckCommand.h"
#include "tools/DiffCommand.h"
#include "tools/DocCommand.h"
#include "tools/ImportCommand.h"
#include "tools/PreviewCommand.h"
#include "tools/ScriptsCommand.h"
#include "tools/StatsCommand.h"
#include "tools/ToolContext.h"
#include "tools/ToolExit.h"
#include "tools/UpgradeCommand.h"

#include <QTextStream>

QrbTool::QrbTool()
{
    m_commands.push_back(std::make_unique<CheckCommand>());
    m_commands.push_back(std::make_unique<UpgradeCommand>());
    m_commands.push_back(std::make_unique<DiffCommand>());
    m_commands.push_back(std::make_unique<StatsCommand>());
    m_commands.push_back(std::make_unique<DocCommand>());
    m_commands.push_back(std::make_unique<ScriptsCommand>());
    m_commands.push_back(std::make_unique<ImportCommand>());
    m_commands.push_back(std::make_unique<PreviewCommand>());
}

QrbTool::~QrbTool() = default;

ToolCommand *QrbTool::command(const QString &name) const
{
    for (const auto &command : m_commands) {
        if (command->name() == name)
            return command.get();
    }
    return nullptr;
}

QString QrbTool::versionText()
{
    return QStringLiteral("qrbtool %1.%2.%3")
        .arg(QUORIN_VERSION_MAJOR)
        .arg(QUORIN_VERSION_MINOR)
        .arg(QUORIN_VERSION_PATCH);
}

QString QrbTool::overview() const
{
    QString text;
    QTextStream stream(&text);
    stream << "Usage: qrbtool COMMAND [OPTIONS] [ARGUMENTS]\n\n"
              "Works on Quorin rulebases and Visual Basic projects without a display, for\n"
              "build pipelines.\n\nCommands:\n";
    for (const auto &command : m_commands)
        stream << "  " << command->name().leftJustified(10) << command->summary() << '\n';
    stream << "\n'qrbtool COMMAND --help' describes a command.\n"
              "Exit codes: 0 success, 1 findings, 2 usage or input/output error.\n";
    stream.flush();
    return text;
}

int QrbTool::run(const QStringList &arguments, ToolContext &context)
{
    const QString first = arguments.value(0);
    int result = ToolExit::Ok;
    if (first.isEmpty()) {
        context.err() << overview();
        result = ToolExit::Failure;
    } else if (first == QLatin1String("--help") || first == QLatin1String("-h")
               || (first == QLatin1String("help") && arguments.size() == 1)) {
        context.out() << overview();
    } else if (first == QLatin1String("--version")) {
        context.out() << versionText() << '\n';
    } else if (first == QLatin1String("help")) {
        if (ToolCommand *named = command(arguments.at(1))) {
            context.out() << named->helpText();
        } else {
            context.err() << "qrbtool: unknown command '" << arguments.at(1) << "'\n";
            result = ToolExit::Failure;
        }
    } else if (ToolCommand *named = command(first)) {
        result = named->run(arguments.mid(1), context);
    } else {
        context.err() << "qrbtool: unknown command '" << first
                      << "'\nTry 'qrbtool --help' for the list of commands.\n";
        result = ToolExit::Failure;
    }
    context.out().flush();
    context.err().flush();
    return result;
}
