#include "collections/KeyedListErrors.h"

#include "platform/QuorinError.h"

namespace KeyedListErrors {

void raiseNoSuchItem(const char *member)
{
    throw QuorinError(ErrorNumber::NoSuchItem,
                      QStringLiteral("KeyedArrayList::") + QString::fromLatin1(member),
                      QStringLiteral("No such item."));
}

void raiseDuplicateKey(const QString &key)
{
    QString text
        = QStringLiteral("The item cannot be added, because the key '%KEY%' is already in use.");
    text.replace(QStringLiteral("%KEY%"), key);
    throw QuorinError(ErrorNumber::DuplicateKey, QStringLiteral("KeyedArrayList::Add"), text);
}

} // namespace KeyedListErrors
