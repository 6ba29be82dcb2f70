#pragma once

#include <QtGlobal>

#include "controls/ComboControl.h"
#include "controls/ImageComboControl.h"

#include <QString>

#include <vector>

// The rows of a dialog's combo box as its form model holds them: text, item data, key, picture
// and indentation, with the selected row (0-based; -1 for none). The category, severity and
// parser event fillers write into it; the dialog mirrors it into its widget.
class ChoiceList final : public ComboControl, public ImageComboControl
{
public:
    struct Entry
    {
        QString text;
        qint32 itemData = 0;
        QString key;
        QString image;
        int indentation = 0;
    };

    void clear() override;
    void addItem(const QString &text, qint32 itemData) override;
    void addItem(const QString &key,
                 const QString &text,
                 const QString &image,
                 int indentation) override;

    int count() const { return int(m_entries.size()); }
    const Entry &entry(int index) const { return m_entries.at(std::size_t(index)); }
    QString text(int index) const { return entry(index).text; }
    qint32 itemData(int index) const { return entry(index).itemData; }
    QString key(int index) const { return entry(index).key; }

    int currentIndex() const { return m_current; }
    // Out of range means no selection.
    void setCurrentIndex(int index);
    bool hasSelection() const { return m_current >= 0; }
    // The item data of the selected row, or `none` without a selection.
    qint32 currentItemData(qint32 none = -1) const;
    QString currentKey() const;
    QString currentText() const;

    // The first row carrying this item data, or -1.
    int FindItemWithItemData(qint32 itemData) const;
    // The first row with this key, ignoring case, or -1.
    int findKey(const QString &key) const;

    // Grows with every clear or add, so a dialog can tell when to refill its widget.
    int revision() const { return m_revision; }

private:
    std::vector<Entry> m_entries;
    int m_current = -1;
    int m_revision = 0;
};
