#include "project/modSource.h"

#include "platform/ErrorFrame.h"
#include "platform/FileUtils.h"
#include "platform/TextUtils.h"
#include "project/ByteScan.h"
#include "project/Windows1252.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace modSource {

namespace {

constexpr const char *C_Source = "C_Source";
constexpr qsizetype MaxPosition = 32767;

// Indentation, a numeric line label and its colon: what may stand before a statement.
bool isLeader(QChar c)
{
    return c == u'\t' || c == u':' || (c >= u'0' && c <= u'9');
}

QString trimLeft(const QString &text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start] == u' ')
        ++start;
    return text.mid(start);
}

// 1-based position of the first double quote at or after `start`, 0 when there is none;
// the position must fit the routine's 16-bit integer.
qsizetype quoteFrom(const QString &text, qsizetype start)
{
    const qsizetype at = text.indexOf(QLatin1Char('"'), start - 1) + 1;
    if (at > MaxPosition)
        throw QuorinError::overflow(QString::fromLatin1(C_Source));
    return at;
}

// A line this long can't reach a position past MaxPosition in StripQuotedText.
constexpr qsizetype ByteRulesLimit = 32000;

// What may stand before a statement: blanks and tabs, and a numeric label and its colon.
enum : unsigned char { Blank = 1, Label = 2 };
constexpr std::array<unsigned char, 256> Leaders = [] {
    std::array<unsigned char, 256> kinds{};
    kinds[' '] = kinds['\t'] = Blank;
    kinds[':'] = Label;
    for (char c = '0'; c <= '9'; ++c)
        kinds[static_cast<unsigned char>(c)] = Label;
    return kinds;
}();

// `text` begins with `word`, lower-case letters and blanks, ignoring the case of the letters.
bool startsWithWord(const char *text, const char *word, qsizetype length)
{
    for (qsizetype i = 0; i < length; ++i) {
        if (word[i] == ' ' ? text[i] != ' ' : (text[i] | 0x20) != word[i])
            return false;
    }
    return true;
}

} // namespace

::SourceLineType LineTypeOfWindows1252(QByteArrayView line)
{
    const qsizetype size = line.size();
    if (size > ByteRulesLimit)
        return SourceLineType(Windows1252::decode(line));
    const char *const text = line.data();
    // The rules see the line trimmed of blanks at its end and, in front, of indentation and
    // line labels (blanks, tabs, colons and digits). Blanks and tabs alone are a blank line.
    qsizetype start = 0;
    unsigned char leaders = 0;
    for (; start < size; ++start) {
        const unsigned char kind = Leaders[static_cast<unsigned char>(text[start])];
        if (kind == 0)
            break;
        leaders |= kind;
    }
    if (start == size && !(leaders & Label))
        return ::SourceLineType::Blank;
    qsizetype end = size;
    while (text[end - 1] == ' ')
        --end;
    start = std::min(start, end);
    if (start < end
        && (text[start] == '\'' || (end - start >= 4 && startsWithWord(text + start, "rem ", 4))))
        return ::SourceLineType::CommentOnly;
    if (text[end - 1] == '_')
        return ::SourceLineType::Continuation;

    // An apostrophe or ": Rem " outside string literals; a quote without its closing quote
    // leaves the rest of the line plain text.
    for (qsizetype i = start;; ++i) {
        i = ByteScan::findCommentMark(text + i, text + end) - text;
        if (i == end)
            break;
        if (text[i] == '\'')
            return ::SourceLineType::InLineComment;
        if (text[i] == '"') {
            const void *close = std::memchr(text + i + 1, '"', size_t(end - i - 1));
            if (close)
                i = static_cast<const char *>(close) - text;
        } else if (end - i >= 6 && startsWithWord(text + i + 1, " rem ", 5)) {
            return ::SourceLineType::InLineComment;
        }
    }
    return ::SourceLineType::Code;
}

::SourceLineType SourceLineType(const QString &line)
{
    return guarded("SourceLineType", C_Source, ::SourceLineType::Blank, [&] {
        if (IsBlankLine(line))
            return ::SourceLineType::Blank;
        if (IsCommentOnlyLine(line))
            return ::SourceLineType::CommentOnly;
        const auto type
            = HasInLineComment(line) ? ::SourceLineType::InLineComment : ::SourceLineType::Code;
        // Tested after the comment, so a comment-only line ending in "_" doesn't continue.
        if (Text::trimBlanks(line).endsWith(QLatin1Char('_')))
            return ::SourceLineType::Continuation;
        return type;
    });
}

// Spaces and tabs only; scanned in place because every line of every file comes through here.
bool IsBlankLine(const QString &line)
{
    for (const QChar c : line) {
        if (c != u' ' && c != u'\t')
            return false;
    }
    return true;
}

bool IsCommentOnlyLine(const QString &line)
{
    return guarded("IsCommentOnlyLine", C_Source, false, [&] {
        QString text = Text::trimBlanks(line);
        if (text.isEmpty())
            return false;
        while (!text.isEmpty() && isLeader(text[0]))
            text = Text::trimBlanks(text.mid(1));
        return text.startsWith(QLatin1String("Rem "), Qt::CaseInsensitive)
               || text.startsWith(QLatin1Char('\''));
    });
}

bool HasInLineComment(const QString &line)
{
    return guarded("HasInLineComment", C_Source, false, [&] {
        QString text = Text::trimBlanks(line);
        while (!text.isEmpty() && isLeader(text[0]))
            text = trimLeft(text.mid(1));
        text = StripQuotedText(text);
        return text.contains(QLatin1Char('\''))
               || text.contains(QLatin1String(": Rem "), Qt::CaseInsensitive);
    });
}

QString RemoveQuotes(const QString &text)
{
    return guarded(
        "RemoveQuotes", C_Source, QString(), [&] { return FileUtils::RemoveQuotes(text); });
}

QString StripQuotedText(const QString &text)
{
    return guarded("StripQuotedText", C_Source, QString(), [&] {
        QString result = text;
        qsizetype start = 1;
        qsizetype q1 = 0;
        qsizetype q2 = 0;
        do {
            q1 = quoteFrom(result, start);
            q2 = q1 > 0 ? quoteFrom(result, q1 + 1) : 0;
            if (q1 > 0 && q2 > 0) {
                if (q2 != q1 + 1)
                    result = result.left(q1) + result.mid(q2 - 1);
                start = q1 + 2;
                if (start > MaxPosition)
                    throw QuorinError::overflow(QString::fromLatin1(C_Source));
            }
        } while (start <= result.size() && q1 > 0 && q2 > 0);
        return result;
    });
}

} // namespace modSource
