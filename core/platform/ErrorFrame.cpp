#include "platform/ErrorFrame.h"

#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"

#include <QDebug>

#include <atomic>

namespace {
std::atomic<quint64> reported{0};
}

quint64 reportedErrorCount()
{
    return reported.load();
}

void reportError(const QuorinError &error, const char *function, const char *module)
{
    ++reported;
    const QString fn = QString::fromLatin1(function);
    const QString mod = QString::fromLatin1(module);
    if (gobjLogFile) {
        gobjLogFile->LogBasicError(error, fn, mod);
        return;
    }
    // Before the global objects exist (or in a tool that runs without them) stderr is the log.
    qWarning().noquote() << QStringLiteral("Error %1 - %2 in function %3 module %4")
                                .arg(error.number())
                                .arg(error.description(), fn, mod);
}
