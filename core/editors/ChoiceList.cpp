#include "editors/ChoiceList.h"

#include "platform/TextUtils.h"

void ChoiceList::clear()
{
    m_entries.clear();
    m_current = -1;
    ++m_revision;
}

void ChoiceList::addItem(const QString &text, qint32 itemData)
{
    m_entries.push_back(Entry{text, itemData, QString(), QString(), 0});
    ++m_revision;
}

void ChoiceList::addItem(const QString &key,
                         const QString &text,
                         const QString &image,
                         int indentation)
{
    m_entries.push_back(Entry{text, 0, key, image, indentation});
    ++m_revision;
}

void ChoiceList::setCurrentIndex(int index)
{
    m_current = (index >= 0 && index < count()) ? index : -1;
}

qint32 ChoiceList::currentItemData(qint32 none) const
{
    return hasSelection() ? itemData(m_current) : none;
}

QString ChoiceList::currentKey() const
{
    return hasSelection() ? key(m_current) : QString();
}

QString ChoiceList::currentText() const
{
    return hasSelection() ? text(m_current) : QString();
}

int ChoiceList::FindItemWithItemData(qint32 itemData) const
{
    for (int i = 0; i < count(); ++i) {
        if (m_entries[std::size_t(i)].itemData == itemData)
            return i;
    }
    return -1;
}

int ChoiceList::findKey(const QString &key) const
{
    for (int i = 0; i < count(); ++i) {
        if (Text::same(m_entries[std::size_t(i)].key, key))
            return i;
    }
    return -1;
}
