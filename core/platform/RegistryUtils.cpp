#include "platform/RegistryUtils.h"

#include "platform/QuorinError.h"

#include <QSettings>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace RegistryUtils {

namespace {

const QString vendorKey = QStringLiteral("Software\\Tarnwick\\Quorin");

// Opens the store of a root, positioned on the group of a key.
std::unique_ptr<QSettings> open(const QString &key, Root root)
{
#ifdef Q_OS_WIN
    const QString hive = root == HKEY_LOCAL_MACHINE ? QStringLiteral("HKEY_LOCAL_MACHINE\\")
                                                    : QStringLiteral("HKEY_CURRENT_USER\\");
    return std::make_unique<QSettings>(hive + key, QSettings::NativeFormat);
#else
    auto settings = std::make_unique<QSettings>(QSettings::NativeFormat,
                                                root == HKEY_LOCAL_MACHINE ? QSettings::SystemScope
                                                                           : QSettings::UserScope,
                                                QStringLiteral("Tarnwick"),
                                                QStringLiteral("Quorin"));
    QString group = key;
    if (group.startsWith(vendorKey, Qt::CaseInsensitive))
        group = group.mid(vendorKey.size());
    group.replace(QLatin1Char('\\'), QLatin1Char('/'));
    while (group.startsWith(QLatin1Char('/')))
        group.remove(0, 1);
    // The system scope falls back to nothing else; the user scope must not see system values.
    settings->setFallbacksEnabled(false);
    if (!group.isEmpty())
        settings->beginGroup(group);
    return settings;
#endif
}

} // namespace

QString productKey()
{
    return vendorKey + QStringLiteral("\\6.2");
}

bool KeyExists(const QString &key, Root root)
{
    const auto settings = open(key, root);
    return !settings->childKeys().isEmpty() || !settings->childGroups().isEmpty();
}

QString
GetRegString(const QString &key, const QString &valueName, const QString &defaultValue, Root root)
{
    const auto settings = open(key, root);
    const QVariant value = settings->value(valueName);
    if (!value.isValid())
        return defaultValue;
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QStringList:
        // A hand-edited settings file splits "0,25" at the comma; it is still one text.
        return value.toStringList().join(QLatin1Char(','));
    case QMetaType::QByteArray:
        return QString::fromUtf8(value.toByteArray());
    default:
        throw QuorinError(ErrorNumber::RegistryTypeMismatch,
                          QStringLiteral("Registry::GetRegString"),
                          QStringLiteral("Registry data type does not match the type requested."));
    }
}

bool SetRegString(const QString &key, const QString &valueName, const QString &value, Root root)
{
    const auto settings = open(key, root);
    settings->setValue(valueName, value);
    settings->sync();
    if (settings->status() != QSettings::NoError) {
        throw QuorinError(ErrorNumber::InvalidRegistryHandle,
                          QStringLiteral("Registry::SetRegString"),
                          QStringLiteral("An invalid registry key handle was supplied."));
    }
    return true;
}

} // namespace RegistryUtils
