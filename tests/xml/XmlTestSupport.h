#pragma once

#include "support/QtPrinters.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

// Installs a quiet log in a fresh folder for each test, so tests can read what was logged.
class XmlTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        m_dir = TestEnvironment::makeTempDir();
        auto log = std::make_shared<LogFile>();
        log->setLogFileName(path(QStringLiteral("Error.log")));
        log->setQuiet(true);
        gobjLogFile = log;
    }
    void TearDown() override { gobjLogFile.reset(); }

    QString path(const QString &name) const { return m_dir + QLatin1Char('/') + name; }
    QString writeFile(const QString &name, const QByteArray &bytes) const
    {
        return TestEnvironment::writeFile(path(name), bytes);
    }
    static QByteArray readFile(const QString &filename)
    {
        return TestEnvironment::readFile(filename);
    }
    QStringList logRecords() const
    {
        return QString::fromUtf8(readFile(path(QStringLiteral("Error.log"))))
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    // The records whose message and place contain `fragment`.
    QStringList logged(const QString &fragment) const { return logRecords().filter(fragment); }
    qsizetype timesLogged(const char *fragment) const
    {
        return logged(QString::fromUtf8(fragment)).size();
    }

    QString m_dir;
};
