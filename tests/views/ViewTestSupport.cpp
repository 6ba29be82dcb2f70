#include "ViewTestSupport.h"

#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/IRule.h"
#include "rulebase/RulebaseManager.h"
#include "rulebase/SeverityItem.h"

#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

namespace ViewTest {

std::shared_ptr<Rulebase> loadSample()
{
    std::shared_ptr<Rulebase> rulebase
        = RulebaseManager().LoadRulebase(TestEnvironment::sampleRulebase());
    EXPECT_NE(rulebase, nullptr);
    return rulebase;
}

AdminDataScope::AdminDataScope()
{
    TestEnvironment::clearSettings();
    gobjAdminData = std::make_shared<QuorinAdminData>();
}

AdminDataScope::~AdminDataScope()
{
    gobjAdminData.reset();
}

} // namespace ViewTest

bool ScriptedLauncher::EditRule(const std::shared_ptr<IRule> &rule)
{
    ++opened;
    if (confirm && edit)
        edit(*rule);
    return confirm;
}

bool ScriptedLauncher::EditCategory(const std::shared_ptr<CategoryItem> &category)
{
    ++opened;
    if (confirm && editCategory)
        editCategory(*category);
    return confirm;
}

bool ScriptedLauncher::EditSeverity(const std::shared_ptr<SeverityItem> &severity)
{
    ++opened;
    if (confirm && editSeverity)
        editSeverity(*severity);
    return confirm;
}
