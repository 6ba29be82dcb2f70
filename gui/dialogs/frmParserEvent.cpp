#include "gui/dialogs/frmParserEvent.h"

#include "application/HelpTopics.h"
#include "gui/dialogs/RuleTreeWidget.h"
#include "platform/UserInterface.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>

frmParserEvent::frmParserEvent(QWidget *parent)
    : QDialog(parent)
    , m_tvwEvent(new QTreeWidget(this))
    , m_txtDescription(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("frmParserEvent"));
    setWindowTitle(QString::fromLatin1(ParserEventForm::caption));
    m_tvwEvent->setObjectName(QStringLiteral("tvwEvent"));
    m_tvwEvent->setHeaderHidden(true);
    m_txtDescription->setObjectName(QStringLiteral("txtDescription"));
    m_txtDescription->setReadOnly(true);
    auto *collapse = new QPushButton(QStringLiteral("Co&llapse"), this);
    collapse->setObjectName(QStringLiteral("cmdCollapse"));
    collapse->setToolTip(QStringLiteral("Collapse All"));
    collapse->setAutoDefault(false);
    auto *ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setAutoDefault(false);
    auto *help = new QPushButton(QStringLiteral("&Help"), this);
    help->setObjectName(QStringLiteral("cmdHelp"));
    help->setAutoDefault(false);

    auto *grid = new QGridLayout(this);
    grid->addWidget(m_tvwEvent, 0, 0);
    grid->addWidget(collapse, 0, 1, Qt::AlignTop);
    grid->addWidget(m_txtDescription, 1, 0, 1, 2);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    buttons->addWidget(help);
    grid->addLayout(buttons, 2, 0, 1, 2);

    connect(m_tvwEvent, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        m_model.tvwEvent_NodeClick(RuleTreeWidget::nodeOf(item));
        m_txtDescription->setPlainText(m_model.screen().txtDescription);
    });
    connect(collapse, &QPushButton::clicked, this, [this] {
        m_model.cmdCollapse_Click();
        m_tvwEvent->collapseAll();
    });
    connect(ok, &QPushButton::clicked, this, [this] {
        if (m_model.cmdOK_Click())
            accept();
    });
    connect(cancel, &QPushButton::clicked, this, &frmParserEvent::reject);
    const auto showHelp = [] {
        UserInterface::current().showHelp(
            HelpCommand::Topic, HelpTopics::topicPath(HelpTopics::EventPicker), 0);
    };
    connect(help, &QPushButton::clicked, this, showHelp);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, showHelp);
}

int frmParserEvent::exec()
{
    m_model.Load();
    RuleTreeWidget::fill(m_tvwEvent, m_model.screen().tvwEvent, false);
    return QDialog::exec();
}

void frmParserEvent::reject()
{
    m_model.cmdCancel_Click();
    QDialog::reject();
}
