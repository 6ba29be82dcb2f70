#pragma once

#include <QString>

class Rulebase;

// Checks the libraries a project uses against the rulebase's authorised components and
// references: by type library GUID, then by version. An empty version list allows every
// version; otherwise the list holds versions separated by ";".
class AuthorisedItemChecker final
{
public:
    enum class Verdict { Authorised, NotListed, VersionNotListed };

    explicit AuthorisedItemChecker(const Rulebase &rulebase);

    // `allowed` gives the versions the rulebase lists for that library.
    Verdict component(const QString &guid, const QString &version, QString &allowed) const;
    Verdict reference(const QString &guid, const QString &version, QString &allowed) const;

    // Versions compare as dotted numbers where both are numbers ("2.0" is "2.00"), otherwise
    // as text ignoring case.
    static bool versionAllowed(const QString &versionList, const QString &version);

private:
    const Rulebase &m_rulebase;
};
