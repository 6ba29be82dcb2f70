#include "editors/AddFromProjectForm.h"

#include "editors/AddFromProject.h"
#include "platform/ErrorFrame.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/UserInterface.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"

#include <algorithm>

namespace {

constexpr const char *module = "frmAddFromProject";

template<typename List, typename Text>
void appendRows(const List &list, QList<AddFromProjectForm::Row> &rows, Text text)
{
    for (qint32 i = 1; i <= list.Count(); ++i) {
        const auto item = list.Item(i);
        rows.append({item->LibID(),
                     text(*item),
                     item->VersionList(),
                     item->Filename(),
                     item->LibID(),
                     item->Selected()});
    }
}

template<typename List>
void setSelected(const List &list, const QString &key, bool checked)
{
    if (list.Contains(key))
        list.Item(key)->setSelected(checked);
}

QString columnText(const AddFromProjectForm::Row &row, int column)
{
    switch (column) {
    case 1:
        return row.text;
    case 2:
        return row.version;
    case 3:
        return row.filename;
    default:
        return row.guid;
    }
}

} // namespace

AddFromProjectForm::AddFromProjectForm(AddFromProject &importer)
    : m_importer(importer)
{
}

void AddFromProjectForm::setCurrentTab(int tab)
{
    m_tab = tab == ReferencesTab ? ReferencesTab : ComponentsTab;
}

QString AddFromProjectForm::TabPicture() const
{
    return m_tab == ComponentsTab ? QStringLiteral("imgComponents")
                                  : QStringLiteral("imgReferences");
}

QStringList AddFromProjectForm::ColumnHeaders() const
{
    return {m_tab == ComponentsTab ? QStringLiteral("Component") : QStringLiteral("Description"),
            QStringLiteral("Version"),
            QStringLiteral("Filename"),
            QStringLiteral("GUID")};
}

QList<AddFromProjectForm::Row> AddFromProjectForm::Rows() const
{
    QList<Row> rows;
    guardedVoid("FillList", module, [&] {
        if (m_tab == ComponentsTab)
            appendRows(*m_importer.ComponentList(), rows, [](const AuthorisedComponent &item) {
                return item.Filename();
            });
        else
            appendRows(*m_importer.ReferenceList(), rows, [](const AuthorisedReference &item) {
                return item.Description();
            });
        if (m_sortColumn == 0)
            return;
        // By the column's text, as a list sorts, ignoring case.
        std::stable_sort(rows.begin(), rows.end(), [this](const Row &a, const Row &b) {
            const int order = QString::compare(
                columnText(a, m_sortColumn), columnText(b, m_sortColumn), Qt::CaseInsensitive);
            return m_sortOrder == 0 ? order < 0 : order > 0;
        });
    });
    return rows;
}

void AddFromProjectForm::setItemChecked(const QString &key, bool checked)
{
    guardedVoid("lvwItems_ItemCheck", module, [&] {
        if (m_tab == ComponentsTab)
            setSelected(*m_importer.ComponentList(), key, checked);
        else
            setSelected(*m_importer.ReferenceList(), key, checked);
    });
}

void AddFromProjectForm::SelectAll()
{
    SetChecked(true);
}

void AddFromProjectForm::SelectNone()
{
    SetChecked(false);
}

void AddFromProjectForm::SetChecked(bool checked)
{
    // Through the same path as a click on each item.
    for (const Row &row : Rows())
        setItemChecked(row.key, checked);
}

void AddFromProjectForm::ColumnClick(int column)
{
    if (column == m_sortColumn && m_sortOrder == 0) {
        m_sortOrder = 1;
    } else {
        m_sortColumn = column;
        m_sortOrder = 0;
    }
}

QString AddFromProjectForm::ColumnIcon(int column) const
{
    if (column == 0 || column != m_sortColumn)
        return QString();
    return m_sortOrder == 1 ? QStringLiteral("SortDescending") : QStringLiteral("SortAscending");
}

bool AddFromProjectForm::Browse()
{
    return guarded("cmdBrowse_Click", module, false, [this] {
        FileDialogRequest request;
        request.fileType = 5;
        request.title = QStringLiteral("Select VB Project or Group File");
        request.folder = gobjAdminData ? gobjAdminData->LastPath() : QString();
        if (!UserInterface::current().getOpenFilename(request))
            return false;
        if (gobjAdminData)
            gobjAdminData->setLastPath(request.folder);
        m_file = request.path;
        m_importer.ParseSingleFile(m_file);
        return true;
    });
}

bool AddFromProjectForm::ItemsSelected() const
{
    return m_importer.ComponentList()->SelectedCount() + m_importer.ReferenceList()->SelectedCount()
           >= 1;
}

void AddFromProjectForm::OK()
{
    m_cancelled = false;
}

void AddFromProjectForm::Cancel()
{
    m_cancelled = true;
}
