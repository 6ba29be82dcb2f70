#include "rulebase/UnauthorisedKeyword.h"

#include "platform/ErrorFrame.h"
#include "rulebase/ViolationDefinition.h"

namespace {
constexpr const char *module = "UnauthorisedKeyword";
}

UnauthorisedKeyword::UnauthorisedKeyword()
    : EventRule(module)
{
}

std::shared_ptr<IRule> UnauthorisedKeyword::Clone() const
{
    return guarded("Clone", module, std::shared_ptr<IRule>(), [this] {
        auto clone = std::make_shared<UnauthorisedKeyword>();
        clone->setViolationDefinition(definition().Copy());
        clone->setTitle(QStringLiteral("Clone of ") + m_title);
        clone->setCategoryID(CategoryID());
        clone->setCondition(m_condition);
        clone->setDescription(m_description);
        CopyEventsTo(*clone);
        clone->setRuleActive(m_ruleActive);
        return std::shared_ptr<IRule>(clone);
    });
}
