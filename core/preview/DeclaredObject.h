#pragma once

#include <QHash>
#include <QString>

#include <memory>

// The scope a declaration gives a name, as the scope tags tell them apart.
enum class DeclaredScope {
    None, // controls, files, labels, elements: no scope tag applies
    Public,
    Friend,
    Private,
    Local,
    LocalStatic,
    ByValArgument,
    ByRefArgument,
};

// One named thing of a project, as a reviewer's parser would meet it.
struct DeclaredObject
{
    // The most specific object type of the catalogue ("Variable (Local)", not "Variable").
    qint32 objectType = 0;
    QString name{};
    // 1-based physical line in its file; 0 for the project itself.
    qint32 line = 0;
    DeclaredScope scope = DeclaredScope::None;
    // As declared, without "New" or a string length ("String", "ADODB.Recordset"); from a
    // type-declaration character or a Def statement when there is no "As". Empty when the
    // thing has no data type (a Sub, a label) or it can't be told without compiling.
    QString dataType{};
    bool dataTypeUnknown = false; // a constant typed by an expression
    bool isArray = false;
    bool isAsNew = false;
    // A control's class as its layout names it ("VB.TextBox", "MSComctlLib.ListView").
    QString progID{};
    // Projects and files: the values of their other name-bearing properties, by lower-case
    // property name ("filename", "exename32"); null for everything else.
    std::shared_ptr<const QHash<QString, QString>> properties{};
};
