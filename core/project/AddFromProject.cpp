#include "project/AddFromProject.h"

#include "collections/ObjectKeyedArrayList.h"
#include "collections/StringArrayList.h"
#include "editors/AddFromProjectForm.h"
#include "editors/IFormFactory.h"
#include "platform/ErrorFrame.h"
#include "platform/FileUtils.h"
#include "platform/UserInterface.h"
#include "project/AuthorisedItemsMerger.h"
#include "project/VirtualComponent.h"
#include "project/VirtualProject.h"
#include "project/VirtualReference.h"
#include "project/modQuorinUtils.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"

namespace {

constexpr const char *module = "AddFromProject";

// Whether a list holds the library but not at this version. The versions are held by a plain
// substring search ignoring case: "1.1" counts as held by "11.1; 2.0", and an empty version is
// held by every list.
template<typename List>
bool holdsLibraryWithoutVersion(const List &list, const QString &guid, const QString &version)
{
    return list.Contains(guid)
           && !AuthorisedItemsMerger::HoldsVersion(list.Item(guid)->VersionList(), version);
}

} // namespace

AddFromProject::AddFromProject()
    : m_componentList(std::make_shared<AuthorisedComponents>())
    , m_referenceList(std::make_shared<AuthorisedReferences>())
{
}

AddFromProject::~AddFromProject() = default;

void AddFromProject::ShowDialog(std::shared_ptr<Rulebase> rulebase)
{
    guardedVoid("ShowDialog", module, [&] {
        m_rulebase = std::move(rulebase);
        AddFromProjectForm form(*this);
        IFormFactory::current().runAddFromProject(form);
        m_cancelled = form.Cancelled();
    });
}

void AddFromProject::ParseSingleFile(const QString &filename)
{
    guardedVoid("ParseSingleFile", module, [&] {
        const qint32 components = m_componentList->Count();
        const qint32 references = m_referenceList->Count();
        ParseFile(filename);
        ShowNewItems(m_componentList->Count() - components,
                     m_referenceList->Count() - references,
                     FileUtils::FilenameFromFullPathName(filename));
    });
}

void AddFromProject::ParseFileList(const std::optional<QStringList> &files,
                                   std::shared_ptr<Rulebase> rulebase)
{
    guardedVoid("ParseFileList", module, [&] {
        m_rulebase = std::move(rulebase);
        if (files) {
            for (const QString &filename : *files)
                ParseFile(filename);
            ShowNewItems(m_componentList->Count(), m_referenceList->Count(), QString());
        }
        if (m_componentList->Count() + m_referenceList->Count() > 0)
            ShowDialog(m_rulebase);
    });
}

void AddFromProject::GatherCandidates(const QStringList &files, std::shared_ptr<Rulebase> rulebase)
{
    guardedVoid("GatherCandidates", module, [&] {
        m_rulebase = std::move(rulebase);
        for (const QString &filename : files)
            ParseFile(filename);
    });
}

void AddFromProject::ParseFile(const QString &filename)
{
    if (modQuorinUtils::IsVBPFile(filename))
        ParseProject(filename);
    else if (modQuorinUtils::IsVBGFile(filename))
        ParseProjectGroup(filename);
}

void AddFromProject::ParseProject(const QString &filename)
{
    auto project = std::make_shared<VirtualProject>();
    // A project that can't be read adds nothing and says nothing; a program may ask later.
    if (project->LoadProject(filename) != ProjectLoadStatus::Read) {
        m_unreadFiles << filename;
        return;
    }
    FilterReferences(*project->References());
    FilterComponents(*project->Components());
}

void AddFromProject::ParseProjectGroup(const QString &filename)
{
    const StringArrayList projects = modQuorinUtils::ProjectFileListFromVBG(filename);
    for (qint32 i = 1; i <= projects.Count(); ++i)
        ParseProject(projects.Item(i));
}

void AddFromProject::FilterComponents(const ObjectKeyedArrayList<VirtualComponent> &components)
{
    const AuthorisedComponents empty;
    const AuthorisedComponents &known = m_rulebase ? *m_rulebase->AuthorisedComponents() : empty;
    AuthorisedComponents &candidates = *m_componentList;
    const auto addCandidate = [&](const VirtualComponent &component) {
        auto item = std::make_shared<AuthorisedComponent>();
        item->setFilename(component.Filename());
        item->setVersionList(component.Version());
        item->setLibID(component.GUID());
        // Refused for a LibID held already: candidates keep the first version found.
        candidates.AddComponent(item);
    };
    for (qint32 i = 1; i <= components.Count(); ++i) {
        const VirtualComponent &component = *components.Item(i);
        const QString guid = component.GUID();
        if (!known.Contains(guid) && !candidates.Contains(guid)) {
            addCandidate(component);
            continue;
        }
        if (holdsLibraryWithoutVersion(known, guid, component.Version()))
            addCandidate(component);
        if (holdsLibraryWithoutVersion(candidates, guid, component.Version()))
            addCandidate(component);
    }
}

void AddFromProject::FilterReferences(const ObjectKeyedArrayList<VirtualReference> &references)
{
    const AuthorisedReferences empty;
    const AuthorisedReferences &known = m_rulebase ? *m_rulebase->AuthorisedReferences() : empty;
    AuthorisedReferences &candidates = *m_referenceList;
    const auto addCandidate = [&](const VirtualReference &reference) {
        auto item = std::make_shared<AuthorisedReference>();
        item->setDescription(reference.Description());
        item->setVersionList(reference.Version());
        item->setFilename(reference.Filename());
        item->setLibID(reference.GUID());
        candidates.AddReference(item);
    };
    for (qint32 i = 1; i <= references.Count(); ++i) {
        const VirtualReference &reference = *references.Item(i);
        const QString guid = reference.GUID();
        if (!known.Contains(guid) && !candidates.Contains(guid)) {
            addCandidate(reference);
            continue;
        }
        if (holdsLibraryWithoutVersion(known, guid, reference.Version()))
            addCandidate(reference);
        if (holdsLibraryWithoutVersion(candidates, guid, reference.Version()))
            addCandidate(reference);
    }
}

void AddFromProject::ShowNewItems(qint32 components, qint32 references, const QString &project)
{
    UserInterface::current().messageBox(NewItemsMessage(components, references, project),
                                        MessageButtons::OK,
                                        MessageIcon::Information,
                                        programTitle(),
                                        MessageResult::OK);
}

QString
AddFromProject::NewItemsMessage(qint32 newComponents, qint32 newReferences, const QString &project)
{
    QString text;
    if (newComponents == 0 && newReferences == 0)
        text = QStringLiteral("No new components or references were found");
    else if (newComponents > 0 && newReferences > 0)
        text = NewComponentsMessage(newComponents, true) + QStringLiteral(" and ")
               + NewReferencesMessage(newReferences, true);
    else if (newComponents > 0)
        text = NewComponentsMessage(newComponents, false);
    else
        text = NewReferencesMessage(newReferences, false);
    if (project.isEmpty())
        return text + QStringLiteral(" for the selected projects.");
    return text + QStringLiteral(" for the project '") + project + QStringLiteral("'.");
}

QString AddFromProject::NewComponentsMessage(qint32 count, bool noVerb)
{
    QString text = QString::number(count) + QStringLiteral(" new ")
                   + (count == 1 ? QStringLiteral("component") : QStringLiteral("components"));
    // No blank before the verb: the message has always read "componentwas found".
    if (!noVerb)
        text += count == 1 ? QStringLiteral("was found") : QStringLiteral("were found");
    return text;
}

QString AddFromProject::NewReferencesMessage(qint32 count, bool)
{
    // Always with its verb, which is what ends the sentence that names both kinds.
    return QString::number(count) + QStringLiteral(" new ")
           + (count == 1 ? QStringLiteral("reference was found")
                         : QStringLiteral("references were found"));
}
