#include "support/MemoryListControl.h"

void MemoryListControl::clear()
{
    m_rows.clear();
    m_selectedKeys.clear();
    m_currentKey.clear();
}

void MemoryListControl::remove(const QString &key)
{
    m_rows.remove(key);
    m_selectedKeys.remove(key.toCaseFolded());
    if (m_currentKey == key.toCaseFolded())
        m_currentKey.clear();
}

bool MemoryListControl::selected(int row) const
{
    return m_selectedKeys.contains(m_rows.at(row).key.toCaseFolded());
}

void MemoryListControl::setSelected(int row, bool selected)
{
    const QString key = m_rows.at(row).key.toCaseFolded();
    if (selected)
        m_selectedKeys.insert(key);
    else
        m_selectedKeys.remove(key);
}

int MemoryListControl::selectedItem() const
{
    return m_currentKey.isEmpty() ? 0 : m_rows.find(m_currentKey);
}

void MemoryListControl::setSelectedItem(int row)
{
    if (row == 0) {
        m_currentKey.clear();
        return;
    }
    setSelected(row, true);
    m_currentKey = m_rows.at(row).key.toCaseFolded();
}

int MemoryListControl::hitTest(int, int y) const
{
    return y >= 1 && y <= count() ? y : 0;
}

void MemoryListControl::click(int row)
{
    m_selectedKeys.clear();
    setSelectedItem(row);
    if (m_events)
        m_events->ItemClick(row);
}

void MemoryListControl::moveOver(int row)
{
    if (m_events)
        m_events->MouseMove(0, row);
}

void MemoryListControl::clickColumn(int column)
{
    if (m_events)
        m_events->ColumnClick(column);
}

QString MemoryListControl::startDrag()
{
    return m_events ? m_events->OLEStartDrag() : QString();
}

void MemoryListControl::completeDrag()
{
    if (m_events)
        m_events->OLECompleteDrag();
}
