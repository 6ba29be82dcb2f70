#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class AuthorisedComponents;
class AuthorisedReferences;
class Rulebase;
class VirtualComponent;
class VirtualReference;
template<typename T>
class ObjectKeyedArrayList;

// Gathers the components and references that Visual Basic projects use and that a rulebase
// does not yet authorise (or not at the version found), as candidates the user ticks in the
// import dialog. The candidate lists belong to no rulebase; AuthorisedItemsMerger puts the
// ticked ones into it.
class AddFromProject final
{
public:
    AddFromProject();
    ~AddFromProject();

    void setRulebase(std::shared_ptr<Rulebase> rulebase) { m_rulebase = std::move(rulebase); }
    void setFilesList(const QStringList &files) { m_filesList = files; }

    bool Cancelled() const { return m_cancelled; }
    // Keyed by LibID; a new candidate is Selected.
    std::shared_ptr<AuthorisedComponents> ComponentList() const { return m_componentList; }
    std::shared_ptr<AuthorisedReferences> ReferenceList() const { return m_referenceList; }

    // Runs the import dialog over this object; Cancelled follows it.
    void ShowDialog(std::shared_ptr<Rulebase> rulebase);
    // A project or group file chosen in the dialog; tells what it brought in an information box.
    void ParseSingleFile(const QString &filename);
    // Files dropped on the view; without a list (nullopt) no file is read and no box comes.
    // The dialog follows only when there is at least one candidate.
    void ParseFileList(const std::optional<QStringList> &files, std::shared_ptr<Rulebase> rulebase);
    // The same reading with nobody to ask: no box, no dialog, and every candidate stays
    // Selected. For programs that take all that is found.
    void GatherCandidates(const QStringList &files, std::shared_ptr<Rulebase> rulebase);
    // The projects that could not be read since this object was made, in the order met.
    QStringList UnreadFiles() const { return m_unreadFiles; }

    // "2 new components and 1 new reference was found for the project 'a.vbp'." and the like;
    // an empty project name speaks of the selected projects.
    static QString
    NewItemsMessage(qint32 newComponents, qint32 newReferences, const QString &project);
    static QString NewComponentsMessage(qint32 count, bool noVerb);
    static QString NewReferencesMessage(qint32 count, bool noVerb);

private:
    void ParseProject(const QString &filename);
    void ParseProjectGroup(const QString &filename);
    void ParseFile(const QString &filename);
    void FilterComponents(const ObjectKeyedArrayList<VirtualComponent> &components);
    void FilterReferences(const ObjectKeyedArrayList<VirtualReference> &references);
    void ShowNewItems(qint32 components, qint32 references, const QString &project);

    bool m_cancelled = false;
    std::shared_ptr<AuthorisedComponents> m_componentList;
    std::shared_ptr<AuthorisedReferences> m_referenceList;
    std::shared_ptr<Rulebase> m_rulebase;
    QStringList m_filesList;
    QStringList m_unreadFiles;
};
