#include "editors/AuthorisedComponentForm.h"

#include "project/VirtualComponent.h"
#include "project/modTypelib.h"
#include "rulebase/AuthorisedComponent.h"

namespace {
constexpr qint32 componentObject = 4;
}

AuthorisedComponentForm::AuthorisedComponentForm(std::shared_ptr<::AuthorisedComponent> item)
    : m_item(std::move(item))
{
    if (m_item && !m_item->LibID().isEmpty()) {
        m_filename = m_item->Filename();
        m_guid = m_item->LibID();
        m_versions = m_item->VersionList();
        m_advice = m_item->Advice();
    }
    Load();
}

qint32 AuthorisedComponentForm::ObjectType() const
{
    return componentObject;
}

bool AuthorisedComponentForm::TestedFieldsHoldText() const
{
    return !m_filename.isEmpty() && !m_guid.isEmpty();
}

bool AuthorisedComponentForm::TakeLibrary(const QString &path)
{
    bool ok = false;
    const std::shared_ptr<VirtualComponent> component = modTypelib::LoadComponentFromFile(path, ok);
    if (!ok)
        return false;
    setGUID(component->GUID());
    setVersions(component->Version());
    return true;
}

void AuthorisedComponentForm::WriteItem()
{
    m_item->setFilename(m_filename);
    m_item->setLibID(m_guid);
    m_item->setVersionList(m_versions);
    m_item->setAdvice(m_advice);
}
