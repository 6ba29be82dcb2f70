#include "preview/CatalogueObject.h"

namespace CatalogueObject {

QList<qint32> chain(qint32 id)
{
    switch (id) {
    case DeclareArgument:
    case EventArgument:
    case ProcedureArgument:
        return {id, Argument};
    case PublicConst:
    case PrivateConst:
    case LocalConst:
        return {id, Const};
    case FormFile:
    case ModuleFile:
    case ClassFile:
    case DesignerFile:
    case PropertyPageFile:
    case UserControlFile:
    case UserDocumentFile:
        return {id, File};
    case MDIFormFile:
    case MDIChildFormFile:
    case NonMDIFormFile:
        return {id, FormFile, File};
    case SubProcedure:
    case PropertyProcedure:
    case FunctionProcedure:
        return {id, Procedure};
    case PublicVariable:
    case PrivateVariable:
    case LocalVariable:
    case LocalStaticVariable:
        return {id, NoWithEventsVariable, Variable};
    case PublicWithEventsVariable:
    case PrivateWithEventsVariable:
        return {id, WithEventsVariable, Variable};
    case NoWithEventsVariable:
    case WithEventsVariable:
        return {id, Variable};
    default:
        return {id};
    }
}

} // namespace CatalogueObject
