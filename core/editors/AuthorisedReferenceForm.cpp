#include "editors/AuthorisedReferenceForm.h"

#include "project/VirtualReference.h"
#include "project/modTypelib.h"
#include "rulebase/AuthorisedReference.h"

namespace {
constexpr qint32 referenceObject = 21;
}

AuthorisedReferenceForm::AuthorisedReferenceForm(std::shared_ptr<::AuthorisedReference> item)
    : m_item(std::move(item))
{
    if (m_item && !m_item->LibID().isEmpty()) {
        m_filename = m_item->Filename();
        m_guid = m_item->LibID();
        m_versions = m_item->VersionList();
        m_advice = m_item->Advice();
        m_description = m_item->Description();
    }
    Load();
}

void AuthorisedReferenceForm::setDescription(const QString &text)
{
    m_description = text;
    UpdateOK();
}

qint32 AuthorisedReferenceForm::ObjectType() const
{
    return referenceObject;
}

bool AuthorisedReferenceForm::TestedFieldsHoldText() const
{
    return !m_description.isEmpty() && !m_guid.isEmpty();
}

bool AuthorisedReferenceForm::TakeLibrary(const QString &path)
{
    bool ok = false;
    const std::shared_ptr<VirtualReference> reference = modTypelib::LoadReferenceFromFile(path, ok);
    if (!ok)
        return false;
    setGUID(reference->GUID());
    setVersions(reference->Version());
    setDescription(reference->Description());
    return true;
}

void AuthorisedReferenceForm::WriteItem()
{
    m_item->setDescription(m_description);
    m_item->setFilename(m_filename);
    m_item->setLibID(m_guid);
    m_item->setVersionList(m_versions);
    m_item->setAdvice(m_advice);
}
