#include "gui/dialogs/frmPatternTest.h"

#include "gui/dialogs/DialogSupport.h"

#include "platform/UserInterface.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>

namespace {
const QString helpTopic = QStringLiteral("::/PatternTest.htm");
}

frmPatternTest::frmPatternTest(QWidget *parent)
    : QDialog(parent)
    , m_txtPattern(new QLineEdit(this))
    , m_txtText(new QPlainTextEdit(this))
    , m_chkCaseSensitive(new QCheckBox(QStringLiteral("Case Sensitive"), this))
    , m_cmdTest(new QPushButton(QStringLiteral("&Test Pattern"), this))
{
    setObjectName(QStringLiteral("frmPatternTest"));
    setWindowTitle(QString::fromLatin1(PatternTestForm::caption));
    m_txtPattern->setObjectName(QStringLiteral("txtPattern"));
    m_txtText->setObjectName(QStringLiteral("txtText"));
    m_txtText->setTabChangesFocus(true);
    m_chkCaseSensitive->setObjectName(QStringLiteral("chkCaseSensitive"));
    m_cmdTest->setObjectName(QStringLiteral("cmdTest"));
    m_cmdTest->setAutoDefault(false);
    auto *ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setAutoDefault(false);
    auto *help = new QPushButton(QStringLiteral("&Help"), this);
    help->setObjectName(QStringLiteral("cmdHelp"));
    help->setAutoDefault(false);

    auto *patternLabel = new QLabel(QStringLiteral("&Pattern"), this);
    patternLabel->setBuddy(m_txtPattern);
    auto *textLabel = new QLabel(QStringLiteral("&Enter text to test the pattern against"), this);
    textLabel->setBuddy(m_txtText);
    auto *grid = new QGridLayout(this);
    grid->addWidget(patternLabel, 0, 0);
    grid->addWidget(m_txtPattern, 1, 0, 1, 2);
    grid->addWidget(textLabel, 2, 0);
    grid->addWidget(m_txtText, 3, 0, 1, 2);
    grid->addWidget(m_chkCaseSensitive, 4, 0);
    grid->addWidget(m_cmdTest, 4, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    buttons->addWidget(help);
    grid->addLayout(buttons, 5, 0, 1, 2);

    connect(m_txtPattern, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_model.screen().txtPattern = text;
        enableTest();
    });
    connect(m_txtText, &QPlainTextEdit::textChanged, this, [this] {
        m_model.screen().txtText = m_txtText->toPlainText();
    });
    connect(m_chkCaseSensitive, &QCheckBox::toggled, this, [this](bool on) {
        m_model.screen().chkCaseSensitive = on;
    });
    connect(m_cmdTest, &QPushButton::clicked, this, [this] { m_model.cmdTest_Click(); });
    connect(ok, &QPushButton::clicked, this, [this] {
        m_model.cmdOK_Click();
        accept();
    });
    connect(cancel, &QPushButton::clicked, this, &frmPatternTest::reject);
    const auto showHelp
        = [] { UserInterface::current().showHelp(HelpCommand::Topic, helpTopic, 0); };
    connect(help, &QPushButton::clicked, this, showHelp);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, showHelp);
    m_txtPattern->installEventFilter(this);
    m_txtText->installEventFilter(this);
    enableTest();
}

void frmPatternTest::setPattern(const QString &pattern)
{
    m_model.setPattern(pattern);
    m_model.Load();
    m_txtPattern->setText(pattern);
    enableTest();
}

void frmPatternTest::reject()
{
    m_model.cmdCancel_Click();
    QDialog::reject();
}

void frmPatternTest::enableTest()
{
    m_cmdTest->setEnabled(m_model.cmdTestEnabled());
}

bool frmPatternTest::eventFilter(QObject *watched, QEvent *event)
{
    if (DialogSupport::tabbedInto(event)) {
        if (watched == m_txtPattern)
            QTimer::singleShot(0, m_txtPattern, &QLineEdit::selectAll);
        else if (watched == m_txtText)
            QTimer::singleShot(0, m_txtText, &QPlainTextEdit::selectAll);
    }
    return QDialog::eventFilter(watched, event);
}
