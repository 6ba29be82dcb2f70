#include "project/ProjectCandidates.h"

#include "collections/ObjectKeyedArrayList.h"
#include "collections/StringArrayList.h"
#include "platform/ErrorFrame.h"
#include "project/AuthorisedItemsMerger.h"
#include "project/VirtualComponent.h"
#include "project/VirtualProject.h"
#include "project/VirtualReference.h"
#include "project/modQuorinUtils.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"

namespace {

constexpr const char *module = "ProjectCandidates";

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

ProjectCandidates::ProjectCandidates()
    : m_componentList(std::make_shared<AuthorisedComponents>())
    , m_referenceList(std::make_shared<AuthorisedReferences>())
{
}

ProjectCandidates::~ProjectCandidates() = default;

void ProjectCandidates::GatherCandidates(const QStringList &files,
                                         std::shared_ptr<Rulebase> rulebase)
{
    guardedVoid("GatherCandidates", module, [&] {
        m_rulebase = std::move(rulebase);
        for (const QString &filename : files)
            AddFile(filename);
    });
}

void ProjectCandidates::AddFile(const QString &filename)
{
    if (modQuorinUtils::IsVBPFile(filename))
        ParseProject(filename);
    else if (modQuorinUtils::IsVBGFile(filename))
        ParseProjectGroup(filename);
}

void ProjectCandidates::ParseProject(const QString &filename)
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

void ProjectCandidates::ParseProjectGroup(const QString &filename)
{
    const StringArrayList projects = modQuorinUtils::ProjectFileListFromVBG(filename);
    for (qint32 i = 1; i <= projects.Count(); ++i)
        ParseProject(projects.Item(i));
}

void ProjectCandidates::FilterComponents(const ObjectKeyedArrayList<VirtualComponent> &components)
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

void ProjectCandidates::FilterReferences(const ObjectKeyedArrayList<VirtualReference> &references)
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
