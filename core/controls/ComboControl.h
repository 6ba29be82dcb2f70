#pragma once

#include <QtGlobal>

class QString;

// What the category and severity pickers need of a combo or list box: entries with a number
// carried beside each. The GUI adapts a QComboBox (item data), tests record the entries.
class ComboControl
{
public:
    virtual ~ComboControl() = default;

    virtual void clear() = 0;
    virtual void addItem(const QString &text, qint32 itemData) = 0;
};
