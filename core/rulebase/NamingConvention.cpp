#include "rulebase/NamingConvention.h"

#include "platform/ErrorFrame.h"
#include "rulebase/PrefixSuffixItem.h"
#include "rulebase/ViolationDefinition.h"

namespace {

constexpr const char *module = "NamingConvention";
constexpr qint32 itemsPerPart = 4;

std::shared_ptr<ObjectArrayList<PrefixSuffixItem>> blankItems()
{
    auto items = std::make_shared<ObjectArrayList<PrefixSuffixItem>>();
    for (qint32 i = 0; i < itemsPerPart; ++i)
        items->Add(std::make_shared<PrefixSuffixItem>());
    // Filling the fixed items is no change of the rule.
    items->setDirty(false);
    return items;
}

void copyItems(const ObjectArrayList<PrefixSuffixItem> &from, ObjectArrayList<PrefixSuffixItem> &to)
{
    for (qint32 i = 1; i <= itemsPerPart; ++i) {
        to.Item(i)->setPSType(from.Item(i)->PSType());
        to.Item(i)->setValue(from.Item(i)->Value());
    }
}

} // namespace

NamingConvention::NamingConvention()
    : CommonRuleFields(module)
    , m_prefixItems(blankItems())
    , m_suffixItems(blankItems())
{
}

bool NamingConvention::Dirty() const
{
    return CommonRuleFields::Dirty() || m_prefixItems->Dirty() || m_suffixItems->Dirty();
}

void NamingConvention::setDirty(bool dirty)
{
    CommonRuleFields::setDirty(dirty);
    m_prefixItems->setDirty(dirty);
    m_suffixItems->setDirty(dirty);
}

// Every setter below marks the rule, whether or not the value changes.

void NamingConvention::setExclusionList(const QString &list)
{
    m_exclusionList = list;
    m_dirty = true;
}

void NamingConvention::setPrefixActive(bool active)
{
    m_prefixActive = active;
    m_dirty = true;
}

void NamingConvention::setBodyActive(bool active)
{
    m_bodyActive = active;
    m_dirty = true;
}

void NamingConvention::setCaseSensitive(bool caseSensitive)
{
    m_caseSensitive = caseSensitive;
    m_dirty = true;
}

void NamingConvention::setBodyPattern(const QString &pattern)
{
    m_bodyPattern = pattern;
    m_dirty = true;
}

void NamingConvention::setMaxBodyLength(qint16 length)
{
    m_maxBodyLength = length;
    m_dirty = true;
}

void NamingConvention::setMinBodyLength(qint16 length)
{
    m_minBodyLength = length;
    m_dirty = true;
}

void NamingConvention::setSuffixActive(bool active)
{
    m_suffixActive = active;
    m_dirty = true;
}

void NamingConvention::setObjectType(qint32 objectType)
{
    m_objectType = objectType;
    m_dirty = true;
}

void NamingConvention::setPropertyType(qint32 propertyType)
{
    m_propertyType = propertyType;
    m_dirty = true;
}

void NamingConvention::setPropertyName(const QString &name)
{
    m_propertyName = name;
    m_dirty = true;
}

void NamingConvention::setPrefixAdvice(const QString &advice)
{
    m_prefixAdvice = advice;
    m_dirty = true;
}

void NamingConvention::setBodyAdvice(const QString &advice)
{
    m_bodyAdvice = advice;
    m_dirty = true;
}

void NamingConvention::setSuffixAdvice(const QString &advice)
{
    m_suffixAdvice = advice;
    m_dirty = true;
}

std::shared_ptr<IRule> NamingConvention::Clone() const
{
    return guarded("Clone", module, std::shared_ptr<IRule>(), [this] {
        auto clone = std::make_shared<NamingConvention>();
        clone->setViolationDefinition(definition().Copy());
        clone->setTitle(QStringLiteral("Clone of ") + m_title);
        clone->setDescription(m_description);
        clone->setCategoryID(CategoryID());
        clone->setObjectType(m_objectType);
        clone->setPropertyType(m_propertyType);
        clone->setPropertyName(m_propertyName);
        clone->setCondition(m_condition);
        clone->setPrefixActive(m_prefixActive);
        copyItems(*m_prefixItems, *clone->m_prefixItems);
        clone->setPrefixAdvice(m_prefixAdvice);
        clone->setBodyActive(m_bodyActive);
        clone->setBodyPattern(m_bodyPattern);
        clone->setMaxBodyLength(m_maxBodyLength);
        clone->setMinBodyLength(m_minBodyLength);
        clone->setBodyAdvice(m_bodyAdvice);
        clone->setSuffixActive(m_suffixActive);
        copyItems(*m_suffixItems, *clone->m_suffixItems);
        clone->setSuffixAdvice(m_suffixAdvice);
        clone->setRuleActive(m_ruleActive);
        return std::shared_ptr<IRule>(clone);
    });
}
