#include "editors/UnauthorisedKeywordForm.h"

#include "rulebase/UnauthorisedKeyword.h"
#include "rulebase/ViolationDefinition.h"

const char *const UnauthorisedKeywordForm::caption = "Unauthorised Keyword";
const char *const UnauthorisedKeywordForm::parserEventsHelp
    = "To optimise parser performance, select which parser event(s) the unauthorised keyword rule "
      "should be executed for.";

UnauthorisedKeywordForm::UnauthorisedKeywordForm(std::shared_ptr<UnauthorisedKeyword> rule)
    : ConventionForm(std::move(rule))
{
}

void UnauthorisedKeywordForm::DataToScreen()
{
    const UnauthorisedKeyword &rule = *m_rule;
    RuleToScreen();
    m_screen.txtCondition = rule.Condition();
    // Any other event on the rule has no box, and is dropped on OK.
    m_screen.chkDeclaration = rule.IsAssignedToEvent(declarationEvent);
    m_screen.chkProcedureDecl = rule.IsAssignedToEvent(procedureDeclEvent);
    m_screen.chkProcedureBody = rule.IsAssignedToEvent(procedureBodyEvent);
    ViolationToScreen(*rule.ViolationDefinition(), true);
}

std::optional<FormFault> UnauthorisedKeywordForm::FirstFault() const
{
    if (auto fault = TitleFault(RuleTab, QStringLiteral("Please enter a title for the rule.")))
        return fault;
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
    return ViolationTitleFault(ViolationTab);
}

void UnauthorisedKeywordForm::DataFromScreen()
{
    UnauthorisedKeyword &rule = *m_rule;
    RuleFromScreen();
    rule.setCondition(m_screen.txtCondition);
    rule.RemoveParserEventID(-1);
    if (m_screen.chkDeclaration)
        rule.AddParserEventID(declarationEvent);
    if (m_screen.chkProcedureDecl)
        rule.AddParserEventID(procedureDeclEvent);
    if (m_screen.chkProcedureBody)
        rule.AddParserEventID(procedureBodyEvent);
    ViolationFromScreen(*rule.ViolationDefinition(), true);
}
