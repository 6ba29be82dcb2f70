#include "ProjectTestSupport.h"

#include "collections/KeyedArrayList.h"
#include "collections/ObjectKeyedArrayList.h"
#include "project/SourceLineStatistics.h"
#include "project/SourceTextFile.h"
#include "project/VirtualObject.h"
#include "project/VirtualSourceFile.h"

#include <QFile>

#include <array>

using namespace Qt::StringLiterals;

namespace {

using SourceFileReader = ProjectTest;

struct LogicalLine
{
    QString raw;
    QString logical;
    qint32 physical = 0;
    qint32 length = 0;
};

std::vector<LogicalLine> readAll(VirtualSourceFile &file)
{
    std::vector<LogicalLine> lines;
    LogicalLine line;
    while (file.GetNextSourceLine(line.raw, line.logical, line.physical, line.length))
        lines.push_back(line);
    return lines;
}

// ---- Name and type from the project line ----

TEST_F(SourceFileReader, NameAndTypeComeFromTheLineOrTheFile)
{
    writeFile(u"m.frm"_s, crlf("VERSION 5.00\nBegin VB.MDIForm   mdiMain  \nEnd\n"));
    writeFile(u"n.frm"_s,
              crlf("VERSION 5.00\nAttribute VB_Name = \"frmNamed\"\n"
                   "Begin VB.Label x\n"));
    writeFile(u"d.dsr"_s, crlf("Begin {C0E45035-5775-11D0-B388-00A0C9055D8E} deMain \nEnd\n"));
    // The project line, the result of reading it, and the type and name found.
    const std::tuple<const char *, qint32, qint32, const char *> cases[] = {
        {"Form=m.frm", 0, SourceFileType::MDIForm, "mdiMain"}, // the file's type word wins
        {"Form=n.frm", 0, SourceFileType::Form, "frmNamed"},   // the attribute gives no type
        {"Designer=D.DSR", 0, SourceFileType::Designer, "deMain"},
        {"Class=CFoo; sub\\foo.cls", 0, SourceFileType::Class, "CFoo"}, // never opened
        {"Thing=x; y.cls", 3, 0, ""},
        {"Module", 3, 0, ""},
    };
    for (const auto &[line, result, type, name] : cases) {
        VirtualSourceFile file;
        EXPECT_EQ(file.InitFileFromVBProjectFileLine(QLatin1String(line), path({})), result)
            << line;
        EXPECT_EQ(file.FileType(), type) << line;
        EXPECT_EQ(file.Name(), QLatin1String(name)) << line;
    }
    EXPECT_TRUE(logRecords().isEmpty());

    VirtualSourceFile named;
    named.InitFileFromVBProjectFileLine(u"Class=CFoo; sub\\foo.cls"_s, path({}));
    EXPECT_EQ(named.Filename(), path({}) + u"sub\\foo.cls"_s);
    QStringList properties;
    for (qint32 i = 1; i <= named.Properties()->Count(); ++i)
        properties << named.Properties()->Key(i) + QLatin1Char('=')
                          + named.Properties()->Item(i).toString();
    EXPECT_EQ(properties.join(QLatin1Char(' ')),
              u"Name=CFoo Type=Class FullFilename=sub\\foo.cls Path=sub\\ "
              u"Filename=foo.cls Extension=.cls"_s);
}

TEST_F(SourceFileReader, FilesThatNameNothingKeepTheirPathAsName)
{
    // No ";": the whole rest is a path, and the file doesn't exist.
    VirtualSourceFile missing;
    EXPECT_EQ(missing.InitFileFromVBProjectFileLine(u"Class=CFoo"_s, path({})), 2);
    EXPECT_EQ(missing.FileType(), 0);
    EXPECT_EQ(missing.Name(), path({}) + u"CFoo"_s);
    EXPECT_EQ(missing.Properties()->Item(u"Type"_s).toString(), u"Class"_s);
    ASSERT_EQ(logRecords().size(), 1);
    EXPECT_TRUE(logRecords().first().contains(u"53 - File not found"_s));

    writeFile(u"plain.bas"_s, crlf("Option Explicit\nSub A()\nEnd Sub\n"));
    VirtualSourceFile anonymous;
    EXPECT_EQ(anonymous.InitFileFromVBProjectFileLine(u"Module=plain.bas"_s, path({})), 2);
    EXPECT_EQ(anonymous.Name(), path(u"plain.bas"_s));
    // An empty file fails in its first read.
    writeFile(u"empty.bas"_s, QByteArray());
    VirtualSourceFile empty;
    EXPECT_EQ(empty.InitFileFromVBProjectFileLine(u"Module=empty.bas"_s, path({})), 2);
    EXPECT_TRUE(logRecords().last().contains(u"62 - Input past end of file"_s));
}

// ---- Logical lines ----

TEST_F(SourceFileReader, ContinuationsJoinIntoOneLogicalLine)
{
    VirtualSourceFile file;
    file.setFilename(writeFile(u"a.bas"_s,
                               crlf("Attribute VB_Name = \"a\"\nx = 1 + _\n    2 +   _  \n"
                                    "\t  3 ' end\n' note _\ny = 2\n10 z = 1\n123\na = 1 ' see x_\n"
                                    "b = 2\n")));
    ASSERT_EQ(file.Connect(), 0);
    EXPECT_EQ(file.Size(), QFile(file.Filename()).size());
    const auto lines = readAll(file);
    ASSERT_EQ(lines.size(), 7u);
    // Trim takes blanks only: the tab of the last piece stays.
    EXPECT_EQ(lines[1].logical, u"x = 1 + 2 + \t  3 ' end"_s);
    EXPECT_EQ(lines[1].physical, 3);
    EXPECT_EQ(lines[1].raw, u"x = 1 + _\r\n    2 +   _  \r\n\t  3 ' end"_s);
    EXPECT_EQ(lines[1].length, lines[1].raw.size());
    // A comment-only line ending in "_" doesn't continue.
    EXPECT_EQ(lines[2].logical, u"' note _"_s);
    EXPECT_EQ(lines[3].logical, u"y = 2"_s);
    // Line numbers go from the logical line only.
    EXPECT_EQ(lines[4].logical, u" z = 1"_s);
    EXPECT_EQ(lines[4].raw, u"10 z = 1"_s);
    EXPECT_EQ(lines[5].logical, QString());
    // An in-line comment ending in "_" continues, by the line rules.
    EXPECT_EQ(lines[6].logical, u"a = 1 ' see x b = 2"_s);
    EXPECT_EQ(lines[6].physical, 2);
}

TEST_F(SourceFileReader, HeaderAndAttributesEnableCounting)
{
    VirtualSourceFile file;
    file.setFilename(writeFile(u"c.cls"_s,
                               crlf("VERSION 1.0 CLASS\nAttribute VB_Name = \"c\"\n"
                                    "Attribute VB_Exposed = False\nOption Explicit\n"
                                    "Attribute X.VB_UserMemId = 0\n")));
    ASSERT_EQ(file.Connect(), 0);
    // Physical count and counting state after each logical line: attribute lines count for
    // nothing, and counting starts after the name attribute, at the first other line.
    std::vector<std::pair<qint32, bool>> seen;
    LogicalLine line;
    while (file.GetNextSourceLine(line.raw, line.logical, line.physical, line.length))
        seen.emplace_back(line.physical, file.LineCountingEnabled());
    const std::vector<std::pair<qint32, bool>> expected{
        {1, false}, {0, false}, {0, false}, {1, true}, {0, true}};
    EXPECT_EQ(seen, expected);
    // At the end the arguments are left alone.
    EXPECT_EQ(line.logical, u"Attribute X.VB_UserMemId = 0"_s);
    file.Disconnect();
    EXPECT_FALSE(file.LineCountingEnabled());

    // Without the name attribute counting never starts.
    VirtualSourceFile anonymous;
    anonymous.setFilename(
        writeFile(u"d.bas"_s, crlf("Attribute VB_Exposed = False\nx = 1\ny = 2\n")));
    ASSERT_EQ(anonymous.Connect(), 0);
    EXPECT_EQ(readAll(anonymous).size(), 3u);
    EXPECT_FALSE(anonymous.LineCountingEnabled());
}

TEST_F(SourceFileReader, LineEndsAndWindows1252)
{
    VirtualSourceFile file;
    file.setFilename(writeFile(u"e.bas"_s, QByteArray("a = \"\x80\x97\xE9\"\nb = 1\r\rc = 2")));
    ASSERT_EQ(file.Connect(), 0);
    const auto lines = readAll(file);
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(lines[0].logical, u"a = \"\u20AC\u2014\u00E9\""_s);
    EXPECT_EQ(lines[2].logical, QString());
    EXPECT_EQ(lines[3].logical, u"c = 2"_s);
}

// A file read a block at a time gives the lines of the whole read: here a CR LF straddles the
// first block's end, lines end in CR, LF and CR LF, one is longer than a block, the last has
// no line end.
TEST_F(SourceFileReader, ReadingAsLinesAreReadGivesTheLinesOfTheWholeFile)
{
    const QByteArray bytes
        = QByteArray(4095, 'a') + "\r\nb\rc\n\nd\r\r\n" + QByteArray(9000, 'e') + "\rf";
    const QString name = writeFile(u"blocks.bas"_s, bytes);
    writeFile(u"empty.bas"_s, QByteArray());
    for (const QString &file : {name, path(u"empty.bas"_s)}) {
        SourceTextFile whole(file);
        SourceTextFile lazy(file, SourceTextFile::Reading::AsLinesAreRead);
        QStringList wholeLines;
        QStringList lazyLines;
        while (!whole.atEnd())
            wholeLines << whole.readLine();
        while (!lazy.atEnd())
            lazyLines << lazy.readLine();
        EXPECT_EQ(lazyLines, wholeLines);
        EXPECT_EQ(wholeLines.size(), file == name ? 8 : 0);
        try {
            lazy.readLine();
            ADD_FAILURE() << "read past the end";
        } catch (const QuorinError &error) {
            EXPECT_EQ(error.number(), FileErrorNumber::InputPastEndOfFile);
        }
    }
}

TEST_F(SourceFileReader, OpeningTellsAMissingFileFolderOrADirectory)
{
    writeFile(u"Sub/Real.bas"_s, "x = 1\r\n");
    const std::pair<const char *, qint32> cases[] = {
        {"sub/REAL.BAS", 0}, // found ignoring case
        {"Sub\\Real.bas", 0},
        {"Sub/gone.bas", FileErrorNumber::FileNotFound},
        {"gone/x.bas", FileErrorNumber::PathNotFound},
        {"Sub", FileErrorNumber::PathFileAccessError},
    };
    for (const auto &[name, number] : cases) {
        qint32 raised = 0;
        try {
            SourceTextFile file(path(QLatin1String(name)));
            EXPECT_EQ(file.readLine(), u"x = 1"_s) << name;
        } catch (const QuorinError &error) {
            raised = error.number();
        }
        EXPECT_EQ(raised, number) << name;
    }
}

TEST_F(SourceFileReader, ConnectingToAMissingFileIsLogged)
{
    VirtualSourceFile file;
    file.setFilename(path(u"gone.bas"_s));
    EXPECT_EQ(file.Connect(), 53);
    const QStringList records = logRecords();
    ASSERT_EQ(records.size(), 2);
    EXPECT_TRUE(records[0].contains(u"53 - File not found#VirtualSourceFile::ConnectFile"_s));
    EXPECT_EQ(records[1],
              u"Failed to open file "_s + path(u"gone.bas"_s) + u" - Error 53 File not found"_s);
    EXPECT_TRUE(readAll(file).empty());
}

// ---- Line statistics ----

TEST_F(SourceFileReader, LineStatisticsOfKnownFiles)
{
    QUORIN_REQUIRE_VB6_DATA(dir);
    // Blank, comment-only, in-line comment, code and total lines.
    using Counts = std::array<int, 5>;
    const std::pair<const char *, Counts> files[] = {
        {"/Suite/App/modMain.bas", {9, 3, 2, 44, 56}},
        {"/Suite/Core/cInvoice.cls", {5, 0, 0, 23, 28}}, // a member attribute inside the code
        {"/Suite/Core/IPrintable.cls", {0, 0, 0, 3, 3}}, // no final line end
        {"/Suite/App/frmAbout.frm", {1, 0, 0, 4, 5}},    // form header, LF line ends
    };
    for (const auto &[name, counts] : files) {
        VirtualSourceFile file;
        file.setFilename(dir + QLatin1String(name));
        EXPECT_EQ(file.CountSourceLines(), 0);
        ASSERT_TRUE(file.FileStats()->HasLSTATS());
        const auto s = file.FileStats()->LineStats();
        EXPECT_EQ((Counts{s->BlankLines(),
                          s->CommentOnlyLines(),
                          s->InLineCommentLines(),
                          s->CodeLines(),
                          s->TotalLines()}),
                  counts)
            << name;
    }
}

} // namespace
