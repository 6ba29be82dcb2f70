#include "preview/AuthorisedItemChecker.h"

#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"

#include <QStringList>

namespace {

// A GUID as lists may hold it: with or without its braces.
QStringList spellings(const QString &guid)
{
    const QString bare = guid.trimmed().remove(QLatin1Char('{')).remove(QLatin1Char('}'));
    return {guid.trimmed(), QLatin1Char('{') + bare + QLatin1Char('}'), bare};
}

bool sameVersion(const QString &a, const QString &b)
{
    if (a.compare(b, Qt::CaseInsensitive) == 0)
        return true;
    const QStringList left = a.split(QLatin1Char('.'));
    const QStringList right = b.split(QLatin1Char('.'));
    if (left.size() != right.size())
        return false;
    for (qsizetype i = 0; i < left.size(); ++i) {
        bool okLeft = false;
        bool okRight = false;
        const qulonglong x = left[i].trimmed().toULongLong(&okLeft);
        const qulonglong y = right[i].trimmed().toULongLong(&okRight);
        if (!okLeft || !okRight || x != y)
            return false;
    }
    return true;
}

template<typename List>
AuthorisedItemChecker::Verdict
verdictOf(const List &list, const QString &guid, const QString &version, QString &allowed)
{
    for (const QString &key : spellings(guid)) {
        const qint32 index = list.FindByLibID(key);
        if (index < 1)
            continue;
        allowed = list.Item(index)->VersionList();
        return AuthorisedItemChecker::versionAllowed(allowed, version)
                   ? AuthorisedItemChecker::Verdict::Authorised
                   : AuthorisedItemChecker::Verdict::VersionNotListed;
    }
    return AuthorisedItemChecker::Verdict::NotListed;
}

} // namespace

AuthorisedItemChecker::AuthorisedItemChecker(const Rulebase &rulebase)
    : m_rulebase(rulebase)
{
}

AuthorisedItemChecker::Verdict AuthorisedItemChecker::component(const QString &guid,
                                                                const QString &version,
                                                                QString &allowed) const
{
    return verdictOf(*m_rulebase.AuthorisedComponents(), guid, version, allowed);
}

AuthorisedItemChecker::Verdict AuthorisedItemChecker::reference(const QString &guid,
                                                                const QString &version,
                                                                QString &allowed) const
{
    return verdictOf(*m_rulebase.AuthorisedReferences(), guid, version, allowed);
}

bool AuthorisedItemChecker::versionAllowed(const QString &versionList, const QString &version)
{
    const QStringList versions = versionList.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    bool any = false;
    for (const QString &listed : versions) {
        if (listed.trimmed().isEmpty())
            continue;
        any = true;
        if (sameVersion(listed.trimmed(), version.trimmed()))
            return true;
    }
    return !any;
}
