#include "rulebase/AuthorisedReferences.h"

template class AuthorisedItemList<AuthorisedReference>;

AuthorisedReferences::AuthorisedReferences()
    : AuthorisedItemList("AuthorisedReferences")
{
}

std::shared_ptr<AuthorisedReference> AuthorisedReferences::Add(const QString &libID,
                                                               const QString &description,
                                                               const QString &filename,
                                                               const QString &versionList,
                                                               const QString &advice)
{
    auto item = std::make_shared<AuthorisedReference>();
    if (!m_list.Contains(libID)) {
        item->setLibID(libID);
        item->setDescription(description);
        item->setFilename(filename);
        item->setVersionList(versionList);
        item->setAdvice(advice);
        m_list.Add(libID, item, false, true);
        setDirty(true);
    }
    return item;
}
