#pragma once

#include <QStringView>
#include <QtGlobal>

#include <array>
#include <span>

// A property's value type: the last word of its declaration.
enum class PropertyValueType { String, Long, Boolean };

// The objects the reviewer exposes to conditions and violation texts, and their properties, as
// data. Object and property ids are stored in rulebases, so the numbering is fixed for good.
namespace ObjectCatalogue {

// A null view stands for a look-up that treats the id as unknown.
struct ObjectRow
{
    qint32 id;
    QStringView name;
    QStringView text;
    QStringView treeIcon;
    QStringView icon;
    bool hasWorkfields;
};

struct PropertyRow
{
    qint32 id;
    QStringView declaration; // "Name As String"
    QStringView description;
    bool marked = false; // offered to naming conventions, where the set says so by rows

    QStringView name() const;
    PropertyValueType valueType() const;
};

// What a naming convention is offered of a property set.
enum class NamingList { NameOnly, WholeList, MarkedRows };

// The properties a base object shares with its specialisations, in their offering order.
struct PropertySet
{
    std::array<qint32, 12> objectIds; // unused places are 0
    NamingList namingList;
    std::span<const PropertyRow> rows;

    bool appliesTo(qint32 objectId) const;
    bool offeredToNaming(const PropertyRow &row) const;
};

struct DescriptionRow
{
    std::array<qint32, 6> objectIds; // unused places are 0
    QStringView text;

    bool appliesTo(qint32 objectId) const;
};

struct PropertyNameRow
{
    qint32 id;
    QStringView name;
};

// All objects, in id order.
std::span<const ObjectRow> objects();
std::span<const DescriptionRow> objectDescriptions();
std::span<const PropertySet> propertySets();
// The names no declaration gives: properties no object lists, and one spelled apart from its
// declaration.
std::span<const PropertyNameRow> extraPropertyNames();

constexpr qint32 FirstPropertyID = 1;
constexpr qint32 LastPropertyID = 150;
// Ids that were never assigned to a property.
constexpr std::array<qint32, 5> UnassignedPropertyIDs = {4, 10, 11, 36, 42};

// Each gives nullptr (or a null view) when the id is unknown.
const ObjectRow *findObject(qint32 id);
const PropertySet *findPropertySet(qint32 objectId);
const PropertyRow *findProperty(qint32 objectId, qint32 propertyId);
QStringView objectDescription(qint32 objectId);
QStringView propertyName(qint32 propertyId);

} // namespace ObjectCatalogue
