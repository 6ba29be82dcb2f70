#pragma once

#include <QString>
#include <QStringList>

#include <memory>

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
// ticked ones into it. Asks nobody anything: the dialog around it lives with the editors.
class ProjectCandidates final
{
public:
    ProjectCandidates();
    ~ProjectCandidates();

    void setRulebase(std::shared_ptr<Rulebase> rulebase) { m_rulebase = std::move(rulebase); }
    const std::shared_ptr<Rulebase> &rulebase() const { return m_rulebase; }

    // Keyed by LibID; a new candidate is Selected.
    std::shared_ptr<AuthorisedComponents> ComponentList() const { return m_componentList; }
    std::shared_ptr<AuthorisedReferences> ReferenceList() const { return m_referenceList; }

    // Reads a project or group file; any other kind of file adds nothing.
    void AddFile(const QString &filename);
    // Every file of the list, against that rulebase; every candidate stays Selected.
    void GatherCandidates(const QStringList &files, std::shared_ptr<Rulebase> rulebase);
    // The projects that could not be read since this object was made, in the order met.
    QStringList UnreadFiles() const { return m_unreadFiles; }

private:
    void ParseProject(const QString &filename);
    void ParseProjectGroup(const QString &filename);
    void FilterComponents(const ObjectKeyedArrayList<VirtualComponent> &components);
    void FilterReferences(const ObjectKeyedArrayList<VirtualReference> &references);

    std::shared_ptr<AuthorisedComponents> m_componentList;
    std::shared_ptr<AuthorisedReferences> m_referenceList;
    std::shared_ptr<Rulebase> m_rulebase;
    QStringList m_unreadFiles;
};
