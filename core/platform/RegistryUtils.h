#pragma once

#include <QString>

// The settings store. On Windows these are the real registry keys; elsewhere the platform's
// settings files stand in, with the key path below "Software\Tarnwick\Quorin" as the group.
namespace RegistryUtils {

enum Root : quint32 { HKEY_CURRENT_USER = 0x80000001u, HKEY_LOCAL_MACHINE = 0x80000002u };

// The product's key, under which every other key of the program lies.
QString productKey();

bool KeyExists(const QString &key, Root root);
// Gives Default when the key or the value is missing; raises when the value is not text.
QString
GetRegString(const QString &key, const QString &valueName, const QString &defaultValue, Root root);
bool SetRegString(const QString &key, const QString &valueName, const QString &value, Root root);

} // namespace RegistryUtils
