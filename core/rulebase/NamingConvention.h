#pragma once

#include "collections/ObjectArrayList.h"
#include "rulebase/IRule.h"

class PrefixSuffixItem;

// How the name of one kind of thing must be built: prefix, body and suffix, each switched on
// separately. Applies to one object type and, where it has several name-bearing properties,
// one property of it.
class NamingConvention final : public IRule
{
public:
    NamingConvention();

    // Also the Dirty of both item lists and of the definition.
    bool Dirty() const override;
    void setDirty(bool dirty) override;
    // Lives in the definition; setting it here also marks the rule.
    qint32 CategoryID() const;
    void setCategoryID(qint32 categoryID);
    // Optional; without one the convention applies on its own.
    QString Condition() const override { return m_condition; }
    void setCondition(const QString &condition);
    // Names to ignore, separated by semicolons, kept as typed.
    QString ExclusionList() const { return m_exclusionList; }
    void setExclusionList(const QString &list);
    QString Description() const override { return m_description; }
    void setDescription(const QString &description);
    qint32 RuleID() const override { return m_ruleID; }
    void setRuleID(qint32 ruleID) override;
    QString RuleKey() const override { return ruleKey(m_ruleID); }
    bool RuleActive() const override { return m_ruleActive; }
    void setRuleActive(bool active) override;
    QString Title() const override { return m_title; }
    void setTitle(const QString &title);
    bool PrefixActive() const { return m_prefixActive; }
    void setPrefixActive(bool active);
    // Always four items, made here and never replaced: "Begins with", then "Followed by".
    std::shared_ptr<ObjectArrayList<PrefixSuffixItem>> PrefixItems() const { return m_prefixItems; }
    bool BodyActive() const { return m_bodyActive; }
    void setBodyActive(bool active);
    bool CaseSensitive() const { return m_caseSensitive; }
    void setCaseSensitive(bool caseSensitive);
    QString BodyPattern() const { return m_bodyPattern; }
    void setBodyPattern(const QString &pattern);
    // Nothing here checks that the minimum stays below the maximum.
    qint16 MaxBodyLength() const { return m_maxBodyLength; }
    void setMaxBodyLength(qint16 length);
    qint16 MinBodyLength() const { return m_minBodyLength; }
    void setMinBodyLength(qint16 length);
    bool SuffixActive() const { return m_suffixActive; }
    void setSuffixActive(bool active);
    // Always four items: "Ends with", then "Preceded by".
    std::shared_ptr<ObjectArrayList<PrefixSuffixItem>> SuffixItems() const { return m_suffixItems; }
    std::shared_ptr<::ViolationDefinition> ViolationDefinition() const override
    {
        return m_violationDefinition;
    }
    // Replaces the definition without marking the rule.
    void setViolationDefinition(std::shared_ptr<::ViolationDefinition> definition)
    {
        m_violationDefinition = std::move(definition);
    }
    qint32 ObjectType() const { return m_objectType; }
    void setObjectType(qint32 objectType);
    qint32 PropertyType() const { return m_propertyType; }
    void setPropertyType(qint32 propertyType);
    QString PropertyName() const { return m_propertyName; }
    void setPropertyName(const QString &name);
    // These three take the place of the definition's Advice for a naming convention.
    QString PrefixAdvice() const { return m_prefixAdvice; }
    void setPrefixAdvice(const QString &advice);
    QString BodyAdvice() const { return m_bodyAdvice; }
    void setBodyAdvice(const QString &advice);
    QString SuffixAdvice() const { return m_suffixAdvice; }
    void setSuffixAdvice(const QString &advice);

    qint32 RuleType() const override { return RuleTypes::NamingConvention; }
    // Enforcement flags are dead on a naming convention: they read False and ignore sets.
    bool Triggered() const override { return false; }
    void setTriggered(bool) override {}
    bool Cancelled() const override { return false; }
    void setCancelled(bool) override {}
    bool PendingViolation() const override { return false; }
    // Leaves out ExclusionList and CaseSensitive: the clone has none and is case sensitive.
    std::shared_ptr<IRule> Clone() const override;

private:
    // The definition, or the runtime's object error when it was replaced by none.
    ::ViolationDefinition &definition() const;

    qint32 m_ruleID = 0;
    bool m_ruleActive = true;
    bool m_caseSensitive = true;
    QString m_title;
    QString m_description;
    qint32 m_objectType = 0;
    qint32 m_propertyType = 0;
    QString m_propertyName;
    QString m_condition;
    QString m_exclusionList;
    bool m_prefixActive = false;
    std::shared_ptr<ObjectArrayList<PrefixSuffixItem>> m_prefixItems;
    bool m_bodyActive = false;
    QString m_bodyPattern;
    qint16 m_maxBodyLength = 0;
    qint16 m_minBodyLength = 0;
    bool m_suffixActive = false;
    std::shared_ptr<ObjectArrayList<PrefixSuffixItem>> m_suffixItems;
    std::shared_ptr<::ViolationDefinition> m_violationDefinition;
    QString m_prefixAdvice;
    QString m_bodyAdvice;
    QString m_suffixAdvice;
    bool m_dirty = false;
};
