#pragma once

#include <QString>

// The first fault ScreenIsValid finds: the tab to show (1-based), the control to focus and the
// one warning to give. `index` picks a control of an array (txtPrefix 2), -1 for a plain one.
struct FormFault
{
    int tab = 0;
    QString field;
    int index = -1;
    QString message;
    // The warning's title when it is not the program's; where in a text the fault is, 1-based,
    // line 0 for nowhere in particular.
    QString title = {};
    int line = 0;
    int column = 0;

    // The objectName of the control in the dialog: "txtTitle", or "txtPrefix_2" in an array.
    QString controlName() const
    {
        return index < 0 ? field : field + QLatin1Char('_') + QString::number(index);
    }
};
