#include "basic/ScriptEditing.h"

#include "basic/BasicLexer.h"

#include <algorithm>
#include <vector>

namespace {

using K = BasicKeyword;

// The blocks whose inner lines go one level deeper.
enum class Block { None, If, For, Do, While, Select, Case, Procedure, With, Type, Enum };

// What a line does to the blocks around it. Else and ElseIf end the If's part before them and
// start one of their own; a Case ends the Case before it.
struct LineRole
{
    Block opens = Block::None;
    Block closes = Block::None;
    int count = 1; // of the blocks it closes: "Next j, i" ends two
};

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

qsizetype indentLength(QStringView line)
{
    qsizetype n = 0;
    while (n < line.size() && isBlank(line[n]))
        ++n;
    return n;
}

bool isBlankLine(QStringView line)
{
    return indentLength(line) == line.size();
}

// The tokens of one line that carry meaning: no comment, line end or end of text.
std::vector<BasicToken> statementTokens(QStringView line)
{
    std::vector<BasicToken> tokens = BasicLexer::tokenize(line);
    std::erase_if(tokens, [](const BasicToken &t) {
        return t.kind == BasicTokenKind::Comment || t.kind == BasicTokenKind::LineEnd
               || t.kind == BasicTokenKind::EndOfText || t.kind == BasicTokenKind::LineContinuation;
    });
    return tokens;
}

Block blockOfEnd(K keyword)
{
    switch (keyword) {
    case K::If:
        return Block::If;
    case K::Select:
        return Block::Select;
    case K::Sub:
    case K::Function:
    case K::Property:
        return Block::Procedure;
    case K::With:
        return Block::With;
    case K::Type:
        return Block::Type;
    case K::Enum:
        return Block::Enum;
    default:
        return Block::None;
    }
}

LineRole roleOf(QStringView line)
{
    const std::vector<BasicToken> tokens = statementTokens(line);
    size_t i = 0;
    // A label in front ("Done:") does not change what the statement is.
    if (tokens.size() > 1 && tokens[0].kind == BasicTokenKind::Identifier
        && tokens[1].symbol == BasicSymbol::Colon)
        i = 2;
    while (i < tokens.size()
           && (tokens[i].keyword == K::Private || tokens[i].keyword == K::Public
               || tokens[i].keyword == K::Friend || tokens[i].keyword == K::Static
               || tokens[i].keyword == K::Global))
        ++i;
    if (i >= tokens.size() || tokens[i].kind != BasicTokenKind::Keyword)
        return {};
    const K next = i + 1 < tokens.size() ? tokens[i + 1].keyword : K::None;
    LineRole role;
    switch (tokens[i].keyword) {
    case K::Sub:
    case K::Function:
    case K::Property:
        role.opens = Block::Procedure;
        break;
    case K::Type:
        role.opens = Block::Type;
        break;
    case K::Enum:
        role.opens = Block::Enum;
        break;
    case K::If:
        // Only a block If ends its line with Then; "If x Then y = 1" is whole.
        if (tokens.back().keyword == K::Then)
            role.opens = Block::If;
        break;
    case K::ElseIf:
    case K::Else:
        role.closes = role.opens = Block::If;
        break;
    case K::For:
        role.opens = Block::For;
        break;
    case K::Next:
        role.closes = Block::For;
        role.count = 1 + int(std::count_if(tokens.begin() + i, tokens.end(), [](const auto &t) {
                         return t.symbol == BasicSymbol::Comma;
                     }));
        break;
    case K::Do:
        role.opens = Block::Do;
        break;
    case K::Loop:
        role.closes = Block::Do;
        break;
    case K::While:
        role.opens = Block::While;
        break;
    case K::Wend:
        role.closes = Block::While;
        break;
    case K::Select:
        role.opens = Block::Select;
        break;
    case K::Case:
        role.closes = role.opens = Block::Case;
        break;
    case K::With:
        role.opens = Block::With;
        break;
    case K::End:
        role.closes = blockOfEnd(next);
        break;
    default:
        break;
    }
    return role;
}

struct OpenBlock
{
    Block block;
    QString indent;
};

// The blocks still open behind `lines`, innermost last.
std::vector<OpenBlock> openBlocks(const QStringList &lines)
{
    std::vector<OpenBlock> stack;
    const auto innermost = [&stack](Block block) {
        return std::find_if(
            stack.rbegin(), stack.rend(), [block](const OpenBlock &b) { return b.block == block; });
    };
    for (const QString &line : lines) {
        const LineRole role = roleOf(line);
        const QString indent = line.left(indentLength(line));
        if (role.closes == Block::Case) {
            // A Case ends the one before it, within its Select; outside one it means nothing.
            if (!stack.empty() && stack.back().block == Block::Case)
                stack.pop_back();
            if (stack.empty() || stack.back().block != Block::Select)
                continue;
        } else if (role.closes != Block::None) {
            if (role.opens == role.closes)
                continue; // Else and ElseIf leave their If open
            for (int n = 0; n < role.count; ++n) {
                const auto found = innermost(role.closes);
                if (found == stack.rend())
                    break;
                stack.erase(std::prev(found.base()), stack.end());
            }
            continue;
        }
        if (role.opens != Block::None)
            stack.push_back({role.opens, indent});
    }
    return stack;
}

// The words that, alone on a line, end or divide a block.
constexpr QStringView closingPhrases[] = {
    u"End If",
    u"Else",
    u"ElseIf",
    u"Next",
    u"Loop",
    u"Wend",
    u"Case",
    u"End Select",
    u"End Sub",
    u"End Function",
    u"End Property",
    u"End With",
    u"End Type",
    u"End Enum",
};

} // namespace

namespace ScriptEditing {

bool endsBlock(QStringView line)
{
    const QString words = line.toString().simplified();
    return std::any_of(std::begin(closingPhrases), std::end(closingPhrases), [&](QStringView p) {
        return words.compare(p, Qt::CaseInsensitive) == 0;
    });
}

QString indentUnit(QStringView text)
{
    qsizetype start = 0;
    while (start < text.size()) {
        qsizetype end = text.indexOf(u'\n', start);
        if (end < 0)
            end = text.size();
        const QStringView line = text.sliced(start, end - start);
        const qsizetype n = indentLength(line);
        if (n > 0 && n < line.size()) {
            if (line[0] == u'\t')
                return QStringLiteral("\t");
            qsizetype spaces = 0;
            while (spaces < n && line[spaces] == u' ')
                ++spaces;
            return QString(std::min<qsizetype>(spaces, 8), u' ');
        }
        start = end + 1;
    }
    return QStringLiteral("\t");
}

QStringList indentLines(const QStringList &lines, const QString &unit)
{
    QStringList result;
    result.reserve(lines.size());
    for (const QString &line : lines)
        result << (isBlankLine(line) ? line : unit + line);
    return result;
}

QStringList outdentLines(const QStringList &lines, const QString &unit)
{
    const qsizetype width = unit == u"\t" ? 4 : std::max<qsizetype>(1, unit.size());
    QStringList result;
    result.reserve(lines.size());
    for (const QString &line : lines) {
        qsizetype cut = 0;
        if (line.startsWith(u'\t')) {
            cut = 1;
        } else {
            while (cut < width && cut < line.size() && line[cut] == u' ')
                ++cut;
        }
        result << line.mid(cut);
    }
    return result;
}

QStringList toggleComment(const QStringList &lines)
{
    bool allComments = true;
    bool anyText = false;
    qsizetype column = -1;
    for (const QString &line : lines) {
        if (isBlankLine(line))
            continue;
        anyText = true;
        const qsizetype n = indentLength(line);
        column = column < 0 ? n : std::min(column, n);
        allComments = allComments && line[n] == u'\'';
    }
    if (!anyText)
        return lines;
    QStringList result;
    result.reserve(lines.size());
    for (const QString &line : lines) {
        if (isBlankLine(line)) {
            result << line;
        } else if (allComments) {
            const qsizetype mark = indentLength(line);
            const qsizetype length = mark + 1 < line.size() && line[mark + 1] == u' ' ? 2 : 1;
            result << QString(line).remove(mark, length);
        } else {
            result << QString(line).insert(column, QStringLiteral("' "));
        }
    }
    return result;
}

QString newLineIndent(QStringView lineBeforeCaret, const QString &unit)
{
    const QString indent = lineBeforeCaret.left(indentLength(lineBeforeCaret)).toString();
    return roleOf(lineBeforeCaret).opens == Block::None ? indent : indent + unit;
}

std::optional<QString>
outdentedAsTyped(const QStringList &linesBefore, QStringView line, const QString &unit)
{
    if (!endsBlock(line))
        return std::nullopt;
    const LineRole role = roleOf(line);
    const std::vector<OpenBlock> stack = openBlocks(linesBefore);
    std::optional<QString> indent;
    int wanted = role.count;
    for (auto it = stack.rbegin(); it != stack.rend() && !indent; ++it) {
        if (role.closes == Block::Case) {
            if (it->block == Block::Case)
                indent = it->indent;
            else if (it->block == Block::Select)
                indent = it->indent + unit;
        } else if (it->block == role.closes && --wanted == 0) {
            indent = it->indent;
        }
    }
    if (!indent)
        return std::nullopt;
    const QString result = *indent + line.sliced(indentLength(line)).toString();
    if (result == line)
        return std::nullopt;
    return result;
}

int matchingBracket(QStringView line, int index)
{
    const std::vector<BasicToken> tokens = BasicLexer::tokenize(line);
    const auto at = std::find_if(tokens.begin(), tokens.end(), [index](const BasicToken &t) {
        return t.offset == index
               && (t.symbol == BasicSymbol::LeftParen || t.symbol == BasicSymbol::RightParen);
    });
    if (at == tokens.end())
        return -1;
    const bool forward = at->symbol == BasicSymbol::LeftParen;
    int depth = 0;
    const auto step = [&](const BasicToken &t) {
        if (t.symbol == BasicSymbol::LeftParen)
            depth += forward ? 1 : -1;
        else if (t.symbol == BasicSymbol::RightParen)
            depth += forward ? -1 : 1;
        return depth == 0;
    };
    if (forward) {
        const auto found = std::find_if(at, tokens.end(), step);
        return found == tokens.end() ? -1 : found->offset;
    }
    const auto found = std::find_if(std::make_reverse_iterator(at + 1), tokens.rend(), step);
    return found == tokens.rend() ? -1 : found->offset;
}

Span markedSpan(QStringView line, int column)
{
    const int size = int(line.size());
    int start = std::clamp(column - 1, 0, size);
    int end = start;
    while (end < size && (line[end].isLetterOrNumber() || line[end] == u'_'))
        ++end;
    if (end == start)
        end = std::min(start + 1, size);
    if (end == start && start > 0)
        --start; // behind the line's end: the last character
    return {start, end};
}

QString newScript()
{
    return QStringLiteral("Sub Main\n\t\nEnd Sub\n");
}

bool isNewScript(QStringView text)
{
    return text.toString().simplified().compare(u"Sub Main End Sub", Qt::CaseInsensitive) == 0;
}

} // namespace ScriptEditing
