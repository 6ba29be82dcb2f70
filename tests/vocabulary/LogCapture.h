#pragma once

#include <QStringList>

#include <memory>

class LogFile;

// Points the global log at a fresh file, quiet, for its lifetime, and hands back the records.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();

    QStringList records() const;
    // The fields behind the date and component: type, message, "module::function".
    QStringList lastRecordFields() const;

private:
    std::shared_ptr<LogFile> m_previous;
    QString m_path;
};
