#include "gui/dialogs/frmRulebaseDocCreator.h"

#include "editors/RulebaseDocCreatorForm.h"
#include "platform/UserInterface.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

// The pictures of the rows; the model names them, the style draws them.
QIcon imageOf(const QString &image)
{
    QStyle *style = QApplication::style();
    if (image == QLatin1String("Category"))
        return style->standardIcon(QStyle::SP_DirIcon);
    if (image == QLatin1String("Table"))
        return style->standardIcon(QStyle::SP_FileDialogDetailedView);
    if (image == QLatin1String("CodingConvention"))
        return style->standardIcon(QStyle::SP_FileIcon);
    if (image == QLatin1String("NamingConvention"))
        return style->standardIcon(QStyle::SP_FileDialogInfoView);
    if (image == QLatin1String("UnauthorisedKeyword"))
        return style->standardIcon(QStyle::SP_MessageBoxWarning);
    if (image == QLatin1String("DocumentationConvention"))
        return style->standardIcon(QStyle::SP_FileDialogContentsView);
    return QIcon();
}

// The name of the row's picture, for whoever reads the list back.
constexpr int ImageRole = Qt::UserRole + 1;

QPlainTextEdit *readOnlyText(const QString &name)
{
    auto *text = new QPlainTextEdit;
    text->setObjectName(name);
    text->setReadOnly(true);
    text->setMaximumHeight(80);
    return text;
}

QPushButton *button(const QString &name, const QString &caption)
{
    auto *b = new QPushButton(caption);
    b->setObjectName(name);
    b->setAutoDefault(false);
    return b;
}

QTreeWidget *rowList(const QString &name, const QStringList &columns)
{
    auto *list = new QTreeWidget;
    list->setObjectName(name);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setHeaderLabels(columns);
    list->header()->setStretchLastSection(true);
    return list;
}

} // namespace

frmRulebaseDocCreator::frmRulebaseDocCreator(RulebaseDocCreatorForm &form, QWidget *parent)
    : QDialog(parent)
    , m_form(form)
{
    setObjectName(QStringLiteral("frmRulebaseDocCreator"));
    setWindowTitle(QStringLiteral("Documentation Wizard"));
    setSizeGripEnabled(true);
    buildWidgets();
    resize(760, 540);
    m_form.Load();
    refresh();
}

QString frmRulebaseDocCreator::helpTopic()
{
    return QStringLiteral("::/DocumentationWizard.htm");
}

void frmRulebaseDocCreator::buildWidgets()
{
    m_tabs = new QTabWidget;
    m_tabs->setObjectName(QStringLiteral("tbsDocCreator"));

    // "Categories": the sections in document order, and the rules of the selected one.
    auto *categoriesTab = new QWidget;
    categoriesTab->setObjectName(QStringLiteral("picTab"));
    auto *sectionsFrame = new QGroupBox(QStringLiteral("Sections"));
    sectionsFrame->setObjectName(QStringLiteral("fraSections"));
    m_sections = rowList(QStringLiteral("lvwSections"), {QStringLiteral("Category Title")});
    m_sectionDescription = readOnlyText(QStringLiteral("txtSectionDescription"));
    m_moveSectionUp = button(QStringLiteral("cmdMoveSectionUp"), QStringLiteral("Move Up"));
    m_moveSectionDown = button(QStringLiteral("cmdMoveSectionDown"), QStringLiteral("Move Down"));
    {
        auto *layout = new QGridLayout(sectionsFrame);
        layout->addWidget(m_sections, 0, 0, 2, 1);
        layout->addWidget(m_moveSectionUp, 0, 1, Qt::AlignTop);
        layout->addWidget(m_moveSectionDown, 1, 1, Qt::AlignTop);
        layout->addWidget(new QLabel(QStringLiteral("Description")), 2, 0, 1, 2);
        layout->addWidget(m_sectionDescription, 3, 0, 1, 2);
        layout->setRowStretch(1, 1);
    }
    auto *rulesFrame = new QGroupBox(QStringLiteral("Rules"));
    rulesFrame->setObjectName(QStringLiteral("fraRules"));
    m_rules = rowList(QStringLiteral("lvwRules"),
                      {QStringLiteral("Rule ID"), QStringLiteral("Rule Title")});
    m_rules->setColumnWidth(0, 80);
    m_ruleDescription = readOnlyText(QStringLiteral("txtRuleDescription"));
    m_moveRuleUp = button(QStringLiteral("cmdMoveRuleUp"), QStringLiteral("Move Up"));
    m_moveRuleDown = button(QStringLiteral("cmdMoveRuleDown"), QStringLiteral("Move Down"));
    {
        auto *layout = new QGridLayout(rulesFrame);
        layout->addWidget(m_rules, 0, 0, 2, 1);
        layout->addWidget(m_moveRuleUp, 0, 1, Qt::AlignTop);
        layout->addWidget(m_moveRuleDown, 1, 1, Qt::AlignTop);
        layout->addWidget(new QLabel(QStringLiteral("Description")), 2, 0, 1, 2);
        layout->addWidget(m_ruleDescription, 3, 0, 1, 2);
        layout->setRowStretch(1, 1);
    }
    {
        auto *layout = new QHBoxLayout(categoriesTab);
        layout->addWidget(sectionsFrame);
        layout->addWidget(rulesFrame);
    }
    m_tabs->addTab(categoriesTab, QStringLiteral("Categories"));

    // "Tables": which generated tables stand in the document, with their texts.
    auto *tablesTab = new QWidget;
    tablesTab->setObjectName(QStringLiteral("picTab"));
    auto *tablesFrame = new QGroupBox;
    tablesFrame->setObjectName(QStringLiteral("fraTables"));
    m_tables = new QListWidget;
    m_tables->setObjectName(QStringLiteral("lvwTables"));
    m_title = new QLineEdit;
    m_title->setObjectName(QStringLiteral("txtTitle"));
    m_description = new QPlainTextEdit;
    m_description->setObjectName(QStringLiteral("txtDescription"));
    {
        auto *layout = new QVBoxLayout(tablesFrame);
        layout->addWidget(m_tables, 1);
        auto *titleLabel = new QLabel(QStringLiteral("Table Title"));
        titleLabel->setBuddy(m_title);
        layout->addWidget(titleLabel);
        layout->addWidget(m_title);
        auto *descriptionLabel = new QLabel(QStringLiteral("Table Description"));
        descriptionLabel->setBuddy(m_description);
        layout->addWidget(descriptionLabel);
        layout->addWidget(m_description, 1);
    }
    (new QVBoxLayout(tablesTab))->addWidget(tablesFrame);
    m_tabs->addTab(tablesTab, QStringLiteral("Tables"));

    auto *generate = button(QStringLiteral("cmdGenerate"), QStringLiteral("&Generate"));
    auto *ok = button(QStringLiteral("cmdOK"), QStringLiteral("OK"));
    ok->setDefault(true);
    auto *cancel = button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    auto *help = button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(generate);
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    buttons->addWidget(help);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addLayout(buttons);

    connect(m_sections, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (m_refreshing || !item)
            return;
        m_form.clickSection(m_sections->indexOfTopLevelItem(item));
        refresh();
    });
    connect(m_rules, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (m_refreshing || !item)
            return;
        m_form.clickRule(m_rules->indexOfTopLevelItem(item));
        refresh();
    });
    connect(m_tables, &QListWidget::currentRowChanged, this, [this](int row) {
        if (m_refreshing || row < 0)
            return;
        m_form.clickTable(row);
        refresh();
    });
    connect(m_tables, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) {
        if (m_refreshing)
            return;
        m_form.checkTable(m_tables->row(item), item->checkState() == Qt::Checked);
        refresh();
    });
    connect(m_title, &QLineEdit::textEdited, this, [this](const QString &text) {
        m_form.editTableTitle(text);
        refresh();
    });
    connect(m_description, &QPlainTextEdit::textChanged, this, [this] {
        if (m_refreshing)
            return;
        m_form.editTableDescription(m_description->toPlainText());
        refresh();
    });
    connect(m_moveSectionUp, &QPushButton::clicked, this, [this] {
        m_form.moveSectionUp();
        refresh();
    });
    connect(m_moveSectionDown, &QPushButton::clicked, this, [this] {
        m_form.moveSectionDown();
        refresh();
    });
    connect(m_moveRuleUp, &QPushButton::clicked, this, [this] {
        m_form.moveRuleUp();
        refresh();
    });
    connect(m_moveRuleDown, &QPushButton::clicked, this, [this] {
        m_form.moveRuleDown();
        refresh();
    });
    connect(generate, &QPushButton::clicked, this, [this] {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        m_form.Generate();
        QApplication::restoreOverrideCursor();
    });
    connect(ok, &QPushButton::clicked, this, &frmRulebaseDocCreator::accept);
    connect(cancel, &QPushButton::clicked, this, &frmRulebaseDocCreator::reject);
    connect(help, &QPushButton::clicked, this, &frmRulebaseDocCreator::showHelp);
}

void frmRulebaseDocCreator::fillTree(QTreeWidget *tree,
                                     const std::vector<DocCreatorRow> &rows,
                                     int selected,
                                     bool rules)
{
    // Rebuilt only when the rows differ, so that scrolling and focus survive a plain click.
    bool same = tree->topLevelItemCount() == int(rows.size());
    for (int i = 0; same && i < int(rows.size()); ++i) {
        const QTreeWidgetItem *item = tree->topLevelItem(i);
        same = item->data(0, Qt::UserRole).toString() == rows[std::size_t(i)].key
               && item->text(0) == rows[std::size_t(i)].text
               && (!rules || item->text(1) == rows[std::size_t(i)].subItem);
    }
    if (!same) {
        tree->clear();
        for (const DocCreatorRow &row : rows) {
            auto *item = new QTreeWidgetItem(tree);
            item->setText(0, row.text);
            if (rules)
                item->setText(1, row.subItem);
            item->setData(0, Qt::UserRole, row.key);
            item->setData(0, ImageRole, row.image);
            item->setIcon(0, imageOf(row.image));
        }
    }
    QTreeWidgetItem *current = selected >= 0 ? tree->topLevelItem(selected) : nullptr;
    tree->setCurrentItem(current);
    if (current)
        tree->scrollToItem(current);
    else
        tree->clearSelection();
}

void frmRulebaseDocCreator::refresh()
{
    m_refreshing = true;
    fillTree(m_sections, m_form.sectionRows(), m_form.selectedSection(), false);
    fillTree(m_rules, m_form.ruleRows(), m_form.selectedRule(), true);

    const auto &tables = m_form.tableRows();
    if (m_tables->count() != int(tables.size())) {
        m_tables->clear();
        for (const DocCreatorRow &row : tables) {
            auto *item = new QListWidgetItem(imageOf(row.image), row.text, m_tables);
            item->setData(Qt::UserRole, row.key);
            item->setData(ImageRole, row.image);
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        }
    }
    for (int i = 0; i < int(tables.size()); ++i) {
        QListWidgetItem *item = m_tables->item(i);
        item->setText(tables[std::size_t(i)].text);
        item->setCheckState(tables[std::size_t(i)].checked ? Qt::Checked : Qt::Unchecked);
    }
    m_tables->setCurrentRow(m_form.selectedTable());

    m_sectionDescription->setPlainText(m_form.sectionDescription());
    m_ruleDescription->setPlainText(m_form.ruleDescription());
    if (m_title->text() != m_form.tableTitle())
        m_title->setText(m_form.tableTitle());
    if (m_description->toPlainText() != m_form.tableDescription())
        m_description->setPlainText(m_form.tableDescription());
    const bool tableSelected = m_form.selectedTable() >= 0;
    m_title->setEnabled(tableSelected);
    m_description->setEnabled(tableSelected);

    m_moveSectionUp->setEnabled(m_form.moveSectionUpEnabled());
    m_moveSectionDown->setEnabled(m_form.moveSectionDownEnabled());
    m_moveRuleUp->setEnabled(m_form.moveRuleUpEnabled());
    m_moveRuleDown->setEnabled(m_form.moveRuleDownEnabled());
    m_refreshing = false;
}

void frmRulebaseDocCreator::accept()
{
    m_form.OK();
    QDialog::accept();
}

void frmRulebaseDocCreator::reject()
{
    if (m_form.Cancel())
        QDialog::reject();
}

void frmRulebaseDocCreator::closeEvent(QCloseEvent *event)
{
    // The frame's close is the Cancel button; the dialog stays unless Cancel lets it go.
    event->ignore();
    reject();
}

void frmRulebaseDocCreator::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_F1) {
        showHelp();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmRulebaseDocCreator::showHelp()
{
    UserInterface::current().showHelp(HelpCommand::Topic, helpTopic(), 0);
}
