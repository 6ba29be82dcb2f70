#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class AddFromProject;

// The import dialog's logic: a project or group file to read, the candidates of the current
// tab with their check marks, the sort of the list, and OK enabled while anything is ticked.
// A tick writes Selected on the candidate itself.
class AddFromProjectForm final
{
public:
    enum Tab { ComponentsTab = 1, ReferencesTab = 2 };

    struct Row
    {
        QString key;  // the LibID
        QString text; // Filename of a component, Description of a reference
        QString version;
        QString filename;
        QString guid;
        bool checked = false;
    };

    explicit AddFromProjectForm(AddFromProject &importer);

    static QString Caption() { return QStringLiteral("Add Authorised Items From Project"); }
    static QString BrowseToolTip() { return QStringLiteral("Browse For Project or Group"); }

    QString File() const { return m_file; }

    int CurrentTab() const { return m_tab; }
    void setCurrentTab(int tab);
    // "imgComponents" or "imgReferences": the picture shown with the tab.
    QString TabPicture() const;
    QStringList ColumnHeaders() const;
    // The candidates of the current tab, in the order of the sort.
    QList<Row> Rows() const;
    void setItemChecked(const QString &key, bool checked);
    void SelectAll();
    void SelectNone();

    // A click on a header (1-based): ascending first, descending when already ascending by it.
    void ColumnClick(int column);
    // 0 while unsorted.
    int SortColumn() const { return m_sortColumn; }
    // 0 ascending, 1 descending.
    int SortOrder() const { return m_sortOrder; }
    // "SortAscending" or "SortDescending" on the sort column, else empty.
    QString ColumnIcon(int column) const;

    // Asks for a project or group file and reads it; true when a file was chosen.
    bool Browse();

    bool ItemsSelected() const;
    bool OKEnabled() const { return ItemsSelected(); }

    void OK();
    void Cancel();
    // True until OK.
    bool Cancelled() const { return m_cancelled; }

private:
    void SetChecked(bool checked);

    AddFromProject &m_importer;
    QString m_file;
    int m_tab = ComponentsTab;
    int m_sortColumn = 0;
    int m_sortOrder = 0;
    bool m_cancelled = true;
};
