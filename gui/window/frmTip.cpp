#include "gui/window/frmTip.h"

#include "gui/window/Images.h"

#include "application/HelpTopics.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/UserInterface.h"

#include <QCheckBox>
#include <QFile>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTextStream>
#include <QVBoxLayout>

frmTip::frmTip(QWidget *parent)
    : QDialog(parent)
    , m_tips(LoadTips(tipsFile()))
{
    setObjectName(QStringLiteral("frmTip"));
    setWindowTitle(tr("Tip of the Day"));

    auto *bulb = new QLabel;
    bulb->setPixmap(Images::tool(QStringLiteral("tlTipOfDay")).pixmap(48, 48));
    bulb->setAlignment(Qt::AlignTop);

    auto *heading = new QLabel(tr("Did you know..."));
    QFont font = heading->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.3);
    heading->setFont(font);

    m_tip = new QLabel;
    m_tip->setObjectName(QStringLiteral("lblTipText"));
    m_tip->setWordWrap(true);
    m_tip->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_tip->setMinimumSize(380, 110);
    m_tip->setTextInteractionFlags(Qt::TextSelectableByMouse);

    m_number = new QLabel;
    m_number->setObjectName(QStringLiteral("lblTipNumber"));
    m_number->setAlignment(Qt::AlignRight);

    auto *text = new QVBoxLayout;
    text->addWidget(heading);
    text->addWidget(m_tip, 1);
    text->addWidget(m_number);

    auto *panel = new QFrame;
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setBackgroundRole(QPalette::Base);
    panel->setAutoFillBackground(true);
    auto *panelLayout = new QHBoxLayout(panel);
    panelLayout->addWidget(bulb);
    panelLayout->addLayout(text, 1);

    m_showAtStartup = new QCheckBox(tr("&Show tips at startup"));
    m_showAtStartup->setObjectName(QStringLiteral("chkLoadTipsAtStartup"));
    m_showAtStartup->setChecked(!gobjAdminData || gobjAdminData->DisplayTips());
    connect(m_showAtStartup, &QCheckBox::toggled, this, [](bool checked) {
        if (gobjAdminData)
            gobjAdminData->setDisplayTips(checked);
    });

    auto *next = new QPushButton(tr("&Next Tip"));
    next->setObjectName(QStringLiteral("cmdNextTip"));
    next->setEnabled(m_tips.size() > 1);
    connect(next, &QPushButton::clicked, this, &frmTip::NextTip);
    auto *ok = new QPushButton(tr("OK"));
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_showAtStartup);
    buttons->addStretch(1);
    buttons->addWidget(next);
    buttons->addWidget(ok);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(panel, 1);
    layout->addLayout(buttons);

    setLastTip(0);
}

QString frmTip::tipsFile()
{
    Images::initialise();
    return QStringLiteral(":/QuorinAdmin.tip");
}

QStringList frmTip::LoadTips(const QString &path)
{
    QStringList tips;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return tips;
    QTextStream in(&file);
    in.setEncoding(QStringConverter::Utf8);
    while (!in.atEnd()) {
        const QString line = in.readLine().trimmed();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char(';')))
            tips << line;
    }
    return tips;
}

void frmTip::setLastTip(int lastTip)
{
    if (m_tips.isEmpty()) {
        m_lastTip = 0;
        m_tip->setText(tr("There are no tips to show."));
        m_number->clear();
        return;
    }
    // A number from an older, longer tips file starts again at the first.
    const int count = int(m_tips.size());
    showTip(lastTip < 0 || lastTip >= count ? 1 : lastTip + 1);
}

void frmTip::NextTip()
{
    if (!m_tips.isEmpty())
        showTip(m_lastTip >= int(m_tips.size()) ? 1 : m_lastTip + 1);
}

QString frmTip::currentTip() const
{
    return m_lastTip >= 1 && m_lastTip <= int(m_tips.size()) ? m_tips.at(m_lastTip - 1) : QString();
}

void frmTip::showTip(int number)
{
    m_lastTip = number;
    m_tip->setText(m_tips.at(number - 1));
    m_number->setText(tr("Tip %1 of %2").arg(number).arg(m_tips.size()));
}

void frmTip::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1) {
        UserInterface::current().showHelp(HelpCommand::Context, QString(), HelpTopics::TipOfTheDay);
        return;
    }
    QDialog::keyPressEvent(event);
}
