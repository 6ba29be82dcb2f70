#include "gui/window/HelpWindow.h"

#include "gui/window/Images.h"

#include "application/HelpTopics.h"
#include "platform/UserInterface.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QTextDocument>
#include <QToolBar>

namespace {
QPointer<HelpWindow> &theWindow()
{
    static QPointer<HelpWindow> window;
    return window;
}

QString plainTextOf(const QString &page)
{
    QFile file(QStringLiteral(":/help/") + page);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    QTextDocument document;
    document.setHtml(QString::fromUtf8(file.readAll()));
    return document.toPlainText();
}

QString titleOf(const QString &page)
{
    for (const HelpTopics::Topic &topic : HelpTopics::all()) {
        if (page == QLatin1String(topic.page))
            return QString::fromUtf8(topic.title);
    }
    return page;
}
} // namespace

HelpWindow *HelpWindow::instance(QWidget *parent)
{
    if (!theWindow())
        theWindow() = new HelpWindow(parent);
    return theWindow();
}

HelpWindow *HelpWindow::existing()
{
    return theWindow();
}

QString HelpWindow::pagesRoot()
{
    return QStringLiteral("qrc:/help/");
}

HelpWindow::HelpWindow(QWidget *parent)
    : QMainWindow(parent, Qt::Window)
{
    Images::initialise();
    setObjectName(QStringLiteral("HelpWindow"));
    setWindowTitle(tr("Quorin Administrator Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(760, 600);

    m_browser = new QTextBrowser;
    m_browser->setObjectName(QStringLiteral("txtHelp"));
    // Every link comes here: pages stay in the window, web addresses go to the desktop.
    m_browser->setOpenLinks(false);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &HelpWindow::linkClicked);
    setCentralWidget(m_browser);

    auto *bar = addToolBar(tr("Navigation"));
    bar->setObjectName(QStringLiteral("tlbHelp"));
    bar->setMovable(false);
    m_back = bar->addAction(tr("&Back"), m_browser, &QTextBrowser::backward);
    m_back->setObjectName(QStringLiteral("actBack"));
    m_back->setIcon(QIcon(QStringLiteral(":/icons/action-back.svg")));
    m_back->setShortcut(QKeySequence::Back);
    m_back->setEnabled(false);
    m_forward = bar->addAction(tr("&Forward"), m_browser, &QTextBrowser::forward);
    m_forward->setObjectName(QStringLiteral("actForward"));
    m_forward->setIcon(QIcon(QStringLiteral(":/icons/action-forward.svg")));
    m_forward->setShortcut(QKeySequence::Forward);
    m_forward->setEnabled(false);
    QAction *contents = bar->addAction(tr("&Contents"), this, &HelpWindow::showContents);
    contents->setObjectName(QStringLiteral("actContents"));
    contents->setIcon(QIcon(QStringLiteral(":/icons/action-home.svg")));
    bar->addSeparator();
    bar->addWidget(new QLabel(tr(" Search: ")));
    m_search = new QLineEdit;
    m_search->setObjectName(QStringLiteral("txtSearch"));
    m_search->setPlaceholderText(tr("Words to find"));
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(260);
    bar->addWidget(m_search);
    connect(m_search, &QLineEdit::returnPressed, this, [this] { showSearch(m_search->text()); });

    connect(m_browser, &QTextBrowser::backwardAvailable, m_back, &QAction::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, m_forward, &QAction::setEnabled);
    connect(m_browser, &QTextBrowser::sourceChanged, this, [this] {
        const QString title = m_browser->documentTitle();
        setWindowTitle(title.isEmpty()
                           ? tr("Quorin Administrator Help")
                           : title + QStringLiteral(" - ") + tr("Quorin Administrator Help"));
    });
}

void HelpWindow::showPage(const QString &page)
{
    m_browser->setSource(QUrl(pagesRoot() + page));
    show();
    raise();
    activateWindow();
}

void HelpWindow::showContents()
{
    showPage(HelpTopics::contentsPage());
}

void HelpWindow::showSearch(const QString &words)
{
    if (words.trimmed().isEmpty()) {
        showPage(HelpTopics::searchPage());
        m_search->setFocus();
        return;
    }
    m_search->setText(words);
    const QStringList pages = search(words);
    QString html = QStringLiteral("<html><head><title>%1</title></head><body><h2>%1</h2>")
                       .arg(tr("Search results").toHtmlEscaped());
    if (pages.isEmpty()) {
        html += QStringLiteral("<p>%1</p>")
                    .arg(tr("No page holds all of the words \"%1\". Try fewer or shorter words.")
                             .arg(words.toHtmlEscaped()));
    } else {
        html += QStringLiteral("<p>%1</p><ul>")
                    .arg(tr("Pages that hold \"%1\":").arg(words.toHtmlEscaped()));
        for (const QString &page : pages)
            html += QStringLiteral("<li><a href=\"%1%2\">%3</a></li>")
                        .arg(pagesRoot(), page, titleOf(page).toHtmlEscaped());
        html += QStringLiteral("</ul>");
    }
    html += QStringLiteral("</body></html>");
    m_browser->setHtml(html);
    show();
    raise();
}

bool HelpWindow::showTopic(const QString &topic)
{
    const QString page = HelpTopics::pageForTopic(topic);
    if (page.isEmpty()) {
        showContents();
        return false;
    }
    showPage(page);
    return true;
}

bool HelpWindow::showContext(int context)
{
    const QString page = HelpTopics::pageForContext(context);
    if (page.isEmpty()) {
        showContents();
        return false;
    }
    showPage(page);
    return true;
}

QString HelpWindow::currentPage() const
{
    const QUrl source = m_browser->source();
    return source.isEmpty() ? QString() : source.fileName();
}

QStringList HelpWindow::search(const QString &words)
{
    Images::initialise();
    const QStringList wanted
        = words.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    QStringList found;
    if (wanted.isEmpty())
        return found;
    QStringList pages{HelpTopics::contentsPage()};
    for (const HelpTopics::Topic &topic : HelpTopics::all()) {
        const QString page = QLatin1String(topic.page);
        if (!pages.contains(page))
            pages << page;
    }
    for (const QString &page : std::as_const(pages)) {
        const QString text = plainTextOf(page);
        bool all = !text.isEmpty();
        for (const QString &word : wanted)
            all = all && text.contains(word, Qt::CaseInsensitive);
        if (all)
            found << page;
    }
    return found;
}

void HelpWindow::linkClicked(const QUrl &url)
{
    const QString scheme = url.scheme().toLower();
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https")
        || scheme == QLatin1String("mailto")) {
        UserInterface::current().shellOpen(url.toString());
        return;
    }
    m_browser->setSource(m_browser->source().resolved(url));
}
