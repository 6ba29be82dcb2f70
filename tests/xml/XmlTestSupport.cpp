#include "XmlTestSupport.h"

#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "support/TestEnvironment.h"

#include <QFile>

using namespace Qt::StringLiterals;

void XmlTest::SetUp()
{
    m_dir = TestEnvironment::makeTempDir();
    auto log = std::make_shared<LogFile>();
    log->setLogFileName(path(u"Error.log"_s));
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
    return QString::fromUtf8(readFile(path(u"Error.log"_s)))
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
