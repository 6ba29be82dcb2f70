#pragma once

#include "vocabulary/ObjectCatalogue.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

enum class ObjectListType;

// The catalogue's answers for the program: names, texts, icons, help, and which objects and
// properties a context may offer. Holds no state. The look-ups of texts log an unknown id and
// answer an empty string, so that a view survives a bad id.
class ObjectHelper
{
public:
    // Both lists append, in step: names to the first, ids to the second.
    static void GetObjectList(ObjectListType listType, QStringList &names, QList<qint32> &ids);
    static void GetPropertyList(ObjectListType listType,
                                qint32 objectId,
                                QStringList &names,
                                QList<qint32> &ids);
    // The declaration, CR LF, the description.
    static QString ObjectPropertyDescription(qint32 objectId, qint32 propertyId);
    static qint16 NumObjects();
    static QString ObjectName(qint32 id);
    static QString PropertyName(qint32 id);
    static QString ObjectDescription(qint32 id);
    static QString ObjectIcon(qint32 id);
    // Never fails: an unknown id has the plain "Property" picture.
    static QString PropertyIcon(qint32 id);
    // No range check: any integer yields a key, the number first ("12Key").
    static QString ObjectKey(qint32 id);
    static QString ObjectText(qint32 id);
    static QString ObjectTreeIcon(qint32 id);
    // True for an id outside the table.
    static bool ObjectHasWorkfields(qint32 id);

    // Look-ups by name, ignoring case, for readers of conditions and macro fields; they don't log
    // and give 0 for an unknown name.
    static qint32 ObjectIDFromName(const QString &name);
    static qint32 PropertyIDFromName(const QString &name);
    // The type an object declares a property with; none when the object doesn't list it.
    static std::optional<PropertyValueType> ObjectPropertyType(qint32 objectId, qint32 propertyId);
};
