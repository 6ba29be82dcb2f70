#include "platform/LogFile.h"

#include "platform/QuorinError.h"
#include "platform/UserInterface.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

LogFile::LogFile()
    : m_component(QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName())
    , m_logFile(QCoreApplication::applicationDirPath() + QStringLiteral("/Error.log"))
{
}

QString LogFile::FormatLogRecord(const QString &message,
                                 const QString &function,
                                 const QString &module,
                                 const QString &type) const
{
    // The date format is fixed, day first, whatever the machine's settings.
    const QString now = QDateTime::currentDateTime().toString(QStringLiteral("dd/MM/yy HH:mm:ss"));
    return now + QLatin1Char('#') + m_component.leftJustified(12, QLatin1Char(' '), true)
           + QStringLiteral(" (") + m_componentVersion + QStringLiteral(")#")
           + type.leftJustified(6, QLatin1Char(' '), true) + QLatin1Char('#') + message
           + QLatin1Char('#') + module + QStringLiteral("::") + function;
}

void LogFile::LogBasicError(const QuorinError &error,
                            const QString &function,
                            const QString &module)
{
    const QString message
        = QString::number(error.number()) + QStringLiteral(" - ") + error.description();
    LogMessage(FormatLogRecord(message, function, module, QStringLiteral("Error")));
    if (!m_quiet) {
        UserInterface::current().messageBox(QStringLiteral("Error ") + message
                                                + QStringLiteral(" in function ") + function
                                                + QStringLiteral(" module ") + module,
                                            MessageButtons::OK,
                                            MessageIcon::Critical,
                                            QStringLiteral("Quorin Unexpected Error"),
                                            MessageResult::OK);
    }
}

void LogFile::LogSetupError(const QString &message, const QString &function, const QString &module)
{
    LogMessage(FormatLogRecord(message, function, module, QStringLiteral("Setup")));
    if (!m_quiet) {
        UserInterface::current().messageBox(message,
                                            MessageButtons::OK,
                                            MessageIcon::Exclamation,
                                            QStringLiteral("Quorin Setup Error"),
                                            MessageResult::OK);
    }
}

void LogFile::LogDebugTrace(const QString &message, const QString &function, const QString &module)
{
    LogMessage(FormatLogRecord(message, function, module, QStringLiteral("Debug")));
}

void LogFile::LogAssert(bool condition,
                        const QString &message,
                        const QString &function,
                        const QString &module)
{
    if (!condition)
        LogMessage(FormatLogRecord(message, function, module, QStringLiteral("Assert")));
}

void LogFile::LogEvent(const QString &message, const QString &function, const QString &module)
{
    LogMessage(FormatLogRecord(message, function, module, QStringLiteral("Event")));
}

void LogFile::LogMessage(const QString &text)
{
    // A record that can't be written is lost: there is nowhere further to report it.
    QFile file(m_review ? m_reviewLogFile : m_logFile);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        return;
    file.write((text + QLatin1Char('\n')).toUtf8());
}

void LogFile::SetReviewLog(const QString &filename, bool truncate)
{
    m_reviewLogFile = filename;
    m_review = true;
    if (truncate) {
        QFile file(filename);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.close();
    }
}

void LogFile::CloseReview()
{
    m_review = false;
}
