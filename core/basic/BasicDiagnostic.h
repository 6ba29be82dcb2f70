#pragma once

#include <QString>

// An error or warning of the syntax check, placed at a 1-based line and column.
struct BasicDiagnostic
{
    int line = 1;
    int column = 1;
    QString message;

    // "line 4, column 3: Expected: End If", as the editor and qrbtool tell it.
    QString located() const;

    friend bool operator==(const BasicDiagnostic &, const BasicDiagnostic &) = default;
};
