#include "vocabulary/VBParserEvents.h"

#include "controls/ImageComboControl.h"
#include "platform/ErrorFrame.h"
#include "platform/TextUtils.h"
#include "vocabulary/ParserEventCatalogue.h"

namespace {
constexpr char moduleName[] = "C_VBParserEvents";
}

QString VBParserEvents::ParserEventKey(qint32 id)
{
    return QString::number(id) + QStringLiteral("Key");
}

QString VBParserEvents::ParserEventText(qint32 id)
{
    const auto *event = ParserEventCatalogue::findEvent(id);
    return event ? event->text.toString() : QStringLiteral("Unknown Event");
}

QString VBParserEvents::ParserEventHelp(qint32 id)
{
    const auto *event = ParserEventCatalogue::findEvent(id);
    if (!event)
        return QStringLiteral("Unknown Parser Event");
    return QStringLiteral("The parser fires this event ") + event->helpClause.toString()
           + QStringLiteral("\r\n\r\n") + event->helpScope.toString();
}

QString VBParserEvents::ParserEventIcon(qint32 id)
{
    const auto *event = ParserEventCatalogue::findEvent(id);
    return event ? event->icon.toString() : QStringLiteral("Event");
}

void VBParserEvents::PopulateCCEventsImageCombo(ImageComboControl &combo)
{
    guardedVoid("PopulateCCEventsImageCombo", moduleName, [&] {
        combo.clear();
        const auto events = ParserEventCatalogue::events();
        for (int place = 1; place <= int(events.size()); ++place) {
            for (const auto &event : events) {
                if (event.place == place)
                    AddImageComboItem(combo, event.id, event.indent);
            }
        }
    });
}

void VBParserEvents::AddImageComboItem(ImageComboControl &combo, qint32 id, int indentation)
{
    guardedVoid("AddImageComboItem", moduleName, [&] {
        combo.addItem(ParserEventKey(id), ParserEventText(id), ParserEventIcon(id), indentation);
    });
}

void VBParserEvents::PopulateCCEndEventsImageCombo(ImageComboControl &combo)
{
    guardedVoid("PopulateCCEndEventsImageCombo", moduleName, [&] {
        combo.clear();
        for (const auto &end : ParserEventCatalogue::endEvents())
            AddImageComboItem(combo, end.id, end.indent);
    });
}

qint32 VBParserEvents::ParserEventIDFromText(const QString &text)
{
    for (const auto &event : ParserEventCatalogue::events()) {
        if (Text::same(event.text.toString(), text))
            return event.id;
    }
    return 0;
}
