#include "basic/QuorinExtension.h"

#include "vocabulary/ObjectCatalogue.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ParserEventCatalogue.h"

#include <QHash>

#include <algorithm>
#include <iterator>

namespace {

constexpr QuorinMember memberTable[] = {
    {u"RaiseViolation", 0, u"RaiseViolation()", u"Raises the rule's violation."},
    {u"CancelPendingViolation",
     0,
     u"CancelPendingViolation()",
     u"Cancels the rule's pending violation."},
    {u"ApplyConvention",
     0,
     u"ApplyConvention",
     u"Tells the parser that this naming convention must be applied."},
    {u"GetObjectProperty",
     2,
     u"GetObjectProperty(Object, Property)",
     u"Reads a property of a catalogue object."},
    {u"GetObjectWorkField",
     2,
     u"GetObjectWorkField(Object, Workfield)",
     u"Reads a workfield of a catalogue object."},
    {u"ParserEvent",
     0,
     u"ParserEvent()",
     u"The name of the current parser event, for comparison with an event's name."},
};

// The vocabulary's names, case-folded, built once: a script may name objects hundreds of times.
// The first id of a name wins, as in the vocabulary's own look-ups.
struct NameIndex
{
    QHash<QString, qint32> objects;
    QHash<QString, qint32> properties;
    QHash<QString, qint32> events;
};

const NameIndex &names()
{
    static const NameIndex index = [] {
        NameIndex built;
        for (const auto &row : ObjectCatalogue::objects()) {
            const QString key = row.name.toString().toCaseFolded();
            if (!built.objects.contains(key))
                built.objects.insert(key, row.id);
        }
        for (qint32 id = ObjectCatalogue::LastPropertyID; id >= ObjectCatalogue::FirstPropertyID;
             --id) {
            const QStringView name = ObjectCatalogue::propertyName(id);
            if (!name.isNull())
                built.properties.insert(name.toString().toCaseFolded(), id);
        }
        for (const auto &event : ParserEventCatalogue::events())
            built.events.insert(event.text.toString().toCaseFolded(), event.id);
        return built;
    }();
    return index;
}

qint32 lookUp(const QHash<QString, qint32> &table, const QString &name)
{
    return table.value(name.toCaseFolded(), 0);
}

QString quoted(const QString &name)
{
    return QLatin1Char('"') + name + QLatin1Char('"');
}

} // namespace

namespace QuorinExtension {

std::span<const QuorinMember> members()
{
    return memberTable;
}

const QuorinMember *findMember(QStringView name)
{
    const auto it = std::find_if(
        std::begin(memberTable), std::end(memberTable), [name](const QuorinMember &member) {
            return member.name.compare(name, Qt::CaseInsensitive) == 0;
        });
    return it == std::end(memberTable) ? nullptr : it;
}

QString memberWarning(QStringView name)
{
    if (findMember(name))
        return {};
    return QStringLiteral("Unknown Quorin member: ") + quoted(name.toString());
}

QString objectWarning(const QString &object)
{
    if (lookUp(names().objects, object) != 0)
        return {};
    return QStringLiteral("Unknown object: ") + quoted(object);
}

QString propertyWarning(const QString &object, const QString &property)
{
    const qint32 objectId = lookUp(names().objects, object);
    // ControlProperties and LayoutProperties hold the design-time properties of the reviewed
    // form or control, which no catalogue can list.
    if (objectId == 0 || !ObjectCatalogue::findPropertySet(objectId))
        return {};
    const qint32 propertyId = lookUp(names().properties, property);
    if (propertyId != 0 && ObjectHelper::ObjectPropertyType(objectId, propertyId))
        return {};
    return QStringLiteral("Unknown property of object %1: %2")
        .arg(quoted(object), quoted(property));
}

QString workfieldObjectWarning(const QString &object)
{
    const qint32 objectId = lookUp(names().objects, object);
    if (objectId == 0)
        return objectWarning(object);
    if (ObjectHelper::ObjectHasWorkfields(objectId))
        return {};
    return QStringLiteral("Object %1 has no workfields").arg(quoted(object));
}

QString parserEventWarning(const QString &event)
{
    if (lookUp(names().events, event) != 0)
        return {};
    return QStringLiteral("Unknown parser event: ") + quoted(event);
}

bool isVocabularyName(const QString &name)
{
    const QString key = name.toCaseFolded();
    const NameIndex &index = names();
    return index.objects.contains(key) || index.properties.contains(key)
           || index.events.contains(key);
}

} // namespace QuorinExtension
