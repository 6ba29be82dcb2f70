#include "LogCapture.h"

#include "platform/TextUtils.h"
#include "vocabulary/ObjectCatalogue.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ObjectListType.h"

#include <QMap>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QList<qint32> objectIds(ObjectListType type)
{
    QStringList names;
    QList<qint32> ids;
    ObjectHelper::GetObjectList(type, names, ids);
    return ids;
}

QStringList propertyNames(ObjectListType type, qint32 objectId)
{
    QStringList names;
    QList<qint32> ids;
    ObjectHelper::GetPropertyList(type, objectId, names, ids);
    return names;
}

bool isUnassigned(qint32 propertyId)
{
    const auto &unassigned = ObjectCatalogue::UnassignedPropertyIDs;
    return std::find(unassigned.begin(), unassigned.end(), propertyId) != unassigned.end();
}

// How many rows of a table name each object id.
template<typename Rows>
QMap<qint32, int> rowsPerObject(const Rows &rows)
{
    QMap<qint32, int> count;
    for (const auto &row : rows) {
        for (qint32 id : row.objectIds) {
            if (id != 0)
                ++count[id];
        }
    }
    return count;
}

} // namespace

// The catalogue's own consistency: ids in order, names unique and found again, at most one
// property set and one description per object, property rows unique, each property id with one
// name and one type wherever it is declared.
TEST(ObjectCatalogue, IsConsistentWithItselfAndWithTheLookUps)
{
    const auto objects = ObjectCatalogue::objects();
    EXPECT_EQ(ObjectHelper::NumObjects(), qint16(objects.size()));
    QSet<QString> names;
    for (qsizetype i = 0; i < qsizetype(objects.size()); ++i) {
        EXPECT_EQ(objects[i].id, i + 1);
        names.insert(objects[i].name.toString().toLower());
        EXPECT_EQ(ObjectHelper::ObjectIDFromName(objects[i].name.toString().toUpper()), i + 1);
    }
    EXPECT_EQ(names.size(), qsizetype(objects.size()));
    for (const auto &perObject : {rowsPerObject(ObjectCatalogue::propertySets()),
                                  rowsPerObject(ObjectCatalogue::objectDescriptions())}) {
        for (auto it = perObject.begin(); it != perObject.end(); ++it) {
            EXPECT_EQ(it.value(), 1) << it.key();
            EXPECT_TRUE(it.key() >= 1 && it.key() <= qint32(objects.size())) << it.key();
        }
    }

    QMap<qint32, PropertyValueType> types;
    for (const auto &set : ObjectCatalogue::propertySets()) {
        QSet<qint32> seen;
        for (const auto &row : set.rows) {
            EXPECT_TRUE(row.id >= 1 && row.id <= 150 && !isUnassigned(row.id)) << row.id;
            EXPECT_FALSE(seen.contains(row.id)) << set.objectIds[0] << " " << row.id;
            seen.insert(row.id);
            const QStringList words = row.declaration.toString().split(u' ');
            ASSERT_EQ(words.size(), 3) << row.id;
            EXPECT_EQ(words[1], u"As"_s) << row.id;
            EXPECT_TRUE(u"String Long Boolean"_s.split(u' ').contains(words[2])) << row.id;
            // 61 alone is spelled apart from its declarations, in case only.
            EXPECT_TRUE(row.id == 61 ? Text::same(words[0], ObjectHelper::PropertyName(row.id))
                                     : words[0] == ObjectHelper::PropertyName(row.id))
                << row.id;
            // Index is a Long on an argument but a String on a control.
            if (row.id != 115 && types.contains(row.id)) {
                EXPECT_EQ(types[row.id], row.valueType()) << row.id;
            }
            types[row.id] = row.valueType();
        }
    }
    EXPECT_EQ(ObjectHelper::ObjectPropertyType(20, 115), PropertyValueType::Long);
    EXPECT_EQ(ObjectHelper::ObjectPropertyType(6, 115), PropertyValueType::String);
    EXPECT_EQ(ObjectHelper::ObjectPropertyType(25, 24), PropertyValueType::Boolean);
    EXPECT_EQ(ObjectHelper::ObjectPropertyType(21, 37), std::nullopt);
}

// What the pickers and the naming tree show: the picker has icons for what it lists, the naming
// tree texts and tree icons for the others; the wider lists append to the narrower.
TEST(ObjectCatalogue, ObjectListsMatchTheirIconsAndTexts)
{
    const QList<qint32> everything = objectIds(ObjectListType::Everything);
    const QList<qint32> coding = objectIds(ObjectListType::CodingConvention);
    const QList<qint32> naming = objectIds(ObjectListType::NamingConvention);
    EXPECT_EQ(everything.mid(0, coding.size()), coding);
    EXPECT_EQ(QSet<qint32>(everything.begin(), everything.end()).size(), everything.size());
    for (const qint32 id : naming + objectIds(ObjectListType::BaseAndImplements))
        EXPECT_TRUE(coding.contains(id)) << id;
    for (const auto &object : ObjectCatalogue::objects()) {
        EXPECT_EQ(object.icon.isNull(), !everything.contains(object.id)) << object.id;
        EXPECT_EQ(object.text.isNull(), object.treeIcon.isNull()) << object.id;
        EXPECT_EQ(ObjectHelper::ObjectHasWorkfields(object.id), object.hasWorkfields);
    }
    EXPECT_TRUE(ObjectHelper::ObjectHasWorkfields(0));

    QStringList names = {u"kept"_s};
    QList<qint32> ids = {-7};
    ObjectHelper::GetObjectList(ObjectListType::NamingConvention, names, ids);
    ASSERT_EQ(names.size(), naming.size() + 1);
    EXPECT_EQ(ids.size(), names.size());
    EXPECT_EQ(names[0], u"kept"_s);
    EXPECT_EQ(names[1], ObjectHelper::ObjectName(naming[0]));
}

TEST(ObjectHelper, PropertyNamesReadBackAndUnknownIdsAreLogged)
{
    LogCapture log;
    for (qint32 id = 1; id <= 150; ++id) {
        EXPECT_EQ(ObjectHelper::PropertyName(id).isEmpty(), isUnassigned(id)) << id;
        if (!isUnassigned(id)) {
            EXPECT_EQ(ObjectHelper::PropertyIDFromName(ObjectHelper::PropertyName(id).toLower()),
                      id);
        }
    }
    const qsizetype unassigned = log.records().size();
    for (qint32 id : {0, 151}) {
        EXPECT_TRUE(ObjectHelper::PropertyName(id).isEmpty());
        EXPECT_EQ(log.lastRecordFields(),
                  QStringList({u"Event"_s,
                               u"Unknown Property Type = %1"_s.arg(id),
                               u"ObjectHelper::PropertyName"_s}));
    }
    EXPECT_EQ(log.records().size(), unassigned + 2);
    EXPECT_EQ(ObjectHelper::PropertyIDFromName(u"Workfields"_s), 0);
    EXPECT_EQ(ObjectHelper::PropertyIDFromName(QString()), 0);
}

TEST(ObjectHelper, ObjectTextsAndDescriptionsAndMissingOnesAreLogged)
{
    EXPECT_EQ(ObjectHelper::ObjectIDFromName(ObjectHelper::ObjectText(36)), 0); // not a name
    EXPECT_EQ(ObjectHelper::ObjectIDFromName(u"File "_s), 0);
    EXPECT_EQ(ObjectHelper::ObjectIDFromName(QString()), 0);

    LogCapture log;
    const std::tuple<QString (*)(qint32), qint32, const char *> missing[] = {
        {&ObjectHelper::ObjectName, 0, "ObjectName"},
        {&ObjectHelper::ObjectText, 2, "ObjectText"},
        {&ObjectHelper::ObjectTreeIcon, 23, "ObjectTreeIcon"},
        {&ObjectHelper::ObjectIcon, 13, "ObjectIcon"},
        {&ObjectHelper::ObjectDescription, 49, "ObjectDescription"},
    };
    for (const auto &[lookUp, id, function] : missing) {
        EXPECT_TRUE(lookUp(id).isEmpty()) << function;
        EXPECT_EQ(log.lastRecordFields(),
                  QStringList({u"Event"_s,
                               u"Unknown Object Type = %1"_s.arg(id),
                               u"ObjectHelper::"_s + QLatin1String(function)}));
    }
}

TEST(ObjectHelper, PropertyListsAndDescriptions)
{
    EXPECT_EQ(propertyNames(ObjectListType::BaseAndImplements, 9),
              propertyNames(ObjectListType::CodingConvention, 9));
    // Naming conventions are offered the name-like properties only.
    EXPECT_EQ(propertyNames(ObjectListType::NamingConvention, 9), QStringList({u"Name"_s}));
    EXPECT_EQ(propertyNames(ObjectListType::NamingConvention, 13), QStringList({u"Name"_s}));
    EXPECT_EQ(propertyNames(ObjectListType::NamingConvention, 47),
              QStringList({u"Extension"_s, u"Filename"_s, u"Name"_s}));
    const QStringList project = propertyNames(ObjectListType::NamingConvention, 18);
    EXPECT_EQ(project.first(), u"CompatibleEXE32"_s);
    EXPECT_LT(project.size(), propertyNames(ObjectListType::Everything, 18).size());
    for (qint32 id : {3, 8, 0, 50})
        EXPECT_TRUE(propertyNames(ObjectListType::Everything, id).isEmpty()) << id;

    LogCapture log;
    // The declaration leads the text, in the case the declaration is spelled.
    EXPECT_TRUE(
        ObjectHelper::ObjectPropertyDescription(20, 115).startsWith(u"Index As Long\r\n"_s));
    EXPECT_TRUE(
        ObjectHelper::ObjectPropertyDescription(18, 61).startsWith(u"CompatibleExe32 As"_s));
    EXPECT_TRUE(log.records().isEmpty());
    // The MDI form kinds are offered the file properties but have no descriptions.
    for (const auto &[objectId, propertyId] :
         {std::pair(47, 37), std::pair(3, 37), std::pair(12, 22), std::pair(21, 37)}) {
        EXPECT_TRUE(ObjectHelper::ObjectPropertyDescription(objectId, propertyId).isEmpty());
        EXPECT_EQ(log.lastRecordFields().mid(1),
                  QStringList({u"Unknown Object/Property Object=%1 Property=%2"_s.arg(objectId).arg(
                                   propertyId),
                               u"ObjectHelper::ObjectPropertyDescription"_s}));
    }
}
