#include "editors/UnauthorisedKeywordForm.h"

#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

const char *const UnauthorisedKeywordForm::caption = "Unauthorised Keyword";
const char *const UnauthorisedKeywordForm::parserEventsHelp
    = "To optimise parser performance, select which parser event(s) the unauthorised keyword rule "
      "should be executed for.";

UnauthorisedKeywordForm::UnauthorisedKeywordForm(std::shared_ptr<UnauthorisedKeyword> rule)
    : m_rule(std::move(rule))
{
}

qint32 UnauthorisedKeywordForm::RuleID() const
{
    return m_rule ? m_rule->RuleID() : 0;
}

void UnauthorisedKeywordForm::Load()
{
    PopulateStaticData();
    DataToScreen();
}

void UnauthorisedKeywordForm::PopulateStaticData()
{
    PopulateCategories();
    PopulateSeverities();
}

void UnauthorisedKeywordForm::DataToScreen()
{
    const UnauthorisedKeyword &rule = *m_rule;
    m_screen.txtTitle = rule.Title();
    m_screen.txtDescription = rule.Description();
    CategoryToScreen(rule.CategoryID());
    m_screen.txtCondition = rule.Condition();
    // Any other event on the rule has no box, and is dropped on OK.
    m_screen.chkDeclaration = rule.IsAssignedToEvent(declarationEvent);
    m_screen.chkProcedureDecl = rule.IsAssignedToEvent(procedureDeclEvent);
    m_screen.chkProcedureBody = rule.IsAssignedToEvent(procedureBodyEvent);
    m_screen.chkRuleActive = rule.RuleActive();
    ViolationToScreen(*rule.ViolationDefinition(), true);
}

std::optional<FormFault> UnauthorisedKeywordForm::FirstFault() const
{
    if (m_screen.txtTitle.isEmpty())
        return FormFault{RuleTab,
                         QStringLiteral("txtTitle"),
                         -1,
                         QStringLiteral("Please enter a title for the rule.")};
    if (m_screen.txtCondition.isEmpty())
        return FormFault{
            ConditionTab,
            QStringLiteral("txtCondition"),
            -1,
            QStringLiteral("Please enter a pattern to match an unauthorised keyword.")};
    if (!m_screen.chkDeclaration && !m_screen.chkProcedureDecl && !m_screen.chkProcedureBody)
        return FormFault{
            ConditionTab,
            QStringLiteral("chkDeclaration"),
            -1,
            QStringLiteral("Please select a parser event for the unauthorised keyword rule.")};
    if (m_screen.txtVTitle.isEmpty())
        return FormFault{ViolationTab,
                         QStringLiteral("txtVTitle"),
                         -1,
                         QStringLiteral("Please enter a title for the violation.")};
    return std::nullopt;
}

void UnauthorisedKeywordForm::DataFromScreen()
{
    UnauthorisedKeyword &rule = *m_rule;
    rule.setTitle(m_screen.txtTitle);
    rule.setDescription(m_screen.txtDescription);
    rule.setCategoryID(CategoryFromScreen());
    rule.setCondition(m_screen.txtCondition);
    rule.RemoveParserEventID(-1);
    if (m_screen.chkDeclaration)
        rule.AddParserEventID(declarationEvent);
    if (m_screen.chkProcedureDecl)
        rule.AddParserEventID(procedureDeclEvent);
    if (m_screen.chkProcedureBody)
        rule.AddParserEventID(procedureBodyEvent);
    rule.setRuleActive(m_screen.chkRuleActive);
    ViolationFromScreen(*rule.ViolationDefinition(), true);
}
