#include "application/Application.h"
#include "application/ToolDispatcher.h"
#include "editors/IConventionForm.h"
#include "editors/IFormFactory.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/TextUtils.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/ViolationDefinition.h"
#include "views/IViewController.h"
#include "views/ViewFactory.h"

#include "support/MemoryMainForm.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Rule dialogs that keep the rule they are handed instead of a person, and record what they
// were told.
class ScriptedForms final : public IFormFactory
{
public:
    ScriptedForms() { install(this); }
    ~ScriptedForms() override { install(nullptr); }

    std::unique_ptr<IConventionForm> createConventionForm(qint32 ruleType) override;

    // The rule as the last dialog showed it, with the application's preselection.
    qint32 category() const { return shown->ViolationDefinition()->CategoryID(); }
    qint32 severity() const { return shown->ViolationDefinition()->Severity(); }
    template<class Rule>
    std::shared_ptr<Rule> shownAs() const
    {
        return std::dynamic_pointer_cast<Rule>(shown);
    }

    bool confirm = false;
    QList<qint32> created;
    RuleDialogContext lastContext;
    std::shared_ptr<IRule> shown;
};

class ScriptedForm final : public IConventionForm
{
public:
    explicit ScriptedForm(ScriptedForms &forms)
        : m_forms(forms)
    {
    }
    void setConvention(const std::shared_ptr<IRule> &rule) override { m_forms.shown = rule; }
    void setContext(const RuleDialogContext &context) override { m_forms.lastContext = context; }
    bool Cancelled() const override { return !m_forms.confirm; }
    void Show() override
    {
        // The real dialogs always leave a severity chosen.
        if (m_forms.confirm && m_forms.severity() == 0)
            m_forms.shown->ViolationDefinition()->setSeverity(1);
    }

private:
    ScriptedForms &m_forms;
};

std::unique_ptr<IConventionForm> ScriptedForms::createConventionForm(qint32 ruleType)
{
    created << ruleType;
    return std::make_unique<ScriptedForm>(*this);
}

class NewRuleTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        TestEnvironment::clearSettings();
        gobjAdminData = std::make_shared<QuorinAdminData>();
        app = std::make_unique<Application>(&form, createView);
        ASSERT_TRUE(app->OpenRulebase(Application::OpenMode::CommandLine,
                                      TestEnvironment::sampleRulebase()));
    }
    void TearDown() override
    {
        app->TerminateApplication();
        app.reset();
        gobjAdminData.reset();
    }

    // The author clicks the tree node with this key.
    void clickNode(const QString &key)
    {
        const int node = form.treeControl.find(key);
        ASSERT_NE(node, 0) << key.toStdString();
        form.treeControl.click(node);
    }
    ScriptedUserInterface ui;
    ScriptedForms forms;
    MemoryMainForm form;
    std::unique_ptr<Application> app;
};

} // namespace

TEST_F(NewRuleTest, PreselectsFromTheSelectedNodeOfEachView)
{
    bool cancelled = false;

    app->SwitchView("tlCodingConventions");
    clickNode("30Key");
    EXPECT_EQ(app->NewCodingConvention(cancelled), nullptr);
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(forms.shownAs<CodingConvention>()->ParserEventList(), u"30"_s);
    EXPECT_EQ(forms.category(), -1);
    EXPECT_EQ(forms.lastContext.rulebase, app->rulebase());
    EXPECT_TRUE(forms.lastContext.editCategories);
    app->NewNamingConvention(cancelled);
    EXPECT_EQ(forms.shownAs<NamingConvention>()->ObjectType(), 0);

    app->SwitchView("tlNamingConventions");
    clickNode("28Key");
    app->NewNamingConvention(cancelled);
    EXPECT_EQ(forms.shownAs<NamingConvention>()->ObjectType(), 28);
    EXPECT_EQ(forms.shownAs<NamingConvention>()->PropertyType(), 37);
    app->NewCodingConvention(cancelled);
    EXPECT_TRUE(forms.shownAs<CodingConvention>()->ParserEventList().isEmpty());

    app->SwitchView("tlSeverityView");
    clickNode("2Key");
    app->NewCodingConvention(cancelled);
    EXPECT_EQ(forms.severity(), 2);
    app->NewNamingConvention(cancelled);
    EXPECT_EQ(forms.severity(), 2);
    EXPECT_EQ(forms.category(), -1);
    // No preselection for an unauthorised keyword.
    app->NewUnauthorisedKeyword(cancelled);
    EXPECT_EQ(forms.severity(), 0);

    app->SwitchView("tlCategoryView");
    const QString categoryKey = form.treeControl.key(2);
    clickNode(categoryKey);
    app->NewNamingConvention(cancelled);
    ASSERT_NE(Text::valLong(categoryKey), 0);
    EXPECT_EQ(forms.category(), Text::valLong(categoryKey));
    EXPECT_EQ(forms.severity(), 0);
    // The root reads 0: nothing is preselected.
    clickNode("Category");
    app->NewCodingConvention(cancelled);
    EXPECT_EQ(forms.category(), -1);

    EXPECT_EQ(forms.created, (QList<qint32>{4, 5, 5, 4, 4, 5, 3, 5, 4}));
    // Cancel adds nothing, and leaves the rulebase as it was read.
    EXPECT_FALSE(app->rulebase()->Dirty());
    EXPECT_TRUE(ui.messages.empty());

    // A confirmed rule from the tool joins the rule lists and the list of its event's node.
    forms.confirm = true;
    app->SwitchView("tlCodingConventions");
    clickNode("30Key");
    const int rows = form.listControl.count();
    const qint32 rules = app->rulebase()->RuleLists()->CodingConventions()->Count();
    ASSERT_TRUE(ExecuteTool(*app, u"tlCodingConvention"_s));
    EXPECT_EQ(app->rulebase()->RuleLists()->CodingConventions()->Count(), rules + 1);
    EXPECT_EQ(form.listControl.count(), rows + 1);
    EXPECT_TRUE(app->rulebase()->Dirty());
}
