#include "platform/QuorinAdminData.h"

#include "platform/ErrorFrame.h"
#include "platform/QuorinData.h"
#include "platform/RegistryUtils.h"
#include "platform/TextUtils.h"

namespace {

struct Setting
{
    const char *name;
    const char *defaultValue; // nullptr: the program's folder
    bool saved;
};

// In the order LoadSettings reads them.
const Setting settingsTable[] = {
    {"FirstUse", "1", true},
    {"MainTop", "855", true},
    {"MainLeft", "1470", true},
    {"MainHeight", "8910", true},
    {"MainWidth", "12450", true},
    {"LastPath", "", true},
    {"DisplayTips", "1", true},
    {"DocWinVisible", "1", true},
    {"LastTip", "0", true},
    {"DocHeight", "1835", true},
    {"TreeWidth", "3810", true},
    {"ListLeft", "3840", true},
    {"QuorinBarVisible", "1", true},
    {"ListACCol1", "0.25", true},
    {"ListACCol2", "0.15", true},
    {"ListACCol3", "0.58", true},
    {"ListARCol1", "0.35", true},
    {"ListARCol2", "0.15", true},
    {"ListARCol3", "0.25", true},
    {"ListARCol4", "0.23", true},
    // The keyword list's widths are read but never written back.
    {"ListUKCol1", "0.13", false},
    {"ListUKCol2", "0.38", false},
    {"ListUKCol3", "0.27", false},
    {"ListUKCol4", "0.16", false},
    {"ListCCCol1", "0.13", true},
    {"ListCCCol2", "0.38", true},
    {"ListCCCol3", "0.27", true},
    {"ListCCCol4", "0.16", true},
    {"ListACSortCol", "0", true},
    {"ListACSortOrder", "0", true},
    {"ListARSortCol", "0", true},
    {"ListARSortOrder", "0", true},
    {"ListCCSortCol", "0", true},
    {"ListCCSortOrder", "0", true},
    {"ListCVSortCol", "1", true},
    {"ListCVSortOrder", "0", true},
    {"ListSVSortCol", "1", true},
    {"ListSVSortOrder", "0", true},
    {"Maximised", "0", true},
    {"LastStandardsPath", nullptr, true},
    {"LastCompanyName", "", true},
    {"ListUKSortCol", "1", true},
    {"ListUKSortOrder", "0", true},
    // The condition editor's window, in twips; no place yet: centred over its owner.
    {"EditorLeft", "", true},
    {"EditorTop", "", true},
    {"EditorWidth", "10800", true},
    {"EditorHeight", "7800", true},
    {"EditorMaximised", "0", true},
};

} // namespace

QString QuorinAdminData::settingsKey()
{
    return RegistryUtils::productKey() + QStringLiteral("\\QuorinAdmin");
}

QuorinAdminData::QuorinAdminData()
{
    for (const Setting &s : settingsTable) {
        m_values.insert(QLatin1String(s.name),
                        s.defaultValue ? QString::fromLatin1(s.defaultValue)
                                       : QuorinData::programFolder());
    }
    LoadSettings();
}

QuorinAdminData::~QuorinAdminData()
{
    SaveSettings();
}

bool QuorinAdminData::LoadSettings()
{
    return guardedVoid("LoadSettings", "QuorinAdminData", [this] {
        const QString key = settingsKey();
        for (const Setting &s : settingsTable) {
            const QString name = QLatin1String(s.name);
            // A missing value keeps the one in force.
            m_values[name] = RegistryUtils::GetRegString(
                key, name, m_values.value(name), RegistryUtils::HKEY_CURRENT_USER);
        }
    });
}

bool QuorinAdminData::SaveSettings()
{
    return guardedVoid("SaveSettings", "QuorinAdminData", [this] {
        const QString key = settingsKey();
        for (const Setting &s : settingsTable) {
            if (s.saved) {
                const QString name = QLatin1String(s.name);
                RegistryUtils::SetRegString(
                    key, name, m_values.value(name), RegistryUtils::HKEY_CURRENT_USER);
            }
        }
    });
}

QString QuorinAdminData::text(const char *name) const
{
    return m_values.value(QLatin1String(name));
}

void QuorinAdminData::setText(const char *name, const QString &value)
{
    m_values.insert(QLatin1String(name), value);
}

int QuorinAdminData::intValue(const char *name) const
{
    const double v = Text::val(text(name));
    return v > 2147483647.0 || v < -2147483648.0 ? 0 : static_cast<int>(v);
}

void QuorinAdminData::setInt(const char *name, int value)
{
    setText(name, QString::number(value));
}

bool QuorinAdminData::boolValue(const char *name) const
{
    return intValue(name) != 0;
}

void QuorinAdminData::setBool(const char *name, bool value)
{
    setText(name, value ? QStringLiteral("1") : QStringLiteral("0"));
}

float QuorinAdminData::fraction(const char *prefix, int index) const
{
    return Text::stringToSingle(m_values.value(QLatin1String(prefix) + QString::number(index)));
}

void QuorinAdminData::setFraction(const char *prefix, int index, float value)
{
    const QString name = QLatin1String(prefix) + QString::number(index);
    if (m_values.contains(name))
        m_values.insert(name, QString::number(value, 'g', 6));
}
