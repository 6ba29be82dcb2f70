#include "rulebase/AuthorisedComponents.h"

#include "platform/TextUtils.h"

template class AuthorisedItemList<AuthorisedComponent>;

AuthorisedComponents::AuthorisedComponents()
    : AuthorisedItemList("AuthorisedComponents")
{
}

std::shared_ptr<AuthorisedComponent> AuthorisedComponents::Add(const QString &libID,
                                                               const QString &filename,
                                                               const QString &versionList,
                                                               const QString &advice)
{
    auto item = std::make_shared<AuthorisedComponent>();
    if (!m_list.Contains(libID)) {
        item->setLibID(libID);
        item->setFilename(filename);
        item->setVersionList(versionList);
        item->setAdvice(advice);
        m_list.Add(libID, item, false, true);
        setDirty(true);
    }
    return item;
}

qint32 AuthorisedComponents::FindByFilename(const QString &filename) const
{
    for (qint32 i = 1; i <= m_list.Count(); ++i) {
        if (Text::same(m_list.Item(i)->Filename(), filename))
            return i;
    }
    return -1;
}
