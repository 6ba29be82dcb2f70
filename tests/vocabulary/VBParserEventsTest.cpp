#include "LogCapture.h"

#include "platform/TextUtils.h"
#include "vocabulary/ImageComboControl.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ParserEventCatalogue.h"
#include "vocabulary/VBParserEvents.h"

#include <QSet>

#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>
#include <vector>

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

TEST(ParserEventCatalogue, HoldsThirtySevenEventsInIdOrderWithDistinctPlacesAndTexts)
{
    const auto events = ParserEventCatalogue::events();
    ASSERT_EQ(events.size(), 37u);
    QSet<int> places;
    QSet<QString> texts;
    for (qsizetype i = 0; i < qsizetype(events.size()); ++i) {
        EXPECT_EQ(events[i].id, i + 1);
        EXPECT_TRUE(events[i].place >= 1 && events[i].place <= 37) << events[i].id;
        places.insert(events[i].place);
        texts.insert(events[i].text.toString().toLower());
    }
    EXPECT_EQ(places.size(), 37);
    EXPECT_EQ(texts.size(), 37);
}

TEST(ParserEventCatalogue, EachEndEventSitsAtTheDepthOfItsBeginEventAndAfterIt)
{
    int ends = 0;
    for (const auto &event : ParserEventCatalogue::events()) {
        const QString text = event.text.toString();
        if (!text.startsWith(QStringLiteral("end ")))
            continue;
        ++ends;
        const auto *begin = ParserEventCatalogue::findEvent(
            VBParserEvents::ParserEventIDFromText(QStringLiteral("begin ") + text.mid(4)));
        ASSERT_NE(begin, nullptr) << text.toStdString();
        EXPECT_EQ(event.indent, begin->indent) << text.toStdString();
        EXPECT_GT(event.place, begin->place) << text.toStdString();
    }
    EXPECT_EQ(ends, 8);
}

TEST(ParserEventCatalogue, ScopeLinesNameCatalogueObjectsEndingWithTheProject)
{
    for (const auto &event : ParserEventCatalogue::events()) {
        QString scope = event.helpScope.toString();
        ASSERT_TRUE(scope.startsWith(QStringLiteral("In scope: "))) << event.id;
        scope = scope.mid(10).section(QLatin1Char('.'), 0, 0);
        const QStringList objects = scope.split(QStringLiteral(", "));
        EXPECT_EQ(objects.last(), QStringLiteral("Project")) << event.id;
        for (const QString &object : objects)
            EXPECT_NE(ObjectHelper::ObjectIDFromName(object), 0) << object.toStdString();
    }
    // References belong to the project file, outside any source file.
    EXPECT_EQ(ParserEventCatalogue::findEvent(26)->helpScope, u"In scope: Reference, Project.");
}

TEST(VBParserEvents, KeysPutTheNumberFirstAndUnknownIdsGetFallbacksWithoutLogging)
{
    LogCapture log;
    EXPECT_EQ(VBParserEvents::ParserEventKey(26), QStringLiteral("26Key"));
    EXPECT_EQ(VBParserEvents::ParserEventKey(0), QStringLiteral("0Key"));
    EXPECT_EQ(VBParserEvents::ParserEventKey(-1), QStringLiteral("-1Key"));
    for (qint32 id : {0, 38, -1}) {
        EXPECT_EQ(VBParserEvents::ParserEventText(id), QStringLiteral("Unknown Event"));
        EXPECT_EQ(VBParserEvents::ParserEventHelp(id), QStringLiteral("Unknown Parser Event"));
        EXPECT_EQ(VBParserEvents::ParserEventIcon(id), QStringLiteral("Event"));
    }
    EXPECT_TRUE(log.records().isEmpty());
}

TEST(VBParserEvents, TextsIconsAndHelpMatchTheVocabulary)
{
    EXPECT_EQ(
        VBParserEvents::ParserEventHelp(1),
        QStringLiteral("The parser fires this event when the next project review begins.\r\n\r\n"
                       "In scope: Project."));
    EXPECT_EQ(VBParserEvents::ParserEventText(15), QStringLiteral("Enum <body>"));
    // Begin events have the plain picture, their bodies one of their own.
    EXPECT_EQ(VBParserEvents::ParserEventIcon(14), QStringLiteral("Event"));
    EXPECT_EQ(VBParserEvents::ParserEventIcon(15), QStringLiteral("Enum"));
    EXPECT_EQ(VBParserEvents::ParserEventIcon(21), QStringLiteral("Event"));
    EXPECT_EQ(VBParserEvents::ParserEventIcon(22), QStringLiteral("Type"));
    EXPECT_EQ(VBParserEvents::ParserEventIcon(18), QStringLiteral("WithEvents"));
    // The three argument events differ only in their bracket.
    const std::pair<qint32, const char *> arguments[]
        = {{13, "Declare"}, {19, "Event"}, {29, "Procedure"}};
    for (const auto &[id, owner] : arguments) {
        EXPECT_EQ(VBParserEvents::ParserEventIcon(id), QStringLiteral("Argument"));
        EXPECT_EQ(VBParserEvents::ParserEventText(id),
                  QStringLiteral("Argument (%1)").arg(QLatin1String(owner)));
    }
}

TEST(VBParserEvents, EventIdFromTextIgnoresCaseAndGivesZeroForUnknownTexts)
{
    EXPECT_EQ(VBParserEvents::ParserEventIDFromText(QStringLiteral("BEGIN project")), 1);
    EXPECT_EQ(VBParserEvents::ParserEventIDFromText(QStringLiteral("Argument")), 0);
    EXPECT_EQ(VBParserEvents::ParserEventIDFromText(QStringLiteral("begin Project ")), 0);
    EXPECT_EQ(VBParserEvents::ParserEventIDFromText(QString()), 0);
    for (qint32 id = 1; id <= 37; ++id)
        EXPECT_EQ(VBParserEvents::ParserEventIDFromText(VBParserEvents::ParserEventText(id)), id);
}

TEST(VBParserEvents, FullComboRunsInFiringOrderAndRefillsFromEmpty)
{
    RecordingCombo combo;
    combo.items.push_back({QStringLiteral("stale"), {}, {}, 0});
    VBParserEvents::PopulateCCEventsImageCombo(combo);
    VBParserEvents::PopulateCCEventsImageCombo(combo);

    std::vector<qint32> order;
    for (const auto &[id, indent] : combo.idsAndIndents())
        order.push_back(id);
    // Numeric order, except that Reference follows begin Project and the local variable comes
    // before the line label.
    const std::vector<qint32> expected
        = {1,  26, 2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18,
           19, 20, 21, 22, 23, 24, 25, 27, 28, 29, 30, 31, 33, 32, 34, 35, 36, 37};
    EXPECT_EQ(order, expected);
    ASSERT_EQ(combo.items.size(), 37u);
    EXPECT_EQ(combo.items[1].text, QStringLiteral("Reference"));
    EXPECT_EQ(combo.items[1].image, QStringLiteral("Reference"));
    EXPECT_EQ(combo.items[1].indentation, 1);
    EXPECT_EQ(combo.items[16].indentation, 8); // Enum element, among the deepest
}

TEST(VBParserEvents, EndComboOffersTheEightClosingEventsOutermostFirst)
{
    RecordingCombo combo;
    VBParserEvents::PopulateCCEndEventsImageCombo(combo);
    VBParserEvents::PopulateCCEndEventsImageCombo(combo);
    const std::vector<std::pair<qint32, int>> expected
        = {{37, 0}, {36, 1}, {35, 2}, {8, 3}, {27, 3}, {17, 4}, {24, 4}, {34, 3}};
    EXPECT_EQ(combo.idsAndIndents(), expected);
    EXPECT_EQ(combo.items.at(3).text, QStringLiteral("end Layout"));
}

TEST(VBParserEvents, AFailingComboIsReportedAndKeepsWhatItHolds)
{
    LogCapture log;
    RecordingCombo combo;
    combo.failAtAdd = 5;
    VBParserEvents::PopulateCCEventsImageCombo(combo);
    // Each item is added under its own frame, so the others still arrive.
    EXPECT_EQ(combo.items.size(), 36u);
    ASSERT_EQ(log.records().size(), 1);
    EXPECT_EQ(log.lastRecordFields().value(0), QStringLiteral("Error"));
    EXPECT_EQ(log.lastRecordFields().value(2),
              QStringLiteral("C_VBParserEvents::AddImageComboItem"));

    RecordingCombo broken;
    broken.failClear = true;
    VBParserEvents::PopulateCCEndEventsImageCombo(broken);
    EXPECT_EQ(broken.adds, 0);
    EXPECT_EQ(log.lastRecordFields().value(2),
              QStringLiteral("C_VBParserEvents::PopulateCCEndEventsImageCombo"));
}
