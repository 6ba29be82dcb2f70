#include "LogCapture.h"

#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "support/TestEnvironment.h"

#include <QFile>

using namespace Qt::StringLiterals;

LogCapture::LogCapture()
    : m_previous(gobjLogFile)
    , m_path(TestEnvironment::makeTempDir() + u"/Error.log"_s)
{
    auto log = std::make_shared<LogFile>();
    log->setLogFileName(m_path);
    log->setQuiet(true);
    gobjLogFile = log;
}

LogCapture::~LogCapture()
{
    gobjLogFile = m_previous;
}

QStringList LogCapture::records() const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList LogCapture::lastRecordFields() const
{
    const QStringList all = records();
    if (all.isEmpty())
        return {};
    QStringList fields = all.last().split(QLatin1Char('#'));
    fields = fields.mid(2);
    if (!fields.isEmpty())
        fields[0] = fields[0].trimmed();
    return fields;
}
