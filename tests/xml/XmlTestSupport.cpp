#include "XmlTestSupport.h"

#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "support/TestEnvironment.h"

#include <QFile>

void XmlTest::SetUp()
{
    m_dir = TestEnvironment::makeTempDir();
    auto log = std::make_shared<LogFile>();
    log->setLogFileName(path(QStringLiteral("Error.log")));
    log->setQuiet(true);
    gobjLogFile = log;
}

void XmlTest::TearDown()
{
    gobjLogFile.reset();
}

QString XmlTest::writeFile(const QString &name, const QByteArray &bytes) const
{
    return TestEnvironment::writeFile(path(name), bytes);
}

QStringList XmlTest::logRecords() const
{
    return QString::fromUtf8(readFile(path(QStringLiteral("Error.log"))))
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
