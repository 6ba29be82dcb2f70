#pragma once

#include "collections/IListItem.h"

// A generated table page of the coding standards document.
class TableItem final : public IListItem
{
public:
    bool Dirty() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }
    // A value equal to the old one ignoring case is not stored and leaves Dirty alone.
    QString TableTitle() const { return m_tableTitle; }
    void setTableTitle(const QString &title);
    QString TableText() const { return m_tableText; }
    void setTableText(const QString &text);
    // What the page shows; set plainly, never marks Dirty.
    qint32 TableType() const { return m_tableType; }
    void setTableType(qint32 type) { m_tableType = type; }
    QString TableKey() const { return m_tableKey; }
    void setTableKey(const QString &key) { m_tableKey = key; }

    QString Key() const override { return m_tableKey; }
    QString Title() const override { return m_tableTitle; }
    QString Description() const override { return m_tableText; }
    qint32 ID() const override { return 0; }

private:
    void setListKey(const QString &key) override { m_tableKey = key; }

    bool m_dirty = false;
    QString m_tableTitle;
    QString m_tableText;
    qint32 m_tableType = 0;
    QString m_tableKey;
};
