#include "gui/dialogs/frmTagList.h"

#include "gui/dialogs/DialogSupport.h"

#include "editors/TagGridModel.h"
#include "editors/TagListForm.h"

#include <QAction>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMetaProperty>
#include <QPointer>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Draws a locked row's name in the "LockedTag" style, and keeps a refused name in edit.
class TagDelegate final : public QStyledItemDelegate
{
public:
    TagDelegate(int nameColumn, QTableView *view)
        : QStyledItemDelegate(view)
        , m_nameColumn(nameColumn)
        , m_view(view)
    {
    }

    void setModelData(QWidget *editor,
                      QAbstractItemModel *model,
                      const QModelIndex &index) const override
    {
        const QByteArray property = editor->metaObject()->userProperty().name();
        if (model->setData(index, editor->property(property.constData())))
            return;
        if (index.column() != m_nameColumn)
            return;
        // The name was refused: the row goes back into edit once this editor has closed.
        const QPersistentModelIndex again(index);
        QPointer<QTableView> view(m_view);
        QTimer::singleShot(0, m_view, [view, again] {
            if (view && again.isValid()) {
                view->setCurrentIndex(again);
                view->edit(again);
            }
        });
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.column() == m_nameColumn && index.data(TagGridModel::LockedRole).toBool()) {
            option->font.setItalic(true);
            option->palette.setColor(QPalette::Text,
                                     option->palette.color(QPalette::Disabled, QPalette::Text));
        }
    }

private:
    int m_nameColumn;
    QTableView *m_view;
};

} // namespace

frmTagList::frmTagList(TagListForm &form, QWidget *parent)
    : QDialog(parent)
    , m_form(form)
{
    setObjectName(QStringLiteral("frmTagList"));
    setWindowTitle(m_form.Caption());

    m_tabs = new QTabBar;
    m_tabs->setObjectName(QStringLiteral("tbsTagList"));
    for (const QString &tab : m_form.Tabs())
        m_tabs->addTab(tab);
    m_tabs->setVisible(m_tabs->count() > 0);

    m_sorted = new QSortFilterProxyModel(this);
    m_sorted->setSourceModel(m_form.grid());
    m_sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    // Rows keep their place while edited; the sort is redone on insert and on the option.
    m_sorted->setDynamicSortFilter(false);

    m_grid = new QTableView;
    m_grid->setObjectName(QStringLiteral("grdTags"));
    m_grid->setModel(m_sorted);
    m_grid->setItemDelegate(new TagDelegate(m_form.NameColumn(), m_grid));
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    m_grid->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                            | QAbstractItemView::AnyKeyPressed
                            | QAbstractItemView::SelectedClicked);
    m_grid->verticalHeader()->hide();
    m_grid->horizontalHeader()->setStretchLastSection(true);
    m_grid->setColumnHidden(int(m_form.Fields().size()) - 1, true); // the Locked flag
    m_grid->setContextMenuPolicy(Qt::CustomContextMenu);

    auto *menu = new QMenu(this);
    QAction *deleteTag = menu->addAction(TagListForm::DeleteMenuCaption());
    deleteTag->setObjectName(QStringLiteral("mnuDeleteTag"));

    m_insert = DialogSupport::button(QStringLiteral("cmdInsert"), QStringLiteral("&Insert"));
    m_delete = DialogSupport::button(QStringLiteral("cmdDelete"), QStringLiteral("&Delete"));
    m_insert->setVisible(m_form.InsertDeleteVisible());
    m_delete->setVisible(m_form.InsertDeleteVisible());

    auto *option = new QCheckBox(m_form.OptionCaption());
    option->setObjectName(QStringLiteral("chkOption"));
    option->setChecked(m_form.Option());
    option->setVisible(m_form.OptionVisible());

    auto *arrayTag = new QLineEdit(m_form.ArrayTag());
    arrayTag->setObjectName(QStringLiteral("txtArrayTagValue"));
    arrayTag->setMaximumWidth(120);
    auto *arrayLabel = new QLabel(TagListForm::ArrayTagLabel());
    arrayLabel->setBuddy(arrayTag);
    arrayTag->setVisible(m_form.ArrayTagVisible());
    arrayLabel->setVisible(m_form.ArrayTagVisible());

    m_ok = DialogSupport::button(QStringLiteral("cmdOK"), QStringLiteral("OK"));
    auto *cancel = DialogSupport::button(QStringLiteral("cmdCancel"), QStringLiteral("Cancel"));
    auto *help = DialogSupport::button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"));

    auto *options = new QHBoxLayout;
    options->addWidget(option);
    options->addStretch();
    options->addWidget(arrayLabel);
    options->addWidget(arrayTag);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_insert);
    buttons->addWidget(m_delete);
    buttons->addStretch();
    buttons->addWidget(m_ok);
    buttons->addWidget(cancel);
    buttons->addWidget(help);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(m_grid, 1);
    layout->addLayout(options);
    layout->addLayout(buttons);
    resize(m_form.TagType() == TagListForm::ControlTags ? 640 : 480, 440);

    SetSortKey();
    m_grid->resizeColumnsToContents();

    connect(m_grid->selectionModel(),
            &QItemSelectionModel::currentRowChanged,
            this,
            &frmTagList::SelectionChange);
    connect(m_sorted, &QAbstractItemModel::modelReset, this, &frmTagList::SelectionChange);
    connect(m_grid, &QWidget::customContextMenuRequested, this, [this, menu](const QPoint &at) {
        const QModelIndex index = m_grid->indexAt(at);
        if (index.isValid())
            m_grid->setCurrentIndex(index);
        menu->popup(m_grid->viewport()->mapToGlobal(at));
    });
    connect(deleteTag, &QAction::triggered, this, &frmTagList::DeleteSelected);
    connect(m_insert, &QPushButton::clicked, this, &frmTagList::Insert);
    connect(m_delete, &QPushButton::clicked, this, &frmTagList::DeleteSelected);
    connect(m_tabs, &QTabBar::currentChanged, this, [this](int tab) {
        m_form.SelectTab(tab);
        SetSortKey();
    });
    connect(option, &QCheckBox::toggled, this, [this](bool checked) {
        m_form.setOption(checked);
        SetSortKey();
    });
    connect(arrayTag, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_form.setArrayTag(text);
    });
    connect(m_ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    DialogSupport::connectHelp(this, help, TagListForm::HelpTopic());
    SelectionChange();
}

qint32 frmTagList::selectedRow() const
{
    const QModelIndex current = m_grid->currentIndex();
    if (!current.isValid())
        return 0;
    return m_sorted->mapToSource(current).row() + 1;
}

void frmTagList::SetSortKey()
{
    m_sorted->sort(m_form.NameColumn(), Qt::AscendingOrder);
    m_grid->horizontalHeader()->setSortIndicator(m_form.NameColumn(), Qt::AscendingOrder);
    SelectionChange();
}

void frmTagList::SelectionChange()
{
    m_insert->setEnabled(m_form.InsertDeleteEnabled());
    m_delete->setEnabled(m_form.CanDelete(selectedRow()));
}

void frmTagList::Insert()
{
    const qint32 row = m_form.Insert();
    if (row == 0)
        return;
    SetSortKey();
    const QModelIndex name
        = m_sorted->mapFromSource(m_form.grid()->index(row - 1, m_form.NameColumn()));
    m_grid->setCurrentIndex(name);
    m_grid->scrollTo(name);
    m_grid->edit(name);
}

void frmTagList::DeleteSelected()
{
    const qint32 row = selectedRow();
    if (!m_form.CanDelete(row))
        return;
    m_form.Delete(row);
    SelectionChange();
}

void frmTagList::accept()
{
    // Taking the focus finishes an edit still open in the grid.
    m_ok->setFocus();
    if (m_form.OK())
        QDialog::accept();
}

void frmTagList::reject()
{
    m_form.Cancel();
    QDialog::reject();
}
