#pragma once

#include <QStringView>
#include <QtGlobal>

#include <span>

// The events the reviewer's parser fires, as data. Ids are stored in rulebases, so the
// numbering is fixed for good.
namespace ParserEventCatalogue {

struct EventRow
{
    qint32 id;
    QStringView text;
    QStringView icon;
    int place; // position in the full event combo, which is also the firing order
    int indent;
    QStringView helpClause;
    QStringView helpScope;
};

struct EndEventRow
{
    qint32 id;
    int indent;
};

// All events, in id order.
std::span<const EventRow> events();
// The events a rule may close on, from the outermost end to the innermost.
std::span<const EndEventRow> endEvents();
// nullptr for an id outside the table.
const EventRow *findEvent(qint32 id);

} // namespace ParserEventCatalogue
