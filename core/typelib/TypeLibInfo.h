#pragma once

#include <QString>

// What the program takes from a type library's own description of itself.
struct TypeLibInfo
{
    enum class Format { Msft, Sltg };

    // "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}", upper case; never empty.
    QString guid;
    QString helpString;
    // The library's name; empty for SLTG, whose name table is not read.
    QString name;
    quint16 majorVersion = 0;
    quint16 minorVersion = 0;
    quint32 lcid = 0;
    quint16 libFlags = 0;
    Format format = Format::Msft;
    // The id of the TYPELIB resource it came from; 0 for a stand-alone library file.
    int resourceId = 0;

    // "major.minor" in decimal, the form authorised versions are written in.
    QString version() const { return QStringLiteral("%1.%2").arg(majorVersion).arg(minorVersion); }
};
