#include "gui/dialogs/frmUnauthorisedKeyword.h"

#include "gui/dialogs/frmObjectProperty.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "vocabulary/ObjectListType.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

frmUnauthorisedKeyword::frmUnauthorisedKeyword(QWidget *parent)
    : frmConventionBase(parent,
                        m_model,
                        QString::fromLatin1(UnauthorisedKeywordForm::caption),
                        QStringLiteral("::/UnauthorisedKeyword.htm"))
{
    setObjectName(QStringLiteral("frmUnauthorisedKeyword"));
    buildCommon();
}

void frmUnauthorisedKeyword::setConvention(const std::shared_ptr<IRule> &rule)
{
    m_model.setConvention(std::dynamic_pointer_cast<UnauthorisedKeyword>(rule));
}

void frmUnauthorisedKeyword::buildTabs()
{
    QWidget *rulePanel = addTab(QStringLiteral("Rule"));
    auto *ruleGrid = new QGridLayout(rulePanel);
    addRuleFields(ruleGrid, 0);
    ruleGrid->setRowStretch(3, 1);

    QWidget *panel = addTab(QStringLiteral("Condition"));
    auto *grid = new QGridLayout(panel);
    m_txtCondition = lineEdit(QStringLiteral("txtCondition"), panel);
    QPushButton *test = button(QStringLiteral("cmdTest"), QStringLiteral("&Test..."), panel);
    grid->addWidget(label(QStringLiteral("lblCondition"),
                          QStringLiteral("&Enter a pattern to match the unauthorised keyword(s)."),
                          m_txtCondition,
                          panel),
                    0,
                    0,
                    1,
                    2);
    grid->addWidget(m_txtCondition, 1, 0);
    grid->addWidget(test, 1, 1);
    auto *events = new QGroupBox(QStringLiteral("&Parser Events"), panel);
    events->setObjectName(QStringLiteral("fraParserEvents"));
    auto *eventsLayout = new QVBoxLayout(events);
    auto *help = new QLabel(QString::fromLatin1(UnauthorisedKeywordForm::parserEventsHelp), events);
    help->setObjectName(QStringLiteral("lblParserEvents"));
    help->setWordWrap(true);
    eventsLayout->addWidget(help);
    m_chkDeclaration = checkBox(
        QStringLiteral("chkDeclaration"), QStringLiteral("&Declarations Section"), events);
    m_chkProcedureDecl = checkBox(
        QStringLiteral("chkProcedureDecl"), QStringLiteral("&Procedure Declaration"), events);
    m_chkProcedureBody
        = checkBox(QStringLiteral("chkProcedureBody"), QStringLiteral("Procedure &Body"), events);
    eventsLayout->addWidget(m_chkDeclaration);
    eventsLayout->addWidget(m_chkProcedureDecl);
    eventsLayout->addWidget(m_chkProcedureBody);
    grid->addWidget(events, 2, 0, 1, 2);
    grid->setRowStretch(3, 1);

    connect(m_txtCondition, &QLineEdit::textChanged, this, [this](const QString &t) {
        m_model.screen().txtCondition = t;
    });
    connect(test, &QPushButton::clicked, this, [this] {
        runPatternTest(m_model.screen().txtCondition);
        refresh();
    });
    connect(m_chkDeclaration, &QCheckBox::toggled, this, [this](bool on) {
        m_model.screen().chkDeclaration = on;
    });
    connect(m_chkProcedureDecl, &QCheckBox::toggled, this, [this](bool on) {
        m_model.screen().chkProcedureDecl = on;
    });
    connect(m_chkProcedureBody, &QCheckBox::toggled, this, [this](bool on) {
        m_model.screen().chkProcedureBody = on;
    });

    addViolationTab(QStringLiteral("Violation"), true, 0, 1);
}

void frmUnauthorisedKeyword::refresh()
{
    frmConventionBase::refresh();
    const UnauthorisedKeywordForm::Screen &s = m_model.screen();
    setText(m_txtCondition, s.txtCondition);
    for (auto [box, on] : {std::pair{m_chkDeclaration, s.chkDeclaration},
                           std::pair{m_chkProcedureDecl, s.chkProcedureDecl},
                           std::pair{m_chkProcedureBody, s.chkProcedureBody}}) {
        const QSignalBlocker block(box);
        box->setChecked(on);
    }
}

void frmUnauthorisedKeyword::pickObjectProperty(int index)
{
    frmObjectProperty picker(this);
    picker.setSelectionMode(ObjectPropertyForm::PropertyMode);
    picker.setObjectListType(ObjectListType::CodingConvention);
    picker.exec();
    if (picker.Cancelled())
        return;
    const QString field
        = index == 0 ? QStringLiteral("txtVDescription") : QStringLiteral("txtVAdvice");
    InsertText(findChild<QWidget *>(field), picker.UserSelection());
}
