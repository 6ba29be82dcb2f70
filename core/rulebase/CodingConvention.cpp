#include "rulebase/CodingConvention.h"

#include "platform/ErrorFrame.h"
#include "rulebase/ViolationDefinition.h"

namespace {
constexpr const char *module = "CodingConvention";
}

CodingConvention::CodingConvention()
    : EventRule(module)
{
}

void CodingConvention::setCancelled(bool cancelled)
{
    if (m_pendingViolation)
        m_cancelled = cancelled;
}

void CodingConvention::setTriggered(bool triggered)
{
    if (m_pendingViolation)
        m_triggered = triggered;
}

void CodingConvention::setEndEventID(qint32 eventID)
{
    m_endEventID = eventID;
    m_dirty = true;
}

void CodingConvention::setPendingViolation(bool pending)
{
    m_pendingViolation = pending;
    m_dirty = true;
}

std::shared_ptr<IRule> CodingConvention::Clone() const
{
    return guarded("Clone", module, std::shared_ptr<IRule>(), [this] {
        auto clone = std::make_shared<CodingConvention>();
        clone->setViolationDefinition(definition().Copy());
        clone->setTitle(QStringLiteral("Clone of ") + m_title);
        clone->setCategoryID(CategoryID());
        clone->setCondition(m_condition);
        clone->setDescription(m_description);
        clone->setEndEventID(m_endEventID);
        CopyEventsTo(*clone);
        clone->setPendingViolation(m_pendingViolation);
        clone->setRuleActive(m_ruleActive);
        return std::shared_ptr<IRule>(clone);
    });
}
