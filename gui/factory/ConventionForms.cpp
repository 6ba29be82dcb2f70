#include "gui/factory/GuiFormFactory.h"

#include "editors/IConventionForm.h"

std::unique_ptr<IConventionForm> GuiFormFactory::createConventionForm(qint32 ruleType)
{
    return IFormFactory::createConventionForm(ruleType);
}
