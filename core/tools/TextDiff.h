#pragma once

#include <QString>
#include <QStringList>

// A line diff of two texts in the unified form ("@@ -a,b +c,d @@", then lines marked " ",
// "-" and "+"), with three lines of context. Lines end at CR LF, LF or CR alike, so that a
// condition saved on another system compares by its content.
class TextDiff final
{
public:
    // Empty when the lines are the same.
    static QStringList unified(const QString &oldText, const QString &newText, int context = 3);
    static QStringList splitLines(const QString &text);

private:
    enum class Op { Same, Removed, Added };
    struct Step
    {
        Op op;
        qsizetype oldLine; // 0-based, of the old text for Same and Removed
        qsizetype newLine; // of the new text for Same and Added
    };
    static QList<Step> steps(const QStringList &oldLines, const QStringList &newLines);
};
