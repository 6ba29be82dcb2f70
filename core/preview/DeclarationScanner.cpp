#include "preview/DeclarationScanner.h"

#include "collections/KeyedArrayList.h"
#include "platform/TextUtils.h"
#include "preview/CatalogueObject.h"
#include "preview/DeclarationParser.h"
#include "preview/DeclaredObject.h"
#include "preview/ParserEvent.h"
#include "preview/ScanSink.h"
#include "project/SourceLineStatistics.h"
#include "project/VirtualSourceFile.h"
#include "project/modSource.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QVariant>

#include <array>

namespace {

using namespace DeclarationParser;
using Bits = quint64;

constexpr Bits bit(qint32 id)
{
    return ParserEvent::bit(id);
}

// The line analysis counts positions in 16 bits; longer lines are beyond it.
constexpr qsizetype LongestAnalysedLine = 32767;

QStringView trimmed(QStringView text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && (text[start] == u' ' || text[start] == u'\t'))
        ++start;
    while (end > start && (text[end - 1] == u' ' || text[end - 1] == u'\t'))
        --end;
    return text.mid(start, end - start);
}

bool startsWithWord(QStringView text, QLatin1StringView word)
{
    return text.startsWith(word, Qt::CaseInsensitive)
           && (text.size() == word.size() || text[word.size()] == u' '
               || text[word.size()] == u'\t');
}

// The code of a logical line: string literals emptied and the comment cut, as the line
// analysis finds them.
QString codeOf(const QString &logical)
{
    // Without a quote there is no literal to empty, and without a colon no ": Rem ".
    QString code = logical.contains(u'"') ? modSource::StripQuotedText(logical) : logical;
    const qsizetype apostrophe = code.indexOf(u'\'');
    if (apostrophe >= 0)
        code.truncate(apostrophe);
    if (code.contains(u':')) {
        const qsizetype rem = code.indexOf(QLatin1StringView(": Rem "), 0, Qt::CaseInsensitive);
        if (rem >= 0)
            code.truncate(rem);
    }
    const QStringView kept = trimmed(code);
    return kept.size() == code.size() ? code : kept.toString();
}

// The object type of the file itself.
qint32 fileObjectType(qint32 fileType, bool mdiChild)
{
    switch (fileType) {
    case SourceFileType::Class:
        return CatalogueObject::ClassFile;
    case SourceFileType::Form:
        return mdiChild ? CatalogueObject::MDIChildFormFile : CatalogueObject::NonMDIFormFile;
    case SourceFileType::Designer:
        return CatalogueObject::DesignerFile;
    case SourceFileType::Module:
        return CatalogueObject::ModuleFile;
    case SourceFileType::PropertyPage:
        return CatalogueObject::PropertyPageFile;
    case SourceFileType::UserDocument:
        return CatalogueObject::UserDocumentFile;
    case SourceFileType::UserControl:
        return CatalogueObject::UserControlFile;
    case SourceFileType::MDIForm:
        return CatalogueObject::MDIFormFile;
    default:
        return CatalogueObject::File;
    }
}

// The state of one walk through one file.
class FileScan final
{
public:
    FileScan(ScanSink &sink, VirtualSourceFile &file, SourceLineStatistics &lines)
        : m_sink(sink)
        , m_file(file)
        , m_lines(lines)
    {
    }

    void run();

private:
    enum class Section { Header, Declarations, Procedure, Enum, Type };

    void headerLine(QStringView text, qint32 line);
    void codeLine(const QString &raw, const QString &logical, SourceLineType type, qint32 line);
    void statement(QStringView text, Bits &events);
    void declarationStatement(const Statement &parsed, Bits &events);
    void procedureStatement(const Statement &parsed, Bits &events);

    void emitName(const Name &name, qint32 type, DeclaredScope scope);
    void emitArguments(const Statement &parsed, qint32 type);
    qint32 physicalLine(const QString &name);
    QString defaultType(const QString &name) const;

    ScanSink &m_sink;
    VirtualSourceFile &m_file;
    SourceLineStatistics &m_lines;

    Section m_section = Section::Header;
    int m_layoutDepth = 0;
    int m_propertyDepth = 0;
    bool m_mdiChild = false;
    bool m_procedureStatic = false;
    QSet<QString> m_controls; // lower case: a control array is one control
    std::array<QString, 26> m_defTypes;

    // The logical line being read: its first physical line and, when it spans several, the
    // physical lines themselves, to place a name on the line that holds it.
    qint32 m_line = 0;
    QStringList m_rawLines;
    qsizetype m_searchFrom = 0;
};

void FileScan::run()
{
    QString raw;
    QString logical;
    qint32 physical = 0;
    qint32 length = 0;
    qint32 nextLine = 1;
    while (m_file.GetNextSourceLine(raw, logical, physical, length)) {
        const qint32 line = nextLine;
        nextLine += 1 + qint32(raw.count(u'\n'));
        const bool attribute = raw.startsWith(QLatin1StringView("Attribute"), Qt::CaseInsensitive);
        const SourceLineType type = modSource::SourceLineType(logical);
        if (m_file.LineCountingEnabled() && physical > 0)
            m_lines.IncrementCount(type);
        if (attribute)
            continue; // attributes belong to no parser event
        if (m_section == Section::Header) {
            const QStringView text = trimmed(logical);
            const bool header
                = m_layoutDepth > 0 || text.isEmpty()
                  || startsWithWord(text, QLatin1StringView("VERSION"))
                  || startsWithWord(text, QLatin1StringView("Begin"))
                  || (text.startsWith(QLatin1StringView("Object"), Qt::CaseInsensitive)
                      && text.mid(6).trimmed().startsWith(u'='));
            if (!m_file.LineCountingEnabled() && header) {
                headerLine(text, line);
                continue;
            }
            m_section = Section::Declarations;
        }
        codeLine(raw, logical, type, line);
    }

    DeclaredObject file;
    file.objectType = fileObjectType(m_file.FileType(), m_mdiChild);
    file.name = m_file.Name();
    file.line = 1;
    auto properties = std::make_shared<QHash<QString, QString>>();
    const auto bag = m_file.Properties();
    for (qint32 i = 1; i <= bag->Count(); ++i)
        properties->insert(bag->Key(i).toLower(), bag->Item(i).toString());
    file.properties = properties;
    m_sink.declared(std::move(file));
}

void FileScan::headerLine(QStringView text, qint32 line)
{
    const bool layout = m_file.HasLayout();
    if (text.startsWith(QLatin1StringView("Object"), Qt::CaseInsensitive)) {
        m_sink.code(bit(ParserEvent::Component), text, line);
        return;
    }
    if (startsWithWord(text, QLatin1StringView("BeginProperty"))) {
        ++m_propertyDepth;
        return;
    }
    if (startsWithWord(text, QLatin1StringView("EndProperty"))) {
        m_propertyDepth = std::max(0, m_propertyDepth - 1);
        return;
    }
    if (m_propertyDepth > 0)
        return;
    if (startsWithWord(text, QLatin1StringView("Begin"))) {
        ++m_layoutDepth;
        // "Begin VB.CommandButton cmdPost": the class, then the name.
        const QList<QStringView> words = text.split(u' ', Qt::SkipEmptyParts);
        if (!layout || words.size() < 3)
            return;
        if (m_layoutDepth == 1) {
            m_sink.code(bit(ParserEvent::BeginLayout), text, line);
            return;
        }
        // A designer's inner blocks are its own objects, not controls.
        if (m_file.FileType() == SourceFileType::Designer)
            return;
        m_sink.code(bit(ParserEvent::Control), text, line);
        const QString name = words.at(2).toString();
        if (m_controls.contains(name.toLower()))
            return;
        m_controls.insert(name.toLower());
        DeclaredObject control;
        control.objectType = CatalogueObject::Control;
        control.name = name;
        control.line = line;
        control.progID = words.at(1).toString();
        m_sink.declared(std::move(control));
        return;
    }
    if (text.compare(QLatin1StringView("End"), Qt::CaseInsensitive) == 0) {
        if (m_layoutDepth == 1 && layout)
            m_sink.code(bit(ParserEvent::EndLayout), text, line);
        m_layoutDepth = std::max(0, m_layoutDepth - 1);
        return;
    }
    if (m_layoutDepth == 1 && startsWithWord(text, QLatin1StringView("MDIChild"))) {
        const QStringView value = trimmed(text.mid(text.indexOf(u'=') + 1));
        m_mdiChild = value.startsWith(u"-1") || value.startsWith(u"True", Qt::CaseInsensitive);
    }
}

void FileScan::codeLine(const QString &raw,
                        const QString &logical,
                        SourceLineType type,
                        qint32 line)
{
    if (type == SourceLineType::Blank || type == SourceLineType::CommentOnly
        || logical.size() > LongestAnalysedLine)
        return;
    const QString code = codeOf(logical);
    if (code.isEmpty())
        return;
    m_line = line;
    m_searchFrom = 0;
    m_rawLines.clear();
    if (raw.contains(u'\n'))
        m_rawLines = raw.split(QLatin1StringView("\r\n"));

    Bits events = bit(ParserEvent::SourceLine);
    QStringView rest = code;
    if (m_section == Section::Procedure) {
        // Old-style line numbers are labels too; the reader cut them from the logical line.
        qsizetype digits = 0;
        while (digits < raw.size() && raw[digits].isDigit())
            ++digits;
        const QString label = digits > 0 ? raw.left(digits) : lineLabel(code);
        if (!label.isEmpty()) {
            events |= bit(ParserEvent::ProcedureBody) | bit(ParserEvent::LineLabel);
            Name name;
            name.name = label;
            name.typed = false;
            emitName(name, CatalogueObject::LineLabel, DeclaredScope::None);
            if (digits == 0)
                rest = rest.mid(rest.indexOf(u':') + 1);
        }
    }
    // Statements separated by ":"; literals are empty, so a colon is a separator.
    qsizetype start = 0;
    for (qsizetype i = 0; i <= rest.size(); ++i) {
        if (i < rest.size() && rest[i] != u':')
            continue;
        const QStringView piece = trimmed(rest.mid(start, i - start));
        if (!piece.isEmpty() && !piece.startsWith(u'#'))
            statement(piece, events);
        start = i + 1;
    }
    m_sink.code(events, code, line);
}

void FileScan::statement(QStringView text, Bits &events)
{
    switch (m_section) {
    case Section::Enum:
        events |= bit(ParserEvent::Declaration);
        if (parse(text).kind == Kind::EnumEnd) {
            events |= bit(ParserEvent::EndEnum);
            m_section = Section::Declarations;
        } else {
            events |= bit(ParserEvent::EnumBody);
            const Name element = enumElement(text);
            if (!element.name.isEmpty()) {
                events |= bit(ParserEvent::EnumElement);
                emitName(element, CatalogueObject::EnumElement, DeclaredScope::None);
            }
        }
        return;
    case Section::Type:
        events |= bit(ParserEvent::Declaration);
        if (parse(text).kind == Kind::TypeEnd) {
            events |= bit(ParserEvent::EndType);
            m_section = Section::Declarations;
        } else {
            events |= bit(ParserEvent::TypeBody);
            const Name element = typeElement(text);
            if (!element.name.isEmpty()) {
                events |= bit(ParserEvent::TypeElement);
                emitName(element, CatalogueObject::TypeElement, DeclaredScope::None);
            }
        }
        return;
    case Section::Procedure:
        procedureStatement(parse(text), events);
        return;
    default:
        declarationStatement(parse(text), events);
        return;
    }
}

DeclaredScope moduleScope(const Statement &parsed, DeclaredScope unspecified)
{
    if (parsed.scopeWord == QLatin1StringView("Public")
        || parsed.scopeWord == QLatin1StringView("Global"))
        return DeclaredScope::Public;
    if (parsed.scopeWord == QLatin1StringView("Private"))
        return DeclaredScope::Private;
    if (parsed.scopeWord == QLatin1StringView("Friend"))
        return DeclaredScope::Friend;
    return unspecified;
}

void FileScan::declarationStatement(const Statement &parsed, Bits &events)
{
    using CO = DeclaredScope;
    if (parsed.kind == Kind::ProcedureBegin) {
        events |= bit(ParserEvent::BeginProcedure);
        const qint32 type = parsed.procedure == ProcedureKind::Sub ? CatalogueObject::SubProcedure
                            : parsed.procedure == ProcedureKind::Function
                                ? CatalogueObject::FunctionProcedure
                                : CatalogueObject::PropertyProcedure;
        emitName(parsed.head, type, moduleScope(parsed, CO::Public));
        if (!parsed.items.empty())
            events |= bit(ParserEvent::ProcedureArgument);
        emitArguments(parsed, CatalogueObject::ProcedureArgument);
        m_procedureStatic = parsed.isStatic;
        m_section = Section::Procedure;
        return;
    }
    events |= bit(ParserEvent::Declaration);
    switch (parsed.kind) {
    case Kind::Variables:
        events |= bit(ParserEvent::Variable);
        for (const Name &name : parsed.items) {
            const bool isPublic = moduleScope(parsed, CO::Private) == CO::Public;
            const qint32 type = name.withEvents
                                    ? (isPublic ? CatalogueObject::PublicWithEventsVariable
                                                : CatalogueObject::PrivateWithEventsVariable)
                                    : (isPublic ? CatalogueObject::PublicVariable
                                                : CatalogueObject::PrivateVariable);
            emitName(name, type, isPublic ? CO::Public : CO::Private);
        }
        return;
    case Kind::Consts:
        events |= bit(ParserEvent::Const);
        for (const Name &name : parsed.items) {
            const bool isPublic = moduleScope(parsed, CO::Private) == CO::Public;
            emitName(name,
                     isPublic ? CatalogueObject::PublicConst : CatalogueObject::PrivateConst,
                     isPublic ? CO::Public : CO::Private);
        }
        return;
    case Kind::Declare:
        events |= bit(ParserEvent::Declare);
        if (!parsed.items.empty())
            events |= bit(ParserEvent::DeclareArgument);
        emitName(parsed.head, CatalogueObject::Declare, moduleScope(parsed, CO::Public));
        emitArguments(parsed, CatalogueObject::DeclareArgument);
        return;
    case Kind::EnumBegin:
        events |= bit(ParserEvent::BeginEnum);
        emitName(parsed.head, CatalogueObject::Enum, moduleScope(parsed, CO::Public));
        m_section = Section::Enum;
        return;
    case Kind::TypeBegin:
        events |= bit(ParserEvent::BeginType);
        emitName(parsed.head, CatalogueObject::Type, moduleScope(parsed, CO::Public));
        m_section = Section::Type;
        return;
    case Kind::Event:
        events |= bit(ParserEvent::Event);
        if (!parsed.items.empty())
            events |= bit(ParserEvent::EventArgument);
        emitName(parsed.head, CatalogueObject::Event, moduleScope(parsed, CO::Public));
        emitArguments(parsed, CatalogueObject::EventArgument);
        return;
    case Kind::Implements:
        events |= bit(ParserEvent::Implements);
        emitName(parsed.head, CatalogueObject::Implements, CO::None);
        return;
    case Kind::DefType:
        for (const QChar letter : parsed.defLetters)
            m_defTypes[letter.unicode() - u'a'] = parsed.defType;
        return;
    default:
        return;
    }
}

void FileScan::procedureStatement(const Statement &parsed, Bits &events)
{
    if (parsed.kind == Kind::ProcedureEnd) {
        events |= bit(ParserEvent::EndProcedure);
        m_section = Section::Declarations;
        return;
    }
    events |= bit(ParserEvent::ProcedureBody);
    if (parsed.kind == Kind::Variables && (parsed.isDim || parsed.isStatic)) {
        events |= bit(ParserEvent::LocalVariable);
        const bool isStatic = parsed.isStatic || m_procedureStatic;
        for (const Name &name : parsed.items)
            emitName(name,
                     isStatic ? CatalogueObject::LocalStaticVariable
                              : CatalogueObject::LocalVariable,
                     isStatic ? DeclaredScope::LocalStatic : DeclaredScope::Local);
    } else if (parsed.kind == Kind::Consts) {
        events |= bit(ParserEvent::LocalConst);
        for (const Name &name : parsed.items)
            emitName(name, CatalogueObject::LocalConst, DeclaredScope::Local);
    }
}

void FileScan::emitArguments(const Statement &parsed, qint32 type)
{
    for (const Name &argument : parsed.items)
        emitName(argument,
                 type,
                 argument.byVal ? DeclaredScope::ByValArgument : DeclaredScope::ByRefArgument);
}

QString FileScan::defaultType(const QString &name) const
{
    const QChar first = name.isEmpty() ? QChar() : name[0].toLower();
    if (first >= u'a' && first <= u'z' && !m_defTypes[first.unicode() - u'a'].isEmpty())
        return m_defTypes[first.unicode() - u'a'];
    return QStringLiteral("Variant");
}

void FileScan::emitName(const Name &name, qint32 type, DeclaredScope scope)
{
    if (name.name.isEmpty())
        return;
    DeclaredObject object;
    object.objectType = type;
    object.name = name.name;
    object.line = physicalLine(name.name);
    object.scope = scope;
    object.dataType = name.dataType;
    object.dataTypeUnknown = name.dataTypeUnknown;
    if (name.typed && object.dataType.isEmpty() && !object.dataTypeUnknown)
        object.dataType = defaultType(name.name);
    object.isArray = name.isArray;
    object.isAsNew = name.isAsNew;
    m_sink.declared(std::move(object));
}

// The physical line of a logical one that first holds `name` as a word, from where the last
// name was found on.
qint32 FileScan::physicalLine(const QString &name)
{
    if (m_rawLines.isEmpty())
        return m_line;
    for (qsizetype i = m_searchFrom; i < m_rawLines.size(); ++i) {
        const QString &text = m_rawLines.at(i);
        qsizetype at = text.indexOf(name, 0, Qt::CaseInsensitive);
        while (at >= 0) {
            const bool before
                = at == 0 || !(text[at - 1].isLetterOrNumber() || text[at - 1] == u'_');
            const qsizetype end = at + name.size();
            const bool after
                = end >= text.size() || !(text[end].isLetterOrNumber() || text[end] == u'_');
            if (before && after) {
                m_searchFrom = i;
                return m_line + qint32(i);
            }
            at = text.indexOf(name, at + 1, Qt::CaseInsensitive);
        }
    }
    return m_line + qint32(m_searchFrom);
}

} // namespace

DeclarationScanner::DeclarationScanner(ScanSink &sink)
    : m_sink(sink)
    , m_lines(std::make_unique<SourceLineStatistics>())
{
}

DeclarationScanner::~DeclarationScanner() = default;

bool DeclarationScanner::scan(VirtualSourceFile &file, QString &problem)
{
    *m_lines = SourceLineStatistics();
    const QFileInfo info(file.Filename());
    if (!info.isFile()) {
        problem = QStringLiteral("No such file");
        return false;
    }
    // Checked here so that the reader's own failure, which it reports as an error, can't come.
    QFile probe(info.filePath());
    if (!probe.open(QIODevice::ReadOnly)) {
        problem = QStringLiteral("The file could not be read: ") + probe.errorString();
        return false;
    }
    probe.close();
    if (file.Connect() != 0) {
        problem = QStringLiteral("The file could not be read");
        return false;
    }
    FileScan(m_sink, file, *m_lines).run();
    file.Disconnect();
    return true;
}
