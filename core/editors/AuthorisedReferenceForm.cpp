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
    if (FieldsFromItem(m_item.get()))
        m_description = m_item->Description();
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
    TakeGuidAndVersion(*reference);
    setDescription(reference->Description());
    return true;
}

void AuthorisedReferenceForm::WriteItem()
{
    m_item->setDescription(m_description);
    FieldsToItem(*m_item);
}
