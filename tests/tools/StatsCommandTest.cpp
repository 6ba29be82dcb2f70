#include "ToolTestSupport.h"

#include <QDir>
#include <QJsonArray>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

qint64 number(const QJsonObject &object, const char *name)
{
    return object.value(QLatin1String(name)).toInteger();
}

} // namespace

TEST(StatsCommand, AProjectWrittenHereIsCountedAsTheReviewerCountsIt)
{
    const QString dir = TestEnvironment::makeTempDir();
    const QString project = writeFile(
        dir + u"/Tiny.vbp"_s, "Type=Exe\r\nModule=modTiny; modTiny.bas\r\nName=\"Tiny\"\r\n");
    writeFile(dir + u"/modTiny.bas"_s,
              "Attribute VB_Name = \"modTiny\"\r\n"
              "Option Explicit\r\n"
              "\r\n"
              "' A comment line\r\n"
              "Private m_count As Long ' with a comment\r\n"
              "Private Sub Bump()\r\n"
              "    m_count = m_count + _\r\n"
              "        1\r\n"
              "End Sub\r\n");

    const ToolRun json = runQrbTool({u"stats"_s, u"--format"_s, u"json"_s, project});
    ASSERT_EQ(json.exitCode, 0) << json.err.toStdString();
    const QJsonObject root = parseJsonObject(json.out);
    const QJsonArray projects = root.value(u"projects"_s).toArray();
    ASSERT_EQ(projects.size(), 1);
    const QJsonObject tiny = projects.at(0).toObject();
    EXPECT_EQ(tiny.value(u"name"_s).toString(), u"Tiny"_s);
    EXPECT_EQ(number(tiny, "files"), 1);
    // Past the header: five code lines (the continued statement is one), one of them with a
    // comment, one comment-only line, one blank line.
    EXPECT_EQ(number(tiny, "codeLines"), 5);
    EXPECT_EQ(number(tiny, "inLineCommentLines"), 1);
    EXPECT_EQ(number(tiny, "commentLines"), 1);
    EXPECT_EQ(number(tiny, "blankLines"), 1);
    EXPECT_EQ(number(tiny, "totalLines"), 7);
    const QJsonObject file = tiny.value(u"sourceFiles"_s).toArray().at(0).toObject();
    EXPECT_EQ(file.value(u"name"_s).toString(), u"modTiny"_s);
    EXPECT_EQ(number(file, "codeLines"), 5);

    const ToolRun text = runQrbTool({u"stats"_s, u"--files"_s, project});
    EXPECT_EQ(text.exitCode, 0);
    const QStringList lines = text.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 4) << text.out.toStdString();
    EXPECT_EQ(lines.at(0).simplified(), u"Files Code Comment Blank Total Project"_s);
    EXPECT_EQ(lines.at(1).simplified(),
              u"1 5 1 1 7 Tiny (%1)"_s.arg(QDir::current().relativeFilePath(project)));
    EXPECT_TRUE(lines.at(2).simplified().endsWith("modTiny.bas"_L1));
    EXPECT_EQ(lines.at(3).simplified(), u"1 5 1 1 7 Total"_s);

    // Not a project, or no file at all: exit 2 with the reason, and no project counted.
    const QString notProject = writeFile(dir + u"/notes.txt"_s, "x");
    for (const QString &bad : {notProject, dir + u"/Missing.vbp"_s}) {
        const ToolRun run = runQrbTool({u"stats"_s, u"--format=json"_s, bad});
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(run.err.contains(bad)) << run.err.toStdString();
        EXPECT_EQ(parseJsonObject(run.out).value(u"projects"_s).toArray().size(), 0);
    }

    // A group's member project, or a project's source file, that is missing or unreadable is a
    // finding named by its file, never an error frame's text; the rest is still counted.
    writeFile(dir + u"/Dir.vbp"_s,
              "Type=Exe\r\nModule=modTiny; modTiny.bas\r\nModule=modDir; modDir.bas\r\n");
    QDir(dir).mkdir(u"modDir.bas"_s);
    QDir(dir).mkdir(u"Folder.vbp"_s);
    const QString group = writeFile(
        dir + u"/All.vbg"_s,
        "VBGROUP 5.0\r\nStartupProject=Dir.vbp\r\nProject=Gone.vbp\r\nProject=Folder.vbp\r\n");
    const ToolRun run = runQrbTool({u"stats"_s, u"--format"_s, u"json"_s, group});
    EXPECT_EQ(run.exitCode, 1) << run.err.toStdString();
    for (const char *named : {"Gone.vbp: ", "Folder.vbp: ", "modDir.bas: "})
        EXPECT_TRUE(run.err.contains(QLatin1String(named))) << named << run.err.toStdString();
    EXPECT_FALSE(run.err.contains(" in function "_L1)) << run.err.toStdString();
    const QJsonArray members = parseJsonObject(run.out).value(u"projects"_s).toArray();
    ASSERT_EQ(members.size(), 1);
    EXPECT_EQ(number(members.at(0).toObject(), "files"), 1);
}
