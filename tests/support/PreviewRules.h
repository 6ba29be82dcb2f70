#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

class NamingConvention;
class Rulebase;
class UnauthorisedKeyword;

// The rules the previews are tried on, added to a rulebase in this order: private variables
// begin with a prefix (5000), GoTo is forbidden in procedures (5001), and a convention on
// another kind of object needs its condition (5002).
struct PreviewRules final
{
    std::shared_ptr<NamingConvention> privates;
    std::shared_ptr<UnauthorisedKeyword> keyword;
    std::shared_ptr<NamingConvention> conditional;
};

PreviewRules addPreviewRules(Rulebase &rulebase,
                             const QString &prefix,
                             const QString &conditionalTitle,
                             qint32 conditionalObjectType);
