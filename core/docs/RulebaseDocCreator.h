#pragma once

#include "collections/ObjectArrayList.h"
#include "collections/ObjectKeyedArrayList.h"

#include <QDate>
#include <QString>

#include <memory>
#include <optional>

class AuthorisedComponent;
class AuthorisedReference;
class CategoryItem;
class IListItem;
class IRule;
class Rulebase;
class SeverityItem;
class TableItem;
class TagItem;

// Prints a rulebase's coding standards as one static HTML 4.0 file beside the rulebase: a
// title page, the contents, and a page for each section of its report plan. Titles and
// descriptions go into the HTML as they stand, so that they may carry markup of their own.
// The document is built in memory and replaces the old one only once it is whole.
class RulebaseDocCreator final
{
public:
    // `filename` receives the document's name. False when the document could not be made: the
    // error has been reported, and any earlier document is left as it was. The control and
    // data type tags are sorted by name in the rulebase itself, as the document shows them.
    bool CreateDocumentation(Rulebase &rulebase, QString &filename);

    // The file to write instead of the one beside the rulebase; empty (the default) keeps to
    // the rulebase's name.
    void setTargetFilename(const QString &filename) { m_targetFilename = filename; }
    QString TargetFilename() const { return m_targetFilename; }

    // The organisation the standards are published for. Unless set, CreateDocumentation takes
    // the remembered one, or asks for it.
    void setOrganisation(const QString &organisation) { m_organisation = organisation; }
    // The publication date; today unless set.
    void setPublished(const QDate &date) { m_published = date; }

    // The remembered organisation, or one asked for and then remembered; false when the
    // person gave none.
    static bool ResolveOrganisation(QString &organisation);
    // The rulebase's file name with the part behind its last "." replaced by "html".
    static QString DocumentFilename(const QString &rulebaseFilename);

private:
    using TagList = ObjectKeyedArrayList<TagItem>;
    using Sections = ObjectArrayList<IListItem>;

    bool WriteHTMLHeader(QString &out) const;
    bool CreateTitlePage(QString &out, const Rulebase &rulebase) const;
    bool CreateContentsPage(QString &out, const Sections &sections) const;
    bool CreateSectionPages(QString &out, Rulebase &rulebase, const Sections &sections) const;
    bool
    CreateCategoryPage(QString &out, const Rulebase &rulebase, const CategoryItem &category) const;
    bool CreateTagsPage(QString &out,
                        const TagList &tags,
                        const TableItem &table,
                        const QString &anchor,
                        const QString &heading,
                        int kind,
                        const QString &arrayTag = QString()) const;
    bool CreateTagRow(QString &out, const TagItem &tag, int kind) const;
    bool CreateAuthItemsPage(QString &out,
                             const TableItem &table,
                             const QString &anchor,
                             const QString &heading,
                             const Rulebase &rulebase) const;
    bool AddAuthorisedComponents(QString &out,
                                 const ObjectArrayList<AuthorisedComponent> &list) const;
    bool AddAuthorisedReferences(QString &out,
                                 const ObjectArrayList<AuthorisedReference> &list) const;
    bool CreateSeverityDetailsPage(QString &out,
                                   const TableItem &table,
                                   const QString &anchor,
                                   const ObjectKeyedArrayList<SeverityItem> &severities) const;
    bool WriteHeader(QString &out, const QString &text) const;
    bool WritePageTitle(QString &out, const QString &title, const QString &anchor) const;
    bool WriteFooter(QString &out) const;
    bool WriteHTMLFooter(QString &out) const;
    // The frame the tags, authorised items and severity pages share, around their inner table.
    void WriteTablePageTop(QString &out, const TableItem &table, const QString &tableClass) const;
    void WriteTablePageBottom(QString &out) const;

    static void GetStyleSheet(QString &out);
    static QString MakeCatIDAttribute(const QString &title);
    static QString MakeRuleAnchor(qint32 ruleID);
    static QString GetSeverityTitle(const IRule &rule,
                                    const ObjectKeyedArrayList<SeverityItem> &severities);
    static QString TableAnchor(qint32 tableType);
    static void SortTagList(TagList &tags);
    static std::shared_ptr<ObjectArrayList<AuthorisedComponent>>
    CreateAndSortACList(const Rulebase &rulebase);
    static std::shared_ptr<ObjectArrayList<AuthorisedReference>>
    CreateAndSortARList(const Rulebase &rulebase);

    std::optional<QString> m_organisation;
    QDate m_published;
    QString m_targetFilename;
};
