#include "project/AuthorisedItemsMerger.h"

#include "project/VirtualComponent.h"
#include "project/VirtualReference.h"
#include "project/modTypelib.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"

namespace {

QString joinVersion(const QString &versionList, const QString &version)
{
    return versionList + QStringLiteral("; ") + version;
}

bool isControlFile(const QString &filename)
{
    return filename.right(3).toUpper() == QLatin1String("OCX");
}

} // namespace

QString AuthorisedItemChange::libID() const
{
    return component ? component->LibID() : reference ? reference->LibID() : QString();
}

QString AuthorisedItemChange::versionList() const
{
    return component ? component->VersionList() : reference ? reference->VersionList() : QString();
}

AuthorisedItemsMerger::AuthorisedItemsMerger(Rulebase &rulebase)
    : m_rulebase(rulebase)
{
}

bool AuthorisedItemsMerger::HoldsVersion(const QString &versionList, const QString &version)
{
    return versionList.contains(version, Qt::CaseInsensitive);
}

bool AuthorisedItemsMerger::IsActiveXFilename(const QString &filename)
{
    const QString type = filename.right(3).toUpper();
    return !type.isEmpty() && QStringLiteral("DLL|EXE|OCX|TLB|OLB").contains(type);
}

qint32 AuthorisedItemsMerger::AddedCount() const
{
    qint32 count = 0;
    for (const AuthorisedItemChange &change : m_changes)
        count += change.added ? 1 : 0;
    return count;
}

void AuthorisedItemsMerger::MergeSelected(const AuthorisedComponents &components,
                                          const AuthorisedReferences &references)
{
    AuthorisedComponents &knownComponents = *m_rulebase.AuthorisedComponents();
    for (qint32 i = 1; i <= components.Count(); ++i) {
        const std::shared_ptr<AuthorisedComponent> item = components.Item(i);
        if (!item->Selected())
            continue;
        const qint32 index = knownComponents.FindByLibID(item->LibID());
        if (index == -1)
            AddComponent(item);
        else
            // The new version joins the list, repeats and all.
            AddComponentVersion(knownComponents.Item(index), item->VersionList());
    }

    AuthorisedReferences &knownReferences = *m_rulebase.AuthorisedReferences();
    for (qint32 i = 1; i <= references.Count(); ++i) {
        const std::shared_ptr<AuthorisedReference> item = references.Item(i);
        if (!item->Selected())
            continue;
        const qint32 index = knownReferences.FindByLibID(item->LibID());
        if (index == -1)
            AddReference(item);
        else
            AddReferenceVersion(knownReferences.Item(index), item->VersionList());
    }
}

ActiveXFileResult AuthorisedItemsMerger::MergeActiveXFile(const QString &filename)
{
    bool ok = false;
    if (isControlFile(filename)) {
        const std::shared_ptr<VirtualComponent> file
            = modTypelib::LoadComponentFromFile(filename, ok);
        if (!ok)
            return ActiveXFileResult::ControlWithoutLibrary;
        AuthorisedComponents &components = *m_rulebase.AuthorisedComponents();
        const qint32 index = components.FindByLibID(file->GUID());
        if (index != -1) {
            const std::shared_ptr<AuthorisedComponent> known = components.Item(index);
            if (!HoldsVersion(known->VersionList(), file->Version()))
                AddComponentVersion(known, file->Version());
            return ActiveXFileResult::Merged;
        }
        auto item = std::make_shared<AuthorisedComponent>();
        item->setFilename(file->Filename());
        item->setLibID(file->GUID());
        item->setVersionList(file->Version());
        AddComponent(item);
        return ActiveXFileResult::Merged;
    }

    const std::shared_ptr<VirtualReference> file = modTypelib::LoadReferenceFromFile(filename, ok);
    if (!ok)
        return ActiveXFileResult::NotActiveX;
    AuthorisedReferences &references = *m_rulebase.AuthorisedReferences();
    const qint32 index = references.FindByLibID(file->GUID());
    if (index != -1) {
        const std::shared_ptr<AuthorisedReference> known = references.Item(index);
        if (!HoldsVersion(known->VersionList(), file->Version()))
            AddReferenceVersion(known, file->Version());
        return ActiveXFileResult::Merged;
    }
    auto item = std::make_shared<AuthorisedReference>();
    item->setFilename(file->Filename());
    item->setDescription(file->Description());
    item->setLibID(file->GUID());
    item->setVersionList(file->Version());
    AddReference(item);
    return ActiveXFileResult::Merged;
}

void AuthorisedItemsMerger::AddComponent(const std::shared_ptr<AuthorisedComponent> &item)
{
    if (!m_rulebase.AuthorisedComponents()->AddComponent(item))
        return;
    AuthorisedItemChange change;
    change.kind = AuthorisedItemChange::Kind::Component;
    change.added = true;
    change.component = item;
    change.version = item->VersionList();
    m_changes.push_back(change);
}

void AuthorisedItemsMerger::AddComponentVersion(const std::shared_ptr<AuthorisedComponent> &known,
                                                const QString &version)
{
    known->setVersionList(joinVersion(known->VersionList(), version));
    m_rulebase.AuthorisedComponents()->setDirty(true);
    AuthorisedItemChange change;
    change.kind = AuthorisedItemChange::Kind::Component;
    change.component = known;
    change.version = version;
    m_changes.push_back(change);
}

void AuthorisedItemsMerger::AddReference(const std::shared_ptr<AuthorisedReference> &item)
{
    if (!m_rulebase.AuthorisedReferences()->AddReference(item))
        return;
    AuthorisedItemChange change;
    change.kind = AuthorisedItemChange::Kind::Reference;
    change.added = true;
    change.reference = item;
    change.version = item->VersionList();
    m_changes.push_back(change);
}

void AuthorisedItemsMerger::AddReferenceVersion(const std::shared_ptr<AuthorisedReference> &known,
                                                const QString &version)
{
    known->setVersionList(joinVersion(known->VersionList(), version));
    m_rulebase.AuthorisedReferences()->setDirty(true);
    AuthorisedItemChange change;
    change.kind = AuthorisedItemChange::Kind::Reference;
    change.reference = known;
    change.version = version;
    m_changes.push_back(change);
}
