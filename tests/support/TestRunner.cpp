#include "support/TestMain.h"

#include "support/TestEnvironment.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QStandardPaths>

#include <gtest/gtest.h>

int runTests(int argc, char **argv)
{
    QStandardPaths::setTestModeEnabled(true);
    // Point both settings scopes at a folder of our own before anything reads them.
    const QString settingsDir = TestEnvironment::makeTempDir();
    for (auto format : {QSettings::NativeFormat, QSettings::IniFormat}) {
        QSettings::setPath(format, QSettings::UserScope, settingsDir + QStringLiteral("/user"));
        QSettings::setPath(format, QSettings::SystemScope, settingsDir + QStringLiteral("/system"));
    }
    // An installed copy of the program's data must not stand in for the build folder's.
    qputenv("XDG_DATA_DIRS", QFile::encodeName(settingsDir + QStringLiteral("/data")));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

