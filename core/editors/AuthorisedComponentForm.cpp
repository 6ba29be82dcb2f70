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
    FieldsFromItem(m_item.get());
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
    TakeGuidAndVersion(*component);
    return true;
}

void AuthorisedComponentForm::WriteItem()
{
    FieldsToItem(*m_item);
}
