#pragma once

#include "rulebase/AuthorisedItemList.h"
#include "rulebase/AuthorisedReference.h"

extern template class AuthorisedItemList<AuthorisedReference>;

// The type library references a rulebase authorises, keyed by LibID.
class AuthorisedReferences final : public AuthorisedItemList<AuthorisedReference>
{
public:
    AuthorisedReferences();

    // Gives a new item. When the LibID is held already nothing is added and Dirty stays: the
    // item given is blank and belongs to no list (use Item for the one held).
    std::shared_ptr<AuthorisedReference> Add(const QString &libID,
                                             const QString &description,
                                             const QString &filename,
                                             const QString &versionList,
                                             const QString &advice);
    // False, and nothing changes, when its LibID is held already.
    bool AddReference(const std::shared_ptr<AuthorisedReference> &item) { return addItem(item); }
};
