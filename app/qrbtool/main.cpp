#include "tools/QrbTool.h"
#include "tools/ToolContext.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#define isatty _isatty
#define fileno _fileno
#else
#include <unistd.h>
#endif

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("qrbtool"));

    QTextStream out(stdout);
    QTextStream err(stderr);
    // Progress is for a person at a terminal; a build log gets results only.
    ToolContext context(out, err, isatty(fileno(stderr)) != 0);
    QrbTool tool;
    return tool.run(QCoreApplication::arguments().mid(1), context);
}
