// Statements of BasicParser that a word leads which the language does not reserve, so that
// "rs.Open", "Debug.Print" or a variable called Name stay what they are: the file statements,
// LSet and RSet, RaiseEvent, and the point syntax of the graphics methods.
#include "basic/BasicParser.h"

namespace {

using K = BasicKeyword;
using S = BasicSymbol;
using T = BasicTokenKind;

bool same(QStringView a, QStringView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

} // namespace

bool BasicParser::isWord(QStringView word, int ahead) const
{
    const BasicToken &t = peek(ahead);
    return t.kind == T::Identifier && same(m_text.sliced(t.offset, t.length), word);
}

// True when the statement was one of these; false leaves the position as it was.
bool BasicParser::parseWordStatement()
{
    // "Name = 1" and "Lock.Text = x" are no such statements, nor is "Lock" alone, which calls
    // a procedure; the reserved words Open, LSet, RSet and RaiseEvent lead theirs in any case.
    const BasicToken &next = peek();
    if (next.symbol == S::Equal || next.symbol == S::Dot || next.symbol == S::Bang)
        return false;
    const bool reserved
        = isWord(u"Open") || isWord(u"LSet") || isWord(u"RSet") || isWord(u"RaiseEvent");
    if (!reserved
        && (next.kind == T::LineEnd || next.kind == T::EndOfText || next.symbol == S::Colon))
        return false;
    if (isWord(u"Open")) {
        parseOpen();
    } else if (isWord(u"Line") && isWord(u"Input", 1)) {
        parseLineInput();
    } else if (isWord(u"Lock") || isWord(u"Unlock")) {
        parseLock();
    } else if (isWord(u"Name")) {
        // "Name(1) = x" assigns to an array; the statement has an As at its top level.
        int depth = 0;
        for (int ahead = 1;; ++ahead) {
            const BasicToken &t = peek(ahead);
            if (t.kind == T::LineEnd || t.kind == T::EndOfText
                || (depth == 0 && t.symbol == S::Colon))
                return false;
            depth += t.symbol == S::LeftParen ? 1 : t.symbol == S::RightParen ? -1 : 0;
            if (depth == 0 && t.keyword == K::As)
                break;
        }
        parseName();
    } else if (isWord(u"LSet") || isWord(u"RSet")) {
        parseFixedAssignment();
    } else if (isWord(u"RaiseEvent")) {
        parseRaiseEvent();
    } else {
        return false;
    }
    return true;
}

// Open path [For mode] [Access access] [lock] As [#]number [Len = length]
void BasicParser::parseOpen()
{
    advance();
    expression();
    if (accept(K::For))
        parseOpenMode();
    if (isWord(u"Access")) {
        advance();
        parseReadWrite();
    }
    if (isWord(u"Shared")) {
        advance();
    } else if (isWord(u"Lock")) {
        advance();
        parseReadWrite();
    }
    expect(K::As, "Expected: As");
    expression();
    if (isWord(u"Len")) {
        advance();
        expect(S::Equal, "Expected: =");
        expression();
    }
}

// Read, Write or Read Write, after Access and after Lock.
void BasicParser::parseReadWrite()
{
    if (isWord(u"Read")) {
        advance();
        if (isWord(u"Write"))
            advance();
    } else if (isWord(u"Write")) {
        advance();
    } else {
        fail(QStringLiteral("Expected: Read or Write"));
    }
}

void BasicParser::parseOpenMode()
{
    static constexpr QStringView modes[] = {u"Input", u"Output", u"Append", u"Binary", u"Random"};
    for (QStringView mode : modes) {
        if (isWord(mode)) {
            advance();
            return;
        }
    }
    fail(QStringLiteral("Expected: Input or Output or Append or Binary or Random"));
}

// Line Input #number, variable
void BasicParser::parseLineInput()
{
    advance();
    advance();
    expect(S::Hash, "Expected: #");
    expression();
    expect(S::Comma, "Expected: ,");
    const BasicToken &t = tok();
    if (t.kind != T::Identifier && !isSymbol(S::Dot) && !isSymbol(S::Bang))
        fail(QStringLiteral("Expected: identifier"));
    inspect(postfix());
}

// Lock [#]number [, record | , [first] To last], and the same for Unlock.
void BasicParser::parseLock()
{
    advance();
    expression();
    if (!accept(S::Comma))
        return;
    if (!isKeyword(K::To))
        expression();
    if (accept(K::To))
        expression();
}

// Name old As new
void BasicParser::parseName()
{
    advance();
    expression();
    expect(K::As, "Expected: As");
    expression();
}

// LSet target = value, RSet target = value
void BasicParser::parseFixedAssignment()
{
    advance();
    const BasicToken &t = tok();
    if (t.kind != T::Identifier && !isSymbol(S::Dot) && !isSymbol(S::Bang))
        fail(QStringLiteral("Expected: identifier"));
    const int target = postfix();
    expect(S::Equal, "Expected: =");
    expression();
    inspect(target);
}

// RaiseEvent name[(arguments)]
void BasicParser::parseRaiseEvent()
{
    advance();
    if (tok().kind != T::Identifier)
        fail(QStringLiteral("Expected: identifier"));
    const int name = addNode(NodeKind::Name, tokIndex());
    advance();
    inspect(isSymbol(S::LeftParen) ? callArguments(name) : name);
}

// The methods that take points, "[Step] (x, y)", where a call takes arguments:
//   [obj.]Line [[Step] (x1, y1)] - [Step] (x2, y2) [, colour] [, B[F]]
//   [obj.]Circle [Step] (x, y), radius [, colour, start, end, aspect]
//   [obj.]PSet [Step] (x, y) [, colour]
//   [obj.]Scale [(x1, y1) - (x2, y2)]
// target is what the statement read as a call; false when it is no such method call.
bool BasicParser::parseGraphics(int target)
{
    const Node node = m_nodes[size_t(target)];
    const bool point = node.kind == NodeKind::Call && node.second >= 0 && node.argCount == 2;
    const int method = point ? node.first : target;
    const NodeKind kind = m_nodes[size_t(method)].kind;
    if (kind != NodeKind::Name && kind != NodeKind::Member && kind != NodeKind::WithMember)
        return false;
    if (!point && !isKeyword(K::Step) && !isSymbol(S::Minus))
        return false;
    const QStringView name = textOf(m_nodes[size_t(method)].token);
    const bool line = same(name, u"Line");
    const bool scale = same(name, u"Scale");
    if (!line && !scale && !same(name, u"Circle") && !same(name, u"PSet"))
        return false;

    inspect(method);
    if (point)
        m_pos = node.second;
    if (line || scale) {
        if (!isSymbol(S::Minus) || scale)
            parsePoint();
        expect(S::Minus, "Expected: -");
        parsePoint();
    } else {
        parsePoint();
    }
    while (!scale && accept(S::Comma)) {
        if (!isSymbol(S::Comma) && !atStatementEnd())
            expression();
    }
    return true;
}

// [Step] (x, y)
void BasicParser::parsePoint()
{
    accept(K::Step);
    expect(S::LeftParen, "Expected: (");
    expression();
    expect(S::Comma, "Expected: ,");
    expression();
    expect(S::RightParen, "Expected: )");
}
