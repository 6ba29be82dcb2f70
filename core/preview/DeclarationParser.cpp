#include "preview/DeclarationParser.h"

#include <QSet>

#include <algorithm>

namespace DeclarationParser {

namespace {

bool isIdentifierChar(QChar c)
{
    return c.isLetterOrNumber() || c == u'_';
}

QString typeOfCharacter(QChar c)
{
    switch (c.unicode()) {
    case u'%':
        return QStringLiteral("Integer");
    case u'&':
        return QStringLiteral("Long");
    case u'!':
        return QStringLiteral("Single");
    case u'#':
        return QStringLiteral("Double");
    case u'@':
        return QStringLiteral("Currency");
    case u'$':
        return QStringLiteral("String");
    default:
        return {};
    }
}

// Walks a statement word by word; blanks and tabs separate.
class Cursor final
{
public:
    explicit Cursor(QStringView text)
        : m_text(text)
    {
    }

    qsizetype position() const { return m_position; }

    void skipBlanks()
    {
        while (m_position < m_text.size()
               && (m_text[m_position] == u' ' || m_text[m_position] == u'\t'))
            ++m_position;
    }

    QStringView peekWord()
    {
        skipBlanks();
        qsizetype end = m_position;
        while (end < m_text.size() && isIdentifierChar(m_text[end]))
            ++end;
        return m_text.mid(m_position, end - m_position);
    }

    bool accept(QLatin1StringView word)
    {
        const QStringView next = peekWord();
        if (next.size() != word.size() || next.compare(word, Qt::CaseInsensitive) != 0)
            return false;
        m_position += next.size();
        return true;
    }

    QStringView takeWord()
    {
        const QStringView word = peekWord();
        m_position += word.size();
        return word;
    }

    bool acceptChar(QChar c)
    {
        skipBlanks();
        if (m_position >= m_text.size() || m_text[m_position] != c)
            return false;
        ++m_position;
        return true;
    }

    // An identifier or a [bracketed] name, with its type-declaration character.
    bool takeName(Name &name)
    {
        skipBlanks();
        name.offset = m_position;
        if (m_position < m_text.size() && m_text[m_position] == u'[') {
            const qsizetype close = m_text.indexOf(u']', m_position);
            if (close < 0)
                return false;
            name.name = m_text.mid(m_position + 1, close - m_position - 1).toString();
            m_position = close + 1;
            return !name.name.isEmpty();
        }
        if (m_position >= m_text.size()
            || !(m_text[m_position].isLetter() || m_text[m_position] == u'_'))
            return false;
        qsizetype end = m_position;
        while (end < m_text.size() && isIdentifierChar(m_text[end]))
            ++end;
        name.name = m_text.mid(m_position, end - m_position).toString();
        m_position = end;
        if (m_position < m_text.size()) {
            const QString type = typeOfCharacter(m_text[m_position]);
            if (!type.isEmpty()) {
                name.dataType = type;
                ++m_position;
            }
        }
        return true;
    }

    // From an opening bracket just taken to past its closing one.
    void skipBracket()
    {
        int depth = 1;
        while (m_position < m_text.size() && depth > 0) {
            if (m_text[m_position] == u'(')
                ++depth;
            else if (m_text[m_position] == u')')
                --depth;
            ++m_position;
        }
    }

    // The text between an opening bracket just taken and its closing one, which is taken.
    QStringView bracketed()
    {
        const qsizetype start = m_position;
        skipBracket();
        const qsizetype end
            = m_position > start && m_position <= m_text.size() && m_text[m_position - 1] == u')'
                  ? m_position - 1
                  : m_position;
        return m_text.mid(start, end - start);
    }

    QStringView rest()
    {
        skipBlanks();
        return m_text.mid(m_position);
    }

private:
    QStringView m_text;
    qsizetype m_position = 0;
};

// "As [New] Lib.Type [* n] [()]"; the length of a fixed string is no part of its type.
void readAsClause(Cursor &cursor, Name &name)
{
    if (!cursor.accept(QLatin1StringView("As")))
        return;
    if (cursor.accept(QLatin1StringView("New")))
        name.isAsNew = true;
    QString type;
    for (;;) {
        const QStringView word = cursor.takeWord();
        if (word.isEmpty())
            break;
        type += word;
        if (!cursor.acceptChar(u'.'))
            break;
        type += u'.';
    }
    if (type.isEmpty())
        return;
    name.dataType = type;
    name.dataTypeUnknown = false;
    if (cursor.acceptChar(u'(') && cursor.acceptChar(u')'))
        name.isArray = true;
}

// Pieces separated by commas outside brackets.
std::vector<std::pair<QStringView, qsizetype>> splitList(QStringView text, qsizetype base)
{
    std::vector<std::pair<QStringView, qsizetype>> pieces;
    int depth = 0;
    qsizetype start = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i == text.size() || (text[i] == u',' && depth == 0)) {
            pieces.emplace_back(text.mid(start, i - start), base + start);
            start = i + 1;
        } else if (text[i] == u'(') {
            ++depth;
        } else if (text[i] == u')') {
            --depth;
        }
    }
    return pieces;
}

// What a constant without "As" is typed by: its literal, as the compiler types it. Any other
// expression leaves the type unknown here.
QString literalType(QStringView value, bool &unknown)
{
    unknown = false;
    QStringView v = value.trimmed();
    if (v == u"\"\"")
        return QStringLiteral("String");
    if (v.size() >= 2 && v.startsWith(u'#') && v.endsWith(u'#'))
        return QStringLiteral("Date");
    if (v.compare(u"True", Qt::CaseInsensitive) == 0
        || v.compare(u"False", Qt::CaseInsensitive) == 0)
        return QStringLiteral("Boolean");
    const bool negative = v.startsWith(u'-');
    if (negative || v.startsWith(u'+'))
        v = v.mid(1).trimmed();
    if (v.isEmpty()) {
        unknown = true;
        return {};
    }
    QString suffix;
    if (!typeOfCharacter(v.back()).isEmpty()) {
        suffix = typeOfCharacter(v.back());
        v.chop(1);
    }
    bool ok = false;
    if (v.startsWith(u"&H", Qt::CaseInsensitive) || v.startsWith(u"&O", Qt::CaseInsensitive)) {
        const qulonglong n = v.mid(2).toULongLong(&ok, v[1].toUpper() == u'H' ? 16 : 8);
        if (ok)
            return !suffix.isEmpty()
                       ? suffix
                       : QString(n <= 0xFFFF ? QStringLiteral("Integer") : QStringLiteral("Long"));
    } else if (!v.isEmpty() && v[0].isDigit()) {
        const qlonglong n = v.toLongLong(&ok);
        if (ok && !suffix.isEmpty())
            return suffix;
        if (ok)
            return n <= 32767 + qlonglong(negative)          ? QStringLiteral("Integer")
                   : n <= 2147483647LL + qlonglong(negative) ? QStringLiteral("Long")
                                                             : QStringLiteral("Double");
        (void)v.toDouble(&ok);
        if (ok)
            return !suffix.isEmpty() ? suffix : QStringLiteral("Double");
    }
    unknown = true;
    return {};
}

Name readArgument(QStringView text, qsizetype base)
{
    Cursor cursor(text);
    Name name;
    bool paramArray = false;
    for (;;) {
        if (cursor.accept(QLatin1StringView("Optional")))
            continue;
        if (cursor.accept(QLatin1StringView("ByVal"))) {
            name.byVal = true;
            continue;
        }
        if (cursor.accept(QLatin1StringView("ByRef")))
            continue;
        if (cursor.accept(QLatin1StringView("ParamArray"))) {
            paramArray = true;
            continue;
        }
        break;
    }
    if (!cursor.takeName(name))
        return {};
    name.offset += base;
    if (cursor.acceptChar(u'(')) {
        cursor.skipBracket();
        name.isArray = true;
    }
    name.isArray = name.isArray || paramArray;
    readAsClause(cursor, name);
    return name;
}

void readArguments(Cursor &cursor, Statement &statement, qsizetype base)
{
    if (!cursor.acceptChar(u'('))
        return;
    const qsizetype start = cursor.position();
    const QStringView list = cursor.bracketed();
    if (list.trimmed().isEmpty())
        return;
    for (const auto &[piece, offset] : splitList(list, base + start)) {
        Name argument = readArgument(piece, offset);
        if (!argument.name.isEmpty())
            statement.items.push_back(std::move(argument));
    }
}

void readVariables(QStringView text, qsizetype base, Statement &statement)
{
    for (const auto &[piece, offset] : splitList(text, base)) {
        Cursor cursor(piece);
        Name name;
        if (cursor.accept(QLatin1StringView("WithEvents")))
            name.withEvents = true;
        if (!cursor.takeName(name))
            continue;
        name.offset += offset;
        if (cursor.acceptChar(u'(')) {
            cursor.skipBracket();
            name.isArray = true;
        }
        readAsClause(cursor, name);
        statement.items.push_back(std::move(name));
    }
}

void readConsts(QStringView text, qsizetype base, Statement &statement)
{
    for (const auto &[piece, offset] : splitList(text, base)) {
        Cursor cursor(piece);
        Name name;
        if (!cursor.takeName(name))
            continue;
        name.offset += offset;
        const bool byCharacter = !name.dataType.isEmpty();
        readAsClause(cursor, name);
        if (!byCharacter && name.dataType.isEmpty() && cursor.acceptChar(u'='))
            name.dataType = literalType(cursor.rest(), name.dataTypeUnknown);
        statement.items.push_back(std::move(name));
    }
}

const std::pair<const char *, const char *> DefTypes[] = {
    {"DefBool", "Boolean"},
    {"DefByte", "Byte"},
    {"DefInt", "Integer"},
    {"DefLng", "Long"},
    {"DefCur", "Currency"},
    {"DefSng", "Single"},
    {"DefDbl", "Double"},
    {"DefDec", "Decimal"},
    {"DefDate", "Date"},
    {"DefStr", "String"},
    {"DefObj", "Object"},
    {"DefVar", "Variant"},
};

// "A-Z, M" as the set of first letters it covers.
QString defLetters(QStringView ranges)
{
    QString letters;
    for (QStringView part : ranges.split(u',')) {
        part = part.trimmed();
        if (part.isEmpty() || !part[0].isLetter())
            continue;
        QChar from = part[0].toLower();
        QChar to = from;
        const qsizetype dash = part.indexOf(u'-');
        if (dash > 0 && dash + 1 < part.size()) {
            const QStringView end = part.mid(dash + 1).trimmed();
            if (!end.isEmpty() && end[0].isLetter())
                to = end[0].toLower();
        }
        for (char16_t c = from.unicode(); c <= to.unicode() && c <= u'z'; ++c)
            letters += QChar(c);
    }
    return letters;
}

} // namespace

Statement parse(QStringView text)
{
    Statement statement;
    Cursor cursor(text);
    // Most statements begin with no word a declaration begins with: settled at once.
    static constexpr QLatin1StringView leaders[] = {
        QLatin1StringView("Public"),
        QLatin1StringView("Private"),
        QLatin1StringView("Friend"),
        QLatin1StringView("Global"),
        QLatin1StringView("Dim"),
        QLatin1StringView("Static"),
        QLatin1StringView("Declare"),
        QLatin1StringView("Enum"),
        QLatin1StringView("Type"),
        QLatin1StringView("Event"),
        QLatin1StringView("Sub"),
        QLatin1StringView("Function"),
        QLatin1StringView("Property"),
        QLatin1StringView("Const"),
        QLatin1StringView("Implements"),
        QLatin1StringView("End"),
    };
    const QStringView first = cursor.peekWord();
    const bool leads = std::any_of(
        std::begin(leaders), std::end(leaders), [&](QLatin1StringView leader) {
            return first.size() == leader.size() && first.compare(leader, Qt::CaseInsensitive) == 0;
        });
    if (!leads && !(first.size() >= 6 && first.startsWith(u"Def", Qt::CaseInsensitive)))
        return statement;
    for (;;) {
        if (cursor.accept(QLatin1StringView("Public")))
            statement.scopeWord = QStringLiteral("Public");
        else if (cursor.accept(QLatin1StringView("Private")))
            statement.scopeWord = QStringLiteral("Private");
        else if (cursor.accept(QLatin1StringView("Friend")))
            statement.scopeWord = QStringLiteral("Friend");
        else if (cursor.accept(QLatin1StringView("Global")))
            statement.scopeWord = QStringLiteral("Global");
        else if (cursor.accept(QLatin1StringView("Dim")))
            statement.isDim = true;
        else if (cursor.accept(QLatin1StringView("Static")))
            statement.isStatic = true;
        else
            break;
    }
    const bool modified = !statement.scopeWord.isEmpty() || statement.isDim || statement.isStatic;

    if (cursor.accept(QLatin1StringView("Declare"))) {
        statement.kind = Kind::Declare;
        statement.head.typed = !cursor.accept(QLatin1StringView("Sub"));
        if (statement.head.typed && !cursor.accept(QLatin1StringView("Function")))
            return {};
        if (!cursor.takeName(statement.head))
            return {};
        // Lib and Alias are emptied strings; the arguments follow in brackets.
        const QStringView rest = cursor.rest();
        const qsizetype open = rest.indexOf(u'(');
        const qsizetype base = cursor.position();
        if (open >= 0) {
            Cursor arguments(rest.mid(open));
            readArguments(arguments, statement, base + open);
            Cursor tail(rest.mid(open + arguments.position()));
            if (statement.head.typed)
                readAsClause(tail, statement.head);
        }
        return statement;
    }
    if (cursor.accept(QLatin1StringView("Enum")))
        statement.kind = Kind::EnumBegin;
    else if (cursor.accept(QLatin1StringView("Type")))
        statement.kind = Kind::TypeBegin;
    if (statement.kind != Kind::Other) {
        statement.head.typed = false;
        if (!cursor.takeName(statement.head))
            return {};
        return statement;
    }
    if (cursor.accept(QLatin1StringView("Event"))) {
        statement.kind = Kind::Event;
        statement.head.typed = false;
        if (!cursor.takeName(statement.head))
            return {};
        readArguments(cursor, statement, 0);
        return statement;
    }
    if (cursor.accept(QLatin1StringView("Sub")))
        statement.procedure = ProcedureKind::Sub;
    else if (cursor.accept(QLatin1StringView("Function")))
        statement.procedure = ProcedureKind::Function;
    else if (cursor.accept(QLatin1StringView("Property")))
        statement.procedure = ProcedureKind::Property;
    if (statement.procedure != ProcedureKind::None) {
        statement.kind = Kind::ProcedureBegin;
        statement.head.typed = statement.procedure == ProcedureKind::Function;
        if (statement.procedure == ProcedureKind::Property) {
            statement.head.typed = cursor.accept(QLatin1StringView("Get"));
            if (!statement.head.typed && !cursor.accept(QLatin1StringView("Let"))
                && !cursor.accept(QLatin1StringView("Set")))
                return {};
        }
        if (!cursor.takeName(statement.head))
            return {};
        if (!statement.head.typed)
            statement.head.dataType.clear();
        readArguments(cursor, statement, 0);
        if (statement.head.typed)
            readAsClause(cursor, statement.head);
        return statement;
    }
    if (cursor.accept(QLatin1StringView("Const"))) {
        statement.kind = Kind::Consts;
        const qsizetype base = cursor.position();
        readConsts(text.mid(base), base, statement);
        return statement;
    }
    if (modified) {
        statement.kind = Kind::Variables;
        const qsizetype base = cursor.position();
        readVariables(text.mid(base), base, statement);
        return statement;
    }
    if (cursor.accept(QLatin1StringView("Implements"))) {
        statement.kind = Kind::Implements;
        statement.head.typed = false;
        statement.head.offset = cursor.position();
        statement.head.name = cursor.rest().trimmed().toString();
        if (statement.head.name.isEmpty())
            return {};
        return statement;
    }
    if (cursor.accept(QLatin1StringView("End"))) {
        if (cursor.accept(QLatin1StringView("Sub")) || cursor.accept(QLatin1StringView("Function"))
            || cursor.accept(QLatin1StringView("Property")))
            statement.kind = Kind::ProcedureEnd;
        else if (cursor.accept(QLatin1StringView("Enum")))
            statement.kind = Kind::EnumEnd;
        else if (cursor.accept(QLatin1StringView("Type")))
            statement.kind = Kind::TypeEnd;
        return statement;
    }
    const QStringView word = cursor.peekWord();
    if (word.startsWith(u"Def", Qt::CaseInsensitive)) {
        for (const auto &[keyword, type] : DefTypes) {
            if (word.compare(QLatin1StringView(keyword), Qt::CaseInsensitive) == 0) {
                cursor.accept(QLatin1StringView(keyword));
                statement.kind = Kind::DefType;
                statement.defType = QLatin1StringView(type);
                statement.defLetters = defLetters(cursor.rest());
                return statement;
            }
        }
    }
    return statement;
}

Name enumElement(QStringView text)
{
    Cursor cursor(text);
    Name name;
    if (!cursor.takeName(name))
        return {};
    name.dataType = QStringLiteral("Long");
    return name;
}

Name typeElement(QStringView text)
{
    Cursor cursor(text);
    Name name;
    if (!cursor.takeName(name))
        return {};
    if (cursor.acceptChar(u'(')) {
        cursor.skipBracket();
        name.isArray = true;
    }
    readAsClause(cursor, name);
    return name;
}

QString lineLabel(QStringView code)
{
    // Statements a line may begin with that a colon can follow.
    static const QSet<QString> statements = {
        QStringLiteral("else"),
        QStringLiteral("end"),
        QStringLiteral("loop"),
        QStringLiteral("next"),
        QStringLiteral("wend"),
        QStringLiteral("do"),
        QStringLiteral("return"),
        QStringLiteral("stop"),
        QStringLiteral("resume"),
        QStringLiteral("beep"),
        QStringLiteral("print"),
        QStringLiteral("cls"),
        QStringLiteral("exit"),
        QStringLiteral("randomize"),
        QStringLiteral("rem"),
    };
    Cursor cursor(code);
    Name name;
    if (!cursor.takeName(name) || !name.dataType.isEmpty())
        return {};
    const qsizetype colon = cursor.position();
    if (colon >= code.size() || code[colon] != u':')
        return {};
    if (colon + 1 < code.size() && code[colon + 1] == u'=')
        return {};
    if (statements.contains(name.name.toLower()))
        return {};
    return name.name;
}

} // namespace DeclarationParser
