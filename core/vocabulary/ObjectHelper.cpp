#include "vocabulary/ObjectHelper.h"

#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/LogFile.h"
#include "platform/TextUtils.h"
#include "vocabulary/ObjectListType.h"

#include <algorithm>
#include <initializer_list>

namespace {

constexpr char moduleName[] = "ObjectHelper";
constexpr qint16 objectCount = 49;
// The MDI form kinds (47 to 49) are offered the file properties, yet have no descriptions; the
// picker shows them with an empty text, and that gap stays.
constexpr qint32 lastDescribedObject = 46;

void logEvent(const QString &message, const char *function)
{
    if (gobjLogFile)
        gobjLogFile->LogEvent(
            message, QString::fromLatin1(function), QString::fromLatin1(moduleName));
}

// The text, or an empty string logged as an unknown object when the table has none.
QString objectLookUp(qint32 id, QStringView text, const char *function)
{
    if (text.isNull()) {
        logEvent(QStringLiteral("Unknown Object Type = ") + QString::number(id), function);
        return {};
    }
    return text.toString();
}

QStringView objectColumn(qint32 id, QStringView ObjectCatalogue::ObjectRow::*column)
{
    const auto *row = ObjectCatalogue::findObject(id);
    return row ? row->*column : QStringView();
}

bool inList(ObjectListType type, std::initializer_list<ObjectListType> types)
{
    return std::find(types.begin(), types.end(), type) != types.end();
}

} // namespace

void ObjectHelper::GetObjectList(ObjectListType listType, QStringList &names, QList<qint32> &ids)
{
    guardedVoid("GetObjectList", moduleName, [&] {
        auto add = [&](std::initializer_list<qint32> objectIds) {
            for (const qint32 id : objectIds) {
                names << ObjectName(id);
                ids << id;
            }
        };
        using enum ObjectListType;
        add({12, 17, 9, 24, 1, 5, 7, 10, 11, 15, 25, 28});
        if (inList(listType, {Everything, CodingConvention, BaseAndImplements}))
            add({14});
        if (inList(listType, {Everything, CodingConvention, NamingConvention}))
            add({6, 18});
        if (inList(listType, {Everything, CodingConvention}))
            add({4, 21, 23, 2, 8, 3});
        if (listType == Everything)
            add({16});
    });
}

void ObjectHelper::GetPropertyList(ObjectListType listType,
                                   qint32 objectId,
                                   QStringList &names,
                                   QList<qint32> &ids)
{
    guardedVoid("GetPropertyList", moduleName, [&] {
        // Objects 3 and 8 have no set: their properties are those of the reviewed form or control.
        const auto *set = ObjectCatalogue::findPropertySet(objectId);
        if (!set)
            return;
        for (const auto &row : set->rows) {
            if (listType == ObjectListType::NamingConvention && !set->offeredToNaming(row))
                continue;
            names << PropertyName(row.id);
            ids << row.id;
        }
    });
}

QString ObjectHelper::ObjectPropertyDescription(qint32 objectId, qint32 propertyId)
{
    const auto *row = objectId <= lastDescribedObject
                          ? ObjectCatalogue::findProperty(objectId, propertyId)
                          : nullptr;
    if (!row) {
        logEvent(QStringLiteral("Unknown Object/Property Object=") + QString::number(objectId)
                     + QStringLiteral(" Property=") + QString::number(propertyId),
                 "ObjectPropertyDescription");
        return {};
    }
    return row->declaration.toString() + QStringLiteral("\r\n") + row->description.toString();
}

qint16 ObjectHelper::NumObjects()
{
    return objectCount;
}

QString ObjectHelper::ObjectName(qint32 id)
{
    return objectLookUp(id, objectColumn(id, &ObjectCatalogue::ObjectRow::name), "ObjectName");
}

QString ObjectHelper::PropertyName(qint32 id)
{
    const QStringView name = ObjectCatalogue::propertyName(id);
    if (name.isNull()) {
        logEvent(QStringLiteral("Unknown Property Type = ") + QString::number(id), "PropertyName");
        return {};
    }
    return name.toString();
}

QString ObjectHelper::ObjectDescription(qint32 id)
{
    return objectLookUp(id, ObjectCatalogue::objectDescription(id), "ObjectDescription");
}

QString ObjectHelper::ObjectIcon(qint32 id)
{
    return objectLookUp(id, objectColumn(id, &ObjectCatalogue::ObjectRow::icon), "ObjectIcon");
}

QString ObjectHelper::PropertyIcon(qint32 id)
{
    // The pictures follow these id ranges exactly; some counts nearby keep the plain picture.
    switch (id) {
    case 117:
        return QStringLiteral("ControlTag");
    case 118:
        return QStringLiteral("ScopeTag");
    case 45:
        return QStringLiteral("DataTypeTag");
    }
    const bool statistic = id == 14 || (id >= 105 && id <= 109) || id == 113
                           || (id >= 126 && id <= 145) || id == 147;
    return statistic ? QStringLiteral("Statistic") : QStringLiteral("Property");
}

QString ObjectHelper::ObjectKey(qint32 id)
{
    return QString::number(id) + QStringLiteral("Key");
}

QString ObjectHelper::ObjectText(qint32 id)
{
    return objectLookUp(id, objectColumn(id, &ObjectCatalogue::ObjectRow::text), "ObjectText");
}

QString ObjectHelper::ObjectTreeIcon(qint32 id)
{
    return objectLookUp(
        id, objectColumn(id, &ObjectCatalogue::ObjectRow::treeIcon), "ObjectTreeIcon");
}

bool ObjectHelper::ObjectHasWorkfields(qint32 id)
{
    const auto *row = ObjectCatalogue::findObject(id);
    return row ? row->hasWorkfields : true;
}

qint32 ObjectHelper::ObjectIDFromName(const QString &name)
{
    for (const auto &row : ObjectCatalogue::objects()) {
        if (Text::same(row.name.toString(), name))
            return row.id;
    }
    return 0;
}

qint32 ObjectHelper::PropertyIDFromName(const QString &name)
{
    for (qint32 id = ObjectCatalogue::FirstPropertyID; id <= ObjectCatalogue::LastPropertyID;
         ++id) {
        const QStringView known = ObjectCatalogue::propertyName(id);
        if (!known.isNull() && Text::same(known.toString(), name))
            return id;
    }
    return 0;
}

std::optional<PropertyValueType> ObjectHelper::ObjectPropertyType(qint32 objectId,
                                                                  qint32 propertyId)
{
    const auto *row = ObjectCatalogue::findProperty(objectId, propertyId);
    if (!row)
        return std::nullopt;
    return row->valueType();
}
