#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

class QCommandLineParser;
class ToolContext;

// One subcommand of qrbtool. run() parses the arguments, answers --help, installs the console
// user interface and runs execute() inside the error frame, so that nothing a command does can
// escape as an exception or wait for a person.
class ToolCommand
{
public:
    virtual ~ToolCommand();

    virtual QString name() const = 0;
    // One line for the overview of all commands.
    virtual QString summary() const = 0;
    // The synopsis after "qrbtool ", e.g. "check [--format text|json] FILE...".
    virtual QString synopsis() const = 0;
    // What --help prints below the synopsis, before the options.
    virtual QString description() const = 0;

    // `arguments` are those after the command's name. Gives a ToolExit code.
    int run(const QStringList &arguments, ToolContext &context);
    QString helpText() const;

protected:
    // The command's own options; --help is added by run().
    virtual QList<QCommandLineOption> options() const { return {}; }
    virtual int execute(const QCommandLineParser &parser, ToolContext &context) = 0;

    // Writes "qrbtool <name>: <reason>" and a pointer to --help; gives ToolExit::Failure.
    int usageError(ToolContext &context, const QString &reason) const;
    // Writes "qrbtool <name>: <text>" to the error stream.
    void error(ToolContext &context, const QString &text) const;

    // The shared --format option and its reading: false (after a usage error) for a bad value.
    static QCommandLineOption formatOption();
    bool readJsonFormat(const QCommandLineParser &parser, ToolContext &context, bool &json) const;
};
