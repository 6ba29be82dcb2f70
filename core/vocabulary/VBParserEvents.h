#pragma once

#include <QString>

class ImageComboControl;

// The one source of every parser event's key, text, icon and help; no text of an event stands
// anywhere else. Holds no state.
class VBParserEvents
{
public:
    // No range check: any integer yields a key, the number first ("7Key").
    static QString ParserEventKey(qint32 id);
    // "Unknown Event" outside the table.
    static QString ParserEventText(qint32 id);
    // "Unknown Parser Event" outside the table.
    static QString ParserEventHelp(qint32 id);
    // "Event" outside the table.
    static QString ParserEventIcon(qint32 id);

    // The 37 events in firing order, each indented by its nesting.
    static void PopulateCCEventsImageCombo(ImageComboControl &combo);
    static void AddImageComboItem(ImageComboControl &combo, qint32 id, int indentation);
    // The eight closing events, from the outermost end to the innermost.
    static void PopulateCCEndEventsImageCombo(ImageComboControl &combo);

    // The id of the event with this text, ignoring case; 0 when there is none. For readers of
    // conditions, which name events by their text.
    static qint32 ParserEventIDFromText(const QString &text);
};
