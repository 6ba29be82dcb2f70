#include "support/TestMain.h"

#include "support/TestEnvironment.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

int runTests(int argc, char **argv)
{
    QStandardPaths::setTestModeEnabled(true);
    // Point both settings scopes at a folder of our own before anything reads them.
    const QString settingsDir = TestEnvironment::makeTempDir();
    for (auto format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, settingsDir + u"/user"_s);
        QSettings::setPath(format, QSettings::SystemScope, settingsDir + u"/system"_s);
    }
    // An installed copy of the program's data must not stand in for the build folder's.
    qputenv("XDG_DATA_DIRS", QFile::encodeName(settingsDir + u"/data"_s));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
