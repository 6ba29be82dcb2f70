#include "collections/ArrayList.h"

#include "collections/VariantObject.h"
#include "platform/TextUtils.h"

template class ArrayListBase<ArrayListTraits>;

bool ArrayListTraits::matches(const QVariant &stored, const QVariant &wanted)
{
    const bool storedObject = VariantObject::holdsObject(stored);
    if (storedObject != VariantObject::holdsObject(wanted))
        return false;
    if (storedObject)
        return VariantObject::identity(stored) == VariantObject::identity(wanted);
    return Text::same(stored.toString(), wanted.toString());
}

void ArrayListTraits::clearSlot(QVariant &slot)
{
    slot = VariantObject::holdsObject(slot) ? VariantObject::null() : QVariant();
}
