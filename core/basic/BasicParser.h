#pragma once

#include "basic/BasicDiagnostic.h"
#include "basic/BasicToken.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringView>

#include <optional>
#include <vector>

// Recursive-descent parser of the condition language. Statements are read line by line, block
// structure on an explicit stack, so that after an error the parse goes on at the next line and
// an editor's margin gets every error. Expressions become small trees in an arena, which the
// checks of the `Quorin` calls walk.
class BasicParser
{
public:
    // Both must outlive the parser; the tokens are the lexer's, comments included.
    BasicParser(QStringView text, const std::vector<BasicToken> &tokens);

    void parseScript();
    // Reads the whole text as one expression and gives its tree fully bracketed, "(a Or (b And
    // c))"; empty when it is no expression, with the reason in errors().
    QString expressionTree();

    // In text order.
    const std::vector<BasicDiagnostic> &errors() const { return m_errors; }
    const std::vector<BasicDiagnostic> &warnings() const { return m_warnings; }

private:
    enum class NodeKind : quint8 {
        Literal,
        Name,
        Member,     // object.name, object!name
        WithMember, // .name inside With
        Call,       // callee(arguments), or a call statement's callee and arguments
        Unary,
        Binary,
        Paren,
        Missing, // an argument left out: Foo(1, , 3)
        Named,   // name:=value
        New,
        TypeOf,
        AddressOf,
        FileNumber // #1
    };

    struct Node
    {
        NodeKind kind;
        int token;       // the name, literal or operator
        int first = -1;  // operand, object or callee
        int second = -1; // right operand; for a Call, the position of its "(" or -1
        int argStart = 0;
        int argCount = 0;
    };

    enum class BlockKind : quint8 { If, For, Do, While, With, Select };

    struct Block
    {
        Block(BlockKind kind, int token)
            : kind(kind)
            , token(token)
        {
        }

        BlockKind kind;
        int token;
        QString variable;      // a For loop's control variable, for Next
        bool elseSeen = false; // also Case Else
        bool caseSeen = false;
        bool doCondition = false;   // Do While or Do Until
        bool onParserEvent = false; // Select Case Quorin.ParserEvent()
    };

    struct Procedure
    {
        BasicKeyword kind;
        QHash<QString, int> labels;
        std::vector<int> labelReferences;
        QSet<QString> names;
    };

    enum class ModuleBlock : quint8 { None, Type, Enum };

    // What the structure of the code is at a point: each branch of #If starts from the state at
    // the #If, and the code behind #End If goes on from the branch the constants choose.
    struct ParseState
    {
        std::vector<Block> blocks;
        std::optional<Procedure> procedure;
        QSet<QString> moduleNames;
        QSet<QString> procedureNames;
        ModuleBlock moduleBlock = ModuleBlock::None;
    };

    struct Directive
    {
        int token; // the "#" of #If
        ParseState start;
        std::optional<ParseState> chosen;
        bool outerActive; // the code around the #If is compiled
        bool active;      // the present branch is compiled
        bool taken = false;
        bool elseSeen = false;
    };

    // The value of a conditional compilation constant or expression.
    struct ConstantValue
    {
        bool isText = false;
        double number = 0; // Empty is 0
        QString text;
    };

    struct SyntaxError
    {
    };

    // Bounds the recursion of nested expressions and single-line Ifs, so that no text can run
    // the parser out of stack; beyond it the line is an error.
    static constexpr int MaxDepth = 200;
    class DepthGuard
    {
    public:
        explicit DepthGuard(BasicParser &parser);
        ~DepthGuard() { --m_parser.m_depth; }
        DepthGuard(const DepthGuard &) = delete;
        DepthGuard &operator=(const DepthGuard &) = delete;

    private:
        BasicParser &m_parser;
    };

    // A declared or referenced name as the language compares it: no type suffix, no brackets, no
    // case.
    static QString nameKey(QStringView name);

    // Tokens.
    const BasicToken &tok() const { return m_tokens[size_t(m_sig[m_pos])]; }
    const BasicToken &tokenAt(int index) const { return m_tokens[size_t(index)]; }
    int tokIndex() const { return m_sig[m_pos]; }
    const BasicToken &peek(int ahead = 1) const;
    QStringView textOf(int tokenIndex) const;
    void advance(); // never past EndOfText
    bool spaceBefore() const;
    bool isSymbol(BasicSymbol symbol) const { return tok().symbol == symbol; }
    bool isKeyword(BasicKeyword keyword) const { return tok().keyword == keyword; }
    bool accept(BasicSymbol symbol);
    bool accept(BasicKeyword keyword);
    void expect(BasicSymbol symbol, const char *message);
    void expect(BasicKeyword keyword, const char *message);
    bool atLineEnd() const;
    bool atStatementEnd() const;
    void skipToLineEnd();

    // Diagnostics.
    void error(const QString &message, int tokenIndex);
    [[noreturn]] void fail(const QString &message);
    [[noreturn]] void fail(const QString &message, int tokenIndex);
    void warn(const QString &message, int tokenIndex);

    // Lines and statements.
    void parseLine();
    bool labelMayStandHere() const;
    void defineLabel(int tokenIndex);
    void parseStatementList();
    bool parseStatement();
    void parseModuleStatement();
    void startModuleBlock();
    void parseModuleBlockLine();
    void parseOption();
    void parseAttribute();
    bool parseDefType();
    void parseEvent();
    void parseModifiedDeclaration();
    bool startsProcedure() const;
    void parseProcedure();
    void parseParameters(bool declareNames);
    void parseDeclare();
    void parseVariables();
    void parseConst();
    void parseReDim();
    void parseReDimTarget();
    void parseErase();
    void parseBounds();
    void parseTypeName(bool allowNew);
    void declareName(int tokenIndex);

    void parseIf();
    void parseInlineBranch();
    void parseElse();
    void parseElseIf();
    void parseSelect();
    void parseCase();
    void parseEnd();
    void parseFor();
    void parseNext();
    void parseDo();
    void parseLoop();
    void parseExit();
    void parseOn();
    void parseResume();
    void parseCallStatement();
    void parseAssignment();
    void parseAssignmentOrCall();
    void labelReference();

    // Statements led by a word that is no keyword: Open, Line Input, Lock, Name, LSet, ...
    bool isWord(QStringView word, int ahead = 0) const;
    bool parseWordStatement();
    void parseOpen();
    void parseOpenMode();
    void parseReadWrite();
    void parseLineInput();
    void parseLock();
    void parseName();
    void parseFixedAssignment();
    void parseRaiseEvent();
    bool parseGraphics(int target);
    void parsePoint();

    // Conditional compilation.
    bool atDirective() const;
    void parseDirective();
    void parseDirectiveCondition(Directive &directive, bool hasCondition);
    ParseState saveState() const;
    void restoreState(ParseState state);
    bool inactiveCode() const;
    void closeDirectives();
    std::optional<ConstantValue> evaluate(int node) const;
    std::optional<ConstantValue> evaluateBinary(const Node &node) const;

    // Block structure.
    int floor() const;
    Block *middleOf(BlockKind kind, int tokenIndex, const char *withoutMessage);
    Block closeBlock(BlockKind kind, int tokenIndex, const char *withoutMessage);
    bool inBlock(BlockKind kind) const;
    void reportUnclosed(size_t downTo);
    void closeInlineBlocks();
    void endProcedure(); // checks the labels and forgets the procedure's blocks

    // Expressions.
    int addNode(NodeKind kind, int token, int first = -1, int second = -1);
    int expression(); // a complete expression, checked for Quorin calls
    int impExpression();
    int eqvExpression();
    int xorExpression();
    int orExpression();
    int andExpression();
    int notExpression();
    int comparison();
    int concatenation();
    int additive();
    int modulo();
    int integerDivision();
    int multiplicative();
    int unary();
    int power();
    int powerOperand();
    int postfix();
    int primary();
    int callArguments(int callee);
    int argument();
    bool canStartArgument() const;
    bool atBinaryOperator() const;
    int unparenthesisedCall(int callee);
    QString dump(int node) const;

    // The Quorin calls.
    void inspect(int node);
    bool isQuorinMember(int node) const;
    bool isParserEventReference(int node) const;
    bool isStringLiteral(int node) const;
    QString stringValue(int node) const;
    void checkQuorinCall(int member, int argStart, int argCount);
    void checkEventName(int literal);

    QStringView m_text;
    const std::vector<BasicToken> &m_tokens;
    std::vector<int> m_sig; // indices of the tokens the grammar sees: no comments, continuations
    int m_pos = 0;
    int m_depth = 0; // of DepthGuards alive

    std::vector<Node> m_nodes;
    std::vector<int> m_args;
    std::vector<Block> m_blocks;
    std::optional<Procedure> m_procedure;
    QSet<QString> m_moduleNames;
    QSet<QString> m_procedureNames;
    ModuleBlock m_moduleBlock = ModuleBlock::None;
    int m_moduleBlockToken = -1;
    int m_inlineIfs = 0;    // depth of single-line Ifs being read
    int m_inlineFloor = -1; // block depth where this line's first single-line If began
    bool m_lineHasError = false;
    bool m_hasMain = false;
    bool m_hasCode = false;

    std::vector<Directive> m_directives;
    QHash<QString, ConstantValue> m_constants; // of #Const, by nameKey

    std::vector<BasicDiagnostic> m_errors;
    std::vector<BasicDiagnostic> m_warnings;
};
