#pragma once

#include "collections/ObjectKeyedArrayList.h"

#include <QString>
#include <QStringList>

#include <memory>

class TagGridModel;
class TagItem;

// Edits one tag set of the rulebase on clones: OK replaces the set's contents, Cancel leaves
// them. Data type tags keep their stereotypes, the names in parentheses, on a tab of their own.
class TagListForm final
{
public:
    enum TagType { ControlTags = 1, DataTypeTags = 2, ScopeTags = 3 };
    enum Field { TagName, TagValue, TagDescription, TagExample, Locked };
    using TagList = ObjectKeyedArrayList<TagItem>;

    TagListForm();
    ~TagListForm();

    // Clones the set; the stereotypes of the data type set go to the second list.
    void Initialise(std::shared_ptr<TagList> tagList, qint32 tagType);
    qint32 TagType() const { return m_tagType; }

    // The options the caller sets before Initialise and copies back afterwards; Cancel puts back
    // what they were at Initialise.
    bool UnknownControlViolation() const;
    void setUnknownControlViolation(bool raise);
    bool UseCTagsAsDTTags() const;
    void setUseCTagsAsDTTags(bool use);
    QString ArrayTag() const;
    void setArrayTag(const QString &tag);

    // The face of the type.
    QString Caption() const;
    // The grid's fields in column order, with their captions; the Locked flag comes last.
    QList<Field> Fields() const;
    QStringList ColumnCaptions() const;
    // The 0-based column of TagName, on which the grid sorts ascending.
    int NameColumn() const { return m_tagType == ControlTags ? 1 : 0; }
    QStringList Tabs() const;
    bool InsertDeleteVisible() const { return m_tagType != ScopeTags; }
    bool OptionVisible() const { return m_tagType != ScopeTags; }
    QString OptionCaption() const;
    bool Option() const;
    bool ArrayTagVisible() const { return m_tagType == DataTypeTags; }
    static QString ArrayTagLabel() { return QStringLiteral("&Array Tag Value"); }
    static QString DeleteMenuCaption() { return QStringLiteral("&Delete Tag"); }
    static QString HelpTopic() { return QStringLiteral("::/TagList.htm"); }

    // The rows of the grid: the current list.
    TagGridModel *grid() const { return m_grid.get(); }
    std::shared_ptr<TagList> currentList() const { return m_current; }
    std::shared_ptr<TagList> firstList() const { return m_first; }
    std::shared_ptr<TagList> secondList() const { return m_second; }

    // 0 the first tab; the second exists for data types only.
    int CurrentTab() const { return m_tab; }
    // False when the change is refused.
    bool SelectTab(int tab);
    // Insert and delete work on the first list only.
    bool InsertDeleteEnabled() const { return InsertDeleteVisible() && m_tab == 0; }

    // By name in the current list, ignoring case.
    bool ContainsTag(const QString &name) const;
    // A new "New Item<n>" row; gives its 1-based position in the current list.
    qint32 Insert();
    // Delete of the row at a 1-based position; a locked row is kept.
    bool CanDelete(qint32 row) const;
    void Delete(qint32 row);
    // A locked row's name can't be edited.
    bool NameEditable(qint32 row) const;
    // The name of a row being left: for control and data type tags it must not be empty.
    // A failure shows its warning.
    bool GridIsValid(const QString &name) const;

    // chkOption_Click.
    void setOption(bool checked);

    // Replaces the set's contents with the clones; false when that failed (reported) and the
    // dialog stays open with the set untouched.
    bool OK();
    void Cancel();
    bool Cancelled() const { return m_cancelled; }

    static QString UnknownProgID() { return QStringLiteral("(Unknown ProgID)"); }

private:
    void CloneTagList();
    static void addUnder(TagList &list, const std::shared_ptr<TagItem> &item);

    std::shared_ptr<TagList> m_given;
    qint32 m_tagType = ControlTags;
    std::shared_ptr<TagList> m_first;
    std::shared_ptr<TagList> m_second;
    std::shared_ptr<TagList> m_current;
    std::unique_ptr<TagGridModel> m_grid;
    int m_tab = 0;
    // "New Item" numbers go on from here; never reset while the form lives.
    qint32 m_newItemCounter = 0;

    bool m_unknownControlViolation = false;
    bool m_useCTagsAsDTTags = false;
    QString m_arrayTag;
    // The options as given, which Cancel restores.
    bool m_givenUnknownControlViolation = false;
    bool m_givenUseCTagsAsDTTags = false;
    QString m_givenArrayTag;
    bool m_cancelled = true;
};
