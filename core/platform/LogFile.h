#pragma once

#include <QString>

class QuorinError;

// The program's one log: line records of five "#"-separated fields, appended one at a time so
// another process may read the file whenever it likes. Errors and setup faults also show a box.
class LogFile
{
public:
    LogFile();

    QString Component() const { return m_component; }
    void setComponent(const QString &component) { m_component = component; }
    bool Quiet() const { return m_quiet; }
    void setQuiet(bool quiet) { m_quiet = quiet; }
    QString ComponentVersion() const { return m_componentVersion; }
    void setComponentVersion(const QString &version) { m_componentVersion = version; }
    // The member the original calls LogFile; a C++ member can't share its class's name.
    QString logFileName() const { return m_logFile; }
    void setLogFileName(const QString &filename) { m_logFile = filename; }

    void LogBasicError(const QuorinError &error, const QString &function, const QString &module);
    void LogSetupError(const QString &message, const QString &function, const QString &module);
    void LogDebugTrace(const QString &message, const QString &function, const QString &module);
    void LogAssert(bool condition,
                   const QString &message,
                   const QString &function,
                   const QString &module);
    void LogEvent(const QString &message, const QString &function, const QString &module);
    void LogMessage(const QString &text);
    void SetReviewLog(const QString &filename, bool truncate);
    void CloseReview();

    QString FormatLogRecord(const QString &message,
                            const QString &function,
                            const QString &module,
                            const QString &type) const;

private:
    QString m_component;
    QString m_componentVersion;
    QString m_logFile;
    QString m_reviewLogFile;
    bool m_review = false;
    bool m_quiet = false;
};
