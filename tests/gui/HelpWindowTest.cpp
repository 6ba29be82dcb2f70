#include "application/HelpTopics.h"
#include "gui/GuiUserInterface.h"
#include "gui/window/HelpWindow.h"
#include "gui/window/Images.h"

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSet>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace {
QString pageText(const QString &page)
{
    QFile file(QStringLiteral(":/help/") + page);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
} // namespace

TEST(HelpTopics, EveryPageExistsAndEveryLinkBetweenPagesLeadsToOne)
{
    Images::initialise();
    QStringList pages{HelpTopics::contentsPage(), HelpTopics::searchPage()};
    for (const HelpTopics::Topic &topic : HelpTopics::all())
        pages << QLatin1String(topic.page);
    const QRegularExpression link(QStringLiteral("href=\"([^\"#:]+)"));
    QSet<QString> linked;
    for (const QString &page : std::as_const(pages)) {
        const QString html = pageText(page);
        ASSERT_FALSE(html.isEmpty()) << page.toStdString();
        EXPECT_TRUE(html.contains(QStringLiteral("<title>"))) << page.toStdString();
        for (auto m = link.globalMatch(html); m.hasNext();) {
            const QString target = m.next().captured(1);
            EXPECT_TRUE(QFile::exists(QStringLiteral(":/help/") + target))
                << page.toStdString() << " links to " << target.toStdString();
            linked << target;
        }
    }
    // The contents reach every topic.
    for (const HelpTopics::Topic &topic : HelpTopics::all())
        EXPECT_TRUE(linked.contains(QLatin1String(topic.page))) << topic.page;
}

TEST(HelpWindow, OpensThePageOfAContextIdOrATopicAndKeepsOneWindow)
{
    HelpWindow *help = HelpWindow::instance();
    EXPECT_EQ(HelpWindow::instance(), help);
    EXPECT_TRUE(help->showContext(68));
    EXPECT_EQ(help->currentPage(), QStringLiteral("CategoryView.htm"));
    EXPECT_TRUE(help->browser()->toPlainText().contains(QStringLiteral("Unallocated")));
    EXPECT_TRUE(help->isVisible());

    EXPECT_TRUE(help->showTopic(QStringLiteral("::/CategoryList.htm")));
    EXPECT_EQ(help->currentPage(), QStringLiteral("CategoryList.htm"));
    // Back and forward walk the pages shown.
    QAction *back = help->findChild<QAction *>(QStringLiteral("actBack"));
    ASSERT_NE(back, nullptr);
    EXPECT_TRUE(back->isEnabled());
    back->trigger();
    EXPECT_EQ(help->currentPage(), QStringLiteral("CategoryView.htm"));
    help->findChild<QAction *>(QStringLiteral("actForward"))->trigger();
    EXPECT_EQ(help->currentPage(), QStringLiteral("CategoryList.htm"));

    // Topics match whatever the case or the ".htm"/".html" ending, anchors kept.
    EXPECT_EQ(HelpTopics::pageForTopic(QStringLiteral("::/categoryeditor.HTML")), QStringLiteral("CategoryEditor.htm"));
    EXPECT_EQ(HelpTopics::pageForTopic(QStringLiteral("/DefaultViolations.htm#top")),
              QStringLiteral("DefaultViolations.htm#top"));
    EXPECT_EQ(HelpTopics::topicPath(68), QStringLiteral("::/CategoryView.htm"));

    // An unknown topic or id shows the contents and says so.
    EXPECT_FALSE(help->showTopic(QStringLiteral("::/Nowhere.htm")));
    EXPECT_EQ(help->currentPage(), HelpTopics::contentsPage());
    EXPECT_FALSE(help->showContext(4242));
    EXPECT_EQ(help->currentPage(), HelpTopics::contentsPage());

    // The program's user interface opens the same window.
    GuiUserInterface ui(true);
    ui.showHelp(HelpCommand::Context, QString(), 65);
    EXPECT_EQ(HelpWindow::existing(), help);
    EXPECT_EQ(help->currentPage(), QStringLiteral("CodingConventionsView.htm"));
    ui.showHelp(HelpCommand::Topic, QStringLiteral("::/Introduction.html"), 0);
    EXPECT_EQ(help->currentPage(), QStringLiteral("Introduction.html"));
    ui.showHelp(HelpCommand::Contents, QString(), 0);
    EXPECT_EQ(help->currentPage(), HelpTopics::contentsPage());
    ui.showHelp(HelpCommand::Search, QString(), 0);
    EXPECT_EQ(help->currentPage(), HelpTopics::searchPage());
    help->close();
}
