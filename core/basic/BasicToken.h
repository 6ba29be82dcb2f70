#pragma once

#include <QtGlobal>

// What a piece of condition text is, for the parser and for an editor's colouring.
enum class BasicTokenKind : quint8 {
    Identifier, // also bracketed names and names with a type suffix ("UCase$")
    Keyword,
    Number,
    String,
    Date,
    Operator,    // arithmetic, concatenation and comparison signs; word operators are keywords
    Punctuation, // ( ) , ; . ! : := #
    Comment,     // ' or Rem, to the end of the line (or further, when it ends in " _")
    LineContinuation,
    LineEnd,
    Invalid, // a character the language has no use for
    EndOfText
};

// Reserved and contextual words of the dialect; a word is looked up without regard to case.
enum class BasicKeyword : quint8 {
    None,
    AddressOf,
    And,
    As,
    Boolean,
    ByRef,
    Byte,
    ByVal,
    Call,
    Case,
    Const,
    Currency,
    Date,
    Declare,
    Dim,
    Do,
    Double,
    Each,
    Else,
    ElseIf,
    Empty,
    End,
    Enum,
    Eqv,
    Erase,
    Error,
    Exit,
    False,
    For,
    Friend,
    Function,
    Global,
    GoSub,
    GoTo,
    If,
    Imp,
    Implements,
    In,
    Integer,
    Is,
    Let,
    Like,
    Long,
    Loop,
    Me,
    Mod,
    New,
    Next,
    Not,
    Nothing,
    Null,
    Object,
    On,
    Option,
    Optional,
    Or,
    ParamArray,
    Preserve,
    Private,
    Property,
    Public,
    ReDim,
    Rem,
    Resume,
    Return,
    Select,
    Set,
    Single,
    Static,
    Step,
    Stop,
    String,
    Sub,
    Then,
    To,
    True,
    Type,
    TypeOf,
    Until,
    Variant,
    Wend,
    While,
    With,
    WithEvents,
    Xor
};

enum class BasicSymbol : quint8 {
    None,
    LeftParen,
    RightParen,
    Comma,
    Semicolon,
    Dot,
    Bang,
    Colon,
    ColonEquals,
    Hash,
    Plus,
    Minus,
    Star,
    Slash,
    Backslash,
    Caret,
    Ampersand,
    Equal,
    NotEqual,
    Less,
    Greater,
    LessEqual,
    GreaterEqual
};

// One token; positions are in UTF-16 units of the script, line and column 1-based.
struct BasicToken
{
    BasicTokenKind kind = BasicTokenKind::EndOfText;
    BasicKeyword keyword = BasicKeyword::None;
    BasicSymbol symbol = BasicSymbol::None;
    bool complete = true; // false for a string or date that the line ends before its closing mark
    int offset = 0;
    int length = 0;
    int line = 1;
    int column = 1;
};
