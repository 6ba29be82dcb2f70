#include "PreviewTestSupport.h"

#include "collections/ObjectKeyedArrayList.h"
#include "preview/CatalogueObject.h"
#include "preview/DeclarationParser.h"
#include "preview/DeclarationScanner.h"
#include "preview/DeclaredObject.h"
#include "preview/ParserEvent.h"
#include "preview/ScanSink.h"
#include "project/SourceLineStatistics.h"
#include "project/VirtualObject.h"
#include "project/VirtualProject.h"
#include "project/VirtualSourceFile.h"

#include <QFileInfo>
#include <QHash>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

namespace CO = CatalogueObject;
using S = DeclaredScope;

struct Recorder final : ScanSink
{
    QString file;
    QList<std::pair<QString, DeclaredObject>> objects;
    QHash<QString, quint64> events; // "file:line"
    QHash<QString, QString> texts;

    void declared(DeclaredObject &&object) override { objects.append({file, std::move(object)}); }
    void code(quint64 bits, QStringView text, qint32 line) override
    {
        const QString key = file + QLatin1Char(':') + QString::number(line);
        events[key] |= bits;
        texts.insert(key, text.toString());
    }
};

struct Expected
{
    const char *file;
    qint32 type;
    const char *name;
    qint32 line;
    S scope;
    const char *declared;
};

quint64 bits(std::initializer_list<qint32> ids)
{
    quint64 mask = 0;
    for (const qint32 id : ids)
        mask |= ParserEvent::bit(id);
    return mask;
}

} // namespace

// Every object kind of the catalogue, found where the project declares it, with the scope,
// data type and array facts its tags are chosen by; and each line with its parser events.
TEST(DeclarationScanner, FindsEveryKindOfObjectAndEveryLineItsParserEvents)
{
    auto project = std::make_shared<VirtualProject>();
    ASSERT_EQ(project->LoadProject(kindsDir() + u"/Kinds.vbp"_s), 0);
    Recorder recorder;
    DeclarationScanner scanner(recorder);
    const auto sources = project->SourceFiles();
    for (qint32 i = 1; i <= sources->Count(); ++i) {
        const auto source = sources->Item(i);
        recorder.file = QFileInfo(source->Filename()).fileName();
        QString problem;
        const bool read = scanner.scan(*source, problem);
        if (recorder.file == "modMissing.bas"_L1) {
            EXPECT_FALSE(read);
            EXPECT_EQ(problem, u"No such file"_s);
            continue;
        }
        ASSERT_TRUE(read) << recorder.file.toStdString() << ": " << problem.toStdString();
        // Counted as the project reader counts the same file.
        const std::pair counted{scanner.lines().TotalLines(), scanner.lines().CodeLines()};
        ASSERT_EQ(source->CountSourceLines(), 0);
        const auto stats = source->FileStats()->LineStats();
        EXPECT_EQ(counted, std::pair(stats->TotalLines(), stats->CodeLines()))
            << recorder.file.toStdString();
    }

    const char *bas = "modKinds.bas", *cls = "cKinds.cls", *frm = "frmKinds.frm";
    // The declared type reads as written: "New" for an instance made on use, "()" for an array;
    // a control shows its ProgID.
    const Expected expected[] = {
        {bas, CO::ModuleFile, "modKinds", 1, S::None, ""},
        {bas, CO::PublicConst, "PUBLIC_LIMIT", 5, S::Public, "Long"},
        {bas, CO::PrivateConst, "PRIVATE_NAME", 6, S::Private, "String"},
        {bas, CO::PublicConst, "GLOBAL_PI", 7, S::Public, "Double"},
        {bas, CO::PublicConst, "GLOBAL_DAYS", 7, S::Public, "Long"},
        {bas, CO::Declare, "GetTickCount", 8, S::Private, "Long"},
        {bas, CO::Declare, "Sleep", 9, S::Public, ""},
        {bas, CO::DeclareArgument, "dwMilliseconds", 10, S::ByValArgument, "Long"},
        {bas, CO::Enum, "eKinds", 11, S::Public, ""},
        {bas, CO::EnumElement, "kOne", 12, S::None, "Long"},
        {bas, CO::EnumElement, "k Two", 13, S::None, "Long"},
        {bas, CO::Type, "udtPoint", 15, S::Private, ""},
        {bas, CO::TypeElement, "X", 16, S::None, "Single"},
        {bas, CO::TypeElement, "Names", 17, S::None, "String()"},
        {bas, CO::PublicVariable, "gCount", 19, S::Public, "Long"},
        {bas, CO::PublicVariable, "gNames", 19, S::Public, "String()"},
        {bas, CO::PrivateVariable, "m_colItems", 20, S::Private, "New Collection"},
        {bas, CO::PrivateVariable, "iIndex", 21, S::Private, "Integer"},
        {bas, CO::FunctionProcedure, "Twice", 22, S::Public, "Integer"},
        {bas, CO::ProcedureArgument, "iValue", 22, S::ByValArgument, "Integer"},
        {bas, CO::ProcedureArgument, "vExtra", 22, S::ByRefArgument, "Variant"},
        {bas, CO::ProcedureArgument, "vRest", 23, S::ByRefArgument, "Variant()"},
        {bas, CO::LocalConst, "LOCAL_MAX", 24, S::Local, "Integer"},
        {bas, CO::LocalVariable, "strCaf\u00e9", 25, S::Local, "String"},
        {bas, CO::LocalVariable, "aPoints", 25, S::Local, "udtPoint()"},
        {bas, CO::LocalStaticVariable, "lCalls", 26, S::LocalStatic, "Long"},
        {bas, CO::LineLabel, "Retry", 29, S::None, ""},
        {bas, CO::LineLabel, "10", 30, S::None, ""},
        {bas, CO::SubProcedure, "Tick", 32, S::Private, ""},
        {bas, CO::LocalStaticVariable, "lTicks", 33, S::LocalStatic, "Long"},
        {cls, CO::ClassFile, "cKinds", 1, S::None, ""},
        {cls, CO::Implements, "IKinds", 8, S::None, ""},
        {cls, CO::Event, "Changed", 9, S::Public, ""},
        {cls, CO::EventArgument, "strWhat", 9, S::ByValArgument, "String"},
        {cls, CO::PrivateWithEventsVariable, "m_frmOwner", 10, S::Private, "frmKinds"},
        {cls, CO::PublicWithEventsVariable, "gTimer", 11, S::Public, "VB.Timer"},
        {cls, CO::PropertyProcedure, "Count", 12, S::Friend, "Long"},
        {cls, CO::PropertyProcedure, "Caption", 16, S::Public, ""},
        {cls, CO::ProcedureArgument, "strValue", 16, S::ByValArgument, "String"},
        {frm, CO::MDIChildFormFile, "frmKinds", 1, S::None, ""},
        {frm, CO::Control, "cmdOK", 6, S::None, "VB.CommandButton"},
        {frm, CO::Control, "Text1", 12, S::None, "VB.TextBox"},
        {frm, CO::Control, "lvwItems", 18, S::None, "MSComctlLib.ListView"},
        {frm, CO::Control, "mnuFile", 20, S::None, "VB.Menu"},
        {frm, CO::Control, "mnuFileExit", 22, S::None, "VB.Menu"},
        {frm, CO::SubProcedure, "cmdOK_Click", 31, S::Private, ""},
        {"mdiMain.frm", CO::MDIFormFile, "mdiMain", 1, S::None, ""},
        {"frmPlain.frm", CO::NonMDIFormFile, "frmPlain", 1, S::None, ""},
        {"frmPlain.frm", CO::PrivateVariable, "mGr\u00f6\u00dfe", 7, S::Private, "Long"},
        {"ucKinds.ctl", CO::UserControlFile, "ucKinds", 1, S::None, ""},
        {"ucKinds.ctl", CO::Control, "lblValue", 3, S::None, "VB.Label"},
        {"ppgKinds.pag", CO::PropertyPageFile, "ppgKinds", 1, S::None, ""},
        {"udKinds.dob", CO::UserDocumentFile, "udKinds", 1, S::None, ""},
        {"dsrKinds.dsr", CO::DesignerFile, "deKinds", 1, S::None, ""},
    };
    // Exactly these: a control array is one control, a designer's inner block is none.
    EXPECT_EQ(recorder.objects.size(), qsizetype(std::size(expected)));
    for (const Expected &row : expected) {
        const QString name = QString::fromUtf8(row.name);
        const auto found
            = std::find_if(recorder.objects.begin(), recorder.objects.end(), [&](const auto &o) {
                  return o.first == QLatin1String(row.file) && o.second.name == name
                         && o.second.objectType == row.type;
              });
        ASSERT_NE(found, recorder.objects.end())
            << row.file << " " << row.name << " of type " << row.type;
        const DeclaredObject &object = found->second;
        EXPECT_EQ(object.line, row.line) << row.name;
        EXPECT_EQ(object.scope, row.scope) << row.name;
        EXPECT_EQ((object.isAsNew ? u"New "_s : QString()) + object.dataType
                      + (object.isArray ? u"()"_s : QString()) + object.progID,
                  QString::fromUtf8(row.declared))
            << row.name;
    }

    namespace P = ParserEvent;
    const struct
    {
        const char *where;
        quint64 has;
        quint64 hasNot;
    } lines[] = {
        {"modKinds.bas:5", bits({P::SourceLine, P::Declaration, P::Const}), bits({P::Variable})},
        {"modKinds.bas:9", bits({P::Declare, P::DeclareArgument}), 0},
        {"modKinds.bas:11", bits({P::Declaration, P::BeginEnum}), bits({P::EnumBody})},
        {"modKinds.bas:12", bits({P::EnumBody, P::EnumElement}), 0},
        {"modKinds.bas:14", bits({P::EndEnum}), bits({P::EnumElement})},
        {"modKinds.bas:16", bits({P::TypeBody, P::TypeElement}), 0},
        {"modKinds.bas:18", bits({P::EndType}), 0},
        {"modKinds.bas:19", bits({P::Variable}), 0},
        {"modKinds.bas:22",
         bits({P::BeginProcedure, P::ProcedureArgument}),
         bits({P::Declaration, P::ProcedureBody})},
        {"modKinds.bas:24", bits({P::ProcedureBody, P::LocalConst}), 0},
        {"modKinds.bas:25", bits({P::ProcedureBody, P::LocalVariable}), 0},
        {"modKinds.bas:29", bits({P::ProcedureBody, P::LineLabel}), 0},
        {"modKinds.bas:31", bits({P::EndProcedure}), bits({P::ProcedureBody})},
        {"cKinds.cls:8", bits({P::Implements}), 0},
        {"cKinds.cls:9", bits({P::Event, P::EventArgument}), 0},
        {"frmKinds.frm:2", bits({P::Component}), bits({P::SourceLine})},
        {"frmKinds.frm:3", bits({P::BeginLayout}), 0},
        {"frmKinds.frm:6", bits({P::Control}), 0},
        {"frmKinds.frm:26", bits({P::EndLayout}), 0},
    };
    for (const auto &line : lines) {
        const quint64 found = recorder.events.value(QLatin1String(line.where));
        EXPECT_EQ(found & line.has, line.has) << line.where;
        EXPECT_EQ(found & line.hasNot, 0u) << line.where;
    }
    // Keywords see code: literals emptied, comments cut; a comment line is no code at all.
    EXPECT_EQ(recorder.texts.value(u"modKinds.bas:28"_s), u"Debug.Print \"\""_s);
    EXPECT_EQ(recorder.texts.value(u"modKinds.bas:6"_s), u"Const PRIVATE_NAME = \"\""_s);
    EXPECT_FALSE(recorder.texts.contains(u"modKinds.bas:3"_s));
    EXPECT_FALSE(recorder.events.contains(u"cKinds.cls:13"_s)); // a member attribute
}

// An untyped constant takes the smallest type its value fits, as the compiler gives it.
TEST(DeclarationParser, AnUntypedConstantTakesTheTypeItsValueFits)
{
    const std::pair<const char *, const char *> values[] = {
        {"32767", "Integer"},
        {"-32768", "Integer"},
        {"32768", "Long"},
        {"-32769", "Long"},
        {"2147483647", "Long"},
        {"-2147483648", "Long"},
        {"2147483648", "Double"},
        {"1.5", "Double"},
        {"5&", "Long"},
        {"&HFFFF", "Integer"},
        {"&H10000", "Long"},
        {"\"\"", "String"},
        {"#1/2/2003#", "Date"},
        {"true", "Boolean"},
    };
    for (const auto &[value, type] : values) {
        const auto statement = DeclarationParser::parse(u"Const C = "_s + QLatin1String(value));
        ASSERT_EQ(statement.items.size(), 1u) << value;
        EXPECT_EQ(statement.items[0].dataType, QLatin1String(type)) << value;
    }
}
