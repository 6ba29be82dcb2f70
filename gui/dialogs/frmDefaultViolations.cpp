#include "gui/dialogs/frmDefaultViolations.h"

#include "gui/dialogs/DialogImages.h"
#include "gui/dialogs/DialogSupport.h"
#include "gui/dialogs/frmObjectProperty.h"

#include "editors/DefaultViolationsForm.h"
#include "editors/ObjectPropertyForm.h"
#include "vocabulary/ObjectListType.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

// The catalogue's picker, offering every object and its properties.
QString pickObjectProperty(QWidget *parent)
{
    return frmObjectProperty::pick(
        parent, ObjectPropertyForm::PropertyMode, ObjectListType::Everything);
}

frmDefaultViolations::ObjectPicker &installedPicker()
{
    static frmDefaultViolations::ObjectPicker picker = pickObjectProperty;
    return picker;
}

QLabel *labelFor(const QString &caption, QWidget *buddy)
{
    auto *label = new QLabel(caption);
    label->setBuddy(buddy);
    return label;
}

} // namespace

void frmDefaultViolations::setObjectPicker(ObjectPicker picker)
{
    installedPicker() = picker ? std::move(picker) : ObjectPicker(pickObjectProperty);
}

frmDefaultViolations::frmDefaultViolations(DefaultViolationsForm &form, QWidget *parent)
    : QDialog(parent)
    , m_form(form)
{
    setObjectName(QStringLiteral("frmDefaultViolations"));
    setWindowTitle(DefaultViolationsForm::Caption());

    // The navigation bar: band "lbarMain", captioned "Violations", with its five items.
    m_bar = new QToolBar;
    m_bar->setObjectName(QStringLiteral("abViolations"));
    m_bar->setOrientation(Qt::Vertical);
    m_bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_bar->setIconSize(QSize(32, 32));
    auto *band = new QLabel(QStringLiteral("Violations"));
    band->setObjectName(QStringLiteral("lbarMain"));
    band->setAlignment(Qt::AlignCenter);
    auto *group = new QActionGroup(this);
    const auto &tools = DefaultViolationsForm::Tools();
    for (std::size_t i = 0; i < tools.size(); ++i) {
        const QString name = QLatin1String(tools[i].name);
        QAction *tool
            = m_bar->addAction(DialogImages::violationIcon(tools[i].type), m_form.ToolText(int(i)));
        tool->setObjectName(name);
        tool->setCheckable(true);
        group->addAction(tool);
        connect(tool, &QAction::triggered, this, [this, name] {
            m_form.ToolClick(name);
            PopulateControls();
        });
    }
    auto *barBox = new QVBoxLayout;
    barBox->addWidget(band);
    barBox->addWidget(m_bar, 1);

    m_item = new QLabel;
    m_item->setObjectName(QStringLiteral("imgItem"));
    m_title = new QLabel;
    m_title->setObjectName(QStringLiteral("lblTitle"));
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_violationTitle = new QLabel;
    m_violationTitle->setObjectName(QStringLiteral("lblVTitle"));
    m_violationTitle->setWordWrap(true);
    m_description = new QPlainTextEdit;
    m_description->setObjectName(QStringLiteral("txtDescription"));
    m_description->setTabChangesFocus(true);
    m_severity = new QComboBox;
    m_severity->setObjectName(QStringLiteral("cboSeverity"));
    m_icon = new QLabel;
    m_icon->setObjectName(QStringLiteral("imgIcon"));
    m_icon->setFixedSize(20, 20);
    m_category = new QComboBox;
    m_category->setObjectName(QStringLiteral("cboCategory"));
    m_impact = new QLineEdit;
    m_impact->setObjectName(QStringLiteral("txtImpact"));
    DialogSupport::digitsOnly(m_impact, DefaultViolationsForm::ImpactRange());
    m_advice = new QPlainTextEdit;
    m_advice->setObjectName(QStringLiteral("txtAdvice"));
    m_advice->setTabChangesFocus(true);
    auto *objectProperty = DialogSupport::button(QStringLiteral("cmdObjectProperty"),
                                                 QStringLiteral("Insert Object Property"));

    for (const DefaultViolationsForm::Entry &entry : m_form.SeverityEntries())
        m_severity->addItem(entry.text, entry.itemData);
    for (const DefaultViolationsForm::Entry &entry : m_form.CategoryEntries())
        m_category->addItem(entry.text, entry.itemData);

    auto *heading = new QHBoxLayout;
    heading->addWidget(m_item);
    heading->addWidget(m_title, 1);
    auto *fields = new QGridLayout;
    fields->addLayout(heading, 0, 0, 1, 4);
    fields->addWidget(m_violationTitle, 1, 0, 1, 4);
    fields->addWidget(labelFor(QStringLiteral("&Description"), m_description), 2, 0, 1, 4);
    fields->addWidget(m_description, 3, 0, 1, 4);
    fields->addWidget(labelFor(QStringLiteral("&Severity"), m_severity), 4, 0);
    fields->addWidget(m_severity, 4, 1);
    fields->addWidget(m_icon, 4, 2);
    fields->addWidget(labelFor(QStringLiteral("&Impact"), m_impact), 5, 0);
    fields->addWidget(m_impact, 5, 1);
    fields->addWidget(labelFor(QStringLiteral("C&ategory"), m_category), 6, 0);
    fields->addWidget(m_category, 6, 1, 1, 3);
    fields->addWidget(labelFor(QStringLiteral("Ad&vice"), m_advice), 7, 0, 1, 3);
    fields->addWidget(objectProperty, 7, 3);
    fields->addWidget(m_advice, 8, 0, 1, 4);
    fields->setColumnStretch(1, 1);

    auto *ok = DialogSupport::button(QStringLiteral("cmdOK"), QStringLiteral("OK"));
    ok->setDefault(true);
    auto *cancel = DialogSupport::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    auto *help = DialogSupport::button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    buttons->addWidget(help);

    auto *body = new QHBoxLayout;
    body->addLayout(barBox);
    body->addLayout(fields, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(body, 1);
    layout->addLayout(buttons);
    resize(620, 480);

    connect(m_description, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_populating)
            m_form.setDescription(m_description->toPlainText());
    });
    connect(m_advice, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_populating)
            m_form.setAdvice(m_advice->toPlainText());
    });
    connect(m_impact, &QLineEdit::textEdited, this, [this](const QString &text) {
        m_form.setImpact(text);
    });
    connect(m_impact, &QLineEdit::editingFinished, this, [this] {
        m_form.leaveImpact();
        m_impact->setText(m_form.Impact());
    });
    connect(m_category, &QComboBox::activated, this, [this](int index) {
        m_form.setCategoryIndex(index);
    });
    connect(m_severity, &QComboBox::activated, this, [this](int index) {
        m_form.setSeverityIndex(index);
        m_icon->setPixmap(DialogImages::severityIcon(m_form.SeverityImage()).pixmap(16, 16));
        m_impact->setText(m_form.Impact());
    });
    connect(
        objectProperty, &QPushButton::clicked, this, &frmDefaultViolations::InsertObjectProperty);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    DialogSupport::connectHelp(this, help, DefaultViolationsForm::HelpTopic());

    if (QAction *first = m_bar->actions().value(0))
        first->setChecked(true);
    PopulateControls();
}

void frmDefaultViolations::PopulateControls()
{
    m_populating = true;
    m_item->setPixmap(DialogImages::violationIcon(m_form.CurrentType()).pixmap(32, 32));
    m_title->setText(m_form.TitleLabel());
    m_violationTitle->setText(m_form.ViolationTitleLabel());
    m_description->setPlainText(m_form.Description());
    m_severity->setCurrentIndex(m_form.SeverityIndex());
    m_icon->setPixmap(DialogImages::severityIcon(m_form.SeverityImage()).pixmap(16, 16));
    m_category->setCurrentIndex(m_form.CategoryIndex());
    m_impact->setText(m_form.Impact());
    m_advice->setPlainText(m_form.Advice());
    m_populating = false;
}

void frmDefaultViolations::InsertObjectProperty()
{
    const QString selection = installedPicker()(this);
    if (selection.isEmpty())
        return;
    QTextCursor cursor = m_advice->textCursor();
    const int start = cursor.selectionStart();
    const int length = cursor.selectionEnd() - start;
    m_populating = true;
    const int after = m_form.InsertIntoAdvice(selection, start, length);
    m_advice->setPlainText(m_form.Advice());
    m_populating = false;
    cursor = m_advice->textCursor();
    cursor.setPosition(after);
    m_advice->setTextCursor(cursor);
    m_advice->setFocus();
}

void frmDefaultViolations::accept()
{
    m_form.OK();
    QDialog::accept();
}

void frmDefaultViolations::reject()
{
    m_form.Cancel();
    QDialog::reject();
}
