#pragma once

#include <QList>
#include <QtGlobal>

// The object types of the catalogue that carry a name a naming convention can check, by id.
namespace CatalogueObject {

constexpr qint32 Argument = 1;
constexpr qint32 Const = 5;
constexpr qint32 Control = 6;
constexpr qint32 Declare = 7;
constexpr qint32 Enum = 9;
constexpr qint32 EnumElement = 10;
constexpr qint32 Event = 11;
constexpr qint32 File = 12;
constexpr qint32 DeclareArgument = 13;
constexpr qint32 Implements = 14;
constexpr qint32 LineLabel = 15;
constexpr qint32 Procedure = 17;
constexpr qint32 Project = 18;
constexpr qint32 EventArgument = 19;
constexpr qint32 ProcedureArgument = 20;
constexpr qint32 PublicConst = 22;
constexpr qint32 Type = 24;
constexpr qint32 TypeElement = 25;
constexpr qint32 PrivateConst = 26;
constexpr qint32 LocalConst = 27;
constexpr qint32 Variable = 28;
constexpr qint32 PublicVariable = 29;
constexpr qint32 PrivateVariable = 30;
constexpr qint32 LocalVariable = 31;
constexpr qint32 LocalStaticVariable = 32;
constexpr qint32 WithEventsVariable = 33;
constexpr qint32 PublicWithEventsVariable = 34;
constexpr qint32 PrivateWithEventsVariable = 35;
constexpr qint32 FormFile = 36;
constexpr qint32 ModuleFile = 37;
constexpr qint32 ClassFile = 38;
constexpr qint32 DesignerFile = 39;
constexpr qint32 PropertyPageFile = 40;
constexpr qint32 UserControlFile = 41;
constexpr qint32 UserDocumentFile = 42;
constexpr qint32 NoWithEventsVariable = 43;
constexpr qint32 SubProcedure = 44;
constexpr qint32 PropertyProcedure = 45;
constexpr qint32 FunctionProcedure = 46;
constexpr qint32 MDIFormFile = 47;
constexpr qint32 MDIChildFormFile = 48;
constexpr qint32 NonMDIFormFile = 49;

// The type itself, then every more general type a convention reaches it by, as the naming
// tree nests them: a local variable is also "Variable (No WithEvents)" and "Variable".
QList<qint32> chain(qint32 id);

} // namespace CatalogueObject
