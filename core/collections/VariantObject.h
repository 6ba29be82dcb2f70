#pragma once

#include <QMetaType>
#include <QVariant>

#include <memory>
#include <typeinfo>

// An object reference carried in a QVariant, for the lists that hold any value (ArrayList,
// KeyedArrayList). It shares ownership and is compared by identity, never by its text.
class VariantObject
{
public:
    VariantObject() = default;

    template<typename T>
    static QVariant wrap(std::shared_ptr<T> object);
    // The object when the value holds one wrapped as a T; null otherwise.
    template<typename T>
    static std::shared_ptr<T> unwrap(const QVariant &value);

    static bool holdsObject(const QVariant &value);
    // The address of the object held, or null; only meaningful when holdsObject().
    static const void *identity(const QVariant &value);
    // What an emptied slot that held an object keeps: an object reference to nothing.
    static QVariant null();

private:
    std::shared_ptr<void> m_object;
    const std::type_info *m_type = nullptr;
};

Q_DECLARE_METATYPE(VariantObject)

template<typename T>
QVariant VariantObject::wrap(std::shared_ptr<T> object)
{
    VariantObject held;
    held.m_type = &typeid(T);
    held.m_object = std::move(object);
    return QVariant::fromValue(held);
}

template<typename T>
std::shared_ptr<T> VariantObject::unwrap(const QVariant &value)
{
    if (!holdsObject(value))
        return nullptr;
    const auto held = value.value<VariantObject>();
    if (!held.m_type || *held.m_type != typeid(T))
        return nullptr;
    return std::static_pointer_cast<T>(held.m_object);
}
