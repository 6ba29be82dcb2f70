#include "gui/dialogs/frmNamingConvention.h"

#include "gui/dialogs/frmObjectProperty.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/NamingConvention.h"
#include "vocabulary/ObjectListType.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>

namespace {

using Form = NamingConventionForm;

QLabel *wrapped(QLabel *label)
{
    label->setWordWrap(true);
    return label;
}

} // namespace

frmNamingConvention::frmNamingConvention(QWidget *parent)
    : frmConventionBase(parent,
                        m_model,
                        QString::fromLatin1(NamingConventionForm::caption),
                        QStringLiteral("::/NamingConvention.htm"))
{
    setObjectName(QStringLiteral("frmNamingConvention"));
    buildCommon();
}

void frmNamingConvention::setConvention(const std::shared_ptr<IRule> &rule)
{
    m_model.setConvention(std::dynamic_pointer_cast<NamingConvention>(rule));
}

void frmNamingConvention::buildTabs()
{
    buildRuleTab();
    buildConditionTab();
    buildSectionTab(Form::Prefix);
    buildBodyTab();
    buildSectionTab(Form::Suffix);
    addViolationTab(QStringLiteral("Violation"), false, 5, 0);
}

void frmNamingConvention::buildRuleTab()
{
    QWidget *panel = addTab(QStringLiteral("Rule"));
    auto *grid = new QGridLayout(panel);
    int row = addRuleFields(grid, 0);
    grid->addWidget(
        wrapped(
            label(QStringLiteral("lblObjectHelp"),
                  QStringLiteral(
                      "Select the object and property to which this naming convention applies."),
                  nullptr,
                  panel)),
        row++,
        0,
        1,
        3);
    m_imgcboObject = comboBox(QStringLiteral("imgcboObject"), panel);
    m_imgcboProperty = comboBox(QStringLiteral("imgcboProperty"), panel);
    m_chkCaseSensitive
        = checkBox(QStringLiteral("chkCaseSensitive"), QStringLiteral("Case &Sensitive"), panel);
    grid->addWidget(
        label(QStringLiteral("lblObject"), QStringLiteral("&Object"), m_imgcboObject, panel),
        row,
        0);
    grid->addWidget(m_imgcboObject, row++, 1);
    grid->addWidget(
        label(QStringLiteral("lblProperty"), QStringLiteral("P&roperty"), m_imgcboProperty, panel),
        row,
        0);
    grid->addWidget(m_imgcboProperty, row++, 1);
    grid->addWidget(m_chkCaseSensitive, row++, 1);
    grid->setRowStretch(row, 1);

    connect(m_imgcboObject, &QComboBox::currentIndexChanged, this, [this](int i) {
        m_model.screen().imgcboObject.setCurrentIndex(i);
        m_model.imgcboObject_Click();
        refresh();
    });
    connect(m_imgcboProperty, &QComboBox::currentIndexChanged, this, [this](int i) {
        m_model.screen().imgcboProperty.setCurrentIndex(i);
        m_model.imgcboProperty_Click();
    });
    connect(m_chkCaseSensitive, &QCheckBox::toggled, this, [this](bool on) {
        m_model.screen().chkCaseSensitive = on;
    });
}

void frmNamingConvention::buildConditionTab()
{
    QWidget *panel = addTab(QStringLiteral("Condition"));
    auto *grid = new QGridLayout(panel);
    grid->addWidget(
        wrapped(label(
            QStringLiteral("lblConditionHelp"),
            QStringLiteral("Enter a condition to match the criteria appropriate to this naming "
                           "convention. If no condition is specified then the naming convention "
                           "will be applied automatically."),
            nullptr,
            panel)),
        0,
        0,
        1,
        2);
    m_txtCondition = textEdit(QStringLiteral("txtCondition"), panel);
    m_txtCondition->setMaximumHeight(QWIDGETSIZE_MAX);
    m_txtCondition->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_txtCondition->viewport()->installEventFilter(this);
    QPushButton *edit = button(QStringLiteral("cmdEdit"), QStringLiteral("&Edit..."), panel);
    m_cmdDelete = button(QStringLiteral("cmdDelete"), QStringLiteral("De&lete"), panel);
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(edit);
    buttons->addWidget(m_cmdDelete);
    buttons->addStretch();
    grid->addWidget(m_txtCondition, 1, 0);
    grid->addLayout(buttons, 1, 1);
    m_txtExclusionList = lineEdit(QStringLiteral("txtExclusionList"), panel);
    grid->addWidget(
        wrapped(label(QStringLiteral("lblExclusionList"),
                      QStringLiteral("&Exclusion List: Use semicolons ( ; ) to separate names to "
                                     "automatically ignore for this rule."),
                      m_txtExclusionList,
                      panel)),
        2,
        0,
        1,
        2);
    grid->addWidget(m_txtExclusionList, 3, 0, 1, 2);

    connect(m_txtCondition, &QPlainTextEdit::textChanged, this, [this] {
        m_model.screen().txtCondition = m_txtCondition->toPlainText();
        m_cmdDelete->setEnabled(m_model.cmdDeleteEnabled());
    });
    connect(edit, &QPushButton::clicked, this, &frmNamingConvention::editCondition);
    connect(m_cmdDelete, &QPushButton::clicked, this, [this] {
        m_model.cmdDelete_Click();
        refresh();
    });
    connect(m_txtExclusionList, &QLineEdit::textChanged, this, [this](const QString &t) {
        m_model.screen().txtExclusionList = t;
    });
}

void frmNamingConvention::buildSectionTab(Form::Part part)
{
    const bool prefix = part == Form::Prefix;
    const QString name = prefix ? QStringLiteral("Prefix") : QStringLiteral("Suffix");
    SectionWidgets &w = prefix ? m_prefix : m_suffix;
    QWidget *panel = addTab(name);
    auto *grid = new QGridLayout(panel);
    w.active
        = checkBox(QStringLiteral("chk") + name + QStringLiteral("Active"),
                   prefix ? QStringLiteral("&Prefix Active") : QStringLiteral("&Suffix Active"),
                   panel);
    grid->addWidget(w.active, 0, 0, 1, 4);
    w.labels << wrapped(label(
        QStringLiteral("lbl") + name + QStringLiteral("Help"),
        QStringLiteral("Select the constituent items used to construct the ") + name.toLower()
            + QStringLiteral(" for the naming convention applicable to this object / property."),
        nullptr,
        panel));
    grid->addWidget(w.labels.back(), 1, 0, 1, 4);
    w.labels << label(QStringLiteral("lbl") + name + QStringLiteral("Head"),
                      QStringLiteral("Literal / Pattern / Workfield Name"),
                      nullptr,
                      panel);
    grid->addWidget(w.labels.back(), 2, 2);
    for (int i = 0; i < 4; ++i) {
        const QString index = QStringLiteral("_") + QString::number(i);
        w.kinds[std::size_t(i)] = comboBox(QStringLiteral("cbo") + name + index, panel);
        w.texts[std::size_t(i)] = lineEdit(QStringLiteral("txt") + name + index, panel);
        w.actions[std::size_t(i)]
            = button(QStringLiteral("cmd") + name + QStringLiteral("Action") + index,
                     QStringLiteral("..."),
                     panel);
        const QString caption
            = i == 0 ? (prefix ? QStringLiteral("Begins with") : QStringLiteral("Ends with"))
                     : (prefix ? QStringLiteral("Followed by") : QStringLiteral("Preceded by"));
        w.labels << label(
            QStringLiteral("lbl") + name + index, caption, w.kinds[std::size_t(i)], panel);
        grid->addWidget(w.labels.back(), 3 + i, 0);
        grid->addWidget(w.kinds[std::size_t(i)], 3 + i, 1);
        grid->addWidget(w.texts[std::size_t(i)], 3 + i, 2);
        grid->addWidget(w.actions[std::size_t(i)], 3 + i, 3);

        connect(w.kinds[std::size_t(i)],
                &QComboBox::currentIndexChanged,
                this,
                [this, part, i](int row) {
                    m_model.section(part).rows[std::size_t(i)].kind.setCurrentIndex(row);
                    m_model.cboItem_Click(part, i);
                    refresh();
                });
        connect(w.texts[std::size_t(i)],
                &QLineEdit::textChanged,
                this,
                [this, part, i](const QString &t) {
                    m_model.section(part).rows[std::size_t(i)].text = t;
                });
        connect(w.actions[std::size_t(i)], &QPushButton::clicked, this, [this, part, i] {
            runItemAction(part, i);
        });
    }
    w.advice = textEdit(QStringLiteral("txt") + name + QStringLiteral("Advice"), panel);
    w.labels << label(QStringLiteral("lbl") + name + QStringLiteral("Advice"),
                      QStringLiteral("&Advice"),
                      w.advice,
                      panel);
    grid->addWidget(w.labels.back(), 7, 0, Qt::AlignTop);
    grid->addWidget(w.advice, 7, 1, 1, 2);
    const int pickerIndex = prefix ? 1 : 4;
    w.picker = button(QStringLiteral("cmdObjectProperty_") + QString::number(pickerIndex),
                      QStringLiteral("..."),
                      panel);
    w.picker->setToolTip(QStringLiteral("Insert Object Property"));
    grid->addWidget(w.picker, 7, 3, Qt::AlignTop);
    grid->setRowStretch(8, 1);

    connect(w.active, &QCheckBox::toggled, this, [this, prefix](bool on) {
        if (prefix) {
            m_model.screen().chkPrefixActive = on;
            m_model.chkPrefixActive_Click();
        } else {
            m_model.screen().chkSuffixActive = on;
            m_model.chkSuffixActive_Click();
        }
        refresh();
    });
    connect(w.advice, &QPlainTextEdit::textChanged, this, [this, part, &w] {
        m_model.section(part).advice = w.advice->toPlainText();
    });
    connect(w.picker, &QPushButton::clicked, this, [this, pickerIndex] {
        pickObjectProperty(pickerIndex);
    });
}

void frmNamingConvention::buildBodyTab()
{
    QWidget *panel = addTab(QStringLiteral("Body"));
    auto *grid = new QGridLayout(panel);
    m_chkBodyActive
        = checkBox(QStringLiteral("chkBodyActive"), QStringLiteral("&Body Active"), panel);
    grid->addWidget(m_chkBodyActive, 0, 0, 1, 4);
    QLabel *help = wrapped(label(
        QStringLiteral("lblBodyHelp"),
        QStringLiteral("Select the allowable characters and limits used to construct the body "
                       "for the naming convention applicable to this object / property."),
        nullptr,
        panel));
    grid->addWidget(help, 1, 0, 1, 4);
    m_bodyControls << help;
    static const char *const captions[]
        = {"Allowable &Pattern", "&Minimum Length", "Maximum &Length"};
    for (int i = 0; i < 3; ++i) {
        QLineEdit *field = lineEdit(QStringLiteral("txtBody_") + QString::number(i), panel);
        m_txtBody[std::size_t(i)] = field;
        if (i > 0)
            digitsOnly(field);
        QLabel *caption = label(QStringLiteral("lblBody_") + QString::number(i),
                                QString::fromLatin1(captions[i]),
                                field,
                                panel);
        grid->addWidget(caption, 2 + i, 0);
        grid->addWidget(field, 2 + i, 1);
        m_bodyControls << caption << field;
        connect(field, &QLineEdit::textChanged, this, [this, i](const QString &t) {
            m_model.screen().txtBody[std::size_t(i)] = t;
        });
    }
    QPushButton *pattern = button(QStringLiteral("cmdBodyPattern"), QStringLiteral("..."), panel);
    pattern->setToolTip(QStringLiteral("Insert Pattern"));
    QPushButton *patternPicker
        = button(QStringLiteral("cmdObjectProperty_2"), QStringLiteral("%"), panel);
    patternPicker->setToolTip(QStringLiteral("Insert Object Property"));
    grid->addWidget(pattern, 2, 2);
    grid->addWidget(patternPicker, 2, 3);
    m_txtBodyAdvice = textEdit(QStringLiteral("txtBodyAdvice"), panel);
    QLabel *adviceLabel
        = label(QStringLiteral("lblBodyAdvice"), QStringLiteral("&Advice"), m_txtBodyAdvice, panel);
    QPushButton *advicePicker
        = button(QStringLiteral("cmdObjectProperty_3"), QStringLiteral("..."), panel);
    advicePicker->setToolTip(QStringLiteral("Insert Object Property"));
    grid->addWidget(adviceLabel, 5, 0, Qt::AlignTop);
    grid->addWidget(m_txtBodyAdvice, 5, 1, 1, 2);
    grid->addWidget(advicePicker, 5, 3, Qt::AlignTop);
    grid->setRowStretch(6, 1);
    m_bodyControls << pattern << patternPicker << adviceLabel << m_txtBodyAdvice << advicePicker;

    connect(m_chkBodyActive, &QCheckBox::toggled, this, [this](bool on) {
        m_model.screen().chkBodyActive = on;
        m_model.chkBodyActive_Click();
        refresh();
    });
    connect(pattern, &QPushButton::clicked, this, [this] {
        runPatternTest(m_model.screen().txtBody[0]);
        refresh();
    });
    connect(patternPicker, &QPushButton::clicked, this, [this] { pickObjectProperty(2); });
    connect(advicePicker, &QPushButton::clicked, this, [this] { pickObjectProperty(3); });
    connect(m_txtBodyAdvice, &QPlainTextEdit::textChanged, this, [this] {
        m_model.screen().txtBodyAdvice = m_txtBodyAdvice->toPlainText();
    });
}

void frmNamingConvention::editCondition()
{
    frmConventionBase::editCondition(NamingConventionForm::conditionRuleType,
                                     m_model.screen().txtCondition);
    refresh();
}

bool frmNamingConvention::eventFilter(QObject *watched, QEvent *event)
{
    if (m_txtCondition && watched == m_txtCondition->viewport()
        && event->type() == QEvent::MouseButtonDblClick) {
        editCondition();
        return true;
    }
    return frmConventionBase::eventFilter(watched, event);
}

void frmNamingConvention::runItemAction(Form::Part part, int index)
{
    QString &text = m_model.section(part).rows[std::size_t(index)].text;
    if (m_model.ActionPicksWorkfield(part, index)) {
        frmObjectProperty picker(this);
        picker.setSelectionMode(ObjectPropertyForm::WorkfieldMode);
        picker.setObjectListType(ObjectListType::NamingConvention);
        picker.setWorkfields(gobjAdminData ? &gobjAdminData->Workfields() : nullptr);
        picker.exec();
        if (!picker.Cancelled())
            text = Form::StripPercent(picker.UserSelection());
    } else {
        runPatternTest(text);
    }
    refresh();
}

void frmNamingConvention::refresh()
{
    frmConventionBase::refresh();
    const Form::Screen &s = m_model.screen();
    showChoices(m_imgcboObject, s.imgcboObject, m_objectRevision);
    showChoices(m_imgcboProperty, s.imgcboProperty, m_propertyRevision);
    {
        const QSignalBlocker block(m_chkCaseSensitive);
        m_chkCaseSensitive->setChecked(s.chkCaseSensitive);
    }
    setText(m_txtCondition, s.txtCondition);
    m_cmdDelete->setEnabled(m_model.cmdDeleteEnabled());
    setText(m_txtExclusionList, s.txtExclusionList);
    refreshSection(Form::Prefix);
    refreshSection(Form::Suffix);
    {
        const QSignalBlocker block(m_chkBodyActive);
        m_chkBodyActive->setChecked(s.chkBodyActive);
    }
    for (QWidget *control : m_bodyControls)
        control->setEnabled(s.bodyEnabled);
    for (std::size_t i = 0; i < 3; ++i)
        setText(m_txtBody[i], s.txtBody[i]);
    setText(m_txtBodyAdvice, s.txtBodyAdvice);
}

void frmNamingConvention::refreshSection(Form::Part part)
{
    const bool prefix = part == Form::Prefix;
    SectionWidgets &w = prefix ? m_prefix : m_suffix;
    const Form::ItemSection &section = m_model.section(part);
    {
        const QSignalBlocker block(w.active);
        w.active->setChecked(prefix ? m_model.screen().chkPrefixActive
                                    : m_model.screen().chkSuffixActive);
    }
    for (QLabel *l : w.labels)
        l->setEnabled(section.enabled);
    for (std::size_t i = 0; i < 4; ++i) {
        const Form::ItemRow &row = section.rows[i];
        showChoices(w.kinds[i], row.kind, w.revisions[i]);
        w.kinds[i]->setEnabled(row.kindEnabled);
        setText(w.texts[i], row.text);
        w.texts[i]->setEnabled(row.textEnabled);
        w.texts[i]->setReadOnly(row.textLocked);
        // A box open only to the picker looks like a closed one.
        w.texts[i]->setStyleSheet(row.textGrey && row.textEnabled
                                      ? QStringLiteral("QLineEdit { background: palette(window); }")
                                      : QString());
        w.actions[i]->setEnabled(row.actionEnabled);
        w.actions[i]->setToolTip(row.actionToolTip);
    }
    w.advice->setEnabled(section.enabled);
    setText(w.advice, section.advice);
    w.picker->setEnabled(section.enabled);
}

void frmNamingConvention::pickObjectProperty(int index)
{
    frmObjectProperty picker(this);
    picker.setSelectionMode(ObjectPropertyForm::PropertyOrWorkfieldMode);
    picker.setObjectListType(ObjectListType::Everything);
    picker.setWorkfields(gobjAdminData ? &gobjAdminData->Workfields() : nullptr);
    picker.exec();
    if (picker.Cancelled())
        return;
    InsertText(findChild<QWidget *>(Form::ObjectPropertyTarget(index)), picker.UserSelection());
}
