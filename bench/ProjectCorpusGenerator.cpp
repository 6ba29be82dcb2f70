#include "bench/ProjectCorpusGenerator.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

const char *const nouns[]
    = {"Invoice",  "Customer", "Ledger",  "Account",  "Order",    "Stock",   "Report",   "Payment",
       "Supplier", "Tax",      "Address", "Batch",    "Journal",  "Period",  "Currency", "Item",
       "Price",    "Discount", "Queue",   "Session",  "Printer",  "Export",  "Import",   "Setting",
       "User",     "Audit",    "Budget",  "Contract", "Delivery", "Employee"};
const char *const verbs[] = {"Load",
                             "Save",
                             "Check",
                             "Post",
                             "Print",
                             "Find",
                             "Update",
                             "Delete",
                             "Format",
                             "Build",
                             "Close",
                             "Open",
                             "Refresh",
                             "Apply",
                             "Validate",
                             "Calculate"};
const char *const words[]
    = {"the",   "value", "is",   "checked", "before",  "posting", "when", "record",
       "total", "must",  "not",  "exceed",  "limit",   "for",     "each", "line",
       "of",    "order", "and",  "caller",  "handles", "error",   "here", "later",
       "old",   "code",  "keep", "in",      "step",    "with"};
// Words of comments and captions that are not ASCII, written in the file's encoding.
const char16_t *const accented[] = {u"café",
                                    u"naïve",
                                    u"Müller",
                                    u"Straße",
                                    u"résumé",
                                    u"“quoted”",
                                    u"10 €",
                                    u"façade",
                                    u"señor",
                                    u"–"};
const char *const controls[] = {"TextBox",
                                "Label",
                                "CommandButton",
                                "ComboBox",
                                "CheckBox",
                                "ListBox",
                                "OptionButton",
                                "PictureBox",
                                "Timer"};
const char *const systemNames[] = {"Billing",
                                   "Order Entry",
                                   "Stock",
                                   "Payroll",
                                   "Ledger",
                                   "Reports",
                                   "Customer Care",
                                   "Purchasing",
                                   "Audit",
                                   "Delivery"};

class Random
{
public:
    explicit Random(unsigned seed)
        : m_engine(seed)
    {
    }

    int below(int n) { return int(m_engine() % unsigned(n)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    bool chance(int percent) { return below(100) < percent; }
    template<typename T, std::size_t N>
    T pick(T const (&list)[N])
    {
        return list[below(int(N))];
    }
    // Standard normal, by Box and Muller over the engine's own numbers (the library's
    // distributions differ between platforms).
    double normal()
    {
        const double u = (double(m_engine()) + 1.0) / 4294967296.0;
        const double v = double(m_engine()) / 4294967296.0;
        return std::sqrt(-2.0 * std::log(u)) * std::cos(6.283185307179586 * v);
    }
    QString guid()
    {
        return QStringLiteral("{%1-%2-%3-%4-%5%6}")
            .arg(m_engine(), 8, 16, QLatin1Char('0'))
            .arg(m_engine() & 0xFFFF, 4, 16, QLatin1Char('0'))
            .arg(m_engine() & 0xFFFF, 4, 16, QLatin1Char('0'))
            .arg(m_engine() & 0xFFFF, 4, 16, QLatin1Char('0'))
            .arg(m_engine() & 0xFFFF, 4, 16, QLatin1Char('0'))
            .arg(m_engine(), 8, 16, QLatin1Char('0'))
            .toUpper();
    }

private:
    std::mt19937 m_engine;
};

QByteArray windows1252(const QString &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'€':
            bytes += '\x80';
            break;
        case u'“':
            bytes += '\x93';
            break;
        case u'”':
            bytes += '\x94';
            break;
        case u'–':
            bytes += '\x96';
            break;
        default:
            bytes += c.unicode() < 0x100 ? char(c.unicode()) : '?';
        }
    }
    return bytes;
}

// The lines of one source file: a header as the development environment writes it, then code
// of the mix real modules have.
class SourceText
{
public:
    SourceText(Random &random, bool tabs)
        : m_random(random)
        , m_indent(tabs ? QStringLiteral("\t") : QStringLiteral("    "))
    {
    }

    QStringList lines;

    void moduleHeader(const QString &name)
    {
        lines << QStringLiteral("Attribute VB_Name = \"%1\"").arg(name)
              << QStringLiteral("Option Explicit");
    }
    void classHeader(const QString &name)
    {
        lines << QStringLiteral("VERSION 1.0 CLASS") << QStringLiteral("BEGIN")
              << QStringLiteral("  MultiUse = -1  'True")
              << QStringLiteral("  Persistable = 0  'NotPersistable")
              << QStringLiteral("  DataBindingBehavior = 0  'vbNone")
              << QStringLiteral("  DataSourceBehavior  = 0  'vbNone")
              << QStringLiteral("  MTSTransactionMode  = 0  'NotAnMTSObject")
              << QStringLiteral("END");
        attributes(name, false);
    }
    // A form or user control: its layout of controls, some inside frames, then its attributes.
    void layoutHeader(const QString &type, const QString &name, int controlCount)
    {
        lines << QStringLiteral("VERSION 5.00");
        for (int i = m_random.below(3); i > 0; --i)
            lines << QStringLiteral("Object = \"%1#2.0#0\"; \"NWCTL%2.OCX\"")
                         .arg(m_random.guid())
                         .arg(i);
        lines << QStringLiteral("Begin VB.%1 %2").arg(type, name);
        lines << QStringLiteral("   BorderStyle     =   1  'Fixed Single")
              << QStringLiteral("   Caption         =   \"%1\"").arg(phrase(3))
              << QStringLiteral("   ClientHeight    =   %1").arg(m_random.between(2000, 9000))
              << QStringLiteral("   ClientLeft      =   45")
              << QStringLiteral("   ClientTop       =   330")
              << QStringLiteral("   ClientWidth     =   %1").arg(m_random.between(3000, 12000))
              << QStringLiteral("   ScaleHeight     =   4215")
              << QStringLiteral("   ScaleWidth      =   6690");
        if (m_random.chance(40))
            font(QStringLiteral("   "));
        for (int i = 0; i < controlCount; ++i) {
            if (m_random.chance(10)) {
                lines << QStringLiteral("   Begin VB.Frame fra%1%2")
                             .arg(QLatin1String(m_random.pick(nouns)))
                             .arg(i);
                control(QStringLiteral("      "), i);
                for (int j = m_random.between(1, 6); j > 0; --j, ++i)
                    control(QStringLiteral("      "), i);
                lines << QStringLiteral("   End");
            } else {
                control(QStringLiteral("   "), i);
            }
        }
        lines << QStringLiteral("End");
        attributes(name, true);
    }
    // Routines until the file has `total` lines.
    void code(int total)
    {
        while (lines.size() < total)
            routine(total);
    }

private:
    void attributes(const QString &name, bool predeclared)
    {
        lines << QStringLiteral("Attribute VB_Name = \"%1\"").arg(name)
              << QStringLiteral("Attribute VB_GlobalNameSpace = False")
              << QStringLiteral("Attribute VB_Creatable = %1")
                     .arg(predeclared ? QLatin1String("False") : QLatin1String("True"))
              << QStringLiteral("Attribute VB_PredeclaredId = %1")
                     .arg(predeclared ? QLatin1String("True") : QLatin1String("False"))
              << QStringLiteral("Attribute VB_Exposed = False")
              << QStringLiteral("Option Explicit");
    }
    void font(const QString &indent)
    {
        lines << indent + QStringLiteral("BeginProperty Font")
              << indent + QStringLiteral("   Name            =   \"Tahoma\"")
              << indent + QStringLiteral("   Size            =   8.25")
              << indent + QStringLiteral("   Charset         =   0")
              << indent + QStringLiteral("   Weight          =   400")
              << indent + QStringLiteral("EndProperty");
    }
    void control(const QString &indent, int index)
    {
        const QString type = QLatin1String(m_random.pick(controls));
        lines << indent
                     + QStringLiteral("Begin VB.%1 ctl%2%3")
                           .arg(type, QLatin1String(m_random.pick(nouns)))
                           .arg(index);
        const QString inner = indent + QStringLiteral("   ");
        if (m_random.chance(60))
            lines << inner
                         + QStringLiteral("Caption         =   \"%1\"")
                               .arg(phrase(m_random.between(1, 4)));
        lines << inner + QStringLiteral("Height          =   %1").arg(m_random.between(200, 3000))
              << inner + QStringLiteral("Left            =   %1").arg(m_random.between(0, 9000))
              << inner + QStringLiteral("TabIndex        =   %1").arg(index)
              << inner + QStringLiteral("Top             =   %1").arg(m_random.between(0, 9000))
              << inner + QStringLiteral("Width           =   %1").arg(m_random.between(200, 6000));
        if (m_random.chance(15))
            font(inner);
        lines << indent + QStringLiteral("End");
    }
    QString phrase(int count)
    {
        QString text;
        for (int i = 0; i < count; ++i) {
            if (i > 0)
                text += QLatin1Char(' ');
            if (m_random.chance(6))
                text += QString::fromUtf16(m_random.pick(accented));
            else
                text += QLatin1String(m_random.pick(words));
        }
        return text;
    }
    QString noun() { return QLatin1String(m_random.pick(nouns)); }
    QString name()
    {
        return QLatin1String(m_random.pick(verbs)) + noun() + QString::number(m_random.below(500));
    }
    QString number() { return QString::number(m_random.below(1000)); }

    void routine(int total)
    {
        const bool function = m_random.chance(50);
        const bool numbered = m_random.chance(10);
        const QString kind = function ? QStringLiteral("Function") : QStringLiteral("Sub");
        const QString routineName = name();
        lines << QString();
        for (int i = m_random.chance(60) ? m_random.between(1, 3) : 0; i > 0; --i)
            lines << QStringLiteral("' ") + phrase(m_random.between(3, 12));
        lines << (m_random.chance(70) ? QStringLiteral("Public ") : QStringLiteral("Private "))
                     + kind + QLatin1Char(' ') + routineName
                     + QStringLiteral("(ByVal s%1 As String, Optional ByVal lLimit As Long = %2)")
                           .arg(noun(), number())
                     + (function ? QStringLiteral(" As Boolean") : QString());
        if (m_random.chance(5))
            lines << QStringLiteral("Attribute %1.VB_Description = \"%2\"")
                         .arg(routineName, phrase(5));
        lines << m_indent + QStringLiteral("Dim lCount As Long, sText As String, bOk As Boolean");
        int label = numbered ? 10 : 0;
        if (numbered)
            lines << QStringLiteral("10") + m_indent + QStringLiteral("On Error GoTo ErrHandler");
        for (int i = m_random.between(3, 40); i > 0 && lines.size() < total; --i)
            statement(m_indent, label, 0);
        if (numbered) {
            lines << m_indent + QStringLiteral("Exit ") + kind << QStringLiteral("ErrHandler:")
                  << m_indent
                         + QStringLiteral("LogError \"%1\", Err.Number, Err.Description")
                               .arg(routineName);
        }
        lines << QStringLiteral("End ") + kind;
    }

    // One statement; `label` is the running line number of a numbered routine, 0 for none.
    void statement(const QString &indent, int &label, int depth)
    {
        auto code = [&](const QString &text) {
            if (label > 0) {
                label += 10;
                lines << QString::number(label) + indent.mid(1) + text;
            } else {
                lines << indent + text;
            }
        };
        const int kind = m_random.below(100);
        const QString n = noun();
        if (kind < 22) {
            switch (m_random.below(3)) {
            case 0:
                code(QStringLiteral("l%1 = l%1 + %2 * lCount").arg(n, number()));
                break;
            case 1:
                code(QStringLiteral("Call %1(s%2, %3)").arg(name(), n, number()));
                break;
            default:
                code(QStringLiteral("Set o%1 = New c%1").arg(n));
            }
        } else if (kind < 32) {
            code(QStringLiteral("bOk = (l%1 > %2) ' %3")
                     .arg(n, number(), phrase(m_random.between(2, 8))));
        } else if (kind < 44) {
            lines << (m_random.chance(80) ? indent : QString()) + QStringLiteral("' ")
                         + phrase(m_random.between(2, 14));
        } else if (kind < 47) {
            lines << indent + QStringLiteral("Rem ") + phrase(m_random.between(2, 8));
        } else if (kind < 58) {
            lines << (m_random.chance(75) ? QString() : indent);
        } else if (kind < 64) {
            code(QStringLiteral("sText = \"Don't %1\" & s%2").arg(phrase(3), n));
        } else if (kind < 69) {
            code(QStringLiteral("sText = \"%1 \" & _").arg(phrase(4)));
            for (int i = m_random.below(3); i > 0; --i)
                lines << indent + m_indent + QStringLiteral("\"%1 \" & _").arg(phrase(3));
            lines << indent + m_indent + QStringLiteral("CStr(l%1)").arg(n);
        } else if (kind < 77 && depth < 3) {
            code(QStringLiteral("If l%1 > %2 Then").arg(n, number()));
            for (int i = m_random.between(1, 4); i > 0; --i)
                statement(indent + m_indent, label, depth + 1);
            code(QStringLiteral("End If"));
        } else if (kind < 80) {
            lines << QStringLiteral("#If DEBUG_BUILD Then")
                  << indent + QStringLiteral("Debug.Print \"%1: \"\"\" & sText & \"\"\"\"").arg(n)
                  << QStringLiteral("#End If");
        } else if (kind < 85) {
            code(QStringLiteral("Select Case Left$(sText, 1)"));
            lines << indent + m_indent + QStringLiteral("Case \"a\" To \"z\": bOk = False")
                  << indent + m_indent + QStringLiteral("Case Else")
                  << indent + m_indent + m_indent + QStringLiteral("bOk = True ' ") + phrase(3);
            code(QStringLiteral("End Select"));
        } else if (kind < 90) {
            QString fields;
            for (int i = m_random.between(3, 14); i > 0; --i)
                fields += noun() + QStringLiteral("Id, ");
            code(QStringLiteral("sSql = \"SELECT %1Total FROM %2 WHERE Name = '\" & s%2 & \"'\"")
                     .arg(fields, n));
        } else if (kind < 95 && depth < 3) {
            code(QStringLiteral("For lCount = 1 To UBound(a%1)").arg(n));
            for (int i = m_random.between(1, 3); i > 0; --i)
                statement(indent + m_indent, label, depth + 1);
            code(QStringLiteral("Next lCount"));
        } else {
            code(QStringLiteral("Dim v%1 As Variant").arg(n));
        }
    }

    Random &m_random;
    QString m_indent;
};

struct SourceFile
{
    QString word; // the project file's key: Form, Module, Class, UserControl
    QString name;
    QString path; // below the corpus folder, with "/"
    bool exists = true;
    qint64 lines = 0;
    qint64 bytes = 0;
};

class CorpusWriter
{
public:
    CorpusWriter(const QString &folder, unsigned seed)
        : m_root(QDir(folder).absolutePath() + QLatin1Char('/'))
        , m_random(seed)
    {
    }

    ProjectCorpus write()
    {
        std::vector<SourceFile> shared;
        for (int i = 0; i < 24; ++i)
            shared.push_back(
                source(QStringLiteral("Shared"),
                       i % 3 == 0 ? QStringLiteral("Class") : QStringLiteral("Module")));

        QStringList groups;
        QStringList projects;
        QStringList groupProjects; // the first project of each system, for other groups to name
        const int systems = 40;
        for (int s = 0; s < systems; ++s) {
            const QString system = QStringLiteral("Sys%1 %2")
                                       .arg(s + 1, 2, 10, QLatin1Char('0'))
                                       .arg(QLatin1String(m_random.pick(systemNames)));
            std::vector<SourceFile> common;
            for (int i = m_random.between(3, 12); i > 0; --i)
                common.push_back(source(system + QStringLiteral("/Common"),
                                        m_random.chance(30) ? QStringLiteral("Class")
                                                            : QStringLiteral("Module")));
            QByteArray group = "VBGROUP 5.0\r\n";
            for (int p = m_random.between(2, 6); p > 0; --p) {
                const QString file = project(system, common, shared);
                projects << file;
                group += (group.contains("StartupProject=") ? "Project=" : "StartupProject=")
                         + windows1252(
                             projectLinePath(QString(m_root + system + QLatin1Char('/')), file))
                         + "\r\n";
            }
            // Some systems build with a project of an earlier one.
            if (s > 0 && m_random.chance(20))
                group += "Project="
                         + windows1252(projectLinePath(
                             QString(m_root + system + QLatin1Char('/')),
                             groupProjects.at(m_random.below(int(groupProjects.size())))))
                         + "\r\n";
            groupProjects << projects.at(projects.size() - 1);
            const QString groupFile = m_root + system + QLatin1Char('/')
                                      + system.mid(6).remove(QLatin1Char(' '))
                                      + QStringLiteral(".vbg");
            save(groupFile, group);
            groups << groupFile;
            read(groupFile, group);
        }
        for (int t = 0; t < 36; ++t)
            projects << project(QStringLiteral("Tools"), {}, shared);

        m_corpus.arguments = groups + projects;
        m_corpus.projects = qint32(projects.size());
        return m_corpus;
    }

private:
    // Writes one project below `system` and gives the path of its file.
    QString project(const QString &system,
                    const std::vector<SourceFile> &common,
                    const std::vector<SourceFile> &shared)
    {
        const QString name = QLatin1String(m_random.pick(nouns))
                             + QLatin1String(m_random.pick(verbs))
                             + QString::number(++m_projectCount);
        const QString folder
            = system + QLatin1Char('/')
              + (m_random.chance(15) ? name.left(4) + QLatin1Char(' ') + name.mid(4) : name);
        const QString formFolder = m_random.chance(30) ? folder + QStringLiteral("/Forms") : folder;
        std::vector<SourceFile> files;
        for (int i = m_random.between(3, 22); i > 0; --i) {
            const int kind = m_random.below(100);
            const QString word = kind < 30   ? QStringLiteral("Form")
                                 : kind < 55 ? QStringLiteral("Module")
                                 : kind < 95 ? QStringLiteral("Class")
                                             : QStringLiteral("UserControl");
            files.push_back(source(word == QLatin1String("Form") ? formFolder : folder, word));
        }
        if (!common.empty())
            for (int i = m_random.below(4); i > 0; --i)
                files.push_back(common.at(m_random.below(int(common.size()))));
        for (int i = m_random.below(3); i > 0; --i)
            files.push_back(shared.at(m_random.below(int(shared.size()))));

        const QString projectFolder = m_root + folder + QLatin1Char('/');
        QString text = QStringLiteral("Type=%1\r\n")
                           .arg(QLatin1String(m_random.chance(60)   ? "Exe"
                                              : m_random.chance(70) ? "OleDll"
                                                                    : "Control"));
        text += QStringLiteral("Reference=*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:"
                               "\\WINDOWS\\System32\\nwole.tlb#Automation Types\r\n");
        for (int i = m_random.below(4); i > 0; --i)
            text += QStringLiteral("Reference=*\\G%1#%2.%3#0#C:\\Program Files\\Common "
                                   "Files\\Northwind\\nwlib%2%3.dll#Northwind Library %2.%3\r\n")
                        .arg(m_random.guid())
                        .arg(m_random.between(1, 3))
                        .arg(m_random.below(9));
        for (int i = m_random.below(3); i > 0; --i)
            text += QStringLiteral("Object=%1#%2.0#0; NWCTL%3.OCX\r\n")
                        .arg(m_random.guid())
                        .arg(m_random.between(1, 2))
                        .arg(i);
        for (const SourceFile &file : files) {
            const QString path = projectLinePath(projectFolder, m_root + file.path);
            if (file.word == QLatin1String("Form") || file.word == QLatin1String("UserControl"))
                text += file.word + QLatin1Char('=') + path + QStringLiteral("\r\n");
            else
                text += file.word + QLatin1Char('=') + file.name + QStringLiteral("; ") + path
                        + QStringLiteral("\r\n");
        }
        text += QStringLiteral("Startup=\"Sub "
                               "Main\"\r\nHelpFile=\"\"\r\nTitle=\"%1\"\r\nExeName32=\"%1."
                               "exe\"\r\nName=\"%1\"\r\n")
                    .arg(name);
        const char *keys[] = {"HelpContextID=\"0\"",
                              "CompatibleMode=\"0\"",
                              "MajorVer=1",
                              "MinorVer=4",
                              "RevisionVer=27",
                              "AutoIncrementVer=1",
                              "ServerSupportFiles=0",
                              "VersionCompanyName=\"Northwind Café\"",
                              "CompilationType=0",
                              "OptimizationType=0",
                              "FavorPentiumPro(tm)=0",
                              "CodeViewDebugInfo=0",
                              "NoAliasing=0",
                              "BoundsCheck=0",
                              "OverflowCheck=0",
                              "FlPointCheck=0",
                              "FDIVCheck=0",
                              "UnroundedFP=0",
                              "StartMode=0",
                              "Unattended=0",
                              "Retained=0",
                              "ThreadPerObject=0",
                              "MaxNumberOfThreads=1"};
        for (const char *key : keys)
            text += QString::fromUtf8(key) + QStringLiteral("\r\n");
        if (m_random.chance(50))
            text += QStringLiteral("\r\n[Build Server]\r\nAutoRefresh=1\r\n");
        const QString file = projectFolder + name + QStringLiteral(".vbp");
        const QByteArray bytes = windows1252(text);
        save(file, bytes);
        read(file, bytes);
        for (const SourceFile &source : files) {
            if (!source.exists)
                continue;
            m_corpus.reads << m_root + source.path;
            m_corpus.sourceLines += source.lines;
            m_corpus.bytes += source.bytes;
        }
        return file;
    }

    // A path as a project or group names it from `folder`: backslashes, and now and then a case
    // other than the file's on disk, as files renamed on a system that ignores case have.
    QString projectLinePath(const QString &folder, const QString &file)
    {
        QString path = QDir(folder).relativeFilePath(file);
        if (m_random.chance(4))
            path = path.toLower();
        else if (m_random.chance(10))
            path = path.left(path.lastIndexOf(QLatin1Char('/')) + 1)
                   + path.mid(path.lastIndexOf(QLatin1Char('/')) + 1).toUpper();
        return path.replace(QLatin1Char('/'), QLatin1Char('\\'));
    }

    // Writes one source file of the kind `word` names into `folder`.
    SourceFile source(const QString &folder, const QString &word)
    {
        SourceFile file;
        file.word = word;
        const QString prefix = word == QLatin1String("Form")     ? QStringLiteral("frm")
                               : word == QLatin1String("Module") ? QStringLiteral("mod")
                               : word == QLatin1String("Class")  ? QStringLiteral("c")
                                                                 : QStringLiteral("ctl");
        const QString extension = word == QLatin1String("Form")     ? QStringLiteral(".frm")
                                  : word == QLatin1String("Module") ? QStringLiteral(".bas")
                                  : word == QLatin1String("Class")  ? QStringLiteral(".cls")
                                                                    : QStringLiteral(".ctl");
        file.name = prefix + QLatin1String(m_random.pick(verbs))
                    + QLatin1String(m_random.pick(nouns)) + QString::number(++m_sourceCount);
        file.path = folder + QLatin1Char('/') + file.name + extension;

        // Sizes spread as in real code bases: most files a few hundred lines, a few huge ones.
        int size = int(std::lround(std::exp(std::log(170.0) + 1.3 * m_random.normal())));
        size = m_sourceCount == 7 ? 30000 : std::clamp(size, 50, 30000);

        SourceText text(m_random, m_random.chance(15));
        if (word == QLatin1String("Module"))
            text.moduleHeader(file.name);
        else if (word == QLatin1String("Class"))
            text.classHeader(file.name);
        else
            text.layoutHeader(word, file.name, std::min(m_random.between(2, 60), size / 12));
        text.code(size);

        // Mostly Windows-1252 and CR LF as the development environment writes them; files that
        // went through other tools are UTF-8 or end lines in LF, some both or a mix.
        const bool utf8 = m_random.chance(20);
        const int ends = m_random.below(100);
        QByteArray bytes;
        for (qsizetype i = 0; i < text.lines.size(); ++i) {
            bytes += utf8 ? text.lines.at(i).toUtf8() : windows1252(text.lines.at(i));
            if (i + 1 == text.lines.size() && ends % 10 == 0)
                break; // no line end after the last line
            const bool lf = ends < 25 || (ends >= 95 && m_random.chance(30));
            bytes += lf ? "\n" : "\r\n";
        }
        file.lines = text.lines.size();
        file.bytes = bytes.size();
        // Now and then a project names a file nobody checked in.
        file.exists = m_sourceCount % 250 != 249;
        if (file.exists)
            save(m_root + file.path, bytes);
        return file;
    }

    void save(const QString &path, const QByteArray &bytes)
    {
        QDir().mkpath(path.left(path.lastIndexOf(QLatin1Char('/'))));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
    }

    void read(const QString &path, const QByteArray &bytes)
    {
        m_corpus.reads << path;
        m_corpus.bytes += bytes.size();
    }

    QString m_root;
    Random m_random;
    ProjectCorpus m_corpus;
    int m_projectCount = 0;
    int m_sourceCount = 0;
};

} // namespace

ProjectCorpus generateProjectCorpus(const QString &folder, unsigned seed)
{
    return CorpusWriter(folder, seed).write();
}
