#include "basic/BasicSyntaxChecker.h"

#include "basic/BasicLexer.h"
#include "basic/BasicParser.h"
#include "basic/QuorinExtension.h"

bool BasicSyntaxChecker::check(const QString &script)
{
    m_tokens = BasicLexer::tokenize(script);
    BasicParser parser(script, m_tokens);
    parser.parseScript();
    m_errors = parser.errors();
    m_warnings = parser.warnings();
    return m_errors.empty();
}

QString BasicSyntaxChecker::errorText() const
{
    return m_errors.empty() ? QString() : m_errors.front().message;
}

QString BasicSyntaxChecker::errorMessage() const
{
    return m_errors.empty() ? QString() : m_errors.front().located();
}

int BasicSyntaxChecker::errorLine() const
{
    return m_errors.empty() ? 0 : m_errors.front().line;
}

int BasicSyntaxChecker::errorColumn() const
{
    return m_errors.empty() ? 0 : m_errors.front().column;
}

std::span<const QuorinMember> BasicSyntaxChecker::quorinMembers()
{
    return QuorinExtension::members();
}

QString BasicSyntaxChecker::expressionTree(const QString &expression)
{
    const std::vector<BasicToken> tokens = BasicLexer::tokenize(expression);
    BasicParser parser(expression, tokens);
    return parser.expressionTree();
}
