#pragma once

#include <QString>

#include <ostream>

// Failures show texts rather than bytes; found by argument lookup, so beside QString.
inline void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << text.toStdString() << '"';
}
