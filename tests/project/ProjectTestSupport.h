#pragma once

#include "support/QtPrinters.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>

class LogFile;

// A fresh folder and a quiet log of its own for each test, so a test can write project files
// and read what was logged.
class ProjectTest : public ::testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    QString path(const QString &name) const { return m_dir + QLatin1Char('/') + name; }
    // Writes the bytes as they stand (line ends included), making folders on the way.
    QString writeFile(const QString &name, const QByteArray &bytes) const;
    QStringList logRecords() const;

    QString m_dir;

private:
    std::shared_ptr<LogFile> m_previousLog;
    QString m_logPath;
};

// The shared folder of VB6 test projects; the test skips when it is absent.
#define QUORIN_REQUIRE_VB6_DATA(dir)                                                               \
    const QString dir = vb6DataDir();                                                              \
    if (dir.isEmpty())                                                                             \
        GTEST_SKIP() << "no shared VB6 test data";

// Empty when the shared data folder is missing.
QString vb6DataDir();
// The text with each "\n" made CR LF, as the VB6 IDE writes files.
QByteArray crlf(const char *text);
