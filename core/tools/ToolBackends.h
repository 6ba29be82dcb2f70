#pragma once

#include <QString>
#include <QStringList>

class ToolContext;

// The subcommands whose work is done by features of their own (the document writer, the
// condition script file, the import of authorised items) reach them through these functions
// only. Each gets its arguments already checked and gives a ToolExit code. The plug-in point
// is ToolBackends.cpp: one function per command.

struct DocRequest
{
    QString rulebase;
    QString output;       // the HTML file to write
    QString organisation; // may be empty
};

struct ScriptsRequest
{
    QString rulebase;
    QString output; // the condition script file to write
};

struct ImportRequest
{
    QString rulebase;
    // Projects, groups, type libraries and ActiveX files, in the order given.
    QStringList sources;
    // Report what would be added; write nothing.
    bool dryRun = false;
};

namespace ToolBackends {

int writeDocument(const DocRequest &request, ToolContext &context);
int writeConditionScripts(const ScriptsRequest &request, ToolContext &context);
int importAuthorisedItems(const ImportRequest &request, ToolContext &context);

// What a command without its feature says: "qrbtool: '<command>' is not available in this
// build". Gives ToolExit::Failure.
int notAvailable(const QString &command, ToolContext &context);

} // namespace ToolBackends
