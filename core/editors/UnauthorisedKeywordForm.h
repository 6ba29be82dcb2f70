#pragma once

#include "editors/ConventionForm.h"

class UnauthorisedKeyword;

// "Unauthorised Keyword": the form model of one unauthorised keyword rule, whose condition is a
// pattern tried at up to three parser events.
class UnauthorisedKeywordForm final : public ConventionForm<UnauthorisedKeyword>
{
public:
    enum Tab { RuleTab = 1, ConditionTab = 2, ViolationTab = 3 };
    // The events the author may choose, in the order of their boxes.
    static constexpr qint32 declarationEvent = 10;
    static constexpr qint32 procedureDeclEvent = 28;
    static constexpr qint32 procedureBodyEvent = 30;

    struct Screen : CommonScreen
    {
        QString txtCondition;
        bool chkDeclaration = false;
        bool chkProcedureDecl = false;
        bool chkProcedureBody = false;
    };

    static const char *const caption;
    static const char *const parserEventsHelp;

    explicit UnauthorisedKeywordForm(std::shared_ptr<UnauthorisedKeyword> rule = {});

    Screen &screen() { return m_screen; }
    const Screen &screen() const { return m_screen; }
    CommonScreen &common() override { return m_screen; }
    const CommonScreen &common() const override { return m_screen; }

    void DataToScreen() override;

    std::optional<FormFault> FirstFault() const override;
    void DataFromScreen() override;

private:
    Screen m_screen;
};
