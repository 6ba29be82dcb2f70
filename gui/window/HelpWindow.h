#pragma once

#include <QMainWindow>
#include <QStringList>

class QAction;
class QLineEdit;
class QTextBrowser;
class QUrl;

// The help viewer: the program's own HTML pages with back, forward, contents and a search box.
// One window serves the whole program; asking for help again brings it to the front.
class HelpWindow final : public QMainWindow
{
    Q_OBJECT

public:
    // The one window, made on first use as a window of its own over `parent`.
    static HelpWindow *instance(QWidget *parent = nullptr);
    // The existing window, or nullptr.
    static HelpWindow *existing();

    void showContents();
    // The search page; with words, the pages that hold all of them.
    void showSearch(const QString &words = QString());
    // A topic path ("::/CategoryList.htm"); false, and the contents, when no page has that name.
    bool showTopic(const QString &topic);
    // A help context id; false, and the contents, when the id has no page.
    bool showContext(int context);

    // The page shown, as its file name ("CategoryView.htm"); empty for a search result.
    QString currentPage() const;
    QTextBrowser *browser() const { return m_browser; }

    // The help pages whose text holds every word of `words`, ignoring case, by file name.
    static QStringList search(const QString &words);
    // The folder of the pages, as a URL prefix.
    static QString pagesRoot();

private:
    explicit HelpWindow(QWidget *parent);
    void showPage(const QString &page);
    void linkClicked(const QUrl &url);

    QTextBrowser *m_browser = nullptr;
    QLineEdit *m_search = nullptr;
    QAction *m_back = nullptr;
    QAction *m_forward = nullptr;
};
