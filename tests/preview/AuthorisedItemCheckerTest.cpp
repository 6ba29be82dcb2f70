#include "preview/AuthorisedItemChecker.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/Rulebase.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// By GUID (braces or not, any case), then by version: a listed version, the same number
// written otherwise, or any version when the list is empty.
TEST(AuthorisedItemChecker, ChecksLibrariesByGuidThenVersion)
{
    using V = AuthorisedItemChecker::Verdict;
    Rulebase rulebase;
    const QString grid = u"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}"_s;
    const QString ado = u"{00000205-0000-0010-8000-00AA006D2EA4}"_s;
    rulebase.AuthorisedComponents()->Add(grid, u"MSCOMCTL.OCX"_s, u"1.0; 2.1"_s, {});
    rulebase.AuthorisedReferences()->Add(ado, u"ADO"_s, u"msado.tlb"_s, QString(), {});
    const AuthorisedItemChecker checker(rulebase);

    const struct
    {
        bool component;
        QString guid;
        const char *version;
        V verdict;
    } rows[] = {
        {true, grid, "2.1", V::Authorised},
        {true, grid, "1.00", V::Authorised},
        {true, grid.toLower().mid(1, 36), "1.0", V::Authorised},
        {true, grid, "2.0", V::VersionNotListed},
        {true, grid, "1.10", V::VersionNotListed},
        {true, ado, "2.5", V::NotListed},
        {false, ado, "9.9", V::Authorised},
        {false, grid, "1.0", V::NotListed},
    };
    for (const auto &row : rows) {
        QString allowed;
        const V verdict = row.component
                              ? checker.component(row.guid, QLatin1String(row.version), allowed)
                              : checker.reference(row.guid, QLatin1String(row.version), allowed);
        EXPECT_EQ(verdict, row.verdict) << row.guid.toStdString() << " " << row.version;
        if (verdict == V::VersionNotListed) {
            EXPECT_EQ(allowed, u"1.0; 2.1"_s);
        }
    }
}
