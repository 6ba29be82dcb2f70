#include "gui/dialogs/frmAddFromProject.h"

#include "gui/dialogs/DialogSupport.h"
#include "gui/window/Images.h"

#include "application/HelpTopics.h"
#include "editors/AddFromProjectForm.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmAddFromProject::frmAddFromProject(AddFromProjectForm &form, QWidget *parent)
    : QDialog(parent)
    , m_form(form)
{
    setObjectName(QStringLiteral("frmAddFromProject"));
    setWindowTitle(AddFromProjectForm::Caption());
    setModal(true);

    m_file = new QLineEdit;
    m_file->setObjectName(QStringLiteral("txtFile"));
    m_file->setReadOnly(true);
    auto *browse = new QToolButton;
    browse->setObjectName(QStringLiteral("cmdBrowse"));
    browse->setText(QStringLiteral("..."));
    browse->setToolTip(AddFromProjectForm::BrowseToolTip());
    auto *fileRow = new QHBoxLayout;
    fileRow->addWidget(m_file, 1);
    fileRow->addWidget(browse);

    m_tabs = new QTabBar;
    m_tabs->setObjectName(QStringLiteral("tbsItems"));
    m_tabs->addTab(QStringLiteral("Components"));
    m_tabs->addTab(QStringLiteral("References"));
    // One picture beside the tabs, by tab.
    m_componentsPicture = new QLabel;
    m_componentsPicture->setObjectName(QStringLiteral("imgComponents"));
    m_componentsPicture->setPixmap(
        Images::icon(QStringLiteral("ilsImages"), QStringLiteral("Component")).pixmap(16));
    m_referencesPicture = new QLabel;
    m_referencesPicture->setObjectName(QStringLiteral("imgReferences"));
    m_referencesPicture->setPixmap(
        Images::icon(QStringLiteral("ilsImages"), QStringLiteral("Reference")).pixmap(16));
    auto *tabRow = new QHBoxLayout;
    tabRow->addWidget(m_tabs, 1);
    tabRow->addWidget(m_componentsPicture);
    tabRow->addWidget(m_referencesPicture);

    m_items = new QTreeWidget;
    m_items->setObjectName(QStringLiteral("lvwItems"));
    m_items->setRootIsDecorated(false);
    m_items->setColumnCount(4);
    m_items->header()->setSectionsClickable(true);
    m_items->header()->setSortIndicatorShown(false);

    auto *selectAll = new QPushButton(QStringLiteral("Select &All"));
    selectAll->setObjectName(QStringLiteral("cmdSelectAll"));
    auto *selectNone = new QPushButton(QStringLiteral("Select &None"));
    selectNone->setObjectName(QStringLiteral("cmdSelectNone"));
    auto *selectRow = new QHBoxLayout;
    selectRow->addWidget(selectAll);
    selectRow->addWidget(selectNone);
    selectRow->addStretch(1);

    auto *buttons = new QDialogButtonBox;
    m_ok = buttons->addButton(QDialogButtonBox::Ok);
    m_ok->setObjectName(QStringLiteral("cmdOK"));
    QPushButton *cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    QPushButton *help = buttons->addButton(QDialogButtonBox::Help);
    help->setObjectName(QStringLiteral("cmdHelp"));

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(fileRow);
    layout->addLayout(tabRow);
    layout->addWidget(m_items, 1);
    layout->addLayout(selectRow);
    layout->addWidget(buttons);

    connect(browse, &QToolButton::clicked, this, [this] {
        if (!m_form.Browse())
            return;
        m_file->setText(m_form.File());
        FillList();
    });
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int index) {
        m_form.setCurrentTab(index + 1);
        FillList();
    });
    connect(m_items, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item) {
        ItemChanged(item);
    });
    connect(m_items->header(), &QHeaderView::sectionClicked, this, [this](int section) {
        m_form.ColumnClick(section + 1);
        FillList();
    });
    connect(selectAll, &QPushButton::clicked, this, [this] {
        m_form.SelectAll();
        FillList();
    });
    connect(selectNone, &QPushButton::clicked, this, [this] {
        m_form.SelectNone();
        FillList();
    });
    connect(m_ok, &QPushButton::clicked, this, [this] {
        m_form.OK();
        accept();
    });
    connect(cancel, &QPushButton::clicked, this, [this] {
        m_form.Cancel();
        reject();
    });
    DialogSupport::connectHelp(this, help, HelpTopics::topicPath(HelpTopics::AddFromProject));

    FillList();
    resize(640, 420);
}

frmAddFromProject::~frmAddFromProject() = default;

void frmAddFromProject::FillList()
{
    m_filling = true;
    m_items->clear();
    m_items->setHeaderLabels(m_form.ColumnHeaders());
    const bool components = m_form.CurrentTab() == AddFromProjectForm::ComponentsTab;
    m_componentsPicture->setVisible(components);
    m_referencesPicture->setVisible(!components);
    for (const AddFromProjectForm::Row &row : m_form.Rows()) {
        auto *item = new QTreeWidgetItem(m_items, {row.text, row.version, row.filename, row.guid});
        item->setData(0, Qt::UserRole, row.key);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(0, row.checked ? Qt::Checked : Qt::Unchecked);
    }
    // The sorted column's header shows the picture of its order.
    for (int c = 0; c < m_items->columnCount(); ++c)
        m_items->headerItem()->setIcon(
            c, Images::icon(QStringLiteral("ilsImages"), m_form.ColumnIcon(c + 1)));
    for (int c = 0; c < 3; ++c)
        m_items->resizeColumnToContents(c);
    const int column = m_form.SortColumn();
    m_items->header()->setSortIndicatorShown(column != 0);
    if (column != 0)
        m_items->header()->setSortIndicator(
            column - 1, m_form.SortOrder() == 1 ? Qt::DescendingOrder : Qt::AscendingOrder);
    m_ok->setEnabled(m_form.OKEnabled());
    m_filling = false;
}

void frmAddFromProject::ItemChanged(QTreeWidgetItem *item)
{
    if (m_filling)
        return;
    m_form.setItemChecked(item->data(0, Qt::UserRole).toString(),
                          item->checkState(0) == Qt::Checked);
    m_ok->setEnabled(m_form.OKEnabled());
}
