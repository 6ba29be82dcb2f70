#include "support/RulebaseDump.h"

#include "collections/ObjectKeyedArrayList.h"
#include "rulebase/AuthorisedComponent.h"
#include "rulebase/AuthorisedComponents.h"
#include "rulebase/AuthorisedReference.h"
#include "rulebase/AuthorisedReferences.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CategoryList.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/DefaultViolations.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/Report.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/TableItem.h"
#include "rulebase/TagItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QString q(const QString &s)
{
    QString escaped = s;
    escaped.replace(QLatin1Char('\\'), u"\\\\"_s).replace(QLatin1Char('\n'), u"\\n"_s);
    escaped.replace(QLatin1Char('\r'), u"\\r"_s).replace(QLatin1Char('\t'), u"\\t"_s);
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

QString b(bool v)
{
    return v ? u"T"_s : u"F"_s;
}

QString violation(const ViolationDefinition &v)
{
    return u"  violation %1 sev=%2 impact=%3 cat=%4 desc=%5 advice=%6"_s.arg(q(v.Title()))
        .arg(v.Severity())
        .arg(v.Impact())
        .arg(v.CategoryID())
        .arg(q(v.Description()), q(v.Advice()));
}

QString items(const ObjectArrayList<PrefixSuffixItem> &list)
{
    QStringList parts;
    for (qint32 i = 1; i <= list.Count(); ++i)
        parts << QString::number(list.Item(i)->PSType()) + QLatin1Char(':')
                     + q(list.Item(i)->Value());
    return parts.join(QLatin1Char(' '));
}

void dumpTags(QStringList &out, const char *name, const ObjectKeyedArrayList<TagItem> &tags)
{
    for (qint32 i = 1; i <= tags.Count(); ++i) {
        const auto &t = *tags.Item(i);
        out << u"%1 key=%2 name=%3 value=%4 desc=%5 example=%6 locked=%7"_s.arg(
            QLatin1String(name),
            q(tags.Key(i)),
            q(t.TagName()),
            q(t.TagValue()),
            q(t.TagDescription()),
            q(t.TagExample()),
            b(t.Locked()));
    }
}

} // namespace

QString dumpRulebase(const Rulebase &r)
{
    QStringList out;
    out << u"title=%1 version=%2 auto=%3 desc=%4 ucv=%5 ctags=%6 array=%7"_s.arg(
        q(r.Title()),
        q(r.Version()),
        b(r.AutoIncrementVersion()),
        q(r.Description()),
        b(r.UnknownControlViolation()),
        b(r.UseCTagsAsDTTags()),
        q(r.ArrayTag()));
    QStringList tolerances;
    for (qint32 i = 1; i <= 6; ++i)
        tolerances << QString::number(r.ToleranceCount(i)) + QLatin1Char('/')
                          + QString::number(r.ToleranceImpact(i));
    out << u"tolerances %1 comments=%2 complexity=%3"_s.arg(tolerances.join(QLatin1Char(' ')))
               .arg(r.TolerancePercentageComments())
               .arg(r.ToleranceCyclomaticComplexity());
    dumpTags(out, "ctag", *r.ControlTags());
    dumpTags(out, "dtag", *r.DataTypeTags());
    dumpTags(out, "stag", *r.ScopeTags());
    for (qint32 i = 1; i <= r.DefaultViolations()->Count(); ++i)
        out << violation(*r.DefaultViolations()->Item(i));
    const CategoryList &categories = *r.CategoryList();
    out << u"categories last=%1"_s.arg(categories.LastID());
    for (qint32 i = 1; i <= categories.Count(); ++i) {
        const auto &c = *categories.Item(i);
        out << u"category %1 %2 %3 hidden=%4"_s.arg(c.ID()).arg(
            q(c.Title()), q(c.Description()), b(c.Hidden()));
    }
    const auto &severities = *r.SeverityList();
    for (qint32 i = 1; i <= severities.Count(); ++i) {
        const auto &s = *severities.Item(i);
        out << u"severity key=%1 level=%2 %3 text=%4 colour=%5 impact=%6 %7"_s
                   .arg(q(severities.Key(i)))
                   .arg(s.SeverityLevel())
                   .arg(q(s.Title()), q(s.SeverityLevelText()))
                   .arg(s.Colour())
                   .arg(s.Impact())
                   .arg(q(s.Description()));
    }
    for (qint32 i = 1; i <= r.AuthorisedComponents()->Count(); ++i) {
        const auto &c = *r.AuthorisedComponents()->Item(i);
        out << u"component %1 %2 %3 %4"_s.arg(
            q(c.LibID()), q(c.Filename()), q(c.VersionList()), q(c.Advice()));
    }
    for (qint32 i = 1; i <= r.AuthorisedReferences()->Count(); ++i) {
        const auto &c = *r.AuthorisedReferences()->Item(i);
        out << u"reference %1 %2 %3 %4 %5"_s.arg(
            q(c.LibID()), q(c.Description()), q(c.Filename()), q(c.VersionList()), q(c.Advice()));
    }
    const RuleLists &rules = *r.RuleLists();
    out << u"rules last=%1"_s.arg(rules.LastID());
    for (qint32 i = 1; i <= rules.UnauthorisedKeywords()->Count(); ++i) {
        const auto &k = *rules.UnauthorisedKeywords()->Item(i);
        out << u"keyword %1 active=%2 %3 %4 cond=%5 events=%6"_s.arg(k.RuleID())
                   .arg(b(k.RuleActive()),
                        q(k.Title()),
                        q(k.Description()),
                        q(k.Condition()),
                        k.ParserEventList());
        out << violation(*k.ViolationDefinition());
    }
    for (qint32 i = 1; i <= rules.CodingConventions()->Count(); ++i) {
        const auto &c = *rules.CodingConventions()->Item(i);
        out << u"coding %1 active=%2 %3 %4 pending=%5 end=%6 cond=%7 events=%8"_s.arg(c.RuleID())
                   .arg(
                       b(c.RuleActive()), q(c.Title()), q(c.Description()), b(c.PendingViolation()))
                   .arg(c.EndEventID())
                   .arg(q(c.Condition()), c.ParserEventList());
        out << violation(*c.ViolationDefinition());
    }
    for (qint32 i = 1; i <= rules.NamingConventions()->Count(); ++i) {
        const auto &n = *rules.NamingConventions()->Item(i);
        out << u"naming %1 active=%2 case=%3 %4 %5 object=%6 property=%7 %8 cond=%9"_s
                   .arg(n.RuleID())
                   .arg(b(n.RuleActive()), b(n.CaseSensitive()), q(n.Title()), q(n.Description()))
                   .arg(n.ObjectType())
                   .arg(n.PropertyType())
                   .arg(q(n.PropertyName()), q(n.Condition()));
        out << u"  exclusions=%1 prefix=%2 [%3] %4 body=%5 %6 %7..%8 %9"_s
                   .arg(q(n.ExclusionList()),
                        b(n.PrefixActive()),
                        items(*n.PrefixItems()),
                        q(n.PrefixAdvice()),
                        b(n.BodyActive()),
                        q(n.BodyPattern()))
                   .arg(n.MinBodyLength())
                   .arg(n.MaxBodyLength())
                   .arg(q(n.BodyAdvice()));
        out << u"  suffix=%1 [%2] %3"_s.arg(
            b(n.SuffixActive()), items(*n.SuffixItems()), q(n.SuffixAdvice()));
        out << violation(*n.ViolationDefinition());
    }
    // Every index of the rule lists, so that a load that files rules wrongly shows.
    for (qint32 e = 1; e <= 37; ++e) {
        if (const auto list = const_cast<RuleLists &>(rules).ParserEventCCList(e, false)) {
            QStringList ids;
            for (qint32 i = 1; i <= list->Count(); ++i)
                ids << QString::number(list->Item(i)->RuleID());
            out << u"event %1: %2"_s.arg(e).arg(ids.join(QLatin1Char(',')));
        }
    }
    const auto &sections = *r.Report()->Sections();
    for (qint32 i = 1; i <= sections.Count(); ++i) {
        const auto entry = sections.Item(i);
        if (const auto c = std::dynamic_pointer_cast<CategoryItem>(entry)) {
            QStringList ids;
            for (qint32 k = 1; k <= c->CategoryRules()->Count(); ++k)
                ids << QString::number(c->CategoryRules()->Item(k)->RuleID());
            out << u"section category %1 %2 [%3]"_s.arg(c->ID()).arg(q(c->Title()),
                                                                     ids.join(QLatin1Char(',')));
        } else if (const auto t = std::dynamic_pointer_cast<TableItem>(entry)) {
            out << u"section table %1 %2 %3 %4"_s
                       .arg(q(t->TableKey()), q(t->TableTitle()), q(t->TableText()))
                       .arg(t->TableType());
        }
    }
    return out.join(QLatin1Char('\n'));
}
