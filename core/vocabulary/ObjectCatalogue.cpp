#include "vocabulary/ObjectCatalogue.h"

#include <algorithm>

namespace ObjectCatalogue {

namespace {

// clang-format off
constexpr QStringView none;

// ID, name, text, tree icon, icon, has workfields.
constexpr ObjectRow objectTable[] = {
    { 1, u"Argument",                           u"Argument",                           u"Argument",      u"Argument",         true},
    { 2, u"Layout",                             none,                                  none,             u"Layout",           true},
    { 3, u"ControlProperties",                  none,                                  none,             u"Properties",       false},
    { 4, u"Component",                          none,                                  none,             u"Component",        true},
    { 5, u"Const",                              u"Const",                              u"Const",         u"Const",            true},
    { 6, u"Control",                            u"Control",                            u"Control",       u"Control",          true},
    { 7, u"Declare",                            u"Declare",                            u"Declare",       u"Declare",          true},
    { 8, u"LayoutProperties",                   none,                                  none,             u"Properties",       false},
    { 9, u"Enum",                               u"Enum",                               u"Enum",          u"Enum",             true},
    {10, u"EnumElement",                        u"Enum Element",                       u"EnumItem",      u"EnumElement",      true},
    {11, u"Event",                              u"Event",                              u"Event",         u"Event",            true},
    {12, u"File",                               u"File",                               u"Module",        u"Module",           true},
    {13, u"Argument (Declare)",                 u"Argument (Declare)",                 u"Argument",      none,                true},
    {14, u"Implements",                         none,                                  none,             u"Implements",       true},
    {15, u"LineLabel",                          u"Line Label",                         u"LineLabel",     u"LineLabel",        true},
    {16, u"NamingConvention",                   none,                                  none,             u"NamingConvention", false},
    {17, u"Procedure",                          u"Procedure",                          u"ProcedureBody", u"Procedure",        true},
    {18, u"Project",                            u"Project",                            u"Project",       u"Project",          true},
    {19, u"Argument (Event)",                   u"Argument (Event)",                   u"Argument",      none,                true},
    {20, u"Argument (Procedure)",               u"Argument (Procedure)",               u"Argument",      none,                true},
    {21, u"Reference",                          none,                                  none,             u"Reference",        true},
    {22, u"Const (Public)",                     u"Const (Public)",                     u"Const",         none,                true},
    {23, u"Source",                             none,                                  none,             u"Source",           false},
    {24, u"Type",                               u"Type",                               u"Type",          u"Type",             true},
    {25, u"TypeElement",                        u"Type Element",                       u"TypeItem",      u"TypeElement",      true},
    {26, u"Const (Private)",                    u"Const (Private)",                    u"Const",         none,                true},
    {27, u"Const (Local)",                      u"Const (Local)",                      u"Const",         none,                true},
    {28, u"Variable",                           u"Variable",                           u"Variable",      u"Variable",         true},
    {29, u"Variable (Public)",                  u"Variable (Public)",                  u"Variable",      none,                true},
    {30, u"Variable (Private)",                 u"Variable (Private)",                 u"Variable",      none,                true},
    {31, u"Variable (Local)",                   u"Variable (Local)",                   u"Variable",      none,                true},
    {32, u"Variable (Local Static)",            u"Variable (Local Static)",            u"Variable",      none,                true},
    {33, u"Variable (WithEvents)",              u"Variable (WithEvents)",              u"WithEvents",    none,                true},
    {34, u"Variable (Public WithEvents)",       u"Variable (Public WithEvents)",       u"WithEvents",    none,                true},
    {35, u"Variable (Private WithEvents)",      u"Variable (Private WithEvents)",      u"WithEvents",    none,                true},
    {36, u"File (Form)",                        u"Form",                               u"Form",          none,                true},
    {37, u"File (Module)",                      u"Module",                             u"Module",        none,                true},
    {38, u"File (Class)",                       u"Class",                              u"Class",         none,                true},
    {39, u"File (Designer)",                    u"Designer",                           u"Designer",      none,                true},
    {40, u"File (Property Page)",               u"Property Page",                      u"PropertyPage",  none,                true},
    {41, u"File (User Control)",                u"User Control",                       u"UserControl",   none,                true},
    {42, u"File (User Document)",               u"User Document",                      u"UserDocument",  none,                true},
    {43, u"Variable (No WithEvents)",           u"Variable (No WithEvents)",           u"Variable",      none,                true},
    {44, u"Procedure (Sub)",                    u"Procedure (Sub)",                    u"ProcedureBody", none,                true},
    {45, u"Procedure (Property Get/Let/Set)",   u"Procedure (Property Get/Let/Set)",   u"ProcedureBody", none,                true},
    {46, u"Procedure (Function)",               u"Procedure (Function)",               u"ProcedureBody", none,                true},
    {47, u"File (MDI Form)",                    u"File (MDI Form)",                    u"Form",          none,                true},
    {48, u"File (MDI Child Form)",              u"File (MDI Child Form)",              u"Form",          none,                true},
    {49, u"File (Non MDI Form)",                u"File (Non MDI Form)",                u"Form",          none,                true},
};

// Object ids, text.
constexpr DescriptionRow descriptionTable[] = {
    {{1, 13, 19, 20}, u"Argument: A collection of properties relating to an individual argument defined within a 'Sub', 'Function', 'Property Get/Let/Set', 'Event' declaration or 'Declare' statement."},
    {{2}, u"Layout: A collection of properties relating to the source file layout definition."},
    {{3}, u"ControlProperties: The design-time properties belonging to the current control defined within the layout section."},
    {{4}, u"Component: A collection of properties relating to an ActiveX component used by the project."},
    {{5, 22, 26, 27}, u"Const: A collection of properties relating to a 'Const' declaration."},
    {{6}, u"Control: A collection of standard properties relating to an individual control defined within the layout section."},
    {{7}, u"Declare: A collection of properties relating to a 'Declare' statement."},
    {{8}, u"LayoutProperties: The design-time properties belonging to the layout object defined within the layout section."},
    {{9}, u"Enum: A collection of properties relating to an 'Enum' declaration."},
    {{10}, u"EnumElement: A collection of properties relating to an individual enumeration within an 'Enum' declaration."},
    {{11}, u"Event: A collection of properties relating to an 'Event' statement."},
    {{12}, u"File: A collection of properties and statistics relating to the Visual Basic source file currently being reviewed within the project."},
    {{14}, u"Implements: A collection of properties relating to an 'Implements' statement."},
    {{15}, u"LineLabel: A collection of properties relating to a line label declaration."},
    {{16}, u"NamingConvention: A collection of properties to permit more meaningful violation advice documentation during the enforcement of naming conventions."},
    {{17}, u"Procedure: A collection of properties relating to the current procedure declaration."},
    {{18}, u"Project: A collection of properties and statistics relating to the Visual Basic project currently being reviewed. Allows access to many of the property values held in the VBP file and modfied by the Project-><project> Properties dialog."},
    {{21}, u"Reference: A collection of properties relating to a type library reference used by the project."},
    {{23}, u"Source: A collection of properties relating to the current source line for the current source file."},
    {{24}, u"Type: A collection of properties relating to a 'Type' declaration."},
    {{25}, u"TypeElement: A collection of properties relating to an individual member within a 'Type' declaration."},
    {{28, 29, 30, 31, 32, 43}, u"Variable: A collection of properties relating to a variable declaration."},
    {{33, 34, 35}, u"WithEvents Variable: A collection of properties relating to a WithEvents variable declaration."},
    {{38}, u"File (Class): Add naming conventions applicable to class files."},
};

// ID, declaration, description; N marks what a naming convention is offered where the set
// chooses by rows.
constexpr bool N = true;

// Argument: objects 1, 13, 19, 20
constexpr PropertyRow argumentProperties[] = {
    {  9, u"DataType As String",      u"The data type of the argument."},
    { 12, u"DefaultValue As String",  u"The default value specified for the argument ('' if not specified)."},
    { 24, u"IsArray As Boolean",      u"True if the argument is an array, False if not."},
    {146, u"IsParamArray As Boolean", u"True if the argument is declared as a ParamArray, False if not."},
    { 30, u"IsOptional As Boolean",   u"True if the argument is declared as optional, False if not."},
    { 39, u"ParentObject As String",  u"The parent object type to which the argument belongs: 'Procedure', 'Declare' or 'Event'."},
    { 40, u"PassBy As String",        u"The calling convention for the argument: 'ByVal', 'ByRef' or '' if not specified."},
    {115, u"Index As Long",           u"The position (1-based) of the argument within the argument list."},
    { 37, u"Name As String",          u"The name of the argument."},
};

// Layout: objects 2
constexpr PropertyRow layoutProperties[] = {
    {102, u"ControlCount As Long",   u"The number of controls contained in the layout."},
    { 29, u"IsMDIParent As Boolean", u"True if the layout object is an MDI parent form, False if not."},
    { 28, u"IsMDIChild As Boolean",  u"True if the layout object is an MDI child form, False if not."},
    { 37, u"Name As String",         u"The name of the layout object."},
};

// Component: objects 4
constexpr PropertyRow componentProperties[] = {
    {  5, u"AuthorisedVersions As String", u"If an authorised component, the list of authorised versions for the component, each separated by ';'."},
    { 16, u"Filename As String",           u"The filename of the ActiveX component (excluding path)."},
    { 19, u"GUID As String",               u"The component type library GUID."},
    { 25, u"IsAuthorised As Boolean",      u"True if the component is listed as an authorised component and version, False if not."},
    { 50, u"Version As String",            u"The component type library version."},
    { 17, u"DesignTime As Boolean",        u"True if the component is a design time reference to a Visual Basic project, False if not."},
};

// Const: objects 5, 22, 26, 27
constexpr PropertyRow constProperties[] = {
    {  9, u"DataType As String",     u"The data type of the constant."},
    { 46, u"Scope As String",        u"The declared scope of the constant declaration: 'Public' (or 'Global'), 'Private' or '' if not specified (or local)."},
    { 49, u"Value As String",        u"The value of the constant."},
    {110, u"IsLocal As Boolean",     u"True if the constant has local scope, False if not."},
    { 97, u"IsMultiItem As Boolean", u"True if the constant declaration defines multiple constants, False if not."},
    { 37, u"Name As String",         u"The name of the constant."},
};

// Control: objects 6
constexpr PropertyRow controlProperties[] = {
    {  6, u"Class As String",     u"The class name of the control."},
    { 33, u"Library As String",   u"The name of the component library containing the control."},
    {104, u"ProgID As String",    u"The programmatic identifier of the control."},
    {103, u"Container As String", u"The name of the object containing the control."},
    {115, u"Index As String",     u"The control array index value for the control ('' if not set)."},
    { 37, u"Name As String",      u"The name of the control."},
};

// Declare: objects 7
constexpr PropertyRow declareProperties[] = {
    {  1, u"Alias As String",         u"The entry point name (or #<ordinal>) of the external procedure."},
    {  2, u"ArgumentCount As Long",   u"The number of arguments declared for the external procedure."},
    {  3, u"ArgumentList As String",  u"The list of arguments declared for the external procedure."},
    {  9, u"DataType As String",      u"The external procedure (Function) return data type."},
    { 32, u"Lib As String",           u"The name of the DLL or code resource that contains the declared external procedure."},
    { 43, u"ProcedureType As String", u"The external procedure declaration type: 'Sub' or 'Function'."},
    { 46, u"Scope As String",         u"The declared scope of the external procedure: 'Public', 'Private' or '' if not specified."},
    { 37, u"Name As String",          u"The name of the external procedure."},
};

// Enum: objects 9
constexpr PropertyRow enumProperties[] = {
    { 14, u"ElementCount As Long",       u"The number of enumerations declared in the 'Enum' definition."},
    { 46, u"Scope As String",            u"The declared scope of the 'Enum' definition: 'Public', 'Private' or '' if not specified."},
    { 37, u"Name As String",             u"The name of the enum definition."},
    {105, u"TotalLineCount As Long",     u"The total number of source lines contained in the 'Enum' definition. (TotalLineCount = CodeLineCount + BlankLineCount + CommentLineCount)"},
    {106, u"BlankLineCount As Long",     u"The number of blank source lines contained in the 'Enum' definition."},
    {107, u"CodeLineCount As Long",      u"The number of code source lines (including code lines containing in-line comments) contained in the 'Enum' definition."},
    {108, u"CommentLineCount As Long",   u"The number of comment only source lines contained in the 'Enum' definition."},
    {109, u"InLineCommentCount As Long", u"The number of code source lines containing in-line comments contained in the 'Enum' definition."},
};

// EnumElement: objects 10
constexpr PropertyRow enumElementProperties[] = {
    { 20, u"HasValue As Boolean", u"True if the enumeration element has a declared value, False if not."},
    { 49, u"Value As String",     u"The value of the enumeration element ('' if not specified)."},
    { 37, u"Name As String",      u"The name of the enumeration element."},
};

// Event: objects 11
constexpr PropertyRow eventProperties[] = {
    {  2, u"ArgumentCount As Long",  u"The number of arguments declared for the event."},
    {  3, u"ArgumentList As String", u"The list of arguments declared for the event."},
    { 46, u"Scope As String",        u"The declared scope of the event declaration: 'Public' or '' if not specified."},
    { 37, u"Name As String",         u"The name of the event."},
};

// File: objects 12, 36 to 42, 47 to 49
constexpr PropertyRow fileProperties[] = {
    { 48, u"Type As String",               u"The source file type: 'Form', 'MDIForm', 'Class', 'Module', 'Designer', 'PropertyPage', 'UserDocument' or 'UserControl'."},
    { 41, u"Path As String",               u"The source file path (includes trailing '\\')."},
    { 18, u"FullFilename As String",       u"The filename of the source file (including path)."},
    {145, u"EventCount As Long",           u"The number of 'Event' declarations contained in the source file."},
    {113, u"ComponentCount As Long",       u"The number of ActiveX components referenced by the source file."},
    {127, u"ProcedureCount As Long",       u"The number of procedures contained in the source file."},
    {134, u"AverageCyclomatic As Long",    u"The average McCabe cyclomatic complexity calculated from all procedures in the source file."},
    {147, u"MaximumCyclomatic As Long",    u"The highest individual McCabe cyclomatic complexity value calculated from all procedures in the source file."},
    {128, u"ConstCount As Long",           u"The number of module-level constants (Public and Private) declared in the source file."},
    {129, u"PublicConstCount As Long",     u"The number of Public module-level constants declared in the source file."},
    {130, u"PrivateConstCount As Long",    u"The number of Private module-level constants declared in the source file."},
    {131, u"VariableCount As Long",        u"The number of module-level variables (Public and Private) declared in the source file."},
    {132, u"PublicVariableCount As Long",  u"The number of Public module-level variables declared in the source file."},
    {133, u"PrivateVariableCount As Long", u"The number of Private module-level variables declared in the source file."},
    {135, u"ImplementsCount As Long",      u"The number of 'Implements' statements contained in the source file."},
    {142, u"EnumCount As Long",            u"The number of 'Enum' definitions (Public and Private) declared in the source file."},
    {143, u"PublicEnumCount As Long",      u"The number of Public 'Enum' definitions declared in the source file."},
    {144, u"PrivateEnumCount As Long",     u"The number of Private 'Enum' definitions declared in the source file."},
    {139, u"TypeCount As Long",            u"The number of 'Type' definitions (Public and Private) declared in the source file."},
    {140, u"PublicTypeCount As Long",      u"The number of Public 'Type' definitions declared in the source file."},
    {141, u"PrivateTypeCount As Long",     u"The number of Private 'Type' definitions declared in the source file."},
    {136, u"DeclareCount As Long",         u"The number of 'Declare' statements (Public and Private) declared in the source file."},
    {137, u"PublicDeclareCount As Long",   u"The number of Public 'Declare' statements declared in the source file."},
    {138, u"PrivateDeclareCount As Long",  u"The number of Private 'Declare' statements declared in the source file."},
    {149, u"HeaderComment As String",      u"The comment block, if any, found at the head of the source file."},
    { 15, u"Extension As String",          u"The extension of the source file (including '.').", N},
    { 16, u"Filename As String",           u"The filename of the source file (excluding path).", N},
    { 37, u"Name As String",               u"The Visual Basic Name attribute for this source file.", N},
    {105, u"TotalLineCount As Long",       u"The total number of source lines contained in the source file. (TotalLineCount = CodeLineCount + BlankLineCount + CommentLineCount)"},
    {106, u"BlankLineCount As Long",       u"The number of blank source lines contained in the source file."},
    {107, u"CodeLineCount As Long",        u"The number of code source lines (including code lines containing in-line comments) contained in the source file."},
    {108, u"CommentLineCount As Long",     u"The number of comment only source lines contained in the source file."},
    {109, u"InLineCommentCount As Long",   u"The number of code source lines containing in-line comments contained in the source file."},
};

// Implements: objects 14
constexpr PropertyRow implementsProperties[] = {
    { 23, u"Interface As String", u"The name of the interface being implemented."},
    { 33, u"Library As String",   u"The library name to which the interface definition belongs."},
};

// LineLabel: objects 15
constexpr PropertyRow lineLabelProperties[] = {
    { 37, u"Name As String", u"The name of the line label."},
};

// NamingConvention: objects 16
constexpr PropertyRow namingConventionProperties[] = {
    {148, u"ArrayTag As String",    u"The array tag value computed during the processing of a naming convention."},
    { 45, u"DataTypeTag As String", u"The data type tag value computed during the processing of a naming convention."},
    {117, u"ControlTag As String",  u"The control tag value computed during the processing of a naming convention."},
    {118, u"ScopeTag As String",    u"The scope tag value computed during the processing of a naming convention."},
};

// Procedure: objects 17, 44, 45, 46
constexpr PropertyRow procedureProperties[] = {
    {  2, u"ArgumentCount As Long",        u"The number of arguments declared for the procedure."},
    {  3, u"ArgumentList As String",       u"The list of arguments declared for the procedure."},
    {126, u"CyclomaticComplexity As Long", u"The McCabe cyclomatic complexity calculated for the procedure."},
    {  9, u"DataType As String",           u"The procedure (Function or Property Get) return data type."},
    { 31, u"IsStatic As Boolean",          u"True if the procedure is declared 'Static', False if not."},
    { 43, u"ProcedureType As String",      u"The procedure declaration type: 'Sub', 'Function', 'Property Get', 'Property Let' or 'Property Set'."},
    { 46, u"Scope As String",              u"The declared scope of the procedure: 'Public', 'Private', 'Friend' or '' if not specified."},
    { 99, u"IsEventProcedure As Boolean",  u"True if the procedure is an event procedure, False if not."},
    {128, u"ConstCount As Long",           u"The number of local constants declared in the procedure."},
    {131, u"VariableCount As Long",        u"The number of local variables declared in the procedure."},
    { 37, u"Name As String",               u"The name of the procedure."},
    {105, u"TotalLineCount As Long",       u"The total number of source lines contained in the procedure. (TotalLineCount = CodeLineCount + BlankLineCount + CommentLineCount)"},
    {106, u"BlankLineCount As Long",       u"The number of blank source lines contained in the procedure."},
    {107, u"CodeLineCount As Long",        u"The number of code source lines (including code lines containing in-line comments) contained in the procedure."},
    {108, u"CommentLineCount As Long",     u"The number of comment only source lines contained in the procedure."},
    {109, u"InLineCommentCount As Long",   u"The number of code source lines containing in-line comments contained in the procedure."},
};

// Project: objects 18
constexpr PropertyRow projectProperties[] = {
    { 48, u"Type As String",                    u"The project compiled component type ('Exe', 'OleDll', 'OleExe', 'Control')."},
    { 57, u"HelpContextID As String",           u"The project help context ID."},
    {  8, u"ThreadingModel As String",          u"Single threaded = '0', apartment threaded = ''."},
    { 81, u"ThreadPerObject As String",         u"Thread per object = '-1', thread pool = '0'."},
    { 82, u"MaxNumberOfThreads As String",      u"The maximum number of threads created for the thread pool."},
    { 66, u"AutoIncrementVer As String",        u"The version number auto increment setting ('0' if unchecked, '1' if checked)."},
    { 74, u"OverflowCheck As String",           u"Remove integer overflow checks ('0' if unchecked, '-1' if checked)."},
    { 75, u"FlPointCheck As String",            u"Remove floating point error checks ('0' if unchecked, '-1' if checked)."},
    { 73, u"BoundsCheck As String",             u"Remove array bounds checks ('0' if unchecked, '-1' if checked)."},
    { 76, u"FDIVCheck As String",               u"Remove safe Pentium FDIV checks ('0' if unchecked, '-1' if checked)."},
    { 77, u"UnroundedFP As String",             u"Allow unrounded floating point operations ('0' if unchecked, '-1' if checked)."},
    { 79, u"Unattended As String",              u"Unattended execution ('0' if unchecked, '-1' if checked)."},
    { 72, u"NoAliasing As String",              u"Assume no aliasing ('0' if unchecked, '-1' if checked)."},
    { 58, u"NoControlUpgrade As String",        u"Upgrade ActiveX controls ('1' if unchecked, '' if checked)."},
    { 69, u"OptimizationType As String",        u"Optimise for fast code = '0', optimise for small code = '1', no optimisation = '2'."},
    { 68, u"CompilationType As String",         u"Compile to P-Code = '-1', native code = '0'."},
    { 78, u"StartMode As String",               u"Start mode ('0' = Standalone, '1' = ActiveX component)."},
    { 35, u"Startup As String",                 u"The project startup object."},
    { 80, u"Retained As String",                u"Retain project in memory ('0' if unchecked, '1' if checked)."},
    { 71, u"CodeViewDebugInfo As String",       u"Create symbolic debug info ('0' if unchecked, '-1' if checked)."},
    { 67, u"ServerSupportFiles As String",      u"Remote server files ('0' if unchecked, '1' if checked)."},
    { 59, u"Command32 As String",               u"The command-line arguments that Visual Basic sends to the project when you choose Start from the Run menu."},
    { 60, u"CompatibleMode As String",          u"Component version compatibility (No compatibility = '0', Project compatibility = '1', Binary compatibility = '2')."},
    { 62, u"VersionCompatible32 As String",     u"Set to '1' if component version set to binary compatible, '' if not."},
    { 70, u"FavorPentiumPro As String",         u"Favour Pentium Pro ('0' if unchecked, '-1' if checked)."},
    { 41, u"Path As String",                    u"The project file path (includes trailing '\\')."},
    { 18, u"FullFilename As String",            u"The filename of the project file (including path)."},
    { 85, u"DllBaseAddress As String",          u"The project DLL base memory address."},
    { 84, u"CondComp As String",                u"The constant declarations used for conditional compilation."},
    { 86, u"RemoveUnusedControlInfo As String", u"Remove information about unused ActiveX controls ('' if checked, '0' if unchecked)."},
    { 87, u"IconForm As String",                u"The application icon."},
    { 88, u"UseExistingBrowser As String",      u"Use existing browser ('0' if unchecked, '' if checked)."},
    { 89, u"RequireLicenseKey As String",       u"Require license key ('' if unchecked, '1' if checked)."},
    { 90, u"DebugStartupOption As String",      u"Wait for components to start = '0', start component = '1', start program = '2', start URL = '3'."},
    { 91, u"DebugStartupComponent As String",   u"Component, program or URL to start."},
    { 63, u"MajorVer As String",                u"Major version number of the project; 0 – 9999."},
    { 64, u"MinorVer As String",                u"Minor version number of the project; 0 – 9999."},
    { 65, u"RevisionVer As String",             u"Revision version number of the project; 0 – 9999."},
    {113, u"ComponentCount As Long",            u"The number of ActiveX components referenced by the project."},
    {112, u"SourceFileCount As Long",           u"The number of source files (including the project file) in the project."},
    {114, u"ReferenceCount As Long",            u"The number of ActiveX libraries referenced by the project."},
    {111, u"RelatedDocCount As Long",           u"The number of related documents attached to the project."},
    {119, u"FormFileCount As Long",             u"The number of form files in the project."},
    {120, u"ClassFileCount As Long",            u"The number of class files in the project."},
    {121, u"DesignerFileCount As Long",         u"The number of designer files in the project."},
    {122, u"ModuleFileCount As Long",           u"The number of code module files in the project."},
    {124, u"UserControlFileCount As Long",      u"The number of user control files in the project."},
    {125, u"UserDocumentFileCount As Long",     u"The number of user document files in the project."},
    {123, u"PropertyPageFileCount As Long",     u"The number of property page files in the project."},
    { 61, u"CompatibleExe32 As String",         u"Binary compatible component (including path).", N},
    { 13, u"Description As String",             u"The project description (as shown in the Project->References dialog for ActiveX components).", N},
    {  7, u"ExeName32 As String",               u"The filename of the compiled project component (excluding path).", N},
    { 21, u"HelpFile As String",                u"The project help file (including path if present).", N},
    { 16, u"Filename As String",                u"The filename of the project file (excluding path).", N},
    { 37, u"Name As String",                    u"The Visual Basic Name attribute for this project.", N},
    { 47, u"Title As String",                   u"The application title.", N},
    { 51, u"VersionComments As String",         u"The version resource comments.", N},
    { 52, u"VersionCompanyName As String",      u"The version resource company name.", N},
    { 44, u"VersionProductName As String",      u"The version resource product name.", N},
    { 53, u"VersionFileDescription As String",  u"The version resource file description.", N},
    { 54, u"VersionLegalCopyright As String",   u"The version resource legal copyright.", N},
    { 55, u"VersionLegalTrademarks As String",  u"The version resource legal trademarks.", N},
    { 56, u"ResFile32 As String",               u"The filename of the project resource file (if present).", N},
    { 15, u"Extension As String",               u"The extension of the project file (usually '.VBP').", N},
    {105, u"TotalLineCount As Long",            u"The total number of source lines contained in the project. (TotalLineCount = CodeLineCount + BlankLineCount + CommentLineCount)"},
    {106, u"BlankLineCount As Long",            u"The number of blank source lines contained in the project."},
    {107, u"CodeLineCount As Long",             u"The number of code source lines (including code lines containing in-line comments) contained in the project."},
    {108, u"CommentLineCount As Long",          u"The number of comment only source lines contained in the project."},
    {109, u"InLineCommentCount As Long",        u"The number of code source lines containing in-line comments contained in the project."},
};

// Reference: objects 21
constexpr PropertyRow referenceProperties[] = {
    {  5, u"AuthorisedVersions As String", u"If an authorised reference, the list of authorised versions for the reference, each separated by ';'."},
    { 13, u"Description As String",        u"The reference description. This is usually the description as displayed by the Visual Basic Project->References dialog."},
    { 19, u"GUID As String",               u"The reference type library GUID."},
    { 25, u"IsAuthorised As Boolean",      u"True if the reference is listed as an authorised reference and version, False if not."},
    { 50, u"Version As String",            u"The reference type library version."},
    { 18, u"FullFilename As String",       u"The reference filename (including path). Note: Occasionally long filenames become corrupt within the Visual Basic project file."},
    { 17, u"DesignTime As Boolean",        u"True if the reference is a design time reference to a Visual Basic project, False if not."},
};

// Source: objects 23
constexpr PropertyRow sourceProperties[] = {
    { 93, u"IsCode As Boolean",           u"True if the source line is a code line (includes code lines with in-line comments), False if not."},
    { 27, u"IsComment As Boolean",        u"True if the source line is a comment only line, False if not."},
    { 34, u"Line As String",              u"The current source line as a single line with continuation characters removed. The line may contain multiple statements separated by ':'."},
    { 92, u"StrippedLine As String",      u"The current source line stripped of any continuation characters, comments, whitespace and quoted text."},
    { 26, u"StrippedStatement As String", u"The current statement being parsed within the source line stripped of any continuation characters, comments, whitespace and quoted text."},
    { 83, u"LineNumber As Long",          u"The current source line number."},
    { 95, u"PhysicalLine As String",      u"The current source line as read from the source file (including multiple statements, lines and continuation characters)."},
    { 96, u"PhysicalLineCount As Long",   u"The number of lines contained in the physical source line."},
    { 94, u"IsMultiStatement As Boolean", u"True if the source line contains multiple Visual Basic statements (separated by ':'), False if not."},
    { 98, u"Statement As String",         u"The current statement being parsed within the source line with continuation characters removed."},
    {150, u"CommentBlock As String",      u"The comment block, if any, preceeding the current source line."},
};

// Type: objects 24
constexpr PropertyRow typeProperties[] = {
    { 14, u"ElementCount As Long",       u"The number of type elements declared in the 'Type' definition."},
    { 46, u"Scope As String",            u"The declared scope of the 'Type' definition: 'Public', 'Private' or '' if not specified."},
    { 37, u"Name As String",             u"The name of the type definition."},
    {105, u"TotalLineCount As Long",     u"The total number of source lines contained in the 'Type' definition. (TotalLineCount = CodeLineCount + BlankLineCount + CommentLineCount)"},
    {106, u"BlankLineCount As Long",     u"The number of blank source lines contained in the 'Type' definition."},
    {107, u"CodeLineCount As Long",      u"The number of code source lines (including code lines containing in-line comments) contained in the 'Type' definition."},
    {108, u"CommentLineCount As Long",   u"The number of comment only source lines contained in the 'Type' definition."},
    {109, u"InLineCommentCount As Long", u"The number of code source lines containing in-line comments contained in the 'Type' definition."},
};

// TypeElement: objects 25
constexpr PropertyRow typeElementProperties[] = {
    {  9, u"DataType As String",  u"The data type of the type element."},
    { 24, u"IsArray As Boolean",  u"True if the type element is an array, False if not."},
    {100, u"ArraySize As String", u"The specified array dimension if the type element is an array."},
    { 37, u"Name As String",      u"The name of the type element."},
};

// Variable: objects 28 to 35, 43
constexpr PropertyRow variableProperties[] = {
    {  9, u"DataType As String",      u"The data type of the variable."},
    { 24, u"IsArray As Boolean",      u"True if the variable is an array, False if not."},
    {100, u"ArraySize As String",     u"The specified array dimension(s) if the variable is an array."},
    {101, u"IsWithEvents As Boolean", u"True if the variable is declared using the 'WithEvents' keyword, False if not."},
    { 31, u"IsStatic As Boolean",     u"True if the variable is declared using the 'Static' keyword, False if not."},
    { 46, u"Scope As String",         u"The declared scope of the variable declaration: 'Public' (or 'Global'), 'Private' or '' if not specified (or local)."},
    {110, u"IsLocal As Boolean",      u"True if the variable has local scope, False if not."},
    {116, u"IsAsNew As Boolean",      u"True if the variable is declared 'As New', False if not."},
    { 97, u"IsMultiItem As Boolean",  u"True if the variable declaration defines multiple variables, False if not."},
    { 37, u"Name As String",          u"The name of the variable."},
};

// Object ids, what a naming convention is offered, properties.
constexpr PropertySet propertySetTable[] = {
    {{1, 13, 19, 20}, NamingList::NameOnly, argumentProperties},
    {{2}, NamingList::NameOnly, layoutProperties},
    {{4}, NamingList::WholeList, componentProperties},
    {{5, 22, 26, 27}, NamingList::NameOnly, constProperties},
    {{6}, NamingList::NameOnly, controlProperties},
    {{7}, NamingList::NameOnly, declareProperties},
    {{9}, NamingList::NameOnly, enumProperties},
    {{10}, NamingList::NameOnly, enumElementProperties},
    {{11}, NamingList::NameOnly, eventProperties},
    {{12, 36, 37, 38, 39, 40, 41, 42, 47, 48, 49}, NamingList::MarkedRows, fileProperties},
    {{14}, NamingList::WholeList, implementsProperties},
    {{15}, NamingList::WholeList, lineLabelProperties},
    {{16}, NamingList::WholeList, namingConventionProperties},
    {{17, 44, 45, 46}, NamingList::NameOnly, procedureProperties},
    {{18}, NamingList::MarkedRows, projectProperties},
    {{21}, NamingList::WholeList, referenceProperties},
    {{23}, NamingList::WholeList, sourceProperties},
    {{24}, NamingList::NameOnly, typeProperties},
    {{25}, NamingList::NameOnly, typeElementProperties},
    {{28, 29, 30, 31, 32, 33, 34, 35, 43}, NamingList::NameOnly, variableProperties},
};

// ID, name.
constexpr PropertyNameRow extraPropertyNameTable[] = {
    {22, u"Instancing"},
    {38, u"Optional"},
    {61, u"CompatibleEXE32"},
};
// clang-format on

// The id lists are padded with zeros, which never stand for an object.
template<std::size_t N>
bool holds(const std::array<qint32, N> &ids, qint32 objectId)
{
    return objectId != 0 && std::find(ids.begin(), ids.end(), objectId) != ids.end();
}

} // namespace

QStringView PropertyRow::name() const
{
    return declaration.left(declaration.indexOf(u' '));
}

PropertyValueType PropertyRow::valueType() const
{
    if (declaration.endsWith(u" Long"))
        return PropertyValueType::Long;
    if (declaration.endsWith(u" Boolean"))
        return PropertyValueType::Boolean;
    return PropertyValueType::String;
}

bool PropertySet::appliesTo(qint32 objectId) const
{
    return holds(objectIds, objectId);
}

bool PropertySet::offeredToNaming(const PropertyRow &row) const
{
    switch (namingList) {
    case NamingList::NameOnly:
        return row.name() == u"Name";
    case NamingList::WholeList:
        return true;
    case NamingList::MarkedRows:
        return row.marked;
    }
    return false;
}

bool DescriptionRow::appliesTo(qint32 objectId) const
{
    return holds(objectIds, objectId);
}

std::span<const ObjectRow> objects()
{
    return objectTable;
}

std::span<const DescriptionRow> objectDescriptions()
{
    return descriptionTable;
}

std::span<const PropertySet> propertySets()
{
    return propertySetTable;
}

std::span<const PropertyNameRow> extraPropertyNames()
{
    return extraPropertyNameTable;
}

const ObjectRow *findObject(qint32 id)
{
    const auto it = std::find_if(std::begin(objectTable),
                                 std::end(objectTable),
                                 [id](const ObjectRow &row) { return row.id == id; });
    return it == std::end(objectTable) ? nullptr : it;
}

const PropertySet *findPropertySet(qint32 objectId)
{
    const auto it
        = std::find_if(std::begin(propertySetTable),
                       std::end(propertySetTable),
                       [objectId](const PropertySet &set) { return set.appliesTo(objectId); });
    return it == std::end(propertySetTable) ? nullptr : it;
}

const PropertyRow *findProperty(qint32 objectId, qint32 propertyId)
{
    const PropertySet *set = findPropertySet(objectId);
    if (!set)
        return nullptr;
    const auto it
        = std::find_if(set->rows.begin(), set->rows.end(), [propertyId](const PropertyRow &row) {
              return row.id == propertyId;
          });
    return it == set->rows.end() ? nullptr : &*it;
}

QStringView objectDescription(qint32 objectId)
{
    for (const DescriptionRow &row : descriptionTable) {
        if (row.appliesTo(objectId))
            return row.text;
    }
    return {};
}

QStringView propertyName(qint32 propertyId)
{
    // A property has one name wherever it is declared, so the declarations give the names.
    static const auto names = [] {
        std::array<QStringView, LastPropertyID + 1> result{};
        for (const PropertySet &set : propertySetTable) {
            for (const PropertyRow &row : set.rows)
                result[row.id] = row.name();
        }
        for (const PropertyNameRow &row : extraPropertyNameTable)
            result[row.id] = row.name;
        return result;
    }();
    if (propertyId < FirstPropertyID || propertyId > LastPropertyID)
        return {};
    return names[propertyId];
}

} // namespace ObjectCatalogue
