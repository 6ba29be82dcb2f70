#include "gui/dialogs/frmCategoryEditor.h"

#include "gui/dialogs/DialogSupport.h"

#include "editors/CategoryEditorForm.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmCategoryEditor::frmCategoryEditor(CategoryEditorForm &form, QWidget *parent)
    : QDialog(parent)
    , m_form(form)
{
    setObjectName(QStringLiteral("frmCategoryEditor"));
    setWindowTitle(CategoryEditorForm::Caption());

    auto *title = new QLineEdit(m_form.Title());
    title->setObjectName(QStringLiteral("txtTitle"));
    auto *description = new QPlainTextEdit(m_form.Description());
    description->setObjectName(QStringLiteral("txtDescription"));
    description->setTabChangesFocus(true);
    auto *hidden = new QCheckBox(QStringLiteral("&Hidden Category"));
    hidden->setObjectName(QStringLiteral("chkRuleActive"));
    hidden->setChecked(m_form.HiddenCategory());
    auto *titleLabel = new QLabel(QStringLiteral("&Title"));
    titleLabel->setBuddy(title);
    auto *descriptionLabel = new QLabel(QStringLiteral("&Description"));
    descriptionLabel->setBuddy(description);

    m_ok = DialogSupport::button(QStringLiteral("cmdOK"), QStringLiteral("OK"));
    m_ok->setDefault(true);
    auto *cancel = DialogSupport::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    auto *help = DialogSupport::button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(hidden);
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(cancel);
    buttons->addWidget(help);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(titleLabel);
    layout->addWidget(title);
    layout->addWidget(descriptionLabel);
    layout->addWidget(description, 1);
    layout->addLayout(buttons);
    resize(420, 260);

    const auto enableControls = [this] { m_ok->setEnabled(m_form.CanOK()); };
    connect(title, &QLineEdit::textChanged, this, [this, enableControls](const QString &text) {
        m_form.setTitle(text);
        enableControls();
    });
    connect(description, &QPlainTextEdit::textChanged, this, [this, description, enableControls] {
        m_form.setDescription(description->toPlainText());
        enableControls();
    });
    connect(hidden, &QCheckBox::toggled, this, [this](bool on) { m_form.setHiddenCategory(on); });
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    DialogSupport::connectHelp(this, help, CategoryEditorForm::HelpTopic());
    enableControls();
}

void frmCategoryEditor::accept()
{
    if (m_form.OK())
        QDialog::accept();
}

void frmCategoryEditor::reject()
{
    m_form.Cancel();
    QDialog::reject();
}
