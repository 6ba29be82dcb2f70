#include "tools/TextDiff.h"

#include <gtest/gtest.h>

TEST(TextDiff, UnifiedHunksKeepThreeLinesOfContextAndMergeNearbyChanges)
{
    EXPECT_TRUE(TextDiff::unified(QStringLiteral("a\r\nb"), QStringLiteral("a\nb\n")).isEmpty());
    EXPECT_EQ(TextDiff::splitLines(QStringLiteral("a\r\nb\rc\n")),
              (QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));

    EXPECT_EQ(TextDiff::unified(QString(), QStringLiteral("x\ny")),
              (QStringList{
                  QStringLiteral("@@ -0,0 +1,2 @@"), QStringLiteral("+x"), QStringLiteral("+y")}));
    EXPECT_EQ(TextDiff::unified(QStringLiteral("x"), QString()),
              (QStringList{QStringLiteral("@@ -1 +0,0 @@"), QStringLiteral("-x")}));

    QStringList lines;
    for (int i = 1; i <= 20; ++i)
        lines << QStringLiteral("line %1").arg(i);
    QStringList changed = lines;
    changed[1] = QStringLiteral("second"); // line 2
    changed[5] = QStringLiteral("sixth");  // line 6, within 6 lines: same hunk
    changed.removeAt(16);                  // line 17: a hunk of its own
    const QStringList diff
        = TextDiff::unified(lines.join(QLatin1Char('\n')), changed.join(QLatin1Char('\n')));
    const QStringList expected{
        QStringLiteral("@@ -1,9 +1,9 @@"),   QStringLiteral(" line 1"),  QStringLiteral("-line 2"),
        QStringLiteral("+second"),           QStringLiteral(" line 3"),  QStringLiteral(" line 4"),
        QStringLiteral(" line 5"),           QStringLiteral("-line 6"),  QStringLiteral("+sixth"),
        QStringLiteral(" line 7"),           QStringLiteral(" line 8"),  QStringLiteral(" line 9"),
        QStringLiteral("@@ -14,7 +14,6 @@"), QStringLiteral(" line 14"), QStringLiteral(" line 15"),
        QStringLiteral(" line 16"),          QStringLiteral("-line 17"), QStringLiteral(" line 18"),
        QStringLiteral(" line 19"),          QStringLiteral(" line 20")};
    EXPECT_EQ(diff, expected);
}
