#include "basic/BasicLexer.h"

#include <QStringTokenizer>

#include <algorithm>
#include <iterator>

namespace {

struct KeywordEntry
{
    QStringView text;
    BasicKeyword keyword;
};

using K = BasicKeyword;

// Kept in case-insensitive order for the binary search.
constexpr KeywordEntry keywordTable[] = {
    {u"AddressOf", K::AddressOf},
    {u"And", K::And},
    {u"As", K::As},
    {u"Boolean", K::Boolean},
    {u"ByRef", K::ByRef},
    {u"Byte", K::Byte},
    {u"ByVal", K::ByVal},
    {u"Call", K::Call},
    {u"Case", K::Case},
    {u"Const", K::Const},
    {u"Currency", K::Currency},
    {u"Date", K::Date},
    {u"Declare", K::Declare},
    {u"Dim", K::Dim},
    {u"Do", K::Do},
    {u"Double", K::Double},
    {u"Each", K::Each},
    {u"Else", K::Else},
    {u"ElseIf", K::ElseIf},
    {u"Empty", K::Empty},
    {u"End", K::End},
    {u"Enum", K::Enum},
    {u"Eqv", K::Eqv},
    {u"Erase", K::Erase},
    {u"Error", K::Error},
    {u"Exit", K::Exit},
    {u"False", K::False},
    {u"For", K::For},
    {u"Friend", K::Friend},
    {u"Function", K::Function},
    {u"Global", K::Global},
    {u"GoSub", K::GoSub},
    {u"GoTo", K::GoTo},
    {u"If", K::If},
    {u"Imp", K::Imp},
    {u"Implements", K::Implements},
    {u"In", K::In},
    {u"Integer", K::Integer},
    {u"Is", K::Is},
    {u"Let", K::Let},
    {u"Like", K::Like},
    {u"Long", K::Long},
    {u"Loop", K::Loop},
    {u"Me", K::Me},
    {u"Mod", K::Mod},
    {u"New", K::New},
    {u"Next", K::Next},
    {u"Not", K::Not},
    {u"Nothing", K::Nothing},
    {u"Null", K::Null},
    {u"Object", K::Object},
    {u"On", K::On},
    {u"Option", K::Option},
    {u"Optional", K::Optional},
    {u"Or", K::Or},
    {u"ParamArray", K::ParamArray},
    {u"Preserve", K::Preserve},
    {u"Private", K::Private},
    {u"Property", K::Property},
    {u"Public", K::Public},
    {u"ReDim", K::ReDim},
    {u"Rem", K::Rem},
    {u"Resume", K::Resume},
    {u"Return", K::Return},
    {u"Select", K::Select},
    {u"Set", K::Set},
    {u"Single", K::Single},
    {u"Static", K::Static},
    {u"Step", K::Step},
    {u"Stop", K::Stop},
    {u"String", K::String},
    {u"Sub", K::Sub},
    {u"Then", K::Then},
    {u"To", K::To},
    {u"True", K::True},
    {u"Type", K::Type},
    {u"TypeOf", K::TypeOf},
    {u"Until", K::Until},
    {u"Variant", K::Variant},
    {u"Wend", K::Wend},
    {u"While", K::While},
    {u"With", K::With},
    {u"WithEvents", K::WithEvents},
    {u"Xor", K::Xor},
};

constexpr char16_t lowerAscii(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? char16_t(c + (u'a' - u'A')) : c;
}

constexpr bool lessIgnoringCase(QStringView a, QStringView b)
{
    for (qsizetype i = 0; i < a.size() && i < b.size(); ++i) {
        if (lowerAscii(a[i].unicode()) != lowerAscii(b[i].unicode()))
            return lowerAscii(a[i].unicode()) < lowerAscii(b[i].unicode());
    }
    return a.size() < b.size();
}

constexpr bool keywordsSorted()
{
    for (size_t i = 1; i < std::size(keywordTable); ++i) {
        if (!lessIgnoringCase(keywordTable[i - 1].text, keywordTable[i].text))
            return false;
    }
    return true;
}
static_assert(keywordsSorted(), "keywordFor searches the table by halves");

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\f' || c == u'\v' || c == QChar(0xA0);
}

bool isLineEnd(QChar c)
{
    return c == u'\r' || c == u'\n';
}

bool isNameChar(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

bool isHexDigit(QChar c)
{
    return c.isDigit() || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

bool isOctalDigit(QChar c)
{
    return c >= u'0' && c <= u'7';
}

class Scanner
{
public:
    explicit Scanner(QStringView text)
        : m_text(text)
    {
    }

    std::vector<BasicToken> run();

private:
    QChar at(qsizetype i) const { return i < m_text.size() ? m_text[i] : QChar(); }
    bool atLineEnd(qsizetype i) const { return i >= m_text.size() || isLineEnd(m_text[i]); }
    // Steps over the line end at m_pos and starts the next line.
    void consumeLineEnd();
    bool restOfLineBlank(qsizetype i) const;
    void push(BasicTokenKind kind, qsizetype start, int line, int column);
    void emitSymbol(BasicSymbol symbol, BasicTokenKind kind, int length);

    void scanComment();
    void scanWord();
    void scanBracketedName();
    void scanNumber();
    bool scanRadixNumber();
    void scanString();
    qsizetype dateLiteralEnd() const;
    qsizetype unterminatedDateEnd() const;
    void scanSymbol();

    QStringView m_text;
    qsizetype m_pos = 0;
    int m_line = 1;
    qsizetype m_lineStart = 0;
    bool m_statementStart = true; // where Rem starts a comment
    bool m_lineStartToken = true; // the next significant token is the first of its line
    std::vector<BasicToken> m_tokens;
};

void Scanner::consumeLineEnd()
{
    if (at(m_pos) == u'\r' && at(m_pos + 1) == u'\n')
        m_pos += 2;
    else
        ++m_pos;
    ++m_line;
    m_lineStart = m_pos;
}

bool Scanner::restOfLineBlank(qsizetype i) const
{
    while (i < m_text.size() && isBlank(m_text[i]))
        ++i;
    return atLineEnd(i);
}

void Scanner::push(BasicTokenKind kind, qsizetype start, int line, int column)
{
    BasicToken token;
    token.kind = kind;
    token.offset = int(start);
    token.length = int(m_pos - start);
    token.line = line;
    token.column = column;
    m_tokens.push_back(token);
    if (kind != BasicTokenKind::Comment && kind != BasicTokenKind::LineContinuation) {
        // A line number is a label: a statement may still begin behind it.
        m_statementStart = kind == BasicTokenKind::LineEnd
                           || (kind == BasicTokenKind::Number && m_lineStartToken);
        m_lineStartToken = kind == BasicTokenKind::LineEnd;
    }
}

void Scanner::emitSymbol(BasicSymbol symbol, BasicTokenKind kind, int length)
{
    const qsizetype start = m_pos;
    m_pos += length;
    push(kind, start, m_line, int(start - m_lineStart + 1));
    m_tokens.back().symbol = symbol;
    if (symbol == BasicSymbol::Colon)
        m_statementStart = true;
}

std::vector<BasicToken> Scanner::run()
{
    m_tokens.reserve(size_t(m_text.size() / 4 + 8));
    while (m_pos < m_text.size()) {
        const QChar c = m_text[m_pos];
        if (isBlank(c)) {
            ++m_pos;
        } else if (isLineEnd(c)) {
            const qsizetype start = m_pos;
            const int line = m_line;
            const int column = int(start - m_lineStart + 1);
            consumeLineEnd();
            push(BasicTokenKind::LineEnd, start, line, column);
        } else if (c == u'\'') {
            scanComment();
        } else if (c == u'_' && (m_pos == m_lineStart || isBlank(m_text[m_pos - 1]))
                   && restOfLineBlank(m_pos + 1)) {
            const qsizetype start = m_pos++;
            push(BasicTokenKind::LineContinuation, start, m_line, int(start - m_lineStart + 1));
            while (m_pos < m_text.size() && isBlank(m_text[m_pos]))
                ++m_pos;
            if (m_pos < m_text.size())
                consumeLineEnd();
        } else if (c.isLetter()) {
            scanWord();
        } else if (c == u'[') {
            scanBracketedName();
        } else if (c.isDigit()
                   || (c == u'.' && at(m_pos + 1).isDigit()
                       && (m_pos == 0 || !isNameChar(m_text[m_pos - 1])))) {
            scanNumber();
        } else if (c == u'&' && scanRadixNumber()) {
            // scanned
        } else if (c == u'"') {
            scanString();
        } else if (c == u'#' && dateLiteralEnd() > 0) {
            const qsizetype start = m_pos;
            m_pos = dateLiteralEnd();
            push(BasicTokenKind::Date, start, m_line, int(start - m_lineStart + 1));
        } else if (c == u'#' && unterminatedDateEnd() > 0) {
            const qsizetype start = m_pos;
            m_pos = unterminatedDateEnd();
            push(BasicTokenKind::Date, start, m_line, int(start - m_lineStart + 1));
            m_tokens.back().complete = false;
        } else {
            scanSymbol();
        }
    }
    BasicToken end;
    end.kind = BasicTokenKind::EndOfText;
    end.offset = int(m_text.size());
    end.line = m_line;
    end.column = int(m_text.size() - m_lineStart + 1);
    m_tokens.push_back(end);
    return std::move(m_tokens);
}

void Scanner::scanComment()
{
    const qsizetype start = m_pos;
    const int line = m_line;
    const int column = int(start - m_lineStart + 1);
    for (;;) {
        while (!atLineEnd(m_pos))
            ++m_pos;
        // A comment whose line ends in " _" goes on over the next line.
        qsizetype last = m_pos - 1;
        while (last > start && isBlank(m_text[last]))
            --last;
        const bool continued = last > start && m_text[last] == u'_' && isBlank(m_text[last - 1])
                               && m_pos < m_text.size();
        if (!continued)
            break;
        consumeLineEnd();
    }
    push(BasicTokenKind::Comment, start, line, column);
}

void Scanner::scanWord()
{
    const qsizetype start = m_pos;
    while (m_pos < m_text.size() && isNameChar(m_text[m_pos]))
        ++m_pos;
    const QStringView word = m_text.sliced(start, m_pos - start);
    const int column = int(start - m_lineStart + 1);

    bool suffixed = false;
    const QChar suffix = at(m_pos);
    const QChar after = at(m_pos + 1);
    if (suffix == u'$' || suffix == u'%' || suffix == u'@')
        suffixed = true;
    else if (suffix == u'&') // "Total&(i)" is typed, as VB reads it; "a&b" and "a&"x"" join
        suffixed = !(isNameChar(after) || after == u'"' || after == u'[');
    else if (suffix == u'!')
        suffixed = !(after.isLetter() || after == u'[');
    else if (suffix == u'#')
        suffixed = !isNameChar(after);
    if (suffixed)
        ++m_pos;

    if (!suffixed && m_statementStart && word.compare(u"Rem", Qt::CaseInsensitive) == 0) {
        m_pos = start;
        scanComment();
        return;
    }

    // After a member access every word is a member name, "rs.Type" or "x.End" as well.
    const bool afterMemberAccess = !m_tokens.empty()
                                   && (m_tokens.back().symbol == BasicSymbol::Dot
                                       || m_tokens.back().symbol == BasicSymbol::Bang);
    const BasicKeyword keyword
        = suffixed || afterMemberAccess ? BasicKeyword::None : BasicLexer::keywordFor(word);
    push(keyword == BasicKeyword::None ? BasicTokenKind::Identifier : BasicTokenKind::Keyword,
         start,
         m_line,
         column);
    m_tokens.back().keyword = keyword;
    if (keyword == BasicKeyword::Then || keyword == BasicKeyword::Else)
        m_statementStart = true;
}

void Scanner::scanBracketedName()
{
    qsizetype end = m_pos + 1;
    while (!atLineEnd(end) && m_text[end] != u']')
        ++end;
    if (atLineEnd(end)) {
        scanSymbol(); // an unmatched bracket is an invalid character
        return;
    }
    const qsizetype start = m_pos;
    m_pos = end + 1;
    push(BasicTokenKind::Identifier, start, m_line, int(start - m_lineStart + 1));
}

void Scanner::scanNumber()
{
    const qsizetype start = m_pos;
    while (at(m_pos).isDigit())
        ++m_pos;
    if (at(m_pos) == u'.' && at(m_pos + 1).isDigit()) {
        ++m_pos;
        while (at(m_pos).isDigit())
            ++m_pos;
    }
    const QChar e = at(m_pos);
    if (e == u'e' || e == u'E' || e == u'd' || e == u'D') {
        const QChar sign = at(m_pos + 1);
        if (sign.isDigit())
            m_pos += 1;
        else if ((sign == u'+' || sign == u'-') && at(m_pos + 2).isDigit())
            m_pos += 2;
        if (m_pos != start && at(m_pos).isDigit())
            while (at(m_pos).isDigit())
                ++m_pos;
    }
    const QChar suffix = at(m_pos);
    if ((suffix == u'%' || suffix == u'&' || suffix == u'!' || suffix == u'#' || suffix == u'@')
        && !isNameChar(at(m_pos + 1)))
        ++m_pos;
    push(BasicTokenKind::Number, start, m_line, int(start - m_lineStart + 1));
}

bool Scanner::scanRadixNumber()
{
    const QChar radix = at(m_pos + 1);
    const bool hex = (radix == u'h' || radix == u'H') && isHexDigit(at(m_pos + 2));
    const bool octal = (radix == u'o' || radix == u'O') && isOctalDigit(at(m_pos + 2));
    if (!hex && !octal)
        return false;
    const qsizetype start = m_pos;
    m_pos += 2;
    while (hex ? isHexDigit(at(m_pos)) : isOctalDigit(at(m_pos)))
        ++m_pos;
    if ((at(m_pos) == u'&' || at(m_pos) == u'%') && !isNameChar(at(m_pos + 1)))
        ++m_pos;
    push(BasicTokenKind::Number, start, m_line, int(start - m_lineStart + 1));
    return true;
}

void Scanner::scanString()
{
    const qsizetype start = m_pos++;
    bool complete = false;
    while (!atLineEnd(m_pos)) {
        if (m_text[m_pos] == u'"') {
            if (at(m_pos + 1) == u'"') {
                m_pos += 2;
                continue;
            }
            ++m_pos;
            complete = true;
            break;
        }
        ++m_pos;
    }
    push(BasicTokenKind::String, start, m_line, int(start - m_lineStart + 1));
    m_tokens.back().complete = complete;
}

bool isDateName(QStringView word)
{
    static constexpr QStringView names[] = {
        u"January",   u"February", u"March",    u"April",    u"May",  u"June", u"July", u"August",
        u"September", u"October",  u"November", u"December", u"Jan",  u"Feb",  u"Mar",  u"Apr",
        u"Jun",       u"Jul",      u"Aug",      u"Sep",      u"Sept", u"Oct",  u"Nov",  u"Dec"};
    return std::any_of(std::begin(names), std::end(names), [word](QStringView name) {
        return name.compare(word, Qt::CaseInsensitive) == 0;
    });
}

bool isDayOrHalfName(QStringView word)
{
    static constexpr QStringView names[] = {u"AM",
                                            u"PM",
                                            u"A",
                                            u"P",
                                            u"Monday",
                                            u"Tuesday",
                                            u"Wednesday",
                                            u"Thursday",
                                            u"Friday",
                                            u"Saturday",
                                            u"Sunday",
                                            u"Mon",
                                            u"Tue",
                                            u"Wed",
                                            u"Thu",
                                            u"Fri",
                                            u"Sat",
                                            u"Sun"};
    return std::any_of(std::begin(names), std::end(names), [word](QStringView name) {
        return name.compare(word, Qt::CaseInsensitive) == 0;
    });
}

// Digits joined by one or more of the given separators: "1/2/2000", "12:30".
bool isJoinedNumber(QStringView word, QStringView separators)
{
    bool digitBefore = false;
    bool joined = false;
    for (QChar c : word) {
        if (c.isDigit()) {
            digitBefore = true;
        } else if (digitBefore && separators.contains(c)) {
            digitBefore = false;
            joined = true;
        } else {
            return false;
        }
    }
    return joined && digitBefore;
}

bool allDigits(QStringView word)
{
    return !word.isEmpty()
           && std::all_of(word.begin(), word.end(), [](QChar c) { return c.isDigit(); });
}

// A date with its month by name: "1-Jan-2000", "Jan/1/2000".
bool isJoinedWithMonth(QStringView word)
{
    int parts = 0;
    bool month = false;
    for (QStringView part : word.tokenize(u'-')) {
        for (QStringView piece : part.tokenize(u'/')) {
            ++parts;
            if (isDateName(piece))
                month = true;
            else if (!allDigits(piece))
                return false;
        }
    }
    return month && parts >= 2;
}

// Whether the text between two '#' reads as a date or a time: numbers joined by "/", "-", "."
// or ":" ("1/2/2000", "12:30:00"), month and day names, AM and PM. A lone number needs a month
// beside it ("January 1, 2000"), so that "#1, a, #" in a line of file output is no date.
bool plausibleDate(QStringView content)
{
    bool joined = false;
    bool month = false;
    bool lone = false;
    qsizetype i = 0;
    while (i < content.size()) {
        if (isBlank(content[i])) {
            ++i;
            continue;
        }
        qsizetype end = i;
        while (end < content.size() && !isBlank(content[end]))
            ++end;
        QStringView word = content.sliced(i, end - i);
        i = end;
        const bool comma = word.endsWith(u',');
        if (comma)
            word.chop(1);
        if (isDateName(word)) {
            month = true;
        } else if (isDayOrHalfName(word)) {
            // a weekday or the half of the day
        } else if (allDigits(word)) {
            lone = true;
        } else if (!comma && isJoinedNumber(word, u"/-.:")) {
            joined = true;
        } else if (!comma && isJoinedWithMonth(word)) {
            joined = true;
        } else {
            return false;
        }
    }
    return joined || (lone && month);
}

// Where a date literal that starts at m_pos ends, or 0 when '#' starts none.
qsizetype Scanner::dateLiteralEnd() const
{
    for (qsizetype i = m_pos + 1; !atLineEnd(i); ++i) {
        if (m_text[i] == u'#')
            return plausibleDate(m_text.sliced(m_pos + 1, i - m_pos - 1)) ? i + 1 : 0;
    }
    return 0;
}

// Where a date literal that lacks its closing '#' ends, or 0 when '#' starts none: "#1/2/2000"
// and "#12:30" are such, a file number "#1" or "#f - 1" is not.
qsizetype Scanner::unterminatedDateEnd() const
{
    qsizetype end = m_pos + 1;
    while (!atLineEnd(end) && !isBlank(m_text[end]) && !QStringView(u",;)'").contains(m_text[end]))
        ++end;
    return isJoinedNumber(m_text.sliced(m_pos + 1, end - m_pos - 1), u"/-:") ? end : 0;
}

void Scanner::scanSymbol()
{
    using S = BasicSymbol;
    const auto op = BasicTokenKind::Operator;
    const auto punct = BasicTokenKind::Punctuation;
    const QChar next = at(m_pos + 1);
    switch (m_text[m_pos].unicode()) {
    case u'(':
        return emitSymbol(S::LeftParen, punct, 1);
    case u')':
        return emitSymbol(S::RightParen, punct, 1);
    case u',':
        return emitSymbol(S::Comma, punct, 1);
    case u';':
        return emitSymbol(S::Semicolon, punct, 1);
    case u'.':
        return emitSymbol(S::Dot, punct, 1);
    case u'!':
        return emitSymbol(S::Bang, punct, 1);
    case u':':
        return next == u'=' ? emitSymbol(S::ColonEquals, punct, 2) : emitSymbol(S::Colon, punct, 1);
    case u'#':
        return emitSymbol(S::Hash, punct, 1);
    case u'+':
        return emitSymbol(S::Plus, op, 1);
    case u'-':
        return emitSymbol(S::Minus, op, 1);
    case u'*':
        return emitSymbol(S::Star, op, 1);
    case u'/':
        return emitSymbol(S::Slash, op, 1);
    case u'\\':
        return emitSymbol(S::Backslash, op, 1);
    case u'^':
        return emitSymbol(S::Caret, op, 1);
    case u'&':
        return emitSymbol(S::Ampersand, op, 1);
    case u'=':
        // "=<" and "=>" are read as "<=" and ">=".
        if (next == u'<')
            return emitSymbol(S::LessEqual, op, 2);
        if (next == u'>')
            return emitSymbol(S::GreaterEqual, op, 2);
        return emitSymbol(S::Equal, op, 1);
    case u'<':
        if (next == u'=')
            return emitSymbol(S::LessEqual, op, 2);
        if (next == u'>')
            return emitSymbol(S::NotEqual, op, 2);
        return emitSymbol(S::Less, op, 1);
    case u'>':
        if (next == u'=')
            return emitSymbol(S::GreaterEqual, op, 2);
        if (next == u'<')
            return emitSymbol(S::NotEqual, op, 2);
        return emitSymbol(S::Greater, op, 1);
    default:
        break;
    }
    const qsizetype start = m_pos;
    m_pos += m_text[m_pos].isHighSurrogate() && at(m_pos + 1).isLowSurrogate() ? 2 : 1;
    push(BasicTokenKind::Invalid, start, m_line, int(start - m_lineStart + 1));
}

} // namespace

std::vector<BasicToken> BasicLexer::tokenize(QStringView text)
{
    return Scanner(text).run();
}

BasicKeyword BasicLexer::keywordFor(QStringView word)
{
    const auto less = [](const KeywordEntry &entry, QStringView w) {
        return entry.text.compare(w, Qt::CaseInsensitive) < 0;
    };
    const auto it = std::lower_bound(std::begin(keywordTable), std::end(keywordTable), word, less);
    if (it != std::end(keywordTable) && it->text.compare(word, Qt::CaseInsensitive) == 0)
        return it->keyword;
    return BasicKeyword::None;
}
