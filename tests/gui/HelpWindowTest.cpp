#include "gui/window/HelpWindow.h"
#include "application/HelpTopics.h"
#include "gui/GuiUserInterface.h"
#include "gui/window/Images.h"

#include <QAction>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QSet>
#include <QTextBrowser>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {
QString pageText(const QString &page)
{
    QFile file(u":/help/"_s + page);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
} // namespace

TEST(HelpTopics, EveryPageExistsAndEveryLinkBetweenPagesLeadsToOne)
{
    Images::initialise();
    QStringList pages{HelpTopics::contentsPage(), HelpTopics::searchPage()};
    for (const HelpTopics::Topic &topic : HelpTopics::all())
        pages << QLatin1String(topic.page);
    const QRegularExpression link(u"href=\"([^\"#:]+)"_s);
    QSet<QString> linked;
    for (const QString &page : std::as_const(pages)) {
        const QString html = pageText(page);
        ASSERT_FALSE(html.isEmpty()) << page.toStdString();
        EXPECT_TRUE(html.contains(u"<title>"_s)) << page.toStdString();
        for (auto m = link.globalMatch(html); m.hasNext();) {
            const QString target = m.next().captured(1);
            EXPECT_TRUE(QFile::exists(u":/help/"_s + target))
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
    EXPECT_EQ(help->currentPage(), u"CategoryView.htm"_s);
    EXPECT_TRUE(help->browser()->toPlainText().contains(u"Unallocated"_s));
    EXPECT_TRUE(help->isVisible());

    EXPECT_TRUE(help->showTopic(u"::/CategoryList.htm"_s));
    EXPECT_EQ(help->currentPage(), u"CategoryList.htm"_s);
    // Back and forward walk the pages shown.
    QAction *back = help->findChild<QAction *>(u"actBack"_s);
    ASSERT_NE(back, nullptr);
    EXPECT_TRUE(back->isEnabled());
    back->trigger();
    EXPECT_EQ(help->currentPage(), u"CategoryView.htm"_s);
    help->findChild<QAction *>(u"actForward"_s)->trigger();
    EXPECT_EQ(help->currentPage(), u"CategoryList.htm"_s);

    // Topics match whatever the case or the ".htm"/".html" ending, anchors kept.
    EXPECT_EQ(HelpTopics::pageForTopic(u"::/categoryeditor.HTML"_s), u"CategoryEditor.htm"_s);
    EXPECT_EQ(HelpTopics::pageForTopic(u"/DefaultViolations.htm#top"_s),
              u"DefaultViolations.htm#top"_s);
    EXPECT_EQ(HelpTopics::topicPath(68), u"::/CategoryView.htm"_s);

    // An unknown topic or id shows the contents and says so.
    EXPECT_FALSE(help->showTopic(u"::/Nowhere.htm"_s));
    EXPECT_EQ(help->currentPage(), HelpTopics::contentsPage());
    EXPECT_FALSE(help->showContext(4242));
    EXPECT_EQ(help->currentPage(), HelpTopics::contentsPage());

    // The program's user interface opens the same window.
    GuiUserInterface ui(true);
    ui.showHelp(HelpCommand::Context, QString(), 65);
    EXPECT_EQ(HelpWindow::existing(), help);
    EXPECT_EQ(help->currentPage(), u"CodingConventionsView.htm"_s);
    ui.showHelp(HelpCommand::Topic, u"::/Introduction.html"_s, 0);
    EXPECT_EQ(help->currentPage(), u"Introduction.html"_s);
    ui.showHelp(HelpCommand::Contents, QString(), 0);
    EXPECT_EQ(help->currentPage(), HelpTopics::contentsPage());
    ui.showHelp(HelpCommand::Search, QString(), 0);
    EXPECT_EQ(help->currentPage(), HelpTopics::searchPage());
    help->close();
}
