#include "LogCapture.h"

#include "controls/ImageComboControl.h"
#include "platform/TextUtils.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ParserEventCatalogue.h"
#include "vocabulary/VBParserEvents.h"

#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

class RecordingCombo final : public ImageComboControl
{
public:
    struct Item
    {
        QString key, text, image;
        int indentation;
    };

    void clear() override
    {
        if (failClear)
            throw std::runtime_error("clear failed");
        items.clear();
    }
    void
    addItem(const QString &key, const QString &text, const QString &image, int indentation) override
    {
        if (++adds == failAtAdd)
            throw std::runtime_error("add failed");
        items.push_back({key, text, image, indentation});
    }
    // The event ids, read back from the keys as every consumer does, with their indentations.
    std::vector<std::pair<qint32, int>> idsAndIndents() const
    {
        std::vector<std::pair<qint32, int>> result;
        for (const Item &item : items)
            result.emplace_back(Text::valLong(item.key), item.indentation);
        return result;
    }

    std::vector<Item> items;
    bool failClear = false;
    int failAtAdd = 0;
    int adds = 0;
};

} // namespace

// Places are a permutation, texts unique, each end event after its begin event at its depth,
// and every help scope names catalogue objects, the project last.
TEST(ParserEventCatalogue, IsConsistentWithItselfAndTheObjectCatalogue)
{
    const auto events = ParserEventCatalogue::events();
    QSet<int> places;
    QSet<QString> texts;
    int ends = 0;
    for (qsizetype i = 0; i < qsizetype(events.size()); ++i) {
        const auto &event = events[i];
        EXPECT_EQ(event.id, i + 1);
        EXPECT_TRUE(event.place >= 1 && event.place <= qsizetype(events.size())) << event.id;
        places.insert(event.place);
        texts.insert(event.text.toString().toLower());
        const QString text = event.text.toString();
        EXPECT_EQ(VBParserEvents::ParserEventIDFromText(text.toUpper()), event.id);
        if (text.startsWith(u"end "_s)) {
            ++ends;
            const auto *begin = ParserEventCatalogue::findEvent(
                VBParserEvents::ParserEventIDFromText(u"begin "_s + text.mid(4)));
            ASSERT_NE(begin, nullptr) << qPrintable(text);
            EXPECT_EQ(event.indent, begin->indent) << qPrintable(text);
            EXPECT_GT(event.place, begin->place) << qPrintable(text);
        }
        QString scope = event.helpScope.toString();
        ASSERT_TRUE(scope.startsWith(u"In scope: "_s)) << event.id;
        const QStringList objects = scope.mid(10).section(u'.', 0, 0).split(u", "_s);
        EXPECT_EQ(objects.last(), u"Project"_s) << event.id;
        for (const QString &object : objects)
            EXPECT_NE(ObjectHelper::ObjectIDFromName(object), 0) << qPrintable(object);
    }
    EXPECT_EQ(places.size(), qsizetype(events.size()));
    EXPECT_EQ(texts.size(), qsizetype(events.size()));
    EXPECT_EQ(ends, qsizetype(ParserEventCatalogue::endEvents().size()));
    // References belong to the project file, outside any source file.
    EXPECT_EQ(ParserEventCatalogue::findEvent(26)->helpScope, u"In scope: Reference, Project.");
}

TEST(VBParserEvents, UnknownIdsFallBackQuietlyAndArgumentsNameTheirOwner)
{
    LogCapture log;
    EXPECT_EQ(VBParserEvents::ParserEventKey(-1), u"-1Key"_s);
    for (qint32 id : {0, 38, -1}) {
        EXPECT_EQ(VBParserEvents::ParserEventText(id), u"Unknown Event"_s);
        EXPECT_EQ(VBParserEvents::ParserEventHelp(id), u"Unknown Parser Event"_s);
        EXPECT_EQ(VBParserEvents::ParserEventIcon(id), u"Event"_s);
    }
    EXPECT_TRUE(log.records().isEmpty());
    EXPECT_TRUE(VBParserEvents::ParserEventHelp(1).endsWith(u"\r\n\r\nIn scope: Project."_s));
    const std::pair<qint32, const char *> arguments[]
        = {{13, "Declare"}, {19, "Event"}, {29, "Procedure"}};
    for (const auto &[id, owner] : arguments) {
        EXPECT_EQ(VBParserEvents::ParserEventIcon(id), u"Argument"_s);
        EXPECT_EQ(VBParserEvents::ParserEventText(id),
                  u"Argument (%1)"_s.arg(QLatin1String(owner)));
    }
    for (const QString &text : {u"Argument"_s, u"begin Project "_s, QString()})
        EXPECT_EQ(VBParserEvents::ParserEventIDFromText(text), 0);
}

// The full combo runs in firing order at the catalogue's depths; the end combo offers each
// closing event once, below the closing events that enclose it; both refill from empty.
TEST(VBParserEvents, CombosFollowTheCatalogue)
{
    std::vector<std::pair<qint32, int>> byPlace;
    for (const auto &event : ParserEventCatalogue::events())
        byPlace.emplace_back(event.place, event.id);
    std::sort(byPlace.begin(), byPlace.end());
    std::vector<std::pair<qint32, int>> expected;
    for (const auto &[place, id] : byPlace)
        expected.emplace_back(id, ParserEventCatalogue::findEvent(id)->indent);

    RecordingCombo combo;
    combo.items.push_back({u"stale"_s, {}, {}, 0});
    VBParserEvents::PopulateCCEventsImageCombo(combo);
    VBParserEvents::PopulateCCEventsImageCombo(combo);
    EXPECT_EQ(combo.idsAndIndents(), expected);
    EXPECT_EQ(expected[1].first, 26); // Reference follows begin Project
    for (const auto &item : combo.items) {
        EXPECT_EQ(item.text, VBParserEvents::ParserEventText(Text::valLong(item.key)));
        EXPECT_EQ(item.image, VBParserEvents::ParserEventIcon(Text::valLong(item.key)));
    }

    RecordingCombo ends;
    VBParserEvents::PopulateCCEndEventsImageCombo(ends);
    VBParserEvents::PopulateCCEndEventsImageCombo(ends);
    std::vector<const ParserEventCatalogue::EventRow *> closing;
    for (const auto &event : ParserEventCatalogue::events()) {
        if (event.text.startsWith(u"end "))
            closing.push_back(&event);
    }
    ASSERT_EQ(ends.items.size(), closing.size());
    QSet<qint32> shown;
    for (const auto &[id, indent] : ends.idsAndIndents()) {
        const auto *event = ParserEventCatalogue::findEvent(id);
        ASSERT_TRUE(event && event->text.startsWith(u"end ")) << id;
        QSet<int> enclosing; // the depths of closing events fired later from a shallower depth
        bool parentShown = indent == 0;
        for (const auto *other : closing) {
            if (other->place > event->place && other->indent < event->indent) {
                enclosing.insert(other->indent);
                parentShown |= shown.contains(other->id);
            }
        }
        EXPECT_EQ(indent, enclosing.size()) << id;
        EXPECT_TRUE(parentShown) << id;
        shown.insert(id);
    }
}

TEST(VBParserEvents, AFailingComboIsReportedAndKeepsWhatItHolds)
{
    LogCapture log;
    RecordingCombo combo;
    combo.failAtAdd = 5;
    VBParserEvents::PopulateCCEventsImageCombo(combo);
    // Each item is added under its own frame, so the others still arrive.
    EXPECT_EQ(combo.items.size(), ParserEventCatalogue::events().size() - 1);
    ASSERT_EQ(log.records().size(), 1);
    EXPECT_EQ(log.lastRecordFields().value(0), u"Error"_s);
    EXPECT_EQ(log.lastRecordFields().value(2), u"C_VBParserEvents::AddImageComboItem"_s);

    RecordingCombo broken;
    broken.failClear = true;
    VBParserEvents::PopulateCCEndEventsImageCombo(broken);
    EXPECT_EQ(broken.adds, 0);
    EXPECT_EQ(log.lastRecordFields().value(2),
              u"C_VBParserEvents::PopulateCCEndEventsImageCombo"_s);
}
