#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class ToolCommand;
class ToolContext;

// The command-line companion for rulebases in build pipelines: picks the subcommand named
// by the first argument and runs it. Knows the overview, version and help requests.
class QrbTool final
{
public:
    QrbTool();
    ~QrbTool();

    // `arguments` without the program's name. Gives a ToolExit code.
    int run(const QStringList &arguments, ToolContext &context);

    // nullptr for a name no command has.
    ToolCommand *command(const QString &name) const;
    QString overview() const;
    static QString versionText();

private:
    std::vector<std::unique_ptr<ToolCommand>> m_commands;
};
