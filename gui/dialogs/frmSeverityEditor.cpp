#include "gui/dialogs/frmSeverityEditor.h"

#include "gui/dialogs/DialogImages.h"
#include "gui/dialogs/DialogSupport.h"

#include "editors/SeverityEditorForm.h"

#include <QAction>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>

frmSeverityEditor::frmSeverityEditor(SeverityEditorForm &form, QWidget *parent)
    : QDialog(parent)
    , m_form(form)
{
    setObjectName(QStringLiteral("frmSeverityEditor"));
    setWindowTitle(SeverityEditorForm::Caption());

    auto *title = new QLineEdit(m_form.Title());
    title->setObjectName(QStringLiteral("txtTitle"));
    auto *impact = new QLineEdit(m_form.Impact());
    impact->setObjectName(QStringLiteral("txtImpact"));
    DialogSupport::digitsOnly(impact, SeverityEditorForm::ImpactRange());
    auto *description = new QPlainTextEdit(m_form.Description());
    description->setObjectName(QStringLiteral("txtDescription"));
    description->setTabChangesFocus(true);
    m_icon = new QLabel;
    m_icon->setObjectName(QStringLiteral("imgIcon"));
    m_icon->setFixedSize(20, 20);
    auto *colour = DialogSupport::button(QStringLiteral("cmdColour"), QStringLiteral("&Colour..."));

    // The pop-up band of colours: one entry for each image of the severity image list.
    auto *colours = new QMenu(this);
    colours->setObjectName(QStringLiteral("mnuColour"));
    for (int image = 1; image <= m_form.ImageCount(); ++image) {
        QAction *choice
            = colours->addAction(DialogImages::severityIcon(image), QString::number(image));
        choice->setObjectName(QStringLiteral("tlColour") + QString::number(image));
        connect(choice, &QAction::triggered, this, [this, image] {
            m_form.chooseColour(image);
            showColour();
        });
    }
    connect(colour, &QPushButton::clicked, this, [colour, colours] {
        colours->popup(colour->mapToGlobal(QPoint(0, colour->height())));
    });

    auto *titleLabel = new QLabel(QStringLiteral("&Title"));
    titleLabel->setBuddy(title);
    auto *impactLabel = new QLabel(QStringLiteral("Default &Impact"));
    impactLabel->setBuddy(impact);
    auto *descriptionLabel = new QLabel(QStringLiteral("&Description"));
    descriptionLabel->setBuddy(description);

    m_ok = DialogSupport::button(QStringLiteral("cmdOK"), QStringLiteral("OK"));
    m_ok->setDefault(true);
    auto *cancel = DialogSupport::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    auto *help = DialogSupport::button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"));

    auto *grid = new QGridLayout(this);
    grid->addWidget(titleLabel, 0, 0);
    grid->addWidget(title, 0, 1, 1, 3);
    grid->addWidget(impactLabel, 1, 0);
    grid->addWidget(impact, 1, 1);
    grid->addWidget(m_icon, 1, 2);
    grid->addWidget(colour, 1, 3);
    grid->addWidget(descriptionLabel, 2, 0, 1, 4);
    grid->addWidget(description, 3, 0, 1, 4);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(cancel);
    buttons->addWidget(help);
    grid->addLayout(buttons, 4, 0, 1, 4);
    resize(420, 280);

    showColour();
    const auto enableControls = [this] { m_ok->setEnabled(m_form.CanOK()); };
    connect(title, &QLineEdit::textChanged, this, [this, enableControls](const QString &text) {
        m_form.setTitle(text);
        enableControls();
    });
    connect(impact, &QLineEdit::textChanged, this, [this, enableControls](const QString &text) {
        m_form.setImpact(text);
        enableControls();
    });
    connect(description, &QPlainTextEdit::textChanged, this, [this, description, enableControls] {
        m_form.setDescription(description->toPlainText());
        enableControls();
    });
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    DialogSupport::connectHelp(this, help, SeverityEditorForm::HelpTopic());
    enableControls();
}

void frmSeverityEditor::showColour()
{
    m_icon->setPixmap(DialogImages::severityIcon(m_form.Colour()).pixmap(16, 16));
    m_icon->setProperty("Tag", m_form.Colour());
}

void frmSeverityEditor::accept()
{
    if (m_form.OK())
        QDialog::accept();
}

void frmSeverityEditor::reject()
{
    m_form.Cancel();
    QDialog::reject();
}
