#include "basic/BasicParser.h"

#include <algorithm>

namespace {

using K = BasicKeyword;
using S = BasicSymbol;
using T = BasicTokenKind;

const char *const LeftOutSuffix = " (in code that #If leaves out)";
const char *const SelectBeforeCase = "Statements and labels invalid between Select Case and first "
                                     "Case";

bool allDigits(QStringView text)
{
    return !text.isEmpty()
           && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

QString procedureWord(BasicKeyword kind)
{
    switch (kind) {
    case K::Function:
        return QStringLiteral("Function");
    case K::Property:
        return QStringLiteral("Property");
    default:
        return QStringLiteral("Sub");
    }
}

} // namespace

QString BasicParser::nameKey(QStringView name)
{
    if (name.startsWith(u'[') && name.endsWith(u']'))
        name = name.sliced(1, name.size() - 2);
    else if (!name.isEmpty() && QStringView(u"%&!#@$").contains(name.back()))
        name.chop(1);
    return name.toString().toLower();
}

BasicParser::BasicParser(QStringView text, const std::vector<BasicToken> &tokens)
    : m_text(text)
    , m_tokens(tokens)
{
    m_sig.reserve(tokens.size());
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens[i].kind != T::Comment && tokens[i].kind != T::LineContinuation)
            m_sig.push_back(int(i));
    }
    // The lexer always ends with EndOfText; without it there is nothing safe to read.
    if (m_sig.empty() || tokens[size_t(m_sig.back())].kind != T::EndOfText)
        m_sig.clear();
    // The compiler's own constants, those of a 32-bit Windows host; any other name is Empty.
    m_constants.insert(QStringLiteral("win32"), {false, -1, {}});
    m_constants.insert(QStringLiteral("vba6"), {false, -1, {}});
}

// ---- tokens ----------------------------------------------------------------------------------

const BasicToken &BasicParser::peek(int ahead) const
{
    const size_t at = std::min(size_t(m_pos + ahead), m_sig.size() - 1);
    return m_tokens[size_t(m_sig[at])];
}

QStringView BasicParser::textOf(int tokenIndex) const
{
    const BasicToken &t = tokenAt(tokenIndex);
    return m_text.sliced(t.offset, t.length);
}

void BasicParser::advance()
{
    if (tok().kind != T::EndOfText)
        ++m_pos;
}

bool BasicParser::accept(BasicSymbol symbol)
{
    if (!isSymbol(symbol))
        return false;
    advance();
    return true;
}

bool BasicParser::accept(BasicKeyword keyword)
{
    if (!isKeyword(keyword))
        return false;
    advance();
    return true;
}

void BasicParser::expect(BasicSymbol symbol, const char *message)
{
    if (!accept(symbol))
        fail(QString::fromLatin1(message));
}

void BasicParser::expect(BasicKeyword keyword, const char *message)
{
    if (!accept(keyword))
        fail(QString::fromLatin1(message));
}

bool BasicParser::atLineEnd() const
{
    return tok().kind == T::LineEnd || tok().kind == T::EndOfText;
}

bool BasicParser::atStatementEnd() const
{
    return atLineEnd() || isSymbol(S::Colon) || (m_inlineIfs > 0 && isKeyword(K::Else));
}

void BasicParser::skipToLineEnd()
{
    while (!atLineEnd())
        ++m_pos;
}

bool BasicParser::spaceBefore() const
{
    if (m_pos == 0)
        return true;
    const BasicToken &previous = tokenAt(m_sig[size_t(m_pos - 1)]);
    return tok().offset > previous.offset + previous.length;
}

// ---- diagnostics -----------------------------------------------------------------------------

void BasicParser::error(const QString &message, int tokenIndex)
{
    const BasicToken *at = &tokenAt(tokenIndex);
    // A statement cut short before a comment is faulted where the comment begins.
    if ((at->kind == T::LineEnd || at->kind == T::EndOfText) && tokenIndex > 0
        && tokenAt(tokenIndex - 1).kind == T::Comment)
        at = &tokenAt(tokenIndex - 1);
    if (inactiveCode())
        m_warnings.push_back({at->line, at->column, message + QLatin1String(LeftOutSuffix)});
    else
        m_errors.push_back({at->line, at->column, message});
    m_lineHasError = true;
}

void BasicParser::fail(const QString &message)
{
    fail(message, tokIndex());
}

void BasicParser::fail(const QString &message, int tokenIndex)
{
    const BasicToken &at = tokenAt(tokenIndex);
    if (at.kind == T::Invalid)
        error(QStringLiteral("Invalid character"), tokenIndex);
    else if (at.kind == T::String && !at.complete)
        error(QStringLiteral("Unterminated string constant"), tokenIndex);
    else if (at.kind == T::Date && !at.complete)
        error(QStringLiteral("Unterminated date literal"), tokenIndex);
    else
        error(message, tokenIndex);
    throw SyntaxError{};
}

void BasicParser::warn(const QString &message, int tokenIndex)
{
    const BasicToken &at = tokenAt(tokenIndex);
    m_warnings.push_back({at.line, at.column, message});
}

// ---- the script ------------------------------------------------------------------------------

void BasicParser::parseScript()
{
    if (m_sig.empty())
        return;
    for (;;) {
        m_lineHasError = false;
        m_inlineIfs = 0;
        m_depth = 0;
        // Expression trees live no longer than their line; reuse keeps the arena small and warm.
        m_nodes.clear();
        m_args.clear();
        if (tok().kind == T::EndOfText)
            break;
        try {
            parseLine();
        } catch (const SyntaxError &) {
            skipToLineEnd();
        }
        m_inlineIfs = 0;
        closeInlineBlocks();
        advance(); // the line end
    }

    closeDirectives();
    const int end = tokIndex();
    if (m_moduleBlock == ModuleBlock::Type)
        error(QStringLiteral("Expected: End Type"), end);
    else if (m_moduleBlock == ModuleBlock::Enum)
        error(QStringLiteral("Expected: End Enum"), end);
    if (m_procedure) {
        reportUnclosed(0);
        error(QStringLiteral("Expected: End ") + procedureWord(m_procedure->kind), end);
        endProcedure();
    }
    if (m_hasCode && !m_hasMain)
        m_warnings.push_back({1, 1, QStringLiteral("The condition has no Sub Main")});

    const auto byPosition = [](const BasicDiagnostic &a, const BasicDiagnostic &b) {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    };
    std::stable_sort(m_errors.begin(), m_errors.end(), byPosition);
    std::stable_sort(m_warnings.begin(), m_warnings.end(), byPosition);
}

void BasicParser::parseLine()
{
    if (atLineEnd())
        return;
    m_hasCode = true;
    if (atDirective()) {
        parseDirective();
        return;
    }
    if (m_moduleBlock != ModuleBlock::None) {
        parseModuleBlockLine();
        return;
    }

    const bool lineNumber = tok().kind == T::Number;
    const bool label = tok().kind == T::Identifier && peek().symbol == S::Colon;
    if (lineNumber || label) {
        if (!m_procedure)
            fail(QStringLiteral("Invalid outside procedure"));
        if (!labelMayStandHere())
            fail(QString::fromLatin1(SelectBeforeCase));
        if (lineNumber && !allDigits(textOf(tokIndex())))
            fail(QStringLiteral("Syntax error"));
        defineLabel(tokIndex());
        advance();
        if (label)
            advance();
    }
    parseStatementList();
}

// Between Select Case and its first Case only a label of that Case (a numbered line) may stand.
bool BasicParser::labelMayStandHere() const
{
    if (m_blocks.empty() || m_blocks.back().kind != BlockKind::Select || m_blocks.back().caseSeen)
        return true;
    const BasicToken &next = peek(tok().kind == T::Number ? 1 : 2);
    return next.keyword == K::Case || next.keyword == K::End;
}

void BasicParser::defineLabel(int tokenIndex)
{
    const QString key = nameKey(textOf(tokenIndex));
    if (m_procedure->labels.contains(key))
        error(QStringLiteral("Duplicate label"), tokenIndex);
    else
        m_procedure->labels.insert(key, tokenIndex);
}

void BasicParser::labelReference()
{
    const bool name = tok().kind == T::Identifier;
    if (!name && !(tok().kind == T::Number && allDigits(textOf(tokIndex()))))
        fail(QStringLiteral("Expected: line number or label"));
    if (m_procedure)
        m_procedure->labelReferences.push_back(tokIndex());
    advance();
}

void BasicParser::parseStatementList()
{
    for (;;) {
        if (atLineEnd())
            return;
        if (accept(S::Colon))
            continue;
        if (m_inlineIfs > 0 && isKeyword(K::Else))
            return;
        if (parseStatement())
            continue;
        if (atLineEnd())
            return;
        if (accept(S::Colon))
            continue;
        if (m_inlineIfs > 0 && isKeyword(K::Else))
            return;
        fail(QStringLiteral("Expected: end of statement"));
    }
}

// Gives true when the statement may be followed by another without a colon (Else x = 1).
bool BasicParser::parseStatement()
{
    if (!m_procedure) {
        parseModuleStatement();
        return false;
    }
    if (!m_blocks.empty() && m_blocks.back().kind == BlockKind::Select && !m_blocks.back().caseSeen
        && !isKeyword(K::Case) && !(isKeyword(K::End) && peek().keyword == K::Select))
        fail(QString::fromLatin1(SelectBeforeCase));

    const BasicToken &t = tok();
    if (t.kind == T::Identifier && parseWordStatement())
        return false;
    if (t.kind == T::Identifier || isSymbol(S::Dot) || isSymbol(S::Bang)) {
        parseAssignmentOrCall();
        return false;
    }
    if (t.kind != T::Keyword)
        fail(QStringLiteral("Syntax error"));

    const int start = tokIndex();
    switch (t.keyword) {
    case K::If:
        parseIf();
        return false;
    case K::ElseIf:
        parseElseIf();
        return true;
    case K::Else:
        parseElse();
        return true;
    case K::Select:
        parseSelect();
        return false;
    case K::Case:
        parseCase();
        return false;
    case K::End:
        parseEnd();
        return false;
    case K::For:
        parseFor();
        return false;
    case K::Next:
        parseNext();
        return false;
    case K::Do:
        parseDo();
        return false;
    case K::Loop:
        parseLoop();
        return false;
    case K::While:
        advance();
        m_blocks.push_back({BlockKind::While, start});
        expression();
        return false;
    case K::Wend:
        advance();
        closeBlock(BlockKind::While, start, "Wend without While");
        return false;
    case K::With:
        advance();
        m_blocks.push_back({BlockKind::With, start});
        expression();
        return false;
    case K::Exit:
        parseExit();
        return false;
    case K::GoTo:
    case K::GoSub:
        advance();
        labelReference();
        return false;
    case K::Return:
    case K::Stop:
        advance();
        return false;
    case K::On:
        parseOn();
        return false;
    case K::Resume:
        parseResume();
        return false;
    case K::Call:
        parseCallStatement();
        return false;
    case K::Set:
    case K::Let:
        advance();
        parseAssignment();
        return false;
    case K::Dim:
        advance();
        parseVariables();
        return false;
    case K::Const:
        advance();
        parseConst();
        return false;
    case K::ReDim:
        parseReDim();
        return false;
    case K::Erase:
        parseErase();
        return false;
    case K::Error:
        advance();
        expression();
        return false;
    case K::Me:
    case K::Date:
        parseAssignmentOrCall();
        return false;
    case K::Static:
        if (!startsProcedure()) {
            advance();
            parseVariables();
            return false;
        }
        [[fallthrough]];
    case K::Sub:
    case K::Function:
    case K::Property:
    case K::Public:
    case K::Private:
    case K::Friend:
        if (!startsProcedure())
            fail(QStringLiteral("Invalid inside procedure"));
        // The previous procedure lacks its end; take this as the start of the next.
        error(QStringLiteral("Expected: End ") + procedureWord(m_procedure->kind), start);
        endProcedure();
        parseProcedure();
        return false;
    case K::Global:
    case K::Declare:
    case K::Type:
    case K::Enum:
    case K::Option:
    case K::Implements:
        fail(QStringLiteral("Invalid inside procedure"));
    default:
        fail(QStringLiteral("Syntax error"));
    }
}

// ---- module level ----------------------------------------------------------------------------

void BasicParser::parseModuleStatement()
{
    switch (tok().keyword) {
    case K::Option:
        parseOption();
        return;
    case K::Dim:
        advance();
        parseVariables();
        return;
    case K::Global:
        advance();
        if (accept(K::Const))
            parseConst();
        else
            parseVariables();
        return;
    case K::Public:
    case K::Private:
    case K::Friend:
    case K::Static:
        parseModifiedDeclaration();
        return;
    case K::Sub:
    case K::Function:
    case K::Property:
        parseProcedure();
        return;
    case K::Const:
        advance();
        parseConst();
        return;
    case K::Declare:
        parseDeclare();
        return;
    case K::Type:
    case K::Enum:
        startModuleBlock();
        return;
    case K::Implements:
        advance();
        parseTypeName(false);
        return;
    case K::End:
        switch (peek().keyword) {
        case K::Sub:
        case K::Function:
        case K::Property:
            fail(QStringLiteral("End %1 without %1").arg(procedureWord(peek().keyword)));
        case K::Type:
            fail(QStringLiteral("End Type without Type"));
        case K::Enum:
            fail(QStringLiteral("End Enum without Enum"));
        default:
            break;
        }
        break;
    case K::None:
        if (isWord(u"Attribute")) {
            parseAttribute();
            return;
        }
        if (isWord(u"Event")) {
            parseEvent();
            return;
        }
        if (parseDefType())
            return;
        break;
    default:
        break;
    }
    fail(QStringLiteral("Invalid outside procedure"));
}

// "Attribute VB_Name = "modMain"", as a module exported to a file holds it.
void BasicParser::parseAttribute()
{
    advance();
    if (tok().kind != T::Identifier)
        fail(QStringLiteral("Expected: identifier"));
    advance();
    while (accept(S::Dot)) {
        if (tok().kind != T::Identifier)
            fail(QStringLiteral("Expected: identifier"));
        advance();
    }
    expect(S::Equal, "Expected: =");
    do
        expression();
    while (accept(S::Comma));
}

// "DefInt A-Z", "DefStr S, T-V": the default type of names by their first letter.
bool BasicParser::parseDefType()
{
    static constexpr QStringView types[] = {u"Bool",
                                            u"Byte",
                                            u"Int",
                                            u"Lng",
                                            u"LngLng",
                                            u"LngPtr",
                                            u"Cur",
                                            u"Sng",
                                            u"Dbl",
                                            u"Dec",
                                            u"Date",
                                            u"Str",
                                            u"Obj",
                                            u"Var"};
    const QStringView word = textOf(tokIndex());
    if (tok().kind != T::Identifier || !word.startsWith(u"Def", Qt::CaseInsensitive)
        || std::none_of(std::begin(types), std::end(types), [word](QStringView type) {
               return word.sliced(3).compare(type, Qt::CaseInsensitive) == 0;
           }))
        return false;
    advance();
    const auto letter = [this] {
        if (tok().kind != T::Identifier || textOf(tokIndex()).size() != 1)
            fail(QStringLiteral("Expected: letter"));
        advance();
    };
    do {
        letter();
        if (accept(S::Minus))
            letter();
    } while (accept(S::Comma));
    return true;
}

// "Public Event Changed(ByVal field As String)", behind its modifier.
void BasicParser::parseEvent()
{
    advance();
    if (tok().kind != T::Identifier)
        fail(QStringLiteral("Expected: identifier"));
    declareName(tokIndex());
    advance();
    if (accept(S::LeftParen))
        parseParameters(false);
}

void BasicParser::parseModifiedDeclaration()
{
    if (startsProcedure()) {
        parseProcedure();
        return;
    }
    const BasicKeyword modifier = tok().keyword;
    if (modifier == K::Static)
        fail(QStringLiteral("Invalid outside procedure"));
    advance();
    switch (tok().keyword) {
    case K::Const:
        advance();
        parseConst();
        return;
    case K::Declare:
        parseDeclare();
        return;
    case K::Type:
    case K::Enum:
        startModuleBlock();
        return;
    default:
        if (modifier == K::Friend)
            fail(QStringLiteral("Expected: Sub or Function or Property"));
        if (isWord(u"Event")) {
            parseEvent();
            return;
        }
        parseVariables();
    }
}

void BasicParser::startModuleBlock()
{
    m_moduleBlock = isKeyword(K::Type) ? ModuleBlock::Type : ModuleBlock::Enum;
    advance();
    if (tok().kind != T::Identifier)
        fail(QStringLiteral("Expected: identifier"));
    declareName(tokIndex());
    advance();
}

void BasicParser::parseModuleBlockLine()
{
    const bool type = m_moduleBlock == ModuleBlock::Type;
    if (isKeyword(K::End)) {
        const int start = tokIndex();
        advance();
        if (!accept(type ? K::Type : K::Enum))
            fail(type ? QStringLiteral("Expected: End Type") : QStringLiteral("Expected: End Enum"),
                 start);
        m_moduleBlock = ModuleBlock::None;
    } else {
        if (tok().kind != T::Identifier)
            fail(QStringLiteral("Expected: identifier"));
        advance();
        if (type) {
            if (accept(S::LeftParen) && !accept(S::RightParen))
                parseBounds();
            expect(K::As, "Expected: As");
            parseTypeName(false);
        } else if (accept(S::Equal)) {
            expression();
        }
    }
    if (!atLineEnd())
        fail(QStringLiteral("Expected: end of statement"));
}

void BasicParser::parseOption()
{
    advance();
    const QStringView word = textOf(tokIndex());
    const bool identifier = tok().kind == T::Identifier;
    if (identifier && word.compare(u"Explicit", Qt::CaseInsensitive) == 0) {
        advance();
    } else if (identifier && word.compare(u"Base", Qt::CaseInsensitive) == 0) {
        advance();
        if (tok().kind != T::Number)
            fail(QStringLiteral("Syntax error"));
        advance();
    } else if (identifier && word.compare(u"Compare", Qt::CaseInsensitive) == 0) {
        advance();
        const QStringView mode = textOf(tokIndex());
        if (tok().kind != T::Identifier
            || !(mode.compare(u"Binary", Qt::CaseInsensitive) == 0
                 || mode.compare(u"Text", Qt::CaseInsensitive) == 0
                 || mode.compare(u"Database", Qt::CaseInsensitive) == 0))
            fail(QStringLiteral("Expected: Binary or Text or Database"));
        advance();
    } else if (accept(K::Private)) {
        if (!(tok().kind == T::Identifier
              && textOf(tokIndex()).compare(u"Module", Qt::CaseInsensitive) == 0))
            fail(QStringLiteral("Expected: Module"));
        advance();
    } else {
        fail(QStringLiteral("Expected: Base or Compare or Explicit or Private"));
    }
}

bool BasicParser::startsProcedure() const
{
    int ahead = 0;
    while (peek(ahead).keyword == K::Public || peek(ahead).keyword == K::Private
           || peek(ahead).keyword == K::Friend)
        ++ahead;
    if (peek(ahead).keyword == K::Static)
        ++ahead;
    const BasicKeyword kind = peek(ahead).keyword;
    return kind == K::Sub || kind == K::Function || kind == K::Property;
}

void BasicParser::parseProcedure()
{
    while (accept(K::Public) || accept(K::Private) || accept(K::Friend)) {
    }
    accept(K::Static);
    const BasicKeyword kind = tok().keyword;
    advance();
    m_procedure.emplace();
    m_procedure->kind = kind;
    m_blocks.clear();

    // A property's Get, Let and Set share its name; nothing else may.
    QString key;
    if (kind == K::Property) {
        const bool get = tok().kind == T::Identifier
                         && textOf(tokIndex()).compare(u"Get", Qt::CaseInsensitive) == 0;
        if (!get && !isKeyword(K::Let) && !isKeyword(K::Set))
            fail(QStringLiteral("Expected: Get or Let or Set"));
        key = textOf(tokIndex()).toString().toLower() + QLatin1Char(' ');
        advance();
    }
    if (tok().kind != T::Identifier)
        fail(QStringLiteral("Expected: identifier"));
    const QStringView name = textOf(tokIndex());
    if (kind == K::Sub && name.compare(u"Main", Qt::CaseInsensitive) == 0)
        m_hasMain = true;
    key += nameKey(name);
    if (m_procedureNames.contains(key))
        error(QStringLiteral("Ambiguous name detected: ") + name.toString(), tokIndex());
    m_procedureNames.insert(key);
    advance();
    if (accept(S::LeftParen))
        parseParameters(true);
    if (kind != K::Sub && accept(K::As)) {
        parseTypeName(false);
        if (accept(S::LeftParen)) // a function that returns an array
            expect(S::RightParen, "Expected: )");
    }
}

void BasicParser::parseParameters(bool declareNames)
{
    if (accept(S::RightParen))
        return;
    do {
        accept(K::Optional);
        if (!accept(K::ByVal))
            accept(K::ByRef);
        accept(K::ParamArray);
        if (tok().kind != T::Identifier)
            fail(QStringLiteral("Expected: identifier"));
        if (declareNames)
            declareName(tokIndex());
        advance();
        if (accept(S::LeftParen))
            expect(S::RightParen, "Expected: )");
        if (accept(K::As))
            parseTypeName(false);
        if (accept(S::Equal))
            expression();
    } while (accept(S::Comma));
    expect(S::RightParen, "Expected: list separator or )");
}

void BasicParser::parseDeclare()
{
    advance();
    if (isWord(u"PtrSafe"))
        advance();
    if (!accept(K::Sub) && !accept(K::Function))
        fail(QStringLiteral("Expected: Sub or Function"));
    if (tok().kind != T::Identifier)
        fail(QStringLiteral("Expected: identifier"));
    advance();
    if (isWord(u"CDecl"))
        advance();
    if (!isWord(u"Lib"))
        fail(QStringLiteral("Expected: Lib"));
    advance();
    if (tok().kind != T::String)
        fail(QStringLiteral("Expected: string constant"));
    advance();
    if (tok().kind == T::Identifier
        && textOf(tokIndex()).compare(u"Alias", Qt::CaseInsensitive) == 0) {
        advance();
        if (tok().kind != T::String)
            fail(QStringLiteral("Expected: string constant"));
        advance();
    }
    if (accept(S::LeftParen))
        parseParameters(false);
    if (accept(K::As))
        parseTypeName(false);
}

// ---- declarations ----------------------------------------------------------------------------

void BasicParser::parseVariables()
{
    do {
        accept(K::WithEvents);
        if (tok().kind != T::Identifier)
            fail(QStringLiteral("Expected: identifier"));
        declareName(tokIndex());
        advance();
        if (accept(S::LeftParen) && !accept(S::RightParen))
            parseBounds();
        if (accept(K::As))
            parseTypeName(true);
    } while (accept(S::Comma));
}

void BasicParser::parseConst()
{
    do {
        if (tok().kind != T::Identifier)
            fail(QStringLiteral("Expected: identifier"));
        declareName(tokIndex());
        advance();
        if (accept(K::As))
            parseTypeName(false);
        expect(S::Equal, "Expected: =");
        expression();
    } while (accept(S::Comma));
}

void BasicParser::parseReDim()
{
    advance();
    accept(K::Preserve);
    do {
        parseReDimTarget();
        parseBounds();
        if (accept(K::As))
            parseTypeName(true);
    } while (accept(S::Comma));
}

// The array of a ReDim up to the "(" of its bounds: "a", "obj.Items", ".Items" inside With,
// "m.Rows(i).Cells". A parenthesis that a member follows indexes; the last one holds bounds.
void BasicParser::parseReDimTarget()
{
    if (isSymbol(S::Dot) || isSymbol(S::Bang)) {
        if (!inBlock(BlockKind::With))
            fail(QStringLiteral("Invalid or unqualified reference"));
        advance();
    }
    for (;;) {
        if (tok().kind != T::Identifier)
            fail(QStringLiteral("Expected: identifier"));
        advance();
        if (isSymbol(S::LeftParen)) {
            int depth = 0;
            int close = m_pos;
            for (; tokenAt(m_sig[size_t(close)]).kind != T::LineEnd
                   && tokenAt(m_sig[size_t(close)]).kind != T::EndOfText;
                 ++close) {
                const BasicSymbol symbol = tokenAt(m_sig[size_t(close)]).symbol;
                depth += symbol == S::LeftParen ? 1 : symbol == S::RightParen ? -1 : 0;
                if (depth == 0)
                    break;
            }
            const BasicSymbol after
                = tokenAt(m_sig[size_t(std::min(close + 1, int(m_sig.size()) - 1))]).symbol;
            if (depth != 0 || (after != S::Dot && after != S::Bang)) {
                advance();
                return;
            }
            callArguments(addNode(NodeKind::Name, m_sig[size_t(m_pos - 1)]));
        }
        if (!accept(S::Dot) && !accept(S::Bang))
            fail(QStringLiteral("Expected: ("));
    }
}

// "Erase a, b()", "Erase m.Items".
void BasicParser::parseErase()
{
    advance();
    do {
        const BasicToken &t = tok();
        if (t.kind != T::Identifier && !isSymbol(S::Dot) && !isSymbol(S::Bang))
            fail(QStringLiteral("Expected: identifier"));
        inspect(postfix());
    } while (accept(S::Comma));
}

// Array bounds behind the "(": "10", "1 To n, 0 To 3".
void BasicParser::parseBounds()
{
    do {
        expression();
        if (accept(K::To))
            expression();
    } while (accept(S::Comma));
    expect(S::RightParen, "Expected: )");
}

void BasicParser::parseTypeName(bool allowNew)
{
    if (isKeyword(K::New)) {
        if (!allowNew)
            fail(QStringLiteral("Expected: identifier"));
        advance();
    }
    switch (tok().keyword) {
    case K::Boolean:
    case K::Byte:
    case K::Integer:
    case K::Long:
    case K::Currency:
    case K::Single:
    case K::Double:
    case K::Date:
    case K::Object:
    case K::Variant:
        advance();
        return;
    case K::String:
        advance();
        if (accept(S::Star)) {
            if (tok().kind != T::Number && tok().kind != T::Identifier)
                fail(QStringLiteral("Expected: expression"));
            advance();
        }
        return;
    default:
        break;
    }
    if (tok().kind != T::Identifier)
        fail(QStringLiteral("Expected: identifier"));
    advance();
    while (accept(S::Dot)) {
        if (tok().kind != T::Identifier && tok().kind != T::Keyword)
            fail(QStringLiteral("Expected: identifier"));
        advance();
    }
}

void BasicParser::declareName(int tokenIndex)
{
    QSet<QString> &names = m_procedure ? m_procedure->names : m_moduleNames;
    const QString key = nameKey(textOf(tokenIndex));
    if (names.contains(key))
        error(QStringLiteral("Duplicate declaration in current scope"), tokenIndex);
    else
        names.insert(key);
}

// ---- control flow ----------------------------------------------------------------------------

void BasicParser::parseIf()
{
    const int start = tokIndex();
    advance();
    try {
        expression();
        if (accept(K::GoTo)) {
            labelReference();
            return;
        }
        expect(K::Then, "Expected: Then or GoTo");
    } catch (const SyntaxError &) {
        // Keep the block structure when the faulty line still reads as a block If.
        size_t last = size_t(m_pos);
        while (tokenAt(m_sig[last]).kind != T::LineEnd && tokenAt(m_sig[last]).kind != T::EndOfText)
            ++last;
        if (tokenAt(m_sig[last - 1]).keyword == K::Then)
            m_blocks.push_back({BlockKind::If, start});
        throw;
    }
    if (atLineEnd()) {
        m_blocks.push_back({BlockKind::If, start});
        return;
    }
    if (m_inlineFloor < 0)
        m_inlineFloor = int(m_blocks.size());
    const DepthGuard guard(*this);
    ++m_inlineIfs;
    parseInlineBranch();
    if (accept(K::Else))
        parseInlineBranch();
    --m_inlineIfs;
}

void BasicParser::parseInlineBranch()
{
    if (tok().kind == T::Number) {
        labelReference(); // "If x Then 100" jumps to line 100
        return;
    }
    parseStatementList();
}

void BasicParser::parseElse()
{
    const int start = tokIndex();
    advance();
    Block *block = middleOf(BlockKind::If, start, "Else without If");
    if (block->elseSeen)
        fail(QStringLiteral("Else without If"), start);
    block->elseSeen = true;
}

void BasicParser::parseElseIf()
{
    const int start = tokIndex();
    advance();
    const Block *block = middleOf(BlockKind::If, start, "Else without If");
    if (block->elseSeen)
        fail(QStringLiteral("Else without If"), start);
    expression();
    expect(K::Then, "Expected: Then");
}

void BasicParser::parseSelect()
{
    const int start = tokIndex();
    advance();
    m_blocks.push_back({BlockKind::Select, start});
    expect(K::Case, "Expected: Case");
    const int selector = expression();
    m_blocks.back().onParserEvent = isParserEventReference(selector);
}

void BasicParser::parseCase()
{
    const int start = tokIndex();
    advance();
    Block *block = middleOf(BlockKind::Select, start, "Case without Select Case");
    if (block->elseSeen)
        fail(QStringLiteral("Case after Case Else"), start);
    block->caseSeen = true;
    const bool onParserEvent = block->onParserEvent;
    if (accept(K::Else)) {
        block->elseSeen = true;
        return;
    }
    do {
        if (accept(K::Is)) {
            const BasicSymbol op = tok().symbol;
            if (op != S::Equal && op != S::NotEqual && op != S::Less && op != S::Greater
                && op != S::LessEqual && op != S::GreaterEqual)
                fail(QStringLiteral("Expected: comparison operator"));
            advance();
            const int value = expression();
            if (onParserEvent && (op == S::Equal || op == S::NotEqual))
                checkEventName(value);
        } else {
            const int value = expression();
            if (accept(K::To))
                expression();
            else if (onParserEvent)
                checkEventName(value);
        }
    } while (accept(S::Comma));
}

void BasicParser::parseEnd()
{
    const int start = tokIndex();
    advance();
    const BasicKeyword what = tok().keyword;
    switch (what) {
    case K::If:
        advance();
        closeBlock(BlockKind::If, start, "End If without block If");
        return;
    case K::Select:
        advance();
        closeBlock(BlockKind::Select, start, "End Select without Select Case");
        return;
    case K::With:
        advance();
        closeBlock(BlockKind::With, start, "End With without With");
        return;
    case K::Sub:
    case K::Function:
    case K::Property:
        if (m_inlineIfs > 0)
            fail(QStringLiteral("Syntax error"), start);
        advance();
        if (what != m_procedure->kind)
            error(QStringLiteral("Expected: End ") + procedureWord(m_procedure->kind), start);
        reportUnclosed(0);
        endProcedure();
        return;
    case K::Type:
    case K::Enum:
        fail(QStringLiteral("Invalid inside procedure"), start);
    default:
        if (!atStatementEnd())
            fail(QStringLiteral("Expected: If or Select or Sub or Function or Property or Type or "
                                "With or Enum or end of statement"));
    }
}

void BasicParser::parseFor()
{
    const int start = tokIndex();
    advance();
    m_blocks.push_back({BlockKind::For, start});
    const bool each = accept(K::Each);
    if (tok().kind != T::Identifier)
        fail(QStringLiteral("Expected: identifier"));
    m_blocks.back().variable = nameKey(textOf(tokIndex()));
    advance();
    if (each) {
        expect(K::In, "Expected: In");
        expression();
        return;
    }
    expect(S::Equal, "Expected: =");
    expression();
    expect(K::To, "Expected: To");
    expression();
    if (accept(K::Step))
        expression();
}

void BasicParser::parseNext()
{
    const int start = tokIndex();
    advance();
    if (atStatementEnd()) {
        closeBlock(BlockKind::For, start, "Next without For");
        return;
    }
    do {
        if (tok().kind != T::Identifier)
            fail(QStringLiteral("Expected: identifier"));
        const int variable = tokIndex();
        const QString name = nameKey(textOf(variable));
        advance();
        const Block loop = closeBlock(BlockKind::For, start, "Next without For");
        if (loop.variable.isEmpty() || loop.variable == name)
            continue;
        error(QStringLiteral("Invalid Next control variable reference"), variable);
        // "Next i" that skips an inner loop closes the loop of i as well, so that one fault
        // is told once.
        for (int i = int(m_blocks.size()) - 1; i >= floor(); --i) {
            if (m_blocks[size_t(i)].kind == BlockKind::For
                && m_blocks[size_t(i)].variable == name) {
                m_blocks.erase(m_blocks.begin() + i, m_blocks.end());
                break;
            }
        }
    } while (accept(S::Comma));
}

void BasicParser::parseDo()
{
    m_blocks.push_back({BlockKind::Do, tokIndex()});
    advance();
    if (accept(K::While) || accept(K::Until)) {
        m_blocks.back().doCondition = true;
        expression();
    }
}

void BasicParser::parseLoop()
{
    const int start = tokIndex();
    advance();
    const bool doCondition = closeBlock(BlockKind::Do, start, "Loop without Do").doCondition;
    if (isKeyword(K::While) || isKeyword(K::Until)) {
        if (doCondition)
            fail(QStringLiteral("Do While or Do Until cannot end in Loop While or Loop Until"));
        advance();
        expression();
    }
}

void BasicParser::parseExit()
{
    const int start = tokIndex();
    advance();
    const BasicKeyword procedure = m_procedure->kind;
    switch (tok().keyword) {
    case K::For:
        if (!inBlock(BlockKind::For))
            error(QStringLiteral("Exit For not within For...Next"), start);
        break;
    case K::Do:
        if (!inBlock(BlockKind::Do))
            error(QStringLiteral("Exit Do not within Do...Loop"), start);
        break;
    case K::Sub:
        if (procedure != K::Sub)
            error(QStringLiteral("Exit Sub not allowed in Function or Property"), start);
        break;
    case K::Function:
        if (procedure != K::Function)
            error(QStringLiteral("Exit Function not allowed in Sub or Property"), start);
        break;
    case K::Property:
        if (procedure != K::Property)
            error(QStringLiteral("Exit Property not allowed in Function or Sub"), start);
        break;
    default:
        fail(QStringLiteral("Expected: Do or For or Function or Property or Sub"));
    }
    advance();
}

void BasicParser::parseOn()
{
    advance();
    if (isWord(u"Local") && peek().keyword == K::Error)
        advance();
    if (accept(K::Error)) {
        if (accept(K::GoTo)) {
            if (isSymbol(S::Minus) && peek().kind == T::Number) { // On Error GoTo -1
                advance();
                advance();
            } else if (tok().kind == T::Number && textOf(tokIndex()) == u"0") {
                advance();
            } else {
                labelReference();
            }
            return;
        }
        if (accept(K::Resume)) {
            expect(K::Next, "Expected: Next");
            return;
        }
        fail(QStringLiteral("Expected: GoTo or Resume"));
    }
    expression();
    if (!accept(K::GoTo) && !accept(K::GoSub))
        fail(QStringLiteral("Expected: GoTo or GoSub"));
    do
        labelReference();
    while (accept(S::Comma));
}

void BasicParser::parseResume()
{
    advance();
    if (accept(K::Next) || atStatementEnd())
        return;
    if (tok().kind == T::Number && textOf(tokIndex()) == u"0") {
        advance();
        return;
    }
    labelReference();
}

// ---- block structure -------------------------------------------------------------------------

namespace {

QString closerOf(int kind)
{
    static const char *const closers[]
        = {"End If", "Next", "Loop", "Wend", "End With", "End Select"};
    return QString::fromLatin1(closers[kind]);
}

QString unclosedMessage(int kind)
{
    static const char *const messages[] = {"Block If without End If",
                                           "For without Next",
                                           "Do without Loop",
                                           "While without Wend",
                                           "With without End With",
                                           "Select Case without End Select"};
    return QString::fromLatin1(messages[kind]);
}

} // namespace

// Blocks a statement may close or continue: within a single-line If only those the line opened.
int BasicParser::floor() const
{
    return m_inlineIfs > 0 ? m_inlineFloor : 0;
}

// The open block of this kind, made the innermost. Blocks opened inside it and left open are
// faulted at the statement and dropped, so that the lines behind it read as they were meant.
BasicParser::Block *
BasicParser::middleOf(BlockKind kind, int tokenIndex, const char *withoutMessage)
{
    for (int i = int(m_blocks.size()) - 1; i >= floor(); --i) {
        if (m_blocks[size_t(i)].kind != kind)
            continue;
        if (i != int(m_blocks.size()) - 1) {
            error(QStringLiteral("Expected: ") + closerOf(int(m_blocks.back().kind)), tokenIndex);
            m_blocks.erase(m_blocks.begin() + i + 1, m_blocks.end());
        }
        return &m_blocks.back();
    }
    fail(QString::fromLatin1(withoutMessage), tokenIndex);
}

BasicParser::Block
BasicParser::closeBlock(BlockKind kind, int tokenIndex, const char *withoutMessage)
{
    Block closed = *middleOf(kind, tokenIndex, withoutMessage);
    m_blocks.pop_back();
    return closed;
}

bool BasicParser::inBlock(BlockKind kind) const
{
    return std::any_of(m_blocks.begin(), m_blocks.end(), [kind](const Block &block) {
        return block.kind == kind;
    });
}

void BasicParser::reportUnclosed(size_t downTo)
{
    for (size_t i = m_blocks.size(); i > downTo; --i)
        error(unclosedMessage(int(m_blocks[i - 1].kind)), m_blocks[i - 1].token);
    m_blocks.erase(m_blocks.begin() + std::ptrdiff_t(std::min(downTo, m_blocks.size())),
                   m_blocks.end());
}

// Blocks that a single-line If opened must close on its line.
void BasicParser::closeInlineBlocks()
{
    if (m_inlineFloor < 0)
        return;
    const size_t floor = size_t(m_inlineFloor);
    m_inlineFloor = -1;
    if (m_blocks.size() <= floor)
        return;
    if (m_lineHasError)
        m_blocks.erase(m_blocks.begin() + std::ptrdiff_t(floor), m_blocks.end());
    else
        reportUnclosed(floor);
}

void BasicParser::endProcedure()
{
    for (int reference : m_procedure->labelReferences) {
        if (!m_procedure->labels.contains(nameKey(textOf(reference))))
            error(QStringLiteral("Label not defined"), reference);
    }
    m_procedure.reset();
    m_blocks.clear();
}
