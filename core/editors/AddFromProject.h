#pragma once

#include "project/ProjectCandidates.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class AuthorisedComponents;
class AuthorisedReferences;
class Rulebase;

// Adding authorised items from projects as the user does it: the candidates gathered from the
// files chosen or dropped, what each brought told in a box, and the import dialog in which
// the user ticks them.
class AddFromProject final
{
public:
    void setRulebase(std::shared_ptr<Rulebase> rulebase)
    {
        m_candidates.setRulebase(std::move(rulebase));
    }
    bool Cancelled() const { return m_cancelled; }
    std::shared_ptr<AuthorisedComponents> ComponentList() const
    {
        return m_candidates.ComponentList();
    }
    std::shared_ptr<AuthorisedReferences> ReferenceList() const
    {
        return m_candidates.ReferenceList();
    }
    QStringList UnreadFiles() const { return m_candidates.UnreadFiles(); }

    // Runs the import dialog over this object; Cancelled follows it.
    void ShowDialog(std::shared_ptr<Rulebase> rulebase);
    // A project or group file chosen in the dialog; tells what it brought in an information box.
    void ParseSingleFile(const QString &filename);
    // Files dropped on the view; without a list (nullopt) no file is read and no box comes.
    // The dialog follows only when there is at least one candidate.
    void ParseFileList(const std::optional<QStringList> &files, std::shared_ptr<Rulebase> rulebase);

    // "2 new components and 1 new reference was found for the project 'a.vbp'." and the like;
    // an empty project name speaks of the selected projects.
    static QString
    NewItemsMessage(qint32 newComponents, qint32 newReferences, const QString &project);
    static QString NewComponentsMessage(qint32 count, bool noVerb);
    static QString NewReferencesMessage(qint32 count, bool noVerb);

private:
    void ShowNewItems(qint32 components, qint32 references, const QString &project);

    ProjectCandidates m_candidates;
    bool m_cancelled = false;
};
