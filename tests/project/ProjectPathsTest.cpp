#include "ProjectTestSupport.h"

#include "project/CaseInsensitivePath.h"
#include "project/FolderListingCache.h"
#include "project/modQuorinUtils.h"

#include <QDir>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

using modQuorinUtils::ParentFolderFromPath;
using modQuorinUtils::RelativeToAbsolutePath;

using ProjectPaths = ProjectTest;

TEST_F(ProjectPaths, WindowsPathsResolveAsText)
{
    const QString base = QStringLiteral("C:\\x\\y\\z\\");
    const std::pair<const char *, const char *> cases[] = {
        {"..\\..\\a.vbp", "C:\\x\\a.vbp"},
        {"sub\\a.vbp", "C:\\x\\y\\z\\sub\\a.vbp"},
        {"D:\\a.vbp", "D:\\a.vbp"},
        {"\\\\srv\\a.vbp", "C:\\x\\y\\z\\\\\\srv\\a.vbp"}, // two backslashes: relative
    };
    for (const auto &[relative, absolute] : cases)
        EXPECT_EQ(RelativeToAbsolutePath(QLatin1String(relative), base), QLatin1String(absolute));

    EXPECT_EQ(ParentFolderFromPath(QStringLiteral("C:\\x\\y\\")), QStringLiteral("C:\\x\\"));
    EXPECT_EQ(ParentFolderFromPath(QStringLiteral("C:\\x")), u"C:\\"_s);
    EXPECT_EQ(ParentFolderFromPath(QStringLiteral("\\x")), QString());
    EXPECT_EQ(ParentFolderFromPath(u"name"_s), QString());
    EXPECT_EQ(ParentFolderFromPath(u"/home/"_s), u"/"_s);

    EXPECT_TRUE(modQuorinUtils::IsVBPFile(u"avbp"_s));
    EXPECT_TRUE(modQuorinUtils::IsVBGFile(u"C:\\Suite.Vbg"_s));
    EXPECT_FALSE(modQuorinUtils::IsVBPFile(u"a.vbg"_s));
}

// With and without the listings a stats run keeps.
TEST_F(ProjectPaths, FindsFilesIgnoringCaseThroughFoldersWithSpacesAndDotDot)
{
    const QString real = writeFile(u"My Projects/Tools Dir/Form One.frm"_s, "x");
    writeFile(u"My Projects/App/keep.txt"_s, "x");
    const QString base = path(u"My Projects/App/"_s);
    const QString lower = writeFile(u"twins/a.bas"_s, "1");
    const QString upper = writeFile(u"twins/A.bas"_s, "2");
    for (const bool kept : {false, true}) {
        std::optional<FolderListingCache> listings;
        if (kept)
            listings.emplace();
        EXPECT_EQ(RelativeToAbsolutePath(u"..\\TOOLS DIR\\form one.FRM"_s, base), real);
        EXPECT_EQ(RelativeToAbsolutePath(u"..\\..\\my projects\\tools dir\\FORM ONE.frm"_s, base),
                  real);
        // ".." inside the path is taken as Windows takes it, without "sub" having to exist.
        EXPECT_EQ(RelativeToAbsolutePath(u"sub\\..\\..\\Tools Dir/./Form One.frm"_s, base), real);
        // A missing file gives the path as built, so messages show what the project asked for.
        EXPECT_EQ(RelativeToAbsolutePath(QStringLiteral("gone\\x.bas"), base),
                  base + QStringLiteral("gone\\x.bas"));
        EXPECT_EQ(CaseInsensitivePath::resolve(path(u"Twins/gone.bas"_s)),
                  path(u"Twins/gone.bas"_s));
        // The exact spelling wins when two names differ only in case.
        EXPECT_EQ(CaseInsensitivePath::resolve(upper), upper);
        EXPECT_EQ(CaseInsensitivePath::resolve(lower), lower);
        EXPECT_EQ(RelativeToAbsolutePath(u"twins\\A.bas"_s, path(QString())), upper);
    }
}

// On a case-sensitive file system each segment is matched ignoring case; what can't be walked
// comes back as it was given.
TEST_F(ProjectPaths, ResolvingTakesEverySpellingAndGivesBackWhatItCannotWalk)
{
    const QString real = writeFile(u"My Projects/Tools Dir/Form One.frm"_s, "x");
    const QString folder = path(u"My Projects/Tools Dir/"_s);
    const QString found[] = {
        m_dir + u"/MY PROJECTS/tools dir/form one.FRM"_s,
        m_dir + u"\\my projects\\TOOLS DIR\\Form One.frm"_s,
        m_dir + u"/my projects/./x/../Tools Dir//FORM ONE.FRM"_s,
    };
    for (const QString &spelling : found)
        EXPECT_EQ(CaseInsensitivePath::resolve(spelling), real) << spelling.toStdString();
    // Relative to the current folder, where a two-letter folder is no drive.
    writeFile(u"Ab/Two.frm"_s, "x");
    const QString current = QDir::currentPath();
    QDir::setCurrent(m_dir);
    EXPECT_EQ(CaseInsensitivePath::resolve(u"aB\\two.FRM"_s), u"Ab/Two.frm"_s);
    QDir::setCurrent(current);
    const QString unchanged[] = {
        QString(),
        u"/"_s,
        folder,
        u"//server/share/a.vbp"_s,
        QStringLiteral("C:\\x\\a.vbp"),
        u"no-such-folder/a.vbp"_s,
        m_dir + u"/my projects/gone/Form One.frm"_s,
        real + u"/below a file"_s,
    };
    for (const QString &given : unchanged)
        EXPECT_EQ(CaseInsensitivePath::resolve(given), given) << given.toStdString();
}

TEST_F(ProjectPaths, GroupFileListsProjectLinesInOrderWithDuplicates)
{
    const QString app = writeFile(u"grp/App/App.vbp"_s, "Type=Exe\r\n");
    const QString group
        = writeFile(u"grp/all.vbg"_s,
                    crlf("VBGROUP 5.0\nStartupProject=APP\\app.vbp\nproject=App\\App.vbp\n"
                         "Project=..\\Other\\o.vbp\nProjects=ignored.vbp\n"));
    const StringArrayList projects = modQuorinUtils::ProjectFileListFromVBG(group);
    ASSERT_EQ(projects.Count(), 3);
    EXPECT_EQ(projects.Item(1), app);
    EXPECT_EQ(projects.Item(2), app);
    EXPECT_EQ(projects.Item(3), m_dir + u"/Other\\o.vbp"_s); // not on disk
    EXPECT_TRUE(logRecords().isEmpty());

    EXPECT_EQ(modQuorinUtils::ProjectFileListFromVBG(path(u"none.vbg"_s)).Count(), 0);
    ASSERT_EQ(logRecords().size(), 1);
    EXPECT_TRUE(logRecords().first().contains(u"53 - File not found#modQuorinUtils::"_s));
}

} // namespace
