#pragma once

#include <QtGlobal>

// The parser events a line of source can belong to, as bits of a mask (bit n for event n).
namespace ParserEvent {

constexpr qint32 SourceLine = 4;
constexpr qint32 Component = 5;
constexpr qint32 BeginLayout = 6;
constexpr qint32 Control = 7;
constexpr qint32 EndLayout = 8;
constexpr qint32 Declaration = 10;
constexpr qint32 Const = 11;
constexpr qint32 Declare = 12;
constexpr qint32 DeclareArgument = 13;
constexpr qint32 BeginEnum = 14;
constexpr qint32 EnumBody = 15;
constexpr qint32 EnumElement = 16;
constexpr qint32 EndEnum = 17;
constexpr qint32 Event = 18;
constexpr qint32 EventArgument = 19;
constexpr qint32 Implements = 20;
constexpr qint32 BeginType = 21;
constexpr qint32 TypeBody = 22;
constexpr qint32 TypeElement = 23;
constexpr qint32 EndType = 24;
constexpr qint32 Variable = 25;
constexpr qint32 Reference = 26;
constexpr qint32 BeginProcedure = 28;
constexpr qint32 ProcedureArgument = 29;
constexpr qint32 ProcedureBody = 30;
constexpr qint32 LocalConst = 31;
constexpr qint32 LineLabel = 32;
constexpr qint32 LocalVariable = 33;
constexpr qint32 EndProcedure = 34;

constexpr quint64 bit(qint32 id)
{
    return id >= 0 && id < 64 ? quint64(1) << id : 0;
}

// The events that come with a line of text; the others (begin and end of the project, its
// files, a file, the declarations) have none a pattern could be tried on.
constexpr quint64 withLines()
{
    quint64 mask = 0;
    for (qint32 id = SourceLine; id <= EndProcedure; ++id) {
        if (id != 9 && id != 27)
            mask |= bit(id);
    }
    return mask;
}

} // namespace ParserEvent
