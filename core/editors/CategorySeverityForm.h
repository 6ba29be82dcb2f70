#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class IKeyedList;
class Rulebase;

// The list of categories (add, edit, delete) or of the five severities (edit only), one dialog
// with two faces. Edits go straight into the list it is given; Dirty tells the caller that
// something changed.
class CategorySeverityForm final
{
public:
    enum Type { Categories = 1, Severities = 2 };

    struct Row
    {
        QString key;
        QString text;
        // Categories: "Folder" or "HiddenFolder".
        QString image;
        // Severities: the level's words, the impact, and the icon.
        QString severityLevelText;
        QString impact;
        qint32 colour = 0;
    };

    // 1 categories; any other value severities.
    void setDialogType(qint32 type) { m_dialogType = type; }
    qint32 DialogType() const { return m_dialogType; }
    bool isCategoryList() const { return m_dialogType == Categories; }
    void setItemList(std::shared_ptr<IKeyedList> list) { m_itemList = std::move(list); }
    // Only the category face needs it, to move the rules of a deleted category.
    void setRulebase(std::shared_ptr<Rulebase> rulebase) { m_rulebase = std::move(rulebase); }
    // The images the severity editor offers.
    void setImageCount(qint32 count) { m_imageCount = count; }
    qint32 ImageCount() const { return m_imageCount; }
    bool Dirty() const { return m_dirty; }

    QString Caption() const;
    int HelpContextID() const;
    QString HelpTopic() const;
    QString ListLabel() const;
    QStringList Columns() const;
    // Add and Delete exist on the category face only.
    bool AddDeleteVisible() const { return isCategoryList(); }

    // Fills the rows and selects the first.
    void Load();
    const std::vector<Row> &rows() const { return m_rows; }
    // 0-based; -1 when none is selected.
    int selectedRow() const { return m_selected; }
    // A click on a row: selects it and shows its description.
    void selectRow(int row);
    QString SelectedDescription() const { return m_description; }

    bool CanEdit() const { return !m_rows.empty(); }
    bool CanDelete() const { return isCategoryList() && !m_rows.empty(); }

    // cmdAdd: a new category through the category editor.
    void Add();
    // cmdEdit and a double click: the selected row's editor.
    void Edit();
    // cmdDelete: after the user agrees, the category goes and its rules and default
    // violations move to no category.
    void Delete();
    // cmdClose and the window's close: whether the dialog may go.
    bool RequestClose();

    static QString DeleteQuestion();
    static QString DuplicateColourWarning();

private:
    void PopulateListView();
    Row rowOf(qint32 index) const;
    void DisplayCategoryEditor(int itemIndex);
    void DisplaySeverityEditor();
    void MoveCategoryItemsToUnallocated(qint32 categoryID);
    bool ValidInput() const;

    qint32 m_dialogType = Categories;
    std::shared_ptr<IKeyedList> m_itemList;
    std::shared_ptr<Rulebase> m_rulebase;
    qint32 m_imageCount = 16;
    bool m_dirty = false;
    std::vector<Row> m_rows;
    int m_selected = -1;
    QString m_description;
};
