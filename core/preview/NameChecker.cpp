#include "preview/NameChecker.h"

#include "collections/ObjectArrayList.h"
#include "preview/CatalogueObject.h"
#include "preview/DeclaredObject.h"
#include "preview/PatternCache.h"
#include "preview/TagLookup.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/PrefixSuffixItem.h"
#include "vocabulary/ObjectHelper.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

// PrefixSuffixItem::PSType
constexpr qint32 LiteralOrPattern = 1;
constexpr qint32 ControlTag = 2;
constexpr qint32 DataTypeTag = 3;
constexpr qint32 ScopeTag = 4;
constexpr qint32 WorkfieldLiteral = 5;
constexpr qint32 ArrayTag = 6;

constexpr qint32 NameProperty = 37;

const QString NeedsCondition = QStringLiteral("not previewed (needs its condition)");

bool hasMetacharacters(const QString &text)
{
    static const QString metacharacters = QStringLiteral("\\^$.|?*+()[]{}");
    for (const QChar c : text) {
        if (metacharacters.contains(c))
            return true;
    }
    return false;
}

bool takesWorkfield(bool active, const ObjectArrayList<PrefixSuffixItem> &items)
{
    if (!active)
        return false;
    for (qint32 i = 1; i <= items.Count(); ++i) {
        if (items.Item(i) && items.Item(i)->PSType() == WorkfieldLiteral)
            return true;
    }
    return false;
}

} // namespace

struct NameChecker::Piece
{
    bool literal = true;
    QString text;
};

struct NameChecker::Part
{
    std::vector<Piece> pieces; // in the order they stand in the name
    QStringList reasons;       // what the tags were chosen for
    bool unknownControl = false;
    QString notPreviewed;
};

NameChecker::NameChecker(std::shared_ptr<NamingConvention> convention, PatternCache &patterns)
    : m_convention(std::move(convention))
    , m_patterns(patterns)
{
    const NamingConvention &c = *m_convention;
    if (!c.Condition().trimmed().isEmpty() || takesWorkfield(c.PrefixActive(), *c.PrefixItems())
        || takesWorkfield(c.SuffixActive(), *c.SuffixItems()))
        m_notPreviewed = NeedsCondition;
    for (const QString &name : c.ExclusionList().split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        if (!name.trimmed().isEmpty())
            m_excluded.insert(name.trimmed().toLower());
    }
    if (c.PropertyType() != 0 && c.PropertyType() != NameProperty) {
        m_property = c.PropertyName().isEmpty() ? ObjectHelper::PropertyName(c.PropertyType())
                                                : c.PropertyName();
        m_property = m_property.toLower();
        if (m_property == QLatin1String("name"))
            m_property.clear();
    }
}

NameChecker::~NameChecker() = default;

QString NameChecker::value(const DeclaredObject &object, bool &known) const
{
    known = true;
    if (m_property.isEmpty())
        return object.name;
    // Projects and files carry their properties; a key the file lacks is an empty value.
    if (object.properties)
        return object.properties->value(m_property);
    known = false;
    return {};
}

NameChecker::Part
NameChecker::part(bool prefix, const DeclaredObject &object, const TagLookup &tags) const
{
    Part result;
    const auto items = prefix ? m_convention->PrefixItems() : m_convention->SuffixItems();
    auto addTag = [&](const TagLookup::Tag &tag) {
        result.pieces.push_back({true, tag.value});
        if (!tag.value.isEmpty() && !tag.what.isEmpty())
            result.reasons << tag.what;
    };
    for (qint32 i = 1; i <= items->Count(); ++i) {
        const auto item = items->Item(i);
        if (!item)
            continue;
        switch (item->PSType()) {
        case LiteralOrPattern:
            result.pieces.push_back({!hasMetacharacters(item->Value()), item->Value()});
            break;
        case ControlTag: {
            const TagLookup::Tag tag = tags.controlTag(object);
            result.unknownControl
                = result.unknownControl
                  || (!tag.found && object.objectType == CatalogueObject::Control);
            addTag(tag);
            break;
        }
        case DataTypeTag:
            if (object.dataTypeUnknown)
                result.notPreviewed = QStringLiteral(
                    "not previewed (the constant's data type depends on its expression)");
            addTag(tags.dataTypeTag(object));
            break;
        case ScopeTag:
            addTag(tags.scopeTag(object));
            break;
        case ArrayTag:
            addTag(tags.arrayTag(object));
            break;
        default:
            break;
        }
    }
    // "Ends with" is the last thing in the name, "Preceded by" stands before it.
    if (!prefix)
        std::reverse(result.pieces.begin(), result.pieces.end());
    return result;
}

namespace {

// Where a prefix or suffix matched: its length, -1 when the name lacks it, -2 when its
// pattern does not compile (`error` says why). `expected` describes it for a message.
qsizetype matchPart(const std::vector<std::pair<bool, QString>> &pieces,
                    bool prefix,
                    QStringView text,
                    bool caseSensitive,
                    PatternCache &patterns,
                    QString &expected,
                    QString &error)
{
    bool literal = true;
    QString plain;
    QString pattern;
    for (const auto &[isLiteral, piece] : pieces) {
        literal = literal && isLiteral;
        plain += piece;
        pattern += isLiteral ? QRegularExpression::escape(piece)
                             : QStringLiteral("(?:") + piece + QLatin1Char(')');
    }
    const Qt::CaseSensitivity cs = caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    if (literal) {
        expected = QLatin1Char('\'') + plain + QLatin1Char('\'');
        if (plain.isEmpty())
            return 0;
        const bool found = prefix ? text.startsWith(plain, cs) : text.endsWith(plain, cs);
        return found ? plain.size() : -1;
    }
    expected = QStringLiteral("matching '") + plain + QLatin1Char('\'');
    const QRegularExpression &compiled
        = patterns.get(prefix ? QString(QStringLiteral("^(?:") + pattern + QLatin1Char(')'))
                              : QString(QStringLiteral("(?:") + pattern + QStringLiteral(")$")),
                       caseSensitive);
    if (!compiled.isValid()) {
        error = compiled.errorString();
        return -2;
    }
    const QRegularExpressionMatch match = compiled.match(text);
    if (!match.hasMatch())
        return -1;
    return prefix ? match.capturedLength() : text.size() - match.capturedStart();
}

} // namespace

NameChecker::Result NameChecker::check(const DeclaredObject &object, const TagLookup &tags) const
{
    Result result;
    bool known = false;
    result.name = value(object, known);
    if (!m_notPreviewed.isEmpty()) {
        result.outcome = Outcome::NotPreviewed;
        result.message = m_notPreviewed;
        return result;
    }
    if (!known) {
        result.outcome = Outcome::NotPreviewed;
        result.message
            = QStringLiteral("not previewed (the preview does not read the property '%1')")
                  .arg(m_convention->PropertyName());
        return result;
    }
    if (result.name.isEmpty()) {
        result.outcome = Outcome::NoValue;
        return result;
    }
    if (m_excluded.contains(result.name.toLower())) {
        result.outcome = Outcome::Excluded;
        return result;
    }

    const NamingConvention &c = *m_convention;
    const bool caseSensitive = c.CaseSensitive();
    QStringView rest = result.name;
    auto fail = [&](Outcome outcome, const QString &message, const QString &advice) {
        result.outcome = outcome;
        result.message = message;
        result.advice = advice;
        return result;
    };
    for (const bool prefix : {true, false}) {
        if (!(prefix ? c.PrefixActive() : c.SuffixActive()))
            continue;
        const Part wanted = part(prefix, object, tags);
        result.unknownControl = result.unknownControl || wanted.unknownControl;
        const QString advice = prefix ? c.PrefixAdvice() : c.SuffixAdvice();
        if (!wanted.notPreviewed.isEmpty())
            return fail(Outcome::NotPreviewed, wanted.notPreviewed, QString());
        std::vector<std::pair<bool, QString>> pieces;
        for (const Piece &piece : wanted.pieces)
            pieces.emplace_back(piece.literal, piece.text);
        QString expected;
        QString error;
        const qsizetype length
            = matchPart(pieces, prefix, rest, caseSensitive, m_patterns, expected, error);
        const QString which = prefix ? QStringLiteral("prefix") : QStringLiteral("suffix");
        if (length == -2)
            return fail(Outcome::NotPreviewed,
                        QStringLiteral("not previewed (the %1 pattern does not compile: %2)")
                            .arg(which, error),
                        QString());
        if (length < 0) {
            QString message = QStringLiteral("expected %1 %2").arg(which, expected);
            if (!wanted.reasons.isEmpty())
                message += QStringLiteral(" for ") + wanted.reasons.join(QStringLiteral(", "));
            return fail(Outcome::Violation, message, advice);
        }
        rest = prefix ? rest.mid(length) : rest.left(rest.size() - length);
    }

    if (c.BodyActive()) {
        const QString body = rest.toString();
        if (!c.BodyPattern().isEmpty()) {
            const QRegularExpression &compiled = m_patterns.get(c.BodyPattern(), caseSensitive);
            if (!compiled.isValid())
                return fail(Outcome::NotPreviewed,
                            QStringLiteral("not previewed (the body pattern does not compile: %1)")
                                .arg(compiled.errorString()),
                            QString());
            if (!compiled.match(body).hasMatch())
                return fail(Outcome::Violation,
                            QStringLiteral("body '%1' does not match the pattern '%2'")
                                .arg(body, c.BodyPattern()),
                            c.BodyAdvice());
        }
        if (c.MinBodyLength() > 0 && body.size() < c.MinBodyLength())
            return fail(Outcome::Violation,
                        QStringLiteral("body '%1' is shorter than %2 characters")
                            .arg(body)
                            .arg(c.MinBodyLength()),
                        c.BodyAdvice());
        if (c.MaxBodyLength() > 0 && body.size() > c.MaxBodyLength())
            return fail(Outcome::Violation,
                        QStringLiteral("body '%1' is longer than %2 characters")
                            .arg(body)
                            .arg(c.MaxBodyLength()),
                        c.BodyAdvice());
    }
    result.outcome = Outcome::Pass;
    return result;
}
