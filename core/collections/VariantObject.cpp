#include "collections/VariantObject.h"

bool VariantObject::holdsObject(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<VariantObject>();
}

const void *VariantObject::identity(const QVariant &value)
{
    if (!holdsObject(value))
        return nullptr;
    return static_cast<const VariantObject *>(value.constData())->m_object.get();
}

QVariant VariantObject::null()
{
    return QVariant::fromValue(VariantObject());
}
