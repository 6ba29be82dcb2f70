#include "editors/IFormFactory.h"

#include "editors/IConventionForm.h"

std::unique_ptr<IConventionForm> IFormFactory::createConventionForm(qint32)
{
    return nullptr;
}

bool IFormFactory::runCategorySeverity(CategorySeverityForm &)
{
    return false;
}
bool IFormFactory::runCategoryEditor(CategoryEditorForm &)
{
    return false;
}
bool IFormFactory::runSeverityEditor(SeverityEditorForm &)
{
    return false;
}
bool IFormFactory::runDefaultViolations(DefaultViolationsForm &)
{
    return false;
}
bool IFormFactory::runRulebaseProperties(RulebasePropertiesForm &)
{
    return false;
}
bool IFormFactory::runTagList(TagListForm &)
{
    return false;
}
bool IFormFactory::runAddFromProject(AddFromProjectForm &)
{
    return false;
}
bool IFormFactory::runAuthorisedComponent(AuthorisedComponentForm &)
{
    return false;
}
bool IFormFactory::runAuthorisedReference(AuthorisedReferenceForm &)
{
    return false;
}
bool IFormFactory::runDocCreator(RulebaseDocCreatorForm &)
{
    return false;
}

namespace {

IFormFactory withoutDialogs;
IFormFactory *installed = nullptr;

} // namespace

IFormFactory &IFormFactory::current()
{
    return installed ? *installed : withoutDialogs;
}

void IFormFactory::install(IFormFactory *factory)
{
    installed = factory;
}
