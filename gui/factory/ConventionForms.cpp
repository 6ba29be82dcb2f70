#include "gui/factory/GuiFormFactory.h"

#include "gui/dialogs/frmCodingConvention.h"
#include "gui/dialogs/frmNamingConvention.h"
#include "gui/dialogs/frmUnauthorisedKeyword.h"
#include "rulebase/IRule.h"

std::unique_ptr<IConventionForm> GuiFormFactory::createConventionForm(qint32 ruleType)
{
    switch (ruleType) {
    case RuleTypes::CodingConvention:
        return std::make_unique<frmCodingConvention>(parentWidget());
    case RuleTypes::NamingConvention:
        return std::make_unique<frmNamingConvention>(parentWidget());
    case RuleTypes::UnauthorisedKeyword:
        return std::make_unique<frmUnauthorisedKeyword>(parentWidget());
    default:
        return nullptr;
    }
}
