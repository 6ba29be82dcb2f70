#pragma once

#include "collections/ObjectArrayList.h"
#include "rulebase/CommonRuleFields.h"

class PrefixSuffixItem;

// How the name of one kind of thing must be built: prefix, body and suffix, each switched on
// separately. Applies to one object type and, where it has several name-bearing properties,
// one property of it.
class NamingConvention final : public CommonRuleFields
{
public:
    NamingConvention();

    // Also the Dirty of both item lists and of the definition.
    bool Dirty() const override;
    void setDirty(bool dirty) override;
    // Condition is optional; without one the convention applies on its own.
    // Names to ignore, separated by semicolons, kept as typed.
    QString ExclusionList() const { return m_exclusionList; }
    void setExclusionList(const QString &list);
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
    bool m_caseSensitive = true;
    qint32 m_objectType = 0;
    qint32 m_propertyType = 0;
    QString m_propertyName;
    QString m_exclusionList;
    bool m_prefixActive = false;
    std::shared_ptr<ObjectArrayList<PrefixSuffixItem>> m_prefixItems;
    bool m_bodyActive = false;
    QString m_bodyPattern;
    qint16 m_maxBodyLength = 0;
    qint16 m_minBodyLength = 0;
    bool m_suffixActive = false;
    std::shared_ptr<ObjectArrayList<PrefixSuffixItem>> m_suffixItems;
    QString m_prefixAdvice;
    QString m_bodyAdvice;
    QString m_suffixAdvice;
};
