#include "basic/BasicCompletion.h"

#include "basic/BasicLexer.h"
#include "basic/QuorinExtension.h"
#include "vocabulary/ObjectHelper.h"
#include "vocabulary/ObjectListType.h"
#include "vocabulary/ParserEventCatalogue.h"

#include <QSet>

#include <algorithm>

namespace {

bool isLineEnd(QChar c)
{
    return c == u'\r' || c == u'\n';
}

// One line's tokens as the grammar sees them: no comments, continuations or line ends.
class LineTokens
{
public:
    explicit LineTokens(QStringView line)
        : m_line(line)
    {
        for (const BasicToken &token : BasicLexer::tokenize(line)) {
            if (token.kind != BasicTokenKind::LineContinuation
                && token.kind != BasicTokenKind::LineEnd && token.kind != BasicTokenKind::EndOfText)
                m_tokens.push_back(token);
        }
    }

    int count() const { return int(m_tokens.size()); }
    const BasicToken &at(int i) const { return m_tokens[size_t(i)]; }
    QStringView text(int i) const { return m_line.sliced(at(i).offset, at(i).length); }

    bool isSymbol(int i, BasicSymbol symbol) const
    {
        return i >= 0 && i < count() && at(i).symbol == symbol;
    }
    bool isName(int i, QStringView name) const
    {
        return i >= 0 && i < count() && at(i).kind == BasicTokenKind::Identifier
               && text(i).compare(name, Qt::CaseInsensitive) == 0;
    }
    // "Quorin.Member" ending at token i: the member's name, else empty.
    QStringView quorinMemberEndingAt(int i) const
    {
        if (i >= 2 && at(i).kind == BasicTokenKind::Identifier && isSymbol(i - 1, BasicSymbol::Dot)
            && isName(i - 2, u"Quorin"))
            return text(i);
        return {};
    }
    // A "Quorin.ParserEvent" or "Quorin.ParserEvent()" ending at token i.
    bool parserEventEndingAt(int i) const
    {
        if (isSymbol(i, BasicSymbol::RightParen) && isSymbol(i - 1, BasicSymbol::LeftParen))
            i -= 2;
        return quorinMemberEndingAt(i).compare(u"ParserEvent", Qt::CaseInsensitive) == 0;
    }
    // A complete string literal's value.
    QString stringValue(int i) const
    {
        const QStringView quoted = text(i);
        if (at(i).kind != BasicTokenKind::String || !at(i).complete || quoted.size() < 2)
            return {};
        return quoted.sliced(1, quoted.size() - 2)
            .toString()
            .replace(QLatin1String("\"\""), QLatin1String("\""));
    }

private:
    QStringView m_line;
    std::vector<BasicToken> m_tokens;
};

// Whether the innermost Select Case open above `lineStart` selects on the parser event.
bool insideParserEventSelect(QStringView text, qsizetype lineStart)
{
    int depth = 0;
    qsizetype end = lineStart;
    while (end > 0) {
        qsizetype start = end - 1; // the line end before this line
        if (start > 0 && text[start] == u'\n' && text[start - 1] == u'\r')
            --start;
        const qsizetype lineEnd = start;
        while (start > 0 && !isLineEnd(text[start - 1]))
            --start;
        const QStringView line = text.sliced(start, lineEnd - start).trimmed();
        end = start;
        if (line.startsWith(u"End Select", Qt::CaseInsensitive)) {
            ++depth;
        } else if (line.startsWith(u"Select Case", Qt::CaseInsensitive)) {
            if (depth == 0)
                return line.contains(u"Quorin.ParserEvent", Qt::CaseInsensitive);
            --depth;
        }
    }
    return false;
}

CompletionContext
stringContext(const LineTokens &tokens, int index, QStringView text, qsizetype lineStart)
{
    CompletionContext context;
    const int before = index - 1;
    if (tokens.isSymbol(before, BasicSymbol::LeftParen)) {
        const QStringView member = tokens.quorinMemberEndingAt(before - 1);
        if (member.compare(u"GetObjectProperty", Qt::CaseInsensitive) == 0)
            context.kind = CompletionKind::Object;
        else if (member.compare(u"GetObjectWorkField", Qt::CaseInsensitive) == 0)
            context.kind = CompletionKind::WorkfieldObject;
    } else if (tokens.isSymbol(before, BasicSymbol::Comma) && before >= 2
               && tokens.at(before - 1).kind == BasicTokenKind::String
               && tokens.isSymbol(before - 2, BasicSymbol::LeftParen)) {
        const QStringView member = tokens.quorinMemberEndingAt(before - 3);
        if (member.compare(u"GetObjectProperty", Qt::CaseInsensitive) == 0)
            context.kind = CompletionKind::Property;
        else if (member.compare(u"GetObjectWorkField", Qt::CaseInsensitive) == 0)
            context.kind = CompletionKind::Workfield;
        context.object = tokens.stringValue(before - 1);
    } else if (tokens.isSymbol(before, BasicSymbol::Equal)
               || tokens.isSymbol(before, BasicSymbol::NotEqual)) {
        if (tokens.parserEventEndingAt(before - 1))
            context.kind = CompletionKind::ParserEvent;
    } else if (tokens.count() > 0 && tokens.at(0).keyword == BasicKeyword::Case
               && insideParserEventSelect(text, lineStart)) {
        context.kind = CompletionKind::ParserEvent;
    }
    if (context.kind == CompletionKind::None)
        context.object.clear();
    return context;
}

QStringList sortedUnique(const QStringList &names)
{
    QStringList result;
    QSet<QString> seen;
    for (const QString &name : names) {
        if (!name.isEmpty() && !seen.contains(name.toCaseFolded())) {
            seen.insert(name.toCaseFolded());
            result << name;
        }
    }
    std::sort(result.begin(), result.end(), [](const QString &a, const QString &b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    return result;
}

} // namespace

namespace BasicCompletion {

CompletionContext contextAt(QStringView text, int position)
{
    const qsizetype caret = std::clamp<qsizetype>(position, 0, text.size());
    qsizetype lineStart = caret;
    while (lineStart > 0 && !isLineEnd(text[lineStart - 1]))
        --lineStart;
    qsizetype lineEnd = caret;
    while (lineEnd < text.size() && !isLineEnd(text[lineEnd]))
        ++lineEnd;
    const QStringView line = text.sliced(lineStart, lineEnd - lineStart);
    const int column = int(caret - lineStart);
    const LineTokens tokens(line);

    for (int i = 0; i < tokens.count(); ++i) {
        const BasicToken &token = tokens.at(i);
        const int end = token.offset + token.length;
        if (token.offset >= column)
            break;
        if (token.kind == BasicTokenKind::Comment)
            return {};
        if (token.kind == BasicTokenKind::String
            && (column < end || (!token.complete && column == end))) {
            CompletionContext context = stringContext(tokens, i, text, lineStart);
            if (context.kind != CompletionKind::None) {
                context.start = int(lineStart) + token.offset + 1;
                context.prefix
                    = line.sliced(token.offset + 1, column - token.offset - 1).toString();
            }
            return context;
        }
        // Right behind "Quorin." or inside the name that follows it.
        if (token.symbol == BasicSymbol::Dot && end == column && tokens.isName(i - 1, u"Quorin"))
            return {CompletionKind::QuorinMember, int(caret), QString(), QString()};
        if (column <= end && !tokens.quorinMemberEndingAt(i).isNull()) {
            return {CompletionKind::QuorinMember,
                    int(lineStart) + token.offset,
                    line.sliced(token.offset, column - token.offset).toString(),
                    QString()};
        }
    }
    return {};
}

QStringList words(const CompletionContext &context, const QStringList &workfields)
{
    QStringList names;
    QList<qint32> ids;
    switch (context.kind) {
    case CompletionKind::None:
        break;
    case CompletionKind::QuorinMember:
        for (const QuorinMember &member : QuorinExtension::members())
            names << member.name.toString();
        break;
    case CompletionKind::Object:
        ObjectHelper::GetObjectList(ObjectListType::Everything, names, ids);
        break;
    case CompletionKind::WorkfieldObject: {
        QStringList all;
        ObjectHelper::GetObjectList(ObjectListType::Everything, all, ids);
        for (int i = 0; i < all.size(); ++i) {
            if (ObjectHelper::ObjectHasWorkfields(ids[i]))
                names << all[i];
        }
        break;
    }
    case CompletionKind::Property:
        if (const qint32 object = ObjectHelper::ObjectIDFromName(context.object))
            ObjectHelper::GetPropertyList(ObjectListType::Everything, object, names, ids);
        break;
    case CompletionKind::Workfield:
        names = workfields;
        break;
    case CompletionKind::ParserEvent:
        for (const auto &event : ParserEventCatalogue::events())
            names << event.text.toString();
        break;
    }
    return sortedUnique(names);
}

} // namespace BasicCompletion
