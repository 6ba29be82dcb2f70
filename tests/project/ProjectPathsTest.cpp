#include "ProjectTestSupport.h"

#include "project/CaseInsensitivePath.h"
#include "project/FolderListingCache.h"
#include "project/modQuorinUtils.h"

#include <optional>

namespace {

using modQuorinUtils::ParentFolderFromPath;
using modQuorinUtils::RelativeToAbsolutePath;

class ProjectPaths : public ProjectTest
{
};

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
    EXPECT_EQ(ParentFolderFromPath(QStringLiteral("C:\\x")), QStringLiteral("C:\\"));
    EXPECT_EQ(ParentFolderFromPath(QStringLiteral("\\x")), QString());
    EXPECT_EQ(ParentFolderFromPath(QStringLiteral("name")), QString());
    EXPECT_EQ(ParentFolderFromPath(QStringLiteral("/home/")), QStringLiteral("/"));

    EXPECT_TRUE(modQuorinUtils::IsVBPFile(QStringLiteral("avbp")));
    EXPECT_TRUE(modQuorinUtils::IsVBGFile(QStringLiteral("C:\\Suite.Vbg")));
    EXPECT_FALSE(modQuorinUtils::IsVBPFile(QStringLiteral("a.vbg")));
}

// With and without the listings a stats run keeps.
TEST_F(ProjectPaths, FindsFilesIgnoringCaseThroughFoldersWithSpacesAndDotDot)
{
    const QString real = writeFile(QStringLiteral("My Projects/Tools Dir/Form One.frm"), "x");
    writeFile(QStringLiteral("My Projects/App/keep.txt"), "x");
    const QString base = path(QStringLiteral("My Projects/App/"));
    const QString lower = writeFile(QStringLiteral("twins/a.bas"), "1");
    const QString upper = writeFile(QStringLiteral("twins/A.bas"), "2");
    for (const bool kept : {false, true}) {
        std::optional<FolderListingCache> listings;
        if (kept)
            listings.emplace();
        EXPECT_EQ(RelativeToAbsolutePath(QStringLiteral("..\\TOOLS DIR\\form one.FRM"), base),
                  real);
        EXPECT_EQ(RelativeToAbsolutePath(
                      QStringLiteral("..\\..\\my projects\\tools dir\\FORM ONE.frm"), base),
                  real);
        // ".." inside the path is taken as Windows takes it, without "sub" having to exist.
        EXPECT_EQ(
            RelativeToAbsolutePath(QStringLiteral("sub\\..\\..\\Tools Dir/./Form One.frm"), base),
            real);
        // A missing file gives the path as built, so messages show what the project asked for.
        EXPECT_EQ(RelativeToAbsolutePath(QStringLiteral("gone\\x.bas"), base),
                  base + QStringLiteral("gone\\x.bas"));
        EXPECT_EQ(CaseInsensitivePath::resolve(path(QStringLiteral("Twins/gone.bas"))),
                  path(QStringLiteral("Twins/gone.bas")));
        // The exact spelling wins when two names differ only in case.
        EXPECT_EQ(CaseInsensitivePath::resolve(upper), upper);
        EXPECT_EQ(CaseInsensitivePath::resolve(lower), lower);
        EXPECT_EQ(RelativeToAbsolutePath(QStringLiteral("twins\\A.bas"), path(QString())), upper);
    }
}

// On a case-sensitive file system each segment is matched ignoring case; what can't be walked
// comes back as it was given.
TEST_F(ProjectPaths, ResolvingTakesEverySpellingAndGivesBackWhatItCannotWalk)
{
    const QString real = writeFile(QStringLiteral("My Projects/Tools Dir/Form One.frm"), "x");
    const QString folder = path(QStringLiteral("My Projects/Tools Dir/"));
    const QString found[] = {
        m_dir + QStringLiteral("/MY PROJECTS/tools dir/form one.FRM"),
        m_dir + QStringLiteral("\\my projects\\TOOLS DIR\\Form One.frm"),
        m_dir + QStringLiteral("/my projects/./x/../Tools Dir//FORM ONE.FRM"),
    };
    for (const QString &spelling : found)
        EXPECT_EQ(CaseInsensitivePath::resolve(spelling), real) << spelling.toStdString();
    const QString unchanged[] = {
        QString(),
        QStringLiteral("/"),
        folder,
        QStringLiteral("//server/share/a.vbp"),
        QStringLiteral("C:\\x\\a.vbp"),
        QStringLiteral("no-such-folder/a.vbp"),
        m_dir + QStringLiteral("/my projects/gone/Form One.frm"),
        real + QStringLiteral("/below a file"),
    };
    for (const QString &given : unchanged)
        EXPECT_EQ(CaseInsensitivePath::resolve(given), given) << given.toStdString();
}

TEST_F(ProjectPaths, GroupFileListsProjectLinesInOrderWithDuplicates)
{
    const QString app = writeFile(QStringLiteral("grp/App/App.vbp"), "Type=Exe\r\n");
    const QString group
        = writeFile(QStringLiteral("grp/all.vbg"),
                    crlf("VBGROUP 5.0\nStartupProject=APP\\app.vbp\nproject=App\\App.vbp\n"
                         "Project=..\\Other\\o.vbp\nProjects=ignored.vbp\n"));
    const StringArrayList projects = modQuorinUtils::ProjectFileListFromVBG(group);
    ASSERT_EQ(projects.Count(), 3);
    EXPECT_EQ(projects.Item(1), app);
    EXPECT_EQ(projects.Item(2), app);
    EXPECT_EQ(projects.Item(3), m_dir + QStringLiteral("/Other\\o.vbp")); // not on disk
    EXPECT_TRUE(logRecords().isEmpty());

    EXPECT_EQ(modQuorinUtils::ProjectFileListFromVBG(path(QStringLiteral("none.vbg"))).Count(), 0);
    ASSERT_EQ(logRecords().size(), 1);
    EXPECT_TRUE(
        logRecords().first().contains(QStringLiteral("53 - File not found#modQuorinUtils::")));
}

} // namespace
