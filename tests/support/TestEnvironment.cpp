#include "support/TestEnvironment.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace TestEnvironment {

static std::vector<std::unique_ptr<QTemporaryDir>> &tempDirs()
{
    static std::vector<std::unique_ptr<QTemporaryDir>> dirs;
    return dirs;
}

QString sourceDir()
{
    return QStringLiteral(QUORIN_SOURCE_DIR);
}

QString sharedDataDir()
{
    return QDir::cleanPath(QStringLiteral(QUORIN_SHARED_DATA_DIR));
}

QString sampleRulebase()
{
    return sourceDir() + u"/data/Sample.qrb"_s;
}

QString makeTempDir()
{
    auto dir = std::make_unique<QTemporaryDir>();
    const QString path = dir->path();
    tempDirs().push_back(std::move(dir));
    return path;
}

void clearSettings()
{
    for (auto scope : {QSettings::UserScope, QSettings::SystemScope}) {
        QSettings settings(QSettings::NativeFormat, scope, u"Tarnwick"_s, u"Quorin"_s);
        settings.clear();
        settings.sync();
    }
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)
                && file.write(bytes) == bytes.size())
        << path.toStdString();
    return path;
}

} // namespace TestEnvironment

#include <QFile>
#include <QProcess>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace TestEnvironment {

namespace {

bool runningAsRoot()
{
#ifdef Q_OS_UNIX
    return ::geteuid() == 0;
#else
    return false;
#endif
}

} // namespace

bool makeReadOnly(const QString &folder)
{
    if (!runningAsRoot())
        return QFile::setPermissions(folder, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    // Root ignores permissions; the immutable flag still binds it where the file system has one.
    return QProcess::execute(u"chattr"_s, {u"+i"_s, folder}) == 0;
}

void makeWritable(const QString &folder)
{
    if (runningAsRoot())
        QProcess::execute(u"chattr"_s, {u"-i"_s, folder});
    QFile::setPermissions(folder,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

} // namespace TestEnvironment
