#include "platform/QuorinError.h"

QuorinError::QuorinError(qint32 number, QString source, QString description)
    : m_number(number)
    , m_source(std::move(source))
    , m_description(std::move(description))
    , m_what(QStringLiteral("%1 - %2 (%3)").arg(number).arg(m_description, m_source).toUtf8())
{
}

QuorinError QuorinError::subscriptOutOfRange(const QString &source)
{
    return {ErrorNumber::SubscriptOutOfRange, source, QStringLiteral("Subscript out of range")};
}

QuorinError QuorinError::objectNotSet(const QString &source)
{
    return {ErrorNumber::ObjectNotSet,
            source,
            QStringLiteral("Object variable or With block variable not set")};
}

QuorinError QuorinError::typeMismatch(const QString &source)
{
    return {ErrorNumber::TypeMismatch, source, QStringLiteral("Type mismatch")};
}

QuorinError QuorinError::overflow(const QString &source)
{
    return {ErrorNumber::Overflow, source, QStringLiteral("Overflow")};
}

QuorinError QuorinError::fromStd(const std::exception &e)
{
    if (const auto *own = dynamic_cast<const QuorinError *>(&e))
        return *own;
    if (dynamic_cast<const std::bad_alloc *>(&e))
        return {7, QString(), QStringLiteral("Out of memory")};
    return {5, QString(), QString::fromLocal8Bit(e.what())};
}
