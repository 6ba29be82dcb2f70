#include "basic/BasicColouring.h"

#include "basic/BasicLexer.h"
#include "basic/QuorinExtension.h"

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == QChar(0xA0);
}

// The lexer's rule: a blank and an underscore at the end, after something.
bool endsWithContinuation(QStringView text)
{
    qsizetype last = text.size() - 1;
    while (last > 0 && isBlank(text[last]))
        --last;
    return last > 0 && text[last] == u'_' && isBlank(text[last - 1]);
}

bool isQuorin(QStringView line, const BasicToken &token)
{
    return token.kind == BasicTokenKind::Identifier
           && line.sliced(token.offset, token.length).compare(u"Quorin", Qt::CaseInsensitive) == 0;
}

BasicStyle stringStyle(QStringView quoted, bool complete)
{
    const qsizetype inner = quoted.size() - (complete ? 2 : 1);
    if (inner <= 0)
        return BasicStyle::String;
    const QString name = quoted.sliced(1, inner).toString();
    return QuorinExtension::isVocabularyName(name) ? BasicStyle::VocabularyName
                                                   : BasicStyle::String;
}

} // namespace

namespace BasicColouring {

std::vector<StyledRange> colourLine(QStringView line, bool &continuedComment)
{
    std::vector<StyledRange> ranges;
    if (continuedComment) {
        if (!line.isEmpty())
            ranges.push_back({0, int(line.size()), BasicStyle::Comment});
        continuedComment = endsWithContinuation(line);
        return ranges;
    }
    continuedComment = false;
    const std::vector<BasicToken> tokens = BasicLexer::tokenize(line);
    for (size_t i = 0; i < tokens.size(); ++i) {
        const BasicToken &token = tokens[i];
        switch (token.kind) {
        case BasicTokenKind::Keyword:
            ranges.push_back({token.offset, token.length, BasicStyle::Keyword});
            break;
        case BasicTokenKind::String:
            ranges.push_back(
                {token.offset,
                 token.length,
                 stringStyle(line.sliced(token.offset, token.length), token.complete)});
            break;
        case BasicTokenKind::Comment:
            ranges.push_back({token.offset, token.length, BasicStyle::Comment});
            continuedComment = endsWithContinuation(line.sliced(token.offset));
            break;
        case BasicTokenKind::Number:
        case BasicTokenKind::Date:
            ranges.push_back({token.offset, token.length, BasicStyle::Number});
            break;
        case BasicTokenKind::Invalid:
            ranges.push_back({token.offset, token.length, BasicStyle::Invalid});
            break;
        case BasicTokenKind::Identifier:
            // "Quorin.Member": the object, and the member when one follows the dot.
            if (isQuorin(line, token) && i + 1 < tokens.size()
                && tokens[i + 1].symbol == BasicSymbol::Dot) {
                ranges.push_back({token.offset, token.length, BasicStyle::QuorinMember});
                if (i + 2 < tokens.size() && tokens[i + 2].kind == BasicTokenKind::Identifier) {
                    const BasicToken &member = tokens[i + 2];
                    ranges.push_back({member.offset, member.length, BasicStyle::QuorinMember});
                    i += 2;
                }
            }
            break;
        default:
            break;
        }
    }
    return ranges;
}

} // namespace BasicColouring
