#include "LogCapture.h"

#include "platform/TextUtils.h"
#include "vocabulary/ObjectCatalogue.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ObjectListType.h"

#include <QMap>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(ObjectCatalogue, HoldsFortyNineObjectsInIdOrderWithDistinctNames)
{
    const auto objects = ObjectCatalogue::objects();
    ASSERT_EQ(objects.size(), 49u);
    EXPECT_EQ(ObjectHelper::NumObjects(), 49);
    QSet<QString> names;
    for (qsizetype i = 0; i < qsizetype(objects.size()); ++i) {
        EXPECT_EQ(objects[i].id, i + 1);
        names.insert(objects[i].name.toString().toLower());
    }
    EXPECT_EQ(names.size(), 49);
}

TEST(ObjectCatalogue, EveryObjectHasOnePropertySetAndOneDescriptionWithDocumentedGaps)
{
    // Objects 3 and 8 stand for the reviewed form's own design-time properties.
    const QMap<qint32, int> sets = rowsPerObject(ObjectCatalogue::propertySets());
    const QMap<qint32, int> descriptions = rowsPerObject(ObjectCatalogue::objectDescriptions());
    const QSet<qint32> undescribed = {36, 37, 39, 40, 41, 42, 44, 45, 46, 47, 48, 49};
    for (qint32 id = 1; id <= 49; ++id) {
        EXPECT_EQ(sets.value(id), (id == 3 || id == 8) ? 0 : 1) << id;
        EXPECT_EQ(descriptions.value(id), undescribed.contains(id) ? 0 : 1) << id;
    }
    EXPECT_EQ(sets.lastKey(), 49);
    EXPECT_EQ(descriptions.lastKey(), 43);
}

TEST(ObjectCatalogue, PickerObjectsHaveIconsAndNamingObjectsHaveTextsAndTreeIcons)
{
    // The picker shows the widest object list; the naming tree shows the others, base objects
    // and their specialisations.
    const QList<qint32> picker = objectIds(ObjectListType::Everything);
    const QSet<qint32> pickerOnly = {2, 3, 4, 8, 14, 16, 21, 23};
    for (const auto &object : ObjectCatalogue::objects()) {
        EXPECT_EQ(object.icon.isNull(), !picker.contains(object.id)) << object.id;
        EXPECT_EQ(object.text.isNull(), pickerOnly.contains(object.id)) << object.id;
        EXPECT_EQ(object.treeIcon.isNull(), pickerOnly.contains(object.id)) << object.id;
    }
}

TEST(ObjectCatalogue, PropertySetsHoldTheirRowsOnceWithAssignedIds)
{
    // Sizes by base object, so that a dropped or doubled row shows.
    const QMap<qint32, int> sizes
        = {{1, 9},   {2, 4},  {4, 6},   {5, 6},  {6, 6},  {7, 8},  {9, 8},
           {10, 3},  {11, 4}, {12, 33}, {14, 2}, {15, 1}, {16, 4}, {17, 16},
           {18, 69}, {21, 7}, {23, 11}, {24, 8}, {25, 4}, {28, 10}};
    ASSERT_EQ(ObjectCatalogue::propertySets().size(), std::size_t(sizes.size()));
    for (const auto &set : ObjectCatalogue::propertySets()) {
        const qint32 base = set.objectIds[0];
        EXPECT_EQ(qsizetype(set.rows.size()), sizes.value(base, -1)) << base;
        QSet<qint32> seen;
        for (const auto &row : set.rows) {
            EXPECT_TRUE(row.id >= 1 && row.id <= 150 && !isUnassigned(row.id)) << row.id;
            EXPECT_FALSE(seen.contains(row.id)) << base << " " << row.id;
            seen.insert(row.id);
        }
    }
}

TEST(ObjectCatalogue, APropertyIdHasOneNameAndOneTypeWhereverItIsDeclared)
{
    QMap<qint32, PropertyValueType> types;
    for (const auto &set : ObjectCatalogue::propertySets()) {
        for (const auto &row : set.rows) {
            const QStringList words = row.declaration.toString().split(QLatin1Char(' '));
            ASSERT_EQ(words.size(), 3) << row.id;
            EXPECT_EQ(words[1], QStringLiteral("As")) << row.id;
            EXPECT_TRUE(QStringList({"String", "Long", "Boolean"}).contains(words[2])) << row.id;
            // 61 alone is spelled apart from its declarations, in case only.
            if (row.id == 61) {
                EXPECT_TRUE(Text::same(words[0], ObjectHelper::PropertyName(row.id)));
            } else {
                EXPECT_EQ(words[0], ObjectHelper::PropertyName(row.id)) << row.id;
            }
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

TEST(ObjectHelper, EveryAssignedPropertyIdHasANameAndTheOthersAreLogged)
{
    LogCapture log;
    int named = 0;
    for (qint32 id = 1; id <= 150; ++id)
        named += ObjectHelper::PropertyName(id).isEmpty() ? 0 : 1;
    EXPECT_EQ(named, 145);
    EXPECT_EQ(ObjectHelper::PropertyName(22), QStringLiteral("Instancing"));
    EXPECT_EQ(ObjectHelper::PropertyName(38), QStringLiteral("Optional"));
    EXPECT_EQ(ObjectHelper::PropertyName(61), QStringLiteral("CompatibleEXE32"));
    for (qint32 id : {4, 10, 11, 36, 42, 0, 151}) {
        EXPECT_TRUE(ObjectHelper::PropertyName(id).isEmpty());
        EXPECT_EQ(log.lastRecordFields(),
                  QStringList({QStringLiteral("Event"),
                               QStringLiteral("Unknown Property Type = %1").arg(id),
                               QStringLiteral("ObjectHelper::PropertyName")}));
    }
    EXPECT_EQ(log.records().size(), 5 + 7);
}

TEST(ObjectHelper, ObjectTextsIconsAndDescriptions)
{
    EXPECT_EQ(ObjectHelper::ObjectName(45), QStringLiteral("Procedure (Property Get/Let/Set)"));
    EXPECT_EQ(ObjectHelper::ObjectName(36), QStringLiteral("File (Form)"));
    EXPECT_EQ(ObjectHelper::ObjectText(36), QStringLiteral("Form"));
    // The tree and the picker use different image lists.
    EXPECT_EQ(ObjectHelper::ObjectTreeIcon(10), QStringLiteral("EnumItem"));
    EXPECT_EQ(ObjectHelper::ObjectIcon(10), QStringLiteral("EnumElement"));
    EXPECT_EQ(ObjectHelper::ObjectKey(12), QStringLiteral("12Key"));
    EXPECT_EQ(
        ObjectHelper::ObjectDescription(18),
        QStringLiteral("Project: A collection of properties and statistics relating to the Visual "
                       "Basic project currently being reviewed. Allows access to many of the "
                       "property values held in the VBP file and modfied by the "
                       "Project-><project> Properties dialog."));
    EXPECT_EQ(ObjectHelper::ObjectDescription(43), ObjectHelper::ObjectDescription(28));
    EXPECT_TRUE(
        ObjectHelper::ObjectDescription(35).startsWith(QStringLiteral("WithEvents Variable: ")));

    for (qint32 id = 1; id <= 49; ++id)
        EXPECT_EQ(ObjectHelper::ObjectHasWorkfields(id),
                  id != 3 && id != 8 && id != 16 && id != 23);
    EXPECT_TRUE(ObjectHelper::ObjectHasWorkfields(0));
}

TEST(ObjectHelper, MissingObjectEntriesAreLoggedAndGiveEmptyText)
{
    LogCapture log;
    struct Case
    {
        QString (*lookUp)(qint32);
        qint32 id;
        const char *function;
    };
    const Case cases[] = {
        {&ObjectHelper::ObjectName, 0, "ObjectName"},
        {&ObjectHelper::ObjectText, 2, "ObjectText"},
        {&ObjectHelper::ObjectTreeIcon, 23, "ObjectTreeIcon"},
        {&ObjectHelper::ObjectIcon, 13, "ObjectIcon"},
        {&ObjectHelper::ObjectDescription, 49, "ObjectDescription"},
    };
    for (const Case &c : cases) {
        EXPECT_TRUE(c.lookUp(c.id).isEmpty()) << c.function;
        EXPECT_EQ(log.lastRecordFields(),
                  QStringList({QStringLiteral("Event"),
                               QStringLiteral("Unknown Object Type = %1").arg(c.id),
                               QStringLiteral("ObjectHelper::") + QLatin1String(c.function)}));
    }
}

TEST(ObjectHelper, PropertyIconsFollowTheirIdRanges)
{
    EXPECT_EQ(ObjectHelper::PropertyIcon(117), QStringLiteral("ControlTag"));
    EXPECT_EQ(ObjectHelper::PropertyIcon(118), QStringLiteral("ScopeTag"));
    EXPECT_EQ(ObjectHelper::PropertyIcon(45), QStringLiteral("DataTypeTag"));
    for (qint32 id : {14, 105, 109, 113, 126, 145, 147})
        EXPECT_EQ(ObjectHelper::PropertyIcon(id), QStringLiteral("Statistic")) << id;
    for (qint32 id : {104, 110, 112, 114, 125, 146, 148, 4, 0})
        EXPECT_EQ(ObjectHelper::PropertyIcon(id), QStringLiteral("Property")) << id;
}

TEST(ObjectHelper, ObjectListsAppendTheirContextsObjectsInFixedOrder)
{
    const QList<qint32> base = {12, 17, 9, 24, 1, 5, 7, 10, 11, 15, 25, 28};
    EXPECT_EQ(objectIds(ObjectListType::BaseAndImplements), base + QList<qint32>({14}));
    EXPECT_EQ(objectIds(ObjectListType::NamingConvention), base + QList<qint32>({6, 18}));
    EXPECT_EQ(objectIds(ObjectListType::CodingConvention),
              base + QList<qint32>({14, 6, 18, 4, 21, 23, 2, 8, 3}));
    EXPECT_EQ(objectIds(ObjectListType::Everything),
              base + QList<qint32>({14, 6, 18, 4, 21, 23, 2, 8, 3, 16}));

    QStringList names = {QStringLiteral("kept")};
    QList<qint32> ids = {-7};
    ObjectHelper::GetObjectList(ObjectListType::NamingConvention, names, ids);
    ASSERT_EQ(names.size(), 15);
    EXPECT_EQ(ids.size(), 15);
    EXPECT_EQ(names[0], QStringLiteral("kept"));
    EXPECT_EQ(names[1], QStringLiteral("File"));
}

TEST(ObjectHelper, PropertyListsGiveTheWholeSetOrTheNamingShortList)
{
    const QStringList enumAll = {"ElementCount",
                                 "Scope",
                                 "Name",
                                 "TotalLineCount",
                                 "BlankLineCount",
                                 "CodeLineCount",
                                 "CommentLineCount",
                                 "InLineCommentCount"};
    EXPECT_EQ(propertyNames(ObjectListType::CodingConvention, 9), enumAll);
    EXPECT_EQ(propertyNames(ObjectListType::BaseAndImplements, 9), enumAll);
    EXPECT_EQ(propertyNames(ObjectListType::NamingConvention, 9), QStringList({"Name"}));
    EXPECT_EQ(propertyNames(ObjectListType::NamingConvention, 13), QStringList({"Name"}));
    EXPECT_EQ(propertyNames(ObjectListType::NamingConvention, 21).size(), 7);
    EXPECT_EQ(propertyNames(ObjectListType::NamingConvention, 47),
              QStringList({"Extension", "Filename", "Name"}));
    const QStringList project = propertyNames(ObjectListType::NamingConvention, 18);
    EXPECT_EQ(project.size(), 15);
    EXPECT_EQ(project.first(), QStringLiteral("CompatibleEXE32"));
    EXPECT_EQ(project.last(), QStringLiteral("Extension"));
    EXPECT_EQ(propertyNames(ObjectListType::Everything, 48).size(), 33);
    for (qint32 id : {3, 8, 0, 50})
        EXPECT_TRUE(propertyNames(ObjectListType::Everything, id).isEmpty()) << id;
}

TEST(ObjectHelper, PropertyDescriptionsJoinDeclarationAndTextOrAreLogged)
{
    LogCapture log;
    EXPECT_EQ(ObjectHelper::ObjectPropertyDescription(20, 115),
              QStringLiteral("Index As Long\r\nThe position (1-based) of the argument within the "
                             "argument list."));
    EXPECT_EQ(ObjectHelper::ObjectPropertyDescription(18, 61),
              QStringLiteral("CompatibleExe32 As String\r\nBinary compatible component (including "
                             "path)."));
    EXPECT_EQ(ObjectHelper::ObjectPropertyDescription(36, 41),
              QStringLiteral("Path As String\r\nThe source file path (includes trailing '\\')."));
    EXPECT_EQ(
        ObjectHelper::ObjectPropertyDescription(18, 63),
        QString::fromUtf8("MajorVer As String\r\nMajor version number of the project; 0 – 9999."));
    EXPECT_TRUE(log.records().isEmpty());

    // The MDI form kinds are offered the file properties but have no descriptions.
    const std::pair<qint32, qint32> missing[] = {{47, 37}, {3, 37}, {12, 22}, {21, 37}};
    for (const auto &[objectId, propertyId] : missing) {
        EXPECT_TRUE(ObjectHelper::ObjectPropertyDescription(objectId, propertyId).isEmpty());
        EXPECT_EQ(log.lastRecordFields().mid(1),
                  QStringList({QStringLiteral("Unknown Object/Property Object=%1 Property=%2")
                                   .arg(objectId)
                                   .arg(propertyId),
                               QStringLiteral("ObjectHelper::ObjectPropertyDescription")}));
    }
}

TEST(ObjectHelper, NameLookUpsIgnoreCaseAndGiveZeroForUnknownNames)
{
    for (const auto &object : ObjectCatalogue::objects())
        EXPECT_EQ(ObjectHelper::ObjectIDFromName(object.name.toString().toUpper()), object.id);
    EXPECT_EQ(ObjectHelper::ObjectIDFromName(QStringLiteral("Form")), 0); // a text, not a name
    EXPECT_EQ(ObjectHelper::ObjectIDFromName(QStringLiteral("File ")), 0);
    EXPECT_EQ(ObjectHelper::ObjectIDFromName(QString()), 0);

    for (qint32 id = 1; id <= 150; ++id) {
        if (!isUnassigned(id)) {
            EXPECT_EQ(ObjectHelper::PropertyIDFromName(ObjectHelper::PropertyName(id).toLower()),
                      id);
        }
    }
    EXPECT_EQ(ObjectHelper::PropertyIDFromName(QStringLiteral("Workfields")), 0);
    EXPECT_EQ(ObjectHelper::PropertyIDFromName(QString()), 0);
}
