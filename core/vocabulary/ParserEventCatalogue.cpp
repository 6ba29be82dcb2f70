#include "vocabulary/ParserEventCatalogue.h"

#include <algorithm>

namespace ParserEventCatalogue {

namespace {

// clang-format off
// ID, text, icon, place, indent, clause of the help, scope line of the help.
constexpr EventRow eventTable[] = {
    { 1, u"begin Project",        u"Event",          1, 0, u"when the next project review begins.", u"In scope: Project."},
    { 2, u"begin Source Files",   u"Event",          3, 1, u"before processing each source file within the current project.", u"In scope: Project."},
    { 3, u"begin File",           u"Event",          4, 2, u"prior to the review of the next source file.", u"In scope: File, Project."},
    { 4, u"Source Line",          u"Event",          5, 3, u"for each source line within the current source file.", u"In scope: Source, File, Project. (Note: Other objects will enter/exit scope at different stages of the parsing process.)"},
    { 5, u"Component",            u"Component",      6, 4, u"when an OCX component definition line is encountered in the current source file.", u"In scope: Component, Source, File, Project."},
    { 6, u"begin Layout",         u"Event",          7, 4, u"prior to the layout section (if any) of the current source file. Layout sections are processed for the following Visual Basic file types: Designer, Form, Property Page, User Control, User Document.", u"In scope: Layout, LayoutProperties, Source, File, Project."},
    { 7, u"Control",              u"Control",        8, 5, u"for each 'Control' definition encountered within the layout section.", u"In scope: Control, ControlProperties, Layout, LayoutProperties, Source, File, Project."},
    { 8, u"end Layout",           u"Event",          9, 4, u"at the end of the layout section (if any) of the current source file.", u"In scope: Layout, LayoutProperties, Source, File, Project."},
    { 9, u"begin Declarations",   u"Event",         10, 4, u"at the start of the declarations section of the current source file.", u"In scope: Source, File, Project."},
    {10, u"Declaration",          u"Event",         11, 5, u"for each source line statement in the declarations section.", u"In scope: Source, File, Project."},
    {11, u"Const",                u"Const",         12, 6, u"when a module-level 'Const' declaration is encountered.", u"In scope: Const, Source, File, Project."},
    {12, u"Declare",              u"Declare",       13, 6, u"when a 'Declare' statement is encountered.", u"In scope: Declare, Source, File, Project."},
    {13, u"Argument (Declare)",   u"Argument",      14, 7, u"for each argument (if any) in a 'Declare' statement.", u"In scope: Argument, Declare, Source, File, Project."},
    {14, u"begin Enum",           u"Event",         15, 6, u"when the start of an 'Enum' declaration is encountered.", u"In scope: Enum, Source, File, Project."},
    {15, u"Enum <body>",          u"Enum",          16, 7, u"for each source line statement within an 'Enum' declaration.", u"In scope: Enum, Source, File, Project."},
    {16, u"Enum element",         u"EnumItem",      17, 8, u"for each enumeration defined by an 'Enum' declaration.", u"In scope: EnumElement, Enum, Source, File, Project."},
    {17, u"end Enum",             u"Event",         18, 6, u"when the 'End Enum' of an 'Enum' declaration is encountered.", u"In scope: Enum, Source, File, Project."},
    {18, u"Event",                u"WithEvents",    19, 6, u"when an 'Event' statement is encountered.", u"In scope: Event, Source, File, Project."},
    {19, u"Argument (Event)",     u"Argument",      20, 7, u"for each argument (if any) in an 'Event' statement.", u"In scope: Argument, Event, Source, File, Project."},
    {20, u"Implements",           u"Implements",    21, 6, u"when an 'Implements' statement is encountered.", u"In scope: Implements, Source, File, Project."},
    {21, u"begin Type",           u"Event",         22, 6, u"when the start of a 'Type' declaration is encountered.", u"In scope: Type, Source, File, Project."},
    {22, u"Type <body>",          u"Type",          23, 7, u"for each source line statement within a 'Type' declaration.", u"In scope: Type, Source, File, Project."},
    {23, u"Type element",         u"TypeItem",      24, 8, u"for each element defined by a 'Type' declaration.", u"In scope: TypeElement, Type, Source, File, Project."},
    {24, u"end Type",             u"Event",         25, 6, u"when the 'End Type' of a 'Type' declaration is encountered.", u"In scope: Type, Source, File, Project."},
    {25, u"Variable",             u"Variable",      26, 6, u"when a module-level variable declaration is encountered.", u"In scope: Variable, Source, File, Project."},
    {26, u"Reference",            u"Reference",      2, 1, u"for each library reference encountered within the project file.", u"In scope: Reference, Project."},
    {27, u"end Declarations",     u"Event",         27, 4, u"when the end of the declarations section is reached for the current source file.", u"In scope: Source, File, Project."},
    {28, u"begin Procedure",      u"Event",         28, 4, u"when the start of a 'Sub', 'Function' or 'Property' declaration is encountered.", u"In scope: Procedure, Source, File, Project."},
    {29, u"Argument (Procedure)", u"Argument",      29, 5, u"for each argument (if any) in a procedure declaration.", u"In scope: Argument, Procedure, Source, File, Project."},
    {30, u"Procedure <body>",     u"ProcedureBody", 30, 5, u"for each source line statement within a procedure.", u"In scope: Procedure, Source, File, Project."},
    {31, u"Const (local)",        u"LocalConst",    31, 6, u"when a local 'Const' declaration is encountered within a procedure.", u"In scope: Const, Procedure, Source, File, Project."},
    {32, u"Line Label",           u"LineLabel",     33, 6, u"when a line label is encountered within a procedure.", u"In scope: LineLabel, Procedure, Source, File, Project."},
    {33, u"Variable (local)",     u"LocalVariable", 32, 6, u"when a local variable declaration is encountered within a procedure.", u"In scope: Variable, Procedure, Source, File, Project."},
    {34, u"end Procedure",        u"Event",         34, 4, u"when the 'End Sub', 'End Function' or 'End Property' of a procedure declaration is encountered.", u"In scope: Procedure, Source, File, Project."},
    {35, u"end File",             u"Event",         35, 2, u"when the end of the current source file is reached.", u"In scope: File, Project."},
    {36, u"end Source Files",     u"Event",         36, 1, u"when all source files for the current project have been reviewed.", u"In scope: Project."},
    {37, u"end Project",          u"Event",         37, 0, u"at the end of the review of the current project.", u"In scope: Project."},
};

// ID, indent.
constexpr EndEventRow endEventTable[] = {
    {37, 0},
    {36, 1},
    {35, 2},
    { 8, 3},
    {27, 3},
    {17, 4},
    {24, 4},
    {34, 3},
};
// clang-format on

} // namespace

std::span<const EventRow> events()
{
    return eventTable;
}

std::span<const EndEventRow> endEvents()
{
    return endEventTable;
}

const EventRow *findEvent(qint32 id)
{
    const auto it = std::find_if(std::begin(eventTable),
                                 std::end(eventTable),
                                 [id](const EventRow &row) { return row.id == id; });
    return it == std::end(eventTable) ? nullptr : it;
}

} // namespace ParserEventCatalogue
