#include "ProjectTestSupport.h"

#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "support/TestEnvironment.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

void ProjectTest::SetUp()
{
    m_dir = TestEnvironment::makeTempDir();
    m_logPath = TestEnvironment::makeTempDir() + u"/Error.log"_s;
    m_previousLog = gobjLogFile;
    auto log = std::make_shared<LogFile>();
    log->setLogFileName(m_logPath);
    log->setQuiet(true);
    gobjLogFile = log;
}

void ProjectTest::TearDown()
{
    gobjLogFile = m_previousLog;
}

QString ProjectTest::writeFile(const QString &name, const QByteArray &bytes) const
{
    return TestEnvironment::writeFile(path(name), bytes);
}

QStringList ProjectTest::logRecords() const
{
    QFile file(m_logPath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QString vb6DataDir()
{
    const QString dir = TestEnvironment::sharedDataDir() + u"/vb6"_s;
    return QFileInfo(dir).isDir() ? dir : QString();
}

QByteArray crlf(const char *text)
{
    return QByteArray(text).replace("\n", "\r\n");
}
