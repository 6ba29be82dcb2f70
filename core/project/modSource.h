#pragma once

#include <QByteArrayView>
#include <QString>

// What one line of Visual Basic source is, as the line analysis classifies it.
enum class SourceLineType : qint32 {
    Blank = 0,
    CommentOnly = 1,
    InLineComment = 2,
    Code = 3,
    Continuation = 4,
};

// Pure text rules that classify one line of source. They are simple rules, not a parse, and
// their oddities ("Rem" alone is code, ": Rem " needs both blanks) are part of what they give.
// Trim removes blanks only; comparisons ignore case.
namespace modSource {

::SourceLineType SourceLineType(const QString &line);
// SourceLineType of the line these Windows-1252 bytes decode to, read off the bytes: every
// character the rules look at is ASCII, and no other byte decodes to one. Lines too long for
// the 16-bit positions go the decoded way, so they fail (and log) alike.
::SourceLineType LineTypeOfWindows1252(QByteArrayView line);
bool IsBlankLine(const QString &line);
bool IsCommentOnlyLine(const QString &line);
// Also true for a comment-only line; only SourceLineType's order tells the two apart.
bool HasInLineComment(const QString &line);
QString RemoveQuotes(const QString &text);
// Empties string literals and keeps their quotes: x = "it's" becomes x = "". Positions are
// 16-bit, so a quote beyond position 32767 fails (logged) and gives the empty string.
QString StripQuotedText(const QString &text);

} // namespace modSource
