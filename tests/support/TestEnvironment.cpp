#include "support/TestEnvironment.h"

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>
#include <vector>

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
    return sourceDir() + QStringLiteral("/data/Sample.qrb");
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
        QSettings settings(QSettings::NativeFormat, scope, QStringLiteral("Tarnwick"), QStringLiteral("Quorin"));
        settings.clear();
        settings.sync();
    }
}

} // namespace TestEnvironment
