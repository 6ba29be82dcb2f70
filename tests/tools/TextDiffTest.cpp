#include "tools/TextDiff.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(TextDiff, UnifiedHunksKeepThreeLinesOfContextAndMergeNearbyChanges)
{
    EXPECT_TRUE(TextDiff::unified(u"a\r\nb"_s, u"a\nb\n"_s).isEmpty());
    EXPECT_EQ(TextDiff::splitLines(u"a\r\nb\rc\n"_s), (QStringList{u"a"_s, u"b"_s, u"c"_s}));

    EXPECT_EQ(TextDiff::unified(QString(), u"x\ny"_s),
              (QStringList{u"@@ -0,0 +1,2 @@"_s, u"+x"_s, u"+y"_s}));
    EXPECT_EQ(TextDiff::unified(u"x"_s, QString()), (QStringList{u"@@ -1 +0,0 @@"_s, u"-x"_s}));

    QStringList lines;
    for (int i = 1; i <= 20; ++i)
        lines << u"line %1"_s.arg(i);
    QStringList changed = lines;
    changed[1] = u"second"_s; // line 2
    changed[5] = u"sixth"_s;  // line 6, within 6 lines: same hunk
    changed.removeAt(16);     // line 17: a hunk of its own
    const QStringList diff
        = TextDiff::unified(lines.join(QLatin1Char('\n')), changed.join(QLatin1Char('\n')));
    const QStringList expected{
        u"@@ -1,9 +1,9 @@"_s, u" line 1"_s,  u"-line 2"_s,           u"+second"_s,  u" line 3"_s,
        u" line 4"_s,         u" line 5"_s,  u"-line 6"_s,           u"+sixth"_s,   u" line 7"_s,
        u" line 8"_s,         u" line 9"_s,  u"@@ -14,7 +14,6 @@"_s, u" line 14"_s, u" line 15"_s,
        u" line 16"_s,        u"-line 17"_s, u" line 18"_s,          u" line 19"_s, u" line 20"_s};
    EXPECT_EQ(diff, expected);
}
