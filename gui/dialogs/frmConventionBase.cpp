#include "gui/dialogs/frmConventionBase.h"

#include "editors/ChoiceList.h"
#include "editors/ConventionFormBase.h"
#include "editors/FormFault.h"
#include "gui/dialogs/DialogSupport.h"
#include "gui/dialogs/frmPatternTest.h"
#include "gui/editor/frmRuleEditor.h"
#include "gui/window/Images.h"
#include "platform/UserInterface.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextDocument>
#include <QTimer>
#include <QVBoxLayout>

frmConventionBase::frmConventionBase(QWidget *parent,
                                     ConventionFormBase &model,
                                     const QString &caption,
                                     const QString &helpTopic)
    : QDialog(parent)
    , m_model(model)
    , m_helpTopic(helpTopic)
{
    setWindowTitle(caption);
    setModal(true);
}

void frmConventionBase::buildCommon()
{
    auto *layout = new QVBoxLayout(this);
    m_tbsConvention = new QTabWidget(this);
    m_tbsConvention->setObjectName(QStringLiteral("tbsConvention"));
    layout->addWidget(m_tbsConvention);
    buildTabs();

    auto *bottom = new QHBoxLayout;
    m_chkRuleActive
        = checkBox(QStringLiteral("chkRuleActive"), QStringLiteral("Rule &Active"), this);
    connect(m_chkRuleActive, &QCheckBox::toggled, this, [this](bool on) {
        m_model.common().chkRuleActive = on;
    });
    bottom->addWidget(m_chkRuleActive);
    bottom->addStretch();
    QPushButton *ok = button(QStringLiteral("cmdOK"), QStringLiteral("OK"), this);
    QPushButton *cancel = button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"), this);
    QPushButton *help = button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"), this);
    ok->setDefault(true);
    ok->setAutoDefault(true);
    connect(ok, &QPushButton::clicked, this, &frmConventionBase::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &frmConventionBase::reject);
    const auto showHelp
        = [this] { UserInterface::current().showHelp(HelpCommand::Topic, m_helpTopic, 0); };
    connect(help, &QPushButton::clicked, this, showHelp);
    bottom->addWidget(ok);
    bottom->addWidget(cancel);
    bottom->addWidget(help);
    layout->addLayout(bottom);

    auto *f1 = new QShortcut(QKeySequence(Qt::Key_F1), this);
    connect(f1, &QShortcut::activated, this, showHelp);
    auto *ctrlTab = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab), this);
    connect(ctrlTab, &QShortcut::activated, this, &frmConventionBase::nextTab);
}

void frmConventionBase::setContext(const RuleDialogContext &context)
{
    m_model.setContext(context);
}

bool frmConventionBase::Cancelled() const
{
    return m_model.Cancelled();
}

void frmConventionBase::Show()
{
    m_model.Load();
    m_tbsConvention->setCurrentIndex(0);
    refresh();
    // On activation the first tab's title has the focus.
    QTimer::singleShot(0, m_txtTitle, [this] { m_txtTitle->setFocus(); });
    exec();
}

void frmConventionBase::reject()
{
    m_model.cmdCancel_Click();
    QDialog::reject();
}

void frmConventionBase::cmdOK_Click()
{
    if (m_model.cmdOK_Click([this](const FormFault &fault) { moveToFault(fault); }))
        accept();
}

void frmConventionBase::moveToFault(const FormFault &fault)
{
    m_tbsConvention->setCurrentIndex(fault.tab - 1);
    QWidget *field = findChild<QWidget *>(fault.controlName());
    if (!field)
        return;
    field->setFocus();
    // A fault in a condition: the caret goes to it, as in the condition editor.
    auto *text = qobject_cast<QPlainTextEdit *>(field);
    if (text && fault.line > 0) {
        QTextCursor cursor(text->document()->findBlockByNumber(fault.line - 1));
        cursor.movePosition(QTextCursor::Right,
                            QTextCursor::MoveAnchor,
                            qMax(0, qMin(fault.column - 1, cursor.block().length() - 1)));
        text->setTextCursor(cursor);
    }
}

void frmConventionBase::nextTab()
{
    const int count = m_tbsConvention->count();
    if (count > 0)
        m_tbsConvention->setCurrentIndex((m_tbsConvention->currentIndex() + 1) % count);
}

QWidget *frmConventionBase::addTab(const QString &caption)
{
    auto *panel = new QWidget(m_tbsConvention);
    panel->setObjectName(QStringLiteral("picTab_") + QString::number(m_tbsConvention->count()));
    m_tbsConvention->addTab(panel, caption);
    return panel;
}

int frmConventionBase::addRuleFields(QGridLayout *grid, int row)
{
    QWidget *panel = grid->parentWidget();
    m_txtTitle = lineEdit(QStringLiteral("txtTitle"), panel);
    m_txtDescription = textEdit(QStringLiteral("txtDescription"), panel);
    m_cboCategory = comboBox(QStringLiteral("cboCategory"), panel);
    QPushButton *cmdCategory = button(QStringLiteral("cmdCategory"), QStringLiteral("..."), panel);
    cmdCategory->setToolTip(QStringLiteral("Category List"));
    grid->addWidget(
        label(QStringLiteral("lblTitle"), QStringLiteral("&Title"), m_txtTitle, panel), row, 0);
    grid->addWidget(m_txtTitle, row++, 1, 1, 2);
    grid->addWidget(label(QStringLiteral("lblDescription"),
                          QStringLiteral("&Description"),
                          m_txtDescription,
                          panel),
                    row,
                    0,
                    Qt::AlignTop);
    grid->addWidget(m_txtDescription, row++, 1, 1, 2);
    grid->addWidget(
        label(QStringLiteral("lblCategory"), QStringLiteral("&Category"), m_cboCategory, panel),
        row,
        0);
    grid->addWidget(m_cboCategory, row, 1);
    grid->addWidget(cmdCategory, row++, 2);

    connect(m_txtTitle, &QLineEdit::textChanged, this, [this](const QString &t) {
        m_model.common().txtTitle = t;
    });
    connect(m_txtDescription, &QPlainTextEdit::textChanged, this, [this] {
        m_model.common().txtDescription = m_txtDescription->toPlainText();
    });
    connect(m_cboCategory, &QComboBox::currentIndexChanged, this, [this](int i) {
        m_model.common().cboCategory.setCurrentIndex(i);
    });
    connect(cmdCategory, &QPushButton::clicked, this, [this] {
        m_model.cmdCategory_Click();
        refresh();
    });
    return row;
}

void frmConventionBase::addViolationTab(const QString &caption,
                                        bool withAdvice,
                                        int descriptionPicker,
                                        int advicePicker)
{
    QWidget *panel = addTab(caption);
    auto *grid = new QGridLayout(panel);
    m_txtVTitle = lineEdit(QStringLiteral("txtVTitle"), panel);
    m_txtVDescription = textEdit(QStringLiteral("txtVDescription"), panel);
    m_cboSeverity = comboBox(QStringLiteral("cboSeverity"), panel);
    m_imgIcon = new QLabel(panel);
    m_imgIcon->setObjectName(QStringLiteral("imgIcon"));
    m_txtVImpact = lineEdit(QStringLiteral("txtVImpact"), panel);
    digitsOnly(m_txtVImpact);

    int row = 0;
    grid->addWidget(
        label(QStringLiteral("lblVTitle"), QStringLiteral("&Title"), m_txtVTitle, panel), row, 0);
    grid->addWidget(m_txtVTitle, row++, 1, 1, 3);
    grid->addWidget(label(QStringLiteral("lblVDescription"),
                          QStringLiteral("&Description"),
                          m_txtVDescription,
                          panel),
                    row,
                    0,
                    Qt::AlignTop);
    grid->addWidget(m_txtVDescription, row, 1, 1, 3);
    QPushButton *descriptionButton
        = button(QStringLiteral("cmdObjectProperty_") + QString::number(descriptionPicker),
                 QStringLiteral("..."),
                 panel);
    descriptionButton->setToolTip(QStringLiteral("Insert Object Property"));
    grid->addWidget(descriptionButton, row++, 4, Qt::AlignTop);
    connect(descriptionButton, &QPushButton::clicked, this, [this, descriptionPicker] {
        pickObjectProperty(descriptionPicker);
    });
    grid->addWidget(
        label(QStringLiteral("lblSeverity"), QStringLiteral("&Severity"), m_cboSeverity, panel),
        row,
        0);
    grid->addWidget(m_cboSeverity, row, 1);
    grid->addWidget(m_imgIcon, row, 2);
    auto *impactRow = new QHBoxLayout;
    impactRow->addWidget(
        label(QStringLiteral("lblVImpact"), QStringLiteral("&Impact"), m_txtVImpact, panel));
    impactRow->addWidget(m_txtVImpact);
    grid->addLayout(impactRow, row++, 3);
    if (withAdvice) {
        m_txtVAdvice = textEdit(QStringLiteral("txtVAdvice"), panel);
        grid->addWidget(
            label(QStringLiteral("lblVAdvice"), QStringLiteral("&Advice"), m_txtVAdvice, panel),
            row,
            0,
            Qt::AlignTop);
        grid->addWidget(m_txtVAdvice, row, 1, 1, 3);
        QPushButton *adviceButton
            = button(QStringLiteral("cmdObjectProperty_") + QString::number(advicePicker),
                     QStringLiteral("..."),
                     panel);
        adviceButton->setToolTip(QStringLiteral("Insert Object Property"));
        grid->addWidget(adviceButton, row++, 4, Qt::AlignTop);
        connect(adviceButton, &QPushButton::clicked, this, [this, advicePicker] {
            pickObjectProperty(advicePicker);
        });
        connect(m_txtVAdvice, &QPlainTextEdit::textChanged, this, [this] {
            m_model.common().txtVAdvice = m_txtVAdvice->toPlainText();
        });
    }

    connect(m_txtVTitle, &QLineEdit::textChanged, this, [this](const QString &t) {
        m_model.common().txtVTitle = t;
    });
    connect(m_txtVDescription, &QPlainTextEdit::textChanged, this, [this] {
        m_model.common().txtVDescription = m_txtVDescription->toPlainText();
    });
    connect(m_txtVImpact, &QLineEdit::textChanged, this, [this](const QString &t) {
        m_model.common().txtVImpact = t;
    });
    connect(m_cboSeverity, &QComboBox::currentIndexChanged, this, [this](int i) {
        m_model.common().cboSeverity.setCurrentIndex(i);
        m_model.cboSeverity_Click();
        refresh();
    });
}

void frmConventionBase::refresh()
{
    const ConventionFormBase::CommonScreen &s = m_model.common();
    setText(m_txtTitle, s.txtTitle);
    setText(m_txtDescription, s.txtDescription);
    showChoices(m_cboCategory, s.cboCategory, m_categoryRevision);
    setText(m_txtVTitle, s.txtVTitle);
    setText(m_txtVDescription, s.txtVDescription);
    showChoices(m_cboSeverity, s.cboSeverity, m_severityRevision);
    m_imgIcon->setPixmap(Images::severity(s.imgIcon).pixmap(16, 16));
    m_imgIcon->setToolTip(s.cboSeverity.currentText());
    setText(m_txtVImpact, s.txtVImpact);
    if (m_txtVAdvice)
        setText(m_txtVAdvice, s.txtVAdvice);
    const QSignalBlocker block(m_chkRuleActive);
    m_chkRuleActive->setChecked(s.chkRuleActive);
}

void frmConventionBase::fillCombo(QComboBox *combo, const ChoiceList &choices)
{
    combo->clear();
    for (int i = 0; i < choices.count(); ++i) {
        const ChoiceList::Entry &e = choices.entry(i);
        // Indentation draws the tree-like lists of events and objects; their pictures are keys
        // of the event tree's image list.
        combo->addItem(Images::icon(QStringLiteral("ilsEventTree"), e.image),
                       QString(e.indentation * 3, QLatin1Char(' ')) + e.text,
                       e.itemData);
    }
}

void frmConventionBase::showChoices(QComboBox *combo, const ChoiceList &choices, int &revision)
{
    const QSignalBlocker block(combo);
    if (revision != choices.revision()) {
        fillCombo(combo, choices);
        revision = choices.revision();
    }
    combo->setCurrentIndex(choices.currentIndex());
}

void frmConventionBase::setText(QLineEdit *field, const QString &text)
{
    if (field->text() == text)
        return;
    const QSignalBlocker block(field);
    field->setText(text);
}

void frmConventionBase::setText(QPlainTextEdit *field, const QString &text)
{
    if (field->toPlainText() == text)
        return;
    const QSignalBlocker block(field);
    field->setPlainText(text);
}

void frmConventionBase::InsertText(QWidget *field, const QString &text)
{
    // At the caret, over nothing: a selection left from tabbing in is no reason to lose the text.
    if (auto *line = qobject_cast<QLineEdit *>(field)) {
        line->deselect();
        line->insert(text);
    } else if (auto *edit = qobject_cast<QPlainTextEdit *>(field)) {
        QTextCursor cursor = edit->textCursor();
        cursor.clearSelection();
        cursor.insertText(text);
        edit->setTextCursor(cursor);
    }
    if (field)
        field->setFocus();
}

void frmConventionBase::editCondition(qint32 ruleType, QString &condition)
{
    frmRuleEditor editor(this);
    editor.setRuleTitle(m_model.common().txtTitle);
    editor.setRuleID(m_model.RuleID());
    editor.setRuleType(ruleType);
    if (!condition.isEmpty())
        editor.setRuleCode(condition);
    editor.exec();
    if (!editor.Cancelled())
        condition = editor.RuleCode();
}

bool frmConventionBase::runPatternTest(QString &pattern)
{
    frmPatternTest dialog(this);
    dialog.setPattern(pattern);
    dialog.exec();
    if (dialog.Cancelled())
        return false;
    pattern = dialog.Pattern();
    return true;
}

QLineEdit *frmConventionBase::lineEdit(const QString &name, QWidget *parent)
{
    auto *field = new QLineEdit(parent);
    field->setObjectName(name);
    field->installEventFilter(this);
    return field;
}

QPlainTextEdit *frmConventionBase::textEdit(const QString &name, QWidget *parent)
{
    auto *field = new QPlainTextEdit(parent);
    field->setObjectName(name);
    field->setTabChangesFocus(true);
    field->installEventFilter(this);
    field->setMaximumHeight(90);
    return field;
}

QLabel *
frmConventionBase::label(const QString &name, const QString &text, QWidget *buddy, QWidget *parent)
{
    auto *l = new QLabel(text, parent);
    l->setObjectName(name);
    if (buddy)
        l->setBuddy(buddy);
    return l;
}

QPushButton *frmConventionBase::button(const QString &name, const QString &text, QWidget *parent)
{
    auto *b = new QPushButton(text, parent);
    b->setObjectName(name);
    b->setAutoDefault(false);
    return b;
}

QCheckBox *frmConventionBase::checkBox(const QString &name, const QString &text, QWidget *parent)
{
    auto *c = new QCheckBox(text, parent);
    c->setObjectName(name);
    return c;
}

QComboBox *frmConventionBase::comboBox(const QString &name, QWidget *parent)
{
    auto *c = new QComboBox(parent);
    c->setObjectName(name);
    return c;
}

void frmConventionBase::digitsOnly(QLineEdit *field)
{
    DialogSupport::digitsOnly(field, ConventionFormBase::NumberFieldRange());
}

bool frmConventionBase::eventFilter(QObject *watched, QEvent *event)
{
    // Tabbing into a text field selects all of it.
    if (DialogSupport::tabbedInto(event)) {
        if (auto *line = qobject_cast<QLineEdit *>(watched))
            QTimer::singleShot(0, line, &QLineEdit::selectAll);
        else if (auto *edit = qobject_cast<QPlainTextEdit *>(watched))
            QTimer::singleShot(0, edit, &QPlainTextEdit::selectAll);
    }
    return QDialog::eventFilter(watched, event);
}
