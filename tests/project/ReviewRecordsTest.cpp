#include "ProjectTestSupport.h"

#include "collections/KeyedArrayList.h"
#include "project/SourceLineStatistics.h"
#include "project/ViolationStatistics.h"
#include "project/VirtualObject.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr qint32 Max = std::numeric_limits<qint32>::max();

using ReviewRecords = ProjectTest;

TEST_F(ReviewRecords, ObjectPartsAreMadeOnceAndMemberCountsRiseOrAreReplaced)
{
    VirtualObject object;
    EXPECT_EQ(object.Properties(), object.Properties());
    EXPECT_NE(object.Workfields(), object.Properties());
    EXPECT_EQ(object.LineStats(), object.LineStats());
    EXPECT_EQ(object.ViolationStats(), object.ViolationStats());

    object.IncrementMemberCount(u"X"_s, 0);
    object.IncrementMemberCount(u"x"_s, 0);
    EXPECT_EQ(object.Properties()->Item(u"X"_s).toInt(), 2);
    object.IncrementMemberCount(u"X"_s, 7);
    EXPECT_EQ(object.Properties()->Item(u"X"_s).toInt(), 7);
    // A value read from a file counts on from its leading number.
    object.Properties()->Add(u"Text"_s, u"41 forms"_s, false);
    object.IncrementMemberCount(u"Text"_s, 0);
    EXPECT_EQ(object.Properties()->Item(u"Text"_s).toInt(), 42);
    // Past the 32-bit range the count keeps its value, and the failure is logged.
    object.IncrementMemberCount(u"Full"_s, Max);
    object.IncrementMemberCount(u"Full"_s, 0);
    EXPECT_EQ(object.Properties()->Item(u"Full"_s).toInt(), Max);
    ASSERT_EQ(logRecords().size(), 1);
    EXPECT_TRUE(logRecords().first().contains(u"6 - Overflow#VirtualObject::"_s));
}

TEST_F(ReviewRecords, LineCountersFollowTheLineType)
{
    SourceLineStatistics stats;
    for (qint32 type : {0, 1, 1, 2, 3, 3, 4, -1, 5})
        stats.IncrementCount(type);
    // An in-line comment line is a code line too, so the total is the sum of three counters.
    const std::pair<const char *, qint32> expected[] = {
        {"TotalLineCount", 6},
        {"codelinecount", 3},
        {"BlankLineCount", 1},
        {"COMMENTLINECOUNT", 2},
        {"InLineCommentCount", 1},
    };
    for (const auto &[name, count] : expected) {
        qint32 value = -1;
        EXPECT_TRUE(stats.SourceLineStatByName(QLatin1String(name), value)) << name;
        EXPECT_EQ(value, count) << name;
    }
    qint32 untouched = 99;
    EXPECT_FALSE(stats.SourceLineStatByName(u"Nonsense"_s, untouched));
    EXPECT_EQ(untouched, 99);

    stats.setBlankLines(Max);
    stats.IncrementCount(0);
    EXPECT_EQ(stats.BlankLines(), Max);
    EXPECT_EQ(stats.TotalLines(), 6);
    EXPECT_EQ(logRecords().size(), 1);
}

TEST_F(ReviewRecords, ViolationCountersGoBySeverityLevel)
{
    ViolationStatistics stats;
    for (const auto &[level, impact] :
         {std::pair{1, 10}, {1, 5}, {2, 4}, {3, 3}, {4, 2}, {5, 1}, {0, 100}, {6, 100}})
        stats.IncrementCount(level, qint16(impact));
    EXPECT_EQ(stats.CriticalViolations(), 2);
    EXPECT_EQ(stats.CriticalImpact(), 15);
    EXPECT_EQ(stats.HighImpact(), 4);
    EXPECT_EQ(stats.MediumImpact(), 3);
    EXPECT_EQ(stats.LowImpact(), 2);
    EXPECT_EQ(stats.InfoViolations(), 1);
    EXPECT_EQ(stats.TotalViolations(), 6);
    EXPECT_EQ(stats.TotalImpact(), 25);

    stats.setHighImpact(Max);
    stats.IncrementCount(2, 1);
    EXPECT_EQ(stats.HighImpact(), Max);
    EXPECT_EQ(logRecords().size(), 1);
}

} // namespace
