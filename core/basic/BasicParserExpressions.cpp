// The expression half of BasicParser: operators by precedence, calls and member access, the
// assignment-or-call statement that needs them, and the checks of the `Quorin` calls.
#include "basic/BasicParser.h"

#include "basic/QuorinExtension.h"

#include <QStringList>

namespace {

using K = BasicKeyword;
using S = BasicSymbol;
using T = BasicTokenKind;

bool isComparison(const BasicToken &t)
{
    switch (t.symbol) {
    case S::Equal:
    case S::NotEqual:
    case S::Less:
    case S::Greater:
    case S::LessEqual:
    case S::GreaterEqual:
        return true;
    default:
        return t.keyword == K::Like || t.keyword == K::Is;
    }
}

} // namespace

BasicParser::DepthGuard::DepthGuard(BasicParser &parser)
    : m_parser(parser)
{
    if (m_parser.m_depth >= MaxDepth)
        m_parser.fail(QStringLiteral("Expression too complex"));
    ++m_parser.m_depth;
}

int BasicParser::addNode(NodeKind kind, int token, int first, int second)
{
    m_nodes.push_back({kind, token, first, second});
    return int(m_nodes.size()) - 1;
}

int BasicParser::expression()
{
    const int node = impExpression();
    inspect(node);
    return node;
}

// ---- operators, loosest first ----------------------------------------------------------------

int BasicParser::impExpression()
{
    int left = eqvExpression();
    while (isKeyword(K::Imp)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, eqvExpression());
    }
    return left;
}

int BasicParser::eqvExpression()
{
    int left = xorExpression();
    while (isKeyword(K::Eqv)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, xorExpression());
    }
    return left;
}

int BasicParser::xorExpression()
{
    int left = orExpression();
    while (isKeyword(K::Xor)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, orExpression());
    }
    return left;
}

int BasicParser::orExpression()
{
    int left = andExpression();
    while (isKeyword(K::Or)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, andExpression());
    }
    return left;
}

int BasicParser::andExpression()
{
    int left = notExpression();
    while (isKeyword(K::And)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, notExpression());
    }
    return left;
}

int BasicParser::notExpression()
{
    if (!isKeyword(K::Not))
        return comparison();
    const DepthGuard guard(*this);
    const int op = tokIndex();
    advance();
    return addNode(NodeKind::Unary, op, notExpression());
}

int BasicParser::comparison()
{
    int left = concatenation();
    while (isComparison(tok())) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, concatenation());
    }
    return left;
}

int BasicParser::concatenation()
{
    int left = additive();
    while (isSymbol(S::Ampersand)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, additive());
    }
    return left;
}

int BasicParser::additive()
{
    int left = modulo();
    while (isSymbol(S::Plus) || isSymbol(S::Minus)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, modulo());
    }
    return left;
}

int BasicParser::modulo()
{
    int left = integerDivision();
    while (isKeyword(K::Mod)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, integerDivision());
    }
    return left;
}

int BasicParser::integerDivision()
{
    int left = multiplicative();
    while (isSymbol(S::Backslash)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, multiplicative());
    }
    return left;
}

int BasicParser::multiplicative()
{
    int left = unary();
    while (isSymbol(S::Star) || isSymbol(S::Slash)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, unary());
    }
    return left;
}

// Negation binds looser than "^": -a ^ b is -(a ^ b). A Not among operands ("a = Not b") takes
// the comparison behind it.
int BasicParser::unary()
{
    const int op = tokIndex();
    if (isSymbol(S::Minus) || isSymbol(S::Plus)) {
        const DepthGuard guard(*this);
        advance();
        return addNode(NodeKind::Unary, op, unary());
    }
    if (isKeyword(K::Not)) {
        advance();
        return addNode(NodeKind::Unary, op, notExpression());
    }
    return power();
}

int BasicParser::power()
{
    int left = postfix();
    while (isSymbol(S::Caret)) {
        const int op = tokIndex();
        advance();
        left = addNode(NodeKind::Binary, op, left, powerOperand());
    }
    return left;
}

// The exponent may carry its own sign: a ^ -b.
int BasicParser::powerOperand()
{
    if (isSymbol(S::Minus) || isSymbol(S::Plus)) {
        const DepthGuard guard(*this);
        const int op = tokIndex();
        advance();
        return addNode(NodeKind::Unary, op, powerOperand());
    }
    return postfix();
}

// ---- operands --------------------------------------------------------------------------------

int BasicParser::postfix()
{
    int node = primary();
    const NodeKind kind = m_nodes[size_t(node)].kind;
    if (kind != NodeKind::Name && kind != NodeKind::WithMember)
        return node;
    for (;;) {
        if (isSymbol(S::Dot) || isSymbol(S::Bang)) {
            // Inside With, "Foo .Bar" passes .Bar to Foo.
            if (spaceBefore() && inBlock(BlockKind::With))
                return node;
            advance();
            if (tok().kind != T::Identifier && tok().kind != T::Keyword)
                fail(QStringLiteral("Expected: identifier"));
            node = addNode(NodeKind::Member, tokIndex(), node);
            advance();
        } else if (isSymbol(S::LeftParen)) {
            node = callArguments(node);
        } else {
            return node;
        }
    }
}

int BasicParser::primary()
{
    const DepthGuard guard(*this);
    const BasicToken &t = tok();
    const int index = tokIndex();
    switch (t.kind) {
    case T::Date:
        if (!t.complete)
            fail(QStringLiteral("Unterminated date literal"));
        advance();
        return addNode(NodeKind::Literal, index);
    case T::Number:
        advance();
        return addNode(NodeKind::Literal, index);
    case T::String:
        if (!t.complete)
            fail(QStringLiteral("Unterminated string constant"));
        advance();
        return addNode(NodeKind::Literal, index);
    case T::Identifier:
        advance();
        return addNode(NodeKind::Name, index);
    case T::Keyword:
        switch (t.keyword) {
        case K::True:
        case K::False:
        case K::Nothing:
        case K::Null:
        case K::Empty:
            advance();
            return addNode(NodeKind::Literal, index);
        case K::Me:
        case K::Date:
        case K::String:
        case K::Error:
            advance();
            return addNode(NodeKind::Name, index);
        case K::New: {
            advance();
            const int type = tokIndex();
            parseTypeName(false);
            return addNode(NodeKind::New, index, -1, type);
        }
        case K::TypeOf: {
            advance();
            const int operand = postfix();
            expect(K::Is, "Expected: Is");
            parseTypeName(false);
            return addNode(NodeKind::TypeOf, index, operand);
        }
        case K::AddressOf:
            advance();
            return addNode(NodeKind::AddressOf, index, postfix());
        default:
            break;
        }
        break;
    case T::Punctuation:
        switch (t.symbol) {
        case S::LeftParen: {
            advance();
            const int inner = impExpression();
            expect(S::RightParen, "Expected: )");
            return addNode(NodeKind::Paren, index, inner);
        }
        case S::Dot:
        case S::Bang:
            if (!inBlock(BlockKind::With))
                fail(QStringLiteral("Invalid or unqualified reference"));
            advance();
            if (tok().kind != T::Identifier && tok().kind != T::Keyword)
                fail(QStringLiteral("Expected: identifier"));
            advance();
            return addNode(NodeKind::WithMember, m_sig[size_t(m_pos - 1)]);
        case S::Hash:
            advance();
            return addNode(NodeKind::FileNumber, index, unary());
        default:
            break;
        }
        break;
    default:
        break;
    }
    fail(QStringLiteral("Expected: expression"));
}

// At the "(" behind a callee.
int BasicParser::callArguments(int callee)
{
    const DepthGuard guard(*this);
    const int paren = m_pos;
    advance();
    std::vector<int> arguments;
    if (!accept(S::RightParen)) {
        for (;;) {
            arguments.push_back(argument());
            if (accept(S::Comma))
                continue;
            if (accept(S::RightParen))
                break;
            fail(QStringLiteral("Expected: list separator or )"));
        }
    }
    const int node = addNode(NodeKind::Call, m_nodes[size_t(callee)].token, callee, paren);
    m_nodes.back().argStart = int(m_args.size());
    m_nodes.back().argCount = int(arguments.size());
    m_args.insert(m_args.end(), arguments.begin(), arguments.end());
    return node;
}

int BasicParser::argument()
{
    if (isSymbol(S::Comma) || isSymbol(S::RightParen) || isSymbol(S::Semicolon) || atStatementEnd())
        return addNode(NodeKind::Missing, tokIndex());
    // A parameter may bear a reserved word's name: InputBox(Prompt:="?", Type:=1).
    if ((tok().kind == T::Identifier || tok().kind == T::Keyword)
        && peek().symbol == S::ColonEquals) {
        const int name = tokIndex();
        advance();
        advance();
        return addNode(NodeKind::Named, name, impExpression());
    }
    accept(K::ByVal); // overrides the passing of an argument to a declared routine
    return impExpression();
}

bool BasicParser::canStartArgument() const
{
    const BasicToken &t = tok();
    switch (t.kind) {
    case T::Identifier:
    case T::Number:
    case T::String:
    case T::Date:
        return true;
    case T::Keyword:
        switch (t.keyword) {
        case K::Not:
        case K::New:
        case K::Me:
        case K::True:
        case K::False:
        case K::Nothing:
        case K::Null:
        case K::Empty:
        case K::TypeOf:
        case K::AddressOf:
        case K::Date:
        case K::String:
        case K::Error:
        case K::ByVal:
            return true;
        default:
            return false;
        }
    default:
        switch (t.symbol) {
        case S::LeftParen:
        case S::Minus:
        case S::Plus:
        case S::Dot:
        case S::Bang:
        case S::Hash:
        case S::Comma:
        case S::Semicolon:
            return true;
        default:
            return false;
        }
    }
}

bool BasicParser::atBinaryOperator() const
{
    const BasicToken &t = tok();
    if (t.kind == T::Operator)
        return true;
    switch (t.keyword) {
    case K::Mod:
    case K::And:
    case K::Or:
    case K::Xor:
    case K::Eqv:
    case K::Imp:
    case K::Like:
    case K::Is:
        return true;
    default:
        return false;
    }
}

// "Foo a, b" and "Debug.Print a; b": the arguments of a call statement without parentheses.
// Print items may also stand side by side, "Print "x =" x", which the IDE reads as "x ="; x.
int BasicParser::unparenthesisedCall(int callee)
{
    const bool print
        = textOf(m_nodes[size_t(callee)].token).compare(u"Print", Qt::CaseInsensitive) == 0;
    std::vector<int> arguments;
    arguments.push_back(argument());
    for (;;) {
        if (accept(S::Comma) || accept(S::Semicolon)) {
            if (atStatementEnd())
                break;
        } else if (!print || atStatementEnd() || !canStartArgument()) {
            break;
        }
        arguments.push_back(argument());
    }
    const int node = addNode(NodeKind::Call, m_nodes[size_t(callee)].token, callee, -1);
    m_nodes.back().argStart = int(m_args.size());
    m_nodes.back().argCount = int(arguments.size());
    m_args.insert(m_args.end(), arguments.begin(), arguments.end());
    return node;
}

// ---- statements built on expressions ---------------------------------------------------------

void BasicParser::parseCallStatement()
{
    advance();
    const BasicToken &t = tok();
    if (t.kind != T::Identifier && t.keyword != K::Me && !isSymbol(S::Dot) && !isSymbol(S::Bang))
        fail(QStringLiteral("Expected: identifier"));
    inspect(postfix());
}

// Behind Set or Let.
void BasicParser::parseAssignment()
{
    const BasicToken &t = tok();
    if (t.kind != T::Identifier && t.keyword != K::Me && !isSymbol(S::Dot) && !isSymbol(S::Bang))
        fail(QStringLiteral("Expected: identifier"));
    const int target = postfix();
    expect(S::Equal, "Expected: =");
    expression();
    inspect(target);
}

void BasicParser::parseAssignmentOrCall()
{
    const int target = postfix();
    if (accept(S::Equal)) {
        expression();
        inspect(target);
        return;
    }
    if (parseGraphics(target))
        return;
    const Node &node = m_nodes[size_t(target)];
    const bool parenthesised = node.kind == NodeKind::Call && node.second >= 0;
    if (atStatementEnd()) {
        // Arguments in parentheses need Call, except a single one (which is an expression).
        if (parenthesised && node.argCount > 1)
            fail(QStringLiteral("Expected: ="));
        inspect(target);
        return;
    }
    int callee = target;
    if (parenthesised) {
        // "Foo (a) + 1, b": the parenthesis opens the first argument, not an argument list.
        m_pos = node.second;
        callee = node.first;
    }
    if (!canStartArgument())
        fail(atBinaryOperator() ? QStringLiteral("Expected: =")
                                : QStringLiteral("Expected: end of statement"));
    inspect(unparenthesisedCall(callee));
}

// ---- expression trees ------------------------------------------------------------------------

QString BasicParser::expressionTree()
{
    if (m_sig.empty())
        return {};
    try {
        if (atLineEnd())
            fail(QStringLiteral("Expected: expression"));
        const int node = impExpression();
        if (tok().kind != T::EndOfText)
            fail(QStringLiteral("Expected: end of statement"));
        return dump(node);
    } catch (const SyntaxError &) {
        return {};
    }
}

QString BasicParser::dump(int index) const
{
    const Node &node = m_nodes[size_t(index)];
    const QString token = textOf(node.token).toString();
    switch (node.kind) {
    case NodeKind::Literal:
    case NodeKind::Name:
        return token;
    case NodeKind::Member:
        return dump(node.first) + QLatin1Char('.') + token;
    case NodeKind::WithMember:
        return QLatin1Char('.') + token;
    case NodeKind::Call: {
        QStringList arguments;
        for (int i = 0; i < node.argCount; ++i)
            arguments << dump(m_args[size_t(node.argStart + i)]);
        return dump(node.first) + QLatin1Char('(') + arguments.join(QLatin1String(", "))
               + QLatin1Char(')');
    }
    case NodeKind::Unary:
        return QLatin1Char('(') + token
               + (tokenAt(node.token).kind == T::Keyword ? QLatin1String(" ") : QLatin1String())
               + dump(node.first) + QLatin1Char(')');
    case NodeKind::Binary:
        return QLatin1Char('(') + dump(node.first) + QLatin1Char(' ') + token + QLatin1Char(' ')
               + dump(node.second) + QLatin1Char(')');
    case NodeKind::Paren:
        return dump(node.first);
    case NodeKind::Missing:
        return {};
    case NodeKind::Named:
        return token + QLatin1String(":=") + dump(node.first);
    case NodeKind::New:
        return token + QLatin1Char(' ') + textOf(node.second).toString();
    case NodeKind::TypeOf:
    case NodeKind::AddressOf:
        return token + QLatin1Char(' ') + dump(node.first);
    case NodeKind::FileNumber:
        return token + dump(node.first);
    }
    return {};
}

// ---- the Quorin calls ------------------------------------------------------------------------

// Walks the tree in text order with a stack of its own: a chain of a thousand operators is a
// tree a thousand deep, which recursion would pay for in stack.
void BasicParser::inspect(int root)
{
    std::vector<int> pending{root};
    while (!pending.empty()) {
        const int index = pending.back();
        pending.pop_back();
        if (index < 0)
            continue;
        const Node node = m_nodes[size_t(index)];
        switch (node.kind) {
        case NodeKind::Call:
            for (int i = node.argCount - 1; i >= 0; --i)
                pending.push_back(m_args[size_t(node.argStart + i)]);
            if (isQuorinMember(node.first)) {
                checkQuorinCall(node.first, node.argStart, node.argCount);
                pending.push_back(m_nodes[size_t(node.first)].first);
            } else {
                pending.push_back(node.first);
            }
            break;
        case NodeKind::Member:
            if (isQuorinMember(index))
                checkQuorinCall(index, 0, 0);
            pending.push_back(node.first);
            break;
        case NodeKind::Binary: {
            const BasicSymbol op = tokenAt(node.token).symbol;
            if (op == S::Equal || op == S::NotEqual) {
                if (isParserEventReference(node.first))
                    checkEventName(node.second);
                else if (isParserEventReference(node.second))
                    checkEventName(node.first);
            }
            pending.push_back(node.second);
            pending.push_back(node.first);
            break;
        }
        case NodeKind::Unary:
        case NodeKind::Paren:
        case NodeKind::Named:
        case NodeKind::TypeOf:
        case NodeKind::AddressOf:
        case NodeKind::FileNumber:
            pending.push_back(node.first);
            break;
        default:
            break;
        }
    }
}

bool BasicParser::isQuorinMember(int index) const
{
    const Node &node = m_nodes[size_t(index)];
    if (node.kind != NodeKind::Member)
        return false;
    const Node &object = m_nodes[size_t(node.first)];
    return object.kind == NodeKind::Name && tokenAt(object.token).kind == T::Identifier
           && textOf(object.token).compare(u"Quorin", Qt::CaseInsensitive) == 0;
}

bool BasicParser::isParserEventReference(int index) const
{
    while (m_nodes[size_t(index)].kind == NodeKind::Paren)
        index = m_nodes[size_t(index)].first;
    const Node &node = m_nodes[size_t(index)];
    int member = index;
    if (node.kind == NodeKind::Call) {
        if (node.argCount != 0)
            return false;
        member = node.first;
    }
    return isQuorinMember(member)
           && textOf(m_nodes[size_t(member)].token).compare(u"ParserEvent", Qt::CaseInsensitive)
                  == 0;
}

bool BasicParser::isStringLiteral(int index) const
{
    const Node &node = m_nodes[size_t(index)];
    return node.kind == NodeKind::Literal && tokenAt(node.token).kind == T::String;
}

QString BasicParser::stringValue(int index) const
{
    const QStringView quoted = textOf(m_nodes[size_t(index)].token);
    return quoted.sliced(1, quoted.size() - 2)
        .toString()
        .replace(QLatin1String("\"\""), QLatin1String("\""));
}

// A member the extension lacks, or an object the vocabulary lacks, makes a rule that never fires:
// errors. Names inside a known object may be right where the catalogue is silent: warnings.
void BasicParser::checkQuorinCall(int member, int argStart, int argCount)
{
    const int name = m_nodes[size_t(member)].token;
    const QuorinMember *known = QuorinExtension::findMember(textOf(name));
    if (!known) {
        error(QuorinExtension::memberWarning(textOf(name)), name);
        return;
    }
    if (argCount != known->argumentCount) {
        error(QStringLiteral("Wrong number of arguments or invalid property assignment"), name);
        return;
    }
    const bool property = known->name == u"GetObjectProperty";
    if (!property && known->name != u"GetObjectWorkField")
        return;
    const int object = m_args[size_t(argStart)];
    const int second = m_args[size_t(argStart + 1)];
    if (!isStringLiteral(object))
        return;
    const QString objectName = stringValue(object);
    const int objectToken = m_nodes[size_t(object)].token;
    const QString unknown = QuorinExtension::objectWarning(objectName);
    if (!unknown.isEmpty()) {
        error(unknown, objectToken);
        return;
    }
    if (!property) {
        const QString warning = QuorinExtension::workfieldObjectWarning(objectName);
        if (!warning.isEmpty())
            warn(warning, objectToken);
        return;
    }
    if (isStringLiteral(second)) {
        const QString warning = QuorinExtension::propertyWarning(objectName, stringValue(second));
        if (!warning.isEmpty())
            warn(warning, m_nodes[size_t(second)].token);
    }
}

void BasicParser::checkEventName(int index)
{
    if (!isStringLiteral(index))
        return;
    const QString warning = QuorinExtension::parserEventWarning(stringValue(index));
    if (!warning.isEmpty())
        warn(warning, m_nodes[size_t(index)].token);
}
