#include "gui/dialogs/AuthorisedItemDialog.h"

#include "gui/dialogs/DialogSupport.h"
#include "gui/dialogs/frmObjectProperty.h"

#include "editors/AuthorisedItemForm.h"
#include "editors/ObjectPropertyForm.h"
#include "platform/UserInterface.h"
#include "vocabulary/ObjectListType.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>

AuthorisedItemDialog::AuthorisedItemDialog(AuthorisedItemForm &form,
                                           QWidget *parent,
                                           std::function<void(const QString &)> description,
                                           const QString &descriptionLabel)
    : QDialog(parent)
    , m_form(form)
{
    setWindowTitle(form.Caption());
    setModal(true);

    auto *layout = new QGridLayout;
    int row = 0;
    const auto labelled = [&](const QString &label, QWidget *field, QWidget *beside = nullptr) {
        auto *caption = new QLabel(label);
        caption->setBuddy(field);
        layout->addWidget(caption, row++, 0, 1, 2);
        layout->addWidget(field, row, 0, 1, beside ? 1 : 2);
        if (beside)
            layout->addWidget(beside, row, 1);
        ++row;
    };

    m_filename = new QLineEdit;
    m_filename->setObjectName(QStringLiteral("txtFilename"));
    auto *browse = new QPushButton(form.BrowseCaption());
    browse->setObjectName(QStringLiteral("cmdBrowse"));
    labelled(form.FilenameLabel(), m_filename, browse);

    if (description) {
        m_description = new QLineEdit;
        m_description->setObjectName(QStringLiteral("txtDescription"));
        labelled(descriptionLabel, m_description);
        connect(
            m_description, &QLineEdit::textChanged, this, [this, description](const QString &text) {
                if (m_showing)
                    return;
                description(text);
                UpdateControls();
            });
    }

    m_guid = new QLineEdit;
    m_guid->setObjectName(QStringLiteral("txtGUID"));
    labelled(AuthorisedItemForm::GuidLabel(), m_guid);

    m_versions = new QLineEdit;
    m_versions->setObjectName(QStringLiteral("txtVersions"));
    labelled(AuthorisedItemForm::VersionsLabel(), m_versions);

    m_advice = new QPlainTextEdit;
    m_advice->setObjectName(QStringLiteral("txtAdvice"));
    m_objectProperty = new QPushButton(AuthorisedItemForm::ObjectPropertyCaption());
    m_objectProperty->setObjectName(QStringLiteral("cmdObjectProperty"));
    labelled(AuthorisedItemForm::AdviceLabel(), m_advice, m_objectProperty);
    layout->setAlignment(m_objectProperty, Qt::AlignTop);

    auto *buttons = new QDialogButtonBox;
    m_ok = buttons->addButton(QDialogButtonBox::Ok);
    m_ok->setObjectName(QStringLiteral("cmdOK"));
    QPushButton *cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    QPushButton *help = buttons->addButton(QDialogButtonBox::Help);
    help->setObjectName(QStringLiteral("cmdHelp"));

    auto *outer = new QVBoxLayout(this);
    outer->addLayout(layout);
    outer->addWidget(buttons);

    for (QLineEdit *edit : {m_filename, m_guid, m_versions})
        edit->installEventFilter(this);
    if (m_description)
        m_description->installEventFilter(this);

    connect(m_filename, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!m_showing) {
            m_form.setFilename(text);
            UpdateControls();
        }
    });
    connect(m_guid, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!m_showing) {
            m_form.setGUID(text);
            UpdateControls();
        }
    });
    connect(m_versions, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!m_showing) {
            m_form.setVersions(text);
            UpdateControls();
        }
    });
    connect(m_advice, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_showing)
            m_form.setAdvice(m_advice->toPlainText());
    });
    connect(browse, &QPushButton::clicked, this, [this] {
        if (m_form.Browse())
            ShowFields();
    });
    connect(
        m_objectProperty, &QPushButton::clicked, this, &AuthorisedItemDialog::InsertObjectProperty);
    connect(m_ok, &QPushButton::clicked, this, [this] {
        if (m_form.OK())
            accept();
    });
    connect(cancel, &QPushButton::clicked, this, [this] {
        m_form.Cancel();
        reject();
    });
    connect(help, &QPushButton::clicked, this, [this] {
        UserInterface::current().showHelp(HelpCommand::Topic, m_form.HelpTopic(), 0);
    });
    resize(520, 380);
}

AuthorisedItemDialog::~AuthorisedItemDialog() = default;

void AuthorisedItemDialog::ShowFields()
{
    m_showing = true;
    m_filename->setText(m_form.Filename());
    m_guid->setText(m_form.GUID());
    m_versions->setText(m_form.Versions());
    m_showing = false;
    UpdateControls();
}

void AuthorisedItemDialog::UpdateControls()
{
    m_showing = true;
    // The model clears the advice when the versions go.
    if (m_advice->toPlainText() != m_form.Advice())
        m_advice->setPlainText(m_form.Advice());
    m_showing = false;
    m_advice->setEnabled(m_form.AdviceEnabled());
    m_objectProperty->setEnabled(m_form.ObjectPropertyEnabled());
    m_ok->setEnabled(m_form.OKEnabled());
}

void AuthorisedItemDialog::InsertObjectProperty()
{
    // The picker opens on the item's own object, a component or a reference.
    const QString chosen = frmObjectProperty::pick(this,
                                                   ObjectPropertyForm::PropertyMode,
                                                   ObjectListType::Everything,
                                                   nullptr,
                                                   m_form.ObjectType());
    if (chosen.isEmpty())
        return;
    QTextCursor cursor = m_advice->textCursor();
    const int start = cursor.selectionStart();
    const int caret = m_form.InsertIntoAdvice(chosen, start, cursor.selectionEnd() - start);
    m_showing = true;
    m_advice->setPlainText(m_form.Advice());
    m_showing = false;
    cursor = m_advice->textCursor();
    cursor.setPosition(caret);
    m_advice->setTextCursor(cursor);
    m_advice->setFocus();
}

void AuthorisedItemDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1) {
        UserInterface::current().showHelp(HelpCommand::Topic, m_form.HelpTopic(), 0);
        return;
    }
    QDialog::keyPressEvent(event);
}

bool AuthorisedItemDialog::eventFilter(QObject *watched, QEvent *event)
{
    // A field entered by the keyboard has its text selected, ready to be typed over.
    if (DialogSupport::tabbedInto(event)) {
        if (auto *edit = qobject_cast<QLineEdit *>(watched))
            QTimer::singleShot(0, edit, &QLineEdit::selectAll);
    }
    return QDialog::eventFilter(watched, event);
}
