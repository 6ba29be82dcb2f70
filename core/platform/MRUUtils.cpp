#include "platform/MRUUtils.h"

#include "platform/RegistryUtils.h"
#include "platform/TextUtils.h"

using RegistryUtils::HKEY_CURRENT_USER;

static QString valueName(int index)
{
    return QStringLiteral("MRUFile") + QString::number(index);
}

QString MRUUtils::Item(int index) const
{
    return index >= 1 && index <= m_files.size() ? m_files.at(index - 1) : QString();
}

void MRUUtils::setAppName(const QString &appName)
{
    m_key = RegistryUtils::productKey() + QLatin1Char('\\') + appName + QStringLiteral("\\MRU");
    m_files.clear();
    LoadList();
}

void MRUUtils::LoadList()
{
    m_files.clear();
    for (int i = 1;; ++i) {
        const QString file
            = RegistryUtils::GetRegString(m_key, valueName(i), QString(), HKEY_CURRENT_USER);
        if (file.isEmpty())
            break;
        m_files << file;
    }
}

void MRUUtils::takeOut(const QString &filename)
{
    for (qsizetype i = 0; i < m_files.size(); ++i) {
        if (Text::same(m_files.at(i), filename)) {
            m_files.removeAt(i);
            return;
        }
    }
}

void MRUUtils::Add(const QString &filename)
{
    takeOut(filename);
    m_files.prepend(filename);
    while (m_files.size() > MaxSize)
        m_files.removeLast();
    writeList();
}

void MRUUtils::Remove(const QString &filename)
{
    takeOut(filename);
    writeList();
}

void MRUUtils::writeList() const
{
    for (int i = 1; i <= m_files.size(); ++i)
        RegistryUtils::SetRegString(m_key, valueName(i), m_files.at(i - 1), HKEY_CURRENT_USER);
    // An empty value ends the list when it is read again, so a shorter list stays short.
    if (m_files.size() < MaxSize)
        RegistryUtils::SetRegString(
            m_key, valueName(int(m_files.size()) + 1), QString(), HKEY_CURRENT_USER);
}
