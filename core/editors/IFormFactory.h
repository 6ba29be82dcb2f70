#pragma once

#include <QtGlobal>

#include <memory>

class AddFromProjectForm;
class AuthorisedComponentForm;
class AuthorisedReferenceForm;
class CategoryEditorForm;
class CategorySeverityForm;
class DefaultViolationsForm;
class IConventionForm;
class RulebaseDocCreatorForm;
class RulebasePropertiesForm;
class SeverityEditorForm;
class TagListForm;

// Makes and runs the dialogs that the application and the views open. The core builds each
// dialog's form model, hands it here to be shown modally, and reads the outcome from the model
// afterwards; the GUI installs a factory that shows real dialogs, tests install scripted ones.
// Every run* returns false when the dialog was cancelled or does not exist; the factory in
// place before one is installed has no dialogs at all.
class IFormFactory
{
public:
    virtual ~IFormFactory() = default;

    // A dialog for a rule of one of RuleTypes; nullptr when there is none for the type.
    virtual std::unique_ptr<IConventionForm> createConventionForm(qint32 ruleType);

    virtual bool runCategorySeverity(CategorySeverityForm &form);
    virtual bool runCategoryEditor(CategoryEditorForm &form);
    virtual bool runSeverityEditor(SeverityEditorForm &form);
    virtual bool runDefaultViolations(DefaultViolationsForm &form);
    virtual bool runRulebaseProperties(RulebasePropertiesForm &form);
    virtual bool runTagList(TagListForm &form);

    virtual bool runAddFromProject(AddFromProjectForm &form);
    virtual bool runAuthorisedComponent(AuthorisedComponentForm &form);
    virtual bool runAuthorisedReference(AuthorisedReferenceForm &form);

    virtual bool runDocCreator(RulebaseDocCreatorForm &form);

    // The process-wide factory; one without dialogs until one is installed.
    static IFormFactory &current();
    // Not owned; nullptr goes back to the one without dialogs.
    static void install(IFormFactory *factory);
};
