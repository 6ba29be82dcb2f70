#include "gui/dialogs/frmCodingConvention.h"

#include "gui/dialogs/RuleTreeWidget.h"
#include "gui/dialogs/frmObjectProperty.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/CodingConvention.h"
#include "vocabulary/ObjectListType.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

frmCodingConvention::frmCodingConvention(QWidget *parent)
    : frmConventionBase(parent,
                        m_model,
                        QString::fromLatin1(CodingConventionForm::caption),
                        QStringLiteral("::/CodingConvention.htm"))
{
    setObjectName(QStringLiteral("frmCodingConvention"));
    buildCommon();
}

void frmCodingConvention::setConvention(const std::shared_ptr<IRule> &rule)
{
    m_model.setConvention(std::dynamic_pointer_cast<CodingConvention>(rule));
}

void frmCodingConvention::buildTabs()
{
    QWidget *rulePanel = addTab(QStringLiteral("Rule"));
    auto *grid = new QGridLayout(rulePanel);
    addRuleFields(grid, 0);
    grid->setRowStretch(3, 1);
    buildEventTab();
    buildConditionTab();
    addViolationTab(QStringLiteral("Violation"), true, 0, 1);
}

void frmCodingConvention::buildEventTab()
{
    QWidget *panel = addTab(QStringLiteral("Event"));
    auto *layout = new QVBoxLayout(panel);
    m_fraEvent = new QGroupBox(panel);
    m_fraEvent->setObjectName(QStringLiteral("fraEvent"));
    auto *frame = new QGridLayout(m_fraEvent);
    m_tvwEvent = new QTreeWidget(m_fraEvent);
    m_tvwEvent->setObjectName(QStringLiteral("tvwEvent"));
    m_tvwEvent->setHeaderHidden(true);
    m_imgcboEvent = comboBox(QStringLiteral("imgcboEvent"), m_fraEvent);
    auto *buttons = new QVBoxLayout;
    for (int i = 0; i < 3; ++i) {
        static const char *const texts[] = {"&Expand", "Select &None", "C&ollapse"};
        QPushButton *b = button(QStringLiteral("cmdCollapse_") + QString::number(i),
                                QString::fromLatin1(texts[i]),
                                m_fraEvent);
        b->setToolTip(CodingConventionForm::CollapseToolTip(i));
        connect(b, &QPushButton::clicked, this, [this, i] {
            m_model.cmdCollapse_Click(i);
            RuleTreeWidget::update(m_tvwEvent, m_model.screen().tvwEvent);
        });
        m_cmdCollapse << b;
        buttons->addWidget(b);
    }
    buttons->addStretch();
    m_lblEventHelp = new QLabel(m_fraEvent);
    m_lblEventHelp->setObjectName(QStringLiteral("lblEventHelp"));
    m_lblEventHelp->setWordWrap(true);
    m_lblEventHelp->setTextFormat(Qt::PlainText);
    frame->addWidget(m_imgcboEvent, 0, 0);
    frame->addWidget(m_tvwEvent, 1, 0);
    frame->addLayout(buttons, 1, 1);
    frame->addWidget(m_lblEventHelp, 2, 0, 1, 2);
    layout->addWidget(m_fraEvent, 1);

    m_chkPending
        = checkBox(QStringLiteral("chkPending"), QStringLiteral("&Pending Violation"), panel);
    layout->addWidget(m_chkPending);
    m_fraPendingViolation = new QGroupBox(panel);
    m_fraPendingViolation->setObjectName(QStringLiteral("fraPendingViolation"));
    auto *pending = new QVBoxLayout(m_fraPendingViolation);
    m_imgcboPending = comboBox(QStringLiteral("imgcboPending"), m_fraPendingViolation);
    m_lblPending = label(QStringLiteral("lblPending"),
                         QString::fromLatin1(CodingConventionForm::pendingHelp),
                         m_imgcboPending,
                         m_fraPendingViolation);
    m_lblPending->setWordWrap(true);
    pending->addWidget(m_lblPending);
    pending->addWidget(m_imgcboPending);
    layout->addWidget(m_fraPendingViolation);

    connect(m_tvwEvent, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        m_model.tvwEvent_NodeClick(RuleTreeWidget::nodeOf(item));
        m_lblEventHelp->setText(m_model.screen().lblEventHelp);
    });
    connect(m_tvwEvent, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item) {
        m_model.screen().tvwEvent.setChecked(RuleTreeWidget::nodeOf(item),
                                             item->checkState(0) == Qt::Checked);
    });
    connect(m_tvwEvent, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem *item) {
        m_model.screen().tvwEvent.setExpanded(RuleTreeWidget::nodeOf(item), true);
    });
    connect(m_tvwEvent, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem *item) {
        m_model.screen().tvwEvent.setExpanded(RuleTreeWidget::nodeOf(item), false);
    });
    connect(m_imgcboEvent, &QComboBox::currentIndexChanged, this, [this](int i) {
        m_model.screen().imgcboEvent.setCurrentIndex(i);
        m_model.imgcboEvent_Click();
        m_lblEventHelp->setText(m_model.screen().lblEventHelp);
    });
    connect(m_imgcboPending, &QComboBox::currentIndexChanged, this, [this](int i) {
        m_model.screen().imgcboPending.setCurrentIndex(i);
    });
    connect(m_chkPending, &QCheckBox::toggled, this, [this](bool on) {
        m_model.screen().chkPending = on;
        m_model.chkPending_Click();
        refresh();
    });
}

void frmCodingConvention::buildConditionTab()
{
    QWidget *panel = addTab(QStringLiteral("Condition"));
    auto *layout = new QGridLayout(panel);
    auto *help = new QLabel(QString::fromLatin1(CodingConventionForm::conditionHelp), panel);
    help->setObjectName(QStringLiteral("lblConditionHelp"));
    help->setWordWrap(true);
    m_txtCondition = textEdit(QStringLiteral("txtCondition"), panel);
    m_txtCondition->setMaximumHeight(QWIDGETSIZE_MAX);
    m_txtCondition->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_txtCondition->viewport()->installEventFilter(this);
    QPushButton *edit = button(QStringLiteral("cmdEdit"), QStringLiteral("&Edit..."), panel);
    layout->addWidget(help, 0, 0, 1, 2);
    layout->addWidget(m_txtCondition, 1, 0);
    layout->addWidget(edit, 1, 1, Qt::AlignTop);
    connect(m_txtCondition, &QPlainTextEdit::textChanged, this, [this] {
        m_model.screen().txtCondition = m_txtCondition->toPlainText();
    });
    connect(edit, &QPushButton::clicked, this, [this] {
        editCondition(CodingConventionForm::conditionRuleType, m_model.screen().txtCondition);
        refresh();
    });
}

bool frmCodingConvention::eventFilter(QObject *watched, QEvent *event)
{
    if (m_txtCondition && watched == m_txtCondition->viewport()
        && event->type() == QEvent::MouseButtonDblClick) {
        editCondition(CodingConventionForm::conditionRuleType, m_model.screen().txtCondition);
        refresh();
        return true;
    }
    return frmConventionBase::eventFilter(watched, event);
}

void frmCodingConvention::refresh()
{
    frmConventionBase::refresh();
    const CodingConventionForm::Screen &s = m_model.screen();
    m_fraEvent->setTitle(s.fraEvent);
    if (m_treeRevision != s.tvwEvent.revision()) {
        m_treeRevision = s.tvwEvent.revision();
        RuleTreeWidget::fill(m_tvwEvent, s.tvwEvent, true);
    } else {
        RuleTreeWidget::update(m_tvwEvent, s.tvwEvent);
    }
    m_tvwEvent->setVisible(s.tvwEventVisible);
    for (QPushButton *b : m_cmdCollapse)
        b->setVisible(s.tvwEventVisible);
    m_imgcboEvent->setVisible(!s.tvwEventVisible);
    m_fraPendingViolation->setVisible(!s.tvwEventVisible);
    showChoices(m_imgcboEvent, s.imgcboEvent, m_eventRevision);
    showChoices(m_imgcboPending, s.imgcboPending, m_pendingRevision);
    m_lblPending->setEnabled(s.imgcboPendingEnabled);
    m_imgcboPending->setEnabled(s.imgcboPendingEnabled);
    m_lblEventHelp->setText(s.lblEventHelp);
    {
        const QSignalBlocker block(m_chkPending);
        m_chkPending->setChecked(s.chkPending);
    }
    setText(m_txtCondition, s.txtCondition);
}

void frmCodingConvention::pickObjectProperty(int index)
{
    frmObjectProperty picker(this);
    picker.setSelectionMode(ObjectPropertyForm::PropertyOrWorkfieldMode);
    picker.setObjectListType(ObjectListType::CodingConvention);
    picker.setWorkfields(gobjAdminData ? &gobjAdminData->Workfields() : nullptr);
    picker.exec();
    if (picker.Cancelled())
        return;
    const QString field
        = index == 0 ? QStringLiteral("txtVDescription") : QStringLiteral("txtVAdvice");
    InsertText(findChild<QWidget *>(field), picker.UserSelection());
}
