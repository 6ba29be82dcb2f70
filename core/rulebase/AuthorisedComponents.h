#pragma once

#include "rulebase/AuthorisedComponent.h"
#include "rulebase/AuthorisedItemList.h"

extern template class AuthorisedItemList<AuthorisedComponent>;

// The ActiveX components a rulebase authorises, keyed by LibID.
class AuthorisedComponents final : public AuthorisedItemList<AuthorisedComponent>
{
public:
    AuthorisedComponents();

    // Gives a new item. When the LibID is held already nothing is added and Dirty stays: the
    // item given is blank and belongs to no list (use Item for the one held).
    std::shared_ptr<AuthorisedComponent> Add(const QString &libID,
                                             const QString &filename,
                                             const QString &versionList,
                                             const QString &advice);
    // False, and nothing changes, when its LibID is held already.
    bool AddComponent(const std::shared_ptr<AuthorisedComponent> &item) { return addItem(item); }
    // The first item whose Filename equals this one ignoring case, or -1.
    qint32 FindByFilename(const QString &filename) const;
};
