#include "gui/dialogs/frmRulebaseProperties.h"

#include "gui/dialogs/DialogSupport.h"

#include "editors/RulebasePropertiesForm.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

QLineEdit *numberBox(const QString &name, const NumberRange &range, int index = -1)
{
    auto *box = new QLineEdit;
    box->setObjectName(name);
    if (index >= 0)
        box->setProperty("index", index);
    DialogSupport::digitsOnly(box, range);
    box->setMaximumWidth(80);
    return box;
}

QLabel *labelFor(const QString &caption, QWidget *buddy)
{
    auto *label = new QLabel(caption);
    label->setBuddy(buddy);
    return label;
}

} // namespace

frmRulebaseProperties::frmRulebaseProperties(RulebasePropertiesForm &form, QWidget *parent)
    : QDialog(parent)
    , m_form(form)
{
    setObjectName(QStringLiteral("frmRulebaseProperties"));
    setWindowTitle(RulebasePropertiesForm::Caption());

    // Page "Rulebase".
    m_title = new QLineEdit;
    m_title->setObjectName(QStringLiteral("txtTitle"));
    m_description = new QPlainTextEdit;
    m_description->setObjectName(QStringLiteral("txtDescription"));
    m_description->setTabChangesFocus(true);
    m_major = numberBox(QStringLiteral("txtMajor"), RulebasePropertiesForm::MajorRange());
    m_minor = numberBox(QStringLiteral("txtMinor"), RulebasePropertiesForm::MinorRange());
    m_revision = numberBox(QStringLiteral("txtRevision"), RulebasePropertiesForm::RevisionRange());
    m_autoIncrement = new QCheckBox(QStringLiteral("&Auto Increment"));
    m_autoIncrement->setObjectName(QStringLiteral("chkAutoIncrement"));

    auto *version = new QGroupBox(QStringLiteral("Version Number"));
    auto *versionLayout = new QHBoxLayout(version);
    versionLayout->addWidget(labelFor(QStringLiteral("&Major:"), m_major));
    versionLayout->addWidget(m_major);
    versionLayout->addWidget(labelFor(QStringLiteral("M&inor:"), m_minor));
    versionLayout->addWidget(m_minor);
    versionLayout->addWidget(labelFor(QStringLiteral("&Revision:"), m_revision));
    versionLayout->addWidget(m_revision);
    versionLayout->addWidget(m_autoIncrement);
    versionLayout->addStretch();

    auto *rulebasePage = new QWidget;
    rulebasePage->setObjectName(QStringLiteral("picTab"));
    rulebasePage->setProperty("index", 0);
    auto *rulebaseLayout = new QVBoxLayout(rulebasePage);
    rulebaseLayout->addWidget(labelFor(QStringLiteral("&Title"), m_title));
    rulebaseLayout->addWidget(m_title);
    rulebaseLayout->addWidget(labelFor(QStringLiteral("&Description"), m_description));
    rulebaseLayout->addWidget(m_description, 1);
    rulebaseLayout->addWidget(version);

    // Page "Tolerances".
    auto *frame = new QGroupBox(QStringLiteral("Set the tolerances for this rulebase:"));
    auto *grid = new QGridLayout(frame);
    grid->addWidget(new QLabel(QStringLiteral("Maximum Violation Counts/Impact:")), 0, 0, 1, 3);
    grid->addWidget(new QLabel(QStringLiteral("Counts")), 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("Impact")), 1, 2);
    for (int i = 0; i < RulebasePropertiesForm::ToleranceRows; ++i) {
        m_counts[std::size_t(i)] = numberBox(
            QStringLiteral("txtToleranceCount"), RulebasePropertiesForm::LimitRange(), i);
        m_impacts[std::size_t(i)] = numberBox(
            QStringLiteral("txtToleranceImpact"), RulebasePropertiesForm::LimitRange(), i);
        auto *label = new QLabel;
        label->setObjectName(QStringLiteral("lblSeverityTolerance"));
        label->setProperty("index", i);
        m_severityLabels[std::size_t(i)] = label;
        grid->addWidget(label, i + 2, 0);
        grid->addWidget(m_counts[std::size_t(i)], i + 2, 1);
        grid->addWidget(m_impacts[std::size_t(i)], i + 2, 2);
    }
    m_percentageComments = numberBox(QStringLiteral("txtPercentageComments"),
                                     RulebasePropertiesForm::PercentageRange());
    m_cyclomaticComplexity = numberBox(QStringLiteral("txtCyclomaticComplexity"),
                                       RulebasePropertiesForm::LimitRange());
    grid->addWidget(
        labelFor(QStringLiteral("Minimum Percentage (%) Comments"), m_percentageComments), 9, 0);
    grid->addWidget(m_percentageComments, 9, 1);
    grid->addWidget(
        labelFor(QStringLiteral("Maximum Cyclomatic Complexity"), m_cyclomaticComplexity), 10, 0);
    grid->addWidget(m_cyclomaticComplexity, 10, 1);
    grid->setRowStretch(11, 1);

    auto *tolerancePage = new QWidget;
    tolerancePage->setObjectName(QStringLiteral("picTab"));
    tolerancePage->setProperty("index", 1);
    auto *toleranceLayout = new QVBoxLayout(tolerancePage);
    toleranceLayout->addWidget(frame);

    // Ctrl+Tab moves on to the next page, from the last to the first, as the tab widget does.
    m_tabs = new QTabWidget;
    m_tabs->setObjectName(QStringLiteral("tbsProperties"));
    m_tabs->addTab(rulebasePage, QStringLiteral("Rulebase"));
    m_tabs->addTab(tolerancePage, QStringLiteral("Tolerances"));

    m_ok = DialogSupport::button(QStringLiteral("cmdOK"), QStringLiteral("OK"));
    m_ok->setDefault(true);
    auto *cancel = DialogSupport::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    auto *help = DialogSupport::button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(cancel);
    buttons->addWidget(help);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addLayout(buttons);

    DataToScreen();
    m_tabs->setCurrentIndex(0);

    connect(m_title, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_form.setTitle(text);
        EnableControls();
    });
    connect(m_description, &QPlainTextEdit::textChanged, this, [this] {
        m_form.setDescription(m_description->toPlainText());
    });
    const auto versionBox = [this](QLineEdit *box,
                                   void (RulebasePropertiesForm::*change)(const QString &),
                                   void (RulebasePropertiesForm::*leave)(),
                                   QString (RulebasePropertiesForm::*value)() const) {
        connect(box, &QLineEdit::textEdited, this, [this, change](const QString &text) {
            (m_form.*change)(text);
        });
        connect(box, &QLineEdit::editingFinished, this, [this, box, leave, value] {
            (m_form.*leave)();
            box->setText((m_form.*value)());
        });
    };
    versionBox(m_major,
               &RulebasePropertiesForm::setMajor,
               &RulebasePropertiesForm::leaveMajor,
               &RulebasePropertiesForm::Major);
    versionBox(m_minor,
               &RulebasePropertiesForm::setMinor,
               &RulebasePropertiesForm::leaveMinor,
               &RulebasePropertiesForm::Minor);
    versionBox(m_revision,
               &RulebasePropertiesForm::setRevision,
               &RulebasePropertiesForm::leaveRevision,
               &RulebasePropertiesForm::Revision);
    connect(m_autoIncrement, &QCheckBox::toggled, this, [this](bool on) {
        m_form.setAutoIncrement(on);
    });
    for (int i = 0; i < RulebasePropertiesForm::ToleranceRows; ++i) {
        connect(m_counts[std::size_t(i)],
                &QLineEdit::textChanged,
                this,
                [this, i](const QString &text) { m_form.setToleranceCount(i, text); });
        connect(m_impacts[std::size_t(i)],
                &QLineEdit::textChanged,
                this,
                [this, i](const QString &text) { m_form.setToleranceImpact(i, text); });
    }
    connect(m_percentageComments, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_form.setPercentageComments(text);
    });
    connect(m_cyclomaticComplexity, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_form.setCyclomaticComplexity(text);
    });
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    DialogSupport::connectHelp(this, help, RulebasePropertiesForm::HelpTopic());
    EnableControls();
}

void frmRulebaseProperties::DataToScreen()
{
    for (int i = 0; i < RulebasePropertiesForm::ToleranceRows; ++i) {
        m_severityLabels[std::size_t(i)]->setText(m_form.SeverityToleranceLabel(i));
        m_counts[std::size_t(i)]->setText(m_form.ToleranceCount(i));
        m_impacts[std::size_t(i)]->setText(m_form.ToleranceImpact(i));
    }
    m_title->setText(m_form.Title());
    m_description->setPlainText(m_form.Description());
    m_major->setText(m_form.Major());
    m_minor->setText(m_form.Minor());
    m_revision->setText(m_form.Revision());
    m_autoIncrement->setChecked(m_form.AutoIncrement());
    m_percentageComments->setText(m_form.PercentageComments());
    m_cyclomaticComplexity->setText(m_form.CyclomaticComplexity());
}

void frmRulebaseProperties::EnableControls()
{
    m_ok->setEnabled(m_form.CanOK());
}

void frmRulebaseProperties::accept()
{
    if (m_form.OK())
        QDialog::accept();
}

void frmRulebaseProperties::reject()
{
    m_form.Cancel();
    QDialog::reject();
}
