#include "gui/window/frmAbout.h"

#include "gui/window/Images.h"

#include "application/HelpTopics.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinData.h"
#include "platform/UserInterface.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

frmAbout::frmAbout(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(tr("About Quorin Administrator"));

    auto *logo = new QLabel;
    logo->setObjectName(QStringLiteral("imgLogo"));
    logo->setPixmap(
        Images::icon(QStringLiteral("ilsEventTree"), QStringLiteral("Project")).pixmap(64, 64));
    logo->setAlignment(Qt::AlignTop);

    auto *title = new QLabel(programTitle());
    title->setObjectName(QStringLiteral("lblTitle"));
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.6);
    big.setBold(true);
    title->setFont(big);

    m_version = new QLabel(tr("Version %1").arg(programComponentVersion()));
    m_version->setObjectName(QStringLiteral("lblVersion"));

    auto *description = new QLabel(
        tr("The standards administrator's workbench for the Quorin code reviewer. Write the "
           "rulebases that say how your team's Visual Basic code is named, written and built: "
           "naming and coding conventions, unauthorised keywords, authorised components and "
           "references, categories, severities and name tags, and print them as a coding "
           "standards document."));
    description->setObjectName(QStringLiteral("lblDescription"));
    description->setWordWrap(true);
    description->setMinimumWidth(360);

    const QString home = gobjQuorinData ? gobjQuorinData->HomePageURL() : QString();
    m_homePage = new QLabel(
        home.isEmpty() ? QString()
                       : QStringLiteral("<a href=\"%1\">%1</a>").arg(home.toHtmlEscaped()));
    m_homePage->setObjectName(QStringLiteral("lblHomePage"));
    m_homePage->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(m_homePage, &QLabel::linkActivated, this, [](const QString &link) {
        UserInterface::current().shellOpen(link);
    });

    auto *text = new QVBoxLayout;
    text->addWidget(title);
    text->addWidget(m_version);
    text->addSpacing(8);
    text->addWidget(description);
    text->addSpacing(8);
    text->addWidget(m_homePage);
    text->addStretch(1);

    auto *body = new QHBoxLayout;
    body->addWidget(logo);
    body->addSpacing(12);
    body->addLayout(text, 1);

    m_ok = new QPushButton(tr("OK"));
    m_ok->setObjectName(QStringLiteral("cmdOK"));
    m_ok->setDefault(true);
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_ok);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(body, 1);
    layout->addLayout(buttons);

    m_delay = new QTimer(this);
    m_delay->setObjectName(QStringLiteral("tmrDelay"));
    m_delay->setSingleShot(true);
    connect(m_delay, &QTimer::timeout, this, &QWidget::close);
}

void frmAbout::ShowSplashScreen()
{
    m_ok->hide();
    setWindowFlags(Qt::SplashScreen | Qt::WindowStaysOnTopHint | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
    show();
    repaint();
    raise();
    m_delay->start(SplashMilliseconds);
}

void frmAbout::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1) {
        UserInterface::current().showHelp(HelpCommand::Context, QString(), HelpTopics::About);
        return;
    }
    QDialog::keyPressEvent(event);
}
