#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

// What a code editor does to condition text beyond typing, without the widget: block indent and
// outdent, comments, the indentation of new and closing lines, bracket pairs, and the text a new
// condition starts with. Lines come without their line ends.
namespace ScriptEditing {

// One level of indentation as the text already has it: the leading blanks of its first indented
// line (a tab, or up to eight spaces), a tab when no line is indented yet.
QString indentUnit(QStringView text);

// Each line one level deeper; blank lines stay as they are.
QStringList indentLines(const QStringList &lines, const QString &unit);
// Each line one level shallower: a leading tab, or up to a level's width of leading spaces.
QStringList outdentLines(const QStringList &lines, const QString &unit);

// Comments the lines out with "' " at their common indentation, or, when every line that is not
// blank is a ' comment already, takes that mark (and one space behind it) away.
QStringList toggleComment(const QStringList &lines);

// The leading blanks of a new line that Enter starts behind `lineBeforeCaret`: those of that line,
// one level more after a line that opens a block ("If x Then", "For", "Do", "Select Case",
// "Case 1", "Else", "Sub Main"...).
QString newLineIndent(QStringView lineBeforeCaret, const QString &unit);

// True for a line that holds no more than the words that end or divide a block ("End If", "Else",
// "Case", "Next"...), whatever its blanks and case.
bool endsBlock(QStringView line);

// The line as it should read once its last word was typed: a line that has just become "End If",
// "Else", "ElseIf", "Next", "Loop", "Wend", "Case", "End Select", "End Sub" or another block's end
// takes the indentation of the line that opened its block. nullopt when nothing is to change.
std::optional<QString>
outdentedAsTyped(const QStringList &linesBefore, QStringView line, const QString &unit);

// Of a round bracket at `index` of a line, the index of its partner; -1 for none, and for a
// bracket in a string or comment.
int matchingBracket(QStringView line, int index);

// The characters [start, end) of a line that an error at a 1-based column marks: the word there,
// else one character (the last of the line when the column lies behind it).
struct Span
{
    int start;
    int end;
};
Span markedSpan(QStringView line, int column);

// What the editor shows for a condition that has no text yet, with LF line ends, and the line
// and column the caret starts at.
QString newScript();
constexpr int newScriptLine = 2;
// True for a text that is still no more than that skeleton, whatever its blanks and case.
bool isNewScript(QStringView text);

} // namespace ScriptEditing
