// Conditional compilation in BasicParser: #Const, #If, #ElseIf, #Else and #End If. Every branch
// is read, each from the state the code had at its #If, so that alternative procedure headers
// or declarations do not clash; the code behind #End If goes on from the branch that the
// constants choose, as the compiler would. Faults in branches the constants leave out are
// warnings: the compiler never reads that code.
#include "basic/BasicParser.h"

#include <cmath>

namespace {

using K = BasicKeyword;
using S = BasicSymbol;
using T = BasicTokenKind;

double truth(bool value)
{
    return value ? -1.0 : 0.0;
}

qint64 integer(double value)
{
    return qint64(std::llround(value));
}

std::optional<double> numberOf(QStringView literal)
{
    QString text = literal.toString();
    bool ok = false;
    if (text.startsWith(u'&') && text.size() > 2) {
        const int base = text[1].toUpper() == u'H' ? 16 : 8;
        text = text.sliced(2);
        if (text.endsWith(u'&') || text.endsWith(u'%'))
            text.chop(1);
        const qint64 value = text.toLongLong(&ok, base);
        return ok ? std::optional<double>(double(value)) : std::nullopt;
    }
    if (!text.isEmpty() && QStringView(u"%&!#@").contains(text.back()))
        text.chop(1);
    text.replace(QLatin1Char('d'), QLatin1Char('e'), Qt::CaseInsensitive);
    const double value = text.toDouble(&ok);
    return ok ? std::optional<double>(value) : std::nullopt;
}

QString textOfNumber(double value)
{
    return QString::number(value, 'g', 15);
}

} // namespace

bool BasicParser::atDirective() const
{
    if (!isSymbol(S::Hash))
        return false;
    switch (peek().keyword) {
    case K::If:
    case K::ElseIf:
    case K::Else:
    case K::End:
    case K::Const:
        return true;
    default:
        return isWord(u"EndIf", 1);
    }
}

bool BasicParser::inactiveCode() const
{
    return !m_directives.empty() && !m_directives.back().active;
}

BasicParser::ParseState BasicParser::saveState() const
{
    return {m_blocks, m_procedure, m_moduleNames, m_procedureNames, m_moduleBlock};
}

void BasicParser::restoreState(ParseState state)
{
    m_blocks = std::move(state.blocks);
    m_procedure = std::move(state.procedure);
    m_moduleNames = std::move(state.moduleNames);
    m_procedureNames = std::move(state.procedureNames);
    m_moduleBlock = state.moduleBlock;
}

void BasicParser::parseDirective()
{
    const int hash = tokIndex();
    advance();
    const BasicKeyword word = tok().keyword;
    const bool endIf = isWord(u"EndIf") || (word == K::End && peek().keyword == K::If);

    if (word == K::Const) {
        advance();
        if (tok().kind != T::Identifier)
            fail(QStringLiteral("Expected: identifier"));
        const QString name = nameKey(textOf(tokIndex()));
        advance();
        expect(S::Equal, "Expected: =");
        const int start = tokIndex();
        const std::optional<ConstantValue> value = evaluate(impExpression());
        if (!value)
            fail(QStringLiteral("Constant expression required"), start);
        if (!inactiveCode())
            m_constants.insert(name, *value);
    } else if (word == K::If) {
        advance();
        Directive directive{hash, saveState(), std::nullopt, !inactiveCode(), false};
        try {
            parseDirectiveCondition(directive, true);
        } catch (const SyntaxError &) {
            // Read the branch as compiled, so that its faults are not hidden behind this one.
            directive.active = directive.outerActive;
            directive.taken = true;
            m_directives.push_back(std::move(directive));
            throw;
        }
        m_directives.push_back(std::move(directive));
    } else if (word == K::ElseIf || word == K::Else) {
        if (m_directives.empty() || m_directives.back().elseSeen)
            fail(word == K::Else ? QStringLiteral("#Else without #If")
                                 : QStringLiteral("#ElseIf without #If"),
                 hash);
        advance();
        Directive &directive = m_directives.back();
        if (directive.active)
            directive.chosen = saveState();
        restoreState(directive.start);
        directive.elseSeen = word == K::Else;
        parseDirectiveCondition(directive, word == K::ElseIf);
    } else if (endIf) {
        if (m_directives.empty())
            fail(QStringLiteral("#End If without #If"), hash);
        advance();
        if (word == K::End)
            advance();
        Directive directive = std::move(m_directives.back());
        m_directives.pop_back();
        // Without #Else, an #If that no branch takes compiles nothing.
        if (!directive.active)
            restoreState(directive.chosen ? std::move(*directive.chosen)
                                          : std::move(directive.start));
    } else {
        fail(QStringLiteral("Expected: #End If"));
    }
    if (!atLineEnd())
        fail(QStringLiteral("Expected: end of statement"));
}

// Reads the condition of #If or #ElseIf (none for #Else) and makes the new branch the active one
// if the constants choose it.
void BasicParser::parseDirectiveCondition(Directive &directive, bool hasCondition)
{
    // The line itself belongs to the code around the #If.
    directive.active = directive.outerActive;
    bool chosen = true;
    if (hasCondition) {
        const int start = tokIndex();
        const std::optional<ConstantValue> value = evaluate(impExpression());
        if (!value)
            fail(QStringLiteral("Constant expression required"), start);
        expect(K::Then, "Expected: Then");
        bool ok = !value->isText;
        const double number = value->isText ? value->text.toDouble(&ok) : value->number;
        if (!ok)
            fail(QStringLiteral("Type mismatch"), start);
        chosen = number != 0;
    }
    directive.active = directive.outerActive && !directive.taken && chosen;
    directive.taken = directive.taken || directive.active;
}

void BasicParser::closeDirectives()
{
    while (!m_directives.empty()) {
        Directive directive = std::move(m_directives.back());
        m_directives.pop_back();
        error(QStringLiteral("#If without #End If"), directive.token);
        if (!directive.active)
            restoreState(directive.chosen ? std::move(*directive.chosen)
                                          : std::move(directive.start));
    }
}

// ---- constant expressions --------------------------------------------------------------------

// Literals, #Const names and operators; a name no #Const defines is Empty, as in the compiler.
std::optional<BasicParser::ConstantValue> BasicParser::evaluate(int index) const
{
    const Node &node = m_nodes[size_t(index)];
    const BasicToken &token = tokenAt(node.token);
    switch (node.kind) {
    case NodeKind::Literal:
        if (token.kind == T::Number) {
            const std::optional<double> number = numberOf(textOf(node.token));
            if (!number)
                return std::nullopt;
            return ConstantValue{false, *number, {}};
        }
        if (token.kind == T::String) {
            const QStringView quoted = textOf(node.token);
            return ConstantValue{true,
                                 0,
                                 quoted.sliced(1, quoted.size() - 2)
                                     .toString()
                                     .replace(QLatin1String("\"\""), QLatin1String("\""))};
        }
        if (token.keyword == K::True)
            return ConstantValue{false, -1, {}};
        if (token.kind == T::Keyword) // False, Empty, Null, Nothing
            return ConstantValue{};
        return std::nullopt;
    case NodeKind::Name:
        if (token.kind != T::Identifier)
            return std::nullopt;
        return m_constants.value(nameKey(textOf(node.token)));
    case NodeKind::Paren:
        return evaluate(node.first);
    case NodeKind::Unary: {
        const std::optional<ConstantValue> operand = evaluate(node.first);
        bool ok = operand && !operand->isText;
        const double number = !operand          ? 0
                              : operand->isText ? operand->text.toDouble(&ok)
                                                : operand->number;
        if (!ok)
            return std::nullopt;
        if (token.keyword == K::Not)
            return ConstantValue{false, double(~integer(number)), {}};
        return ConstantValue{false, token.symbol == S::Minus ? -number : number, {}};
    }
    case NodeKind::Binary:
        return evaluateBinary(node);
    default:
        return std::nullopt;
    }
}

std::optional<BasicParser::ConstantValue> BasicParser::evaluateBinary(const Node &node) const
{
    const std::optional<ConstantValue> left = evaluate(node.first);
    const std::optional<ConstantValue> right = evaluate(node.second);
    if (!left || !right)
        return std::nullopt;
    const BasicToken &op = tokenAt(node.token);
    const auto asText
        = [](const ConstantValue &v) { return v.isText ? v.text : textOfNumber(v.number); };
    if (op.symbol == S::Ampersand || (op.symbol == S::Plus && left->isText && right->isText))
        return ConstantValue{true, 0, asText(*left) + asText(*right)};

    const bool texts = left->isText && right->isText;
    bool ok = true;
    const auto asNumber = [&ok](const ConstantValue &v) {
        bool converted = true;
        const double number = v.isText ? v.text.toDouble(&converted) : v.number;
        ok = ok && converted;
        return number;
    };
    const double a = texts ? 0 : asNumber(*left);
    const double b = texts ? 0 : asNumber(*right);
    if (!ok)
        return std::nullopt;
    const int order = texts ? left->text.compare(right->text) : (a < b ? -1 : a > b ? 1 : 0);
    const auto result = [](double value) { return ConstantValue{false, value, {}}; };
    switch (op.symbol) {
    case S::Equal:
        return result(truth(order == 0));
    case S::NotEqual:
        return result(truth(order != 0));
    case S::Less:
        return result(truth(order < 0));
    case S::Greater:
        return result(truth(order > 0));
    case S::LessEqual:
        return result(truth(order <= 0));
    case S::GreaterEqual:
        return result(truth(order >= 0));
    default:
        break;
    }
    if (texts)
        return std::nullopt;
    switch (op.symbol) {
    case S::Plus:
        return result(a + b);
    case S::Minus:
        return result(a - b);
    case S::Star:
        return result(a * b);
    case S::Slash:
        return b == 0 ? std::nullopt : std::optional(result(a / b));
    case S::Backslash:
        return integer(b) == 0 ? std::nullopt
                               : std::optional(result(double(integer(a) / integer(b))));
    case S::Caret:
        return result(std::pow(a, b));
    default:
        break;
    }
    const qint64 x = integer(a);
    const qint64 y = integer(b);
    switch (op.keyword) {
    case K::Mod:
        return y == 0 ? std::nullopt : std::optional(result(double(x % y)));
    case K::And:
        return result(double(x & y));
    case K::Or:
        return result(double(x | y));
    case K::Xor:
        return result(double(x ^ y));
    case K::Eqv:
        return result(double(~(x ^ y)));
    case K::Imp:
        return result(double(~x | y));
    default:
        return std::nullopt;
    }
}
