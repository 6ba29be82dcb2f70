#pragma once

#include <QString>

// An error or warning of the syntax check, placed at a 1-based line and column.
struct BasicDiagnostic
{
    int line = 1;
    int column = 1;
    QString message;

    friend bool operator==(const BasicDiagnostic &, const BasicDiagnostic &) = default;
};
