#pragma once

#include "editors/UnauthorisedKeywordForm.h"
#include "gui/dialogs/frmConventionBase.h"

// "Unauthorised Keyword": the dialog of one unauthorised keyword rule, over
// UnauthorisedKeywordForm.
class frmUnauthorisedKeyword final : public frmConventionBase
{
    Q_OBJECT

public:
    explicit frmUnauthorisedKeyword(QWidget *parent = nullptr);

    void setConvention(const std::shared_ptr<IRule> &rule) override;
    UnauthorisedKeywordForm &model() { return m_model; }

protected:
    void buildTabs() override;
    void refresh() override;
    void pickObjectProperty(int index) override;

private:
    UnauthorisedKeywordForm m_model;
    QLineEdit *m_txtCondition = nullptr;
    QCheckBox *m_chkDeclaration = nullptr;
    QCheckBox *m_chkProcedureDecl = nullptr;
    QCheckBox *m_chkProcedureBody = nullptr;
};
