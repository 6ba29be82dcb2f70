#pragma once

#include <QString>

#include <memory>

class ViolationDefinition;

// What RuleLists, the views, the rule trees and the document writer know of a rule; the
// editors work on the concrete classes.
class IRule
{
public:
    virtual ~IRule() = default;

    // 0 until RuleLists numbers the rule.
    virtual qint32 RuleID() const = 0;
    virtual void setRuleID(qint32 ruleID) = 0;
    // One of RuleTypes.
    virtual qint32 RuleType() const = 0;
    virtual QString Condition() const = 0;
    // The rule's own flag or that of anything it owns.
    virtual bool Dirty() const = 0;
    virtual void setDirty(bool dirty) = 0;
    // Enforcement-time flags of the review product: carried, never saved, never cloned.
    virtual bool Triggered() const = 0;
    virtual void setTriggered(bool triggered) = 0;
    virtual bool Cancelled() const = 0;
    virtual void setCancelled(bool cancelled) = 0;
    // The rule's own definition, shared, not a copy.
    virtual std::shared_ptr<::ViolationDefinition> ViolationDefinition() const = 0;
    virtual QString Title() const = 0;
    virtual bool RuleActive() const = 0;
    virtual void setRuleActive(bool active) = 0;
    virtual QString Description() const = 0;
    // Computed from RuleID on every call; see ruleKey().
    virtual QString RuleKey() const = 0;
    // A new, unnumbered copy titled "Clone of ...", with a definition of its own.
    virtual std::shared_ptr<IRule> Clone() const = 0;
    virtual bool PendingViolation() const = 0;
};

namespace RuleTypes {
constexpr qint32 UnauthorisedKeyword = 3;
constexpr qint32 CodingConvention = 4;
constexpr qint32 NamingConvention = 5;
// Has no class: only the document writer speaks of it.
constexpr qint32 DocumentationConvention = 6;
// "coding convention" and the like, for messages; "rule" for any other type.
QString displayName(qint32 ruleType);
} // namespace RuleTypes

// The one form of a rule key, digits first so that the number reads back with Text::val:
// rule 12 has the key "12Key".
QString ruleKey(qint32 ruleID);
