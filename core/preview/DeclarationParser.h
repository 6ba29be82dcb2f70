#pragma once

#include "preview/DeclaredObject.h"

#include <QString>
#include <QStringView>

#include <vector>

// Reads the names one statement of Visual Basic code declares. The statement comes with its
// string literals emptied and its comment cut, and without the ":" that separates it from the
// next; this is a reading of declarations, not a parse of the language.
namespace DeclarationParser {

enum class Kind {
    Other, // anything that declares nothing
    Variables,
    Consts,
    Declare,
    EnumBegin,
    EnumEnd,
    TypeBegin,
    TypeEnd,
    Event,
    Implements,
    ProcedureBegin,
    ProcedureEnd,
    DefType,
};

enum class ProcedureKind { None, Sub, Function, Property };

struct Name
{
    QString name;
    // Offset of the name in the statement, to find its physical line.
    qsizetype offset = 0;
    // "As" type or the one of a type-declaration character; empty with `typed` set means
    // the default type (Variant, or what a Def statement says).
    QString dataType;
    bool typed = true; // false for what has no data type: a Sub, an Event
    bool dataTypeUnknown = false;
    bool isArray = false;
    bool isAsNew = false;
    bool withEvents = false;
    bool byVal = false; // arguments only
};

struct Statement
{
    Kind kind = Kind::Other;
    // "Public", "Private", "Friend", "Global" or empty; "Dim" and "Static" are flags.
    QString scopeWord;
    bool isDim = false;
    bool isStatic = false;
    ProcedureKind procedure = ProcedureKind::None;
    // The procedure, Declare, Event, Enum, Type or interface; unused for lists.
    Name head;
    // Variables, constants, or the arguments of a procedure, Declare or Event.
    std::vector<Name> items;
    // DefType: the type and the first letters it covers ("A".."Z", lower case).
    QString defType;
    QString defLetters;
};

Statement parse(QStringView statement);
// A line inside "Enum ... End Enum" and inside "Type ... End Type".
Name enumElement(QStringView statement);
Name typeElement(QStringView statement);
// A line label that begins the logical line ("Retry:" gives "Retry"), or empty.
QString lineLabel(QStringView code);

} // namespace DeclarationParser
