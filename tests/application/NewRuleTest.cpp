#include "application/Application.h"
#include "collections/ObjectArrayList.h"
#include "editors/CategoryEditorForm.h"
#include "editors/IConventionForm.h"
#include "editors/IFormFactory.h"
#include "editors/SeverityEditorForm.h"
#include "platform/GlobalObjects.h"
#include "platform/QuorinAdminData.h"
#include "platform/TextUtils.h"
#include "rulebase/CategoryItem.h"
#include "rulebase/CodingConvention.h"
#include "rulebase/NamingConvention.h"
#include "rulebase/RuleLists.h"
#include "rulebase/Rulebase.h"
#include "rulebase/SeverityItem.h"
#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"
#include "views/IRuleEditorLauncher.h"
#include "views/IViewController.h"
#include "views/ToolDispatcher.h"
#include "views/ViewFactory.h"

#include "support/MemoryMainForm.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// Rule dialogs that run a script on the rule instead of a person, and record what they were told.
class ScriptedForms final : public IFormFactory
{
public:
    ScriptedForms() { install(this); }
    ~ScriptedForms() override { install(nullptr); }

    std::unique_ptr<IConventionForm> createConventionForm(qint32 ruleType) override;

    bool confirm = true;
    std::function<void(IRule &)> edit;
    QList<qint32> created;
    std::shared_ptr<IRule> lastRule;
    Application *lastApplication = nullptr;
    // What the rule looked like when the dialog opened, for the preselection.
    QString eventsAtShow;
    qint32 categoryAtShow = 0;
    qint32 severityAtShow = 0;
    qint32 objectAtShow = 0;
    qint32 propertyAtShow = 0;
};

class ScriptedForm final : public IConventionForm
{
public:
    explicit ScriptedForm(ScriptedForms &forms)
        : m_forms(forms)
    {
    }
    void setConvention(const std::shared_ptr<IRule> &rule) override { m_rule = rule; }
    void setApplication(Application *application) override
    {
        m_forms.lastApplication = application;
    }
    bool Cancelled() const override { return m_cancelled; }
    void Show() override
    {
        m_forms.lastRule = m_rule;
        const auto def = m_rule->ViolationDefinition();
        m_forms.categoryAtShow = def->CategoryID();
        m_forms.severityAtShow = def->Severity();
        if (auto cc = std::dynamic_pointer_cast<CodingConvention>(m_rule))
            m_forms.eventsAtShow = cc->ParserEventList();
        if (auto nc = std::dynamic_pointer_cast<NamingConvention>(m_rule)) {
            m_forms.objectAtShow = nc->ObjectType();
            m_forms.propertyAtShow = nc->PropertyType();
        }
        // The real dialogs always leave a severity chosen.
        if (m_forms.confirm && def->Severity() == 0)
            def->setSeverity(1);
        if (m_forms.confirm && m_forms.edit)
            m_forms.edit(*m_rule);
        m_cancelled = !m_forms.confirm;
    }

private:
    ScriptedForms &m_forms;
    std::shared_ptr<IRule> m_rule;
    bool m_cancelled = true;
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

    RuleLists &lists() { return *app->rulebase()->RuleLists(); }
    // The author clicks the tree node with this key.
    void clickNode(const QString &key)
    {
        const int node = form.treeControl.find(key);
        ASSERT_NE(node, 0) << key.toStdString();
        form.treeControl.click(node);
    }
    // The author selects the list row of a rule.
    void clickRow(const IRule &rule)
    {
        const int row = form.listControl.find(rule.RuleKey());
        ASSERT_NE(row, 0);
        form.listControl.click(row);
    }

    ScriptedUserInterface ui;
    ScriptedForms forms;
    MemoryMainForm form;
    std::unique_ptr<Application> app;
};

} // namespace

TEST_F(NewRuleTest, PreselectsFromTheSelectedNodeOfEachView)
{
    forms.confirm = false;
    bool cancelled = false;

    app->SwitchView("tlCodingConventions");
    clickNode("30Key");
    EXPECT_EQ(app->NewCodingConvention(cancelled), nullptr);
    EXPECT_TRUE(cancelled);
    EXPECT_EQ(forms.eventsAtShow, u"30"_s);
    EXPECT_EQ(forms.categoryAtShow, -1);
    EXPECT_EQ(forms.lastApplication, app.get());
    app->NewNamingConvention(cancelled);
    EXPECT_EQ(forms.objectAtShow, 0);

    app->SwitchView("tlNamingConventions");
    clickNode("28Key");
    app->NewNamingConvention(cancelled);
    EXPECT_EQ(forms.objectAtShow, 28);
    EXPECT_EQ(forms.propertyAtShow, 37);
    app->NewCodingConvention(cancelled);
    EXPECT_TRUE(forms.eventsAtShow.isEmpty());

    app->SwitchView("tlSeverityView");
    clickNode("2Key");
    app->NewCodingConvention(cancelled);
    EXPECT_EQ(forms.severityAtShow, 2);
    app->NewNamingConvention(cancelled);
    EXPECT_EQ(forms.severityAtShow, 2);
    EXPECT_EQ(forms.categoryAtShow, -1);
    // No preselection for an unauthorised keyword.
    app->NewUnauthorisedKeyword(cancelled);
    EXPECT_EQ(forms.severityAtShow, 0);

    app->SwitchView("tlCategoryView");
    const QString categoryKey = form.treeControl.key(2);
    clickNode(categoryKey);
    app->NewNamingConvention(cancelled);
    ASSERT_NE(Text::valLong(categoryKey), 0);
    EXPECT_EQ(forms.categoryAtShow, Text::valLong(categoryKey));
    EXPECT_EQ(forms.severityAtShow, 0);
    // The root reads 0: nothing is preselected.
    clickNode("Category");
    app->NewCodingConvention(cancelled);
    EXPECT_EQ(forms.categoryAtShow, -1);

    EXPECT_EQ(forms.created, (QList<qint32>{4, 5, 5, 4, 4, 5, 3, 5, 4}));
    // Cancel adds nothing, and leaves the rulebase as it was read.
    EXPECT_FALSE(app->rulebase()->Dirty());
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(NewRuleTest, ConfirmedRulesJoinTheListsAndTheView)
{
    app->SwitchView("tlCodingConventions");
    clickNode("30Key");
    const int before = lists().CodingConventions()->Count();
    const auto inEvent = [&](qint32 event) {
        const auto list = lists().ParserEventCCList(event, false);
        return list ? list->Count() : 0;
    };
    const int eventBefore = inEvent(30);
    forms.edit = [](IRule &rule) {
        auto &cc = dynamic_cast<CodingConvention &>(rule);
        cc.setTitle("Made by the test");
        cc.ViolationDefinition()->setTitle("V");
    };
    const int rows = form.listControl.count();
    ASSERT_TRUE(ExecuteTool(*app, "tlCodingConvention"));
    ASSERT_TRUE(forms.lastRule);
    const std::shared_ptr<IRule> rule = forms.lastRule;
    EXPECT_GE(rule->RuleID(), 5000);
    EXPECT_EQ(lists().CodingConventions()->Count(), before + 1);
    EXPECT_EQ(inEvent(30), eventBefore + 1);
    EXPECT_EQ(form.listControl.count(), rows + 1);
    EXPECT_NE(form.listControl.find(rule->RuleKey()), 0);
    EXPECT_TRUE(app->rulebase()->Dirty());

    bool cancelled = true;
    forms.edit = {};
    const auto keyword = app->NewUnauthorisedKeyword(cancelled);
    EXPECT_FALSE(cancelled);
    ASSERT_TRUE(keyword);
    EXPECT_TRUE(lists().AllConventions()->ContainsValue(keyword));
    // The coding conventions view shows no keyword.
    EXPECT_EQ(form.listControl.find(keyword->RuleKey()), 0);
    EXPECT_TRUE(ui.messages.empty());
}

// The launcher the Application installs also carries the views' category and severity edits.
TEST(FormLauncher, CategoryAndSeverityEditsRunTheirEditorsAndWriteOnlyOnOK)
{
    class Editors final : public IFormFactory
    {
    public:
        Editors() { install(this); }
        ~Editors() override { install(nullptr); }
        bool runCategoryEditor(CategoryEditorForm &form) override
        {
            form.setTitle(u"Layout"_s);
            form.setDescription(u"Indentation and spacing"_s);
            return confirm ? form.OK() : (form.Cancel(), false);
        }
        bool runSeverityEditor(SeverityEditorForm &form) override
        {
            form.setTitle(u"Blocking"_s);
            return confirm ? form.OK() : (form.Cancel(), false);
        }
        bool confirm = false;
    } editors;

    MemoryMainForm form;
    Application app(&form);
    IRuleEditorLauncher &launcher = IRuleEditorLauncher::current();
    auto category = std::make_shared<CategoryItem>();
    category->setTitle(u"Old"_s);
    category->setDescription(u"Old text"_s);
    auto severity = std::make_shared<SeverityItem>();
    severity->setTitle(u"High"_s);
    severity->setDescription(u"Fix before release"_s);

    EXPECT_FALSE(launcher.EditCategory(category));
    EXPECT_FALSE(launcher.EditSeverity(severity));
    EXPECT_EQ(category->Title(), u"Old"_s);
    EXPECT_EQ(severity->Title(), u"High"_s);

    editors.confirm = true;
    EXPECT_TRUE(launcher.EditCategory(category));
    EXPECT_TRUE(launcher.EditSeverity(severity));
    EXPECT_EQ(category->Title(), u"Layout"_s);
    EXPECT_EQ(category->Description(), u"Indentation and spacing"_s);
    EXPECT_EQ(severity->Title(), u"Blocking"_s);
}
