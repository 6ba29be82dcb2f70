#include "gui/dialogs/frmObjectProperty.h"

#include "gui/window/Images.h"

#include "application/HelpTopics.h"
#include "platform/UserInterface.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>

namespace {
// The picture of an entry, as the event tree's image list draws objects and properties.
QIcon entryIcon(const ObjectPropertyForm::ListEntry &entry)
{
    return Images::icon(QStringLiteral("ilsEventTree"), entry.icon);
}
} // namespace

frmObjectProperty::frmObjectProperty(QWidget *parent)
    : QDialog(parent)
    , m_lvwObject(new QListWidget(this))
    , m_lblProperty(new QLabel(QStringLiteral("P&roperties"), this))
    , m_lvwProperty(new QListWidget(this))
    , m_txtDescription(new QPlainTextEdit(this))
    , m_lblManualEntry(new QLabel(this))
    , m_cboManualEntry(new QComboBox(this))
    , m_cmdOK(new QPushButton(QStringLiteral("OK"), this))
{
    setObjectName(QStringLiteral("frmObjectProperty"));
    m_lvwObject->setObjectName(QStringLiteral("lvwObject"));
    m_lvwProperty->setObjectName(QStringLiteral("lvwProperty"));
    m_txtDescription->setObjectName(QStringLiteral("txtDescription"));
    m_txtDescription->setReadOnly(true);
    m_lblManualEntry->setObjectName(QStringLiteral("lblManualEntry"));
    m_lblManualEntry->setBuddy(m_cboManualEntry);
    m_cboManualEntry->setObjectName(QStringLiteral("cboManualEntry"));
    m_cboManualEntry->setEditable(true);
    m_cboManualEntry->setInsertPolicy(QComboBox::NoInsert);
    m_cmdOK->setObjectName(QStringLiteral("cmdOK"));
    m_cmdOK->setDefault(true);
    auto *cancel = new QPushButton(QStringLiteral("Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    cancel->setAutoDefault(false);
    auto *help = new QPushButton(QStringLiteral("&Help"), this);
    help->setObjectName(QStringLiteral("cmdHelp"));
    help->setAutoDefault(false);
    auto *objectLabel = new QLabel(QStringLiteral("&Objects"), this);
    objectLabel->setBuddy(m_lvwObject);
    m_lblProperty->setBuddy(m_lvwProperty);

    auto *grid = new QGridLayout(this);
    grid->addWidget(objectLabel, 0, 0);
    grid->addWidget(m_lblProperty, 0, 1);
    grid->addWidget(m_lvwObject, 1, 0);
    grid->addWidget(m_lvwProperty, 1, 1);
    grid->addWidget(m_txtDescription, 2, 0, 1, 2);
    grid->addWidget(m_lblManualEntry, 3, 0, 1, 2);
    grid->addWidget(m_cboManualEntry, 4, 0, 1, 2);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_cmdOK);
    buttons->addWidget(cancel);
    buttons->addWidget(help);
    grid->addLayout(buttons, 5, 0, 1, 2);

    connect(m_lvwObject, &QListWidget::currentRowChanged, this, [this](int row) {
        m_model.lvwObject_Click(row);
        refresh();
    });
    connect(m_lvwProperty, &QListWidget::currentRowChanged, this, [this](int row) {
        m_model.lvwProperty_Click(row);
        refresh();
    });
    connect(m_cboManualEntry, &QComboBox::editTextChanged, this, [this](const QString &text) {
        m_model.screen().cboManualEntry = text;
        m_cmdOK->setEnabled(m_model.cmdOKEnabled());
    });
    m_cboManualEntry->installEventFilter(this);
    if (m_cboManualEntry->lineEdit())
        m_cboManualEntry->lineEdit()->installEventFilter(this);
    connect(m_cmdOK, &QPushButton::clicked, this, [this] {
        m_model.cmdOK_Click();
        accept();
    });
    connect(cancel, &QPushButton::clicked, this, &frmObjectProperty::reject);
    const auto showHelp = [] {
        UserInterface::current().showHelp(
            HelpCommand::Topic, HelpTopics::topicPath(HelpTopics::ObjectPicker), 0);
    };
    connect(help, &QPushButton::clicked, this, showHelp);
    connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this, showHelp);
}

QString frmObjectProperty::pick(QWidget *parent,
                                int selectionMode,
                                ObjectListType listType,
                                QStringList *workfields,
                                qint32 objectType)
{
    frmObjectProperty picker(parent);
    picker.setSelectionMode(selectionMode);
    picker.setObjectListType(listType);
    picker.setWorkfields(workfields);
    picker.setObjectType(objectType);
    picker.exec();
    return picker.UserSelection();
}

int frmObjectProperty::exec()
{
    m_model.Load();
    setWindowTitle(m_model.screen().caption);
    m_lblManualEntry->setText(m_model.screen().lblManualEntry);
    m_lblManualEntry->setVisible(m_model.SelectionMode() != ObjectPropertyForm::ObjectMode);
    m_cboManualEntry->setVisible(m_model.SelectionMode() != ObjectPropertyForm::ObjectMode);
    {
        const QSignalBlocker block(m_lvwObject);
        for (const ObjectPropertyForm::ListEntry &entry : m_model.screen().lvwObject)
            m_lvwObject->addItem(new QListWidgetItem(entryIcon(entry), entry.text));
    }
    refresh();
    return QDialog::exec();
}

void frmObjectProperty::reject()
{
    m_model.cmdCancel_Click();
    QDialog::reject();
}

void frmObjectProperty::refresh()
{
    const ObjectPropertyForm::Screen &s = m_model.screen();
    m_lblProperty->setVisible(s.lvwPropertyVisible);
    m_lvwProperty->setVisible(s.lvwPropertyVisible);
    {
        const QSignalBlocker block(m_lvwObject);
        m_lvwObject->setCurrentRow(s.selectedObject);
    }
    if (m_revision != s.revision) {
        m_revision = s.revision;
        const QSignalBlocker blockList(m_lvwProperty);
        m_lvwProperty->clear();
        for (const ObjectPropertyForm::ListEntry &entry : s.lvwProperty)
            m_lvwProperty->addItem(new QListWidgetItem(entryIcon(entry), entry.text));
        const QSignalBlocker blockCombo(m_cboManualEntry);
        m_cboManualEntry->clear();
        m_cboManualEntry->addItems(s.cboManualEntryItems);
    }
    {
        const QSignalBlocker block(m_lvwProperty);
        m_lvwProperty->setCurrentRow(s.selectedProperty);
    }
    m_txtDescription->setPlainText(s.txtDescription);
    m_cboManualEntry->setEnabled(s.cboManualEntryEnabled);
    if (m_cboManualEntry->currentText() != s.cboManualEntry) {
        const QSignalBlocker block(m_cboManualEntry);
        m_cboManualEntry->setEditText(s.cboManualEntry);
    }
    m_cmdOK->setEnabled(m_model.cmdOKEnabled());
}

bool frmObjectProperty::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        m_model.cboManualEntry_LostFocus();
        refresh();
    }
    return QDialog::eventFilter(watched, event);
}
