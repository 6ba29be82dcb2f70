#include "gui/dialogs/frmCategorySeverity.h"

#include "gui/dialogs/DialogImages.h"
#include "gui/dialogs/DialogSupport.h"

#include "editors/CategorySeverityForm.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

frmCategorySeverity::frmCategorySeverity(CategorySeverityForm &form, QWidget *parent)
    : QDialog(parent)
    , m_form(form)
{
    setObjectName(QStringLiteral("frmCategorySeverity"));
    setWindowTitle(m_form.Caption());

    m_list = new QTreeWidget;
    m_list->setObjectName(QStringLiteral("lvwCategorySeverity"));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setColumnCount(int(m_form.Columns().size()));
    m_list->setHeaderLabels(m_form.Columns());
    m_list->header()->setStretchLastSection(true);
    auto *label = new QLabel(m_form.ListLabel());
    label->setObjectName(QStringLiteral("lblList"));
    label->setBuddy(m_list);

    m_description = new QPlainTextEdit;
    m_description->setObjectName(QStringLiteral("txtDescription"));
    m_description->setReadOnly(true);
    m_description->setMaximumHeight(90);

    m_add = DialogSupport::button(QStringLiteral("cmdAdd"), QStringLiteral("&Add..."), this);
    m_edit = DialogSupport::button(QStringLiteral("cmdEdit"), QStringLiteral("&Edit..."));
    m_delete = DialogSupport::button(QStringLiteral("cmdDelete"), QStringLiteral("De&lete"), this);
    auto *help = DialogSupport::button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"));
    auto *close = DialogSupport::button(QStringLiteral("cmdClose"), QStringLiteral("Close"));
    close->setDefault(true);

    // The severity face has no add or delete: Edit takes Add's place and Help moves up beside it.
    auto *buttons = new QVBoxLayout;
    if (m_form.AddDeleteVisible())
        buttons->addWidget(m_add);
    buttons->addWidget(m_edit);
    if (m_form.AddDeleteVisible())
        buttons->addWidget(m_delete);
    buttons->addWidget(help);
    buttons->addStretch();
    buttons->addWidget(close);
    m_add->setVisible(m_form.AddDeleteVisible());
    m_delete->setVisible(m_form.AddDeleteVisible());

    auto *layout = new QGridLayout(this);
    layout->addWidget(label, 0, 0);
    layout->addWidget(m_list, 1, 0);
    layout->addLayout(buttons, 1, 1);
    layout->addWidget(m_description, 2, 0, 1, 2);
    resize(m_form.isCategoryList() ? 420 : 520, 360);

    PopulateListView();
    SetEnabledState();

    connect(m_list, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (!item)
            return;
        m_form.selectRow(m_list->indexOfTopLevelItem(item));
        m_description->setPlainText(m_form.SelectedDescription());
    });
    connect(m_list, &QTreeWidget::itemDoubleClicked, m_edit, &QPushButton::click);
    const auto afterward = [this](void (CategorySeverityForm::*action)()) {
        return [this, action] {
            (m_form.*action)();
            PopulateListView();
            SetEnabledState();
        };
    };
    connect(m_add, &QPushButton::clicked, this, afterward(&CategorySeverityForm::Add));
    connect(m_edit, &QPushButton::clicked, this, afterward(&CategorySeverityForm::Edit));
    connect(m_delete, &QPushButton::clicked, this, afterward(&CategorySeverityForm::Delete));
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    DialogSupport::connectHelp(this, help, m_form.HelpTopic());
}

void frmCategorySeverity::PopulateListView()
{
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    for (const CategorySeverityForm::Row &row : m_form.rows()) {
        auto *item = new QTreeWidgetItem(m_list);
        item->setData(0, Qt::UserRole, row.key);
        item->setText(0, row.text);
        if (m_form.isCategoryList()) {
            item->setIcon(0, DialogImages::folderIcon(row.image == QLatin1String("HiddenFolder")));
        } else {
            item->setIcon(0, DialogImages::severityIcon(row.colour));
            item->setText(1, row.severityLevelText);
            item->setText(2, row.impact);
        }
    }
    if (m_form.selectedRow() >= 0)
        m_list->setCurrentItem(m_list->topLevelItem(m_form.selectedRow()));
    m_description->setPlainText(m_form.SelectedDescription());
}

void frmCategorySeverity::SetEnabledState()
{
    m_edit->setEnabled(m_form.CanEdit());
    m_delete->setEnabled(m_form.CanDelete());
}

void frmCategorySeverity::accept()
{
    if (m_form.RequestClose())
        QDialog::accept();
}

// Escape and the window's close go the same way as Close: there is nothing to cancel, the edits
// are already in the list.
void frmCategorySeverity::reject()
{
    if (m_form.RequestClose())
        QDialog::reject();
}

void frmCategorySeverity::closeEvent(QCloseEvent *event)
{
    event->ignore();
    reject();
}
